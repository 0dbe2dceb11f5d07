#include "text/folder_names.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <ctime>

#include "support/temp_folder.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class FolderNames : public testing::Test {
 protected:
  // Sets the folder's time stamp back.
  void ChangedBefore(const std::string& native, std::time_t seconds) const {
    const std::time_t then = std::time(nullptr) - seconds;
    const timespec stamps[2] = {{then, 0}, {then, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, native.c_str(), stamps, 0), 0);
  }

  TCTempFolder folder;
};

TEST_F(FolderNames, ANameIsFoundInAnyCaseItselfFirst) {
  for (const char* name : {"song.mp3", "SONG.mp3", "Song.mp3", "other.mp3"}) folder.Write(name);
  const TCFolderNames names = TCFolderNames::Read(folder.Native(""));
  EXPECT_THAT(names.Matches("Song.mp3"), ElementsAre("Song.mp3", "SONG.mp3", "song.mp3"));
  EXPECT_THAT(names.Matches("SonG.MP3"), ElementsAre("SONG.mp3", "Song.mp3", "song.mp3"));
  EXPECT_THAT(names.Matches("Song.mp"), IsEmpty());
}

TEST_F(FolderNames, NamesThatAreNotUtf8ArePassedOverAndMatchNothing) {
  folder.Write("\xE9.mp3");
  const TCFolderNames names = TCFolderNames::Read(folder.Native(""));
  EXPECT_EQ(names.Count(), 2u) << ". and .. alone";
  EXPECT_THAT(names.Matches("\xE9.mp3"), IsEmpty());
  EXPECT_FALSE(names.IsRegular("\xE9.mp3"));
  EXPECT_FALSE(names.IsMissing("\xE9.mp3"));
}

TEST_F(FolderNames, OnlyARegularFileOfThatVeryNameIsRegular) {
  folder.Write("song.mp3");
  folder.MakeFolder("folder.mp3");
  ASSERT_EQ(symlink("song.mp3", folder.Native("link.mp3").c_str()), 0);
  ASSERT_EQ(mkfifo(folder.Native("fifo.mp3").c_str(), 0600), 0);
  const TCFolderNames names = TCFolderNames::Read(folder.Native(""));
  EXPECT_TRUE(names.IsRegular("song.mp3"));
  for (const char* other : {"SONG.mp3", "folder.mp3", "link.mp3", "fifo.mp3", "none.mp3", ""})
    EXPECT_FALSE(names.IsRegular(other)) << other;
}

TEST_F(FolderNames, AFolderThatWasJustChangedMayChangeAgainUnderTheSameStamp) {
  ChangedBefore(folder.Native(""), 1);
  EXPECT_FALSE(TCFolderNames::Read(folder.Native("")).StillHolds(folder.Native("")));
  ChangedBefore(folder.Native(""), 10);
  EXPECT_TRUE(TCFolderNames::Read(folder.Native("")).StillHolds(folder.Native("")));
}

TEST_F(FolderNames, AChangeOfTheFolderShows) {
  ChangedBefore(folder.Native(""), 10);
  const TCFolderNames names = TCFolderNames::Read(folder.Native(""));
  folder.Write("new.mp3");
  EXPECT_FALSE(names.StillHolds(folder.Native("")));
}

TEST_F(FolderNames, AnotherFolderUnderTheSameNameAndStampShows) {
  folder.MakeFolder("a");
  folder.MakeFolder("b");
  const std::time_t then = std::time(nullptr) - 10;
  const timespec stamps[2] = {{then, 0}, {then, 0}};
  for (const char* name : {"a", "b"}) {
    ASSERT_EQ(utimensat(AT_FDCWD, folder.Native(name).c_str(), stamps, 0), 0);
  }
  const TCFolderNames names = TCFolderNames::Read(folder.Native("a"));
  EXPECT_TRUE(names.StillHolds(folder.Native("a")));
  EXPECT_FALSE(names.StillHolds(folder.Native("b")));
}

TEST_F(FolderNames, AFolderThatIsNotThereHasNoNamesUntilItIs) {
  const TCFolderNames names = TCFolderNames::Read(folder.Native("none"));
  EXPECT_EQ(names.Count(), 0u);
  EXPECT_FALSE(names.Complete());
  EXPECT_FALSE(names.IsMissing("song.mp3")) << "nobody has looked";
  EXPECT_TRUE(names.StillHolds(folder.Native("none")));
  folder.MakeFolder("none");
  ChangedBefore(folder.Native("none"), 10);
  EXPECT_FALSE(names.StillHolds(folder.Native("none")));
}

}  // namespace
}  // namespace brevant
