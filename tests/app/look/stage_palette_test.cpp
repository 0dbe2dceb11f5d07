#include "app/look/stage_palette.h"

#include <gtest/gtest.h>

#include <array>
#include <cstdlib>

namespace brevant {
namespace {

constexpr std::array kPairs = {std::pair(kWhite, kBlack), std::pair(kBlack, kWhite)};

int Distance(const QColor& a, const QColor& b) {
  return std::abs(a.lightness() - b.lightness());
}

TEST(StagePalette, TextCanBeReadOnEveryGround) {
  for (const auto& [text, background] : kPairs) {
    for (const QPalette& palette : {StagePalette(text, background), MenuPalette(text, background)}) {
      EXPECT_GT(Distance(palette.color(QPalette::Text), palette.color(QPalette::Base)), 150);
      EXPECT_GT(Distance(palette.color(QPalette::ButtonText), palette.color(QPalette::Button)), 150);
      EXPECT_GT(Distance(palette.color(QPalette::ToolTipText), palette.color(QPalette::ToolTipBase)), 150);
      EXPECT_GT(Distance(palette.color(QPalette::HighlightedText), palette.color(QPalette::Highlight)), 80);
    }
    const QPalette palette = StagePalette(text, background);
    EXPECT_GT(Distance(palette.color(QPalette::WindowText), palette.color(QPalette::Window)), 150);
  }
}

TEST(StagePalette, TakesTheTwoColoursForTheListsAsTheyAre) {
  const QPalette palette = StagePalette(0x112233, 0xDDEEFF);
  EXPECT_EQ(palette.color(QPalette::Text), QColor(0x11, 0x22, 0x33));
  EXPECT_EQ(palette.color(QPalette::Base), QColor(0xDD, 0xEE, 0xFF));
}

TEST(StagePalette, DisabledTextIsFaintAndHasNoEcho) {
  for (const auto& [text, background] : kPairs) {
    const QPalette palette = StagePalette(text, background);
    EXPECT_NE(palette.color(QPalette::Disabled, QPalette::Text), palette.color(QPalette::Text));
    EXPECT_EQ(palette.color(QPalette::Disabled, QPalette::Light), palette.color(QPalette::Window));
  }
}

}  // namespace
}  // namespace brevant
