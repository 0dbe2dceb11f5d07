#include "text/path_parts.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(PathParts, OfAFullPath) {
  EXPECT_EQ(FileNamePart(u"C:\\Music\\a.mp3"), u"a.mp3");
  EXPECT_EQ(FolderPart(u"C:\\Music\\a.mp3"), u"C:\\Music\\");
  EXPECT_EQ(ExtensionPart(u"C:\\Music\\a.mp3"), u"mp3");
  EXPECT_EQ(PathWithoutExtension(u"C:\\Music\\a.mp3"), u"C:\\Music\\a");
}

TEST(PathParts, OfABareName) {
  EXPECT_EQ(FileNamePart(u"a.mp3"), u"a.mp3");
  EXPECT_EQ(FolderPart(u"a.mp3"), u"");
  EXPECT_EQ(PathWithoutExtension(u"a.mp3"), u"a");
}

TEST(PathParts, OfAnEmptyTextAreEmpty) {
  EXPECT_EQ(FileNamePart(u""), u"");
  EXPECT_EQ(FolderPart(u""), u"");
  EXPECT_EQ(ExtensionPart(u""), u"");
  EXPECT_EQ(PathWithoutExtension(u""), u"");
}

TEST(PathParts, AGreaterThanSignSeparatesLikeABackslash) {
  EXPECT_EQ(FileNamePart(u"Set>Song.mp3"), u"Song.mp3");
  EXPECT_EQ(FolderPart(u"Set>Song.mp3"), u"Set>");
}

TEST(PathParts, ASeparatorInTheFirstCharacterIsNotSeen) {
  EXPECT_EQ(FileNamePart(u"\\a.mp3"), u"\\a.mp3");
  EXPECT_EQ(FolderPart(u"\\a.mp3"), u"");
  EXPECT_EQ(FileNamePart(u"\\b\\a.mp3"), u"a.mp3");
  EXPECT_EQ(FileNamePart(u">"), u">");
}

TEST(PathParts, ATrailingSeparatorLeavesNoFileName) {
  EXPECT_EQ(FileNamePart(u"C:\\Music\\"), u"");
  EXPECT_EQ(FolderPart(u"C:\\Music\\"), u"C:\\Music\\");
}

TEST(PathParts, ASlashIsPartOfTheName) {
  EXPECT_EQ(FileNamePart(u"C:\\Music/a.mp3"), u"Music/a.mp3");
}

TEST(PathParts, TheFolderLosesLeadingWhiteSpaceOnly) {
  EXPECT_EQ(FolderPart(u" \tC:\\My Music \\a.mp3"), u"C:\\My Music \\");
  EXPECT_EQ(FileNamePart(u"C:\\ a.mp3"), u" a.mp3");
}

TEST(PathParts, TheLastDotOpensTheTypeEvenInsideAFolderName) {
  EXPECT_EQ(ExtensionPart(u"C:\\My.Folder\\song"), u"Folder\\song");
  EXPECT_EQ(ExtensionPart(u"a.b.wav"), u"wav");
  EXPECT_EQ(ExtensionPart(u"song"), u"");
  EXPECT_EQ(ExtensionPart(u"song."), u"");
}

TEST(PathParts, ANameWithoutADotIsKeptWhole) {
  EXPECT_EQ(PathWithoutExtension(u"C:\\My.Folder\\song"), u"C:\\My.Folder\\song");
  EXPECT_EQ(PathWithoutExtension(u"C:\\a.b.wav"), u"C:\\a.b");
}

TEST(PathParts, ReplacingTheTypeKeepsFolderAndName) {
  EXPECT_EQ(ReplaceExtension(u"C:\\M\\a.wav", u"mp3"), u"C:\\M\\a.mp3");
  EXPECT_EQ(ReplaceExtension(u"C:\\M\\track", u"mp3"), u"C:\\M\\track.mp3");
  EXPECT_EQ(ReplaceExtension(u"C:\\M\\a.b.wav", u"mp3"), u"C:\\M\\a.b.mp3");
  EXPECT_EQ(ReplaceExtension(u"C:\\M.N\\track", u"mp3"), u"C:\\M.N\\track.mp3");
  EXPECT_EQ(ReplaceExtension(u"", u"lrc"), u".lrc");
}

}  // namespace
}  // namespace brevant
