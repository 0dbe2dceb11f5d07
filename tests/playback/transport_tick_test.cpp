// What a tick does besides noticing the end of a song: song times, lyrics and the run that measures many
// songs.
#include "playback/transport_rig.h"
#include "support/lyrics_of.h"

namespace brevant {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Transport, ADurationThatFailsIsStoredAsNothing) {
  Song(0).time = u"03:25";
  transport.RefreshCurrentSongTime();  // nothing is loaded
  EXPECT_EQ(Song(0).time, u"00:00");
  EXPECT_THAT(display.calls, Contains("Time 0 00:00"));
}

TEST_F(Transport, ASongThatCannotBePlayedTakesNoTimeAndIsAskedForNone) {
  player.SetSong(u"C:\\a1.mp3", {.playable = false});
  Song(0).time = u"03:25";
  transport.Play();
  Run(0.6);
  EXPECT_EQ(Song(0).time, u"00:00");
  EXPECT_FALSE(transport.State().refreshSongTime);
}

TEST_F(Transport, ATimeWithoutARowToStandInIsAskedForUntilThereIsOne) {
  transport.Play();
  store.currentSong = -1;
  Run(0.6);
  EXPECT_TRUE(transport.State().refreshSongTime);
  store.currentSong = 1;
  Run(0.3);
  EXPECT_FALSE(transport.State().refreshSongTime);
  EXPECT_EQ(Song(1).time, u"00:10");
}

TEST_F(Transport, AChangedSongTimeMovesTheTotal) {
  store.RecalcAllTotalTimes();
  EXPECT_EQ(store.groups[0].playlists[0].totalTime, u"00:30");
  transport.Play();
  Run(0.6);
  EXPECT_EQ(Song(0).time, u"00:10");
  EXPECT_EQ(store.groups[0].playlists[0].totalTime, u"00:40");
  EXPECT_THAT(display.calls, Contains("Time 0 00:10"));
  EXPECT_THAT(display.calls, Contains("Total"));
  EXPECT_FALSE(transport.State().refreshSongTime);
}

TEST_F(Transport, ASongTimeThatIsNotKnownYetIsAskedForAgain) {
  player.SetSong(u"C:\\a1.mp3", {.length = 10.4, .opensAfter = 1.0});
  Song(0).time = u"03:25";
  transport.Play();
  Run(0.6);
  EXPECT_EQ(Song(0).time, u"03:25");
  EXPECT_TRUE(transport.State().refreshSongTime);
  Run(0.9);
  EXPECT_EQ(Song(0).time, u"00:10");
}

TEST_F(Transport, AfterTheSetListsWereClearedTheOldSongsTimeGoesIntoNoRow) {
  player.SetSong(u"C:\\a1.mp3", {.length = 10.4, .opensAfter = 1.0});
  transport.Play();
  transport.ForgetSong();
  Song(0).time = u"03:25";  // the next document's
  Run(2.0);
  EXPECT_EQ(Song(0).time, u"03:25");
}

TEST_F(Transport, AfterPlayAndAfterStopTheCurrentLyricLineIsDrawnAgain) {
  Song(0).lyrics = LyricsOf({{u"one", 0, kEndOfLyrics, kNoSinger}});
  transport.Play();
  Run(1.0);
  ASSERT_EQ(transport.State().lastLyricIndex, 0);
  transport.Play();  // clears the messages
  EXPECT_EQ(transport.State().lastLyricIndex, -1);
  Run(0.3);
  EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tone"));
  transport.Stop();
  EXPECT_EQ(transport.State().lastLyricIndex, -1);
}

TEST_F(Transport, LyricsFollowThePlayingSong) {
  Song(0).lyrics = LyricsOf({{u"one", 1000, 3000, kNoSinger}, {u"two", 3000, kEndOfLyrics, kNoSinger}});
  settings.numberLyricLines = 1;
  transport.Play();
  Run(0.8);
  EXPECT_THAT(messages.lines, IsEmpty());
  Run(0.6);
  EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tone"));
  EXPECT_EQ(transport.State().lastLyricIndex, 0);
  messages.Clear();
  transport.RedrawLyrics();
  Run(0.3);
  EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tone"));
  Run(2.1);
  EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\ttwo"));
}

TEST_F(Transport, ATickMeasuresBeforeItShowsLyrics) {
  Song(0).lyrics = LyricsOf({{u"one", 0, kEndOfLyrics, kNoSinger}});
  transport.Play();
  transport.StartTimeRun(TCTimeScope::CurrentPlaylist);
  transport.OnPlayTimerTick();
  EXPECT_EQ(transport.TimeRun().Measured(), 1u);
  EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tone")) << "its words take the place of the time";
}

TEST_F(Transport, ATimeRunLeavesTheSongThatPlaysAlone) {
  settings.autoPlayPlayList = true;
  probe.defaultLength = 65;
  transport.Play();
  Run(2.0);
  player.ForgetCalls();
  transport.StartTimeRun(TCTimeScope::CurrentPlaylist);
  Run(2.0);
  ASSERT_FALSE(transport.TimeRun().Pending());
  EXPECT_THAT(player.Calls(), IsEmpty());
  EXPECT_TRUE(transport.State().playing);
  EXPECT_EQ(Song(2).time, u"01:05");
  EXPECT_EQ(display.calls.back(), "ShowPlaylist 0 0");
  Run(7.0);
  EXPECT_EQ(player.GetUrl(), u"C:\\a2.mp3") << "its end is noticed";
}

TEST_F(Transport, WithoutAProbeATimeRunMeasuresNothingAndThePlayerIsNotAsked) {
  TCTransport blind({record, files, display, messages, &player});
  blind.StartTimeRun(TCTimeScope::AllSongs);
  EXPECT_FALSE(blind.TimeRun().Pending());
  blind.OnPlayTimerTick();
  EXPECT_THAT(player.Calls(), IsEmpty());
  EXPECT_THAT(messages.lines, IsEmpty());
}

TEST_F(Transport, CancelEndsATimeRun) {
  transport.StartTimeRun(TCTimeScope::AllSongs);
  Run(0.6);
  ASSERT_GT(transport.TimeRun().Measured(), 0u);
  transport.CancelPending();
  EXPECT_FALSE(transport.TimeRun().Pending());
  EXPECT_EQ(Song(0).time, u"00:00");
}

TEST_F(Transport, TheTickSaysWhenATimeRunChangedSomething) {
  transport.StartTimeRun(TCTimeScope::CurrentPlaylist);
  int changes = 0;
  for (int tick = 0; tick < 20; ++tick) {
    player.Advance(0.3);
    if (transport.OnPlayTimerTick()) ++changes;
  }
  EXPECT_EQ(changes, 1);
}

}  // namespace
}  // namespace brevant
