#include "playback/seek_rules.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(SeekRules, AStepForwardGoesNoFurtherThanTheEnd) {
  EXPECT_EQ(SeekForwardTarget(10.5, 2, 60), 12.5);
  EXPECT_EQ(SeekForwardTarget(58.0, 2, 60), 60.0);
  EXPECT_EQ(SeekForwardTarget(59.5, 2, 60), 60.0);
}

TEST(SeekRules, WithoutAKnownLengthAStepMayGoToTenThousandSeconds) {
  EXPECT_EQ(SeekForwardTarget(9000.0, 5, -1), 9005.0);
  EXPECT_EQ(SeekForwardTarget(9999.0, 5, -1), 10000.0);
  EXPECT_EQ(SeekForwardTarget(9000.0, 5, 0), 9005.0);
}

TEST(SeekRules, AStepBackGoesNoFurtherThanTheStart) {
  EXPECT_EQ(SeekBackTarget(10.5, 2), 8.5);
  EXPECT_EQ(SeekBackTarget(1.5, 2), 0.0);
}

TEST(SeekRules, StepsOfAnySizeAreTaken) {
  EXPECT_EQ(SeekForwardTarget(1.0, 2147483647, 60), 60.0);
  EXPECT_EQ(SeekBackTarget(1.0, -2147483647 - 1), 2147483649.0);  // the player holds it within the song
}

}  // namespace
}  // namespace brevant
