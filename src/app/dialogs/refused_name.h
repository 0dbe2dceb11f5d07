// What the status bar says about a file name that the model cannot hold.
#pragma once

#include <string>
#include <string_view>

namespace brevant {

// Names the reason. `nativeName` may hold any bytes.
[[nodiscard]] std::u16string RefusedNameText(std::string_view nativeName);

}  // namespace brevant
