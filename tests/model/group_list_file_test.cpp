#include "model/group_list_file.h"

#include <gtest/gtest.h>

#include "support/memory_files.h"
#include "support/message_log.h"

namespace brevant {
namespace {

class GroupListFile : public testing::Test {
 protected:
  TCMemoryFiles files;
  TCSetListStore store;
  TCMessageLog messages;
  TCPlayGroups group;

  bool Load(std::u16string_view path) { return LoadGroupListFile(files, store, messages, group, path); }
};

TEST_F(GroupListFile, BothSetListTypesAreAcceptedInAnyCase) {
  EXPECT_TRUE(IsSetListFileType(u"SETS.BRVGL", messages));
  EXPECT_TRUE(IsSetListFileType(u"x.brvpl", messages));
  EXPECT_TRUE(messages.lines.empty());
}

TEST_F(GroupListFile, AnotherTypeIsRefusedInTwoMessages) {
  group.name = u"kept";
  files.PutUtf16(u"D:\\sets.txt", u"a.brvpl\r\n");
  EXPECT_FALSE(Load(u"D:\\sets.txt"));
  ASSERT_EQ(messages.lines.size(), 2u);
  EXPECT_EQ(messages.lines[0], u"Bad file type, unable to load the play list file named: D:\\sets.txt");
  EXPECT_EQ(messages.lines[1], u"Play lists must be text files not binary data files");
  EXPECT_EQ(group.name, u"kept");
  EXPECT_TRUE(group.playlists.empty());
}

TEST_F(GroupListFile, AFileWithoutLinesLeavesTheGroupAndSucceeds) {
  group.name = u"kept";
  files.Put(u"D:\\e.brvgl");
  EXPECT_TRUE(Load(u"D:\\e.brvgl"));
  EXPECT_EQ(group.name, u"kept");
}

TEST_F(GroupListFile, AMissingFileFailsWithoutAMessage) {
  EXPECT_FALSE(Load(u"D:\\none.brvgl"));
  EXPECT_TRUE(messages.lines.empty());
}

TEST_F(GroupListFile, ABareNameIsTakenFromTheGroupListsFolderAndRemembered) {
  files.PutUtf16(u"D:\\Shows\\Summer Tour.brvgl", u"Set 1.brvpl\r\nE:\\Other\\Encore.brvpl\r\n");
  files.PutUtf16(u"D:\\Shows\\Set 1.brvpl", u"a.mp3*01:00\r\n");
  files.PutUtf16(u"E:\\Other\\Encore.brvpl", u"b.mp3*02:00\r\n");
  group.folder = u"D:\\Shows\\";
  ASSERT_TRUE(Load(u"D:\\Shows\\Summer Tour.brvgl"));
  ASSERT_EQ(group.playlists.size(), 2u);
  EXPECT_EQ(group.playlists[0].name, u"Set 1");
  EXPECT_EQ(group.playlists[0].folder.str(), u"");
  EXPECT_EQ(group.playlists[0].items.size(), 1u);
  EXPECT_EQ(group.playlists[1].name, u"Encore");
  EXPECT_EQ(group.playlists[1].folder.str(), u"E:\\Other\\");
  EXPECT_EQ(group.name, u"Summer Tour");
  EXPECT_EQ(group.folder.str(), u"D:\\Shows\\");
  EXPECT_EQ(group.extension, u"brvgl");
}

TEST_F(GroupListFile, TheGroupIsNamedAfterItsFile) {
  files.PutUtf16(u"D:\\Shows\\Summer.Tour.BRVPL", u"E:\\p.brvpl\r\n");
  files.PutUtf16(u"E:\\p.brvpl", u"a.mp3\r\n");
  group.folder = u"C:\\elsewhere\\";
  ASSERT_TRUE(Load(u"D:\\Shows\\Summer.Tour.BRVPL"));
  EXPECT_EQ(group.name, u"Summer.Tour");
  EXPECT_EQ(group.folder.str(), u"D:\\Shows\\");
  EXPECT_EQ(group.extension, u"BRVPL");
}

TEST_F(GroupListFile, ALineWithAFolderIsUsedAsWrittenAlsoWhenItBeginsWithADot) {
  files.PutUtf16(u"D:\\Shows\\g.brvgl", u".\\p.brvpl\r\nSub\\q.brvpl\r\n");
  files.PutUtf16(u".\\p.brvpl", u"a.mp3\r\n");
  files.PutUtf16(u"Sub\\q.brvpl", u"a.mp3\r\nb.mp3\r\n");
  group.folder = u"D:\\Shows\\";
  ASSERT_TRUE(Load(u"D:\\Shows\\g.brvgl"));
  EXPECT_TRUE(messages.lines.empty());
  ASSERT_EQ(group.playlists.size(), 2u);
  EXPECT_EQ(group.playlists[0].folder.str(), u".\\");
  EXPECT_EQ(group.playlists[0].items.size(), 1u);
  EXPECT_EQ(group.playlists[1].folder.str(), u"Sub\\");
  EXPECT_EQ(group.playlists[1].items.size(), 2u);
}

TEST_F(GroupListFile, AnEmptyPlaylistFileIsNoFailureAndLeavesTheNameItWasListedUnder) {
  files.PutUtf16(u"D:\\g.brvgl", u"empty.brvpl\r\n");
  files.Put(u"D:\\empty.brvpl");
  group.folder = u"D:\\";
  group.name = u"g.brvgl";
  ASSERT_TRUE(Load(u"D:\\g.brvgl"));
  EXPECT_TRUE(messages.lines.empty());
  ASSERT_EQ(group.playlists.size(), 1u);
  EXPECT_EQ(group.playlists[0].name, u"empty.brvpl");
  EXPECT_EQ(group.playlists[0].folder.str(), u"");
  EXPECT_EQ(group.playlists[0].extension, u"brvgl");
}

TEST_F(GroupListFile, AMissingPlaylistIsReportedAndStaysEmptyWhileTheRestLoads) {
  files.PutUtf16(u"D:\\g.brvgl", u"gone.brvpl\r\nthere.brvpl\r\n");
  files.PutUtf16(u"D:\\there.brvpl", u"a.mp3\r\n");
  group.folder = u"D:\\";
  group.name = u"g.brvgl";
  ASSERT_TRUE(Load(u"D:\\g.brvgl"));
  EXPECT_EQ(messages.lines, std::vector<std::u16string>{u"Unable to load play list file gone.brvpl"});
  ASSERT_EQ(group.playlists.size(), 2u);
  EXPECT_EQ(group.playlists[0].name, u"gone.brvpl");
  EXPECT_EQ(group.playlists[0].extension, u"brvgl");  // of the group's name: the file could not say
  EXPECT_TRUE(group.playlists[0].items.empty());
  EXPECT_EQ(group.playlists[1].items.size(), 1u);
}

TEST_F(GroupListFile, AGroupListInBinaryIsReadAsTextAllTheSame) {
  files.Put(u"D:\\b.brvgl", std::string("\x01\x00\x02\xFF\x0D\x00\x0A\x00", 8));
  EXPECT_TRUE(Load(u"D:\\b.brvgl"));
  EXPECT_EQ(group.playlists.size(), 1u);
}

}  // namespace
}  // namespace brevant
