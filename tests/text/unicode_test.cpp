#include "text/unicode.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(Unicode, ReadsUtf8OfEveryLength) {
  EXPECT_EQ(DecodeUtf8("a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\xB5"), u"a\u00E9\u20AC\U0001F3B5");
  EXPECT_EQ(DecodeUtf8(""), u"");
  EXPECT_EQ(DecodeUtf8(std::string_view("a\0b", 3)), std::u16string(u"a\0b", 3));
  EXPECT_EQ(DecodeUtf8("\xF4\x8F\xBF\xBF"), u"\U0010FFFF");
}

TEST(Unicode, TellsUtf8WithoutReadingIt) {
  for (const char* bytes :
       {"", "a", "12345678", "12345678\xC3\xA9", "a\xE2\x82\xAC\xF0\x9F\x8E\xB5 12345678"}) {
    EXPECT_TRUE(IsUtf8(bytes)) << bytes;
  }
  EXPECT_FALSE(IsUtf8("12345678\xE9"));
  EXPECT_TRUE(IsAscii("1234567890"));
  EXPECT_FALSE(IsAscii("12345678\xE9"));
  EXPECT_FALSE(IsAscii("\xC3\xA9"));
  EXPECT_FALSE(IsUtf8("1234567\xC3"));
}

TEST(Unicode, RefusesWhatIsNoUtf8) {
  for (const char* bytes : {
           "\x80",              // a continuation alone
           "\xC3",              // cut off
           "\xE2\x82",          //
           "\xF0\x9F\x8E",      //
           "\xC3(",             // no continuation
           "\xC0\x80",          // overlong
           "\xE0\x80\xAF",      //
           "\xF0\x80\x80\x80",  //
           "\xED\xA0\x80",      // a surrogate
           "\xF4\x90\x80\x80",  // past the last code point
           "\xF8\x88\x80\x80\x80",
           "\xFF",
           "caf\xE9",
       }) {
    EXPECT_EQ(DecodeUtf8(bytes), std::nullopt) << testing::PrintToString(bytes);
    EXPECT_FALSE(IsUtf8(bytes)) << testing::PrintToString(bytes);
  }
}

TEST(Unicode, Windows1252HasACharacterForEveryByte) {
  EXPECT_EQ(DecodeWindows1252("A\x80\x85\x92\x9F\xA0\xE9\xFF"),
            u"A\u20AC\u2026\u2019\u0178\u00A0\u00E9\u00FF");
  EXPECT_EQ(DecodeWindows1252("\x81\x8D\x8F\x90\x9D"), u"\u0081\u008D\u008F\u0090\u009D");
}

TEST(Unicode, EightBitTextIsUtf8AsAWholeOrWindows1252AsAWhole) {
  EXPECT_EQ(DecodeAnsi("caf\xC3\xA9"), u"caf\u00E9");
  EXPECT_EQ(DecodeAnsi("caf\xE9"), u"caf\u00E9");
  EXPECT_EQ(DecodeAnsi("caf\xC3\xA9 caf\xE9"), u"caf\u00C3\u00A9 caf\u00E9");
}

TEST(Unicode, AUtf8MarkStaysInTheText) {
  EXPECT_EQ(DecodeAnsi("\xEF\xBB\xBF[ti:"), u"\uFEFF[ti:");
}

TEST(Unicode, WritesUtf8) {
  EXPECT_EQ(EncodeUtf8(u"a\u00E9\u20AC\U0001F3B5"), "a\xC3\xA9\xE2\x82\xAC\xF0\x9F\x8E\xB5");
}

TEST(Unicode, IsAppendedToWhatStandsThere) {
  std::string bytes = "a";
  AppendUtf8(bytes, u"b\u00E9");
  AppendUtf8(bytes, u"");
  AppendUtf8(bytes, u"c");
  EXPECT_EQ(bytes,
            "ab\xC3\xA9"
            "c");
}

TEST(Unicode, ALoneSurrogateIsWrittenAsTheReplacementCharacter) {
  const std::u16string high(1, static_cast<char16_t>(0xD83C));
  const std::u16string low(1, static_cast<char16_t>(0xDFB5));
  EXPECT_EQ(EncodeUtf8(high), "\xEF\xBF\xBD");
  EXPECT_EQ(EncodeUtf8(low + u"a"),
            "\xEF\xBF\xBD"
            "a");
  EXPECT_EQ(EncodeUtf8(low + high), "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(EncodeUtf8(high + high + low), "\xEF\xBF\xBD\xF0\x9F\x8E\xB5");
}

TEST(Unicode, ASurrogateIsLoneUnlessAHighOneStandsInFrontOfALowOne) {
  const std::u16string high(1, static_cast<char16_t>(0xD83C));
  const std::u16string low(1, static_cast<char16_t>(0xDFB5));
  EXPECT_EQ(FindLoneSurrogate(u""), std::u16string::npos);
  EXPECT_EQ(FindLoneSurrogate(u"a\uD7FF\uE000" + high + low), std::u16string::npos);
  EXPECT_EQ(FindLoneSurrogate(u"a" + high), 1U);
  EXPECT_EQ(FindLoneSurrogate(high + u"a"), 0U);
  EXPECT_EQ(FindLoneSurrogate(high + low + low), 2U);
  EXPECT_EQ(FindLoneSurrogate(high + high + low), 0U);
  EXPECT_EQ(FindLoneSurrogate(low + high), 0U);
}

TEST(Unicode, EveryCodePointComesBack) {
  for (char32_t codePoint = 0; codePoint <= 0x10FFFF; ++codePoint) {
    if (codePoint >= 0xD800 && codePoint <= 0xDFFF) continue;
    std::u16string text;
    if (codePoint < 0x10000) {
      text.push_back(static_cast<char16_t>(codePoint));
    } else {
      text.push_back(static_cast<char16_t>(0xD7C0 + (codePoint >> 10)));
      text.push_back(static_cast<char16_t>(0xDC00 + (codePoint & 0x3FF)));
    }
    ASSERT_EQ(DecodeUtf8(EncodeUtf8(text)), text) << static_cast<std::uint32_t>(codePoint);
  }
}

}  // namespace
}  // namespace brevant
