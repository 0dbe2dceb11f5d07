#include "lyrics/current_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <limits>

#include "support/lyrics_of.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class CurrentLines : public testing::Test {
 protected:
  // The texts of the lines found; the index is kept in `index`.
  std::vector<std::u16string> Find(std::int32_t timeMs, std::int32_t lineCount) {
    std::vector<TCLyric> found = {{u"old", 0, 0, 0}};
    index = FindLyricLines(lyrics, found, timeMs, lineCount);
    std::vector<std::u16string> texts;
    for (const TCLyric& line : found) texts.push_back(line.text);
    return texts;
  }

  TCSongLyrics lyrics = LyricsOf(
      {{u"ten", 10'000, 20'000, 1}, {u"twenty", 20'000, 30'000, 0}, {u"last", 30'000, kEndOfLyrics, 0}});
  std::int32_t index = 0;
};

TEST_F(CurrentLines, NothingIsCurrentBeforeTheFirstLine) {
  EXPECT_THAT(Find(9'500, 2), IsEmpty());
  EXPECT_EQ(index, -1);
  EXPECT_THAT(Find(9'999, 2), IsEmpty());
}

TEST_F(CurrentLines, ALineIsCurrentFromItsStartToBeforeItsEnd) {
  EXPECT_THAT(Find(10'000, 2), ElementsAre(u"ten", u"twenty"));
  EXPECT_EQ(index, 0);
  EXPECT_THAT(Find(19'999, 2), ElementsAre(u"ten", u"twenty"));
  EXPECT_THAT(Find(20'000, 2), ElementsAre(u"twenty", u"last"));
  EXPECT_EQ(index, 1);
}

TEST_F(CurrentLines, LinesComeWithTheirSinger) {
  std::vector<TCLyric> found;
  EXPECT_EQ(FindLyricLines(lyrics, found, 10'000, 2), 0);
  ASSERT_EQ(found.size(), 2U);
  EXPECT_EQ(found[0].singer, 1);
  EXPECT_EQ(found[1].singer, 0);
}

TEST_F(CurrentLines, TheLastLineStaysCurrentToTheEndOfTheSong) {
  EXPECT_THAT(Find(kEndOfLyrics - 1, 2), ElementsAre(u"last"));
  EXPECT_EQ(index, 2);
  EXPECT_THAT(Find(kEndOfLyrics, 2), IsEmpty());
  EXPECT_EQ(index, -1);
}

TEST_F(CurrentLines, TheCurrentLineIsShownWhateverTheCount) {
  for (const std::int32_t count : {1, 0, -1, std::numeric_limits<std::int32_t>::min()}) {
    EXPECT_THAT(Find(10'000, count), ElementsAre(u"ten"));
  }
}

TEST_F(CurrentLines, LinesPastTheEndAreMissing) {
  EXPECT_THAT(Find(10'000, 3), ElementsAre(u"ten", u"twenty", u"last"));
  EXPECT_THAT(Find(10'000, 4), ElementsAre(u"ten", u"twenty", u"last"));
  EXPECT_THAT(Find(20'000, std::numeric_limits<std::int32_t>::max()), ElementsAre(u"twenty", u"last"));
}

TEST_F(CurrentLines, InAGapNothingIsCurrent) {
  lyrics = LyricsOf({{u"a", 1'000, 2'000, 0}, {u"b", 3'000, 4'000, 0}});
  EXPECT_THAT(Find(2'500, 2), IsEmpty());
  EXPECT_EQ(index, -1);
}

TEST_F(CurrentLines, TheFirstOfSeveralCurrentLinesIsTheOne) {
  lyrics = LyricsOf({{u"never", 5'000, 1'000, 0}, {u"a", 1'000, 9'000, 0}, {u"b", 1'000, 9'000, 0}});
  EXPECT_THAT(Find(5'000, 1), ElementsAre(u"a"));
  EXPECT_EQ(index, 1);
}

TEST_F(CurrentLines, ASongWithoutLyricsHasNone) {
  lyrics = TCSongLyrics();
  EXPECT_THAT(Find(0, 2), IsEmpty());
  EXPECT_EQ(index, -1);
}

}  // namespace
}  // namespace brevant
