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

TEST(Key, SeveralModifiersStandInOneOrder) {
  const TCKey key(TCKeyCode::F12, TCKeyModifier::Shift | TCKeyModifier::Alt | TCKeyModifier::Ctrl);
  EXPECT_EQ(KeyName(key), u"Ctrl+Alt+Shift+F12");
  EXPECT_EQ(KeyOfName(u"Ctrl+Alt+Shift+F12"), key);
}

TEST(Key, HasANameOfItsOwnThatIsReadBack) {
  std::vector<TCKeyCode> codes;
  for (char16_t character = 0; character < 0xFFFF; ++character) {
    const TCKeyCode code = CharacterKey(character);
    if (code != TCKeyCode::None && static_cast<char16_t>(code) == character) codes.push_back(code);
  }
  for (auto code = TCKeyCode::F1; code <= TCKeyCode::MediaPlayPause;
       code = static_cast<TCKeyCode>(static_cast<std::uint32_t>(code) + 1)) {
    codes.push_back(code);
  }
  std::set<std::u16string> names;
  for (const TCKeyCode code : codes) {
    for (const TCKey& key : {TCKey(code), Ctrl(code)}) {
      const std::u16string name = KeyName(key);
      ASSERT_FALSE(name.empty());
      ASSERT_TRUE(names.insert(name).second) << static_cast<std::uint32_t>(code);
      ASSERT_EQ(KeyOfName(name), key) << static_cast<std::uint32_t>(code);
    }
  }
  EXPECT_GT(codes.size(), 60000u);
}

TEST(Key, OfACharacterIsItsLetterInUpperCase) {
  EXPECT_EQ(CharacterKey(u'm'), TCKeyCode::M);
  EXPECT_EQ(KeyName(CharacterKey(u'\x00D6')), u"\x00D6");
  EXPECT_EQ(KeyName(Ctrl(CharacterKey(u'+'))), u"Ctrl++");
  for (const char16_t none : {u'\0', u' ', u'\t', u'\x007F', u'\x00A0', u'\xD800', u'\xDFFF'}) {
    EXPECT_EQ(CharacterKey(none), TCKeyCode::None);
  }
}

TEST(Key, OfANameThatIsNoneIsNone) {
  for (const std::u16string_view name : {u"", u"Ctrl+", u"Ctrl", u"Shift+Ctrl+A", u"Ctrl+Ctrl+A", u"F0",
                                         u"F25", u"f5", u"Tab", u"Meta+A", u" ", u"AB", u"none"}) {
    EXPECT_FALSE(KeyOfName(name).has_value()) << std::string(name.begin(), name.end());
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
