// Decimal numbers in text: read as the C "%d" does, written the same way.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace brevant {

// Reads leading white space, an optional sign and as many digits as stand there; what follows is ignored.
// Empty when no digit stands there, or when the number does not fit 32 bits.
[[nodiscard]] std::optional<std::int32_t> ReadDecimal(std::u16string_view text);
[[nodiscard]] std::optional<std::int32_t> ReadDecimal(std::string_view text);

[[nodiscard]] std::u16string FormatDecimal(std::int64_t value);

}  // namespace brevant
