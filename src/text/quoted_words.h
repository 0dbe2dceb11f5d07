// Lists of words as they are typed: blanks separate, double quotes hold blanks together.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brevant {

// Words in order. A quoted word runs to the next double quote, or to the end when there is none; "" gives an
// empty word. An unquoted word ends at a blank or a tab (a double quote inside it is part of it).
[[nodiscard]] std::vector<std::u16string> SplitQuotedWords(std::u16string_view text);

// In double quotes, so that it is split off as one word; a double quote inside it would end it early.
[[nodiscard]] std::u16string QuotedWord(std::u16string_view word);

}  // namespace brevant
