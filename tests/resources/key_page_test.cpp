#include "resources/key_page.h"

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "resources/command_table.h"
#include "resources/menu_text.h"

namespace brevant {
namespace {

bool Tells(const std::string& line) {
  return KeyPage().find("\n" + line + "\n") != std::string::npos;
}

TEST(KeyPage, IsTheOneInTheGuide) {
  std::ifstream file(BREVANT_KEY_PAGE);
  ASSERT_TRUE(file.is_open()) << BREVANT_KEY_PAGE;
  const std::string committed{std::istreambuf_iterator<char>(file), {}};
  EXPECT_EQ(committed, KeyPage()) << "run: build/dev/src/resources/brevant_key_table > docs/user/keys.md";
}

TEST(KeyPage, GivesEachMenuItsKeysWithNameAndExplanation) {
  EXPECT_TRUE(Tells("## Play"));
  EXPECT_TRUE(Tells("| S, F6 | Stop | Stop S, F6, 6 |"));
  EXPECT_TRUE(Tells("| Ctrl+R | Rename | |"));
}

TEST(KeyPage, GivesAKeyOnlyToTheCommandThatHasIt) {
  EXPECT_TRUE(Tells("| P, F5 | Play | Play Song ENTER, P, F5 |"));
  EXPECT_TRUE(Tells("| Enter | | Load the song into the player |"));
  EXPECT_TRUE(Tells("| | Load Last File On Start | Load last loaded file on start |"));
}

TEST(KeyPage, TellsEveryCommandOfEveryMenu) {
  for (const TCCommand& command : Commands()) {
    if (command.menu == TCMenuPlace::None) continue;
    const std::u16string name = WithoutMnemonic(MenuTextWithoutHint(command.menuText));
    std::string told(name.begin(), name.end());
    while (told.ends_with(' ')) told.pop_back();
    if (command.menu == TCMenuPlace::ViewToolbars) told = "Toolbars > " + told;
    EXPECT_NE(KeyPage().find("| " + told + " |"), std::string::npos) << told;
  }
}

TEST(KeyPage, PutsTheKeyboardsVolumeKeysWithTheOthers) {
  EXPECT_TRUE(Tells("| F9, Volume Up | Increase Volume | Increase Volume, F9 |"));
  EXPECT_TRUE(Tells("| F8, Volume Down | Reduce Volume | Reduce Volume, F8 |"));
}

TEST(KeyPage, LeavesOutKeysThatDoNothing) {
  EXPECT_EQ(KeyPage().find("| F4 |"), std::string::npos);
  EXPECT_EQ(KeyPage().find("| Ctrl+A |"), std::string::npos);
  EXPECT_EQ(KeyPage().find("| Ctrl+X |"), std::string::npos);
  EXPECT_EQ(KeyPage().find("| Alt+Backspace |"), std::string::npos);
}

TEST(KeyPage, TellsEveryKeyOfACommandThatDoesSomething) {
  const std::string page = KeyPage();
  for (const TCKeyBinding& binding : EffectiveBindings()) {
    const TCCommandId id = binding.command;
    if (id == TCCommandId::Cut || id == TCCommandId::Undo || id == TCCommandId::SelectAll ||
        id == TCCommandId::SwallowF4) {
      continue;
    }
    const std::u16string name = KeyName(binding.key);
    const std::string key(name.begin(), name.end());
    EXPECT_TRUE(page.find("| " + key + " |") != std::string::npos ||
                page.find("| " + key + ", ") != std::string::npos ||
                page.find(", " + key + " |") != std::string::npos)
        << key;
  }
}

}  // namespace
}  // namespace brevant
