#include "text/white_space.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(WhiteSpace, IsTheSixCharactersOfTheReaders) {
  for (const char16_t unit : std::u16string_view(u" \t\n\v\f\r")) EXPECT_TRUE(IsWhiteSpace(unit));
  for (const char16_t unit : std::u16string_view(u"a\u0008\u000E\u0085\u00A0\u2003\u3000\uFEFF")) {
    EXPECT_FALSE(IsWhiteSpace(unit));
  }
  EXPECT_FALSE(IsWhiteSpace(u'\0'));
}

TEST(WhiteSpace, IsTrimmedAtTheEndsOnly) {
  EXPECT_EQ(TrimLeft(u" \t a b \r\n"), u"a b \r\n");
  EXPECT_EQ(TrimRight(u" \t a b \r\n"), u" \t a b");
  EXPECT_EQ(Trim(u" \t a b \r\n"), u"a b");
}

TEST(WhiteSpace, AloneLeavesNothing) {
  EXPECT_EQ(Trim(u" \t\r\n"), u"");
  EXPECT_EQ(TrimLeft(u"  "), u"");
  EXPECT_EQ(TrimRight(u""), u"");
}

}  // namespace
}  // namespace brevant
