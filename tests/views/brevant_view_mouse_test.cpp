#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QSignalSpy>
#include <QTest>

#include "support/timer_tick.h"
#include "views/brevant_view.h"
#include "views/playlist_rows.h"
#include "views/stage_mouse.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class PlaylistMouse : public testing::Test {
 protected:
  void SetUp() override {
    view.SetCursors(TestCursors());
    view.resize(900, 400);
    view.show();
    view.ShowRows(Rows(9), TCShowRows::Afresh);
  }
  [[nodiscard]] QPoint On(int row) const {
    return view.visualRect(view.model()->index(row, 4)).topLeft() + QPoint(20, view.rowHeight(row) / 2);
  }
  [[nodiscard]] QPoint BelowAllRows() const { return {300, view.viewport()->height() - 5}; }
  [[nodiscard]] QPoint OutsideOfTheView() const { return {-40, 60}; }
  [[nodiscard]] Qt::CursorShape Pointer() const { return view.viewport()->cursor().shape(); }

  TCBrevantView view;
  TCStageMouse mouse{*view.viewport()};
  QSignalSpy moves{&view, &TCBrevantView::rowMoved};
  QSignalSpy copyMoves{&view, &TCBrevantView::ctrlDragMoved};
  QSignalSpy copyDrops{&view, &TCBrevantView::ctrlDragReleased};
};

TEST_F(PlaylistMouse, ASongIsDraggedToTheRowItIsReleasedOn) {
  mouse.Press(On(1));
  mouse.Drag(On(2));
  mouse.Drag(On(3));
  EXPECT_EQ(moves.count(), 0) << "not before the button is released";
  mouse.Release(On(3));
  ASSERT_EQ(moves.count(), 1);
  EXPECT_EQ(moves.at(0).at(0).toInt(), 1);
  EXPECT_EQ(moves.at(0).at(1).toInt(), 3);
  EXPECT_EQ(view.model()->index(1, 4).data().toString(), QStringLiteral("Song 2.mp3"))
      << "the document moves";
}

TEST_F(PlaylistMouse, TheRowUnderADragIsTheOneSelected) {
  view.SelectRow(6);
  mouse.Click(On(7), Qt::ControlModifier);
  mouse.Press(On(6));
  for (const int row : {5, 4, 3}) {
    mouse.Drag(On(row));
    EXPECT_THAT(view.SelectedRows(), ElementsAre(row));
  }
  mouse.Drag(BelowAllRows());
  EXPECT_THAT(view.SelectedRows(), ElementsAre(3));
}

TEST_F(PlaylistMouse, ReleasedOnTheRowItWasPressedOnASongStays) {
  mouse.Press(On(4));
  mouse.Drag(On(6));
  mouse.Drag(On(4));
  mouse.Release(On(4));
  EXPECT_EQ(moves.count(), 0);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(4));
}

TEST_F(PlaylistMouse, ReleasedBesideAllRowsOrOutsideOfTheViewASongStays) {
  for (const QPoint place : {BelowAllRows(), OutsideOfTheView(), QPoint(40, -200), QPoint(40, 4000)}) {
    mouse.Press(On(4));
    mouse.Drag(On(5));
    mouse.Release(place);
    EXPECT_EQ(moves.count(), 0);
    EXPECT_THAT(view.SelectedRows(), ElementsAre(5));
  }
}

TEST_F(PlaylistMouse, APositionOutsideOfTheViewIsNoRowThoughRowsLieThereScrolledAway) {
  view.ShowRows(Rows(200), TCShowRows::Afresh);
  mouse.Press(On(4));
  mouse.Release(QPoint(100, view.viewport()->height() + 60));
  EXPECT_EQ(moves.count(), 0);
}

TEST_F(PlaylistMouse, AtTheEdgeOfTheViewADragScrolls) {
  view.ShowRows(Rows(200), TCShowRows::Afresh);
  QTimer* timer = TimerOf(view, "edgeScroll");
  ASSERT_NE(timer, nullptr);
  mouse.Press(On(1));
  mouse.Drag(On(3));
  EXPECT_FALSE(timer->isActive());
  const QPoint edge(100, view.viewport()->height() - 3);
  mouse.Drag(edge);
  EXPECT_TRUE(timer->isActive());
  for (int i = 0; i < 40; ++i) Tick(*timer);
  EXPECT_GT(view.rowAt(edge.y()), 40);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(view.rowAt(edge.y()))) << "the target follows what scrolls by";
  const int target = view.rowAt(edge.y());
  mouse.Release(edge);
  EXPECT_FALSE(timer->isActive());
  ASSERT_EQ(moves.count(), 1);
  EXPECT_EQ(moves.at(0).at(1).toInt(), target);
}

TEST_F(PlaylistMouse, AGivenUpOrCopyingDragScrollsNothing) {
  view.ShowRows(Rows(200), TCShowRows::Afresh);
  QTimer* timer = TimerOf(view, "edgeScroll");
  ASSERT_NE(timer, nullptr);
  const QPoint edge(100, view.viewport()->height() - 3);
  mouse.Press(On(1));
  mouse.Drag(edge);
  view.ResetMouseState();
  EXPECT_FALSE(timer->isActive());
  mouse.Release(edge);
  mouse.Press(On(1), Qt::ControlModifier);
  mouse.Drag(edge, Qt::ControlModifier);
  EXPECT_FALSE(timer->isActive());
  mouse.Release(edge, Qt::ControlModifier);
}

TEST_F(PlaylistMouse, ReleasedWithCtrlHeldASongStays) {
  mouse.Press(On(4));
  mouse.Drag(On(6));
  mouse.Release(On(6), Qt::ControlModifier);
  EXPECT_EQ(moves.count(), 0);
  EXPECT_EQ(copyDrops.count(), 0);
}

TEST_F(PlaylistMouse, AnUnsteadyClickIsAClick) {
  view.SelectRow(4);
  mouse.Click(On(6), Qt::ControlModifier);
  for (const Qt::KeyboardModifiers held :
       {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ControlModifier)}) {
    mouse.Press(On(4), held);
    mouse.Drag(On(4) + QPoint(2, 1), held);
    mouse.Release(On(4) + QPoint(2, 1), held);
  }
  EXPECT_EQ(moves.count(), 0);
  EXPECT_EQ(copyMoves.count(), 0);
  EXPECT_EQ(copyDrops.count(), 0);
  EXPECT_THAT(view.SelectedRows(), IsEmpty())
      << "the click left row 4 alone selected, the Ctrl-click took it";
}

TEST_F(PlaylistMouse, WithCtrlTheSelectedSongsGoWhereverTheMouseGoes) {
  mouse.Click(On(2));
  mouse.Click(On(5), Qt::ControlModifier);
  mouse.Press(On(7), Qt::ControlModifier);
  mouse.Drag(On(6), Qt::ControlModifier);
  mouse.Drag(OutsideOfTheView(), Qt::ControlModifier);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2, 5, 7)) << "what is dragged stays selected";
  ASSERT_EQ(copyMoves.count(), 2);
  EXPECT_EQ(copyMoves.at(1).at(0).toPoint(), view.viewport()->mapToGlobal(OutsideOfTheView()));
  EXPECT_EQ(copyDrops.count(), 0);
  mouse.Release(OutsideOfTheView(), Qt::ControlModifier);
  ASSERT_EQ(copyDrops.count(), 1);
  EXPECT_EQ(copyDrops.at(0).at(0).toPoint(), view.viewport()->mapToGlobal(OutsideOfTheView()));
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2, 5, 7));
  EXPECT_EQ(moves.count(), 0);
}

TEST_F(PlaylistMouse, CtrlLetGoBeforeTheButtonKeepsTheSelectionForTheDrop) {
  mouse.Click(On(2));
  mouse.Press(On(5), Qt::ControlModifier);
  mouse.Drag(OutsideOfTheView(), Qt::ControlModifier);
  mouse.Release(OutsideOfTheView());
  EXPECT_EQ(copyDrops.count(), 1);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2, 5));
}

TEST_F(PlaylistMouse, ACtrlPressOnASelectedRowDragsItAlong) {
  mouse.Click(On(2));
  mouse.Click(On(5), Qt::ControlModifier);
  mouse.Press(On(2), Qt::ControlModifier);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2, 5));
  mouse.Drag(OutsideOfTheView(), Qt::ControlModifier);
  mouse.Release(OutsideOfTheView(), Qt::ControlModifier);
  EXPECT_EQ(copyDrops.count(), 1);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2, 5));
}

TEST_F(PlaylistMouse, ACtrlClickSelectsARowAndASecondOneGivesItUpAtItsRelease) {
  mouse.Click(On(2));
  mouse.Press(On(5), Qt::ControlModifier);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2, 5));
  mouse.Release(On(5), Qt::ControlModifier);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2, 5));
  mouse.Press(On(5), Qt::ControlModifier);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2, 5));
  mouse.Release(On(5), Qt::ControlModifier);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2));
  EXPECT_EQ(copyDrops.count(), 0);
}

TEST_F(PlaylistMouse, AClickOnOneOfSeveralSelectedRowsSelectsItAlone) {
  mouse.Click(On(2));
  mouse.Click(On(5), Qt::ControlModifier);
  mouse.Click(On(2));
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2));
}

TEST_F(PlaylistMouse, ADragThatIsDroppedDoesNothingUntilTheNextPress) {
  mouse.Press(On(1));
  mouse.Drag(On(2));
  view.ResetMouseState();
  mouse.Drag(On(5));
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2));
  mouse.Release(On(5));
  EXPECT_THAT(view.SelectedRows(), ElementsAre(2));
  EXPECT_EQ(moves.count(), 0);
  mouse.Press(On(6));
  mouse.Drag(On(7));
  mouse.Release(On(7));
  EXPECT_EQ(moves.count(), 1);
}

TEST_F(PlaylistMouse, ACopyingDragThatIsDroppedCopiesNothing) {
  QSignalSpy ends(&view, &TCBrevantView::ctrlDragEnded);
  mouse.Press(On(1), Qt::ControlModifier);
  mouse.Drag(On(2), Qt::ControlModifier);
  view.ResetMouseState();
  EXPECT_EQ(ends.count(), 1);
  mouse.Drag(On(3), Qt::ControlModifier);
  mouse.Release(On(3), Qt::ControlModifier);
  EXPECT_EQ(copyMoves.count(), 1);
  EXPECT_EQ(copyDrops.count(), 0);
  EXPECT_EQ(ends.count(), 1);
}

TEST_F(PlaylistMouse, AfterADoubleClickTheHandMayShake) {
  const QSignalSpy picks(&view, &TCBrevantView::rowPicked);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, {}, On(4));
  QTest::mouseDClick(view.viewport(), Qt::LeftButton, {}, On(4));
  mouse.Drag(On(5));
  mouse.Release(On(5));
  EXPECT_EQ(picks.count(), 1);
  EXPECT_EQ(moves.count(), 0);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(4));
}

TEST_F(PlaylistMouse, TheRightButtonDragsNothing) {
  QTest::mousePress(view.viewport(), Qt::RightButton, {}, On(1));
  QMouseEvent move(QEvent::MouseMove, On(3), view.viewport()->mapToGlobal(On(3)), Qt::NoButton,
                   Qt::RightButton, {});
  QCoreApplication::sendEvent(view.viewport(), &move);
  QTest::mouseRelease(view.viewport(), Qt::RightButton, {}, On(3));
  EXPECT_EQ(moves.count(), 0);
  EXPECT_THAT(view.SelectedRows(), ElementsAre(1));
}

TEST_F(PlaylistMouse, ThePointerSaysWhatTheMouseIsAbout) {
  mouse.Hover(On(1));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Row));
  mouse.Hover(BelowAllRows());
  EXPECT_EQ(Pointer(), Qt::ArrowCursor);
  mouse.Press(BelowAllRows());
  EXPECT_EQ(Pointer(), Qt::ArrowCursor);
  mouse.Release(BelowAllRows());
  mouse.Press(On(1));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Pressed));
  mouse.Drag(On(2));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Drag));
  mouse.Drag(BelowAllRows());
  EXPECT_EQ(Pointer(), Qt::ArrowCursor);
  mouse.Release(On(2));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Row));
}

TEST_F(PlaylistMouse, ThePointerOfACopyingDragIsPressedOverRowsAndBusyOutside) {
  mouse.Press(On(1), Qt::ControlModifier);
  mouse.Drag(On(2), Qt::ControlModifier);
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Pressed));
  mouse.Drag(BelowAllRows(), Qt::ControlModifier);
  EXPECT_EQ(Pointer(), Qt::ArrowCursor);
  mouse.Drag(OutsideOfTheView(), Qt::ControlModifier);
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Busy));
  mouse.Release(OutsideOfTheView(), Qt::ControlModifier);
  EXPECT_EQ(Pointer(), Qt::ArrowCursor);
}

TEST_F(PlaylistMouse, WhilePlacingWaitsThePointerIsBusyEverywhere) {
  view.SetPlacing(TCPlacing::Waiting);
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Busy));
  mouse.Hover(On(1));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Busy));
  mouse.Press(On(1));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Busy));
  mouse.Release(On(1));
  view.SetPlacing(TCPlacing::Nothing);
  EXPECT_EQ(Pointer(), Qt::ArrowCursor);
  mouse.Hover(On(1));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Row));
}

}  // namespace
}  // namespace brevant
