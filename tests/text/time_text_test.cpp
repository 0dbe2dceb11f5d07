#include "text/time_text.h"

#include <gtest/gtest.h>

#include <limits>

namespace brevant {
namespace {

TEST(TimeText, ShowsMinutesAndSeconds) {
  EXPECT_EQ(FormatTime(0), u"00:00");
  EXPECT_EQ(FormatTime(59), u"00:59");
  EXPECT_EQ(FormatTime(480), u"08:00");
  EXPECT_EQ(FormatTime(3599), u"59:59");
}

TEST(TimeText, ShowsHoursFromOneHourOn) {
  EXPECT_EQ(FormatTime(3600), u"01:00:00");
  EXPECT_EQ(FormatTime(3723), u"01:02:03");
  EXPECT_EQ(FormatTime(std::numeric_limits<std::int32_t>::max()), u"596523:14:07");
}

TEST(TimeText, ANegativeNumberIsShownAsZero) {
  EXPECT_EQ(FormatTime(-1), u"00:00");
  EXPECT_EQ(FormatTime(std::numeric_limits<std::int32_t>::min()), u"00:00");
}

TEST(TimeText, IsReadInItsTwoFormsOnly) {
  EXPECT_EQ(ParseTime(u"03:45"), 225);
  EXPECT_EQ(ParseTime(u"12:34"), 754);
  EXPECT_EQ(ParseTime(u"01:02:03"), 3723);
  EXPECT_EQ(ParseTime(u"12:34:56"), 45296);
  EXPECT_EQ(ParseTime(u"3:45"), 0);
  EXPECT_EQ(ParseTime(u"1:02:03"), 0);
  EXPECT_EQ(ParseTime(u""), 0);
  EXPECT_EQ(ParseTime(u"003:45"), 0);
  EXPECT_EQ(ParseTime(u"596523:14:07"), 0);
}

TEST(TimeText, APartWithoutANumberCountsNothing) {
  EXPECT_EQ(ParseTime(u"xx:45"), 45);
  EXPECT_EQ(ParseTime(u"03:xx"), 180);
  EXPECT_EQ(ParseTime(u"     "), 0);
  EXPECT_EQ(ParseTime(u"xx:02:yy"), 120);
}

TEST(TimeText, PartsAreReadAsDecimalNumbersWithASign) {
  EXPECT_EQ(ParseTime(u" 3:+5"), 185);
  EXPECT_EQ(ParseTime(u"-1:30"), -30);
  EXPECT_EQ(ParseTime(u"1x:2y"), 62);
}

TEST(TimeText, WhatStandsBetweenThePartsIsNotLookedAt) {
  EXPECT_EQ(ParseTime(u"03x45"), 225);
  EXPECT_EQ(ParseTime(u"01x02y03"), 3723);
}

}  // namespace
}  // namespace brevant
