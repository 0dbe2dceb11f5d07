// What is the end of a song and what is none, where it leads, and the repeat range that keeps a song from it.
#include <algorithm>

#include "playback/transport_rig.h"

namespace brevant {
namespace {

using testing::Contains;
using testing::IsEmpty;

TEST_F(Transport, ASongContinuedJustBeforeItsEndIsSeenToEnd) {
  transport.Play();
  Run(1.0);
  transport.PauseContinue();
  player.SetPosition(10.3);
  transport.PauseContinue();
  Run(0.3);
  EXPECT_FALSE(transport.State().playing);
  EXPECT_EQ(store.currentSong, 1);
}

TEST_F(Transport, AnEndedSongMovesTheHighlightAndPlaysNothingByDefault) {
  transport.Play();
  Run(11.0);
  EXPECT_EQ(store.currentSong, 1);
  EXPECT_FALSE(transport.State().playing);
  EXPECT_FALSE(transport.State().started);
  EXPECT_EQ(player.GetUrl(), u"C:\\a1.mp3");
  EXPECT_THAT(display.calls, Contains("Highlight"));
}

TEST_F(Transport, WithAutoPlaySongsFollowEachOtherWithoutTheLatency) {
  settings.autoPlayPlayList = true;
  store.songLatencySeconds = 600;
  transport.Play();
  for (player.Advance(0.3); player.Snapshot().phase != TCPlayerPhase::Stopped; player.Advance(0.3)) {
    transport.OnPlayTimerTick();
  }
  EXPECT_EQ(player.GetUrl(), u"C:\\a1.mp3");
  transport.OnPlayTimerTick();  // the very tick that sees the end
  EXPECT_EQ(player.GetUrl(), u"C:\\a2.mp3");
  EXPECT_TRUE(transport.State().playing);
}

TEST_F(Transport, WithoutAutoAdvanceTheTransportRestsOnTheEndedSong) {
  settings.autoSongAdvance = false;
  settings.autoPlayPlayList = true;
  transport.Play();
  Run(12.0);
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_FALSE(transport.State().playing);
}

TEST_F(Transport, AtTheLastSongTheTransportRests) {
  settings.autoPlayPlayList = true;
  store.currentSong = 2;
  transport.Play();
  Run(12.0);
  EXPECT_EQ(store.currentSong, 2);
  EXPECT_EQ(store.currentPlaylist, 0);
  EXPECT_FALSE(transport.State().playing);
}

TEST_F(Transport, RecyclingGoesThroughAllPlaylistsAndStartsAgain) {
  settings.autoRecycle = true;
  settings.autoPlayPlayList = true;
  store.currentSong = 2;
  transport.Play();
  Run(11.4);
  EXPECT_EQ(player.GetUrl(), u"C:\\b1.mp3");
  EXPECT_THAT(display.calls, Contains("ShowPlaylist 0 1"));
  Run(11.4);
  EXPECT_EQ(player.GetUrl(), u"C:\\c1.mp3");
  EXPECT_EQ(store.currentGroup, 1);
  Run(22.8);
  EXPECT_EQ(store.currentGroup, 0);
  EXPECT_EQ(store.currentPlaylist, 0);
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_EQ(player.GetUrl(), u"C:\\a1.mp3");
  EXPECT_THAT(display.calls, Contains("ShowPlaylist 0 0"));
}

TEST_F(Transport, TheNextPlaylistTakesTheKeysWhenAKeyAskedForItAndElseFromNobodyWhoTypes) {
  settings.autoRecycle = true;
  settings.autoPlayPlayList = true;
  store.currentSong = 2;
  transport.Play();
  Run(11.4);
  EXPECT_THAT(display.calls, Contains("Focus unless typing"));
  EXPECT_THAT(display.calls, testing::Not(Contains("Focus")));
  transport.NextPlaylist();
  EXPECT_THAT(display.calls, Contains("Focus"));
}

TEST_F(Transport, RecyclingFromTheMiddleOfAPlaylistStaysInIt) {
  settings.autoRecycle = true;
  transport.Play();
  Run(11.0);
  EXPECT_EQ(store.currentPlaylist, 0);
  EXPECT_EQ(store.currentSong, 1);
}

TEST_F(Transport, RecyclingWithoutAutoPlayShowsTheNextPlaylistAndPlaysNothing) {
  settings.autoRecycle = true;
  store.currentSong = 2;
  transport.Play();
  Run(11.4);
  EXPECT_EQ(store.CurrentPosition(), (TCPlaylistPosition{0, 1}));
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_EQ(display.calls.back(), "ShowPlaylist 0 1");
  EXPECT_FALSE(transport.State().playing);
}

TEST_F(Transport, RecyclingRestsAtAPlaylistWithoutSongs) {
  settings.autoRecycle = true;
  settings.autoPlayPlayList = true;
  store.groups[0].playlists[1].items.clear();
  store.currentSong = 2;
  transport.Play();
  Run(12.0);
  EXPECT_EQ(store.CurrentPosition(), (TCPlaylistPosition{0, 1}));
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_FALSE(transport.State().playing);
}

TEST_F(Transport, ASongThatHasNotBegunIsNotTakenForEnded) {
  player.SetSong(u"C:\\a1.mp3", {.length = 10.4, .soundsAfter = 5.0});
  transport.Play();
  Run(4.0);
  EXPECT_TRUE(transport.State().playing);
  EXPECT_FALSE(transport.State().started);
  EXPECT_EQ(store.currentSong, 0);
}

TEST_F(Transport, ASeekBackToTheStartIsNoEnd) {
  transport.Play();
  Run(2.0);
  player.SetPosition(0.0);
  transport.OnPlayTimerTick();
  EXPECT_TRUE(transport.State().playing);
  EXPECT_EQ(store.currentSong, 0);
}

TEST_F(Transport, ASongCutOffByALostFileEndsLikeAnother) {
  player.SetSong(u"C:\\a1.mp3", {.length = 10.4, .breaksOffAt = 2.0});
  transport.Play();
  Run(3.0);
  EXPECT_EQ(store.currentSong, 1);
}

TEST_F(Transport, ALostSoundDeviceIsNoEnd) {
  transport.Play();
  Run(2.0);
  player.ConnectDevice(false);
  Run(30.0);
  EXPECT_TRUE(transport.State().playing);
  EXPECT_EQ(store.currentSong, 0);
}

TEST_F(Transport, AfterTheSetListsWereClearedTheOldSongsEndStartsNothing) {
  settings.autoPlayPlayList = true;
  transport.Play();
  Run(2.0);
  transport.ForgetSong();
  player.ForgetCalls();
  Run(12.0);
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_THAT(player.Calls(), IsEmpty());
}

TEST_F(Transport, TheRepeatRangeLoopsThePassageWhileAutoPlayIsOn) {
  settings.autoPlayPlayList = true;
  repeatFields.begin = 2;
  repeatFields.end = 4;
  transport.Play();
  Run(4.5);
  EXPECT_THAT(player.Calls(), Contains("SetPosition 2"));
  Run(60.0);
  EXPECT_EQ(store.currentSong, 0);
  repeatFields.end = 0;  // read afresh on every tick
  Run(11.4);
  EXPECT_EQ(store.currentSong, 1);
}

TEST_F(Transport, ARangeFromTheStartOfTheSongIsNotTakenForItsEnd) {
  settings.autoPlayPlayList = true;
  repeatFields.end = 4;
  transport.Play();
  Run(30.0);
  EXPECT_GE(std::ranges::count(player.Calls(), "SetPosition 0"), 5);
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_TRUE(transport.State().playing);
  EXPECT_TRUE(transport.State().started);
}

TEST_F(Transport, ARangeThatDoesNotBeginBeforeItsEndHoldsTheSongAtItsBegin) {
  settings.autoPlayPlayList = true;
  for (const std::int32_t begin : {4, 6}) {
    repeatFields.begin = begin;
    repeatFields.end = 4;
    transport.Play();
    Run(5.0);
    player.ForgetCalls();
    for (int tick = 0; tick < 20; ++tick) {
      Run(0.3);
      EXPECT_GE(player.GetPosition().value_or(0.0), begin);
      EXPECT_LE(player.GetPosition().value_or(9.0), begin + 0.7);
    }
    EXPECT_GE(player.Calls().size(), 10u) << "it goes back again and again";
    EXPECT_EQ(store.currentSong, 0);
  }
}

TEST_F(Transport, ARangeThatBeginsBehindTheSongEndsItAtTheEndOfTheRange) {
  settings.autoPlayPlayList = true;
  repeatFields.begin = 60;
  repeatFields.end = 4;
  transport.Play();
  Run(5.2);
  EXPECT_EQ(player.GetUrl(), u"C:\\a2.mp3");
}

TEST_F(Transport, WithoutAutoPlayTheSongRunsPastTheRepeatRange) {
  repeatFields.begin = 2;
  repeatFields.end = 4;
  transport.Play();
  Run(11.4);
  EXPECT_EQ(store.currentSong, 1);
}

}  // namespace
}  // namespace brevant
