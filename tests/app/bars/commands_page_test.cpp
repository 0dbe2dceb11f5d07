#include "app/bars/commands_page.h"

#include <QLineEdit>
#include <algorithm>

#include "app/bars/open_commands_page.h"

namespace brevant {
namespace {

using Id = TCCommandId;

constexpr TCTextId kStandard = TCTextId::StandardToolbar;

class CommandsPage : public TCOpenCommandsPage {};

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
  ChooseCategory(QStringLiteral("All Commands"));
  EXPECT_TRUE(Entries("BarCommands").endsWith(QStringLiteral("|Repeat start time|Repeat stop time")));
}

TEST_F(CommandsPage, TellsWhatTheChosenCommandDoes) {
  const auto shown = [this](const char* text) {
    const QList<QLabel*> labels = sheet->findChildren<QLabel*>();
    return std::ranges::any_of(labels, [text](const QLabel* label) {
      return label->isVisible() && label->text() == QLatin1String(text);
    });
  };
  EXPECT_TRUE(shown("Create a new document"));
  Choose("BarCommands", QStringLiteral("Exit"));
  EXPECT_TRUE(shown("Quit the application; prompts to save documents"));
  EXPECT_FALSE(shown("Create a new document"));
}

TEST_F(CommandsPage, EveryEntryHasItsPicture) {
  const auto& offered = Find<TCDragList>("BarCommands");
  const QIcon icon = actions->ActionOf(Id::FileNew)->icon();
  const QSize size = offered.iconSize();
  EXPECT_EQ(offered.item(0)->icon().pixmap(size).toImage(), icon.pixmap(size).toImage());
  ChooseCategory(QStringLiteral("New Menu"));
  EXPECT_EQ(offered.item(1)->icon().actualSize(size), size) << "the separator's name stands below the other";
}

TEST_F(CommandsPage, ShowsWhatIsOnTheChosenBar) {
  EXPECT_EQ(Entries("BarItems").toStdString(), "New|Open...|Save");
  ChooseTarget(QStringLiteral("Create"));
  EXPECT_EQ(Entries("BarItems").toStdString(),
            "Create Group List|Create Playlist|Add Song(s)|Dublicate|Remove|Separator|Move Song Up|Move Song "
            "Down");
  EXPECT_EQ(Find<TCDragList>("BarItems").currentRow(), 0);
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
  EXPECT_EQ(Find<TCDragList>("BarItems").currentRow(), 2) << "the next of them is chosen";
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
  Choose("BarItems", QStringLiteral("Save"));
  Choose("BarCommands", QStringLiteral("Open..."));
  Click("AddToBar");
  EXPECT_EQ(On(kStandard), (std::vector{Id::FileSave, Id::FileOpen, Id::FileNew}));
  EXPECT_EQ(Find<TCDragList>("BarItems").currentRow(), 1);
}

TEST_F(CommandsPage, OnlyWhatCanBeMovedIsOfferedToBeMoved) {
  const auto& up = Find<QPushButton>("MoveUp");
  const auto& down = Find<QPushButton>("MoveDown");
  Choose("BarItems", QStringLiteral("New"));
  EXPECT_TRUE(!up.isEnabled() && down.isEnabled());
  Choose("BarItems", QStringLiteral("Open..."));
  EXPECT_TRUE(up.isEnabled() && down.isEnabled());
  Choose("BarItems", QStringLiteral("Save"));
  EXPECT_TRUE(up.isEnabled() && !down.isEnabled());
  for (int i = 0; i < 3; ++i) Click("RemoveFromBar");
  EXPECT_FALSE(up.isEnabled() || down.isEnabled());
}

TEST_F(CommandsPage, ANewMenuIsMadeNamedAndFilled) {
  ChooseCategory(QStringLiteral("New Menu"));
  Click("AddToBar");
  EXPECT_EQ(Entries("BarItems").toStdString(), "New|New Menu|Open...|Save");
  EXPECT_FALSE(Find<QLineEdit>("MenuName").isVisible()) << "a bar has its name";
  EXPECT_FALSE(LabelOf("MenuName").isVisible());
  ChooseTarget(QStringLiteral("Standard toolbar > New Menu"));
  EXPECT_FALSE(Find<QPushButton>("AddToBar").isEnabled()) << "no menu in a menu";
  auto& name = Find<QLineEdit>("MenuName");
  EXPECT_TRUE(name.isVisible());
  EXPECT_TRUE(LabelOf("MenuName").isVisible());
  EXPECT_EQ(name.text(), QStringLiteral("New Menu"));
  name.clear();
  QTest::keyClicks(&name, QStringLiteral("Finale"));
  EXPECT_EQ(Find<QComboBox>("BarTarget").currentText(), QStringLiteral("Standard toolbar > Finale"));
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

}  // namespace
}  // namespace brevant
