#include "views/row_colours.h"

#include <gtest/gtest.h>

#include "model/play_marks.h"

namespace brevant {
namespace {

TEST(RowColours, ContrastIsOneForTheSameColourAndTwentyOneForBlackOnWhite) {
  EXPECT_NEAR(ContrastRatio(0x123456, 0x123456), 1.0, 1e-9);
  EXPECT_NEAR(ContrastRatio(kBlack, kWhite), 21.0, 1e-9);
  EXPECT_NEAR(ContrastRatio(kWhite, kBlack), 21.0, 1e-9);
}

TEST(RowColours, EveryTextColourOfARowIsReadEasilyOnItsSelectedBackground) {
  for (const TCRgb text : {kBlack, kWhite, kNextColour, kCurrentColour, kPreviousColour}) {
    EXPECT_GE(ContrastRatio(text, SelectedBackground(text)), 4.5) << std::hex << text;
  }
}

TEST(RowColours, TheOutlineOfASelectedRowIsSeenOnEveryBackgroundItBordersOn) {
  for (const TCRgb background : {kBlack, kWhite, SelectedBackground(kWhite), SelectedBackground(kBlack)}) {
    EXPECT_GE(ContrastRatio(kSelectionOutline, background), 3.0) << std::hex << background;
  }
}

TEST(RowColours, ASelectedBackgroundDiffersFromTheOrdinaryOne) {
  EXPECT_NE(SelectedBackground(kWhite), kBlack);
  EXPECT_NE(SelectedBackground(kBlack), kWhite);
}

TEST(RowColours, AColourBecomesAnOpaqueOneOfQt) {
  EXPECT_EQ(ToQColor(0xFFBF00), QColor(255, 191, 0));
  EXPECT_EQ(ToQColor(kBlack).alpha(), 255);
}

}  // namespace
}  // namespace brevant
