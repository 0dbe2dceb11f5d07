// Song times as text: "mm:ss", and "hh:mm:ss" from one hour on. The one conversion every other room uses.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brevant {

// Seconds to text. A negative number gives "00:00"; hours appear from 3600 seconds on ("01:00:00").
[[nodiscard]] std::u16string FormatTime(std::int32_t seconds);

// Text to seconds. Only texts of exactly 5 ("mm:ss") or 8 ("hh:mm:ss") characters are read; any other length
// gives 0, and so does a part that holds no number.
[[nodiscard]] std::int32_t ParseTime(std::u16string_view text);

}  // namespace brevant
