#include "app/commands/command_menus.h"

#include <gtest/gtest.h>

#include <QCoreApplication>

#include "app/commands/qt_keys.h"
#include "app/fake_target.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

class CommandMenus : public testing::Test {
 protected:
  QStringList TitlesWith(std::set<TCCommandId> handled) {
    target.handled = std::move(handled);
    const TCCommandActions actions(target, window);
    QMenuBar bar;
    FillMenuBar(bar, actions);
    QStringList titles;
    for (const QAction* menu : bar.actions()) titles.append(menu->text());
    return titles;
  }

  TCFakeTarget target;
  QWidget window;
};

TEST_F(CommandMenus, AMenuWithoutEntriesIsNotShown) {
  EXPECT_EQ(TitlesWith({TCCommandId::Play, TCCommandId::About}),
            (QStringList{QStringLiteral("&Play"), QStringLiteral("&Help")}));
  EXPECT_TRUE(TitlesWith({}).isEmpty());
}

TEST_F(CommandMenus, ACommandOfKeysAloneIsInNoMenu) {
  EXPECT_TRUE(TitlesWith({TCCommandId::LoadSong}).isEmpty());
}

TEST_F(CommandMenus, HoldTheCommandsOfTheirPlaceInOrder) {
  for (const TCCommand& command : Commands()) target.handled.insert(command.id);
  const TCCommandActions actions(target, window);
  QMenuBar bar;
  FillMenuBar(bar, actions);
  const std::span<const TCMenuPlace> places = MainMenus();
  ASSERT_EQ(static_cast<std::size_t>(bar.actions().size()), places.size());
  for (std::size_t i = 0; i < places.size(); ++i) {
    const QAction* title = bar.actions().at(static_cast<qsizetype>(i));
    EXPECT_EQ(title->text(), ToQString(MenuTitle(places[i])));
    QList<QAction*> expected;
    for (const TCCommand* command : CommandsInMenu(places[i])) expected.append(actions.ActionOf(command->id));
    QList<QAction*> entries = title->menu()->actions();
    entries.removeIf([](const QAction* entry) { return entry->isSeparator(); });
    if (places[i] == TCMenuPlace::View) {
      ASSERT_NE(entries.takeFirst()->menu(), nullptr) << "the tool bars' own menu comes first";
    }
    EXPECT_EQ(entries, expected) << title->text().toStdString();
  }
}

TEST_F(CommandMenus, HaveALineAboveEachGroupOfCommands) {
  for (const TCCommand& command : Commands()) target.handled.insert(command.id);
  const TCCommandActions actions(target, window);
  QMenuBar bar;
  FillMenuBar(bar, actions);
  for (const TCCommand& command : Commands()) {
    const QAction* entry = actions.ActionOf(command.id);
    for (const QAction* title : bar.actions()) {
      const QList<QAction*> entries = title->menu()->actions();
      const qsizetype place = entries.indexOf(entry);
      if (place < 0) continue;
      EXPECT_EQ(place > 0 && entries[place - 1]->isSeparator(), BeginsMenuGroup(command.id))
          << entry->text().toStdString();
    }
  }
}

TEST_F(CommandMenus, HaveNoLineWhereAGroupIsMissing) {
  // Of the groups between them nobody carries anything out, and of what goes above them neither.
  target.handled = {TCCommandId::FileOpen, TCCommandId::Exit, TCCommandId::LoadLastFile, TCCommandId::About};
  const TCCommandActions actions(target, window);
  QMenuBar bar;
  FillMenuBar(bar, actions);
  ASSERT_EQ(bar.actions().size(), 3);
  const auto linesIn = [&bar](qsizetype menu) {
    QString lines;
    for (const QAction* entry : bar.actions()[menu]->menu()->actions()) {
      lines += entry->isSeparator() ? QLatin1Char('-') : QLatin1Char('x');
    }
    return lines;
  };
  EXPECT_EQ(linesIn(0), QStringLiteral("x-x")) << "File";
  EXPECT_EQ(linesIn(1), QStringLiteral("x")) << "Options";
  EXPECT_EQ(linesIn(2), QStringLiteral("x")) << "Help";
}

TEST_F(CommandMenus, NoTitleTakesAKeyOfTheTable) {
  for (const TCMenuPlace place : MainMenus()) {
    const QKeySequence opener = QKeySequence::mnemonic(ToQString(MenuTitle(place)));
    EXPECT_FALSE(opener.isEmpty());
    for (const TCKeyBinding& binding : EffectiveBindings()) {
      EXPECT_FALSE(ToQtKeys(binding.key).contains(opener)) << opener.toString().toStdString();
    }
  }
}

TEST_F(CommandMenus, AContextMenuNamesItsEntriesItsOwnWay) {
  target.handled = {TCCommandId::Copy, TCCommandId::ClearInformation};
  const TCCommandActions actions(target, window);
  const QMenu* menu = MakeContextMenu(TCContextMenu::Playlist, actions, window);
  QStringList texts;
  for (const QAction* entry : menu->actions()) {
    if (!entry->isSeparator()) texts.append(entry->text());
  }
  EXPECT_EQ(texts,
            (QStringList{QStringLiteral("&Copy Song(s)\tCtrl+C"), QStringLiteral("Clear &Information\tI")}));
}

TEST_F(CommandMenus, AContextMenuHasNoKeysAndNoLooseSeparators) {
  for (const auto& handled :
       {std::set<TCCommandId>{TCCommandId::Cancel}, std::set<TCCommandId>{TCCommandId::ClearInformation},
        std::set<TCCommandId>{TCCommandId::Cancel, TCCommandId::ClearInformation}}) {
    target.handled = handled;
    const TCCommandActions actions(target, window);
    const QMenu* menu = MakeContextMenu(TCContextMenu::Playlist, actions, window);
    ASSERT_FALSE(menu->isEmpty());
    EXPECT_FALSE(menu->actions().constFirst()->isSeparator());
    EXPECT_FALSE(menu->actions().constLast()->isSeparator());
    for (const QAction* entry : menu->actions()) EXPECT_TRUE(entry->shortcuts().isEmpty());
  }
}

TEST_F(CommandMenus, AContextMenusEntryRunsTheCommand) {
  target.handled = {TCCommandId::ClearInformation};
  const TCCommandActions actions(target, window);
  const QMenu* menu = MakeContextMenu(TCContextMenu::Playlist, actions, window);
  ASSERT_EQ(menu->actions().size(), 1);
  menu->actions().constFirst()->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(target.ran, std::vector{TCCommandId::ClearInformation});
}

}  // namespace
}  // namespace brevant
