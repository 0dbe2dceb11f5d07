// Where a context menu opens that was asked for by the keyboard: below the entry it is for, and inside the
// view also when that entry was scrolled out of sight.
#pragma once

#include <QPoint>
#include <QRect>
#include <QWidget>
#include <algorithm>

namespace brevant {

// `entry` is in the coordinates of `viewport`; an invalid one stands for none, and the menu opens in the
// corner. The answer is a place on the screen.
[[nodiscard]] inline QPoint MenuPlace(const QWidget& viewport, const QRect& entry) {
  const QPoint wanted = entry.isValid() ? entry.bottomLeft() : QPoint();
  const QRect seen = viewport.rect();
  return viewport.mapToGlobal(QPoint(std::clamp(wanted.x(), 0, std::max(seen.right(), 0)),
                                     std::clamp(wanted.y(), 0, std::max(seen.bottom(), 0))));
}

}  // namespace brevant
