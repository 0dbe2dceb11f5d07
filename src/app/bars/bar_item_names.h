// What the customise sheet calls what is on a bar.
#pragma once

#include <QString>

#include "resources/customised_bars.h"

namespace brevant {

[[nodiscard]] QString BarItemName(const TCBarItem& item);

}  // namespace brevant
