#include "lyrics/lyrics.h"

#include <gtest/gtest.h>

#include <limits>

#include "support/lyrics_of.h"

namespace brevant {
namespace {

TCLyricHeaders AllHeaders() {
  return {u"artist", u"album", u"title", u"creator", u"length", u"writer", u"editor", u"version", u"offset"};
}

TEST(Lyrics, AreEmptyAtFirst) {
  const TCSongLyrics lyrics;
  EXPECT_TRUE(lyrics.Empty());
  EXPECT_TRUE(lyrics.HoldsNothing());
  EXPECT_EQ(lyrics.LineCount(), 0U);
  EXPECT_EQ(LineOf(lyrics, 0), TCLyric());
  EXPECT_EQ(lyrics.Headers().artist, u"");
  EXPECT_EQ(lyrics.Headers(), TCLyricHeaders());
  EXPECT_EQ(lyrics.FindLineAt(0), -1);
}

TEST(Lyrics, ASongWithoutLyricsCostsTwoPointersAndNoMore) {
  EXPECT_LE(sizeof(TCSongLyrics), 2 * sizeof(void*));
}

TEST(Lyrics, HoldTheirLinesInOrder) {
  const std::vector<TCLyric> lines = {{u"M: Hello", 2000, 3000, 1},
                                      {u"", 1000, 1500, 0},
                                      {u"F: \u00E9\u20AC\U0001F3B5", -5, kEndOfLyrics, 2}};
  const TCSongLyrics lyrics = LyricsOf(lines);
  ASSERT_EQ(lyrics.LineCount(), 3U);
  EXPECT_FALSE(lyrics.Empty());
  for (std::size_t i = 0; i < lines.size(); ++i) EXPECT_EQ(LineOf(lyrics, i), lines[i]);
  EXPECT_EQ(LineOf(lyrics, 3), TCLyric());
}

TEST(Lyrics, HoldTheirHeaderValues) {
  const TCSongLyrics lyrics = LyricsOf({{u"line", 0, 1, 0}}, AllHeaders());
  EXPECT_EQ(lyrics.Headers().artist, u"artist");
  EXPECT_EQ(lyrics.Headers().album, u"album");
  EXPECT_EQ(lyrics.Headers().title, u"title");
  EXPECT_EQ(lyrics.Headers().songCreator, u"creator");
  EXPECT_EQ(lyrics.Headers().length, u"length");
  EXPECT_EQ(lyrics.Headers().lyricWriter, u"writer");
  EXPECT_EQ(lyrics.Headers().editor, u"editor");
  EXPECT_EQ(lyrics.Headers().version, u"version");
  EXPECT_EQ(lyrics.Headers().offset, u"offset");
  EXPECT_EQ(lyrics.Headers(), AllHeaders());
  EXPECT_EQ(LineOf(lyrics, 0).text, u"line");
}

TEST(Lyrics, WithHeaderValuesAloneAreEmptyOfLines) {
  const TCSongLyrics lyrics = LyricsOf({}, AllHeaders());
  EXPECT_TRUE(lyrics.Empty());
  EXPECT_FALSE(lyrics.HoldsNothing());
  EXPECT_EQ(lyrics.Headers().title, u"title");
}

TEST(Lyrics, OfEveryScriptComeBackAsTheyWere) {
  TCLyricHeaders headers;
  headers.title = u"\u65E5\u672C\u8A9E";
  const TCSongLyrics wide = LyricsOf({{u"\u65E5\u672C", 0, 1, 0}, {u"\u8A9E", 1, 2, 0}}, headers);
  EXPECT_EQ(wide.Headers().title, headers.title);
  EXPECT_EQ(LineOf(wide, 0).text, u"\u65E5\u672C");
  EXPECT_EQ(LineOf(wide, 1).text, u"\u8A9E");
}

TEST(Lyrics, KeepLoneSurrogatesAndZeros) {
  using namespace std::string_literals;
  const std::u16string high(1, static_cast<char16_t>(0xD83C));
  const std::u16string low(1, static_cast<char16_t>(0xDFB5));
  const TCSongLyrics lyrics = LyricsOf({{u"a" + high, 0, 1, 0}, {low + u"b", 1, 2, 0}, {u"c\0d"s, 2, 3, 0}});
  EXPECT_EQ(LineOf(lyrics, 0).text, u"a" + high);
  EXPECT_EQ(LineOf(lyrics, 1).text, low + u"b");
  EXPECT_EQ(LineOf(lyrics, 2).text, u"c\0d"s);

  const std::u16string halves = low + high + u"\uD7FF\uE000\U0001F3B5" + high + high;
  EXPECT_EQ(LineOf(LyricsOf({{halves, 0, 1, 0}}), 0).text, halves);
}

TEST(Lyrics, KeepEveryTime) {
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  const std::vector<TCLyric> lines = {
      {u"a", kLeast, kMost, 0}, {u"b", kMost, kLeast, 3}, {u"c", kLeast, kLeast, 1}, {u"d", -1, 0, 2},
      {u"e", 63, 127, 0},       {u"f", 64, 128, 0},       {u"g", -64, -65, 0},       {u"h", 8191, 8192, 0}};
  EXPECT_EQ(LyricsOf(lines).LinesFrom(0, 100), lines);
}

TEST(Lyrics, KeepATextOfAnyLength) {
  for (const std::size_t length : {0U, 1U, 31U, 32U, 4095U, 4096U, 1000000U}) {
    const std::u16string text(length, u'x');
    const TCSongLyrics lyrics = LyricsOf({{text, 0, 1, 3}, {u"after", 1, 2, 0}});
    EXPECT_EQ(LineOf(lyrics, 0).text, text);
    EXPECT_EQ(LineOf(lyrics, 1).text, u"after");
  }
}

TEST(Lyrics, GiveSeveralLinesAtOnce) {
  const TCSongLyrics lyrics = LyricsOf({{u"a", 0, 1, 0}, {u"b", 1, 2, 0}, {u"c", 2, 3, 0}});
  EXPECT_EQ(lyrics.LinesFrom(1, 1), (std::vector<TCLyric>{{u"b", 1, 2, 0}}));
  EXPECT_EQ(lyrics.LinesFrom(1, 100).size(), 2U);
  EXPECT_TRUE(lyrics.LinesFrom(3, 1).empty());
  EXPECT_TRUE(TCSongLyrics().LinesFrom(0, 1).empty());
}

TEST(Lyrics, ASingerThatNobodyKnowsIsNoSinger) {
  const TCSongLyrics lyrics = LyricsOf({{u"a", 0, 1, 4}, {u"b", 0, 1, -1}, {u"c", 0, 1, 3}});
  EXPECT_EQ(LineOf(lyrics, 0).singer, 0);
  EXPECT_EQ(LineOf(lyrics, 1).singer, 0);
  EXPECT_EQ(LineOf(lyrics, 2).singer, 3);
}

TEST(Lyrics, ACopyHoldsTheSameAndOutlivesTheOriginal) {
  TCSongLyrics original = LyricsOf({{u"line", 1, 2, 3}}, AllHeaders());
  const TCSongLyrics copy = original;
  EXPECT_EQ(copy, original);
  original = TCSongLyrics();
  EXPECT_EQ(LineOf(copy, 0).text, u"line");
  EXPECT_NE(copy, original);
}

TEST(Lyrics, AreEqualWhenLinesAndHeaderValuesAre) {
  const TCSongLyrics one = LyricsOf({{u"line", 1, 2, 3}}, AllHeaders());
  EXPECT_EQ(one, LyricsOf({{u"line", 1, 2, 3}}, AllHeaders()));
  EXPECT_NE(one, LyricsOf({{u"line", 1, 2, 3}}));
  EXPECT_NE(one, LyricsOf({{u"line", 1, 3, 3}}, AllHeaders()));
  EXPECT_NE(one, LyricsOf({{u"other", 1, 2, 3}}, AllHeaders()));
  EXPECT_NE(one, LyricsOf({{u"line", 1, 2, 3}, {u"line", 1, 2, 3}}, AllHeaders()));
  EXPECT_EQ(TCSongLyrics(), TCSongLyrics(TCLyricSheet()));
}

}  // namespace
}  // namespace brevant
