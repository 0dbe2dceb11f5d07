#include "app/desktop/drive_folders.h"

#include <gtest/gtest.h>

#include "support/memory_files.h"

namespace brevant {
namespace {

TCNativePaths::DriveFolders Read(std::string_view profile) {
  TCMemoryFiles files;
  files.Put(u"\\conf\\Profile.ini", std::string(profile));
  return ReadDriveFolders(files, u"\\conf\\");
}

TEST(DriveFolders, AreNoneWithoutAProfile) {
  TCMemoryFiles files;
  EXPECT_TRUE(ReadDriveFolders(files, u"\\conf\\").empty());
}

TEST(DriveFolders, ComeFromTheirSection) {
  const TCNativePaths::DriveFolders expected = {{'C', "/home/me/music"}, {'D', "/srv/b\xC3\xBChne"}};
  EXPECT_EQ(Read("[Other]\r\nE=/e\r\n[Drives]\r\nC=/home/me/music\r\nd=/srv/b\xC3\xBChne/\r\n"), expected);
}

TEST(DriveFolders, IgnoreWhatIsNoLetterOrNoAbsoluteFolder) {
  EXPECT_TRUE(Read("[Drives]\r\nCD=/a\r\n1=/b\r\nC=\r\nD=relative\r\n").empty());
}

TEST(DriveFolders, TheFirstEntryOfALetterCounts) {
  const TCNativePaths::DriveFolders expected = {{'C', "/first"}};
  EXPECT_EQ(Read("[Drives]\r\nC=/first\r\nc=/second\r\n"), expected);
}

}  // namespace
}  // namespace brevant
