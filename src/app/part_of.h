// Whether a widget is inside another, over the border of a window as well: a pane that floats is a window of
// its own, and the toolkit's own question stops there. User-interface thread only.
#pragma once

#include <QWidget>

namespace brevant {

// `root` is a part of itself; null is a part of nothing.
[[nodiscard]] inline bool IsPartOf(const QWidget& root, const QWidget* widget) {
  while (widget != nullptr && widget != &root) widget = widget->parentWidget();
  return widget != nullptr;
}

}  // namespace brevant
