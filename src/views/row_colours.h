// Colours of the rows on the screen: the core's colours as Qt's, and how a selected row looks without losing
// the play-mark colour of its text. Pure functions.
#pragma once

#include <QColor>

#include "model/settings.h"

namespace brevant {

// Around a selected row; told apart from black, from white and from both selected backgrounds.
inline constexpr TCRgb kSelectionOutline = 0x2F7DF0;

[[nodiscard]] inline QColor ToQColor(TCRgb colour) {
  return QColor::fromRgb(QRgb{0xFF000000U} | colour);
}

// 1 (the same) to 21 (black on white). Text is easily read from 4.5 on.
[[nodiscard]] double ContrastRatio(TCRgb one, TCRgb other);

// The background of a selected row whose text has this colour: a dark or a light blue, whichever the text is
// read on more easily.
[[nodiscard]] TCRgb SelectedBackground(TCRgb text);

}  // namespace brevant
