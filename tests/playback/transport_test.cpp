#include "playback/transport.h"

#include "playback/transport_rig.h"

namespace brevant {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;

TEST_F(Transport, PlayLoadsTheCurrentSongAndStartsIt) {
  store.currentSong = 1;
  messages.Append(u"old");
  transport.Play();
  EXPECT_THAT(player.Calls(), ElementsAre("LoadUrl C:\\a2.mp3", "Play"));
  EXPECT_TRUE(transport.State().playing);
  EXPECT_FALSE(transport.State().started);
  EXPECT_EQ(transport.State().lastLyricIndex, -1);
  EXPECT_TRUE(transport.State().refreshSongTime);
  EXPECT_EQ(Song(1).status, TCSongStatus::Found);
  EXPECT_THAT(display.calls, Contains("Row 1"));
  EXPECT_THAT(messages.lines, IsEmpty());
}

TEST_F(Transport, PlayWhenNoSongIsCurrentStartsTheSetFromItsTop) {
  store.currentPlaylist = 1;
  store.currentSong = 2;  // of the longer playlist before
  transport.Play();
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_THAT(display.calls, Contains("Highlight"));
  EXPECT_THAT(player.Calls(), ElementsAre("LoadUrl C:\\b1.mp3", "Play"));
  EXPECT_TRUE(transport.State().playing);
}

TEST_F(Transport, PlayWithoutAnySongPlaysWritesAndReportsNothing) {
  store.ClearSetLists();
  transport.Play();
  EXPECT_THAT(player.Calls(), IsEmpty());
  EXPECT_THAT(messages.lines, IsEmpty());
  EXPECT_EQ(messages.clears, 0);
  EXPECT_FALSE(transport.State().playing);
}

TEST_F(Transport, ARefusedPlayLeavesTheFlagsAsIfPlayingAndTheMessagesStanding) {
  messages.Append(u"old");
  player.AcceptCommands(false);
  transport.Play();
  EXPECT_TRUE(transport.State().playing);
  EXPECT_THAT(messages.lines, ElementsAre(u"old"));
}

TEST_F(Transport, TheSameKeyPressedTwiceStartsTheSongAnew) {
  transport.Play();
  Run(4.0);
  transport.Play();
  EXPECT_FALSE(transport.State().started);
  Run(0.6);
  EXPECT_LT(player.GetPosition().value_or(9.0), 1.0);
  EXPECT_EQ(store.currentSong, 0);
}

TEST_F(Transport, StopTakesTheSongsTimeAndLeavesPausedAndStarted) {
  transport.Play();
  Run(1.0);
  transport.PauseContinue();
  Song(0).time = u"00:00";
  transport.Stop();
  EXPECT_EQ(Song(0).time, u"00:10");
  EXPECT_EQ(player.GetPosition(), 0.0);
  EXPECT_FALSE(transport.State().playing);
  EXPECT_TRUE(transport.State().paused);
  EXPECT_TRUE(transport.State().started);
  EXPECT_EQ(transport.State().lastLyricIndex, -1);
}

TEST_F(Transport, StopNeverAdvances) {
  transport.Play();
  Run(1.0);
  transport.Stop();
  Run(2.0);
  EXPECT_EQ(store.currentSong, 0);
}

TEST_F(Transport, PauseHoldsTheSongAndContinueGoesOn) {
  transport.Play();
  Run(3.0);
  transport.PauseContinue();
  EXPECT_TRUE(transport.State().paused);
  const double held = player.GetPosition().value_or(0.0);
  Run(20.0);
  EXPECT_EQ(player.GetPosition(), held);
  EXPECT_TRUE(transport.State().playing);  // a paused song never counts as ended
  EXPECT_EQ(store.currentSong, 0);
  transport.PauseContinue();
  EXPECT_FALSE(transport.State().paused);
  Run(0.3);
  EXPECT_GT(player.GetPosition().value_or(0.0), held);
}

TEST_F(Transport, TheFirstPauseContinueAfterStoppingAPausedSongStartsItAgain) {
  transport.Play();
  Run(1.0);
  transport.PauseContinue();
  transport.Stop();
  player.SetSong(u"C:\\a1.mp3", {.length = 10.4});
  transport.PauseContinue();
  EXPECT_TRUE(transport.State().playing);
  EXPECT_FALSE(transport.State().started);  // the silence before the sound is no end
  transport.OnPlayTimerTick();
  EXPECT_EQ(store.currentSong, 0);
  Run(1.0);
  EXPECT_TRUE(transport.State().started);
  EXPECT_FALSE(transport.State().paused);
}

TEST_F(Transport, WithoutControlsAPlayingSongIsLeftAlone) {
  player.ShowControls(false);
  transport.Play();
  Run(2.0);
  EXPECT_TRUE(transport.State().playing);
  EXPECT_FALSE(transport.State().started);
}

TEST_F(Transport, SteppingNeverWrapsAndNeverPlays) {
  transport.PriorSong();
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_THAT(display.calls, IsEmpty());
  transport.NextSong();
  transport.NextSong();
  EXPECT_EQ(store.currentSong, 2);
  transport.NextSong();
  EXPECT_EQ(store.currentSong, 2);
  EXPECT_THAT(display.calls, ElementsAre("Highlight", "Highlight"));
  transport.PriorSong();
  EXPECT_EQ(store.currentSong, 1);
  EXPECT_THAT(player.Calls(), IsEmpty());
}

TEST_F(Transport, SteppingWithACurrentGroupOrPlaylistOutOfRangeDoesNothing) {
  for (const std::int32_t wrong : {-1, 7}) {
    store.currentGroup = wrong;
    transport.NextSong();
    transport.PriorSong();
    store.currentGroup = 0;
    store.currentPlaylist = wrong;
    transport.NextSong();
    transport.PriorSong();
    store.currentPlaylist = 0;
    EXPECT_EQ(store.currentSong, 0);
  }
  EXPECT_THAT(display.calls, IsEmpty());
}

TEST_F(Transport, PlaylistStepsShowThePlaylistAndFocusIt) {
  store.currentSong = 2;
  EXPECT_TRUE(transport.NextPlaylist());
  EXPECT_EQ(store.currentPlaylist, 1);
  EXPECT_EQ(store.currentSong, 2);  // stays, though it names no song here
  EXPECT_THAT(display.calls, ElementsAre("Focus", "ShowPlaylist 0 1"));
  EXPECT_TRUE(transport.NextPlaylist());
  display.calls.clear();
  EXPECT_FALSE(transport.NextPlaylist());
  EXPECT_EQ(store.currentGroup, 1);
  EXPECT_EQ(store.currentPlaylist, 0);
  EXPECT_THAT(display.calls, ElementsAre("Focus"));
  display.calls.clear();
  transport.PriorPlaylist();
  EXPECT_THAT(display.calls, ElementsAre("Focus", "ShowPlaylist 0 0"));
  transport.PriorPlaylist();
  EXPECT_EQ(store.currentPlaylist, 0);
}

TEST_F(Transport, WithoutGroupsAPlaylistStepOnlyTakesTheFocus) {
  store.ClearSetLists();
  EXPECT_FALSE(transport.NextPlaylist());
  transport.PriorPlaylist();
  EXPECT_THAT(display.calls, ElementsAre("Focus", "Focus"));
}

TEST_F(Transport, ASelectedSongBecomesCurrentAndPlaysAtOnce) {
  store.groups[0].name = u"G";
  transport.SelectSong(1, TCSelect::MayPlay);
  EXPECT_EQ(store.currentSong, 1);
  EXPECT_EQ(store.lastGroupListName, u"G");
  EXPECT_EQ(store.lastSongName, u"a2.mp3");
  EXPECT_THAT(player.Calls(), ElementsAre("LoadUrl C:\\a2.mp3", "Play"));
  EXPECT_THAT(display.calls, ElementsAre("Highlight", "Row 1", "ShowPlaylist 0 0"));
}

TEST_F(Transport, ASongIsSelectedSilentlyWhenItMayNotPlayOrTheOptionIsOff) {
  transport.SelectSong(1, TCSelect::Silently);
  settings.immediatePlay = false;
  transport.SelectSong(2, TCSelect::MayPlay);
  EXPECT_EQ(store.currentSong, 2);
  EXPECT_THAT(player.Calls(), IsEmpty());
}

TEST_F(Transport, SelectingWhatIsNoSongDoesNothing) {
  transport.SelectSong(-1, TCSelect::MayPlay);
  transport.SelectSong(3, TCSelect::MayPlay);
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_THAT(display.calls, IsEmpty());
}

TEST_F(Transport, CancelDropsPendingTimesAndTouchesNoSound) {
  transport.Play();
  player.ForgetCalls();
  transport.CancelPending();
  EXPECT_FALSE(transport.State().refreshSongTime);
  EXPECT_FALSE(transport.TimeRun().Pending());
  EXPECT_TRUE(transport.State().playing);
  EXPECT_THAT(player.Calls(), IsEmpty());
}

TEST_F(Transport, WithoutAPlayerEveryCommandRunsWithoutEffectAndWithoutError) {
  TCTransport mute({record, files, display, messages});
  mute.Play();
  mute.Stop();
  mute.PauseContinue();
  mute.StartTimeRun(TCTimeScope::AllSongs);
  mute.OnPlayTimerTick();
  mute.SelectSong(1, TCSelect::MayPlay);
  EXPECT_FALSE(mute.State().playing);
  EXPECT_FALSE(mute.State().paused);
  EXPECT_EQ(store.currentSong, 1);
  EXPECT_THAT(messages.lines, IsEmpty());
}

TEST_F(Transport, WithoutAPlayerNoSongLosesItsTime) {
  TCTransport mute({record, files, display, messages});
  Song(0).time = u"03:25";
  mute.RefreshCurrentSongTime();
  mute.Stop();
  EXPECT_EQ(Song(0).time, u"03:25");
  EXPECT_THAT(display.calls, IsEmpty());
}

}  // namespace
}  // namespace brevant
