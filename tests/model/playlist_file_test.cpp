#include "model/playlist_file.h"

#include <gtest/gtest.h>

#include "support/memory_files.h"

namespace brevant {
namespace {

constexpr std::u16string_view kPath = u"D:\\Shows\\Set 1.brvpl";

class PlaylistFile : public testing::Test {
 protected:
  TCMemoryFiles files;
  TCSetListStore store;
  TCPlayList playlist;

  bool Load(std::u16string_view text) {
    files.PutUtf16(kPath, text);
    return LoadPlaylistFile(files, store, playlist, kPath);
  }
};

TEST_F(PlaylistFile, AMarkAtTheStartIsNoPartOfTheFirstName) {
  ASSERT_TRUE(Load(u"\uFEFFa.mp3*03:00\r\nb.mp3*04:00\r\n"));
  ASSERT_EQ(playlist.items.size(), 2u);
  EXPECT_EQ(playlist.items[0].fileName, u"a.mp3");
  EXPECT_EQ(playlist.items[0].time, u"03:00");
  EXPECT_EQ(playlist.items[1].fileName, u"b.mp3");
  EXPECT_EQ(playlist.totalTime, u"07:15");
}

TEST_F(PlaylistFile, AnUnendedLastLineIsDroppedUnlessItIsTheOnlyOne) {
  ASSERT_TRUE(Load(u"a.mp3*03:00\r\nb.mp3*04:00"));
  EXPECT_EQ(playlist.items.size(), 1u);
  ASSERT_TRUE(Load(u"a.mp3*03:00"));
  ASSERT_EQ(playlist.items.size(), 1u);
  EXPECT_EQ(playlist.items[0].time, u"03:00");
}

TEST_F(PlaylistFile, LoneLineFeedsMakeOneSongWithThemInItsPath) {
  ASSERT_TRUE(Load(u"a.mp3\nb.mp3\n"));
  ASSERT_EQ(playlist.items.size(), 1u);
  EXPECT_EQ(playlist.items[0].FullPath(), u"a.mp3\nb.mp3\n");
  EXPECT_EQ(playlist.items[0].status, TCSongStatus::NotFound);
}

TEST_F(PlaylistFile, TheFirstStarParts) {
  ASSERT_TRUE(Load(u"x.mp3 * 02:10\r\n*02:10\r\na*b*c\r\nplain.mp3\r\n"));
  ASSERT_EQ(playlist.items.size(), 4u);
  EXPECT_EQ(playlist.items[0].fileName, u"x.mp3");
  EXPECT_EQ(playlist.items[0].time, u"02:10");
  EXPECT_EQ(playlist.items[1].fileName, u"*02:10");
  EXPECT_EQ(playlist.items[1].time, u"00:00");
  EXPECT_EQ(playlist.items[2].fileName, u"a");
  EXPECT_EQ(playlist.items[2].time, u"b*c");
  EXPECT_EQ(playlist.items[3].fileName, u"plain.mp3");
  EXPECT_EQ(playlist.items[3].time, u"00:00");
}

TEST_F(PlaylistFile, AnEmptyLineIsASongWithoutAPath) {
  ASSERT_TRUE(Load(u"a.mp3\r\n\r\n"));
  ASSERT_EQ(playlist.items.size(), 2u);
  EXPECT_EQ(playlist.items[1].FullPath(), u"");
  EXPECT_EQ(playlist.items[1].status, TCSongStatus::NotFound);
}

TEST_F(PlaylistFile, SongsAlreadyThereKeepTheirPlacesAndWhatTheFileDoesNotSay) {
  playlist.items.resize(5);
  playlist.items[0].time = u"09:09";
  playlist.items[0].option1 = u"kept";
  for (TCPlayListItem& song : playlist.items) song.SetPath(u"E:\\old\\old.wma");
  ASSERT_TRUE(Load(u"a.mp3\r\nb.mp3*02:00\r\nc.mp3\r\n"));
  ASSERT_EQ(playlist.items.size(), 3u);
  EXPECT_EQ(playlist.items[0].fileName, u"a.mp3");
  EXPECT_EQ(playlist.items[0].time, u"09:09");
  EXPECT_EQ(playlist.items[0].option1, u"kept");
  EXPECT_EQ(playlist.items[1].time, u"02:00");
  EXPECT_EQ(playlist.items[1].FullPath(), u"b.mp3");
  EXPECT_EQ(playlist.items[2].FullPath(), u"c.mp3");
  EXPECT_EQ(playlist.items[2].extension.str(), u"mp3");
}

TEST_F(PlaylistFile, SongsAreFoundOrNotByTheirFilesAlone) {
  files.Put(u"C:\\Music\\there.flac");
  ASSERT_TRUE(Load(u"C:\\Music\\there.flac*01:00\r\nC:\\Music\\gone.mp3*01:00\r\n"));
  EXPECT_EQ(playlist.items[0].status, TCSongStatus::Found);
  EXPECT_EQ(playlist.items[0].folder.str(), u"C:\\Music\\");
  EXPECT_EQ(playlist.items[0].extension, u"flac");
  EXPECT_EQ(playlist.items[1].status, TCSongStatus::NotFound);
}

TEST_F(PlaylistFile, ARelativeSongIsNotLookedForBesideThePlaylist) {
  files.Put(u"D:\\Shows\\a.mp3");
  files.Put(u"b.mp3");
  ASSERT_TRUE(Load(u"a.mp3*01:00\r\nb.mp3*01:00\r\n"));
  EXPECT_EQ(playlist.items[0].status, TCSongStatus::NotFound);
  EXPECT_EQ(playlist.items[1].status, TCSongStatus::Found);
}

TEST_F(PlaylistFile, ThePlaylistIsNamedAfterItsFile) {
  ASSERT_TRUE(Load(u"a.mp3\r\n"));
  EXPECT_EQ(playlist.name, u"Set 1");
  EXPECT_EQ(playlist.folder.str(), u"D:\\Shows\\");
  EXPECT_EQ(playlist.extension, u"brvpl");
}

TEST_F(PlaylistFile, AMissingFileChangesNothing) {
  playlist.name = u"kept";
  EXPECT_FALSE(LoadPlaylistFile(files, store, playlist, u"D:\\none.brvpl"));
  EXPECT_EQ(playlist.name, u"kept");
}

TEST_F(PlaylistFile, AFileWithoutLinesChangesNothingAndSucceeds) {
  playlist.name = u"kept";
  playlist.items.resize(2);
  EXPECT_TRUE(Load(u""));
  EXPECT_EQ(playlist.name, u"kept");
  EXPECT_EQ(playlist.items.size(), 2u);
}

TEST_F(PlaylistFile, EightBitTextIsOneSongThatIsNotFound) {
  files.Put(kPath, "a.mp3*03:00\r\nb.mp3*04:00\r\n");
  ASSERT_TRUE(LoadPlaylistFile(files, store, playlist, kPath));
  ASSERT_EQ(playlist.items.size(), 1u);
  EXPECT_EQ(playlist.items[0].status, TCSongStatus::NotFound);
}

}  // namespace
}  // namespace brevant
