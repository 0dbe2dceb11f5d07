#include "playback/lyric_display.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/message_log.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::u16string_view kSong = u"C:\\a.mp3";

class LyricDisplayTest : public testing::Test {
 protected:
  LyricDisplayTest() {
    TCPlayGroups& group = record.setLists.groups.emplace_back();
    TCPlayListItem& song = group.playlists.emplace_back().items.emplace_back();
    song.SetPath(kSong);
    song.lyrics = LyricsOf(
        {{u"M: one", 10000, 20000, 1}, {u"F: two", 20000, 30000, 2}, {u"D: three", 40000, kEndOfLyrics, 3}});
  }

  static TCSongLyrics LyricsOf(const std::vector<TCLyric>& lines) {
    TCLyricSheet sheet;
    for (const TCLyric& line : lines) sheet.Add(line);
    return TCSongLyrics(sheet);
  }

  TCAppRecord record;
  TCMessageLog messages;
  TCLyricDisplay display{record, messages};
};

TEST_F(LyricDisplayTest, LinesAppearHalfASecondAheadByWholeSeconds) {
  EXPECT_EQ(display.ShowLyricsAt(9, kSong, -1), -1);
  EXPECT_THAT(messages.lines, IsEmpty());
  EXPECT_EQ(messages.clears, 0);
  EXPECT_EQ(display.ShowLyricsAt(10, kSong, -1), 0);
  EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tM: one", u"\r\n", u"\tF: two"));
}

TEST_F(LyricDisplayTest, EachLineHasItsSingersRoleAndLaterLinesTheNormalOne) {
  EXPECT_EQ(display.ShowLyricsAt(10, kSong, -1), 0);
  messages.Append(u"a message");
  EXPECT_THAT(messages.roles, ElementsAre(TCLineRole::SingerM, TCLineRole::SingerM, TCLineRole::SingerF,
                                          TCLineRole::SingerF, TCLineRole::Normal));
}

TEST_F(LyricDisplayTest, TheLineShownLastIsNotDrawnAgain) {
  EXPECT_EQ(display.ShowLyricsAt(12, kSong, 0), 0);
  EXPECT_EQ(messages.clears, 0);
  EXPECT_EQ(display.ShowLyricsAt(12, kSong, -1), 0);
  EXPECT_EQ(messages.clears, 1);
}

TEST_F(LyricDisplayTest, BetweenTwoLinesThePaneKeepsWhatItShows) {
  EXPECT_EQ(display.ShowLyricsAt(35, kSong, 1), 1);
  EXPECT_EQ(messages.clears, 0);
}

TEST_F(LyricDisplayTest, TheLastLineStaysToTheEndOfTheSongAlone) {
  record.settings.numberLyricLines = 5;
  EXPECT_EQ(display.ShowLyricsAt(3600, kSong, 1), 2);
  EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tD: three"));
  EXPECT_THAT(messages.roles, ElementsAre(TCLineRole::SingerD, TCLineRole::SingerD));
}

TEST_F(LyricDisplayTest, ANumberOfLinesBelowTwoShowsTheCurrentOne) {
  for (const std::int32_t lines : {1, 0, -7}) {
    record.settings.numberLyricLines = lines;
    messages.Clear();
    EXPECT_EQ(display.ShowLyricsAt(10, kSong, -1), 0);
    EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tM: one"));
  }
}

TEST_F(LyricDisplayTest, ASongWithoutLyricsOrOutsideTheSetListsShowsNothing) {
  record.setLists.groups[0].playlists[0].items.emplace_back().SetPath(u"C:\\b.mp3");
  EXPECT_EQ(display.ShowLyricsAt(10, u"C:\\b.mp3", 3), 3);
  EXPECT_EQ(display.ShowLyricsAt(10, u"C:\\A.mp3", 3), 3);  // paths are compared to the letter
  EXPECT_EQ(display.ShowLyricsAt(10, u"", 3), 3);
  EXPECT_EQ(messages.clears, 0);
}

TEST_F(LyricDisplayTest, TheFirstSongOfAPathInModelOrderSuppliesTheLyrics) {
  TCPlayListItem again;
  again.SetPath(kSong);
  again.lyrics = LyricsOf({{u"other", 0, kEndOfLyrics, 0}});
  record.setLists.groups[0].playlists.emplace_back().items.push_back(again);
  EXPECT_EQ(display.ShowLyricsAt(10, kSong, -1), 0);
  EXPECT_EQ(messages.lines.at(1), u"\tM: one");
}

TEST_F(LyricDisplayTest, APositionOfAnySizeIsTaken) {
  EXPECT_EQ(display.ShowLyricsAt(2147483647, kSong, 0), 0);
  EXPECT_EQ(display.ShowLyricsAt(-2147483647, kSong, 0), 0);
}

}  // namespace
}  // namespace brevant
