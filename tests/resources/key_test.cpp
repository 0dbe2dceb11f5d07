#include "resources/key.h"

#include <gtest/gtest.h>

#include <set>
#include <vector>

namespace brevant {
namespace {

TEST(Key, IsNamedAsItStandsOnAKeyboard) {
  EXPECT_EQ(KeyName(TCKeyCode::A), u"A");
  EXPECT_EQ(KeyName(TCKeyCode::Z), u"Z");
  EXPECT_EQ(KeyName(TCKeyCode::Digit3), u"3");
  EXPECT_EQ(KeyName(TCKeyCode::F9), u"F9");
  EXPECT_EQ(KeyName(TCKeyCode::Escape), u"Esc");
  EXPECT_EQ(KeyName(TCKeyCode::VolumeUp), u"Volume Up");
  EXPECT_EQ(KeyName(TCKeyCode::None), u"");
}

TEST(Key, IsNamedWithItsModifierInFront) {
  EXPECT_EQ(KeyName(Ctrl(TCKeyCode::G)), u"Ctrl+G");
  EXPECT_EQ(KeyName(Shift(TCKeyCode::Insert)), u"Shift+Insert");
  EXPECT_EQ(KeyName(Alt(TCKeyCode::Backspace)), u"Alt+Backspace");
}

TEST(Key, HasANameOfItsOwnForEveryCode) {
  std::set<std::u16string> names;
  for (int code = 1; code <= static_cast<int>(TCKeyCode::VolumeDown); ++code) {
    const std::u16string name = KeyName(static_cast<TCKeyCode>(code));
    EXPECT_FALSE(name.empty()) << code;
    EXPECT_TRUE(names.insert(name).second) << code;
  }
}

TEST(Key, DiffersFromTheSameKeyUnderAnotherModifier) {
  EXPECT_EQ(Ctrl(TCKeyCode::M), Ctrl(TCKeyCode::M));
  EXPECT_NE(Ctrl(TCKeyCode::M), Shift(TCKeyCode::M));
  EXPECT_NE(Ctrl(TCKeyCode::M), TCKey(TCKeyCode::M));
  EXPECT_NE(Ctrl(TCKeyCode::M), Ctrl(TCKeyCode::L));
}

TEST(KeyList, KeepsItsKeysInOrder) {
  constexpr TCKeyList keys = {TCKeyCode::P, Ctrl(TCKeyCode::G)};
  const std::vector<TCKey> listed(keys.begin(), keys.end());
  EXPECT_EQ(listed, (std::vector<TCKey>{TCKeyCode::P, Ctrl(TCKeyCode::G)}));
  EXPECT_TRUE(TCKeyList().empty());
}

}  // namespace
}  // namespace brevant
