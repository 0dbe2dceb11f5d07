#include "text/regular_file.h"

#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <cerrno>

#include "support/temp_folder.h"

namespace brevant {
namespace {

class RegularFile : public testing::Test {
 protected:
  [[nodiscard]] TCRegularFile Find(std::string_view name) const {
    TCOtherCase otherCase;
    return FindRegularFile(folder.Native(name), otherCase);
  }

  // The name of the file that is opened for `name`; empty when none is.
  [[nodiscard]] std::string Found(std::string_view name) const {
    const TCRegularFile found = Find(name);
    return found.file.IsOpen() ? found.native : std::string();
  }

  TCTempFolder folder;
};

TEST_F(RegularFile, AFileIsFoundAsItIsWritten) {
  folder.Write("Music/a.mp3", "12");
  folder.Write("Music/A.mp3", "1234");
  EXPECT_EQ(Found("Music/a.mp3"), folder.Native("Music/a.mp3"));
  EXPECT_EQ(Found("Music/A.mp3"), folder.Native("Music/A.mp3"));
  EXPECT_EQ(Find("Music/A.mp3").size, 4u);
}

TEST_F(RegularFile, AFileIsFoundInOtherCase) {
  folder.Write("Music/\xC3\x89t\xC3\xA9/Song.MP3");
  EXPECT_EQ(Found("MUSIC/\xC3\xA9T\xC3\x89/song.mp3"), folder.Native("Music/\xC3\x89t\xC3\xA9/Song.MP3"));
}

TEST_F(RegularFile, TheSearchGoesThroughEveryFolderThatIsMeant) {
  folder.MakeFolder("music");
  folder.MakeFolder("MUSIC/Sets");
  folder.Write("Music/sets/a.mp3");
  EXPECT_EQ(Found("music/Sets/A.mp3"), folder.Native("Music/sets/a.mp3"));
}

TEST_F(RegularFile, TheSearchGoesThroughFilesThatStandWhereAFolderIsMeant) {
  folder.Write("music");
  folder.Write("Music/a.mp3");
  EXPECT_EQ(Found("music/a.mp3"), folder.Native("Music/a.mp3"));
}

TEST_F(RegularFile, AFolderInOtherCaseIsNotWhatIsMeant) {
  folder.MakeFolder("SONG.mp3");
  folder.Write("Song.mp3");
  EXPECT_EQ(Found("song.mp3"), folder.Native("Song.mp3"));
}

TEST_F(RegularFile, NamesThatAreNotUtf8AreNotInTheWay) {
  folder.Write("Music/\xE9.mp3");
  folder.Write("Music/Song.mp3");
  EXPECT_EQ(Found("Music/SONG.mp3"), folder.Native("Music/Song.mp3"));
}

TEST_F(RegularFile, ALinkThatLeadsNowhereIsNotWhatIsMeant) {
  folder.Write("Song.mp3");
  ASSERT_EQ(symlink("nowhere", folder.Native("song.mp3").c_str()), 0);
  EXPECT_EQ(Found("song.mp3"), folder.Native("Song.mp3"));
}

TEST_F(RegularFile, AnUnreadableFileOfThatVeryNameIsNotLookedPast) {
  folder.Write("song.mp3");
  folder.Write("Song.mp3");
  ASSERT_EQ(chmod(folder.Native("").c_str(), 0755), 0);
  ASSERT_EQ(chmod(folder.Native("song.mp3").c_str(), 0), 0);
  const TCOrdinaryUser user;
  EXPECT_EQ(Find("song.mp3").failure, EACCES);
}

TEST_F(RegularFile, WhatIsNotThereSaysSo) {
  folder.Write("Music/a.mp3");
  EXPECT_EQ(Find("Music/b.mp3").failure, ENOENT);
  EXPECT_EQ(Find("music/a.mp3/x").failure, ENOENT);
  TCOtherCase otherCase;
  EXPECT_EQ(FindRegularFile("", otherCase).failure, ENOENT);
  EXPECT_FALSE(FindRegularFile(std::string(10'000, '/') + "a", otherCase).file.IsOpen());
}

TEST_F(RegularFile, AFolderOrAFifoIsNoFileAndHoldsNobodyUp) {
  folder.MakeFolder("songs");
  ASSERT_EQ(mkfifo(folder.Native("fifo").c_str(), 0600), 0);
  for (const char* name : {"songs", "fifo"}) {
    const TCRegularFile found = Find(name);
    EXPECT_FALSE(found.file.IsOpen()) << name;
    EXPECT_EQ(found.failure, 0) << name;
  }
}

}  // namespace
}  // namespace brevant
