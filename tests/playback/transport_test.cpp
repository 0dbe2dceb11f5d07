#include "playback/transport.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "model/set_list_edit.h"
#include "playback/player_length_probe.h"
#include "support/fake_player.h"
#include "support/memory_files.h"
#include "support/message_log.h"
#include "support/repeat_fields.h"
#include "support/set_list_display_log.h"

namespace brevant {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

// Two groups: the first with playlists of three songs and of one, the second with one of two songs. Every
// song is there and lasts ten seconds.
class TransportTest : public testing::Test {
 protected:
  TransportTest() {
    AddGroup({{u"a1", u"a2", u"a3"}, {u"b1"}});
    AddGroup({{u"c1", u"c2"}});
    player.SetDefaultSong({.length = 10.4});
  }

  void AddGroup(const std::vector<std::vector<std::u16string>>& playlists) {
    TCPlayGroups& group = store.groups.emplace_back();
    for (const auto& names : playlists) {
      TCPlayList& playlist = group.playlists.emplace_back();
      for (const std::u16string& name : names) {
        const std::u16string path = u"C:\\" + name + u".mp3";
        playlist.items.emplace_back().SetPath(path);
        files.Put(path);
      }
    }
  }

  // Lets `seconds` pass with a poll every 300 ms.
  void Run(double seconds) {
    for (double passed = 0.0; passed < seconds; passed += 0.3) {
      player.Advance(0.3);
      transport.OnPlayTimerTick();
    }
  }

  TCPlayListItem& Song(std::size_t index) { return store.groups[0].playlists[0].items[index]; }

  TCMemoryFiles files;
  TCAppRecord record;
  TCSetListStore& store = record.setLists;
  TCSettings& settings = record.settings;
  TCFakePlayer player;
  TCSetListDisplayLog display;
  TCMessageLog messages;
  TCFakeRepeatFields repeatFields;
  TCTransport transport{{record, files, display, messages, &player, nullptr, &repeatFields}};
};

TEST_F(TransportTest, PlayLoadsTheCurrentSongAndStartsIt) {
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

TEST_F(TransportTest, PlayOfAMissingFileSaysSoAndChangesNoState) {
  files.Remove(u"C:\\a1.mp3");
  transport.Play();
  EXPECT_THAT(messages.lines, ElementsAre(u"Unable to play song as unable to find file: C:\\a1.mp3"));
  EXPECT_EQ(Song(0).status, TCSongStatus::NotFound);
  EXPECT_THAT(display.calls, Contains("Row 0"));
  EXPECT_THAT(player.Calls(), Not(Contains("Play")));
  EXPECT_FALSE(transport.State().playing);
  EXPECT_FALSE(transport.State().started);
  EXPECT_FALSE(transport.State().refreshSongTime);
}

TEST_F(TransportTest, AnEntryWithoutAPathIsMissingAndNeverHandedToThePlayer) {
  Song(0).SetPath(u"");
  transport.Play();
  EXPECT_THAT(player.Calls(), IsEmpty());
  EXPECT_EQ(Song(0).status, TCSongStatus::NotFound);
  EXPECT_FALSE(transport.State().playing);
}

TEST_F(TransportTest, PlayOfAMissingFileWhileAnotherSongSoundsUnloadsThatOneAndAdvances) {
  transport.Play();
  Run(1.0);
  ASSERT_TRUE(transport.State().started);
  files.Remove(u"C:\\a2.mp3");
  player.SetSong(u"C:\\a2.mp3", {.playable = false});
  store.currentSong = 1;
  transport.Play();
  EXPECT_EQ(player.GetUrl(), u"C:\\a2.mp3");
  EXPECT_TRUE(transport.State().playing);
  EXPECT_TRUE(transport.State().started);
  Run(0.3);
  EXPECT_FALSE(transport.State().playing);
  EXPECT_EQ(store.currentSong, 2);
}

TEST_F(TransportTest, ADiskThatHangsDoesNotHoldPlayUpNorChangeTheStatus) {
  files.hangs = true;
  Song(0).status = TCSongStatus::NotFound;
  transport.Play();
  EXPECT_THAT(player.Calls(), ElementsAre("LoadUrl C:\\a1.mp3", "Play"));
  EXPECT_TRUE(transport.State().playing);
  EXPECT_EQ(Song(0).status, TCSongStatus::NotFound);
  EXPECT_THAT(messages.lines, IsEmpty());
  Run(1.0);
  EXPECT_EQ(Song(0).status, TCSongStatus::NotFound);
  EXPECT_THAT(display.calls, Not(Contains("Row 0")));
}

TEST_F(TransportTest, WhatAHangingDiskSaysInTheEndIsTakenOver) {
  files.hangs = true;
  Song(0).status = TCSongStatus::NotFound;
  transport.Play();
  Run(0.3);
  files.Wake();
  Run(0.3);
  EXPECT_EQ(Song(0).status, TCSongStatus::Found);
  EXPECT_THAT(display.calls, Contains("Row 0"));
  EXPECT_TRUE(transport.State().playing);
}

TEST_F(TransportTest, ASongThatTurnsOutToBeMissingIsReportedAndWasNeverStarted) {
  files.Remove(u"C:\\a1.mp3");
  player.SetSong(u"C:\\a1.mp3", {.opensAfter = 100.0});
  files.hangs = true;
  transport.Play();
  Run(0.3);
  files.Wake();
  Run(0.3);
  EXPECT_THAT(messages.lines, ElementsAre(u"Unable to play song as unable to find file: C:\\a1.mp3"));
  EXPECT_EQ(Song(0).status, TCSongStatus::NotFound);
  EXPECT_FALSE(transport.State().playing);
  EXPECT_FALSE(transport.State().refreshSongTime);
}

TEST_F(TransportTest, ALateAnswerIsNotTakenForAnotherSongs) {
  files.Remove(u"C:\\a1.mp3");
  files.hangs = true;
  transport.Play();
  store.currentGroup = 1;  // another song has the first row
  files.Wake();
  Run(0.3);
  EXPECT_EQ(store.groups[1].playlists[0].items[0].status, TCSongStatus::Pending);
  EXPECT_THAT(display.calls, Not(Contains("Row 0")));
  EXPECT_THAT(messages.lines, ElementsAre(u"Unable to play song as unable to find file: C:\\a1.mp3"));
}

TEST_F(TransportTest, ALateAnswerFindsItsSongWhereAnEditPutIt) {
  files.hangs = true;
  transport.Play();
  ASSERT_TRUE(MoveSong(store, {0, 0, 0}, {0, 0, 2}));
  files.Wake();
  Run(0.3);
  EXPECT_EQ(Song(2).status, TCSongStatus::Found);
  EXPECT_THAT(display.calls, Contains("Row 2"));
  EXPECT_THAT(display.calls, Not(Contains("Row 0")));
}

TEST_F(TransportTest, OfTwoEntriesOfOneFileTheLateAnswerIsForTheOneThatWasPlayed) {
  Song(0).treeNode = static_cast<TCTreeNode>(1);
  Song(1) = Song(0);
  Song(1).treeNode = static_cast<TCTreeNode>(2);
  store.currentSong = 1;
  files.hangs = true;
  transport.Play();
  files.Wake();
  Run(0.3);
  EXPECT_EQ(Song(0).status, TCSongStatus::Pending);
  EXPECT_EQ(Song(1).status, TCSongStatus::Found);
}

TEST_F(TransportTest, ALateAnswerAboutASongThatWasLeftChangesNothing) {
  files.Remove(u"C:\\a1.mp3");
  files.hangs = true;
  transport.Play();
  files.hangs = false;
  store.currentSong = 1;
  transport.Play();
  files.Wake();
  Run(0.3);
  EXPECT_TRUE(transport.State().playing);
  EXPECT_THAT(messages.lines, IsEmpty());
}

TEST_F(TransportTest, ALateAnswerDoesNotReachTheNextDocument) {
  files.Remove(u"C:\\a1.mp3");
  files.hangs = true;
  transport.Play();
  transport.ForgetSong();
  files.Wake();
  Run(0.3);
  EXPECT_THAT(messages.lines, IsEmpty());
}

TEST_F(TransportTest, OnlyPlayAsksTheDisk) {
  transport.Play();
  EXPECT_THAT(files.existenceAsked, ElementsAre(u"C:\\a1.mp3"));
  files.ForgetRequests();
  Run(12.0);  // to the end of the song
  transport.PauseContinue();
  transport.Stop();
  transport.NextSong();
  transport.PriorSong();
  transport.NextPlaylist();
  transport.PriorPlaylist();
  transport.SelectSong(1, TCSelect::Silently);
  transport.StartTimeRun(TCTimeScope::AllSongs);
  Run(6.0);
  ASSERT_FALSE(transport.TimeRun().Pending());
  EXPECT_THAT(files.existenceAsked, IsEmpty());
  EXPECT_THAT(files.reads, IsEmpty());
}

TEST_F(TransportTest, PlayWhenNoSongIsCurrentStartsTheSetFromItsTop) {
  store.currentPlaylist = 1;
  store.currentSong = 2;  // of the longer playlist before
  transport.Play();
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_THAT(display.calls, Contains("Highlight"));
  EXPECT_THAT(player.Calls(), ElementsAre("LoadUrl C:\\b1.mp3", "Play"));
  EXPECT_TRUE(transport.State().playing);
}

TEST_F(TransportTest, PlayWithoutAnySongPlaysWritesAndReportsNothing) {
  store.ClearSetLists();
  transport.Play();
  EXPECT_THAT(player.Calls(), IsEmpty());
  EXPECT_THAT(messages.lines, IsEmpty());
  EXPECT_EQ(messages.clears, 0);
  EXPECT_FALSE(transport.State().playing);
}

TEST_F(TransportTest, ARefusedPlayLeavesTheFlagsAsIfPlayingAndTheMessagesStanding) {
  messages.Append(u"old");
  player.AcceptCommands(false);
  transport.Play();
  EXPECT_TRUE(transport.State().playing);
  EXPECT_THAT(messages.lines, ElementsAre(u"old"));
}

TEST_F(TransportTest, StopTakesTheSongsTimeAndLeavesPausedAndStarted) {
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

TEST_F(TransportTest, StopNeverAdvances) {
  transport.Play();
  Run(1.0);
  transport.Stop();
  Run(2.0);
  EXPECT_EQ(store.currentSong, 0);
}

TEST_F(TransportTest, AfterPlayAndAfterStopTheCurrentLyricLineIsDrawnAgain) {
  TCLyricSheet sheet;
  sheet.Add({u"one", 0, kEndOfLyrics, 0});
  Song(0).lyrics = TCSongLyrics(sheet);
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

TEST_F(TransportTest, ADurationThatFailsIsStoredAsNothing) {
  Song(0).time = u"03:25";
  transport.RefreshCurrentSongTime();  // nothing is loaded
  EXPECT_EQ(Song(0).time, u"00:00");
  EXPECT_THAT(display.calls, Contains("Time 0 00:00"));
}

TEST_F(TransportTest, ASongThatCannotBePlayedTakesNoTimeAndIsAskedForNone) {
  player.SetSong(u"C:\\a1.mp3", {.playable = false});
  Song(0).time = u"03:25";
  transport.Play();
  Run(0.6);
  EXPECT_EQ(Song(0).time, u"00:00");
  EXPECT_FALSE(transport.State().refreshSongTime);
}

TEST_F(TransportTest, ATimeWithoutARowToStandInIsAskedForUntilThereIsOne) {
  transport.Play();
  store.currentSong = -1;
  Run(0.6);
  EXPECT_TRUE(transport.State().refreshSongTime);
  store.currentSong = 1;
  Run(0.3);
  EXPECT_FALSE(transport.State().refreshSongTime);
  EXPECT_EQ(Song(1).time, u"00:10");
}

TEST_F(TransportTest, AChangedSongTimeMovesTheTotal) {
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

TEST_F(TransportTest, ASongTimeThatIsNotKnownYetIsAskedForAgain) {
  player.SetSong(u"C:\\a1.mp3", {.length = 10.4, .opensAfter = 1.0});
  Song(0).time = u"03:25";
  transport.Play();
  Run(0.6);
  EXPECT_EQ(Song(0).time, u"03:25");
  EXPECT_TRUE(transport.State().refreshSongTime);
  Run(0.9);
  EXPECT_EQ(Song(0).time, u"00:10");
}

TEST_F(TransportTest, PauseHoldsTheSongAndContinueGoesOn) {
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

TEST_F(TransportTest, TheFirstPauseContinueAfterStoppingAPausedSongStartsItAgain) {
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

TEST_F(TransportTest, ASongContinuedJustBeforeItsEndIsSeenToEnd) {
  transport.Play();
  Run(1.0);
  transport.PauseContinue();
  player.SetPosition(10.3);
  transport.PauseContinue();
  Run(0.3);
  EXPECT_FALSE(transport.State().playing);
  EXPECT_EQ(store.currentSong, 1);
}

TEST_F(TransportTest, AnEndedSongMovesTheHighlightAndPlaysNothingByDefault) {
  transport.Play();
  Run(11.0);
  EXPECT_EQ(store.currentSong, 1);
  EXPECT_FALSE(transport.State().playing);
  EXPECT_FALSE(transport.State().started);
  EXPECT_EQ(player.GetUrl(), u"C:\\a1.mp3");
  EXPECT_THAT(display.calls, Contains("Highlight"));
}

TEST_F(TransportTest, WithAutoPlaySongsFollowEachOtherWithoutTheLatency) {
  settings.autoPlayPlayList = true;
  store.songLatencySeconds = 600;
  transport.Play();
  for (player.Advance(0.3); player.Snapshot().phase != TCPlayerPhase::Stopped; player.Advance(0.3)) {
    transport.OnPlayTimerTick();
  }
  EXPECT_EQ(player.GetUrl(), u"C:\\a1.mp3");
  transport.OnPlayTimerTick();  // the very poll that sees the end
  EXPECT_EQ(player.GetUrl(), u"C:\\a2.mp3");
  EXPECT_TRUE(transport.State().playing);
}

TEST_F(TransportTest, WithoutAutoAdvanceTheTransportRestsOnTheEndedSong) {
  settings.autoSongAdvance = false;
  settings.autoPlayPlayList = true;
  transport.Play();
  Run(12.0);
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_FALSE(transport.State().playing);
}

TEST_F(TransportTest, AtTheLastSongTheTransportRests) {
  settings.autoPlayPlayList = true;
  store.currentSong = 2;
  transport.Play();
  Run(12.0);
  EXPECT_EQ(store.currentSong, 2);
  EXPECT_EQ(store.currentPlaylist, 0);
  EXPECT_FALSE(transport.State().playing);
}

TEST_F(TransportTest, RecyclingGoesThroughAllPlaylistsAndStartsAgain) {
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

TEST_F(TransportTest, RecyclingFromTheMiddleOfAPlaylistStaysInIt) {
  settings.autoRecycle = true;
  transport.Play();
  Run(11.0);
  EXPECT_EQ(store.currentPlaylist, 0);
  EXPECT_EQ(store.currentSong, 1);
}

TEST_F(TransportTest, RecyclingWithoutAutoPlayShowsTheNextPlaylistAndPlaysNothing) {
  settings.autoRecycle = true;
  store.currentSong = 2;
  transport.Play();
  Run(11.4);
  EXPECT_EQ(store.CurrentPosition(), (TCPlaylistPosition{0, 1}));
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_EQ(display.calls.back(), "ShowPlaylist 0 1");
  EXPECT_FALSE(transport.State().playing);
}

TEST_F(TransportTest, RecyclingRestsAtAPlaylistWithoutSongs) {
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

TEST_F(TransportTest, ASongThatHasNotBegunIsNotTakenForEnded) {
  player.SetSong(u"C:\\a1.mp3", {.length = 10.4, .soundsAfter = 5.0});
  transport.Play();
  Run(4.0);
  EXPECT_TRUE(transport.State().playing);
  EXPECT_FALSE(transport.State().started);
  EXPECT_EQ(store.currentSong, 0);
}

TEST_F(TransportTest, ASeekBackToTheStartIsNoEnd) {
  transport.Play();
  Run(2.0);
  player.SetPosition(0.0);
  transport.OnPlayTimerTick();
  EXPECT_TRUE(transport.State().playing);
  EXPECT_EQ(store.currentSong, 0);
}

TEST_F(TransportTest, ASongCutOffByALostFileEndsLikeAnother) {
  player.SetSong(u"C:\\a1.mp3", {.length = 10.4, .breaksOffAt = 2.0});
  transport.Play();
  Run(3.0);
  EXPECT_EQ(store.currentSong, 1);
}

TEST_F(TransportTest, ALostSoundDeviceIsNoEnd) {
  transport.Play();
  Run(2.0);
  player.ConnectDevice(false);
  Run(30.0);
  EXPECT_TRUE(transport.State().playing);
  EXPECT_EQ(store.currentSong, 0);
}

TEST_F(TransportTest, SteppingNeverWrapsAndNeverPlays) {
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

TEST_F(TransportTest, SteppingWithACurrentGroupOrPlaylistOutOfRangeDoesNothing) {
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

TEST_F(TransportTest, PlaylistStepsShowThePlaylistAndFocusIt) {
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

TEST_F(TransportTest, WithoutGroupsAPlaylistStepOnlyTakesTheFocus) {
  store.ClearSetLists();
  EXPECT_FALSE(transport.NextPlaylist());
  transport.PriorPlaylist();
  EXPECT_THAT(display.calls, ElementsAre("Focus", "Focus"));
}

TEST_F(TransportTest, ASelectedSongBecomesCurrentAndPlaysAtOnce) {
  store.groups[0].name = u"G";
  transport.SelectSong(1, TCSelect::MayPlay);
  EXPECT_EQ(store.currentSong, 1);
  EXPECT_EQ(store.lastGroupListName, u"G");
  EXPECT_EQ(store.lastSongName, u"a2.mp3");
  EXPECT_THAT(player.Calls(), ElementsAre("LoadUrl C:\\a2.mp3", "Play"));
  EXPECT_THAT(display.calls, ElementsAre("Highlight", "Row 1", "ShowPlaylist 0 0"));
}

TEST_F(TransportTest, ASongIsSelectedSilentlyWhenItMayNotPlayOrTheOptionIsOff) {
  transport.SelectSong(1, TCSelect::Silently);
  settings.immediatePlay = false;
  transport.SelectSong(2, TCSelect::MayPlay);
  EXPECT_EQ(store.currentSong, 2);
  EXPECT_THAT(player.Calls(), IsEmpty());
}

TEST_F(TransportTest, SelectingWhatIsNoSongDoesNothing) {
  transport.SelectSong(-1, TCSelect::MayPlay);
  transport.SelectSong(3, TCSelect::MayPlay);
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_THAT(display.calls, IsEmpty());
}

TEST_F(TransportTest, CancelDropsPendingTimesAndTouchesNoSound) {
  transport.Play();
  player.ForgetCalls();
  transport.CancelPending();
  EXPECT_FALSE(transport.State().refreshSongTime);
  EXPECT_FALSE(transport.TimeRun().Pending());
  EXPECT_TRUE(transport.State().playing);
  EXPECT_THAT(player.Calls(), IsEmpty());
}

TEST_F(TransportTest, AfterTheSetListsWereClearedTheOldSongsEndStartsNothing) {
  settings.autoPlayPlayList = true;
  transport.Play();
  Run(2.0);
  transport.ForgetSong();
  player.ForgetCalls();
  Run(12.0);
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_THAT(player.Calls(), IsEmpty());
}

TEST_F(TransportTest, AfterTheSetListsWereClearedTheOldSongsTimeGoesIntoNoRow) {
  player.SetSong(u"C:\\a1.mp3", {.length = 10.4, .opensAfter = 1.0});
  transport.Play();
  transport.ForgetSong();
  Song(0).time = u"03:25";  // the next document's
  Run(2.0);
  EXPECT_EQ(Song(0).time, u"03:25");
}

TEST_F(TransportTest, TheSameKeyPressedTwiceStartsTheSongAnew) {
  transport.Play();
  Run(4.0);
  transport.Play();
  EXPECT_FALSE(transport.State().started);
  Run(0.6);
  EXPECT_LT(player.GetPosition().value_or(9.0), 1.0);
  EXPECT_EQ(store.currentSong, 0);
}

TEST_F(TransportTest, WithoutControlsAPlayingSongIsLeftAlone) {
  player.ShowControls(false);
  transport.Play();
  Run(2.0);
  EXPECT_TRUE(transport.State().playing);
  EXPECT_FALSE(transport.State().started);
}

TEST_F(TransportTest, TheRepeatRangeLoopsThePassageWhileAutoPlayIsOn) {
  settings.autoPlayPlayList = true;
  repeatFields.begin = 2;
  repeatFields.end = 4;
  transport.Play();
  Run(4.5);
  EXPECT_THAT(player.Calls(), Contains("SetPosition 2"));
  Run(60.0);
  EXPECT_EQ(store.currentSong, 0);
  repeatFields.end = 0;  // read afresh on every poll
  Run(11.4);
  EXPECT_EQ(store.currentSong, 1);
}

TEST_F(TransportTest, ARangeFromTheStartOfTheSongIsNotTakenForItsEnd) {
  settings.autoPlayPlayList = true;
  repeatFields.end = 4;
  transport.Play();
  Run(30.0);
  EXPECT_GE(std::ranges::count(player.Calls(), "SetPosition 0"), 5);
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_TRUE(transport.State().playing);
  EXPECT_TRUE(transport.State().started);
}

TEST_F(TransportTest, ARangeThatDoesNotBeginBeforeItsEndHoldsTheSongAtItsBegin) {
  settings.autoPlayPlayList = true;
  for (const std::int32_t begin : {4, 6}) {
    repeatFields.begin = begin;
    repeatFields.end = 4;
    transport.Play();
    Run(5.0);
    player.ForgetCalls();
    for (int poll = 0; poll < 20; ++poll) {
      Run(0.3);
      EXPECT_GE(player.GetPosition().value_or(0.0), begin);
      EXPECT_LE(player.GetPosition().value_or(9.0), begin + 0.7);
    }
    EXPECT_GE(player.Calls().size(), 10u) << "it goes back again and again";
    EXPECT_EQ(store.currentSong, 0);
  }
}

TEST_F(TransportTest, ARangeThatBeginsBehindTheSongEndsItAtTheEndOfTheRange) {
  settings.autoPlayPlayList = true;
  repeatFields.begin = 60;
  repeatFields.end = 4;
  transport.Play();
  Run(5.2);
  EXPECT_EQ(player.GetUrl(), u"C:\\a2.mp3");
}

TEST_F(TransportTest, WithoutAutoPlayTheSongRunsPastTheRepeatRange) {
  repeatFields.begin = 2;
  repeatFields.end = 4;
  transport.Play();
  Run(11.4);
  EXPECT_EQ(store.currentSong, 1);
}

TEST_F(TransportTest, LyricsFollowThePlayingSong) {
  TCLyricSheet sheet;
  sheet.Add({u"one", 1000, 3000, 0});
  sheet.Add({u"two", 3000, kEndOfLyrics, 0});
  Song(0).lyrics = TCSongLyrics(sheet);
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

TEST_F(TransportTest, APollMeasuresBeforeItShowsLyrics) {
  TCFakePlayer silent;
  silent.SetDefaultSong({.length = 65.0, .opensAfter = 0.0});
  TCPlayerLengthProbe probe(silent);
  TCTransport measuring({record, files, display, messages, &player, &probe});
  TCLyricSheet sheet;
  sheet.Add({u"one", 0, kEndOfLyrics, 0});
  Song(0).lyrics = TCSongLyrics(sheet);
  measuring.Play();
  measuring.StartTimeRun(TCTimeScope::CurrentPlaylist);
  measuring.OnPlayTimerTick();
  EXPECT_EQ(measuring.TimeRun().Measured(), 1u);
  EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tone")) << "its words take the place of the time";
}

TEST_F(TransportTest, ATimeRunWithThePlayerItselfIsNeverTakenForTheEndOfASong) {
  settings.autoPlayPlayList = true;
  transport.Play();
  Run(2.0);
  transport.StartTimeRun(TCTimeScope::CurrentPlaylist);
  EXPECT_FALSE(transport.State().playing);
  Run(6.0);
  EXPECT_FALSE(transport.TimeRun().Pending());
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_EQ(Song(2).time, u"00:10");
  EXPECT_EQ(display.calls.back(), "ShowPlaylist 0 0");
}

TEST_F(TransportTest, ATimeRunWithNothingToMeasureLeavesTheSongAlone) {
  transport.Play();
  Run(2.0);
  store.currentPlaylist = 9;
  transport.StartTimeRun(TCTimeScope::CurrentPlaylist);
  EXPECT_FALSE(transport.TimeRun().Pending());
  EXPECT_TRUE(transport.State().playing);
  store.currentPlaylist = 0;
  Run(9.0);
  EXPECT_EQ(store.currentSong, 1) << "its end is noticed";
}

TEST_F(TransportTest, ATimeRunEndedByOneWithNothingToMeasureIsNoEndOfASong) {
  transport.StartTimeRun(TCTimeScope::CurrentPlaylist);
  Run(0.3);
  transport.Play();
  store.currentPlaylist = 9;
  transport.StartTimeRun(TCTimeScope::CurrentPlaylist);  // stops the player with the run
  EXPECT_FALSE(transport.State().playing);
}

TEST_F(TransportTest, CancelEndsATimeRun) {
  transport.StartTimeRun(TCTimeScope::AllSongs);
  Run(0.6);
  transport.CancelPending();
  EXPECT_FALSE(transport.TimeRun().Pending());
  EXPECT_EQ(Song(0).time, u"00:00");
}

TEST_F(TransportTest, ThePollSaysWhenATimeRunChangedSomething) {
  transport.StartTimeRun(TCTimeScope::CurrentPlaylist);
  int changes = 0;
  for (int poll = 0; poll < 20; ++poll) {
    player.Advance(0.3);
    if (transport.OnPlayTimerTick()) ++changes;
  }
  EXPECT_EQ(changes, 1);
}

TEST_F(TransportTest, WithoutAPlayerEveryCommandRunsWithoutEffectAndWithoutError) {
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

TEST_F(TransportTest, WithoutAPlayerNoSongLosesItsTime) {
  TCTransport mute({record, files, display, messages});
  Song(0).time = u"03:25";
  mute.RefreshCurrentSongTime();
  mute.Stop();
  EXPECT_EQ(Song(0).time, u"03:25");
  EXPECT_THAT(display.calls, IsEmpty());
}

}  // namespace
}  // namespace brevant
