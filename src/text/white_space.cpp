#include "text/white_space.h"

namespace brevant {

std::u16string_view TrimLeft(std::u16string_view text) {
  while (!text.empty() && IsWhiteSpace(text.front())) text.remove_prefix(1);
  return text;
}

std::u16string_view TrimRight(std::u16string_view text) {
  while (!text.empty() && IsWhiteSpace(text.back())) text.remove_suffix(1);
  return text;
}

std::u16string_view Trim(std::u16string_view text) {
  return TrimLeft(TrimRight(text));
}

}  // namespace brevant
