#include "views/display_font.h"

#include <QFontMetricsF>
#include <QScreen>
#include <algorithm>

#include "views/text_conversion.h"

namespace brevant {

namespace {

// Read at one size: a font of a billion points is never asked for anything.
constexpr int kMeasuredPoints = 100;
constexpr double kLinesOnScreen = 4.0;
constexpr int kMostPointsWithoutScreen = 300;

int MostPoints(const QFont& font, const QWidget& shownOn) {
  const QScreen* screen = shownOn.screen();
  if (screen == nullptr) return kMostPointsWithoutScreen;
  const double lineOfOnePoint = QFontMetricsF(font, &shownOn).lineSpacing() / kMeasuredPoints;
  if (lineOfOnePoint <= 0.0) return kMostPointsWithoutScreen;
  const double screenHeight = screen->availableGeometry().height();
  return std::max(1, static_cast<int>(screenHeight / kLinesOnScreen / lineOfOnePoint));
}

}  // namespace

QFont DisplayFont(std::u16string_view face, std::int32_t points, const QWidget& shownOn) {
  QFont font(ToQString(face), kMeasuredPoints);
  font.setPointSize(std::clamp(points, 1, MostPoints(font, shownOn)));
  return font;
}

}  // namespace brevant
