#include "app/panes/singer_colours.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(SingerColours, OnBlackTheyAreGreenPinkAndOrange) {
  EXPECT_EQ(LineColour(TCLineRole::SingerM, TCPaneLook::WhiteOnBlack, kWhite), 0x00FF00U);
  EXPECT_EQ(LineColour(TCLineRole::SingerF, TCPaneLook::WhiteOnBlack, kWhite), 0xFFC0CBU);
  EXPECT_EQ(LineColour(TCLineRole::SingerD, TCPaneLook::WhiteOnBlack, kWhite), 0xFFA500U);
}

TEST(SingerColours, OnWhiteTheyAreBlueRedAndOrange) {
  EXPECT_EQ(LineColour(TCLineRole::SingerM, TCPaneLook::BlackOnWhite, kBlack), 0x0000FFU);
  EXPECT_EQ(LineColour(TCLineRole::SingerF, TCPaneLook::BlackOnWhite, kBlack), 0xFF0000U);
  EXPECT_EQ(LineColour(TCLineRole::SingerD, TCPaneLook::BlackOnWhite, kBlack), 0xFFA500U);
}

TEST(SingerColours, ALineOfNobodyHasTheNormalTextColour) {
  EXPECT_EQ(LineColour(TCLineRole::Normal, TCPaneLook::WhiteOnBlack, kWhite), kWhite);
  EXPECT_EQ(LineColour(TCLineRole::Normal, TCPaneLook::BlackOnWhite, kBlack), kBlack);
}

}  // namespace
}  // namespace brevant
