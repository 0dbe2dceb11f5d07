#include "views/held_value.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(HeldValue, ShowsWhatThePlayerReportsWhileNothingWasPicked) {
  TCHeldValue value(1.0);
  EXPECT_EQ(value.Shown(12.0), 12.0);
}

TEST(HeldValue, ShowsThePickedValueUntilThePlayerIsThere) {
  TCHeldValue value(1.0);
  value.Hold(60.0);
  EXPECT_EQ(value.Shown(12.0), 60.0);
  EXPECT_EQ(value.Shown(60.4), 60.4);
  EXPECT_EQ(value.Shown(12.0), 12.0);
}

TEST(HeldValue, GivesUpAfterHalfASecondOfPolls) {
  TCHeldValue value(1.0);
  value.Hold(60.0);
  for (int poll = 0; poll < 5; ++poll) EXPECT_EQ(value.Shown(12.0), 60.0) << poll;
  EXPECT_EQ(value.Shown(12.0), 12.0);
}

TEST(HeldValue, LetsGoWhenReleased) {
  TCHeldValue value(1.0);
  value.Hold(60.0);
  value.Release();
  EXPECT_EQ(value.Shown(12.0), 12.0);
}

}  // namespace
}  // namespace brevant
