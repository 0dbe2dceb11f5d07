// White space as the readers and prompts trim it: blank, tab, line feed, vertical tab, form feed and
// carriage return.
#pragma once

#include <string_view>

namespace brevant {

[[nodiscard]] constexpr bool IsWhiteSpace(char16_t unit) {
  return unit == u' ' || (unit >= u'\t' && unit <= u'\r');
}
[[nodiscard]] std::u16string_view TrimLeft(std::u16string_view text);
[[nodiscard]] std::u16string_view TrimRight(std::u16string_view text);
[[nodiscard]] std::u16string_view Trim(std::u16string_view text);

}  // namespace brevant
