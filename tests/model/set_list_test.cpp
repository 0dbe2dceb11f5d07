#include "model/set_list.h"

#include <gtest/gtest.h>

#include "support/lyrics_of.h"

namespace brevant {
namespace {

TEST(SetList, ANewSongIsPendingWithTheDefaultsOfItsFields) {
  const TCPlayListItem song;
  EXPECT_EQ(song.fileName, u"");
  EXPECT_EQ(song.folder.str(), u"");
  EXPECT_EQ(song.time, u"00:00");
  EXPECT_EQ(song.option1, u"30");
  EXPECT_EQ(song.option2, u"Yes");
  EXPECT_EQ(StatusText(song.status), u"Pending");
  EXPECT_EQ(song.flags, TCPlayMark::Ordinary);
  EXPECT_EQ(song.treeNode, TCTreeNode::None);
}

TEST(SetList, NewPlaylistsAndGroupsCarryTheirFileTypes) {
  EXPECT_EQ(TCPlayList{}.extension, u"brvpl");
  EXPECT_EQ(TCPlayGroups{}.extension, u"brvgl");
  EXPECT_EQ(TCPlayList{}.totalTime, u"");
  EXPECT_EQ(TCPlayList{}.folder.str(), u"");
  EXPECT_EQ(TCPlayList{}.state1, 0);
  EXPECT_EQ(TCPlayList{}.state2, 0);
  EXPECT_EQ(TCPlayList{}.state3, 0);
}

TEST(SetList, StatusTextsAreTheStringTables) {
  EXPECT_EQ(StatusText(TCSongStatus::Found), u"Found");
  EXPECT_EQ(StatusText(TCSongStatus::NotFound), u"Not found");
}

TEST(SetList, ACopyOfASongTakesEveryFieldAndGoesItsOwnWay) {
  TCPlayListItem song;
  song.fileName = u"a.mp3";
  song.time = u"03:00";
  song.folder = u"C:\\Music\\";
  song.extension = u"mp3";
  const TCSongLyrics lyrics = LyricsOf({{u"Word", 1'000, 2'000, 0}});
  song.lyrics = lyrics;
  song.option1 = u"12";
  song.option2 = u"No";
  song.flags = TCPlayMark::Next;
  song.status = TCSongStatus::Found;
  song.treeNode = TCTreeNode{3};
  TCPlayListItem copy = song;
  song.folder = u"D:\\";
  song.time = u"09:00";
  song.lyrics = {};
  EXPECT_EQ(copy.FullPath(), u"C:\\Music\\a.mp3");
  EXPECT_EQ(copy.extension, u"mp3");
  EXPECT_EQ(copy.lyrics, lyrics);
  EXPECT_EQ(copy.time, u"03:00");
  EXPECT_EQ(copy.option1, u"12");
  EXPECT_EQ(copy.option2, u"No");
  EXPECT_EQ(copy.flags, TCPlayMark::Next);
  EXPECT_EQ(copy.status, TCSongStatus::Found);
  EXPECT_EQ(copy.treeNode, TCTreeNode{3});
}

TEST(SetList, ACopyOfAGroupTakesItsPlaylistsAndTheirSongsAndGoesItsOwnWay) {
  TCPlayGroups group;
  group.name = u"Sets";
  group.folder = u"D:\\Shows\\";
  group.extension = u"brv";
  group.treeNode = TCTreeNode{1};
  TCPlayList& playlist = group.playlists.emplace_back();
  playlist.name = u"P1";
  playlist.items.resize(2);
  playlist.items[1].fileName = u"b.mp3";
  playlist.folder = u"D:\\Sets\\";
  playlist.extension = u"txt";
  playlist.totalTime = u"07:15";
  playlist.state1 = 1;
  playlist.state2 = 2;
  playlist.state3 = 3;
  playlist.treeNode = TCTreeNode{2};

  TCPlayGroups copy;
  copy.playlists.resize(3);
  copy = group;
  group.playlists[0].items[1].fileName = u"changed.mp3";
  group.playlists.clear();

  EXPECT_EQ(copy.name, u"Sets");
  EXPECT_EQ(copy.folder.str(), u"D:\\Shows\\");
  EXPECT_EQ(copy.extension, u"brv");
  EXPECT_EQ(copy.treeNode, TCTreeNode{1});
  ASSERT_EQ(copy.playlists.size(), 1u);
  const TCPlayList& copied = copy.playlists[0];
  EXPECT_EQ(copied.name, u"P1");
  EXPECT_EQ(copied.folder.str(), u"D:\\Sets\\");
  EXPECT_EQ(copied.extension, u"txt");
  EXPECT_EQ(copied.totalTime, u"07:15");
  EXPECT_EQ(copied.state1, 1);
  EXPECT_EQ(copied.state2, 2);
  EXPECT_EQ(copied.state3, 3);
  EXPECT_EQ(copied.treeNode, TCTreeNode{2});
  ASSERT_EQ(copied.items.size(), 2u);
  EXPECT_EQ(copied.items[1].fileName, u"b.mp3");
}

TEST(SetList, APathIsCutIntoFolderNameAndType) {
  TCPlayListItem song;
  song.SetPath(u"C:\\Music\\Open Road.mp3");
  EXPECT_EQ(song.folder.str(), u"C:\\Music\\");
  EXPECT_EQ(song.fileName, u"Open Road.mp3");
  EXPECT_EQ(song.extension, u"mp3");
  EXPECT_EQ(song.FullPath(), u"C:\\Music\\Open Road.mp3");
}

TEST(SetList, SongsOfOneFolderShareItsText) {
  TCSongTexts texts;
  TCPlayListItem first;
  first.SetPath(u"C:\\Music\\a.mp3", texts);
  TCPlayListItem elsewhere;
  elsewhere.SetPath(u"D:\\b.wav", texts);
  TCPlayListItem second;
  second.SetPath(u"C:\\Music\\c.mp3", texts);
  EXPECT_EQ(second.FullPath(), u"C:\\Music\\c.mp3");
  EXPECT_EQ(&second.folder.str(), &first.folder.str());
  EXPECT_EQ(&second.extension.str(), &first.extension.str());
  EXPECT_EQ(elsewhere.folder.str(), u"D:\\");
  EXPECT_EQ(elsewhere.extension.str(), u"wav");
}

}  // namespace
}  // namespace brevant
