// The label in front of a control of the customise sheet.
#pragma once

#include <QLabel>
#include <QString>

namespace brevant {

// With "&" before the letter that, together with Alt, leads to `control`, which goes by the same words for a
// screen reader. Whoever lays it out owns it.
[[nodiscard]] QLabel* MakeLabel(const QString& text, QWidget& control);

}  // namespace brevant
