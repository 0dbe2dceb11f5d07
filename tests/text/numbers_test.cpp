#include "text/numbers.h"

#include <gtest/gtest.h>

#include <limits>

namespace brevant {
namespace {

TEST(Numbers, ReadsLeadingDigitsAndIgnoresTheRest) {
  EXPECT_EQ(ReadDecimal(u"12abc"), 12);
  EXPECT_EQ(ReadDecimal(u"1 2"), 1);
  EXPECT_EQ(ReadDecimal(u"007"), 7);
  EXPECT_EQ(ReadDecimal(u"0x1F"), 0);
}

TEST(Numbers, ReadsOneSignBehindWhiteSpace) {
  EXPECT_EQ(ReadDecimal(u" \t\r\n\v\f-12"), -12);
  EXPECT_EQ(ReadDecimal(u"+5"), 5);
  EXPECT_EQ(ReadDecimal(u"- 5"), std::nullopt);
  EXPECT_EQ(ReadDecimal(u"--5"), std::nullopt);
}

TEST(Numbers, AreNotThereWithoutADigit) {
  for (const char16_t* text : {u"", u" ", u"-", u"+", u"abc", u".5", u"\u0663", u"\uFF15"}) {
    EXPECT_EQ(ReadDecimal(text), std::nullopt);
  }
}

TEST(Numbers, PastThirtyTwoBitsAreRefused) {
  EXPECT_EQ(ReadDecimal(u"2147483647"), std::numeric_limits<std::int32_t>::max());
  EXPECT_EQ(ReadDecimal(u"-2147483648"), std::numeric_limits<std::int32_t>::min());
  EXPECT_EQ(ReadDecimal(u"2147483648"), std::nullopt);
  EXPECT_EQ(ReadDecimal(u"-2147483649"), std::nullopt);
  EXPECT_EQ(ReadDecimal(std::u16string(100'000, u'9')), std::nullopt);
  EXPECT_EQ(ReadDecimal(std::u16string(100'000, u'0') + u"7"), 7);
}

TEST(Numbers, AreReadFromBytesAlike) {
  EXPECT_EQ(ReadDecimal(" \t-12abc"), -12);
  EXPECT_EQ(ReadDecimal(""), std::nullopt);
  EXPECT_EQ(ReadDecimal("\xA0"
                        "5"),
            std::nullopt);
  EXPECT_EQ(ReadDecimal("2147483648"), std::nullopt);
}

TEST(Numbers, AreWrittenAsTheyAreRead) {
  EXPECT_EQ(FormatDecimal(0), u"0");
  EXPECT_EQ(FormatDecimal(-7), u"-7");
  EXPECT_EQ(FormatDecimal(std::numeric_limits<std::int64_t>::min()), u"-9223372036854775808");
}

}  // namespace
}  // namespace brevant
