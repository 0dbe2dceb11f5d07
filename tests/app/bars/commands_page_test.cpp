#include "app/bars/commands_page.h"

#include <QComboBox>
#include <QLineEdit>
#include <QToolButton>

#include "app/bars/drag_list.h"
#include "app/bars/open_customize_sheet.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

using Id = TCCommandId;

constexpr TCTextId kStandard = TCTextId::StandardToolbar;

class CommandsPage : public TCOpenSheet {
 protected:
  void SetUp() override {
    TCOpenSheet::SetUp();
    ShowPage(2);
    QCoreApplication::processEvents();
  }

  void ChooseCategory(const QString& name) {
    auto& list = Find<QComboBox>("BarCategory");
    ASSERT_GE(list.findText(name), 0) << name.toStdString();
    list.setCurrentIndex(list.findText(name));
  }
  void ChooseTarget(const QString& name) {
    auto& list = Find<QComboBox>("BarTarget");
    ASSERT_GE(list.findText(name), 0) << name.toStdString();
    list.setCurrentIndex(list.findText(name));
  }
  void Choose(const char* list, const QString& name) {
    auto& entries = Find<TCDragList>(list);
    const QList<QListWidgetItem*> found = entries.findItems(name, Qt::MatchExactly);
    ASSERT_FALSE(found.isEmpty()) << name.toStdString();
    entries.setCurrentItem(found.first());
  }
  [[nodiscard]] QString Entries(const char* list) const {
    const auto& entries = Find<TCDragList>(list);
    QStringList names;
    for (int row = 0; row < entries.count(); ++row) names.append(entries.item(row)->text());
    return names.join(u'|');
  }

  // With the mouse, from the middle of an entry to somewhere on the screen.
  void Drag(const char* from, const QString& name, QPoint to) {
    Choose(from, name);
    auto& list = Find<TCDragList>(from);
    QWidget* viewport = list.viewport();
    const QPoint start = list.visualItemRect(list.currentItem()).center();
    const QPoint end = viewport->mapFromGlobal(to);
    QTest::mousePress(viewport, Qt::LeftButton, {}, start);
    for (const QPoint& place : {start + QPoint(3, 3), (start + end) / 2, end}) {
      QMouseEvent move(QEvent::MouseMove, place, viewport->mapToGlobal(place), Qt::NoButton, Qt::LeftButton,
                       {});
      QCoreApplication::sendEvent(viewport, &move);
    }
    QTest::mouseRelease(viewport, Qt::LeftButton, {}, end);
  }
  [[nodiscard]] QPoint OnButton(TCTextId bar, Id command) {
    const QWidget* button = bars.BarOf(bar)->widgetForAction(actions->ActionOf(command));
    return button->mapToGlobal(QPoint(2, button->height() / 2));
  }

  [[nodiscard]] std::vector<Id> On(TCTextId bar) const {
    std::vector<Id> commands;
    for (const TCBarItem& item : bars.Customised().ItemsOf(bar)) commands.push_back(item.command);
    return commands;
  }
};

TEST_F(CommandsPage, OffersTheMenusCommandsAllOfThemTheBuiltInMenusAndANewOne) {
  const auto& category = Find<QComboBox>("BarCategory");
  QStringList names;
  for (int i = 0; i < category.count(); ++i) names.append(category.itemText(i));
  EXPECT_EQ(names.join(u'|').toStdString(),
            "File|Edit|Play|Commands|Options|View|Help|All Commands|Built-in Menus|New Menu");
  EXPECT_EQ(Entries("BarCommands").toStdString(), "New|Open...|Save|Save As...|Recent File|Exit");
  ChooseCategory(QStringLiteral("Play"));
  EXPECT_TRUE(Entries("BarCommands").endsWith(QStringLiteral("|Repeat start time|Repeat stop time")));
  ChooseCategory(QStringLiteral("Built-in Menus"));
  EXPECT_EQ(Entries("BarCommands").toStdString(), "File|Edit|Play|Commands|Options|View|Help");
  ChooseCategory(QStringLiteral("New Menu"));
  EXPECT_EQ(Entries("BarCommands").toStdString(), "New Menu|Separator");
}

TEST_F(CommandsPage, ShowsWhatIsOnTheChosenBar) {
  EXPECT_EQ(Entries("BarItems").toStdString(), "New|Open...|Save");
  ChooseTarget(QStringLiteral("Create"));
  EXPECT_EQ(Entries("BarItems").toStdString(),
            "Create Group List|Create Playlist|Add Song(s)|Dublicate|Remove|Separator|Move Song Up|Move Song "
            "Down");
  const auto& targets = Find<QComboBox>("BarTarget");
  EXPECT_EQ(targets.count(), 5) << "the menu bar always stays as it is";
}

TEST_F(CommandsPage, AddsBehindTheChosenEntryRemovesAndMoves) {
  ChooseCategory(QStringLiteral("Play"));
  Choose("BarCommands", QStringLiteral("Stop"));
  Click("AddToBar");
  EXPECT_EQ(On(kStandard), (std::vector{Id::FileNew, Id::Stop, Id::FileOpen, Id::FileSave}));
  EXPECT_EQ(Find<TCDragList>("BarItems").currentItem()->text(), QStringLiteral("Stop"));
  Click("MoveDown");
  Click("MoveDown");
  EXPECT_EQ(On(kStandard), (std::vector{Id::FileNew, Id::FileOpen, Id::FileSave, Id::Stop}));
  EXPECT_FALSE(Find<QPushButton>("MoveDown").isEnabled());
  Click("MoveUp");
  EXPECT_EQ(On(kStandard), (std::vector{Id::FileNew, Id::FileOpen, Id::Stop, Id::FileSave}));
  Click("RemoveFromBar");
  EXPECT_EQ(bars.Customised(), TCCustomisedBars());
  for (int i = 0; i < 3; ++i) Click("RemoveFromBar");
  EXPECT_TRUE(On(kStandard).empty());
  EXPECT_FALSE(Find<QPushButton>("RemoveFromBar").isEnabled());
  Click("AddToBar");
  EXPECT_EQ(On(kStandard), std::vector{Id::Stop});
}

TEST_F(CommandsPage, WhatIsThereAlreadyMovesAndStaysChosen) {
  Choose("BarItems", QStringLiteral("Save"));
  Choose("BarCommands", QStringLiteral("New"));
  Click("AddToBar");
  EXPECT_EQ(On(kStandard), (std::vector{Id::FileOpen, Id::FileSave, Id::FileNew}));
  EXPECT_EQ(Find<TCDragList>("BarItems").currentRow(), 2);
}

TEST_F(CommandsPage, ANewMenuIsMadeNamedAndFilled) {
  ChooseCategory(QStringLiteral("New Menu"));
  Click("AddToBar");
  EXPECT_EQ(Entries("BarItems").toStdString(), "New|New Menu|Open...|Save");
  EXPECT_FALSE(Find<QLineEdit>("MenuName").isVisible()) << "a bar has its name";
  ChooseTarget(QStringLiteral("Standard toolbar > New Menu"));
  EXPECT_FALSE(Find<QPushButton>("AddToBar").isEnabled()) << "no menu in a menu";
  auto& name = Find<QLineEdit>("MenuName");
  EXPECT_TRUE(name.isVisible());
  name.clear();
  QTest::keyClicks(&name, QStringLiteral("Finale"));
  ChooseCategory(QStringLiteral("Play"));
  for (const char* command : {"Play", "Stop"}) {
    Choose("BarCommands", QLatin1String(command));
    Click("AddToBar");
  }
  EXPECT_EQ(Entries("BarItems").toStdString(), "Play|Stop");
  const QAction* title = bars.BarOf(kStandard)->actions().at(1);
  EXPECT_EQ(title->text(), QStringLiteral("Finale"));
  ASSERT_NE(title->menu(), nullptr);
  EXPECT_EQ(title->menu()->actions().size(), 2);
  EXPECT_GE(Find<QComboBox>("BarTarget").findText(QStringLiteral("Standard toolbar > Finale")), 0);
  Click("Reset");
  EXPECT_EQ(Entries("BarItems").toStdString(), "New|Open...|Save") << "the menu is gone";
}

TEST_F(CommandsPage, ABuiltInMenuGoesOntoABar) {
  ChooseCategory(QStringLiteral("Built-in Menus"));
  Choose("BarCommands", QStringLiteral("Play"));
  Click("AddToBar");
  EXPECT_EQ(bars.Customised().ItemsOf(kStandard)[1], MenuItem(TCMenuPlace::Play));
}

TEST_F(CommandsPage, ACommandIsDraggedOntoABarOfTheWindow) {
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

TEST_F(CommandsPage, ACommandIsDraggedIntoTheListOfTheBar) {
  auto& placed = Find<TCDragList>("BarItems");
  const QRect open = placed.visualItemRect(placed.item(1));
  Drag("BarCommands", QStringLiteral("Exit"), placed.viewport()->mapToGlobal(open.topLeft() + QPoint(20, 2)));
  EXPECT_EQ(On(kStandard), (std::vector{Id::FileNew, Id::Exit, Id::FileOpen, Id::FileSave}));
}

TEST_F(CommandsPage, AnEntryIsDraggedOffItsBarOrToAnother) {
  sheet->move(window.mapToGlobal(QPoint(400, 200)));
  Drag("BarItems", QStringLiteral("Open..."), window.mapToGlobal(QPoint(100, 600)));
  EXPECT_EQ(On(kStandard), (std::vector{Id::FileNew, Id::FileSave}));
  Drag("BarItems", QStringLiteral("Save"), OnButton(TCTextId::CreateToolbar, Id::CreateGroupList));
  EXPECT_EQ(On(kStandard), std::vector{Id::FileNew});
  EXPECT_EQ(On(TCTextId::CreateToolbar).front(), Id::FileSave);
}

TEST_F(CommandsPage, AnEntryIsDraggedToAnotherPlaceOfItsBar) {
  auto& placed = Find<TCDragList>("BarItems");
  const QRect last = placed.visualItemRect(placed.item(2));
  Drag("BarItems", QStringLiteral("New"), placed.viewport()->mapToGlobal(last.bottomLeft() + QPoint(20, -2)));
  EXPECT_EQ(On(kStandard), (std::vector{Id::FileOpen, Id::FileSave, Id::FileNew}));
  EXPECT_EQ(placed.currentRow(), 2);
}

TEST_F(CommandsPage, AClickBesideTheEntriesLeavesTheChosenOne) {
  auto& placed = Find<TCDragList>("BarItems");
  QTest::mouseClick(placed.viewport(), Qt::LeftButton, {},
                    placed.viewport()->rect().bottomLeft() - QPoint(-20, 5));
  EXPECT_EQ(placed.selectedItems(), QList<QListWidgetItem*>{placed.item(0)});
}

TEST_F(CommandsPage, ACommandThatIsLetGoOfNowhereChangesNothing) {
  Drag("BarCommands", QStringLiteral("Exit"), window.mapToGlobal(QPoint(100, 600)));
  EXPECT_EQ(bars.Customised(), TCCustomisedBars());
}

TEST_F(CommandsPage, EscGivesADragUp) {
  Choose("BarItems", QStringLiteral("Open..."));
  auto& list = Find<TCDragList>("BarItems");
  list.setFocus();
  const QPoint start = list.visualItemRect(list.currentItem()).center();
  QTest::mousePress(list.viewport(), Qt::LeftButton, {}, start);
  const QPoint far = start + QPoint(-2000, 300);
  QMouseEvent move(QEvent::MouseMove, far, list.viewport()->mapToGlobal(far), Qt::NoButton, Qt::LeftButton,
                   {});
  QCoreApplication::sendEvent(list.viewport(), &move);
  EXPECT_NE(QApplication::overrideCursor(), nullptr);
  QTest::keyClick(&list, Qt::Key_Escape);
  EXPECT_EQ(QApplication::overrideCursor(), nullptr);
  EXPECT_TRUE(sheet->isVisible());
  QTest::mouseRelease(list.viewport(), Qt::LeftButton, {}, far);
  EXPECT_EQ(bars.Customised(), TCCustomisedBars());
}

}  // namespace
}  // namespace brevant
