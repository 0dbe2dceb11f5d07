#include "rehearsal/loop_beat.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(LoopBeat, ATenthOfASecondIsNoStall) {
  EXPECT_EQ(JudgeBeat({0.1, 0.1, 0.0, 0.0}), TCStall::None);
}

TEST(LoopBeat, WhatTheThreadWorkedOrWaitedForIsTheProgramsStall) {
  EXPECT_EQ(JudgeBeat({0.101, 0.101, 0.0, 0.0}), TCStall::OfTheProgram);
  EXPECT_EQ(JudgeBeat({0.101, 0.0, 0.0, 0.0}), TCStall::OfTheProgram);
}

TEST(LoopBeat, WhatOnlyTheQueueForAProcessorMadeLongIsTheMachines) {
  EXPECT_EQ(JudgeBeat({0.4, 0.05, 0.35, 0.0}), TCStall::OfTheMachine);
}

TEST(LoopBeat, ABusyMachineExcusesNoLongerThanItKeptTheThread) {
  EXPECT_EQ(JudgeBeat({0.4, 0.05, 0.25, 0.0}), TCStall::OfTheProgram);
}

TEST(LoopBeat, WhoWaitsForAHelperThatWaitsForAProcessorWaitsForTheMachine) {
  EXPECT_EQ(JudgeBeat({0.4, 0.01, 0.1, 0.25}), TCStall::OfTheMachine);
}

TEST(LoopBeat, NothingExcusesATenthOfASecondOfItsOwnWork) {
  EXPECT_EQ(JudgeBeat({0.4, 0.11, 0.1, 0.25}), TCStall::OfTheProgram);
}

TEST(BeatSpread, NothingIsSaidOfNoBeats) {
  const TCBeatSpread spread;
  EXPECT_EQ(spread.Count(), 0U);
  EXPECT_EQ(spread.Longest(), 0.0);
  EXPECT_EQ(spread.Within(0.5), 0.0);
}

TEST(BeatSpread, AShareOfTheBeatsStayedWithinTheTimeOfTheLastOfThem) {
  TCBeatSpread spread;
  for (int beat = 1; beat <= 1000; ++beat) spread.Add(beat * 0.0001);
  EXPECT_NEAR(spread.Within(0.5), 0.0500, 1e-9);
  EXPECT_NEAR(spread.Within(0.999), 0.0999, 1e-9);
  EXPECT_NEAR(spread.Within(1.0), 0.1, 1e-9);
}

TEST(BeatSpread, ATimeIsRoundedUpToItsPlaceAndNeverBeyondTheLongest) {
  TCBeatSpread spread;
  spread.Add(0.00012);
  EXPECT_NEAR(spread.Within(1.0), 0.00012, 1e-9);
  spread.Add(0.3);
  EXPECT_NEAR(spread.Within(0.5), 0.0002, 1e-9);
}

TEST(BeatSpread, ABeatBeyondHalfASecondIsAnsweredWithTheLongest) {
  TCBeatSpread spread;
  spread.Add(0.001);
  spread.Add(0.7);
  spread.Add(2.5);
  EXPECT_EQ(spread.Count(), 3U);
  EXPECT_EQ(spread.Within(0.6), 2.5);
  EXPECT_EQ(spread.Longest(), 2.5);
}

}  // namespace
}  // namespace brevant
