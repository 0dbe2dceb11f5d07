#include "app/stage_style.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QImage>
#include <QPalette>

namespace brevant {
namespace {

// How many pixels of the icon are of a colour.
int Pixels(const QIcon& icon, const QColor& colour) {
  const QImage image = icon.pixmap(QSize(24, 24)).toImage();
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour ? 1 : 0;
  }
  return count;
}

TEST(StageStyle, TheArrowOfANarrowBarIsSeenOnAnyBackground) {
  TCStageStyle style;
  const QIcon arrow = style.standardIcon(QStyle::SP_ToolBarHorizontalExtensionButton, nullptr, nullptr);
  const QPalette before = QApplication::palette();
  for (const QColor colour : {QColor(Qt::white), QColor(Qt::black)}) {
    QPalette palette = before;
    palette.setColor(QPalette::ButtonText, colour);
    QApplication::setPalette(palette);
    EXPECT_GT(Pixels(arrow, colour), 20) << colour.name().toStdString();
  }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace brevant
