#include "text/quoted_words.h"

#include <algorithm>

#include "text/white_space.h"

namespace brevant {

std::vector<std::u16string> SplitQuotedWords(std::u16string_view text) {
  std::vector<std::u16string> words;
  for (text = TrimLeft(text); !text.empty(); text = TrimLeft(text)) {
    const bool quoted = text.front() == u'"';
    if (quoted) text.remove_prefix(1);
    const std::size_t length = std::min(quoted ? text.find(u'"') : text.find_first_of(u" \t"), text.size());
    words.emplace_back(text.substr(0, length));
    text.remove_prefix(std::min(quoted ? length + 1 : length, text.size()));
  }
  return words;
}

std::u16string QuotedWord(std::u16string_view word) {
  std::u16string quoted = u"\"";
  quoted += word;
  quoted += u'"';
  return quoted;
}

}  // namespace brevant
