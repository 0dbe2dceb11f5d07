// The large fonts that the user chooses. The setting keeps any number of points; what is drawn stays usable.
#pragma once

#include <QFont>
#include <QWidget>
#include <cstdint>
#include <string_view>

namespace brevant {

// At least 1 point, and at most as large as leaves room for four lines on the screen that `shownOn` is on.
[[nodiscard]] QFont DisplayFont(std::u16string_view face, std::int32_t points, const QWidget& shownOn);

}  // namespace brevant
