#include "model/set_list_store.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TCPlayListItem SongOf(std::u16string name, std::u16string time = u"00:00") {
  TCPlayListItem song;
  song.fileName = std::move(name);
  song.time = std::move(time);
  return song;
}

// One group "Sets" with one playlist "P1" of two songs.
TCSetListStore StoreWithTwoSongs() {
  TCSetListStore store;
  TCPlayGroups& group = store.groups.emplace_back();
  group.name = u"Sets";
  TCPlayList& playlist = group.playlists.emplace_back();
  playlist.name = u"P1";
  playlist.items = {SongOf(u"a.mp3", u"03:00"), SongOf(u"b.mp3", u"04:00")};
  playlist.items[1].treeNode = TCTreeNode{7};
  return store;
}

TEST(SetListStore, NamesAreFoundWhateverTheirCase) {
  const TCSetListStore store = StoreWithTwoSongs();
  EXPECT_EQ(store.FindGroupByName(u"SETS"), 0);
  EXPECT_EQ(store.FindGroupByName(u"Other"), -1);
  EXPECT_EQ(TCSetListStore::FindPlaylistByName(store.groups[0], u"p1"), 0);
  EXPECT_EQ(TCSetListStore::FindPlaylistByName(store.groups[0], u"p"), -1);
}

TEST(SetListStore, AnEmptyStoreHoldsNoGroupOfAnyName) {
  EXPECT_EQ(TCSetListStore{}.FindGroupByName(u"Sets"), -1);
  EXPECT_EQ(TCSetListStore{}.FindGroupByName(u""), -1);
}

TEST(SetListStore, TheFirstOfTwoEqualNamesIsFound) {
  TCSetListStore store;
  store.groups.resize(3);
  store.groups[1].name = u"Twice";
  store.groups[2].name = u"twice";
  EXPECT_EQ(store.FindGroupByName(u"TWICE"), 1);
}

TEST(SetListStore, IndicesOutsideTheirListsAreInvalidAndNeverFail) {
  TCSetListStore store = StoreWithTwoSongs();
  EXPECT_TRUE(store.IsValidPlaylistIndex(0));
  EXPECT_FALSE(store.IsValidPlaylistIndex(1));
  EXPECT_FALSE(store.IsValidPlaylistIndex(-1));
  EXPECT_TRUE(store.IsValidSongIndex(1));
  EXPECT_FALSE(store.IsValidSongIndex(2));
  EXPECT_FALSE(store.IsValidSongIndex(-1));
  for (const std::int32_t wrong : {-1, 1, 2147483647, -2147483647 - 1}) {
    store.currentGroup = wrong;
    EXPECT_FALSE(store.IsValidPlaylistIndex(0));
    EXPECT_FALSE(store.IsValidSongIndex(0));
    EXPECT_EQ(store.SongInCurrentPlaylist(0), nullptr);
    EXPECT_EQ(store.CurrentPlaylist(), nullptr);
    EXPECT_EQ(store.GetSongTreeNode(0), TCTreeNode::None);
    store.currentGroup = 0;
    store.currentPlaylist = wrong;
    EXPECT_FALSE(store.IsValidSongIndex(0));
    store.currentPlaylist = 0;
  }
}

TEST(SetListStore, ASongsTreeNodeIsGivenByItsIndex) {
  const TCSetListStore store = StoreWithTwoSongs();
  EXPECT_EQ(store.GetSongTreeNode(1), TCTreeNode{7});
  EXPECT_EQ(store.GetSongTreeNode(2), TCTreeNode::None);
}

TEST(SetListStore, AfterAClearThereIsNoSongAndThePositionIsTheStart) {
  TCSetListStore store = StoreWithTwoSongs();
  store.currentSong = 1;
  store.documentFileName = u"show.brv";
  store.ClearSetLists();
  EXPECT_TRUE(store.groups.empty());
  EXPECT_EQ(store.currentGroup, 0);
  EXPECT_EQ(store.currentPlaylist, 0);
  EXPECT_EQ(store.currentSong, 0);
  EXPECT_FALSE(store.IsValidSongIndex(0));
  EXPECT_EQ(store.GetSongTreeNode(0), TCTreeNode::None);
  EXPECT_EQ(store.documentFileName, u"show.brv");
}

TEST(SetListStore, AGroupTakesItsTypeFromTheDocumentAndAPlaylistFromItsGroup) {
  TCSetListStore store;
  store.documentFileName = u"show.brv";
  store.groups.resize(1);
  store.SetGroupFileInfo(0, u"D:\\Shows\\Summer.brvgl");
  EXPECT_EQ(store.groups[0].name, u"Summer.brvgl");
  EXPECT_EQ(store.groups[0].folder.str(), u"D:\\Shows\\");
  EXPECT_EQ(store.groups[0].extension, u"brv");

  store.groups[0].playlists.resize(1);
  TCSetListStore::SetPlaylistFileInfo(store.groups[0], 0, u"D:\\Shows\\Set 1.txt");
  EXPECT_EQ(store.groups[0].playlists[0].name, u"Set 1.txt");
  EXPECT_EQ(store.groups[0].playlists[0].folder.str(), u"D:\\Shows\\");
  EXPECT_EQ(store.groups[0].playlists[0].extension, u"brvgl");
}

TEST(SetListStore, FileInfoForAnIndexOutsideDoesNothing) {
  TCSetListStore store = StoreWithTwoSongs();
  store.SetGroupFileInfo(1, u"D:\\x.brvgl");
  store.SetGroupFileInfo(-1, u"D:\\x.brvgl");
  TCSetListStore::SetPlaylistFileInfo(store.groups[0], 1, u"D:\\x.brvpl");
  TCSetListStore::SetPlaylistFileInfo(store.groups[0], -1, u"D:\\x.brvpl");
  EXPECT_EQ(store.groups[0].name, u"Sets");
  EXPECT_EQ(store.groups[0].playlists[0].name, u"P1");
}

TEST(SetListStore, ATotalCountsTheLatencyOnlyBetweenSongs) {
  TCSetListStore store;
  TCPlayList playlist;
  playlist.items = {SongOf(u"a", u"03:00"), SongOf(u"b", u"04:00"), SongOf(u"c", u"00:30")};
  store.RecalcPlaylistTotalTime(playlist);
  EXPECT_EQ(playlist.totalTime, u"08:00");
  playlist.items.resize(1);
  store.RecalcPlaylistTotalTime(playlist);
  EXPECT_EQ(playlist.totalTime, u"03:00");
}

TEST(SetListStore, ALatencyOfZeroMakesTheTotalThePlainSum) {
  TCSetListStore store;
  store.songLatencySeconds = 0;
  TCPlayList playlist;
  playlist.items = {SongOf(u"a", u"03:00"), SongOf(u"b", u"04:00")};
  store.RecalcPlaylistTotalTime(playlist);
  EXPECT_EQ(playlist.totalTime, u"07:00");
}

TEST(SetListStore, APlaylistWithoutSongsKeepsItsTotal) {
  TCPlayList playlist;
  playlist.totalTime = u"12:34";
  TCSetListStore{}.RecalcPlaylistTotalTime(playlist);
  EXPECT_EQ(playlist.totalTime, u"12:34");
}

TEST(SetListStore, ANegativeTotalIsShownAsNothing) {
  TCSetListStore store;
  store.songLatencySeconds = -600;
  TCPlayList playlist;
  playlist.items = {SongOf(u"a", u"03:00"), SongOf(u"b", u"04:00")};
  store.RecalcPlaylistTotalTime(playlist);
  EXPECT_EQ(playlist.totalTime, u"00:00");
}

TEST(SetListStore, ASumPast32BitsWraps) {
  TCSetListStore store;
  store.songLatencySeconds = 2147483647;
  TCPlayList playlist;
  playlist.items = {SongOf(u"a", u"00:01"), SongOf(u"b", u"00:01"), SongOf(u"c", u"00:02")};
  store.RecalcPlaylistTotalTime(playlist);
  EXPECT_EQ(playlist.totalTime, u"00:02");  // 2 * 2147483647 + 4 is 2 modulo 2^32
}

TEST(SetListStore, LastShownNamesAreThoseOfTheCurrentPosition) {
  TCSetListStore store = StoreWithTwoSongs();
  store.currentSong = 1;
  store.RecordLastShownNames();
  EXPECT_EQ(store.lastGroupListName, u"Sets");
  EXPECT_EQ(store.lastPlayListName, u"P1");
  EXPECT_EQ(store.lastSongName, u"b.mp3");
  store.currentSong = 9;
  store.currentPlaylist = 9;
  store.RecordLastShownNames();
  EXPECT_EQ(store.lastPlayListName, u"P1");
  EXPECT_EQ(store.lastSongName, u"b.mp3");
}

TEST(SetListStore, TheListOfNamesIsASnapshot) {
  TCSetListStore store = StoreWithTwoSongs();
  std::vector<TCGroupNamesLists> names(5);
  store.BuildGroupNamesLists(names);
  store.groups[0].name = u"Renamed";
  ASSERT_EQ(names.size(), 1u);
  EXPECT_EQ(names[0].groupName, u"Sets");
  EXPECT_EQ(names[0].playlistNames, std::vector<std::u16string>{u"P1"});
}

TEST(SetListStore, ASongIsFoundByExactlyItsPath) {
  TCSetListStore store = StoreWithTwoSongs();
  std::vector<TCPlayListItem>& songs = store.groups[0].playlists[0].items;
  songs[0].SetPath(u"C:\\Music\\a.mp3");
  songs[1].SetPath(u"C:\\Live\\a.mp3");
  EXPECT_EQ(store.FindSongByPath(u"C:\\Live\\a.mp3"), &songs[1]);
  EXPECT_EQ(store.FindSongByPath(u"C:\\live\\a.mp3"), nullptr);
  EXPECT_EQ(store.FindSongByPath(u"C:\\Live\\a.mp"), nullptr);
  EXPECT_EQ(store.FindSongByPath(u"a.mp3"), nullptr);
  EXPECT_EQ(store.FindSongByPath(u""), nullptr);
}

TEST(SetListStore, OfSongsWithTheSamePathTheFirstInModelOrderIsFound) {
  TCSetListStore store = StoreWithTwoSongs();
  store.groups.push_back(store.groups[0]);
  TCPlayListItem& first = store.groups[0].playlists[0].items[1];
  EXPECT_EQ(store.FindSongByPath(u"b.mp3"), &first);
}

TEST(SetListStore, TheFirstInModelOrderIsFoundHoweverItsPathIsDivided) {
  TCSetListStore store = StoreWithTwoSongs();
  std::vector<TCPlayListItem>& songs = store.groups[0].playlists[0].items;
  const std::u16string path = u"C:\\Music\\b.mp3";
  songs[1].SetPath(path);
  for (const std::size_t meet : {std::size_t{0}, std::size_t{3}, std::size_t{10}}) {
    songs[0].folder = path.substr(0, meet);
    songs[0].fileName = path.substr(meet);
    EXPECT_EQ(store.FindSongByPath(path), &songs[0]) << meet;
  }
  songs[0].folder = u"C:\\Nusic\\";
  EXPECT_EQ(store.FindSongByPath(path), &songs[1]);
}

TEST(SetListStore, ASongIsFoundWhereverItsFolderAndNameMeet) {
  TCSetListStore store = StoreWithTwoSongs();
  TCPlayListItem& song = store.groups[0].playlists[0].items[1];
  for (const std::size_t meet : {std::size_t{0}, std::size_t{2}, std::size_t{8}, std::size_t{11}}) {
    const std::u16string path = u"C:\\Music\\b.mp3";
    song.folder = path.substr(0, meet);
    song.fileName = path.substr(meet);
    EXPECT_EQ(store.FindSongByPath(path), &song) << meet;
  }
}

}  // namespace
}  // namespace brevant
