#include "text/case_folding.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(CaseFolding, LowersTheLettersOfEveryScript) {
  EXPECT_EQ(ToLower(u"AZ \u00C9\u0141\u03A9\u0416\u0531\u10A0\u1E9E\uFF21"),
            u"az \u00E9\u0142\u03C9\u0436\u0561\u2D00\u00DF\uFF41");
}

TEST(CaseFolding, LeavesEverythingElseAsItIs) {
  const std::u16string text = u"az[]@`{09\u00D7\u00F7\u0130\u01BB\u4E2D\U0001D400\xD800\uFFFF";
  EXPECT_EQ(ToLower(text), text);
}

TEST(CaseFolding, LowersOnlyTheUpperHalfOfAlternatingLetters) {
  EXPECT_EQ(ToLower(u"\u0100\u0101\u012E\u012F\u0132\u0133\u0178\u0179\u017A"),
            u"\u0101\u0101\u012F\u012F\u0133\u0133\u00FF\u017A\u017A");
}

TEST(CaseFolding, LoweringTwiceChangesNothingMore) {
  for (std::uint32_t unit = 0; unit <= 0xFFFF; ++unit) {
    const char16_t lower = ToLower(static_cast<char16_t>(unit));
    ASSERT_EQ(ToLower(lower), lower) << std::hex << unit;
  }
}

TEST(CaseFolding, HoldsAboutElevenHundredLetters) {
  int letters = 0;
  for (std::uint32_t unit = 0; unit <= 0xFFFF; ++unit) {
    const auto letter = static_cast<char16_t>(unit);
    if (ToLower(letter) != letter) ++letters;
  }
  EXPECT_GT(letters, 1000);
  EXPECT_LT(letters, 1300);
}

TEST(CaseFolding, ComparesWithoutRegardToCase) {
  EXPECT_TRUE(EqualIgnoringCase(u"Sets", u"SETS"));
  EXPECT_TRUE(EqualIgnoringCase(u"\u00C9t\u00E9", u"\u00E9T\u00C9"));
  EXPECT_TRUE(EqualIgnoringCase(u"", u""));
  EXPECT_FALSE(EqualIgnoringCase(u"Sets", u"Set"));
  EXPECT_FALSE(EqualIgnoringCase(u"Set", u"Sets"));
  EXPECT_FALSE(EqualIgnoringCase(u"e", u"\u00E9"));
}

}  // namespace
}  // namespace brevant
