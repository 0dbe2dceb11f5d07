#include "app/bars/keyboard_page.h"

#include <QComboBox>
#include <QLabel>
#include <QListWidget>
#include <QTreeWidget>

#include "app/bars/key_field.h"
#include "app/bars/open_customize_sheet.h"

namespace brevant {
namespace {

using Id = TCCommandId;

class KeyboardPage : public TCOpenSheet {
 protected:
  [[nodiscard]] QTreeWidget& KeyCommands() const { return Find<QTreeWidget>("KeyCommands"); }
  // By its name, in what is listed now.
  void Choose(const QString& name) {
    const QList<QTreeWidgetItem*> found = KeyCommands().findItems(name, Qt::MatchExactly);
    ASSERT_EQ(found.size(), 1) << name.toStdString();
    KeyCommands().setCurrentItem(found.first());
  }
  [[nodiscard]] QString KeysShownFor(const QString& name) const {
    const QList<QTreeWidgetItem*> found = KeyCommands().findItems(name, Qt::MatchExactly);
    return found.size() == 1 ? found.first()->text(1) : QStringLiteral("(not listed)");
  }
  void PressInField(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    auto& field = Find<TCKeyField>("NewKey");
    field.setFocus();
    QTest::keyClick(&field, key, modifiers);
    QCoreApplication::sendPostedEvents();
  }
  [[nodiscard]] QString Use() const { return Find<QLabel>("KeyUse").text(); }
  [[nodiscard]] Id CommandOf(Qt::Key key) const { return actions->CommandOfKey(key, {}).command; }
};

TEST_F(KeyboardPage, ListsTheCommandsByMainMenuAndAllOfThem) {
  auto& category = Find<QComboBox>("KeyCategory");
  QStringList names;
  for (int i = 0; i < category.count(); ++i) names.append(category.itemText(i));
  EXPECT_EQ(names.join(u'|').toStdString(), "File|Edit|Play|Commands|Options|View|Help|All Commands");
  for (int i = 0; i < category.count() - 1; ++i) {
    category.setCurrentIndex(i);
    std::size_t expected = 0;
    for (const TCCommand* command : CommandsInMenu(MainMenus()[static_cast<std::size_t>(i)]))
      expected += target.handled.count(command->id);
    if (category.itemText(i) == QStringLiteral("View")) expected += 2;  // those of the menu inside it
    EXPECT_EQ(KeyCommands().topLevelItemCount(), static_cast<int>(expected))
        << category.itemText(i).toStdString();
  }
  category.setCurrentIndex(category.count() - 1);
  EXPECT_EQ(KeysShownFor(QStringLiteral("Load the song into the player")), QStringLiteral("Enter"));
  EXPECT_EQ(KeysShownFor(QStringLiteral("Play")), QStringLiteral("P, F5"));
  EXPECT_EQ(KeysShownFor(QStringLiteral("Increase Volume (volume key)")), QStringLiteral("Volume Up"));
  EXPECT_EQ(KeysShownFor(QStringLiteral("Cut")), QStringLiteral("(not listed)")) << "it does nothing";
  EXPECT_EQ(KeysShownFor(QStringLiteral("Help Topics")), QStringLiteral("(not listed)")) << "nobody does it";
  EXPECT_EQ(KeysShownFor(QString()), QStringLiteral("(not listed)"));
}

TEST_F(KeyboardPage, FindsCommandsByTheirNameOrKey) {
  auto& search = Find<QLineEdit>("KeySearch");
  QTest::keyClicks(&search, QStringLiteral("VOLUME"));
  EXPECT_EQ(KeyCommands().topLevelItemCount(), 5);  // up and down, both volume keys, the step
  search.clear();
  QTest::keyClicks(&search, QStringLiteral("ctrl+k"));
  ASSERT_EQ(KeyCommands().topLevelItemCount(), 1);
  EXPECT_EQ(KeyCommands().topLevelItem(0)->text(0), QStringLiteral("Auto Song Advance"));
  search.setText(QStringLiteral("  Ctrl+K "));
  EXPECT_EQ(KeyCommands().topLevelItemCount(), 1) << "blanks around it are no part of it";
  search.setText(QStringLiteral("F5"));
  EXPECT_EQ(KeyCommands().topLevelItemCount(), 1);
  search.setText(QStringLiteral("f"));
  EXPECT_NE(KeysShownFor(QStringLiteral("Set Playlist Font Size")), QStringLiteral("(not listed)"));
  EXPECT_EQ(KeysShownFor(QStringLiteral("Play")), QStringLiteral("(not listed)")) << "F is not F5";
  QTest::keyClicks(&search, QStringLiteral("nothing like it"));
  EXPECT_EQ(KeyCommands().topLevelItemCount(), 0);
  EXPECT_FALSE(Find<TCKeyField>("NewKey").isEnabled());
  EXPECT_FALSE(Find<QPushButton>("RemoveKey").isEnabled());
  EXPECT_FALSE(Find<QPushButton>("AssignKey").isEnabled());
}

TEST_F(KeyboardPage, TheKeyboardIsInTheSearchAndTheFirstKeyIsChosen) {
  EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>("KeySearch"));
  Choose(QStringLiteral("Play"));
  EXPECT_EQ(Find<QListWidget>("CommandKeys").currentRow(), 0);
  EXPECT_TRUE(Find<QPushButton>("RemoveKey").isEnabled());
  Choose(QStringLiteral("Save As..."));
  EXPECT_FALSE(Find<QPushButton>("RemoveKey").isEnabled()) << "it has none";
}

TEST_F(KeyboardPage, TellsWhatTheChosenCommandDoes) {
  const auto shown = [this](const char* text) {
    for (const QLabel* label : sheet->findChildren<QLabel*>()) {
      if (label->isVisible() && label->text() == QLatin1String(text)) return true;
    }
    return false;
  };
  Choose(QStringLiteral("Volume Step"));
  EXPECT_TRUE(shown("sets the rate at which the volme increases or decreases"));
  Choose(QStringLiteral("Save As..."));
  EXPECT_TRUE(shown("Save the active document with a new name"));
}

TEST_F(KeyboardPage, AssignsAFreeKeyThatActsAtOnce) {
  Choose(QStringLiteral("Next Song"));
  EXPECT_FALSE(Find<QPushButton>("AssignKey").isEnabled());
  PressInField(Qt::Key_PageDown);
  EXPECT_EQ(Use(), QStringLiteral("Is free."));
  Click("AssignKey");
  EXPECT_EQ(CommandOf(Qt::Key_PageDown), Id::NextSong);
  EXPECT_EQ(QApplication::focusWidget(), &KeyCommands()) << "the next button brings all delivered keys back";
  EXPECT_EQ(KeysShownFor(QStringLiteral("Next Song")), QStringLiteral("Down, D, Page Down"));
  EXPECT_EQ(Find<QListWidget>("CommandKeys").count(), 3);
  EXPECT_EQ(Find<TCKeyField>("NewKey").text(), QString()) << "ready for the next";
}

TEST_F(KeyboardPage, SaysWhoWouldLoseAKeyAndTakesItAway) {
  Choose(QStringLiteral("Stop"));
  PressInField(Qt::Key_F5);
  EXPECT_TRUE(target.ran.empty()) << "the key was asked for";
  EXPECT_EQ(Use(), QStringLiteral("Is used by Play, which loses it."));
  EXPECT_EQ(CommandOf(Qt::Key_F5), Id::Play) << "nothing yet";
  Click("AssignKey");
  EXPECT_EQ(CommandOf(Qt::Key_F5), Id::Stop);
  EXPECT_EQ(KeysShownFor(QStringLiteral("Play")), QStringLiteral("P"));
}

TEST_F(KeyboardPage, RefusesAKeyThatOpensAMenuAndOneThatIsThereAlready) {
  Choose(QStringLiteral("Stop"));
  PressInField(Qt::Key_V, Qt::AltModifier);
  EXPECT_EQ(Use(), QStringLiteral("Opens the menu View and stays with it."));
  EXPECT_FALSE(Find<QPushButton>("AssignKey").isEnabled());
  PressInField(Qt::Key_S);
  EXPECT_EQ(Use(), QStringLiteral("The command has this key already."));
  EXPECT_FALSE(Find<QPushButton>("AssignKey").isEnabled());
}

TEST_F(KeyboardPage, AKeyThatSomebodyHasForNothingCountsAsFree) {
  Choose(QStringLiteral("Stop"));
  PressInField(Qt::Key_F4);
  EXPECT_EQ(Use(), QStringLiteral("Is free."));
  Click("AssignKey");
  EXPECT_EQ(CommandOf(Qt::Key_F4), Id::Stop);
}

TEST_F(KeyboardPage, RemovesTheChosenKey) {
  Choose(QStringLiteral("Play"));
  auto& keys = Find<QListWidget>("CommandKeys");
  ASSERT_EQ(keys.count(), 2);
  keys.setCurrentRow(1);
  Click("RemoveKey");
  EXPECT_EQ(CommandOf(Qt::Key_F5), Id::None);
  EXPECT_EQ(CommandOf(Qt::Key_P), Id::Play);
  Click("RemoveKey");
  EXPECT_EQ(CommandOf(Qt::Key_P), Id::None);
  EXPECT_FALSE(Find<QPushButton>("RemoveKey").isEnabled());
}

TEST_F(KeyboardPage, BehindARemovedKeyTheNextIsChosen) {
  Choose(QStringLiteral("Next Song"));
  PressInField(Qt::Key_PageDown);
  Click("AssignKey");
  auto& keys = Find<QListWidget>("CommandKeys");
  keys.setCurrentRow(1);
  Click("RemoveKey");
  EXPECT_EQ(CommandOf(Qt::Key_D), Id::None);
  ASSERT_EQ(keys.count(), 2);
  EXPECT_EQ(keys.currentItem()->text(), QStringLiteral("Page Down"));
}

TEST_F(KeyboardPage, ShowsTheKeysThatAResetBroughtBack) {
  Choose(QStringLiteral("Stop"));
  PressInField(Qt::Key_P);
  Click("AssignKey");
  ASSERT_EQ(KeysShownFor(QStringLiteral("Stop")), QStringLiteral("S, F6, P"));
  Click("Reset");
  EXPECT_EQ(KeysShownFor(QStringLiteral("Stop")), QStringLiteral("S, F6"));
  EXPECT_EQ(KeysShownFor(QStringLiteral("Play")), QStringLiteral("P, F5"));
}

TEST_F(KeyboardPage, DefaultKeysBringsTheKeysBackAndLeavesTheBars) {
  TCCustomisedBars wanted;
  wanted.SetItems(TCTextId::CreateToolbar, {});
  bars.Customise(wanted);
  Choose(QStringLiteral("Stop"));
  PressInField(Qt::Key_P);
  Click("AssignKey");
  Click("DefaultKeys");
  EXPECT_EQ(CommandOf(Qt::Key_P), Id::Play);
  EXPECT_EQ(KeysShownFor(QStringLiteral("Stop")), QStringLiteral("S, F6"));
  EXPECT_EQ(bars.Customised(), wanted);
}

TEST_F(KeyboardPage, IsDrivenWithoutTheMouse) {
  auto& search = Find<QLineEdit>("KeySearch");
  search.setFocus();
  QTest::keyClicks(&search, QStringLiteral("next song"));
  QTest::keyClick(&search, Qt::Key_Return);
  QTest::keyClick(&search, Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_TRUE(sheet->isVisible()) << "Enter presses no button from afar";
  EXPECT_TRUE(bars.Customised() == TCCustomisedBars());
  Find<TCKeyField>("NewKey").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_PageDown);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  ASSERT_EQ(QApplication::focusWidget(), &Find<QPushButton>("AssignKey"));
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_EQ(CommandOf(Qt::Key_PageDown), Id::NextSong);
  PressInField(Qt::Key_PageUp);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(CommandOf(Qt::Key_PageUp), Id::NextSong);
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
  EXPECT_FALSE(sheet->isVisible());
}

TEST_F(KeyboardPage, TheFunctionKeysPerformWhileNoKeyIsAskedFor) {
  Find<QLineEdit>("KeySearch").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_F6);
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(target.ran, std::vector{Id::Stop});
}

}  // namespace
}  // namespace brevant
