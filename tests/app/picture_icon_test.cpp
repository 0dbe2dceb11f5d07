#include "app/picture_icon.h"

#include <gtest/gtest.h>

#include <QGuiApplication>
#include <QImage>
#include <QPalette>
#include <QPixmap>

#include "app/stage_palette.h"
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
