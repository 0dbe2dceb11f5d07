#include "text/other_case.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include "support/temp_folder.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class OtherCase : public testing::Test {
 protected:
  // Long ago, so that the folder does not count as one that is being changed right now.
  void SetTimeStamp(std::string_view name, time_t seconds) const {
    const struct timespec times[2] = {{seconds, 0}, {seconds, 0}};
    ASSERT_EQ(utimensat(AT_FDCWD, folder.Native(name).c_str(), times, 0), 0);
  }

  TCTempFolder folder;
  std::chrono::steady_clock::time_point now;
  TCOtherCase otherCase{[this] { return now; }};
};

TEST_F(OtherCase, TheExactNameComesFirstThenTheOthersInByteOrder) {
  folder.Write("SONG.mp3");
  folder.Write("Song.mp3");
  folder.Write("song.mp3");
  EXPECT_THAT(otherCase.Find(folder.Native("Song.mp3")),
              ElementsAre(folder.Native("Song.mp3"), folder.Native("SONG.mp3"), folder.Native("song.mp3")));
  EXPECT_THAT(otherCase.Find(folder.Native("SONG.MP3")),
              ElementsAre(folder.Native("SONG.mp3"), folder.Native("Song.mp3"), folder.Native("song.mp3")));
}

TEST_F(OtherCase, NamesWithOtherLettersAreNotFound) {
  folder.Write("song.mp3");
  folder.Write("s\xC3\xB6ng.mp3");
  EXPECT_THAT(otherCase.Find(folder.Native("songs.mp3")), IsEmpty());
  EXPECT_THAT(otherCase.Find(folder.Native("sonG")), IsEmpty());
  EXPECT_THAT(otherCase.Find(folder.Native("S\xC3\x96NG.MP3")),
              ElementsAre(folder.Native("s\xC3\xB6ng.mp3")));
}

TEST_F(OtherCase, TheFoldersOfAPathMayBeWrittenInAnyCase) {
  folder.Write("Music/Sets/a.mp3");
  folder.Write("music/SETS/a.mp3");
  EXPECT_THAT(otherCase.Find(folder.Native("MUSIC/sets/A.mp3")),
              ElementsAre(folder.Native("Music/Sets/a.mp3"), folder.Native("music/SETS/a.mp3")));
}

TEST_F(OtherCase, NothingIsFoundInAFolderThatIsNotThere) {
  EXPECT_THAT(otherCase.Find(folder.Native("missing/a.mp3")), IsEmpty());
  folder.Write("file");
  EXPECT_THAT(otherCase.Find(folder.Native("file/a.mp3")), IsEmpty());
}

TEST_F(OtherCase, NoEntryIsNamedByDotsOrNothing) {
  EXPECT_THAT(otherCase.Find(""), IsEmpty());
  EXPECT_THAT(otherCase.Find("/"), IsEmpty());
  EXPECT_THAT(otherCase.Find(folder.Native(".")), IsEmpty());
  EXPECT_THAT(otherCase.Find(folder.Native("..")), IsEmpty());
  EXPECT_THAT(otherCase.Find(folder.Native("")), IsEmpty());
}

TEST_F(OtherCase, DotsAndDoubledSlashesInsideAPathAreFollowed) {
  folder.Write("Music/a.mp3");
  EXPECT_THAT(otherCase.Find(folder.Native("Music/../music//./A.mp3")),
              ElementsAre(folder.Native("Music/../Music/./a.mp3")));
}

TEST_F(OtherCase, AFolderIsNotReadAgainWithinTheMomentOfTrust) {
  EXPECT_THAT(otherCase.Find(folder.Native("SONG.mp3")), IsEmpty());
  folder.Write("song.mp3");
  now += TCOtherCase::kTrust - std::chrono::milliseconds(1);
  EXPECT_THAT(otherCase.Find(folder.Native("SONG.mp3")), IsEmpty());
  now += std::chrono::milliseconds(1);
  EXPECT_THAT(otherCase.Find(folder.Native("SONG.mp3")), ElementsAre(folder.Native("song.mp3")));
}

TEST_F(OtherCase, AnUnchangedFolderIsNotReadAgainAfterThat) {
  folder.MakeFolder("Music");
  SetTimeStamp("Music", 1'000'000);
  EXPECT_THAT(otherCase.Find(folder.Native("Music/SONG.mp3")), IsEmpty());

  folder.Write("Music/song.mp3");
  SetTimeStamp("Music", 1'000'000);  // as if nothing had happened
  now += 10 * TCOtherCase::kTrust;
  EXPECT_THAT(otherCase.Find(folder.Native("Music/SONG.mp3")), IsEmpty());

  SetTimeStamp("Music", 1'000'001);
  EXPECT_THAT(otherCase.Find(folder.Native("Music/SONG.mp3")), IsEmpty());
  now += TCOtherCase::kTrust;
  EXPECT_THAT(otherCase.Find(folder.Native("Music/SONG.mp3")), ElementsAre(folder.Native("Music/song.mp3")));
}

TEST_F(OtherCase, AFolderThatWasChangedJustBeforeIsReadAgainWhateverItsStamp) {
  folder.MakeFolder("Music");
  SetTimeStamp("Music", time(nullptr));
  EXPECT_THAT(otherCase.Find(folder.Native("Music/SONG.mp3")), IsEmpty());

  struct stat before {};
  ASSERT_EQ(stat(folder.Native("Music").c_str(), &before), 0);
  folder.Write("Music/song.mp3");
  SetTimeStamp("Music", before.st_mtim.tv_sec);  // the change fell into the same tick
  now += TCOtherCase::kTrust;
  EXPECT_THAT(otherCase.Find(folder.Native("Music/SONG.mp3")), ElementsAre(folder.Native("Music/song.mp3")));
}

TEST_F(OtherCase, AFolderStandsAloneUntilThereIsOneOfItsNameInOtherCase) {
  folder.Write("Music/Album/Song.lrc");
  EXPECT_TRUE(otherCase.StandsAlone(folder.Native("Music")));
  EXPECT_TRUE(otherCase.StandsAlone(folder.Native("Music/Album")));
  EXPECT_TRUE(otherCase.StandsAlone("/"));
  folder.MakeFolder("Music/ALBUM");
  otherCase.Forget();
  EXPECT_FALSE(otherCase.StandsAlone(folder.Native("Music/Album")));
  EXPECT_TRUE(otherCase.StandsAlone(folder.Native("Music")));
  folder.MakeFolder("MUSIC/Other");
  folder.MakeFolder("Music/Other");
  otherCase.Forget();
  EXPECT_FALSE(otherCase.StandsAlone(folder.Native("Music/Other")));
}

TEST_F(OtherCase, AFolderThatIsNotThereAsWrittenDoesNotStandAlone) {
  folder.Write("Music/Song.lrc");
  EXPECT_FALSE(otherCase.StandsAlone(folder.Native("None")));
  EXPECT_FALSE(otherCase.StandsAlone(folder.Native("music")));
  EXPECT_FALSE(otherCase.StandsAlone(folder.Native("None/Music")));
  EXPECT_FALSE(otherCase.StandsAlone(folder.Native("Music/..")));
}

TEST_F(OtherCase, AFolderWhoseParentCannotBeReadDoesNotStandAlone) {
  folder.Write("Music/Album/Song.lrc");
  ASSERT_EQ(chmod(folder.Native("").c_str(), 0755), 0);
  ASSERT_EQ(chmod(folder.Native("Music").c_str(), 0311), 0);
  {
    const TCOrdinaryUser user;
    EXPECT_FALSE(otherCase.StandsAlone(folder.Native("Music/Album")));
  }
  ASSERT_EQ(chmod(folder.Native("Music").c_str(), 0755), 0);
}

TEST_F(OtherCase, AFolderThatAppearsIsSeen) {
  EXPECT_THAT(otherCase.Find(folder.Native("MUSIC/SONG.mp3")), IsEmpty());
  folder.Write("Music/song.mp3");
  now += TCOtherCase::kTrust;
  EXPECT_THAT(otherCase.Find(folder.Native("MUSIC/SONG.mp3")), ElementsAre(folder.Native("Music/song.mp3")));
}

TEST_F(OtherCase, WhatWasForgottenIsReadAgain) {
  EXPECT_THAT(otherCase.Find(folder.Native("SONG.mp3")), IsEmpty());
  folder.Write("song.mp3");
  otherCase.Forget();
  EXPECT_THAT(otherCase.Find(folder.Native("SONG.mp3")), ElementsAre(folder.Native("song.mp3")));
}

}  // namespace
}  // namespace brevant
