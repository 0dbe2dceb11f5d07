// The colours of the whole window, mixed from the two that "White On Black" swaps: on a dark stage the menus
// and panes must not glare beside the playlist. Used by the main frame.
#pragma once

#include <QPalette>

#include "model/settings.h"

namespace brevant {

[[nodiscard]] QPalette StagePalette(TCRgb text, TCRgb background);

// A menu lies over the playlist and needs an edge: on black no shadow separates the two.
[[nodiscard]] QPalette MenuPalette(TCRgb text, TCRgb background);

}  // namespace brevant
