#include "app/window_placement.h"

#include <QGuiApplication>
#include <QRegion>
#include <QScreen>
#include <algorithm>

namespace brevant {
namespace {

constexpr std::array kNames = {
    "WindowShowCmd1",    "WindowTop1",        "WindowLeft1",       "WindowBottom1",     "WindowRight1",
    "WindowXMinimised1", "WindowYMinimised1", "WindowXMaximised1", "WindowYMaximised1",
};

constexpr int kShowNormal = 1;
constexpr int kShowMaximised = 3;
constexpr int kUnknown = -1;
constexpr int kFarthest = 100000;  // pixels; no desk has so many, and sums of them still fit
// Kept free for the title bar and the borders that a window manager adds.
constexpr QMargins kBorders(8, 40, 8, 8);

QString KeyOf(const char* name) {
  return QStringLiteral("MainWindowFrameLayout/") + QLatin1String(name);
}

int Area(const QRect& rect) {
  return rect.isEmpty() ? 0 : rect.width() * rect.height();
}

QList<QRect> ScreensNow() {
  QList<QRect> screens;
  // The first is the main one.
  for (const QScreen* screen : QGuiApplication::screens()) screens.append(screen->availableGeometry());
  return screens;
}

}  // namespace

TCPlacementNumbers ToNumbers(const TCWindowPlacement& placement) {
  const QRect& normal = placement.normal;
  return {placement.maximised ? kShowMaximised : kShowNormal,
          normal.top(),
          normal.left(),
          normal.top() + normal.height(),
          normal.left() + normal.width(),
          kUnknown,
          kUnknown,
          kUnknown,
          kUnknown};
}

std::optional<TCWindowPlacement> FromNumbers(const TCPlacementNumbers& numbers) {
  const auto [showState, top, left, bottom, right, xMin, yMin, xMax, yMax] = numbers;
  if (showState < kShowNormal || showState > kShowMaximised) return std::nullopt;
  for (const int edge : {top, left, bottom, right}) {
    if (edge < -kFarthest || edge > kFarthest) return std::nullopt;
  }
  if (bottom <= top || right <= left) return std::nullopt;
  return TCWindowPlacement{QRect(left, top, right - left, bottom - top), showState == kShowMaximised};
}

QRect OnScreens(const QRect& normal, const QList<QRect>& screens) {
  QRegion all;
  for (const QRect& screen : screens) all += screen;
  if (screens.isEmpty() || QRegion(normal).subtracted(all).isEmpty()) return normal;

  const auto shares = [&normal](const QRect& screen) { return Area(screen & normal); };
  const QRect room = std::ranges::max_element(screens, {}, shares)->marginsRemoved(kBorders);
  const QSize size = normal.size().boundedTo(room.size());
  const int left = std::clamp(normal.left(), room.left(), room.left() + room.width() - size.width());
  const int top = std::clamp(normal.top(), room.top(), room.top() + room.height() - size.height());
  return {QPoint(left, top), size};
}

QSize SizeOnScreen(const QWidget& window, QSize wanted) {
  return wanted.boundedTo(window.screen()->availableSize().shrunkBy(kBorders));
}

void SavePlacement(const QWidget& window, QSettings& layout) {
  const bool maximised = window.windowState().testFlag(Qt::WindowMaximized);
  const QRect normal = maximised ? window.normalGeometry() : window.geometry();
  const TCPlacementNumbers numbers = ToNumbers({normal, maximised});
  for (std::size_t i = 0; i < numbers.size(); ++i) layout.setValue(KeyOf(kNames[i]), numbers[i]);
}

std::optional<TCWindowPlacement> SavedPlacement(const QSettings& layout) {
  TCPlacementNumbers numbers{};
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    bool isNumber = false;
    numbers[i] = layout.value(KeyOf(kNames[i])).toString().toInt(&isNumber);
    if (!isNumber) return std::nullopt;
  }
  return FromNumbers(numbers);
}

void PlaceWindow(QWidget& window, const TCWindowPlacement& placement) {
  window.setGeometry(OnScreens(placement.normal, ScreensNow()));
  if (placement.maximised && window.isVisible())
    window.setWindowState(window.windowState() | Qt::WindowMaximized);
}

}  // namespace brevant
