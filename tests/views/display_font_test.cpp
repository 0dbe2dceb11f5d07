#include "views/display_font.h"

#include <gtest/gtest.h>

#include <QFontMetrics>
#include <QScreen>
#include <limits>

namespace brevant {
namespace {

TEST(DisplayFont, TakesFaceAndPoints) {
  const QWidget place;
  const QFont font = DisplayFont(u"Times New Roman", 14, place);
  EXPECT_EQ(font.family(), QStringLiteral("Times New Roman"));
  EXPECT_EQ(font.pointSize(), 14);
}

TEST(DisplayFont, IsAtLeastOnePoint) {
  const QWidget place;
  for (const int points : {0, -1, -20, std::numeric_limits<int>::min()}) {
    EXPECT_EQ(DisplayFont(u"Times New Roman", points, place).pointSize(), 1) << points;
  }
}

TEST(DisplayFont, LeavesRoomForFourLinesOnTheScreen) {
  const QWidget place;
  for (const int points : {5000, std::numeric_limits<int>::max()}) {
    const QFont font = DisplayFont(u"Times New Roman", points, place);
    EXPECT_GT(font.pointSize(), 40) << points;
    EXPECT_LE(QFontMetrics(font).lineSpacing() * 4, place.screen()->availableGeometry().height()) << points;
  }
}

TEST(DisplayFont, AFaceThatIsNotThereStillDraws) {
  const QWidget place;
  for (const std::u16string_view face : {u"", u"No Such Face 77", u"\uFFFF,,;"}) {
    EXPECT_GT(QFontMetrics(DisplayFont(face, 14, place)).horizontalAdvance(QStringLiteral("Song")), 0);
  }
}

}  // namespace
}  // namespace brevant
