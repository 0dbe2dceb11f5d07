// What Play makes of a song's file: one that is not there, and a disk that does not say whether it is.
#include "model/set_list_edit.h"
#include "playback/transport_rig.h"

namespace brevant {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

TEST_F(Transport, PlayOfAMissingFileSaysSoAndChangesNoState) {
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

TEST_F(Transport, AnEntryWithoutAPathIsMissingAndNeverHandedToThePlayer) {
  Song(0).SetPath(u"");
  transport.Play();
  EXPECT_THAT(player.Calls(), IsEmpty());
  EXPECT_EQ(Song(0).status, TCSongStatus::NotFound);
  EXPECT_FALSE(transport.State().playing);
}

TEST_F(Transport, PlayOfAMissingFileWhileAnotherSongSoundsUnloadsThatOneAndAdvances) {
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

TEST_F(Transport, ADiskThatHangsDoesNotHoldPlayUpNorChangeTheStatus) {
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

TEST_F(Transport, WhatAHangingDiskSaysInTheEndIsTakenOver) {
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

TEST_F(Transport, ASongThatTurnsOutToBeMissingIsReportedAndWasNeverStarted) {
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

TEST_F(Transport, ALateAnswerIsNotTakenForAnotherSongs) {
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

TEST_F(Transport, ALateAnswerFindsItsSongWhereAnEditPutIt) {
  files.hangs = true;
  transport.Play();
  ASSERT_TRUE(MoveSong(store, {0, 0, 0}, {0, 0, 2}));
  files.Wake();
  Run(0.3);
  EXPECT_EQ(Song(2).status, TCSongStatus::Found);
  EXPECT_THAT(display.calls, Contains("Row 2"));
  EXPECT_THAT(display.calls, Not(Contains("Row 0")));
}

TEST_F(Transport, OfTwoEntriesOfOneFileTheLateAnswerIsForTheOneThatWasPlayed) {
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

TEST_F(Transport, ALateAnswerAboutASongThatWasLeftChangesNothing) {
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

TEST_F(Transport, ALateAnswerDoesNotReachTheNextDocument) {
  files.Remove(u"C:\\a1.mp3");
  files.hangs = true;
  transport.Play();
  transport.ForgetSong();
  files.Wake();
  Run(0.3);
  EXPECT_THAT(messages.lines, IsEmpty());
}

TEST_F(Transport, OnlyPlayAsksTheDisk) {
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

}  // namespace
}  // namespace brevant
