#include <gtest/gtest.h>

#include <QByteArray>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>
#include <string_view>
#include <vector>

#include "resources/command_table.h"
#include "resources/icons/icon_names.h"

namespace brevant {
namespace {

std::vector<std::string_view> AllNames() {
  std::vector<std::string_view> names = {kRowIcon,    kBarMoreIcon,   kPaneFloatIcon, kPaneCloseIcon,
                                         kVolumeIcon, kPressedCursor, kRowCursor,     kDragCursor,
                                         kBusyCursor, kProgramIcon};
  names.insert(names.end(), std::begin(kTreeIcons), std::end(kTreeIcons));
  for (const TCCommand& command : Commands()) {
    if (!IconName(command.id).empty()) names.push_back(IconName(command.id));
  }
  return names;
}

QByteArray Picture(std::string_view name) {
  QFile file(QString::fromStdString(IconResource(name)));
  EXPECT_TRUE(file.open(QIODevice::ReadOnly)) << name;
  return file.readAll();
}

QImage Render(const QByteArray& picture) {
  QSvgRenderer renderer(picture);
  EXPECT_TRUE(renderer.isValid());
  QImage image(renderer.defaultSize(), QImage::Format_ARGB32);
  image.fill(Qt::transparent);
  QPainter painter(&image);
  renderer.render(&painter);
  return image;
}

int InkedPixels(const QImage& image) {
  int inked = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) inked += image.pixelColor(x, y).alpha() > 128 ? 1 : 0;
  }
  return inked;
}

TEST(IconImages, AreInTheProgramAndShowSomething) {
  for (const std::string_view name : AllNames()) {
    const QImage image = Render(Picture(name));
    EXPECT_GT(InkedPixels(image), 30) << name;
    EXPECT_LT(InkedPixels(image), image.width() * image.height()) << name;
  }
}

TEST(IconImages, TakeAnotherColourInPlaceOfTheirOwn) {
  QByteArray picture = Picture(IconName(TCCommandId::Stop));
  picture.replace(QByteArray(kIconColour.data(), static_cast<qsizetype>(kIconColour.size())), "#ff0000");
  EXPECT_EQ(Render(picture).pixelColor(12, 12), QColor(255, 0, 0));
}

TEST(IconImages, OfCursorsHaveTheirTipWhereTheHotSpotIs) {
  for (const std::string_view name : {kPressedCursor, kRowCursor, kDragCursor, kBusyCursor}) {
    const QImage image = Render(Picture(name));
    EXPECT_GT(image.pixelColor(kCursorTipX, kCursorTipY + 1).alpha(), 128) << name;
    EXPECT_EQ(image.pixelColor(kCursorTipX - 3, kCursorTipY).alpha(), 0) << name;
  }
}

}  // namespace
}  // namespace brevant
