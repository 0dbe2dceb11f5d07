#include "playback/time_run.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_length_probe.h"
#include "support/message_log.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TimeRun : public testing::Test {
 protected:
  TimeRun() {
    store.songLatencySeconds = 0;
    TCPlayGroups& group = store.groups.emplace_back();
    AddPlaylist(group, {u"a", u"b", u"c"});
    AddPlaylist(group, {u"d"});
  }

  void AddPlaylist(TCPlayGroups& group, const std::vector<std::u16string>& names) {
    TCPlayList& playlist = group.playlists.emplace_back();
    for (const std::u16string& name : names) {
      const std::u16string path = u"C:\\" + name + u".mp3";
      TCPlayListItem& song = playlist.items.emplace_back();
      song.SetPath(path);
      song.time = u"09:09";
      probe.lengths[path] = 60 * static_cast<int>(name[0] - u'a' + 1);
    }
  }

  // Steps to the end of the run; the number of ticks it took.
  int RunThrough(TCTimeRunStep expectedEnd = TCTimeRunStep::FinishedWithChanges) {
    for (int ticks = 1; ticks < 1000; ++ticks) {
      const TCTimeRunStep step = run.Step();
      if (step == TCTimeRunStep::Measuring) continue;
      EXPECT_EQ(step, expectedEnd);
      return ticks;
    }
    ADD_FAILURE() << "the run does not end";
    return 0;
  }

  std::vector<std::u16string> Times(std::size_t playlist) const {
    std::vector<std::u16string> times;
    for (const TCPlayListItem& song : store.groups[0].playlists[playlist].items) times.push_back(song.time);
    return times;
  }

  TCAppRecord record;
  TCSetListStore& store = record.setLists;
  TCFakeLengthProbe probe;
  TCMessageLog messages;
  TCTimeRun run{record, &probe, messages};
};

TEST_F(TimeRun, ARunOverAPlaylistSaysEachTimeAndStoresThemAtItsEnd) {
  run.Start(TCTimeScope::CurrentPlaylist);
  EXPECT_TRUE(run.Pending());
  EXPECT_EQ(run.Count(), 3u);
  run.Step();
  EXPECT_EQ(run.Measured(), 1u);
  EXPECT_THAT(Times(0), ElementsAre(u"09:09", u"09:09", u"09:09"));
  RunThrough();
  EXPECT_FALSE(run.Pending());
  EXPECT_FALSE(probe.open);
  EXPECT_THAT(messages.lines, ElementsAre(u"Calculating times for song \"a.mp3\": 01:00",
                                          u"Calculating times for song \"b.mp3\": 02:00",
                                          u"Calculating times for song \"c.mp3\": 03:00"));
  EXPECT_THAT(Times(0), ElementsAre(u"01:00", u"02:00", u"03:00"));
  EXPECT_EQ(store.groups[0].playlists[0].totalTime, u"06:00");
  EXPECT_THAT(Times(1), ElementsAre(u"09:09"));
}

TEST_F(TimeRun, ARunOverAllSongsGoesThroughEveryPlaylistInOrder) {
  run.Start(TCTimeScope::AllSongs);
  RunThrough();
  EXPECT_EQ(messages.lines.size(), 4u);
  EXPECT_THAT(Times(1), ElementsAre(u"04:00"));
  EXPECT_EQ(store.groups[0].playlists[1].totalTime, u"04:00");
}

TEST_F(TimeRun, KnownLengthsTakeOneTickASong) {
  run.Start(TCTimeScope::CurrentPlaylist);
  EXPECT_EQ(RunThrough(), 3);
}

TEST_F(TimeRun, TheNextSongIsOpenedAheadSoThatItsLengthIsKnownByTheNextTick) {
  run.Start(TCTimeScope::CurrentPlaylist);
  run.Step();
  EXPECT_TRUE(probe.open);
  EXPECT_EQ(probe.opened.back(), u"C:\\b.mp3");
}

TEST_F(TimeRun, ALengthThatIsNotKnownYetIsAskedForAgainWithoutOpeningAnew) {
  probe.looksUntilKnown = 2;
  run.Start(TCTimeScope::CurrentPlaylist);
  run.Step();
  run.Step();
  EXPECT_THAT(probe.opened, ElementsAre(u"C:\\a.mp3"));
  EXPECT_THAT(messages.lines, IsEmpty());
  run.Step();
  EXPECT_EQ(messages.lines.size(), 1u);
}

TEST_F(TimeRun, MissingAndBrokenFilesAreNothingLongAndTheRunGoesOn) {
  probe.lengths[u"C:\\a.mp3"] = -1;
  probe.lengths[u"C:\\b.mp3"] = -1;
  run.Start(TCTimeScope::CurrentPlaylist);
  RunThrough();
  EXPECT_THAT(Times(0), ElementsAre(u"00:00", u"00:00", u"03:00"));
  EXPECT_EQ(messages.lines.front(), u"Calculating times for song \"a.mp3\": 00:00");
}

TEST_F(TimeRun, CancelLeavesTheTimesUnchangedAndClosesTheProbe) {
  run.Start(TCTimeScope::CurrentPlaylist);
  run.Step();
  run.Step();
  run.Cancel();
  EXPECT_FALSE(run.Pending());
  EXPECT_FALSE(probe.open);
  EXPECT_THAT(Times(0), ElementsAre(u"09:09", u"09:09", u"09:09"));
}

TEST_F(TimeRun, ANewRunReplacesTheOneUnderWay) {
  run.Start(TCTimeScope::AllSongs);
  run.Step();
  run.Start(TCTimeScope::CurrentPlaylist);
  EXPECT_EQ(run.Measured(), 0u);
  EXPECT_EQ(run.Count(), 3u);
  RunThrough();
}

TEST_F(TimeRun, AScopeWithoutSongsStartsNoRun) {
  store.currentPlaylist = 7;
  run.Start(TCTimeScope::CurrentPlaylist);
  EXPECT_FALSE(run.Pending());
  store.ClearSetLists();
  run.Start(TCTimeScope::AllSongs);
  EXPECT_FALSE(run.Pending());
}

TEST_F(TimeRun, AScopeWithoutSongsEndsTheRunUnderWay) {
  run.Start(TCTimeScope::AllSongs);
  run.Step();
  store.currentPlaylist = 7;
  run.Start(TCTimeScope::CurrentPlaylist);
  EXPECT_FALSE(run.Pending());
  EXPECT_FALSE(probe.open);
}

TEST_F(TimeRun, AnUnchangedSetListIsFinishedWithoutChanges) {
  run.Start(TCTimeScope::CurrentPlaylist);
  RunThrough();
  run.Start(TCTimeScope::CurrentPlaylist);
  RunThrough(TCTimeRunStep::Finished);
}

TEST_F(TimeRun, ATimeIsStoredOnlyWhereTheSongStillHasThePath) {
  run.Start(TCTimeScope::CurrentPlaylist);
  run.Step();
  auto& items = store.groups[0].playlists[0].items;
  items.erase(items.begin());
  items[0].SetPath(u"C:\\other.mp3");
  RunThrough();
  EXPECT_THAT(Times(0), ElementsAre(u"09:09", u"03:00"));
}

TEST_F(TimeRun, TheScopesPlaylistIsTheOneThatWasCurrentAtTheStart) {
  run.Start(TCTimeScope::CurrentPlaylist);
  store.currentPlaylist = 1;
  RunThrough();
  EXPECT_THAT(Times(0), ElementsAre(u"01:00", u"02:00", u"03:00"));
  EXPECT_THAT(Times(1), ElementsAre(u"09:09"));
}

TEST_F(TimeRun, WithNothingToMeasureWithNoRunStarts) {
  TCTimeRun none(record, nullptr, messages);
  none.Start(TCTimeScope::AllSongs);
  EXPECT_FALSE(none.Pending());
}

}  // namespace
}  // namespace brevant
