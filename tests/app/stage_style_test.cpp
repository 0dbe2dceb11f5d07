#include "app/stage_style.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPalette>
#include <algorithm>

#include "app/stage_palette.h"

namespace brevant {
namespace {

QColor MiddleOf(QWidget& widget) {
  widget.resize(100, 40);
  const QImage picture = widget.grab().toImage();
  return picture.pixelColor(picture.width() / 2, picture.height() / 2);
}

// How many pixels of the icon are of a colour.
int Pixels(const QIcon& icon, const QColor& colour) {
  const QImage image = icon.pixmap(QSize(24, 24)).toImage();
  int count = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) count += image.pixelColor(x, y) == colour ? 1 : 0;
  }
  return count;
}

TEST(StageStyle, AFieldThatTakesNoTypingHasTheColourOfTheWindow) {
  QPalette palette;
  palette.setColor(QPalette::Window, QColor(10, 20, 30));
  palette.setColor(QPalette::Base, QColor(200, 210, 220));
  QLineEdit field;
  field.setPalette(palette);
  EXPECT_EQ(MiddleOf(field), QColor(200, 210, 220));
  field.setReadOnly(true);
  EXPECT_EQ(MiddleOf(field), QColor(10, 20, 30));
}

TEST(StageStyle, OnADarkWindowFieldsAndBoxesHaveAnEdgeThatIsSeen) {
  QPalette palette = StagePalette(0xFFFFFF, 0x000000);
  QLineEdit field;
  QCheckBox box;
  for (QWidget* widget : {static_cast<QWidget*>(&field), static_cast<QWidget*>(&box)}) {
    widget->setPalette(palette);
    widget->resize(100, 40);
    const QImage picture = widget->grab().toImage();
    int brightest = 0;
    for (int x = 0; x < picture.width(); ++x) {
      brightest = std::max(brightest, picture.pixelColor(x, picture.height() / 2).lightness());
    }
    EXPECT_GE(brightest, palette.color(QPalette::Mid).lightness());
  }
}

TEST(StageStyle, AListOfManyChoicesOpensWithAFewAndIsScrolled) {
  QComboBox list;
  for (int i = 0; i < 500; ++i) list.addItem(QString::number(i));
  list.show();
  list.showPopup();
  EXPECT_LE(list.view()->window()->height(), 12 * list.view()->sizeHintForRow(0));
  list.hidePopup();
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
