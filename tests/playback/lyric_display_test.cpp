#include "playback/lyric_display.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <string>

#include "lyrics/lyric_file.h"
#include "support/lyrics_of.h"
#include "support/memory_files.h"
#include "support/message_log.h"
#include "text/numbers.h"
#include "text/time_text.h"
#include "text/unicode.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::u16string_view kSong = u"C:\\a.mp3";

class LyricDisplay : public testing::Test {
 protected:
  LyricDisplay() {
    TCPlayGroups& group = record.setLists.groups.emplace_back();
    TCPlayListItem& song = group.playlists.emplace_back().items.emplace_back();
    song.SetPath(kSong);
    song.lyrics = LyricsOf(
        {{u"M: one", 10000, 20000, 1}, {u"F: two", 20000, 30000, 2}, {u"D: three", 40000, kEndOfLyrics, 3}});
  }

  TCAppRecord record;
  TCMessageLog messages;
  TCLyricDisplay display{record, messages};
};

TEST_F(LyricDisplay, LinesAppearHalfASecondAheadByWholeSeconds) {
  EXPECT_EQ(display.ShowLyricsAt(9, kSong, -1), -1);
  EXPECT_THAT(messages.lines, IsEmpty());
  EXPECT_EQ(messages.clears, 0);
  EXPECT_EQ(display.ShowLyricsAt(10, kSong, -1), 0);
  EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tM: one", u"\r\n", u"\tF: two"));
}

TEST_F(LyricDisplay, TheLeadIsHalfASecondToTheMillisecond) {
  TCSongLyrics& lyrics = record.setLists.groups[0].playlists[0].items[0].lyrics;
  lyrics = LyricsOf({{u"on time", 10500, kEndOfLyrics, 0}});
  EXPECT_EQ(display.ShowLyricsAt(10, kSong, -1), 0);
  lyrics = LyricsOf({{u"too late for it", 10501, kEndOfLyrics, 0}});
  EXPECT_EQ(display.ShowLyricsAt(10, kSong, -1), -1);
  EXPECT_EQ(display.ShowLyricsAt(11, kSong, -1), 0);
}

TEST_F(LyricDisplay, EachLineHasItsSingersRoleAndLaterLinesTheNormalOne) {
  EXPECT_EQ(display.ShowLyricsAt(10, kSong, -1), 0);
  messages.Append(u"a message");
  EXPECT_THAT(messages.roles, ElementsAre(TCLineRole::SingerM, TCLineRole::SingerM, TCLineRole::SingerF,
                                          TCLineRole::SingerF, TCLineRole::Normal));
}

TEST_F(LyricDisplay, TheLineShownLastIsNotDrawnAgain) {
  EXPECT_EQ(display.ShowLyricsAt(12, kSong, 0), 0);
  EXPECT_EQ(messages.clears, 0);
  EXPECT_EQ(display.ShowLyricsAt(12, kSong, -1), 0);
  EXPECT_EQ(messages.clears, 1);
}

TEST_F(LyricDisplay, BetweenTwoLinesThePaneKeepsWhatItShows) {
  EXPECT_EQ(display.ShowLyricsAt(35, kSong, 1), 1);
  EXPECT_EQ(messages.clears, 0);
}

TEST_F(LyricDisplay, TheLastLineStaysToTheEndOfTheSongAlone) {
  record.settings.numberLyricLines = 5;
  EXPECT_EQ(display.ShowLyricsAt(3600, kSong, 1), 2);
  EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tD: three"));
  EXPECT_THAT(messages.roles, ElementsAre(TCLineRole::SingerD, TCLineRole::SingerD));
}

TEST_F(LyricDisplay, ANumberOfLinesBelowTwoShowsTheCurrentOne) {
  for (const std::int32_t lines : {1, 0, -7}) {
    record.settings.numberLyricLines = lines;
    messages.Clear();
    EXPECT_EQ(display.ShowLyricsAt(10, kSong, -1), 0);
    EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tM: one"));
  }
}

TEST_F(LyricDisplay, TheCurrentLineIsTheOneToKeepInView) {
  EXPECT_EQ(display.ShowLyricsAt(10, kSong, -1), 0);
  EXPECT_TRUE(messages.firstInView);
  messages.Append(u"a message");
  EXPECT_EQ(display.ShowLyricsAt(12, kSong, 0), 0);
  EXPECT_FALSE(messages.firstInView) << "the pane is left as it is";
}

TEST_F(LyricDisplay, NoNumberOfLinesPushesTheCurrentOneOutOfTheDisplay) {
  std::vector<TCLyric> many;
  for (int i = 0; i < 2000; ++i) many.push_back({u"line", i * 1000, (i + 1) * 1000, 0});
  record.setLists.groups[0].playlists[0].items[0].lyrics = LyricsOf(many);
  record.settings.numberLyricLines = 2147483647;
  EXPECT_EQ(display.ShowLyricsAt(10, kSong, -1), 10);
  EXPECT_GE(messages.lines.size(), 200u);
  EXPECT_LE(messages.lines.size(), 1024u);
}

TEST_F(LyricDisplay, ASongWithoutLyricsOrOutsideTheSetListsShowsNothing) {
  record.setLists.groups[0].playlists[0].items.emplace_back().SetPath(u"C:\\b.mp3");
  EXPECT_EQ(display.ShowLyricsAt(10, u"C:\\b.mp3", 3), 3);
  EXPECT_EQ(display.ShowLyricsAt(10, u"C:\\A.mp3", 3), 3);  // paths are compared to the letter
  EXPECT_EQ(display.ShowLyricsAt(10, u"", 3), 3);
  EXPECT_EQ(messages.clears, 0);
}

TEST_F(LyricDisplay, TheFirstSongOfAPathInModelOrderSuppliesTheLyrics) {
  TCPlayListItem again;
  again.SetPath(kSong);
  again.lyrics = LyricsOf({{u"other", 0, kEndOfLyrics, 0}});
  record.setLists.groups[0].playlists.emplace_back().items.push_back(again);
  EXPECT_EQ(display.ShowLyricsAt(10, kSong, -1), 0);
  EXPECT_EQ(messages.lines.at(1), u"\tM: one");
}

// Several hundred lines, one every two seconds, sung in turn; each with a letter outside ASCII.
std::u16string LongLyrics() {
  std::u16string text;
  for (int i = 0; i < 400; ++i) {
    const std::u16string_view singer = std::array{u"M: ", u"F: ", u"D: "}[static_cast<std::size_t>(i % 3)];
    const int seconds = 2 * i;
    text += u"[" + FormatTime(seconds) + u".000]";
    text += singer;
    text += u"Zeile \u00FC " + FormatDecimal(i) + u"\r\n";
  }
  return text;
}

std::string Latin1(std::u16string_view text) {
  std::string bytes;
  for (const char16_t unit : text) bytes.push_back(static_cast<char>(unit));
  return bytes;
}

TEST_F(LyricDisplay, HundredsOfLinesOfEveryEncodingFollowTheSongSecondBySecond) {
  const std::u16string text = LongLyrics();
  for (const int encoding : {0, 1, 2}) {
    TCMemoryFiles files;
    if (encoding == 0) files.Put(u"C:\\a.lrc", EncodeUtf8(text));
    if (encoding == 1) files.Put(u"C:\\a.lrc", Latin1(text));
    if (encoding == 2) files.PutUtf16(u"C:\\a.lrcx", text);
    TCSongLyrics lyrics;
    ASSERT_TRUE(LoadLyrics(files, kSong, lyrics));
    ASSERT_EQ(lyrics.LineCount(), 400u);
    record.setLists.groups[0].playlists[0].items[0].lyrics = lyrics;
    std::int32_t shown = -1;
    for (std::int32_t second = 0; second < 798; ++second) {
      shown = display.ShowLyricsAt(second, kSong, shown);
      ASSERT_EQ(shown, second / 2) << encoding << " " << second;
      ASSERT_EQ(messages.lines.size(), 4u);
      EXPECT_TRUE(messages.lines[1].ends_with(u"Zeile \u00FC " + FormatDecimal(second / 2)));
      EXPECT_EQ(messages.roles[1], static_cast<TCLineRole>(second / 2 % 3 + 1));
    }
  }
}

TEST_F(LyricDisplay, APositionOfAnySizeIsTaken) {
  EXPECT_EQ(display.ShowLyricsAt(2147483647, kSong, 0), 0);
  EXPECT_EQ(display.ShowLyricsAt(-2147483647, kSong, 0), 0);
}

}  // namespace
}  // namespace brevant
