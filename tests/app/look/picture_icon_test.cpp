#include "app/look/picture_icon.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QPalette>
#include <QPixmap>
#include <algorithm>

#include "app/look/stage_palette.h"
#include "resources/icons/icon_names.h"

namespace brevant {
namespace {

// The colour of the picture's opaque pixels; invalid when there are none.
QColor InkOf(const QIcon& icon, QIcon::Mode mode = QIcon::Normal) {
  const QImage image = icon.pixmap(QSize(48, 48), 1.0, mode).toImage();
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const QColor pixel = image.pixelColor(x, y);
      if (pixel.alpha() == 255) return pixel;
    }
  }
  return {};
}

TEST(PictureIcon, FollowsThePaletteOfTheMoment) {
  const QPalette before = QGuiApplication::palette();
  const QIcon icon = PictureIcon(IconName(TCCommandId::Stop));
  QGuiApplication::setPalette(StagePalette(kWhite, kBlack));
  EXPECT_EQ(InkOf(icon), QColor(Qt::white));
  EXPECT_NE(InkOf(icon, QIcon::Disabled), QColor(Qt::white));
  QGuiApplication::setPalette(StagePalette(kBlack, kWhite));
  EXPECT_EQ(InkOf(icon), QColor(Qt::black));
  QGuiApplication::setPalette(before);
}

TEST(PictureIcon, IsDrawnOnceForItsSizeAndColour) {
  const auto drawing = [](int size, QIcon::Mode mode = QIcon::Normal) {
    return PictureIcon("stop").pixmap(QSize(size, size), 1.0, mode).cacheKey();
  };
  EXPECT_EQ(drawing(24), drawing(24)) << "for two buttons";
  EXPECT_NE(drawing(24), drawing(32));
  EXPECT_NE(drawing(24), drawing(24, QIcon::Disabled));
  EXPECT_NE(drawing(24), PictureIcon("play").pixmap(QSize(24, 24), 1.0).cacheKey());
}

// Pixels that are neither ink nor paper: the soft edges of lines. A picture blown up is soft all over.
double SoftShare(const QImage& image) {
  int soft = 0;
  int inked = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) {
      const int alpha = image.pixelColor(x, y).alpha();
      inked += alpha > 0 ? 1 : 0;
      soft += alpha > 0 && alpha < 255 ? 1 : 0;
    }
  }
  return inked == 0 ? 1.0 : static_cast<double>(soft) / inked;
}

TEST(PictureIcon, IsDrawnForThePixelsOfTheScreenItIsShownOn) {
  const QIcon icon = PictureIcon("stop");
  double before = 1.0;
  for (const double scale : {1.0, 1.5, 2.0}) {
    const QPixmap picture = icon.pixmap(QSize(24, 24), scale);
    EXPECT_EQ(picture.size(), QSize(24, 24) * scale);
    EXPECT_EQ(picture.deviceIndependentSize(), QSizeF(24, 24));
    const double soft = SoftShare(picture.toImage());
    EXPECT_LE(soft, before) << scale;
    EXPECT_LT(soft, 0.35) << scale;
    before = std::max(soft, 0.2);
  }
}

TEST(PictureIcon, OfAButtonThatIsOnHasTheColourOfTheHighlightsText) {
  const QPalette before = QGuiApplication::palette();
  QGuiApplication::setPalette(StagePalette(kBlack, kWhite));
  const QIcon icon = PictureIcon("stop");
  const auto ink = [&icon](QIcon::Mode mode, QIcon::State state) {
    return icon.pixmap(QSize(48, 48), 1.0, mode, state).toImage().pixelColor(24, 24);
  };
  EXPECT_EQ(ink(QIcon::Normal, QIcon::On), QColor(Qt::white));
  EXPECT_EQ(ink(QIcon::Normal, QIcon::Off), QColor(Qt::black));
  EXPECT_EQ(ink(QIcon::Disabled, QIcon::On), ink(QIcon::Disabled, QIcon::Off));
  QGuiApplication::setPalette(before);
}

TEST(PictureIcon, IsNoneForACommandWithoutAPicture) {
  EXPECT_TRUE(PictureIcon({}).isNull());
}

TEST(PictureIcon, TheProgramHasOneOfItsOwn) {
  EXPECT_TRUE(InkOf(ProgramIcon()).isValid());
}

TEST(PictureCursor, IsThePictureInItsOwnColoursWithTheTipOfTheArrow) {
  for (const std::string_view name : {kRowCursor, kPressedCursor, kDragCursor, kBusyCursor}) {
    const QCursor cursor = PictureCursor(name);
    EXPECT_EQ(cursor.shape(), Qt::BitmapCursor);
    EXPECT_EQ(cursor.hotSpot(), QPoint(kCursorTipX, kCursorTipY));
    EXPECT_EQ(cursor.pixmap().deviceIndependentSize(), QSizeF(32, 32));
    EXPECT_GT(cursor.pixmap().toImage().pixelColor(kCursorTipX + 1, kCursorTipY + 4).alpha(), 128);
  }
}

}  // namespace
}  // namespace brevant
