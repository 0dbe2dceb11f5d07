#include "text/native_path.h"

#include <gtest/gtest.h>
#include <unistd.h>

#include "support/temp_folder.h"

namespace brevant {
namespace {

using namespace std::string_literals;

TEST(NativePaths, BackslashesBecomeSlashes) {
  const TCNativePaths paths;
  EXPECT_EQ(paths.ToNative(u"\\home\\me\\a.mp3"), "/home/me/a.mp3");
  EXPECT_EQ(paths.ToNative(u"songs\\encore.mid"), "songs/encore.mid");
  EXPECT_EQ(paths.ToNative(u"/home/me\\a.mp3"), "/home/me/a.mp3");
  EXPECT_EQ(paths.ToNative(u"\\\\server\\x\\a.mp3"), "//server/x/a.mp3");
  EXPECT_EQ(paths.ToNative(u""), "");
}

TEST(NativePaths, ADriveLetterBecomesItsFolder) {
  const TCNativePaths paths({{'C', "/home/me/music"}, {'D', "/"}, {'E', "/mnt/e/"}, {'F', "/odd\\name"}});
  EXPECT_EQ(paths.ToNative(u"C:\\Sets\\a.mp3"), "/home/me/music/Sets/a.mp3");
  EXPECT_EQ(paths.ToNative(u"c:\\a.mp3"), "/home/me/music/a.mp3");
  EXPECT_EQ(paths.ToNative(u"C:/a.mp3"), "/home/me/music/a.mp3");
  EXPECT_EQ(paths.ToNative(u"C:a.mp3"), "/home/me/music/a.mp3");
  EXPECT_EQ(paths.ToNative(u"C:"), "/home/me/music");
  EXPECT_EQ(paths.ToNative(u"C:\\"), "/home/me/music/");
  EXPECT_EQ(paths.ToNative(u"D:\\a.mp3"), "/a.mp3");
  EXPECT_EQ(paths.ToNative(u"D:"), "/");
  EXPECT_EQ(paths.ToNative(u"E:\\a.mp3"), "/mnt/e/a.mp3");
  EXPECT_EQ(paths.ToNative(u"F:\\a.mp3"), "/odd\\name/a.mp3");
}

TEST(NativePaths, ADriveWithoutAFolderStaysAsItIsWritten) {
  const TCNativePaths paths({{'C', "/home/me/music"}, {'E', ""}});
  EXPECT_EQ(paths.ToNative(u"D:\\Music\\a.mp3"), "D:/Music/a.mp3");
  EXPECT_EQ(paths.ToNative(u"E:\\a.mp3"), "E:/a.mp3");
  EXPECT_EQ(paths.ToNative(u"1:\\a.mp3"), "1:/a.mp3");
  EXPECT_EQ(paths.ToNative(u"\u00C4:\\a.mp3"), "\xC3\x84:/a.mp3");
}

TEST(NativePaths, NamesAreUtf8) {
  EXPECT_EQ(TCNativePaths().ToNative(u"\\\u00C9t\u00E9\\\U0001F3B5.mp3"),
            "/\xC3\x89t\xC3\xA9/\xF0\x9F\x8E\xB5.mp3");
}

TEST(NativePaths, WhatNoNameCanHoldNamesNothing) {
  const TCNativePaths paths;
  EXPECT_EQ(paths.ToNative(u"\\a\0b.mp3"s), "");
  EXPECT_EQ(paths.ToNative(u"\\a" + std::u16string(1, static_cast<char16_t>(0xD83C))), "");
  EXPECT_EQ(paths.ToNative(u"\\a" + std::u16string(1, static_cast<char16_t>(0xDFB5)) + u"b"), "");
}

TEST(NativePaths, AFileOfTheSystemsComesBackWithBackslashes) {
  EXPECT_EQ(TCNativePaths::FromNative("/home/me/a.mp3"), u"\\home\\me\\a.mp3");
  EXPECT_EQ(TCNativePaths::FromNative("/\xC3\x89t\xC3\xA9.mp3"), u"\\\u00C9t\u00E9.mp3");
  EXPECT_EQ(TCNativePaths().ToNative(TCNativePaths::FromNative("/a/b c.mp3").value()), "/a/b c.mp3");
}

TEST(NativePaths, WhatTheModelCannotHoldIsRefused) {
  for (const std::string& name :
       {"/a\\b.mp3"s, "/a\"b.mp3"s, "/a\rb.mp3"s, "/a\nb.mp3"s, "/a\0b.mp3"s, "/caf\xE9.mp3"s, "C:/a.mp3"s}) {
    EXPECT_EQ(TCNativePaths::FromNative(name), std::nullopt) << testing::PrintToString(name);
  }
}

TEST(NativePaths, AFileIsFoundAsItIsWritten) {
  const TCTempFolder folder;
  folder.Write("Music/a.mp3");
  folder.Write("Music/A.mp3");
  EXPECT_EQ(TCNativePaths().FindOnDisk(folder.Model("Music/a.mp3")), folder.Native("Music/a.mp3"));
  EXPECT_EQ(TCNativePaths().FindOnDisk(folder.Model("Music/A.mp3")), folder.Native("Music/A.mp3"));
}

TEST(NativePaths, AFileIsFoundInOtherCase) {
  const TCTempFolder folder;
  folder.Write("Music/\xC3\x89t\xC3\xA9/Song.MP3");
  EXPECT_EQ(TCNativePaths().FindOnDisk(folder.Model("MUSIC/\xC3\xA9T\xC3\x89/song.mp3")),
            folder.Native("Music/\xC3\x89t\xC3\xA9/Song.MP3"));
}

TEST(NativePaths, AFolderIsFoundInOtherCase) {
  const TCTempFolder folder;
  folder.MakeFolder("Music/Sets");
  EXPECT_EQ(TCNativePaths().FindOnDisk(folder.Model("music/SETS")), folder.Native("Music/Sets"));
  EXPECT_EQ(TCNativePaths().FindOnDisk(folder.Model("music/SETS/")), folder.Native("Music/Sets"));
}

TEST(NativePaths, AFileOnADriveIsFoundInOtherCase) {
  const TCTempFolder folder;
  folder.Write("Music/Song.mp3");
  const TCNativePaths paths({{'C', folder.Native("")}});
  EXPECT_EQ(paths.FindOnDisk(u"C:\\MUSIC\\SONG.MP3"), folder.Native("Music/Song.mp3"));
}

TEST(NativePaths, TheSearchGoesThroughEveryFolderThatIsMeant) {
  const TCTempFolder folder;
  folder.MakeFolder("music");
  folder.MakeFolder("MUSIC/Sets");
  folder.Write("Music/sets/a.mp3");
  EXPECT_EQ(TCNativePaths().FindOnDisk(folder.Model("music/Sets/A.mp3")), folder.Native("Music/sets/a.mp3"));
}

TEST(NativePaths, TheSearchGoesThroughFilesThatStandWhereAFolderIsMeant) {
  const TCTempFolder folder;
  folder.Write("music");
  folder.Write("Music/a.mp3");
  EXPECT_EQ(TCNativePaths().FindOnDisk(folder.Model("music/a.mp3")), folder.Native("Music/a.mp3"));
}

TEST(NativePaths, NamesThatAreNotUtf8AreNotInTheWay) {
  const TCTempFolder folder;
  folder.Write("Music/\xE9.mp3");
  folder.Write("Music/Song.mp3");
  EXPECT_EQ(TCNativePaths().FindOnDisk(folder.Model("Music/SONG.mp3")), folder.Native("Music/Song.mp3"));
}

TEST(NativePaths, ALinkThatLeadsNowhereIsNotWhatIsMeant) {
  const TCTempFolder folder;
  folder.Write("Song.mp3");
  ASSERT_EQ(symlink("nowhere", folder.Native("song.mp3").c_str()), 0);
  EXPECT_EQ(TCNativePaths().FindOnDisk(folder.Model("song.mp3")), folder.Native("Song.mp3"));
}

TEST(NativePaths, WhatIsNotThereKeepsItsOwnName) {
  const TCTempFolder folder;
  folder.Write("Music/a.mp3");
  EXPECT_EQ(TCNativePaths().FindOnDisk(folder.Model("Music/b.mp3")), folder.Native("Music/b.mp3"));
  EXPECT_EQ(TCNativePaths().FindOnDisk(folder.Model("music/a.mp3/x")), folder.Native("music/a.mp3/x"));
  EXPECT_EQ(TCNativePaths().FindOnDisk(u""), "");
  const std::u16string endless(10'000, u'\\');
  EXPECT_EQ(TCNativePaths().FindOnDisk(endless + u"a").size(), 10'001U);
}

}  // namespace
}  // namespace brevant
