// Lower-casing that does not ask the locale: names match the same way on every machine.
#pragma once

#include <string>
#include <string_view>

namespace brevant {

// The lower-case form of one UTF-16 unit. Covers the letters of every script in the basic plane that have a
// one-unit lower-case form; surrogates and everything else come back unchanged.
[[nodiscard]] char16_t ToLower(char16_t unit);

[[nodiscard]] std::u16string ToLower(std::u16string_view text);

// True when both texts are the same after lower-casing. Allocates nothing.
[[nodiscard]] bool EqualIgnoringCase(std::u16string_view a, std::u16string_view b);

}  // namespace brevant
