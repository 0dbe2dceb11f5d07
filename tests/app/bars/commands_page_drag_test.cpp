// What is dragged with the mouse on the customise sheet's page of commands.
#include "app/bars/open_commands_page.h"

namespace brevant {
namespace {

using Id = TCCommandId;

constexpr TCTextId kStandard = TCTextId::StandardToolbar;

class CommandsPageDrag : public TCOpenCommandsPage {};

TEST_F(CommandsPageDrag, ACommandIsDraggedOntoABarOfTheWindow) {
  // Beside the bars, so that they can be seen.
  sheet->move(window.mapToGlobal(QPoint(400, 200)));
  ChooseCategory(QStringLiteral("Play"));
  Drag("BarCommands", QStringLiteral("Stop"), OnButton(TCTextId::CreateToolbar, Id::AddSongs));
  EXPECT_EQ(On(TCTextId::CreateToolbar),
            (std::vector{Id::CreateGroupList, Id::CreatePlaylist, Id::Stop, Id::AddSongs, Id::Duplicate,
                         Id::Remove, Id::None, Id::MoveSongUp, Id::MoveSongDown}));
  EXPECT_EQ(Find<QComboBox>("BarTarget").currentText(), QStringLiteral("Create"));
  EXPECT_EQ(Find<TCDragList>("BarItems").currentItem()->text(), QStringLiteral("Stop"));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(CommandsPageDrag, ACommandIsDraggedIntoTheListOfTheBar) {
  auto& placed = Find<TCDragList>("BarItems");
  const QRect open = placed.visualItemRect(placed.item(1));
  Drag("BarCommands", QStringLiteral("Exit"), placed.viewport()->mapToGlobal(open.topLeft() + QPoint(20, 2)));
  EXPECT_EQ(On(kStandard), (std::vector{Id::FileNew, Id::Exit, Id::FileOpen, Id::FileSave}));
  const QPoint below = placed.viewport()->rect().bottomLeft() + QPoint(20, -5);
  Drag("BarCommands", QStringLiteral("Save As..."), placed.viewport()->mapToGlobal(below));
  EXPECT_EQ(On(kStandard).back(), Id::FileSaveAs) << "below the entries is behind them";
}

TEST_F(CommandsPageDrag, AnEntryIsDraggedOffItsBarOrToAnother) {
  sheet->move(window.mapToGlobal(QPoint(400, 200)));
  Drag("BarItems", QStringLiteral("Open..."), window.mapToGlobal(QPoint(100, 600)));
  EXPECT_EQ(On(kStandard), (std::vector{Id::FileNew, Id::FileSave}));
  Drag("BarItems", QStringLiteral("Save"), OnButton(TCTextId::CreateToolbar, Id::CreateGroupList));
  EXPECT_EQ(On(kStandard), std::vector{Id::FileNew});
  EXPECT_EQ(On(TCTextId::CreateToolbar).front(), Id::FileSave);
  EXPECT_EQ(Find<QComboBox>("BarTarget").currentText(), QStringLiteral("Create")) << "where it is now";
  EXPECT_EQ(Find<TCDragList>("BarItems").currentRow(), 0);
}

TEST_F(CommandsPageDrag, AnEntryIsDraggedToAnotherPlaceOfItsBar) {
  auto& placed = Find<TCDragList>("BarItems");
  const QRect last = placed.visualItemRect(placed.item(2));
  Drag("BarItems", QStringLiteral("New"), placed.viewport()->mapToGlobal(last.bottomLeft() + QPoint(20, -2)));
  EXPECT_EQ(On(kStandard), (std::vector{Id::FileOpen, Id::FileSave, Id::FileNew}));
  EXPECT_EQ(placed.currentRow(), 2);
  const QRect middle = placed.visualItemRect(placed.item(2));
  Drag("BarItems", QStringLiteral("Open..."),
       placed.viewport()->mapToGlobal(middle.topLeft() + QPoint(20, 2)));
  EXPECT_EQ(On(kStandard), (std::vector{Id::FileSave, Id::FileOpen, Id::FileNew})) << "in front of the last";
  EXPECT_EQ(placed.currentRow(), 1);
}

TEST_F(CommandsPageDrag, ALineShowsWhereADraggedEntryWouldGo) {
  sheet->move(window.mapToGlobal(QPoint(400, 200)));
  auto& offered = Find<TCDragList>("BarCommands");
  auto& placed = Find<TCDragList>("BarItems");
  Choose("BarCommands", QStringLiteral("Exit"));
  const QPoint start = offered.visualItemRect(offered.currentItem()).center();
  QTest::mousePress(offered.viewport(), Qt::LeftButton, {}, start);

  MoveTo(offered,
         placed.viewport()->mapToGlobal(placed.visualItemRect(placed.item(1)).topLeft() + QPoint(20, 2)));
  const QWidget* line = Line(*placed.viewport());
  ASSERT_NE(line, nullptr);
  const int boundary = placed.visualItemRect(placed.item(0)).bottom();
  EXPECT_EQ(line->geometry(), QRect(0, boundary - 1, placed.viewport()->width(), 3));

  MoveTo(offered, OnButton(TCTextId::CreateToolbar, Id::AddSongs));
  EXPECT_EQ(Line(*placed.viewport()), nullptr);
  const QToolBar* bar = bars.BarOf(TCTextId::CreateToolbar);
  line = Line(*bar);
  ASSERT_NE(line, nullptr);
  const QWidget* button = bar->widgetForAction(actions->ActionOf(Id::AddSongs));
  EXPECT_EQ(line->geometry(), QRect(button->x() - 1, 0, 3, bar->height()));

  MoveTo(offered, window.mapToGlobal(QPoint(100, 600)));
  EXPECT_EQ(Line(*bar), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ForbiddenCursor);
  QTest::mouseRelease(offered.viewport(), Qt::LeftButton, {}, start);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(CommandsPageDrag, WhatAMenuDoesNotTakeHasNoPlaceInIt) {
  ChooseCategory(QStringLiteral("New Menu"));
  Click("AddToBar");
  ChooseTarget(QStringLiteral("Standard toolbar > New Menu"));
  auto& offered = Find<TCDragList>("BarCommands");
  auto& placed = Find<TCDragList>("BarItems");
  Choose("BarCommands", QStringLiteral("Separator"));
  QTest::mousePress(offered.viewport(), Qt::LeftButton, {},
                    offered.visualItemRect(offered.currentItem()).center());
  const QPoint inside = placed.viewport()->mapToGlobal(placed.viewport()->rect().center());
  MoveTo(offered, inside);
  EXPECT_EQ(Line(*placed.viewport()), nullptr);
  EXPECT_EQ(QApplication::overrideCursor()->shape(), Qt::ForbiddenCursor);
  QTest::mouseRelease(offered.viewport(), Qt::LeftButton, {}, offered.viewport()->mapFromGlobal(inside));
  EXPECT_EQ(placed.count(), 0);
}

TEST_F(CommandsPageDrag, ADragThatTheSheetDoesNotOutliveGivesTheCursorBack) {
  auto& offered = Find<TCDragList>("BarCommands");
  QTest::mousePress(offered.viewport(), Qt::LeftButton, {}, offered.visualItemRect(offered.item(0)).center());
  MoveTo(offered, window.mapToGlobal(QPoint(100, 600)));
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  delete sheet;
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
}

TEST_F(CommandsPageDrag, ASmallMoveOfTheMouseDragsNothing) {
  auto& placed = Find<TCDragList>("BarItems");
  const QPoint start = placed.visualItemRect(placed.item(1)).center();
  QTest::mousePress(placed.viewport(), Qt::LeftButton, {}, start);
  MoveTo(placed, placed.viewport()->mapToGlobal(start + QPoint(2, 2)));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  QTest::mouseRelease(placed.viewport(), Qt::LeftButton, {}, start + QPoint(2, 2));
  EXPECT_EQ(placed.currentRow(), 1);
}

TEST_F(CommandsPageDrag, TheRightButtonDragsNothing) {
  auto& placed = Find<TCDragList>("BarItems");
  const QPoint start = placed.visualItemRect(placed.item(1)).center();
  QTest::mousePress(placed.viewport(), Qt::RightButton, {}, start);
  MoveTo(placed, window.mapToGlobal(QPoint(100, 600)));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  QTest::mouseRelease(placed.viewport(), Qt::RightButton, {}, start);
  EXPECT_EQ(bars.Customised(), TCCustomisedBars());
}

TEST_F(CommandsPageDrag, AListThatLosesTheKeyboardDropsItsDrag) {
  auto& placed = Find<TCDragList>("BarItems");
  placed.setFocus();
  QTest::mousePress(placed.viewport(), Qt::LeftButton, {}, placed.visualItemRect(placed.item(1)).center());
  MoveTo(placed, window.mapToGlobal(QPoint(100, 600)));
  ASSERT_NE(QApplication::overrideCursor(), nullptr);
  Find<QComboBox>("BarTarget").setFocus();
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  QTest::mouseRelease(placed.viewport(), Qt::LeftButton, {}, QPoint(-500, 400));
  EXPECT_EQ(bars.Customised(), TCCustomisedBars());
}

TEST_F(CommandsPageDrag, AClickBesideTheEntriesLeavesTheChosenOne) {
  auto& placed = Find<TCDragList>("BarItems");
  QTest::mouseClick(placed.viewport(), Qt::LeftButton, {},
                    placed.viewport()->rect().bottomLeft() - QPoint(-20, 5));
  EXPECT_EQ(placed.selectedItems(), QList<QListWidgetItem*>{placed.item(0)});
}

TEST_F(CommandsPageDrag, ACommandThatIsLetGoOfNowhereChangesNothing) {
  Drag("BarCommands", QStringLiteral("Exit"), window.mapToGlobal(QPoint(100, 600)));
  EXPECT_EQ(bars.Customised(), TCCustomisedBars());
}

TEST_F(CommandsPageDrag, EscGivesADragUp) {
  Choose("BarItems", QStringLiteral("Open..."));
  auto& list = Find<TCDragList>("BarItems");
  list.setFocus();
  const QPoint start = list.visualItemRect(list.currentItem()).center();
  QTest::mousePress(list.viewport(), Qt::LeftButton, {}, start);
  const QPoint far = start + QPoint(-2000, 300);
  MoveTo(list, list.viewport()->mapToGlobal(far));
  EXPECT_NE(QApplication::overrideCursor(), nullptr);
  QTest::keyClick(&list, Qt::Key_Escape);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_TRUE(sheet->isVisible());
  MoveTo(list, list.viewport()->mapToGlobal(far + QPoint(50, 50)));
  EXPECT_EQ(QApplication::overrideCursor(), nullptr) << "until the button is pressed anew";
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, far);
  EXPECT_EQ(bars.Customised(), TCCustomisedBars());
}

}  // namespace
}  // namespace brevant
