#include "text/disk_files.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <chrono>
#include <filesystem>

#include "support/temp_folder.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::size_t kAnySize = std::size_t{1} << 30;

class DiskFiles : public testing::Test {
 protected:
  [[nodiscard]] mode_t Permissions(std::string_view name) const {
    struct stat status {};
    EXPECT_EQ(stat(folder.Native(name).c_str(), &status), 0) << name;
    return status.st_mode & 07777;
  }

  TCTempFolder folder;
  std::chrono::steady_clock::time_point now;
  TCDiskFiles files{TCNativePaths(), [this] { return now; }};
};

TEST_F(DiskFiles, ARegularFileExists) {
  folder.Write("a.mp3");
  EXPECT_TRUE(files.FileExists(folder.Model("a.mp3")));
  EXPECT_FALSE(files.FileExists(folder.Model("b.mp3")));
  EXPECT_FALSE(files.FileExists(u""));
}

TEST_F(DiskFiles, ALinkToARegularFileExists) {
  folder.Write("a.mp3", "abc");
  ASSERT_EQ(symlink("a.mp3", folder.Native("link.mp3").c_str()), 0);
  ASSERT_EQ(symlink("nowhere", folder.Native("dangling.mp3").c_str()), 0);
  ASSERT_EQ(symlink("round.mp3", folder.Native("round.mp3").c_str()), 0);
  EXPECT_TRUE(files.FileExists(folder.Model("link.mp3")));
  EXPECT_EQ(files.ReadFile(folder.Model("link.mp3"), kAnySize), "abc");
  EXPECT_FALSE(files.FileExists(folder.Model("dangling.mp3")));
  EXPECT_FALSE(files.FileExists(folder.Model("round.mp3")));
}

TEST_F(DiskFiles, AFolderOrDeviceIsNoFile) {
  folder.MakeFolder("a.mp3");
  EXPECT_FALSE(files.FileExists(folder.Model("a.mp3")));
  EXPECT_FALSE(files.ReadFile(folder.Model("a.mp3"), kAnySize));
  EXPECT_FALSE(files.FileExists(u"\\dev\\null"));
  EXPECT_FALSE(files.ReadFile(u"\\dev\\zero", kAnySize));
}

TEST_F(DiskFiles, AskingAboutAFifoDoesNotBlock) {
  ASSERT_EQ(mkfifo(folder.Native("a.mp3").c_str(), 0600), 0);
  EXPECT_FALSE(files.FileExists(folder.Model("a.mp3")));
  EXPECT_FALSE(files.ReadFile(folder.Model("a.mp3"), kAnySize));
  EXPECT_FALSE(files.ReplaceFile(folder.Model("a.mp3"), "new"));
}

TEST_F(DiskFiles, AFileThatMayNotBeReadIsNotThere) {
  folder.Write("a.mp3", "abc");
  ASSERT_EQ(chmod(folder.Native("").c_str(), 0755), 0);
  ASSERT_EQ(chmod(folder.Native("a.mp3").c_str(), 0), 0);
  const TCOrdinaryUser user;
  EXPECT_FALSE(files.FileExists(folder.Model("a.mp3")));
  EXPECT_FALSE(files.ReadFile(folder.Model("a.mp3"), kAnySize));
}

TEST_F(DiskFiles, AFileIsReadWhole) {
  const std::string bytes = std::string(300'000, 'x') + std::string("\0\r\n\xFF", 4);
  folder.Write("a.brv", bytes);
  folder.Write("empty.brv");
  EXPECT_EQ(files.ReadFile(folder.Model("a.brv"), kAnySize), bytes);
  EXPECT_EQ(files.ReadFile(folder.Model("empty.brv"), kAnySize), "");
  EXPECT_EQ(files.ReadFile(folder.Model("empty.brv"), 0), "");
}

TEST_F(DiskFiles, AFilePastTheGivenSizeIsRefused) {
  folder.Write("a.brv", "12345");
  EXPECT_EQ(files.ReadFile(folder.Model("a.brv"), 5), "12345");
  EXPECT_EQ(files.ReadFile(folder.Model("a.brv"), 4), std::nullopt);
}

TEST_F(DiskFiles, AFileThatSaysItIsEmptyIsReadToItsEnd) {
  const std::optional<std::string> bytes = files.ReadFile(u"\\proc\\self\\status", kAnySize);
  ASSERT_TRUE(bytes);
  EXPECT_GT(bytes->size(), 500U);
  EXPECT_EQ(files.ReadFile(u"\\proc\\self\\status", 100), std::nullopt);
}

TEST_F(DiskFiles, TheNameAsWrittenIsPreferred) {
  folder.Write("Song.mp3", "upper");
  folder.Write("song.mp3", "lower");
  EXPECT_EQ(files.ReadFile(folder.Model("song.mp3"), kAnySize), "lower");
  EXPECT_EQ(files.ReadFile(folder.Model("Song.mp3"), kAnySize), "upper");
}

TEST_F(DiskFiles, AFileInOtherCaseIsFoundAndRead) {
  folder.Write("Music/Song.LRC", "abc");
  EXPECT_TRUE(files.FileExists(folder.Model("music/song.lrc")));
  EXPECT_EQ(files.ReadFile(folder.Model("MUSIC/SONG.lrc"), kAnySize), "abc");
}

TEST_F(DiskFiles, AFolderInOtherCaseIsNotInTheWayOfAFile) {
  folder.MakeFolder("SONG.mp3");
  folder.Write("Song.mp3", "abc");
  EXPECT_EQ(files.ReadFile(folder.Model("song.mp3"), kAnySize), "abc");
}

TEST_F(DiskFiles, AFileThatAppearsUnderItsOwnNameIsSeenAtOnce) {
  EXPECT_FALSE(files.FileExists(folder.Model("a.mp3")));
  folder.Write("a.mp3");
  EXPECT_TRUE(files.FileExists(folder.Model("a.mp3")));
}

TEST_F(DiskFiles, AFileThatAppearsInOtherCaseIsSeenAfterAMoment) {
  EXPECT_FALSE(files.FileExists(folder.Model("a.mp3")));
  folder.Write("A.mp3");
  now += TCOtherCase::kTrust;
  EXPECT_TRUE(files.FileExists(folder.Model("a.mp3")));
}

TEST_F(DiskFiles, AmongManyFilesTheAnswersAreTheSame) {
  folder.Write("Music/Song.mp3", "song");
  folder.Write("Music/SONG.LRC", "other case");
  folder.Write("Music/Caf\xC3\xA9.lrc", "accent");
  folder.Write("Twin/a.lrc", "a");
  folder.Write("TWIN/b.lrc", "b");
  folder.MakeFolder("Music/Folder.mp3");
  const auto answers = [this] {
    std::vector<std::optional<std::string>> all;
    for (const char* name :
         {"Music/Song.mp3", "Music/Song.lrc", "Music/Song.lrcx", "MUSIC/song.mp3", "Music/Caf\xC3\xA9.lrc",
          "Music/CAF\xC3\x89.lrc", "Music/Folder.mp3", "Music/..", "Music/", "None/a.lrc", "Twin/a.lrc",
          "Twin/b.lrc", "twin/b.lrc", "Twin/c.lrc", "Music//Song.mp3"}) {
      all.push_back(files.ReadFile(folder.Model(name), kAnySize));
      EXPECT_EQ(files.FileExists(folder.Model(name)), all.back().has_value()) << name;
    }
    all.push_back(files.ReadFile(u"Song.mp3", kAnySize));
    all.push_back(files.ReadFile(u"C:Song.mp3", kAnySize));
    all.push_back(files.ReadFile(u"", kAnySize));
    return all;
  };
  const auto one = answers();
  EXPECT_EQ(one[0], "song");
  EXPECT_EQ(one[11], "b");
  const TCManyFiles many(files);
  EXPECT_EQ(answers(), one);
}

TEST_F(DiskFiles, AmongManyFilesAFolderIsLookedIntoOnce) {
  folder.Write("Song.mp3");
  folder.Write("Other/Song.mp3");
  {
    const TCManyFiles many(files);
    EXPECT_EQ(files.ReadFile(folder.Model("Song.lrc"), kAnySize), std::nullopt);
    folder.Write("Song.lrc", "new");
    EXPECT_EQ(files.ReadFile(folder.Model("Song.lrc"), kAnySize), std::nullopt);

    now += TCOtherCase::kTrust;
    EXPECT_TRUE(files.FileExists(folder.Model("Other/Song.mp3")));
    EXPECT_EQ(files.ReadFile(folder.Model("Song.lrc"), kAnySize), "new");

    EXPECT_TRUE(files.ReplaceFile(folder.Model("Other/Song.lrc"), "our own"));
    EXPECT_EQ(files.ReadFile(folder.Model("Other/Song.lrc"), kAnySize), "our own");
    EXPECT_EQ(files.ReadFile(folder.Model("Late.lrc"), kAnySize), std::nullopt);
    folder.Write("Late.lrc", "new");
  }
  EXPECT_EQ(files.ReadFile(folder.Model("Late.lrc"), kAnySize), "new");
}

TEST_F(DiskFiles, AFileOfOurOwnIsSeenInAnyCaseAtOnce) {
  EXPECT_FALSE(files.FileExists(folder.Model("show.brv")));
  EXPECT_TRUE(files.ReplaceFile(folder.Model("Show.brv"), "abc"));
  EXPECT_TRUE(files.FileExists(folder.Model("show.brv")));
}

TEST_F(DiskFiles, ANameThatIsTooLongIsRefused) {
  const std::u16string path = folder.Model(std::string(300, 'a'));
  EXPECT_FALSE(files.FileExists(path));
  EXPECT_FALSE(files.ReplaceFile(path, "new"));
  EXPECT_FALSE(files.FileExists(u"\\" + std::u16string(1'000'000, u'a')));
}

TEST_F(DiskFiles, ReplacingAFileInOtherCaseMakesNoSecondOne) {
  folder.Write("Sets/Show.brv", "old");
  EXPECT_TRUE(files.ReplaceFile(folder.Model("sets/show.brv"), "new"));
  EXPECT_EQ(folder.Read("Sets/Show.brv"), "new");
  EXPECT_THAT(folder.Names(), ElementsAre("Sets"));
}

TEST_F(DiskFiles, ANewFileGoesIntoTheFolderInOtherCase) {
  folder.MakeFolder("Sets");
  EXPECT_TRUE(files.ReplaceFile(folder.Model("SETS/show.brv"), "new"));
  EXPECT_EQ(folder.Read("Sets/show.brv"), "new");
}

TEST_F(DiskFiles, ReplacingInAMissingFolderFails) {
  EXPECT_FALSE(files.ReplaceFile(folder.Model("missing/a.brv"), "new"));
  EXPECT_FALSE(files.ReplaceFile(u"", "new"));
  EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(DiskFiles, ACopyIsMadeOfTheFileInOtherCaseAndIntoTheFolderInOtherCase) {
  folder.Write("Sets/Show.brv", "old");
  EXPECT_TRUE(files.CopyFile(folder.Model("sets/show.brv"), folder.Model("SETS/show.brv~")));
  EXPECT_EQ(folder.Read("Sets/show.brv~"), "old");
  EXPECT_FALSE(files.CopyFile(folder.Model("gone.brv"), folder.Model("gone.brv~")));
  EXPECT_FALSE(files.CopyFile(u"", folder.Model("gone.brv~")));
  EXPECT_THAT(folder.Names(), ElementsAre("Sets"));
}

TEST_F(DiskFiles, MakesAFolderAndThoseAboveIt) {
  EXPECT_TRUE(files.MakeFolder(folder.Model("Korvel/Brevant/")));
  EXPECT_TRUE(std::filesystem::is_directory(folder.Native("Korvel/Brevant")));
  EXPECT_EQ(Permissions("Korvel/Brevant"), 0700U);
  EXPECT_TRUE(files.MakeFolder(folder.Model("Korvel/Brevant")));
  EXPECT_TRUE(files.ReplaceFile(folder.Model("Korvel/Brevant/Brevant.ini"), "x"));
}

TEST_F(DiskFiles, MakesNoSecondFolderInOtherCase) {
  folder.MakeFolder("Korvel");
  EXPECT_TRUE(files.MakeFolder(folder.Model("KORVEL/brevant")));
  EXPECT_THAT(folder.Names(), ElementsAre("Korvel"));
  EXPECT_TRUE(std::filesystem::is_directory(folder.Native("Korvel/brevant")));
}

TEST_F(DiskFiles, MakesNoFolderWhereAFileStands) {
  folder.Write("Korvel");
  EXPECT_FALSE(files.MakeFolder(folder.Model("Korvel")));
  EXPECT_FALSE(files.MakeFolder(folder.Model("Korvel/Brevant")));
  EXPECT_FALSE(files.MakeFolder(u""));
}

TEST_F(DiskFiles, DeletesAFile) {
  folder.Write("a.ini");
  EXPECT_TRUE(files.DeleteFile(folder.Model("a.ini")));
  EXPECT_THAT(folder.Names(), IsEmpty());
  EXPECT_TRUE(files.DeleteFile(folder.Model("a.ini")));
  folder.Write("Brevant.INI");
  EXPECT_TRUE(files.DeleteFile(folder.Model("brevant.ini")));
  EXPECT_THAT(folder.Names(), IsEmpty());
}

TEST_F(DiskFiles, DeletesALinkAndNotItsTarget) {
  folder.Write("a.ini");
  ASSERT_EQ(symlink("a.ini", folder.Native("link.ini").c_str()), 0);
  EXPECT_TRUE(files.DeleteFile(folder.Model("link.ini")));
  EXPECT_THAT(folder.Names(), ElementsAre("a.ini"));
}

TEST_F(DiskFiles, DoesNotDeleteAFolder) {
  folder.Write("a.ini/b");
  EXPECT_FALSE(files.DeleteFile(folder.Model("a.ini")));
  EXPECT_TRUE(std::filesystem::exists(folder.Native("a.ini/b")));
}

}  // namespace
}  // namespace brevant
