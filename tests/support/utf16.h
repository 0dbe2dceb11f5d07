// Text as a UTF-16 file holds it.
#pragma once

#include <string>
#include <string_view>

namespace brevant {

// Little-endian, without a byte order mark unless `text` begins with one.
[[nodiscard]] inline std::string Utf16Bytes(std::u16string_view text) {
  std::string bytes;
  for (const char16_t unit : text) {
    bytes.push_back(static_cast<char>(unit & 0xFF));
    bytes.push_back(static_cast<char>(unit >> 8));
  }
  return bytes;
}

}  // namespace brevant
