#include "views/brevant_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include "support/timer_tick.h"
#include "views/playlist_rows.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BrevantView : public testing::Test {
 protected:
  void SetUp() override {
    view.resize(900, 400);
    view.show();
  }
  [[nodiscard]] QPoint PlaceOf(int row) const {
    return view.visualRect(view.model()->index(row, 4)).topLeft() + QPoint(20, view.rowHeight(row) / 2);
  }
  void Click(int row, Qt::KeyboardModifiers modifiers = {}) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, modifiers, PlaceOf(row));
  }
  void DoubleClick(QPoint place) {
    QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, place);
  }
  [[nodiscard]] QPoint BelowAllRows() const { return {300, view.viewport()->height() - 5}; }
  [[nodiscard]] QString NameIn(int row) const { return view.model()->index(row, 4).data().toString(); }
  [[nodiscard]] QString TimeIn(int row) const { return view.model()->index(row, 3).data().toString(); }
  [[nodiscard]] bool IsWhollyInView(int row) const {
    const QRect place = view.visualRect(view.model()->index(row, 1));
    return place.top() >= 0 && place.bottom() < view.viewport()->height();
  }

  TCBrevantView view;
};

TEST_F(BrevantView, TheTickComesEvery300MillisecondsNotEvery100) {
  QTimer* timer = TimerOf(view, "timer 1");
  ASSERT_NE(timer, nullptr);
  EXPECT_TRUE(timer->isActive());
  EXPECT_EQ(timer->interval(), 100);
  const QSignalSpy polls(&view, &TCBrevantView::pollDue);
  std::vector<qsizetype> pollsAfterTick;
  for (int tick = 0; tick < 7; ++tick) {
    Tick(*timer);
    pollsAfterTick.push_back(polls.count());
  }
  EXPECT_THAT(pollsAfterTick, ElementsAre(0, 0, 1, 1, 1, 2, 2));
}

TEST_F(BrevantView, TheTimerRunsBeforeTheViewIsShownAndWhileItIsHidden) {
  const TCBrevantView unseen;
  EXPECT_TRUE(unseen.findChild<QTimer*>(QStringLiteral("timer 1"))->isActive());
  view.hide();
  EXPECT_TRUE(TimerOf(view, "timer 1")->isActive());
}

TEST_F(BrevantView, RowsShownAfreshStartAtTheTopWithNothingSelected) {
  view.ShowRows(Rows(200), TCShowRows::Afresh);
  view.SelectRow(150);
  view.ScrollToRow(150);
  view.ShowRows(Rows(100), TCShowRows::Afresh);
  EXPECT_EQ(view.model()->rowCount(), 100);
  EXPECT_EQ(view.SelectedRow(), -1);
  EXPECT_TRUE(IsWhollyInView(0));
}

TEST_F(BrevantView, RowsShownInPlaceKeepSelectionAndScroll) {
  view.ShowRows(Rows(200), TCShowRows::Afresh);
  view.ScrollToRow(150);
  view.SelectRow(149);
  const int scroll = view.verticalScrollBar()->value();
  ASSERT_GT(scroll, 0);
  view.ShowRows(Rows(200), TCShowRows::KeepPlace);
  EXPECT_EQ(view.verticalScrollBar()->value(), scroll);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(149));
  view.ShowRows(Rows(205), TCShowRows::KeepPlace);
  EXPECT_EQ(view.verticalScrollBar()->value(), scroll);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(149));
}

TEST_F(BrevantView, RowsShownInPlaceKeepOfTheSelectionWhatIsStillThere) {
  view.ShowRows(Rows(10), TCShowRows::Afresh);
  Click(2);
  Click(8, Qt::ControlModifier);
  view.ShowRows(Rows(5), TCShowRows::KeepPlace);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2));
}

TEST_F(BrevantView, ClearingTakesAllRowsAndLeavesTheHeader) {
  view.SetPlaylistHeader(u"Set 1 - Total Playlist Time: 12:34");
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  view.ClearRows();
  EXPECT_EQ(view.model()->rowCount(), 0);
  EXPECT_EQ(view.model()->headerData(4, Qt::Horizontal).toString(),
            QStringLiteral("Set 1 - Total Playlist Time: 12:34"));
  EXPECT_EQ(view.SelectedRow(), -1);
}

TEST_F(BrevantView, ATimeIsWrittenAndARowThatIsNotThereIsIgnored) {
  view.ShowRows(Rows(2), TCShowRows::Afresh);
  view.SetRowTime(1, u"09:59");
  EXPECT_EQ(TimeIn(1), QStringLiteral("09:59"));
  view.SetRowTime(-1, u"01:01");
  view.SetRowTime(2, u"01:01");
  EXPECT_EQ(TimeIn(0), QStringLiteral("03:45"));
}

TEST_F(BrevantView, RowTextsAreWrittenAndARowThatIsNotThereIsIgnored) {
  view.ShowRows(Rows(1), TCShowRows::Afresh);
  view.SetRowTexts(0, {u"1", u"Not found", u"00:00", u"Other.wav"});
  EXPECT_EQ(NameIn(0), QStringLiteral("Other.wav"));
  view.SetRowTexts(1, {u"2", u"Found", u"00:00", u"Nowhere.wav"});
  view.SetRowTexts(-1, {u"2", u"Found", u"00:00", u"Nowhere.wav"});
  EXPECT_EQ(view.model()->rowCount(), 1);
  EXPECT_EQ(NameIn(0), QStringLiteral("Other.wav"));
}

TEST_F(BrevantView, SelectedRowsComeInAscendingOrderAndTheFirstIsTheSelectedRow) {
  view.ShowRows(Rows(9), TCShowRows::Afresh);
  EXPECT_EQ(view.SelectedRow(), -1);
  EXPECT_THAT(view.SelectedRows(), IsEmpty());
  Click(7);
  Click(2, Qt::ControlModifier);
  Click(4, Qt::ControlModifier);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2, 4, 7));
  EXPECT_EQ(view.SelectedRow(), 2);
}

TEST_F(BrevantView, ShiftSelectsARange) {
  view.ShowRows(Rows(9), TCShowRows::Afresh);
  Click(2);
  Click(5, Qt::ShiftModifier);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2, 3, 4, 5));
}

TEST_F(BrevantView, SelectingARowDeselectsTheFirstSelectedOnly) {
  view.ShowRows(Rows(9), TCShowRows::Afresh);
  Click(2);
  Click(5, Qt::ControlModifier);
  view.SelectRow(7);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(5, 7));
}

TEST_F(BrevantView, SelectingARowThatIsNotThereSelectsNothing) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  for (const int row : {-1, 3, 1000}) {
    view.SelectRow(1);
    view.SelectRow(row);
    EXPECT_THAT(view.SelectedRows(), IsEmpty()) << row;
  }
}

TEST_F(BrevantView, ADoubleClickPicksTheSelectedRowAndLeavesItSelected) {
  view.ShowRows(Rows(9), TCShowRows::Afresh);
  const QSignalSpy picks(&view, &TCBrevantView::rowPicked);
  DoubleClick(PlaceOf(4));
  ASSERT_EQ(picks.count(), 1);
  EXPECT_EQ(picks.at(0).at(0).toInt(), 4);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(4));
}

TEST_F(BrevantView, ADoubleClickBesideAllRowsPicksNone) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  const QSignalSpy picks(&view, &TCBrevantView::rowPicked);
  view.SelectRow(1);
  DoubleClick(BelowAllRows());
  ASSERT_EQ(picks.count(), 1);
  EXPECT_EQ(picks.at(0).at(0).toInt(), -1);
}

TEST_F(BrevantView, ADoubleClickWithoutAnyRowPicksNone) {
  const QSignalSpy picks(&view, &TCBrevantView::rowPicked);
  DoubleClick(BelowAllRows());
  ASSERT_EQ(picks.count(), 1);
  EXPECT_EQ(picks.at(0).at(0).toInt(), -1);
}

TEST_F(BrevantView, ADoubleClickWithTheRightButtonPicksNothing) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  const QSignalSpy picks(&view, &TCBrevantView::rowPicked);
  QTest::mouseDClick(view.viewport(), Qt::RightButton, {}, PlaceOf(1));
  EXPECT_EQ(picks.count(), 0);
}

TEST_F(BrevantView, TheRightButtonAsksForTheMenuWhereItWasPressed) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  const QSignalSpy menus(&view, &TCBrevantView::contextMenuWanted);
  const QPoint place = PlaceOf(1);
  QTest::mousePress(view.viewport(), Qt::RightButton, {}, place);
  ASSERT_EQ(menus.count(), 1);
  EXPECT_EQ(menus.at(0).at(0).toPoint(), view.viewport()->mapToGlobal(place));
  // The window system announces the same press a second time, as a wish for a menu.
  QContextMenuEvent announced(QContextMenuEvent::Mouse, place, view.viewport()->mapToGlobal(place));
  QCoreApplication::sendEvent(view.viewport(), &announced);
  EXPECT_EQ(menus.count(), 1);
  EXPECT_TRUE(announced.isAccepted());
}

TEST_F(BrevantView, TheRightButtonSelectsARowButLeavesASelectionThatHoldsIt) {
  view.ShowRows(Rows(9), TCShowRows::Afresh);
  QTest::mousePress(view.viewport(), Qt::RightButton, {}, PlaceOf(3));
  QTest::mouseRelease(view.viewport(), Qt::RightButton, {}, PlaceOf(3));
  EXPECT_THAT(view.SelectedRows(), ElementsAre(3));
  Click(5, Qt::ControlModifier);
  QTest::mousePress(view.viewport(), Qt::RightButton, {}, PlaceOf(3));
  QTest::mouseRelease(view.viewport(), Qt::RightButton, {}, PlaceOf(3));
  EXPECT_THAT(view.SelectedRows(), ElementsAre(3, 5));
}

TEST_F(BrevantView, TheMenuKeyAsksForTheMenuAtTheSelectedRow) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  view.SelectRow(2);
  const QSignalSpy menus(&view, &TCBrevantView::contextMenuWanted);
  QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QCoreApplication::sendEvent(&view, &key);
  ASSERT_EQ(menus.count(), 1);
  const QPoint place = view.viewport()->mapFromGlobal(menus.at(0).at(0).toPoint());
  EXPECT_EQ(view.rowAt(place.y()), 2);
}

TEST_F(BrevantView, TheMenuOfARowThatIsOutOfSightOpensInsideTheView) {
  view.ShowRows(Rows(200), TCShowRows::Afresh);
  view.horizontalScrollBar()->setValue(50);
  for (const int row : {0, 199}) {
    view.SelectRow(row);
    view.ScrollToRow(199 - row);
    const QSignalSpy menus(&view, &TCBrevantView::contextMenuWanted);
    QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
    QCoreApplication::sendEvent(&view, &key);
    ASSERT_EQ(menus.count(), 1);
    const QPoint place = view.viewport()->mapFromGlobal(menus.at(0).at(0).toPoint());
    EXPECT_TRUE(view.viewport()->rect().contains(place)) << row << " " << place.x() << " " << place.y();
  }
}

// Counts the keys that the view leaves to whatever holds it.
class TCKeyCount : public QWidget {
 public:
  int keys = 0;

 protected:
  void keyPressEvent(QKeyEvent* event) override { keys += event->key() == Qt::Key_Control ? 0 : 1; }
};

TEST_F(BrevantView, LettersDigitsSpaceEnterAndDeleteAreLeftToTheFrame) {
  TCKeyCount frame;
  auto* inside = new TCBrevantView(&frame);
  inside->ShowRows(Rows(9), TCShowRows::Afresh);
  inside->SelectRow(4);
  int sent = 0;
  for (const Qt::Key key :
       {Qt::Key_S, Qt::Key_D, Qt::Key_2, Qt::Key_6, Qt::Key_Space, Qt::Key_Return, Qt::Key_Enter,
        Qt::Key_Escape, Qt::Key_Delete, Qt::Key_F2, Qt::Key_Left, Qt::Key_Right, Qt::Key_A}) {
    QTest::keyClick(inside, key);
    EXPECT_EQ(frame.keys, ++sent) << key;
  }
  EXPECT_THAT(inside->SelectedRows(), ElementsAre(4));
}

TEST_F(BrevantView, ControlAAndF4DoNothingAndGoNoFurther) {
  TCKeyCount frame;
  auto* inside = new TCBrevantView(&frame);
  inside->ShowRows(Rows(9), TCShowRows::Afresh);
  QTest::keyClick(inside, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(inside, Qt::Key_F4);
  EXPECT_EQ(frame.keys, 0);
  EXPECT_THAT(inside->SelectedRows(), IsEmpty());
}

TEST_F(BrevantView, ControlCCopiesNoCell) {
  view.ShowRows(Rows(9), TCShowRows::Afresh);
  view.SelectRow(4);
  QGuiApplication::clipboard()->setText(QStringLiteral("before"));
  QTest::keyClick(&view, Qt::Key_C, Qt::ControlModifier);
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("before"));
}

TEST_F(BrevantView, ArrowsMoveTheSelectionWhenTheyReachTheView) {
  view.ShowRows(Rows(9), TCShowRows::Afresh);
  view.SelectRow(4);
  QTest::keyClick(&view, Qt::Key_Down);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(5));
  QTest::keyClick(&view, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(5, 6));
}

TEST_F(BrevantView, NothingCanBeEdited) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  DoubleClick(PlaceOf(1));
  EXPECT_EQ(view.findChild<QWidget*>(QStringLiteral("qt_editing_widget")), nullptr);
  EXPECT_EQ(view.editTriggers(), QAbstractItemView::NoEditTriggers);
  EXPECT_FALSE(view.model()->flags(view.model()->index(1, 4)).testFlag(Qt::ItemIsEditable));
}

TEST_F(BrevantView, ScrollingToARowBringsItWhollyIntoView) {
  view.ShowRows(Rows(200), TCShowRows::Afresh);
  view.ScrollToRow(150);
  EXPECT_TRUE(IsWhollyInView(150));
  view.ScrollToRow(3);
  EXPECT_TRUE(IsWhollyInView(3));
  const int scroll = view.verticalScrollBar()->value();
  view.ScrollToRow(-1);
  view.ScrollToRow(200);
  EXPECT_EQ(view.verticalScrollBar()->value(), scroll);
}

TEST_F(BrevantView, GoingToARowLeavesTheColumnsWhereTheyStand) {
  view.ShowRows(Rows(200), TCShowRows::Afresh);
  view.ScrollToRow(150);
  EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
  Click(149);
  EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
  view.horizontalScrollBar()->setValue(50);
  view.ScrollToRow(0);
  EXPECT_EQ(view.horizontalScrollBar()->value(), 50);
}

TEST_F(BrevantView, TheRowBroughtIntoViewStaysThereWhenWindowOrFontChange) {
  view.ShowRows(Rows(200), TCShowRows::Afresh);
  view.ScrollToRow(100);
  view.resize(900, 150);
  EXPECT_TRUE(IsWhollyInView(100));
  view.SetDisplayFont(u"Times New Roman", 40);
  EXPECT_TRUE(IsWhollyInView(100));
}

TEST_F(BrevantView, ARowBroughtIntoViewBeforeTheViewIsShownIsInViewOnceItIs) {
  QWidget window;
  auto* layout = new QVBoxLayout(&window);
  auto* inside = new TCBrevantView;
  layout->addWidget(inside);
  inside->ShowRows(Rows(200), TCShowRows::Afresh);
  inside->ScrollToRow(100);
  window.resize(700, 160);
  window.show();
  const QRect place = inside->visualRect(inside->model()->index(100, 1));
  EXPECT_GE(place.top(), 0);
  EXPECT_LT(place.bottom(), inside->viewport()->height());
}

TEST_F(BrevantView, ARowTheUserScrolledAwayFromIsNotBroughtBackByAResize) {
  view.ShowRows(Rows(200), TCShowRows::Afresh);
  view.ScrollToRow(100);
  view.verticalScrollBar()->setValue(0);
  view.resize(900, 150);
  EXPECT_EQ(view.verticalScrollBar()->value(), 0);
}

TEST_F(BrevantView, TakesTheFocusFromAnotherWidgetOfItsWindow) {
  QWidget window;
  auto* layout = new QVBoxLayout(&window);
  auto* inside = new TCBrevantView;
  auto* other = new QWidget;
  other->setFocusPolicy(Qt::StrongFocus);
  layout->addWidget(inside);
  layout->addWidget(other);
  window.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  other->setFocus();
  inside->TakeFocus();
  EXPECT_TRUE(inside->hasFocus());
}

TEST_F(BrevantView, TakesTheFocusFromAnotherWindowOfThisProgram) {
  QWidget floating;
  floating.show();
  floating.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&floating));
  view.TakeFocus();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
  EXPECT_TRUE(view.hasFocus());
}

TEST_F(BrevantView, RowsAndHeadersCanBeReadByAssistiveTechnology) {
  view.SetPlaylistHeader(u"Set 1 - Total Playlist Time: 12:34");
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  EXPECT_EQ(view.accessibleName(), QStringLiteral("Playlist"));
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&view);
  ASSERT_NE(accessible, nullptr);
  QAccessibleTableInterface* table = accessible->tableInterface();
  ASSERT_NE(table, nullptr);
  EXPECT_EQ(table->rowCount(), 3);
  EXPECT_EQ(table->columnCount(), 5);
  EXPECT_EQ(table->cellAt(1, 4)->text(QAccessible::Name), QStringLiteral("Song 2.mp3"));
  EXPECT_EQ(table->columnDescription(3), QStringLiteral("Song Time"));
  EXPECT_EQ(table->columnDescription(4), QStringLiteral("Set 1 - Total Playlist Time: 12:34"));
  view.SelectRow(1);
  EXPECT_TRUE(table->isRowSelected(1));
}

}  // namespace
}  // namespace brevant
