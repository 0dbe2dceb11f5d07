#include "app/look/stage_style.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QPalette>
#include <QStyleOption>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>
#include <algorithm>
#include <cmath>
#include <utility>

#include "app/look/picture_icon.h"
#include "app/look/stage_palette.h"

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

double Luminance(const QColor& colour) {
  const auto linear = [](double value) {
    return value <= 0.04045 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(colour.redF()) + 0.7152 * linear(colour.greenF()) + 0.0722 * linear(colour.blueF());
}

// 1 to 21; 3 is what tells a sign from its background.
double Contrast(const QColor& a, const QColor& b) {
  const double one = Luminance(a) + 0.05;
  const double other = Luminance(b) + 0.05;
  return std::max(one, other) / std::min(one, other);
}

TEST(StageStyle, AButtonThatIsOnStandsOutFromItsBarOnBlackAndOnWhite) {
  const QPalette before = QApplication::palette();
  for (const auto& [text, background] : {std::pair(kWhite, kBlack), std::pair(kBlack, kWhite)}) {
    const QPalette palette = StagePalette(text, background);
    QApplication::setPalette(palette);
    QToolBar bar;
    QAction option(PictureIcon("white_on_black"), QStringLiteral("Option"));
    option.setCheckable(true);
    bar.addAction(&option);
    auto* button = qobject_cast<QToolButton*>(bar.widgetForAction(&option));
    ASSERT_NE(button, nullptr);
    button->resize(32, 32);
    const QPoint besideThePicture(4, 16);
    EXPECT_LT(
        Contrast(button->grab().toImage().pixelColor(besideThePicture), palette.color(QPalette::Window)),
        1.1);
    option.setChecked(true);
    const QImage on = button->grab().toImage();
    EXPECT_GE(Contrast(on.pixelColor(besideThePicture), palette.color(QPalette::Window)), 3.0);
    // The picture on it is seen as well.
    double best = 1.0;
    for (int x = 6; x < 26; ++x) {
      best = std::max(best, Contrast(on.pixelColor(x, 16), on.pixelColor(besideThePicture)));
    }
    EXPECT_GE(best, 4.5);
  }
  QApplication::setPalette(before);
}

TEST(StageStyle, AListOfManyChoicesOpensWithAFewAndIsScrolled) {
  QComboBox list;
  for (int i = 0; i < 500; ++i) list.addItem(QString::number(i));
  list.show();
  list.showPopup();
  EXPECT_LE(list.view()->window()->height(), 12 * list.view()->sizeHintForRow(0));
  list.hidePopup();
}

// Drawn by the style alone, on the window's colour.
QImage Drawn(QStyle::ControlElement element, QStyleOption& option, const QPalette& palette) {
  QImage image(60, 20, QImage::Format_RGB32);
  image.fill(palette.color(QPalette::Window));
  option.rect = image.rect();
  option.palette = palette;
  QPainter painter(&image);
  TCStageStyle().drawControl(element, &option, &painter, nullptr);
  return image;
}

TEST(StageStyle, ALineBetweenMenuEntriesIsSeenOnBlackAndOnWhite) {
  for (const auto& [text, background] : {std::pair(0xFFFFFFU, 0x000000U), std::pair(0x000000U, 0xFFFFFFU)}) {
    const QPalette palette = MenuPalette(text, background);
    QStyleOptionMenuItem entry;
    entry.menuItemType = QStyleOptionMenuItem::Separator;
    const QImage image = Drawn(QStyle::CE_MenuItem, entry, palette);
    double most = 0;
    for (int y = 0; y < image.height(); ++y) {
      most = std::max(most, Contrast(image.pixelColor(30, y), palette.color(QPalette::Base)));
    }
    EXPECT_GT(most, 1.5) << palette.color(QPalette::Base).name().toStdString();
  }
}

TEST(StageStyle, TheTabThatIsShownHasALineAlongItsOuterEdge) {
  const QPalette palette = StagePalette(0xFFFFFF, 0x000000);
  const QColor blue = palette.color(QPalette::Highlight);
  for (const auto& [shape, edge] :
       {std::pair(QTabBar::RoundedNorth, 0), std::pair(QTabBar::RoundedSouth, 19)}) {
    QStyleOptionTab tab;
    tab.shape = shape;
    tab.state = QStyle::State_Enabled;
    EXPECT_NE(Drawn(QStyle::CE_TabBarTabShape, tab, palette).pixelColor(30, edge), blue);
    tab.state |= QStyle::State_Selected;
    EXPECT_EQ(Drawn(QStyle::CE_TabBarTabShape, tab, palette).pixelColor(30, edge), blue);
  }
}

TEST(StageStyle, APaneThatFloatsHasAFrameThatIsSeenOnBlackAndOnWhite) {
  for (const auto& [text, background] : {std::pair(0xFFFFFFU, 0x000000U), std::pair(0x000000U, 0xFFFFFFU)}) {
    const QPalette palette = StagePalette(text, background);
    QImage image(60, 20, QImage::Format_RGB32);
    image.fill(palette.color(QPalette::Window));
    QStyleOptionFrame frame;
    frame.rect = image.rect();
    frame.palette = palette;
    QPainter painter(&image);
    const TCStageStyle style;
    style.drawPrimitive(QStyle::PE_FrameDockWidget, &frame, &painter, nullptr);
    for (const QPoint edge : {QPoint(0, 10), QPoint(59, 10), QPoint(30, 0), QPoint(30, 19)}) {
      EXPECT_GT(Contrast(image.pixelColor(edge), palette.color(QPalette::Window)), 1.5);
    }
    // What the pane shows begins inside of it.
    const int width = style.pixelMetric(QStyle::PM_DockWidgetFrameWidth, nullptr, nullptr);
    EXPECT_EQ(image.pixelColor(width, 10), palette.color(QPalette::Window));
    EXPECT_NE(image.pixelColor(width - 1, 10), palette.color(QPalette::Window));
  }
}

TEST(StageStyle, TheArrowOfANarrowBarAndThePanesButtonsAreSeenOnAnyBackground) {
  TCStageStyle style;
  const QPalette before = QApplication::palette();
  for (const QStyle::StandardPixmap picture :
       {QStyle::SP_ToolBarHorizontalExtensionButton, QStyle::SP_TitleBarNormalButton,
        QStyle::SP_TitleBarCloseButton}) {
    const QIcon icon = style.standardIcon(picture, nullptr, nullptr);
    for (const QColor colour : {QColor(Qt::white), QColor(Qt::black)}) {
      QPalette palette = before;
      palette.setColor(QPalette::ButtonText, colour);
      QApplication::setPalette(palette);
      EXPECT_GT(Pixels(icon, colour), 20) << picture << colour.name().toStdString();
    }
  }
  QApplication::setPalette(before);
}

}  // namespace
}  // namespace brevant
