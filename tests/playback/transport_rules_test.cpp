#include "playback/transport_rules.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(TransportRules, ATickActsOnlyOnTheFirstSoundAndOnTheEnd) {
  struct Case {
    bool started;
    double position;
    TCTickAction expected;
  };
  for (const Case& c : {
           Case{false, 0.0, TCTickAction::Wait},  // not yet begun is no end
           Case{false, 0.001, TCTickAction::MarkStarted},
           Case{false, 200.0, TCTickAction::MarkStarted},
           Case{true, 0.001, TCTickAction::Wait},
           Case{true, 200.0, TCTickAction::Wait},
           Case{true, 0.0, TCTickAction::EndSong},
       }) {
    EXPECT_EQ(DecideTick({c.started, c.position}), c.expected) << c.started << " " << c.position;
  }
}

TEST(TransportRules, ARepeatRangeIsHeldOnlyWhileItIsSetAndAutoPlayIsOn) {
  struct Case {
    bool started;
    double position;
    bool autoPlay;
    std::int32_t repeatEnd;
    TCTickAction expected;
  };
  for (const Case& c : {
           Case{true, 60.3, true, 60, TCTickAction::JumpToRepeatBegin},
           Case{true, 60.0, true, 60, TCTickAction::Wait},  // only past the end
           Case{true, 59.9, true, 60, TCTickAction::Wait},
           Case{true, 60.3, false, 60, TCTickAction::Wait},
           Case{true, 60.3, true, 0, TCTickAction::Wait},
           Case{true, 0.0, true, 60, TCTickAction::EndSong},
           Case{false, 60.3, true, 60, TCTickAction::MarkStarted},
       }) {
    EXPECT_EQ(DecideTick({c.started, c.position, c.autoPlay, c.repeatEnd}), c.expected)
        << c.started << " " << c.position << " " << c.autoPlay << " " << c.repeatEnd;
  }
}

TEST(TransportRules, AnEndedSongLeadsWhereTheOptionsSay) {
  for (const bool recycle : {false, true}) {
    for (const bool hasNext : {false, true}) {
      EXPECT_EQ(DecideAdvance({false, recycle, hasNext}), TCAdvance::Rest);
    }
  }
  EXPECT_EQ(DecideAdvance({true, false, true}), TCAdvance::NextSong);
  EXPECT_EQ(DecideAdvance({true, true, true}), TCAdvance::NextSong);
  EXPECT_EQ(DecideAdvance({true, false, false}), TCAdvance::Rest);
  EXPECT_EQ(DecideAdvance({true, true, false}), TCAdvance::NextPlaylist);
}

// Group 0 with two playlists, group 1 with one, group 2 with three.
TCSetListStore ThreeGroups() {
  TCSetListStore store;
  for (const std::size_t playlists : {2u, 1u, 3u}) store.groups.emplace_back().playlists.resize(playlists);
  return store;
}

void ExpectStep(const TCPlaylistStep& step, std::int32_t group, std::int32_t playlist) {
  EXPECT_TRUE(step.moves);
  EXPECT_EQ(step.group, group);
  EXPECT_EQ(step.playlist, playlist);
}

TEST(TransportRules, NextPlaylistGoesThroughTheGroupAndOnToTheNextGroupsFirst) {
  TCSetListStore store = ThreeGroups();
  ExpectStep(StepToNextPlaylist(store), 0, 1);
  store.currentPlaylist = 1;
  ExpectStep(StepToNextPlaylist(store), 1, 0);
  store.currentGroup = 2;
  store.currentPlaylist = 2;
  EXPECT_FALSE(StepToNextPlaylist(store).moves);
}

TEST(TransportRules, PriorPlaylistLandsOnTheFirstOfTheGroupBefore) {
  TCSetListStore store = ThreeGroups();
  EXPECT_FALSE(StepToPriorPlaylist(store).moves);
  store.currentGroup = 2;
  store.currentPlaylist = 2;
  ExpectStep(StepToPriorPlaylist(store), 2, 1);
  store.currentPlaylist = 0;
  ExpectStep(StepToPriorPlaylist(store), 1, 0);
  store.currentGroup = 1;
  ExpectStep(StepToPriorPlaylist(store), 0, 0);  // not its last
}

TEST(TransportRules, AGroupWithoutPlaylistsIsAStepOfItsOwn) {
  TCSetListStore store = ThreeGroups();
  store.groups[1].playlists.clear();
  store.currentPlaylist = 1;
  ExpectStep(StepToNextPlaylist(store), 1, 0);
  store.currentGroup = 1;
  store.currentPlaylist = 0;
  ExpectStep(StepToNextPlaylist(store), 2, 0);
  ExpectStep(StepToPriorPlaylist(store), 0, 0);
}

TEST(TransportRules, WithoutGroupsThereIsNowhereToStep) {
  const TCSetListStore store;
  EXPECT_FALSE(StepToNextPlaylist(store).moves);
  EXPECT_FALSE(StepToPriorPlaylist(store).moves);
}

}  // namespace
}  // namespace brevant
