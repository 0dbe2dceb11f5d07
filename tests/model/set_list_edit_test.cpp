#include "model/set_list_edit.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brevant {
namespace {

using testing::ElementsAre;

// Two groups; "a0" to "a4" are the songs of the first playlist of the first.
class SetListEdit : public testing::Test {
 protected:
  SetListEdit() {
    store.groups.resize(2);
    store.groups[0].name = u"A";
    store.groups[1].name = u"B";
    for (TCPlayGroups& group : store.groups) {
      group.playlists.resize(3);
      for (std::size_t i = 0; i < 3; ++i) {
        group.playlists[i].name = group.name + std::u16string(1, static_cast<char16_t>(u'0' + i));
      }
    }
    Fill(store.groups[0].playlists[0], u'a');
    Fill(store.groups[0].playlists[1], u'b');
  }

  static void Fill(TCPlayList& playlist, char16_t letter) {
    for (char16_t digit = u'0'; digit < u'5'; ++digit) {
      playlist.items.emplace_back().fileName = std::u16string{letter, digit};
    }
  }

  [[nodiscard]] std::vector<std::u16string> Songs(std::int32_t playlist) const {
    std::vector<std::u16string> names;
    for (const TCPlayListItem& song : store.groups[0].playlists[static_cast<std::size_t>(playlist)].items)
      names.push_back(song.fileName);
    return names;
  }
  [[nodiscard]] std::vector<std::u16string> Playlists(std::size_t group) const {
    std::vector<std::u16string> names;
    for (const TCPlayList& playlist : store.groups[group].playlists) names.push_back(playlist.name);
    return names;
  }
  // What the current position names; empty when it names nothing.
  [[nodiscard]] std::u16string CurrentPlaylistName() {
    const TCPlayList* playlist = store.CurrentPlaylist();
    return playlist == nullptr ? std::u16string() : playlist->name;
  }
  [[nodiscard]] std::u16string CurrentSongName() {
    const TCPlayListItem* song = store.SongInCurrentPlaylist(store.currentSong);
    return song == nullptr ? std::u16string() : song->fileName;
  }
  [[nodiscard]] std::u16string ShownName() {
    const TCPlayList* playlist = store.PlaylistAt(store.shown);
    return playlist == nullptr ? std::u16string() : playlist->name;
  }

  TCSetListStore store;
};

TEST_F(SetListEdit, AMovedSongStandsWhereItsTargetStood) {
  ASSERT_TRUE(MoveSong(store, {0, 0, 0}, {0, 0, 2}));
  EXPECT_THAT(Songs(0), ElementsAre(u"a1", u"a2", u"a0", u"a3", u"a4"));
  ASSERT_TRUE(MoveSong(store, {0, 0, 4}, {0, 0, 1}));
  EXPECT_THAT(Songs(0), ElementsAre(u"a1", u"a4", u"a2", u"a0", u"a3"));
}

TEST_F(SetListEdit, ASongMovedOntoItsNeighbourChangesPlacesWithIt) {
  ASSERT_TRUE(MoveSong(store, {0, 0, 1}, {0, 0, 2}));
  EXPECT_THAT(Songs(0), ElementsAre(u"a0", u"a2", u"a1", u"a3", u"a4"));
}

TEST_F(SetListEdit, ASongMovedIntoAnotherPlaylistTakesItsTargetsPlaceThere) {
  ASSERT_TRUE(MoveSong(store, {0, 0, 3}, {0, 1, 1}));
  EXPECT_THAT(Songs(0), ElementsAre(u"a0", u"a1", u"a2", u"a4"));
  EXPECT_THAT(Songs(1), ElementsAre(u"b0", u"a3", u"b1", u"b2", u"b3", u"b4"));
}

TEST_F(SetListEdit, TheCurrentSongStaysTheSameSongWhileOthersMove) {
  for (std::int32_t current = 0; current < 5; ++current) {
    for (std::int32_t from = 0; from < 5; ++from) {
      for (std::int32_t to = 0; to < 5; ++to) {
        TCSetListStore before = store;
        store.currentSong = current;
        const std::u16string song = CurrentSongName();
        ASSERT_TRUE(MoveSong(store, {0, 0, from}, {0, 0, to}));
        EXPECT_EQ(CurrentSongName(), song) << current << ": " << from << " to " << to;
        store = before;
      }
    }
  }
}

TEST_F(SetListEdit, TheCurrentSongStaysWhenSongsComeAndGoInFrontOfIt) {
  store.currentSong = 2;
  ASSERT_TRUE(InsertSong(store, {0, 0, 2}, {}));
  EXPECT_EQ(CurrentSongName(), u"a2");
  ASSERT_TRUE(RemoveSongs(store, {0, 0}, {0, 2, 4}));
  EXPECT_EQ(CurrentSongName(), u"a2");
  ASSERT_TRUE(MoveSong(store, {0, 0, 0}, {0, 1, 0}));
  EXPECT_EQ(CurrentSongName(), u"a2");
  ASSERT_TRUE(MoveSong(store, {0, 1, 4}, {0, 0, 0}));
  EXPECT_EQ(CurrentSongName(), u"a2");
}

TEST_F(SetListEdit, SeveralSongsComeAtOnceAndPushTheCurrentOneAlong) {
  std::vector<TCPlayListItem> songs(2);
  songs[0].fileName = u"x";
  songs[1].fileName = u"y";
  store.currentSong = 2;
  ASSERT_TRUE(InsertSongs(store, {0, 0, 3}, songs));
  EXPECT_EQ(CurrentSongName(), u"a2");
  ASSERT_TRUE(InsertSongs(store, {0, 0, 2}, songs));
  EXPECT_EQ(CurrentSongName(), u"a2");
  EXPECT_THAT(Songs(0), ElementsAre(u"a0", u"a1", u"x", u"y", u"a2", u"x", u"y", u"a3", u"a4"));
  EXPECT_FALSE(InsertSongs(store, {0, 0, 10}, songs));
  EXPECT_FALSE(InsertSongs(store, {0, 9, 0}, songs));
}

TEST_F(SetListEdit, SongsOfOtherPlaylistsLeaveTheCurrentSongAlone) {
  store.currentSong = 2;
  ASSERT_TRUE(InsertSong(store, {0, 1, 0}, {}));
  ASSERT_TRUE(RemoveSong(store, {0, 1, 1}));
  ASSERT_TRUE(MoveSong(store, {0, 1, 0}, {0, 1, 3}));
  EXPECT_EQ(CurrentSongName(), u"a2");
}

TEST_F(SetListEdit, ARemovedSongLeavesItsNumberToTheNext) {
  store.currentSong = 1;
  ASSERT_TRUE(RemoveSong(store, {0, 0, 1}));
  EXPECT_EQ(CurrentSongName(), u"a2");
  ASSERT_TRUE(MoveSong(store, {0, 0, 1}, {0, 1, 0}));  // it leaves the current playlist
  EXPECT_EQ(CurrentSongName(), u"a3");
}

TEST_F(SetListEdit, SeveralSongsGoAtOnceAndMissingOnesArePassedOver) {
  ASSERT_TRUE(RemoveSongs(store, {0, 0}, {-1, 0, 3, 9}));
  EXPECT_THAT(Songs(0), ElementsAre(u"a1", u"a2", u"a4"));
  EXPECT_FALSE(RemoveSongs(store, {0, 0}, {3, 4}));
  EXPECT_FALSE(RemoveSongs(store, {0, 0}, {}));
  EXPECT_FALSE(RemoveSongs(store, {0, 9}, {0}));
  EXPECT_THAT(Songs(0), ElementsAre(u"a1", u"a2", u"a4"));
}

TEST_F(SetListEdit, ACurrentSongThatIsNoneFollowsNothing) {
  store.currentSong = 7;
  ASSERT_TRUE(InsertSong(store, {0, 0, 0}, {}));
  EXPECT_EQ(store.currentSong, 7);
  store.currentSong = -1;
  ASSERT_TRUE(InsertSong(store, {0, 0, 0}, {}));
  EXPECT_EQ(store.currentSong, -1);
}

TEST_F(SetListEdit, AMovedPlaylistStaysCurrentAndShownInItsNewGroup) {
  store.currentPlaylist = 1;
  store.shown = {0, 1};
  ASSERT_TRUE(MovePlaylist(store, {0, 1}, {1, 2}));
  EXPECT_THAT(Playlists(0), ElementsAre(u"A0", u"A2"));
  EXPECT_THAT(Playlists(1), ElementsAre(u"B0", u"B1", u"A1", u"B2"));
  EXPECT_EQ(CurrentPlaylistName(), u"A1");
  EXPECT_EQ(ShownName(), u"A1");
}

TEST_F(SetListEdit, TheCurrentPlaylistStaysTheSameWhileOthersMove) {
  for (const TCPlaylistPosition from : {TCPlaylistPosition{0, 0}, {0, 2}, {1, 0}, {1, 2}}) {
    for (const TCPlaylistPosition to : {TCPlaylistPosition{0, 0}, {0, 1}, {0, 2}, {1, 1}}) {
      TCSetListStore before = store;
      store.currentPlaylist = 1;
      store.shown = {1, 1};
      ASSERT_TRUE(MovePlaylist(store, from, to));
      EXPECT_EQ(CurrentPlaylistName(), u"A1") << from.group << from.playlist << to.group << to.playlist;
      EXPECT_EQ(ShownName(), u"B1") << from.group << from.playlist << to.group << to.playlist;
      store = before;
    }
  }
}

TEST_F(SetListEdit, PlaylistsThatComeAndGoInFrontTakeThePositionAlong) {
  store.currentPlaylist = 1;
  store.shown = {0, 1};
  ASSERT_TRUE(InsertPlaylist(store, {0, 0}, {}));
  EXPECT_EQ(CurrentPlaylistName(), u"A1");
  EXPECT_EQ(ShownName(), u"A1");
  ASSERT_TRUE(RemovePlaylist(store, {0, 0}));
  EXPECT_EQ(CurrentPlaylistName(), u"A1");
  EXPECT_EQ(ShownName(), u"A1");
}

TEST_F(SetListEdit, ThePlaylistThatIsMeasuredIsFollowedToo) {
  store.measured = {0, 1};
  ASSERT_TRUE(MovePlaylist(store, {0, 1}, {1, 0}));
  ASSERT_TRUE(InsertGroup(store, 0, {}));
  EXPECT_EQ(store.PlaylistAt(store.measured)->name, u"A1");
  ASSERT_TRUE(RemoveGroup(store, 2));
  EXPECT_EQ(store.measured, TCPlaylistPosition());
}

TEST_F(SetListEdit, ARemovedPlaylistLeavesItsNumberAndIsShownNoMore) {
  store.currentPlaylist = 1;
  store.shown = {0, 1};
  ASSERT_TRUE(RemovePlaylist(store, {0, 1}));
  EXPECT_EQ(CurrentPlaylistName(), u"A2");
  EXPECT_EQ(store.shown, TCPlaylistPosition());
}

TEST_F(SetListEdit, GroupsThatComeAndGoInFrontTakeThePositionAlong) {
  store.currentGroup = 1;
  store.shown = {1, 0};
  ASSERT_TRUE(InsertGroup(store, 0, {}));
  EXPECT_EQ(CurrentPlaylistName(), u"B0");
  EXPECT_EQ(ShownName(), u"B0");
  ASSERT_TRUE(RemoveGroup(store, 0));
  ASSERT_TRUE(RemoveGroup(store, 0));
  EXPECT_EQ(CurrentPlaylistName(), u"B0");
  EXPECT_EQ(ShownName(), u"B0");
  ASSERT_TRUE(RemoveGroup(store, 0));
  EXPECT_EQ(store.currentGroup, 0);
  EXPECT_EQ(store.shown, TCPlaylistPosition());
}

TEST_F(SetListEdit, AMovedGroupTakesTheCurrentGroupAlongOnlyWhenItIsTheCurrentOne) {
  store.shown = {0, 0};
  ASSERT_TRUE(MoveGroup(store, 0, 1));
  EXPECT_EQ(store.currentGroup, 1);
  ASSERT_TRUE(MoveGroup(store, 0, 1));  // past the current group, whose number stays and names the neighbour
  EXPECT_EQ(store.currentGroup, 1);
  EXPECT_EQ(CurrentPlaylistName(), u"B0");
  EXPECT_EQ(ShownName(), u"A0");
}

TEST_F(SetListEdit, WrongPlacesChangeNothing) {
  EXPECT_FALSE(InsertGroup(store, 3, {}));
  EXPECT_FALSE(InsertGroup(store, -1, {}));
  EXPECT_FALSE(InsertPlaylist(store, {0, 4}, {}));
  EXPECT_FALSE(InsertPlaylist(store, {2, 0}, {}));
  EXPECT_FALSE(InsertSong(store, {0, 0, 6}, {}));
  EXPECT_FALSE(InsertSong(store, {0, 3, 0}, {}));
  EXPECT_FALSE(RemoveGroup(store, 2));
  EXPECT_FALSE(RemovePlaylist(store, {0, 3}));
  EXPECT_FALSE(RemoveSong(store, {0, 0, 5}));
  EXPECT_FALSE(MoveGroup(store, 0, 2));
  EXPECT_FALSE(MoveGroup(store, -1, 0));
  EXPECT_FALSE(MovePlaylist(store, {0, 0}, {1, 3}));
  EXPECT_FALSE(MoveSong(store, {0, 0, 0}, {0, 2, 0}));  // an empty playlist has no song to move onto
  EXPECT_FALSE(MoveSong(store, {0, 0, 5}, {0, 0, 0}));
  EXPECT_THAT(Playlists(0), ElementsAre(u"A0", u"A1", u"A2"));
  EXPECT_THAT(Songs(0), ElementsAre(u"a0", u"a1", u"a2", u"a3", u"a4"));
}

TEST_F(SetListEdit, AnEmptyStoreTakesItsFirstEntries) {
  TCSetListStore empty;
  ASSERT_TRUE(InsertGroup(empty, 0, {}));
  ASSERT_TRUE(InsertPlaylist(empty, {0, 0}, {}));
  ASSERT_TRUE(InsertSong(empty, {0, 0, 0}, {}));
  EXPECT_TRUE(empty.IsValidSongIndex(empty.currentSong));
}

TEST(SetListRepair, AFolderForAllSongsLeadsEachOneThere) {
  TCPlayList playlist;
  playlist.items.resize(2);
  playlist.items[0].SetPath(u"C:\\a.mp3");
  playlist.items[1].SetPath(u"C:\\b.mp3");
  SetFolderForAllSongs(playlist, u"E:\\Backup\\");
  EXPECT_EQ(playlist.items[0].FullPath(), u"E:\\Backup\\a.mp3");
  EXPECT_EQ(playlist.items[1].FullPath(), u"E:\\Backup\\b.mp3");
}

TEST(SetListRepair, AnExtensionForAllSongsReplacesTheirTypes) {
  TCPlayList playlist;
  playlist.items.resize(2);
  playlist.items[0].SetPath(u"C:\\a.mp3");
  playlist.items[1].SetPath(u"C:\\b");
  SetExtensionForAllSongs(playlist, u"x.wav");
  EXPECT_EQ(playlist.items[0].fileName, u"a.wav");
  EXPECT_EQ(playlist.items[0].extension, u"wav");
  EXPECT_EQ(playlist.items[1].fileName, u"b.wav");
}

}  // namespace
}  // namespace brevant
