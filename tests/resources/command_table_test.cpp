#include "resources/command_table.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <set>
#include <string>
#include <utility>
#include <vector>

namespace brevant {
namespace {

using ::testing::ElementsAre;

const TCCommand& Command(int number) {
  const TCCommand* const command = CommandById(static_cast<TCCommandId>(number));
  if (!command) ADD_FAILURE() << "no command " << number;
  static const TCCommand kNone;
  return command ? *command : kNone;
}

std::vector<int> MenuNumbers(TCMenuPlace place) {
  std::vector<int> numbers;
  for (const TCCommand* const command : CommandsInMenu(place))
    numbers.push_back(static_cast<int>(command->id));
  return numbers;
}

// A menu's commands from top to bottom, with 0 for each line between two groups.
std::vector<int> MenuGroups(TCMenuPlace place) {
  std::vector<int> numbers;
  for (const TCCommand* const command : CommandsInMenu(place)) {
    if (BeginsMenuGroup(command->id)) numbers.push_back(0);
    numbers.push_back(static_cast<int>(command->id));
  }
  return numbers;
}

std::vector<std::pair<int, std::u16string>> ContextItems(TCContextMenu menu) {
  std::vector<std::pair<int, std::u16string>> items;
  for (const TCMenuItem& item : ContextMenu(menu)) {
    items.emplace_back(static_cast<int>(item.id), std::u16string(item.text));
  }
  return items;
}

std::set<int> NumbersWith(TCCommandTrait trait) {
  std::set<int> numbers;
  for (const TCCommand& command : Commands()) {
    if (command.trait == trait) numbers.insert(static_cast<int>(command.id));
  }
  return numbers;
}

TEST(CommandTable, ListsEveryCommandOnce) {
  std::set<TCCommandId> seen;
  for (const TCCommand& command : Commands()) {
    EXPECT_NE(command.id, TCCommandId::None);
    EXPECT_TRUE(seen.insert(command.id).second) << static_cast<int>(command.id);
    EXPECT_EQ(CommandById(command.id), &command);
  }
  EXPECT_EQ(Commands().size(), 80U);
}

TEST(CommandTable, KnowsNothingOfSeparatorsAndTimeFields) {
  EXPECT_EQ(CommandById(TCCommandId::None), nullptr);
  EXPECT_EQ(CommandById(TCCommandId::RepeatBeginField), nullptr);
  EXPECT_EQ(CommandById(TCCommandId::RepeatEndField), nullptr);
}

TEST(CommandTable, HoldsOnlyPlainCharacters) {
  for (const TCCommand& command : Commands()) {
    for (const std::u16string_view text : {command.menuText, command.statusText}) {
      for (const char16_t unit : text) {
        EXPECT_TRUE((unit >= u' ' && unit <= u'~') || unit == u'\t' || unit == u'\n')
            << static_cast<int>(command.id);
      }
    }
  }
}

// The main menu.

TEST(CommandTable, FillsTheMenusInOrder) {
  EXPECT_THAT(MenuNumbers(TCMenuPlace::File), ElementsAre(57600, 57601, 57603, 57604, 57616, 57665));
  EXPECT_THAT(MenuNumbers(TCMenuPlace::Edit),
              ElementsAre(57634, 57637, 32862, 32799, 32920, 32949, 32946, 32947, 32904, 32905, 32796, 32797,
                          32798, 32861, 32793));
  EXPECT_THAT(MenuNumbers(TCMenuPlace::Play), ElementsAre(32772, 32773, 32774, 32776, 32779, 32852, 32853,
                                                          32831, 32832, 32913, 32912, 32935, 32936));
  EXPECT_THAT(MenuNumbers(TCMenuPlace::Commands),
              ElementsAre(32829, 32826, 32877, 32960, 32961, 32827, 32921));
  EXPECT_THAT(MenuNumbers(TCMenuPlace::Options),
              ElementsAre(32838, 32870, 32954, 32847, 32841, 32878, 32844, 32851, 32868, 32906, 32922, 32843,
                          32959, 32880, 32842, 32846));
  EXPECT_THAT(MenuNumbers(TCMenuPlace::ViewToolbars), ElementsAre(59392, 35001));
  EXPECT_THAT(MenuNumbers(TCMenuPlace::View), ElementsAre(59393, 4002, 4000, 4003, 4004, 32907, 32908));
  EXPECT_THAT(MenuNumbers(TCMenuPlace::Help), ElementsAre(57667, 57664));
  EXPECT_THAT(MenuNumbers(TCMenuPlace::None), ElementsAre());
}

TEST(CommandTable, DrawsALineBetweenWhatDoesNotBelongTogether) {
  EXPECT_THAT(MenuGroups(TCMenuPlace::File), ElementsAre(57600, 57601, 57603, 57604, 0, 57616, 0, 57665));
  EXPECT_THAT(MenuGroups(TCMenuPlace::Edit),
              ElementsAre(57634, 57637, 32862, 32799, 32920, 0, 32949, 32946, 32947, 0, 32904, 32905, 32796,
                          32797, 32798, 0, 32861, 0, 32793));
  EXPECT_THAT(MenuGroups(TCMenuPlace::Play),
              ElementsAre(32772, 32773, 32774, 0, 32776, 32779, 0, 32852, 32853, 32831, 32832, 0, 32913,
                          32912, 0, 32935, 32936));
  EXPECT_THAT(MenuGroups(TCMenuPlace::Commands),
              ElementsAre(32829, 32826, 0, 32877, 32960, 32961, 0, 32827, 0, 32921));
  EXPECT_THAT(MenuGroups(TCMenuPlace::Options),
              ElementsAre(32838, 32870, 32954, 0, 32847, 32841, 32878, 0, 32844, 32851, 0, 32868, 32906,
                          32922, 0, 32843, 32959, 32880, 0, 32842, 32846));
  EXPECT_THAT(MenuGroups(TCMenuPlace::ViewToolbars), ElementsAre(59392, 0, 35001));
  EXPECT_THAT(MenuGroups(TCMenuPlace::View), ElementsAre(59393, 0, 4002, 4000, 4003, 4004, 0, 32907, 32908));
  EXPECT_THAT(MenuGroups(TCMenuPlace::Help), ElementsAre(57667, 0, 57664));
}

TEST(CommandTable, GivesEveryMenuALetterThatTheKeyTableLeavesFree) {
  std::u16string letters;
  for (const TCMenuPlace place : MainMenus()) {
    const std::u16string_view title = MenuTitle(place);
    ASSERT_NE(title.find(u'&'), std::u16string_view::npos);
    letters += title[title.find(u'&') + 1];
  }
  EXPECT_EQ(letters, u"FEPCOVH");
  for (const TCKeyBinding& binding : EffectiveBindings()) {
    const std::u16string name = KeyName(binding.key);
    if (name.starts_with(u"Alt+") && name.size() == 5) {
      EXPECT_EQ(letters.find(name[4]), std::u16string::npos);
    }
  }
}

TEST(CommandTable, NamesEveryCommandThatAMenuShows) {
  for (const TCCommand& command : Commands()) {
    if (command.menu != TCMenuPlace::None) {
      EXPECT_FALSE(command.menuText.empty()) << static_cast<int>(command.id);
    }
  }
}

TEST(CommandTable, KeepsTheMenusOwnSpellingsAndHints) {
  EXPECT_EQ(Command(32862).menuText, u"Dublicate\tCtrl-D");
  EXPECT_EQ(Command(32946).menuText, u"Move Song Up\tAlt+M");
  EXPECT_EQ(Command(32774).menuText, u"Pause - Continue\t Spacebar");
  EXPECT_EQ(Command(32776).menuText, u"Fast &Foward\tCtrl+Right Arrow");
  EXPECT_EQ(Command(32852).menuText, u"Next Song\t&Down Arrow");
  EXPECT_EQ(Command(32912).menuText, u"Reduce Volume \tF8");
  EXPECT_EQ(Command(32826).menuText, u"Refresh All Song &Times\tAlt-R");
}

// The context menus.

TEST(CommandTable, OpensOverTheTreeTheEditingCommandsAndThenTheTimes) {
  EXPECT_THAT(
      ContextItems(TCContextMenu::Tree),
      ElementsAre(std::pair(57634, u"&Copy Song\tCtrl+C"), std::pair(57637, u"&Paste\tCtrl+V"),
                  std::pair(32862, u"Dublicate\tD"), std::pair(32799, u"&Remove\tDEL"),
                  std::pair(32920, u"Rename\tCtrl+R"), std::pair(32904, u"New Grouplist Folder\tCtrl+G"),
                  std::pair(32905, u"New Playlist Folder\tCtrl+L"),
                  std::pair(32796, u"Create &Group List\tG"), std::pair(32797, u"Create Play&list\tL"),
                  std::pair(32798, u"Add &Song(s)\tA"), std::pair(32861, u"Properties\tQ"),
                  std::pair(32793, u"Cance&l\tESC"), std::pair(0, u""),
                  std::pair(32829, u"Refresh &Playlist Song Times\tT"),
                  std::pair(32826, u"Refresh All Song &Times\tAlt-R"),
                  std::pair(32825, u"Refresh &Song Time"), std::pair(32827, u"Clear &Information\tI")));
}

TEST(CommandTable, OpensOverThePlaylistWhatActsOnSongs) {
  EXPECT_THAT(
      ContextItems(TCContextMenu::Playlist),
      ElementsAre(std::pair(57634, u"&Copy Song(s)\tCtrl+C"), std::pair(57637, u"&Paste\tCtrl+V"),
                  std::pair(32799, u"&Remove\tDEL"), std::pair(32796, u"Create &Group List\tG"),
                  std::pair(32797, u"Create Play&list\tCtrl+L"), std::pair(32798, u"Add &Song(s)\tA"),
                  std::pair(32861, u"Properties\tQ"), std::pair(32793, u"Cance&l\tESC"), std::pair(0, u""),
                  std::pair(32829, u"Refresh &Playlist Song Times\tT"),
                  std::pair(32826, u"Refresh All Song &Times\tAlt-R"),
                  std::pair(32825, u"Refresh &Song Time"), std::pair(32827, u"Clear &Information\tI")));
}

TEST(CommandTable, KeepsTheNumbersOfTheContextMenus) {
  EXPECT_EQ(static_cast<int>(TCContextMenu::Tree), 4001);
  EXPECT_EQ(static_cast<int>(TCContextMenu::Playlist), 4002);
}

// The keys.

TEST(CommandTable, BindsEveryKeyToItsCommandInTheTablesOrder) {
  const std::vector<std::pair<std::u16string, int>> expected = {
      {u"Ctrl+N", 57600},
      {u"Ctrl+O", 57601},
      {u"Ctrl+S", 57603},
      {u"Ctrl+C", 57634},
      {u"Ctrl+X", 57635},
      {u"Ctrl+V", 57637},
      {u"Shift+Insert", 57637},
      {u"Alt+Backspace", 57643},
      {u"Ctrl+D", 32862},
      {u"Delete", 32799},
      {u"Ctrl+R", 32920},
      {u"M", 32949},
      {u"Shift+M", 32946},
      {u"Ctrl+M", 32947},
      {u"Ctrl+G", 32904},
      {u"Alt+L", 32905},
      {u"G", 32796},
      {u"Ctrl+L", 32797},
      {u"A", 32798},
      {u"Q", 32861},
      {u"Esc", 32793},
      {u"Ctrl+A", 32901},
      {u"Enter", 32790},
      {u"P", 32772},
      {u"F5", 32772},
      {u"S", 32773},
      {u"F6", 32773},
      {u"Space", 32774},
      {u"Ctrl+Right", 32776},
      {u"Ctrl+Left", 32779},
      {u"Down", 32852},
      {u"D", 32852},
      {u"Up", 32853},
      {u"U", 32853},
      {u"Left", 32831},
      {u"L", 32831},
      {u"Right", 32832},
      {u"R", 32832},
      {u"F9", 32913},
      {u"F8", 32912},
      {u"Volume Up", 32915},
      {u"Volume Down", 32914},
      {u"Z", 32935},
      {u"X", 32936},
      {u"T", 32829},
      {u"Alt+R", 32826},
      {u"F", 32877},
      {u"I", 32827},
      {u"Ctrl+K", 32838},
      {u"Ctrl+U", 32870},
      {u"Ctrl+F", 32954},
      {u"W", 32847},
      {u"C", 32841},
      {u"Home", 32878},
      {u"Ctrl+E", 32844},
      {u"N", 32868},
      {u"O", 32906},
      {u"V", 32922},
      {u"Ctrl+B", 32843},
      {u"Ctrl+H", 32845},
      {u"Ctrl+Y", 32880},
      {u"Ctrl+J", 32846},
      {u"F2", 32907},
      {u"2", 32907},
      {u"F3", 32908},
      {u"3", 32908},
      {u"F4", 32909},
      {u"F1", 57670},
      {u"Shift+F1", 57669},
  };
  std::vector<std::pair<std::u16string, int>> bound;
  for (const TCKeyBinding& binding : EffectiveBindings()) {
    bound.emplace_back(KeyName(binding.key), static_cast<int>(binding.command));
  }
  EXPECT_EQ(bound, expected);
}

TEST(CommandTable, ListsTwoKeysTwiceAndLetsTheFirstCommandHaveThem) {
  const std::vector<TCKeyBinding> bindings = EffectiveBindings();
  std::set<std::pair<std::u16string, int>> shadowed;
  for (const TCCommand& command : Commands()) {
    for (const TCKey& key : command.keys) {
      const auto winner = std::ranges::find(bindings, key, &TCKeyBinding::key);
      ASSERT_NE(winner, bindings.end());
      if (winner->command != command.id) shadowed.emplace(KeyName(key), static_cast<int>(command.id));
    }
  }
  EXPECT_EQ(shadowed, (std::set<std::pair<std::u16string, int>>{{u"Enter", 32772}, {u"Ctrl+G", 32842}}));
}

TEST(CommandTable, TakesNoKeyFromAMenuHint) {
  const auto isBound = [](TCKey key) {
    const std::vector<TCKeyBinding> bindings = EffectiveBindings();
    return std::ranges::find(bindings, key, &TCKeyBinding::key) != bindings.end();
  };
  EXPECT_FALSE(isBound(Alt(TCKeyCode::M)));   // hint of Move Song Up, which is Shift+M
  EXPECT_FALSE(isBound(TCKeyCode::K));        // hint of Auto Song Advance, which is Ctrl+K
  EXPECT_TRUE(isBound(TCKeyCode::Digit2));    // a hint that is a key as well
  EXPECT_TRUE(isBound(TCKeyCode::Digit3));    // the same
  EXPECT_EQ(Command(32772).keys.size(), 3U);  // the hint's 5 is none of them
  EXPECT_EQ(Command(32773).keys.size(), 2U);  // nor is the 6
}

TEST(CommandTable, RepeatsOnlyVolumeSeekAndStepsWhileAKeyIsHeld) {
  EXPECT_EQ(NumbersWith(TCCommandTrait::Repeats),
            (std::set<int>{32776, 32779, 32831, 32832, 32852, 32853, 32912, 32913, 32914, 32915}));
}

// What the commands say and do.

TEST(CommandTable, CallsACommandByItsMenuTextOrItsToolTip) {
  EXPECT_EQ(CommandTitle(Command(57600)), u"New") << "without mark and hint";
  EXPECT_EQ(CommandTitle(*CommandById(TCCommandId::VolumeDown)), u"Reduce Volume") << "nor blanks behind it";
  EXPECT_EQ(CommandTitle(*CommandById(TCCommandId::Cut)), u"Cut");
  EXPECT_EQ(CommandTitle(*CommandById(TCCommandId::LoadSong)), u"Load the song into the player");
  EXPECT_EQ(CommandTitle(*CommandById(TCCommandId::SelectAll)), u"");
}

TEST(CommandTable, CallsAVolumeKeyByTheCommandThatDoesTheSame) {
  EXPECT_EQ(WordedTwin(TCCommandId::MediaVolumeUp), TCCommandId::VolumeUp);
  EXPECT_EQ(WordedTwin(TCCommandId::MediaVolumeDown), TCCommandId::VolumeDown);
  EXPECT_EQ(WordedTwin(TCCommandId::Play), TCCommandId::Play);
  EXPECT_EQ(CommandTitle(*CommandById(TCCommandId::MediaVolumeUp)), u"Increase Volume (volume key)");
  EXPECT_EQ(CommandTitle(*CommandById(TCCommandId::MediaVolumeDown)), u"Reduce Volume (volume key)");
}

TEST(CommandTable, CutsTheStatusTextAtItsLineBreak) {
  EXPECT_EQ(StatusLine(Command(57604)), u"Save the active document with a new name");
  EXPECT_EQ(ToolTip(Command(57604)), u"Save As");
  EXPECT_EQ(StatusLine(Command(32922)), u"sets the rate at which the volme increases or decreases");
  EXPECT_EQ(ToolTip(Command(32922)), u"sets the rate at which the volme increases or decreases");
}

TEST(CommandTable, NamesInTheToolTipWhatHasNoStatusText) {
  EXPECT_EQ(StatusLine(Command(32960)), u"");
  EXPECT_EQ(ToolTip(Command(32960)), u"Set Lyrics Font Size");
  EXPECT_EQ(ToolTip(Command(32799)), u"Remove");
  EXPECT_EQ(ToolTip(Command(35001)), u"Customize...");
}

TEST(CommandTable, KeepsTheStatusTextsOwnSpellings) {
  EXPECT_EQ(Command(32862).statusText, u"Dublicate selected item");
  EXPECT_EQ(Command(32797).statusText, u"Add a song playlist e.g.\" Mariner Set 1\"");
  EXPECT_EQ(Command(32906).statusText, u"Fast Foward Fast Reverse time step size");
  EXPECT_EQ(Command(32907).statusText, u"Send keyboad input to the Playlist manager window");
}

TEST(CommandTable, ChecksOptionsPanesBarsAndAPendingReset) {
  EXPECT_EQ(NumbersWith(TCCommandTrait::Checkable),
            (std::set<int>{4000,  4002,  4003,  4004,  32838, 32841, 32842, 32843, 32844, 32845,
                           32846, 32847, 32851, 32870, 32878, 32921, 32954, 32959, 59392, 59393}));
}

TEST(CommandTable, LeavesOnlyCutAndUndoWithoutAnOwner) {
  std::set<int> ownerless;
  for (const TCCommand& command : Commands()) {
    if (command.owners == TCCommandOwner::None) ownerless.insert(static_cast<int>(command.id));
  }
  EXPECT_EQ(ownerless, (std::set<int>{57635, 57643}));
}

TEST(CommandTable, NamesAllOwnersOfACommand) {
  const TCCommand& properties = Command(32861);
  EXPECT_TRUE(HasOwner(properties, TCCommandOwner::Document));
  EXPECT_TRUE(HasOwner(properties, TCCommandOwner::View));
  EXPECT_TRUE(HasOwner(properties, TCCommandOwner::Tree));
  EXPECT_FALSE(HasOwner(properties, TCCommandOwner::Frame));
  EXPECT_TRUE(HasOwner(Command(32878), TCCommandOwner::Frame));
  EXPECT_FALSE(HasOwner(Command(32878), TCCommandOwner::Document));
}

}  // namespace
}  // namespace brevant
