#include "text/native_path.h"

#include <gtest/gtest.h>

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

}  // namespace
}  // namespace brevant
