#include "text/ini_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(IniText, AMissingOrEmptyNumberGivesTheFallback) {
  const auto ini = TCIniText::Parse("[S]\r\nk=\r\nq=\"\"\r\n");
  EXPECT_EQ(ini.GetInt(u"S", u"k", 5), 5);
  EXPECT_EQ(ini.GetInt(u"S", u"q", 5), 5);
  EXPECT_EQ(ini.GetInt(u"S", u"missing", 5), 5);
  EXPECT_EQ(ini.GetInt(u"Missing", u"k", 5), 5);
  EXPECT_EQ(TCIniText().GetInt(u"S", u"k", 5), 5);
}

TEST(IniText, TrailingBlanksOfAValueAreTrimmed) {
  const auto ini = TCIniText::Parse("[S]\r\nk=   \r\nj=7 \r\nq=  \"abc\"  \r\n");
  EXPECT_EQ(ini.GetString(u"S", u"k", u"DEF"), u"");
  EXPECT_EQ(ini.GetInt(u"S", u"j", 0), 7);
  EXPECT_EQ(ini.GetString(u"S", u"q", u"DEF"), u"abc");
}

TEST(IniText, LinesMayEndInAnyWay) {
  for (const char* bytes :
       {"[S]\nj=1\nk=2\n", "[S]\rj=1\rk=2\r", "[S]\r\r\nj=1\r\r\nk=2", "\r\r[S]\nj=1\r\nk=2\r"}) {
    EXPECT_EQ(TCIniText::Parse(bytes).GetInt(u"S", u"k", 0), 2) << testing::PrintToString(bytes);
  }
  EXPECT_EQ(TCIniText::Parse("[S]\r\r\nk=1\r\r\n").Serialize(), "[S]\r\nk=1\r\n");
  EXPECT_EQ(TCIniText::Parse("[S]\r\rk=1\n\n").Serialize(), "[S]\r\n\r\nk=1\r\n\r\n");
}

TEST(IniText, ManyLongValuesAreReadWhole) {
  const std::string longValue(70'000, 'y');
  const auto ini = TCIniText::Parse("[S]\r\nk=" + longValue + "\r\nj=1\r\n");
  EXPECT_EQ(ini.GetString(u"S", u"k", u"").size(), longValue.size());
  EXPECT_EQ(ini.GetInt(u"S", u"j", 0), 1);
}

TEST(IniText, CommentsAndOtherLinesOutliveEveryChange) {
  auto ini = TCIniText::Parse("; head\n\n[S] ; mine\n  a =  1 \n\n; tail\nno key\n\n[T]\nb=2\n");
  ini.SetString(u"S", u"k", u"v");
  ini.SetString(u"T", u"b", u"3");
  EXPECT_EQ(ini.Serialize(),
            "; head\r\n\r\n[S] ; mine\r\n  a =  1 \r\n\r\n; tail\r\nno key\r\nk=v\r\n\r\n[T]\r\nb=3\r\n");
}

TEST(IniText, AKeyWithoutAnEqualsSignGetsItsValueInPlace) {
  auto ini = TCIniText::Parse("[S]\r\nk\r\nj=1\r\n");
  ini.SetString(u"S", u"k", u"v");
  EXPECT_EQ(ini.Serialize(), "[S]\r\nk=v\r\nj=1\r\n");
}

TEST(IniText, TheFirstOfSeveralEqualSectionsIsTheOne) {
  auto ini = TCIniText::Parse("[S]\r\nk=1\r\n[s]\r\nk=2\r\n");
  EXPECT_EQ(ini.GetInt(u"s", u"k", 0), 1);
  ini.SetString(u"s", u"k", u"3");
  EXPECT_EQ(ini.Serialize(), "[S]\r\nk=3\r\n[s]\r\nk=2\r\n");
}

TEST(IniText, LinesAboveTheFirstHeadingBelongToTheSectionWithoutAName) {
  auto ini = TCIniText::Parse("a=1\r\n[]\r\na=2\r\n[S]\r\n");
  EXPECT_EQ(ini.GetInt(u"", u"a", 0), 1);
  ini.SetString(u"", u"b", u"3");
  EXPECT_EQ(ini.Serialize(), "a=1\r\nb=3\r\n[]\r\na=2\r\n[S]\r\n");
}

TEST(IniText, KeysAreListedInOrder) {
  const auto ini =
      TCIniText::Parse("[Drives]\r\nC=/mnt/c\r\n;D=/mnt/d\r\n e = /mnt/e\r\nno key\r\n[T]\r\nx=1\r\n");
  EXPECT_THAT(ini.Keys(u"drives"), ElementsAre(u"C", u"e"));
  EXPECT_THAT(ini.Keys(u"Missing"), IsEmpty());
}

TEST(IniText, WritesUtf8AndReadsItBack) {
  TCIniText ini;
  ini.SetString(u"S", u"k\u00E9y", u"\u65E5\u672C \U0001F3B5");
  EXPECT_EQ(ini.Serialize(), "[S]\r\nk\xC3\xA9y=\xE6\x97\xA5\xE6\x9C\xAC \xF0\x9F\x8E\xB5\r\n");
  EXPECT_EQ(TCIniText::Parse(ini.Serialize()).GetString(u"S", u"K\u00C9Y", u""), u"\u65E5\u672C \U0001F3B5");
}

TEST(IniText, AValueWithALineBreakReadsTheSameBeforeAndAfterWriting) {
  TCIniText ini;
  ini.SetString(u"S", u"k", u"a\r\nj=1\r\n[T]\r\nx=2");
  EXPECT_EQ(ini.GetString(u"S", u"k", u""), u"a");
  EXPECT_EQ(ini.GetInt(u"S", u"j", 0), 1);
  EXPECT_EQ(ini.GetInt(u"T", u"x", 0), 2);
}

TEST(IniText, AProtectedTextIsGotBackAsItWasButForItsLineBreaks) {
  TCIniText ini;
  for (const std::u16string text : {u"", u"a", u"a b", u" a", u"a\t", u"\va\f", u"\"", u"\"\"", u"\"a\"",
                                    u"'a'", u"\"a'", u" \"a\" ", u"; a"}) {
    ini.SetString(u"S", u"k", TCIniText::Protected(text));
    EXPECT_EQ(TCIniText::Parse(ini.Serialize()).GetString(u"S", u"k", u"DEF"), text);
  }
  ini.SetString(u"S", u"k", TCIniText::Protected(u"a\r\n[T]\nx=2\r"));
  EXPECT_EQ(ini.GetString(u"S", u"k", u""), u"a  [T] x=2 ");
  EXPECT_EQ(ini.Serialize(), "[S]\r\nk=\"a  [T] x=2 \"\r\n");
}

TEST(IniText, AMarkAtTheHeadIsNoTextWhereverItCameFrom) {
  EXPECT_EQ(TCIniText::Parse("\xEF\xBB\xBF\xEF\xBB\xBF[S]\r\n").Serialize(), "[S]\r\n");
  auto ini = TCIniText::Parse("a=1\r\n\xEF\xBB\xBF[S]\r\nk=1\r\n");
  EXPECT_EQ(ini.GetString(u"S", u"k", u"DEF"), u"DEF");
  ini.SetString(u"", u"a", u"2");
  EXPECT_EQ(ini.Serialize(), "a=2\r\n\xEF\xBB\xBF[S]\r\nk=1\r\n") << "no head, so it stays";
}

TEST(IniText, AnyBytesAreReadAsSomething) {
  for (const std::string& bytes : {
           std::string(),
           std::string("\xFF\xFE"),
           std::string("\xFF\xFE["),
           std::string("\xFF\xFE[\0S\0]\0\r\0\n\0k\0=\0\x00\xD8", 18),
           std::string("\xEF\xBB\xBF"),
           std::string("\0\0\0\0", 4),
           std::string("[\n]\n=\n[]]\n]["),
           std::string(1'000'000, '\r'),
           std::string(1'000'000, '['),
           std::string(1'000'000, '='),
       }) {
    const auto ini = TCIniText::Parse(bytes);
    EXPECT_EQ(ini.GetString(u"S", u"j", u"DEF"), u"DEF");
    const std::string written = ini.Serialize();
    EXPECT_EQ(TCIniText::Parse(written).Serialize(), written);
  }
}

}  // namespace
}  // namespace brevant
