#include "model/play_marks.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

std::vector<TCPlayMark> MarksWith(std::size_t songs, std::int32_t current) {
  TCSetListStore store;
  store.groups.resize(1);
  store.groups[0].playlists.resize(1);
  store.groups[0].playlists[0].items.resize(songs);
  store.currentSong = current;
  UpdatePlayMarks(store);
  std::vector<TCPlayMark> marks;
  for (const TCPlayListItem& song : store.groups[0].playlists[0].items) marks.push_back(song.flags);
  return marks;
}

using enum TCPlayMark;

TEST(PlayMarks, TheFirstSongHasNoneBeforeIt) {
  EXPECT_EQ(MarksWith(4, 0), (std::vector{Current, Next, Ordinary, Ordinary}));
}

TEST(PlayMarks, ASongInTheMiddleStandsBetweenPreviousAndNext) {
  EXPECT_EQ(MarksWith(5, 2), (std::vector{Ordinary, Previous, Current, Next, Ordinary}));
}

TEST(PlayMarks, TheLastSongHasNoNext) {
  EXPECT_EQ(MarksWith(3, 2), (std::vector{Ordinary, Previous, Current}));
}

TEST(PlayMarks, AnOnlySongIsCurrent) {
  EXPECT_EQ(MarksWith(1, 0), (std::vector{Current}));
}

TEST(PlayMarks, APositionThatNamesNoSongChangesNoMark) {
  for (const std::int32_t wrong : {-1, 3, 1000}) {
    TCSetListStore store;
    store.groups.resize(1);
    store.groups[0].playlists.resize(1);
    store.groups[0].playlists[0].items.resize(3);
    store.groups[0].playlists[0].items[1].flags = Next;
    store.currentSong = wrong;
    EXPECT_FALSE(UpdatePlayMarks(store));
    EXPECT_EQ(store.groups[0].playlists[0].items[1].flags, Next);
  }
}

TEST(PlayMarks, RowsTakeTheColourOfTheirMark) {
  const TCSettings settings;
  EXPECT_EQ(RowTextColour(Ordinary, settings), 0xFFFFFFu);
  EXPECT_EQ(RowTextColour(Next, settings), 0xFFBF00u);
  EXPECT_EQ(RowTextColour(Current, settings), 0x00FF00u);
  EXPECT_EQ(RowTextColour(Previous, settings), 0xFF0000u);
}

TEST(PlayMarks, WithoutDynamicColoursEveryRowTakesTheTextColour) {
  TCSettings settings;
  settings.dynamicPlayColours = false;
  settings.SetWhiteOnBlack(false);
  for (const TCPlayMark mark : {Ordinary, Next, Current, Previous}) {
    EXPECT_EQ(RowTextColour(mark, settings), 0x000000u);
  }
}

}  // namespace
}  // namespace brevant
