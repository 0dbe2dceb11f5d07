// Where a drag is, whatever widget it began in: the mouse stays with that one until its button is released.
#pragma once

#include <QPoint>
#include <QWidget>

namespace brevant {

// The place lies in `widget`, and in no window of this program that floats above it.
[[nodiscard]] bool IsUnder(const QWidget& widget, QPoint globalPosition);

}  // namespace brevant
