#include "lyrics/lyric_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>
#include <random>

#include "support/lyrics_of.h"
#include "support/memory_files.h"

namespace brevant {
namespace {

using testing::ElementsAre;

constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();

// What one line alone says.
struct ParsedLine {
  std::vector<TCLyric> lines;
  TCLyricHeaders headers;
};

ParsedLine ParseLine(std::u16string_view line) {
  TCLyricSheet sheet;
  ParseLyricLine(line, sheet);
  return {TCSongLyrics(sheet).LinesFrom(0, 2), sheet.headers};
}

bool SaysNothing(const ParsedLine& parsed) {
  return parsed.lines.empty() && parsed.headers == TCLyricHeaders();
}

class LyricFile : public testing::Test {
 protected:
  // Loads what `bytes` say as the song's .lrc file into fresh lyrics.
  TCSongLyrics Load(std::string bytes) {
    files.Put(u"C:\\Music\\Song.lrc", std::move(bytes));
    TCSongLyrics lyrics;
    EXPECT_TRUE(LoadLyrics(files, u"C:\\Music\\Song.mp3", lyrics));
    return lyrics;
  }

  TCMemoryFiles files;
};

// --- The time of a tag.

TEST(LyricTime, AddsTheFractionAsMillisecondsWhateverItsLength) {
  EXPECT_EQ(ParseLyricTime(u"01:02.50"), 62'050);
  EXPECT_EQ(ParseLyricTime(u"01:02.500"), 62'500);
  EXPECT_EQ(ParseLyricTime(u"00:10.00"), 10'000);
  EXPECT_EQ(ParseLyricTime(u"00:00.12345"), 12'345);
}

TEST(LyricTime, WithoutAPointIsWholeSeconds) {
  EXPECT_EQ(ParseLyricTime(u"01:02"), 62'000);
}

TEST(LyricTime, WithoutAColonIsZero) {
  EXPECT_EQ(ParseLyricTime(u"62.5"), 0);
  EXPECT_EQ(ParseLyricTime(u""), 0);
}

TEST(LyricTime, APartThatIsNoNumberCountsNothing) {
  EXPECT_EQ(ParseLyricTime(u"xx:02.50"), 2'050);
  EXPECT_EQ(ParseLyricTime(u"01:xx.50"), 60'050);
  EXPECT_EQ(ParseLyricTime(u"01:02.xx"), 62'000);
  EXPECT_EQ(ParseLyricTime(u":."), 0);
}

TEST(LyricTime, ReadsItsPartsAsSignedDecimalNumbers) {
  EXPECT_EQ(ParseLyricTime(u" 1: +2. 5x"), 62'005);
  EXPECT_EQ(ParseLyricTime(u"-1:02.5"), -57'995);
  EXPECT_EQ(ParseLyricTime(u"1:2:3.4"), 62'004);
  EXPECT_EQ(ParseLyricTime(u"0.5:02"), 2'000);
}

TEST(LyricTime, ThatDoesNotFitStopsAtTheLimit) {
  EXPECT_EQ(ParseLyricTime(u"2147483647:00.0"), kMost);
  EXPECT_EQ(ParseLyricTime(u"-2147483648:00.0"), kLeast);
  EXPECT_EQ(ParseLyricTime(u"35791:23.647"), kMost);
  EXPECT_EQ(ParseLyricTime(u"00:00.2147483647"), kMost);
  EXPECT_EQ(ParseLyricTime(u"00:01.2147483647"), kMost);
}

TEST(LyricTime, ANumberPastThirtyTwoBitsCountsNothing) {
  EXPECT_EQ(ParseLyricTime(u"2147483648:01.5"), 1'005);
  EXPECT_EQ(ParseLyricTime(u"01:99999999999999999999.5"), 60'005);
}

// --- One line.

TEST(LyricLine, IsTimedByItsTag) {
  const ParsedLine sheet = ParseLine(u"[01:02.50]Hello [there");
  EXPECT_THAT(sheet.lines, ElementsAre(TCLyric{u"Hello [there", 62'050, kEndOfLyrics, 0}));
  EXPECT_EQ(sheet.headers, TCLyricHeaders());
}

TEST(LyricLine, EachHeaderTagSetsItsValue) {
  EXPECT_EQ(ParseLine(u"[ar:Artist]").headers.artist, u"Artist");
  EXPECT_EQ(ParseLine(u"[al:Album]").headers.album, u"Album");
  EXPECT_EQ(ParseLine(u"[ti:Song]").headers.title, u"Song");
  EXPECT_EQ(ParseLine(u"[au:Creator]").headers.songCreator, u"Creator");
  EXPECT_EQ(ParseLine(u"[length:03:45]").headers.length, u"03:45");
  EXPECT_EQ(ParseLine(u"[by:Writer]").headers.lyricWriter, u"Writer");
  EXPECT_EQ(ParseLine(u"[re:Editor]").headers.editor, u"Editor");
  EXPECT_EQ(ParseLine(u"[ve:1.0]").headers.version, u"1.0");
  EXPECT_EQ(ParseLine(u"[offset:-500]").headers.offset, u"-500");
  EXPECT_TRUE(ParseLine(u"[ti:Song]").lines.empty());
}

TEST(LyricLine, AnIdSetsTheArtist) {
  EXPECT_EQ(ParseLine(u"[id:abc]").headers.artist, u"abc");
}

TEST(LyricLine, AHeaderValueIsReplacedByALaterOne) {
  TCLyricSheet sheet;
  ParseLyricLine(u"[ar:One]", sheet);
  ParseLyricLine(u"[id:Two]", sheet);
  EXPECT_EQ(sheet.headers.artist, u"Two");
}

TEST(LyricLine, AHeaderMarkIsSeenAnywhereInTheTag) {
  // "length:" is cut by its own seven characters although it stands further behind.
  EXPECT_EQ(ParseLine(u"[xxlength:1234]").headers.length, u"h:1234");
  EXPECT_EQ(ParseLine(u"[00:10 by:me]").headers.lyricWriter, u"10 by:me");
}

TEST(LyricLine, TheFirstMarkOfTheListDecides) {
  EXPECT_EQ(ParseLine(u"[offset:ti:x]").headers.title, u"set:ti:x");
  EXPECT_EQ(ParseLine(u"[ve:id:x]").headers.artist, u"id:x");
  EXPECT_EQ(ParseLine(u"[ve:id:x]").headers.version, u"");
}

TEST(LyricLine, EveryMarkGoesBeforeTheMarksBehindItInTheList) {
  using Headers = TCLyricHeaders;
  struct Mark {
    std::u16string text;
    std::u16string Headers::*value;
  };
  const std::vector<Mark> marks = {{u"id:", &Headers::artist},      {u"ti:", &Headers::title},
                                   {u"ar:", &Headers::artist},      {u"al:", &Headers::album},
                                   {u"by:", &Headers::lyricWriter}, {u"au:", &Headers::songCreator},
                                   {u"re:", &Headers::editor},      {u"ve:", &Headers::version},
                                   {u"length:", &Headers::length},  {u"offset:", &Headers::offset}};
  for (std::size_t first = 0; first < marks.size(); ++first) {
    for (std::size_t later = first + 1; later < marks.size(); ++later) {
      const std::u16string tag = marks[later].text + marks[first].text;
      Headers expected;
      expected.*marks[first].value = tag.substr(marks[first].text.size());
      EXPECT_EQ(ParseLine(u"[" + tag + u"]").headers, expected) << first << " " << later;
    }
  }
}

TEST(LyricLine, MarksAreLowerCase) {
  const ParsedLine sheet = ParseLine(u"[TI:Song]Text");
  EXPECT_EQ(sheet.headers.title, u"");
  EXPECT_THAT(sheet.lines, ElementsAre(TCLyric{u"Text", 0, kEndOfLyrics, 0}));
}

TEST(LyricLine, AMarkInTheTextIsNoHeader) {
  EXPECT_THAT(ParseLine(u"[00:01.0]ti:me").lines, ElementsAre(TCLyric{u"ti:me", 1'000, kEndOfLyrics, 0}));
}

TEST(LyricLine, WithoutATagIsIgnored) {
  for (const char16_t* line : {u"", u"Hello", u"Hello]", u"[", u"[00:10.00 Hello", u"]"}) {
    EXPECT_TRUE(SaysNothing(ParseLine(line)));
  }
}

TEST(LyricLine, OfSeveralTimeTagsTheFirstCountsAndTheTextStandsBehindTheLast) {
  EXPECT_THAT(ParseLine(u"[00:10.00][00:20.00]Chorus").lines,
              ElementsAre(TCLyric{u"Chorus", 10'000, kEndOfLyrics, 0}));
  EXPECT_THAT(ParseLine(u"[00:10.00]a]b").lines, ElementsAre(TCLyric{u"b", 10'000, kEndOfLyrics, 0}));
}

TEST(LyricLine, TheFirstCharacterIsTakenForTheBracket) {
  EXPECT_EQ(ParseLine(u"\uFEFF[ti:Song]").headers.title, u":Song");
  EXPECT_THAT(ParseLine(u"x[00:10.00]a").lines, ElementsAre(TCLyric{u"a", 10'000, kEndOfLyrics, 0}));
  EXPECT_THAT(ParseLine(u"9900:10.00]a[").lines, ElementsAre(TCLyric{u"a[", 54'010'000, kEndOfLyrics, 0}));
  EXPECT_THAT(ParseLine(u"][00:10.00").lines, ElementsAre(TCLyric{u"[00:10.00", 0, kEndOfLyrics, 0}));
  EXPECT_THAT(ParseLine(u"[]a").lines, ElementsAre(TCLyric{u"a", 0, kEndOfLyrics, 0}));
}

TEST(LyricLine, ATagShorterThanItsMarkGivesAnEmptyValue) {
  TCLyricSheet sheet;
  sheet.headers.title = u"old";
  ParseLyricLine(u"[ti:]", sheet);
  EXPECT_EQ(sheet.headers.title, u"");
}

TEST(LyricLine, TheSingerIsReadFromTheText) {
  const auto singer = [](std::u16string_view text) {
    return ParseLine(std::u16string(u"[00:01.00]").append(text)).lines.at(0).singer;
  };
  EXPECT_EQ(singer(u"Hello"), 0);
  EXPECT_EQ(singer(u"M: Hello"), 1);
  EXPECT_EQ(singer(u"F: Hello"), 2);
  EXPECT_EQ(singer(u"D: Hello"), 3);
  EXPECT_EQ(singer(u"D: M: F: Hello"), 2);
  EXPECT_EQ(singer(u"D: then M: Hello"), 1);
  EXPECT_EQ(singer(u"m: Hello"), 0);
  EXPECT_EQ(ParseLine(u"[00:01.00]M: Hello").lines.at(0).text, u"M: Hello");
}

TEST(LyricLine, ALineFeedInsideIsText) {
  EXPECT_THAT(ParseLine(u"[00:01.00]a\nb").lines, ElementsAre(TCLyric{u"a\nb", 1'000, kEndOfLyrics, 0}));
}

// --- The whole file.

TEST_F(LyricFile, EveryLineEndsWhereTheNextBegins) {
  const TCSongLyrics lyrics = Load("[ti:Song]\r\n[00:10.00]a\r\n\r\n[00:20.00]b\r\n[00:30.00]c\r\n");
  ASSERT_EQ(lyrics.LineCount(), 3U);
  EXPECT_EQ(LineOf(lyrics, 0), (TCLyric{u"a", 10'000, 20'000, 0}));
  EXPECT_EQ(LineOf(lyrics, 1), (TCLyric{u"b", 20'000, 30'000, 0}));
  EXPECT_EQ(LineOf(lyrics, 2), (TCLyric{u"c", 30'000, kEndOfLyrics, 0}));
  EXPECT_EQ(lyrics.Headers().title, u"Song");
}

TEST_F(LyricFile, TagsOfEveryShapeAreReadAlike) {
  for (const char* tag : {"[1:2.3]", "[0001:0002.0003]", "[00001:2.3]", "[+1:2.3]", "[1:2.3", "[1:2]", "[:.]",
                          "[1.2:3]", "[1:2:3.4]", "[1:2.3.4]", "[1:2.3x]", "[ 1:2.3]", "[9999:9999.9999]",
                          "[99999:1.2]", "[2147483648:1.5]", "[1:99999999999.5]", "1:2.3]", "["}) {
    TCLyricSheet sheet;
    const std::string line = std::string(tag) + "M: [x] y";
    ParseLyricLine(std::u16string(line.begin(), line.end()), sheet);
    const TCSongLyrics loaded = Load(line + "\r\n");
    EXPECT_EQ(loaded, TCSongLyrics(sheet)) << line;
  }
}

TEST_F(LyricFile, TheOffsetMovesEveryLineButTheLast) {
  const TCSongLyrics lyrics = Load("[00:10.00]a\r\n[00:20.00]b\r\n[00:30.00]c\r\n[offset:500]\r\n");
  ASSERT_EQ(lyrics.LineCount(), 3U);
  EXPECT_EQ(LineOf(lyrics, 0), (TCLyric{u"a", 9'500, 19'500, 0}));
  EXPECT_EQ(LineOf(lyrics, 1), (TCLyric{u"b", 19'500, 29'500, 0}));
  EXPECT_EQ(LineOf(lyrics, 2), (TCLyric{u"c", 30'000, kEndOfLyrics, 0}));
  EXPECT_EQ(lyrics.Headers().offset, u"500");
}

TEST_F(LyricFile, ANegativeOffsetMovesLinesBack) {
  const TCSongLyrics lyrics = Load("[offset:-500ms]\r\n[00:10.00]a\r\n[00:20.00]b\r\n");
  EXPECT_EQ(LineOf(lyrics, 0), (TCLyric{u"a", 10'500, 20'500, 0}));
  EXPECT_EQ(LineOf(lyrics, 1).start, 20'000);
}

TEST_F(LyricFile, AnOffsetThatIsNoNumberMovesNothing) {
  for (const char* offset : {"", "abc", "99999999999", "-2147483649"}) {
    const TCSongLyrics lyrics =
        Load("[offset:" + std::string(offset) + "]\r\n[00:10.00]a\r\n[00:20.00]b\r\n");
    EXPECT_EQ(LineOf(lyrics, 0), (TCLyric{u"a", 10'000, 20'000, 0})) << offset;
  }
}

TEST_F(LyricFile, TimesPastThirtyTwoBitsStopAtTheLimit) {
  const TCSongLyrics late = Load("[offset:-2147483648]\r\n[00:10.00]a\r\n[00:20.00]b\r\n");
  EXPECT_EQ(LineOf(late, 0), (TCLyric{u"a", kMost, kMost, 0}));
  const TCSongLyrics early = Load("[offset:2147483647]\r\n[-2147483648:0.0]a\r\n[-9:00.00]b\r\n");
  EXPECT_EQ(LineOf(early, 0), (TCLyric{u"a", kLeast, kLeast, 0}));
}

TEST_F(LyricFile, LinesOutOfOrderKeepTheirOrder) {
  const TCSongLyrics lyrics = Load("[00:20.00]a\r\n[00:10.00]b\r\n[00:30.00]c\r\n");
  EXPECT_EQ(LineOf(lyrics, 0), (TCLyric{u"a", 20'000, 10'000, 0}));
  EXPECT_EQ(LineOf(lyrics, 1), (TCLyric{u"b", 10'000, 30'000, 0}));
  EXPECT_EQ(lyrics.FindLineAt(15'000), 1);
  EXPECT_EQ(lyrics.FindLineAt(25'000), 1);
}

TEST_F(LyricFile, AnUnfinishedLastLineIsLostUnlessItIsTheOnlyOne) {
  EXPECT_EQ(Load("[00:10.00]a").LineCount(), 1U);
  const TCSongLyrics two = Load("[00:10.00]a\r\n[00:20.00]b");
  ASSERT_EQ(two.LineCount(), 1U);
  EXPECT_EQ(LineOf(two, 0), (TCLyric{u"a", 10'000, kEndOfLyrics, 0}));
}

TEST_F(LyricFile, AMarkGarblesTheFirstLine) {
  const TCSongLyrics lyrics = Load("\xEF\xBB\xBF[ti:Song]\r\n[al:Album]\r\n");
  EXPECT_EQ(lyrics.Headers().title, u":Song");
  EXPECT_EQ(lyrics.Headers().album, u"Album");
}

TEST_F(LyricFile, EightBitTextIsUtf8OrWindows1252) {
  EXPECT_EQ(Load("[ti:caf\xC3\xA9]\r\n").Headers().title, u"caf\u00E9");
  EXPECT_EQ(Load("[ti:caf\xE9 \x80]\r\n").Headers().title, u"caf\u00E9 \u20AC");
}

TEST_F(LyricFile, TheEightBitFileWins) {
  files.PutUtf16(u"C:\\Music\\Song.lrcx", u"[ti:wide]\r\n");
  EXPECT_EQ(Load("[ti:narrow]\r\n").Headers().title, u"narrow");
}

TEST_F(LyricFile, TheWideFileIsReadWhereThereIsNoOther) {
  files.PutUtf16(u"C:\\Music\\Song.lrcx", u"\uFEFF[ti:\u65E5\u672C]\r\n[00:10.00]M: \u8A9E\r\n");
  TCSongLyrics lyrics;
  EXPECT_TRUE(LoadLyrics(files, u"C:\\Music\\Song.mp3", lyrics));
  EXPECT_EQ(lyrics.Headers().title, u"\u65E5\u672C");
  EXPECT_EQ(LineOf(lyrics, 0), (TCLyric{u"M: \u8A9E", 10'000, kEndOfLyrics, 1}));
}

TEST_F(LyricFile, IsNamedLikeTheSong) {
  TCSongLyrics lyrics;
  EXPECT_FALSE(LoadLyrics(files, u"C:\\My.Music\\a.b.mp3", lyrics));
  EXPECT_FALSE(LoadLyrics(files, u"C:\\My.Music\\song", lyrics));
  EXPECT_FALSE(LoadLyrics(files, u"", lyrics));
  EXPECT_THAT(files.reads,
              ElementsAre(u"C:\\My.Music\\a.b.lrc", u"C:\\My.Music\\a.b.lrcx", u"C:\\My.Music\\song.lrc",
                          u"C:\\My.Music\\song.lrcx", u".lrc", u".lrcx"));
}

TEST_F(LyricFile, WithoutOneTheLinesGoAndTheHeaderValuesStay) {
  TCSongLyrics lyrics = Load("[ti:Song]\r\n[00:10.00]a\r\n");
  files.MakeUnreadable(u"C:\\Music\\Song.lrc");
  EXPECT_FALSE(LoadLyrics(files, u"C:\\Music\\Song.mp3", lyrics));
  EXPECT_TRUE(lyrics.Empty());
  EXPECT_EQ(lyrics.Headers().title, u"Song");
}

TEST_F(LyricFile, LoadingAgainReplacesTheLinesAndOnlyTheHeaderValuesThatAreSet) {
  TCSongLyrics lyrics = Load("[ti:Song]\r\n[al:Album]\r\n[offset:500]\r\n[00:10.00]a\r\n");
  files.Put(u"C:\\Music\\Song.lrc", "[ti:Other]\r\n[00:10.00]b\r\n[00:20.00]c\r\n");
  EXPECT_TRUE(LoadLyrics(files, u"C:\\Music\\Song.mp3", lyrics));
  EXPECT_EQ(lyrics.Headers().title, u"Other");
  EXPECT_EQ(lyrics.Headers().album, u"Album");
  ASSERT_EQ(lyrics.LineCount(), 2U);
  EXPECT_EQ(LineOf(lyrics, 0), (TCLyric{u"b", 9'500, 19'500, 0}));
}

TEST_F(LyricFile, APlainOneWithoutTagsCountsAsRead) {
  const TCSongLyrics lyrics = Load("just\r\ntext\r\n");
  EXPECT_EQ(lyrics, TCSongLyrics());
  EXPECT_EQ(Load(""), TCSongLyrics());
}

TEST_F(LyricFile, WithLineFeedsOnlyIsOneLine) {
  const TCSongLyrics lyrics = Load("[00:10.00]a\n[00:20.00]b\n");
  ASSERT_EQ(lyrics.LineCount(), 1U);
  EXPECT_EQ(LineOf(lyrics, 0).text, u"b\n");
}

TEST_F(LyricFile, InTheWrongEncodingIsReadAsWhatItLooksLike) {
  // UTF-16 under the name of an 8-bit file: the zero bytes stay in the text, and a return swallows one of
  // them.
  const std::string wide("[\0t\0i\0:\0S\0]\0\r\0\n\0", 16);
  EXPECT_EQ(Load(wide).Headers().title, u"");
  files.Remove(u"C:\\Music\\Song.lrc");
  files.Put(u"C:\\Music\\Song.lrcx", "[ti:Song]\r\n[00:10.00]a\r\n");
  TCSongLyrics lyrics;
  EXPECT_TRUE(LoadLyrics(files, u"C:\\Music\\Song.mp3", lyrics));
  EXPECT_EQ(lyrics, TCSongLyrics());
}

TEST_F(LyricFile, OfBinaryDataIsReadAsWhateverLinesItHolds) {
  std::minstd_rand random;  // the same numbers in every run
  std::string bytes;
  while (bytes.size() < 300'000) bytes.push_back(static_cast<char>(random() >> 8));
  const TCSongLyrics lyrics = Load(bytes);
  EXPECT_GT(lyrics.LineCount(), 0U);
  for (std::size_t i = 0; i < lyrics.LineCount(); ++i) {
    EXPECT_EQ(LineOf(lyrics, i).text.find(u']'), std::u16string::npos);
  }
}

TEST_F(LyricFile, WithAnEnormousLineIsReadWhole) {
  const TCSongLyrics lyrics = Load("[00:10.00]" + std::string(3'000'000, 'x') + "\r\n[00:20.00]b\r\n");
  ASSERT_EQ(lyrics.LineCount(), 2U);
  EXPECT_EQ(LineOf(lyrics, 0).text.size(), 3'000'000U);
  EXPECT_EQ(LineOf(lyrics, 1).text, u"b");
}

TEST_F(LyricFile, PastTheGreatestSizeIsPassedOver) {
  files.Put(u"C:\\Music\\Song.lrc", std::string(kMaxLyricFileBytes + 1, 'x'));
  files.PutUtf16(u"C:\\Music\\Song.lrcx", u"[ti:wide]\r\n");
  TCSongLyrics lyrics;
  EXPECT_TRUE(LoadLyrics(files, u"C:\\Music\\Song.mp3", lyrics));
  EXPECT_EQ(lyrics.Headers().title, u"wide");
}

}  // namespace
}  // namespace brevant
