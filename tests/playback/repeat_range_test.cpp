#include "playback/repeat_range.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

void ExpectTime(std::int32_t seconds, std::int32_t minutes, std::int32_t rest) {
  const TCFieldTime time = RepeatFieldTime(seconds);
  EXPECT_EQ(time.minutes, minutes) << seconds;
  EXPECT_EQ(time.seconds, rest) << seconds;
}

TEST(RepeatRange, AFieldShowsMinutesAndSeconds) {
  ExpectTime(0, 0, 0);
  ExpectTime(30, 0, 30);
  ExpectTime(3599, 59, 59);
}

TEST(RepeatRange, WholeHoursAreDropped) {
  ExpectTime(3610, 0, 10);
  ExpectTime(3725, 2, 5);
  ExpectTime(7200, 0, 0);
}

TEST(RepeatRange, ANegativeTimeIsNone) {
  ExpectTime(-1, 0, 0);
  ExpectTime(-2147483647 - 1, 0, 0);
}

}  // namespace
}  // namespace brevant
