#include "lyrics/lyrics.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TCLyricSheet SheetOf(std::vector<TCLyric> lines, TCLyricHeaders headers = {}) {
  return {std::move(lines), std::move(headers)};
}

TCLyricHeaders AllHeaders() {
  return {u"artist", u"album", u"title", u"creator", u"length", u"writer", u"editor", u"version", u"offset"};
}

TEST(Lyrics, AreEmptyAtFirst) {
  const TCSongLyrics lyrics;
  EXPECT_TRUE(lyrics.Empty());
  EXPECT_EQ(lyrics.LineCount(), 0U);
  EXPECT_EQ(lyrics.LineAt(0), TCLyric());
  EXPECT_EQ(lyrics.Artist(), u"");
  EXPECT_EQ(lyrics.Headers(), TCLyricHeaders());
  EXPECT_EQ(lyrics.FindLineAt(0), -1);
}

TEST(Lyrics, ASongWithoutLyricsCostsNoMoreThanAPointer) {
  EXPECT_LE(sizeof(TCSongLyrics), 2 * sizeof(void*));
}

TEST(Lyrics, HoldTheirLinesInOrder) {
  const std::vector<TCLyric> lines = {{u"M: Hello", 2000, 3000, 1},
                                      {u"", 1000, 1500, 0},
                                      {u"F: \u00E9\u20AC\U0001F3B5", -5, kEndOfLyrics, 2}};
  const TCSongLyrics lyrics(SheetOf(lines));
  ASSERT_EQ(lyrics.LineCount(), 3U);
  EXPECT_FALSE(lyrics.Empty());
  for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(lyrics.LineAt(i), lines[i]);
  EXPECT_EQ(lyrics.LineAt(3), TCLyric());
}

TEST(Lyrics, HoldTheirHeaderValues) {
  const TCSongLyrics lyrics(SheetOf({{u"line", 0, 1, 0}}, AllHeaders()));
  EXPECT_EQ(lyrics.Artist(), u"artist");
  EXPECT_EQ(lyrics.Album(), u"album");
  EXPECT_EQ(lyrics.Title(), u"title");
  EXPECT_EQ(lyrics.SongCreator(), u"creator");
  EXPECT_EQ(lyrics.Length(), u"length");
  EXPECT_EQ(lyrics.LyricWriter(), u"writer");
  EXPECT_EQ(lyrics.Editor(), u"editor");
  EXPECT_EQ(lyrics.Version(), u"version");
  EXPECT_EQ(lyrics.Offset(), u"offset");
  EXPECT_EQ(lyrics.Headers(), AllHeaders());
  EXPECT_EQ(lyrics.LineAt(0).text, u"line");
}

TEST(Lyrics, WithHeaderValuesAloneAreEmptyOfLines) {
  const TCSongLyrics lyrics(SheetOf({}, AllHeaders()));
  EXPECT_TRUE(lyrics.Empty());
  EXPECT_EQ(lyrics.Title(), u"title");
}

TEST(Lyrics, OfEveryScriptComeBackAsTheyWere) {
  TCLyricHeaders headers;
  headers.title = u"\u65E5\u672C\u8A9E";
  // Mostly three-byte characters, which are held as UTF-16.
  const TCSongLyrics wide(SheetOf({{u"\u65E5\u672C", 0, 1, 0}, {u"\u8A9E", 1, 2, 0}}, headers));
  EXPECT_EQ(wide.Title(), headers.title);
  EXPECT_EQ(wide.LineAt(0).text, u"\u65E5\u672C");
  EXPECT_EQ(wide.LineAt(1).text, u"\u8A9E");
}

TEST(Lyrics, KeepLoneSurrogatesAndZeros) {
  using namespace std::string_literals;
  const std::u16string high(1, static_cast<char16_t>(0xD83C));
  const std::u16string low(1, static_cast<char16_t>(0xDFB5));
  const TCSongLyrics lyrics(SheetOf({{u"a" + high, 0, 1, 0}, {low + u"b", 1, 2, 0}, {u"c\0d"s, 2, 3, 0}}));
  EXPECT_EQ(lyrics.LineAt(0).text, u"a" + high);
  EXPECT_EQ(lyrics.LineAt(1).text, low + u"b");
  EXPECT_EQ(lyrics.LineAt(2).text, u"c\0d"s);
}

TEST(Lyrics, ASingerThatNobodyKnowsIsNoSinger) {
  const TCSongLyrics lyrics(SheetOf({{u"a", 0, 1, 4}, {u"b", 0, 1, -1}, {u"c", 0, 1, 3}}));
  EXPECT_EQ(lyrics.LineAt(0).singer, 0);
  EXPECT_EQ(lyrics.LineAt(1).singer, 0);
  EXPECT_EQ(lyrics.LineAt(2).singer, 3);
}

TEST(Lyrics, ACopyHoldsTheSameAndOutlivesTheOriginal) {
  TCSongLyrics original(SheetOf({{u"line", 1, 2, 3}}, AllHeaders()));
  const TCSongLyrics copy = original;
  EXPECT_EQ(copy, original);
  original = TCSongLyrics();
  EXPECT_EQ(copy.LineAt(0).text, u"line");
  EXPECT_NE(copy, original);
}

TEST(Lyrics, AreEqualWhenLinesAndHeaderValuesAre) {
  const TCSongLyrics one(SheetOf({{u"line", 1, 2, 3}}, AllHeaders()));
  EXPECT_EQ(one, TCSongLyrics(SheetOf({{u"line", 1, 2, 3}}, AllHeaders())));
  EXPECT_NE(one, TCSongLyrics(SheetOf({{u"line", 1, 2, 3}})));
  EXPECT_NE(one, TCSongLyrics(SheetOf({{u"line", 1, 3, 3}}, AllHeaders())));
  EXPECT_NE(one, TCSongLyrics(SheetOf({{u"other", 1, 2, 3}}, AllHeaders())));
  EXPECT_NE(one, TCSongLyrics(SheetOf({{u"line", 1, 2, 3}, {u"line", 1, 2, 3}}, AllHeaders())));
  EXPECT_EQ(TCSongLyrics(), TCSongLyrics(TCLyricSheet()));
}

}  // namespace
}  // namespace brevant
