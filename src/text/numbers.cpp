#include "text/numbers.h"

#include <limits>

#include "text/white_space.h"

namespace brevant {

namespace {

bool IsDigit(char16_t unit) {
  return unit >= u'0' && unit <= u'9';
}

}  // namespace

std::optional<std::int32_t> ReadDecimal(std::u16string_view text) {
  using Limits = std::numeric_limits<std::int32_t>;
  text = TrimLeft(text);
  const bool negative = text.starts_with(u'-');
  if (negative || text.starts_with(u'+')) text.remove_prefix(1);
  if (text.empty() || !IsDigit(text.front())) return std::nullopt;

  std::int64_t value = 0;
  for (const char16_t unit : text) {
    if (!IsDigit(unit)) break;
    value = value * 10 + (negative ? -(unit - u'0') : unit - u'0');
    if (value < Limits::min() || value > Limits::max()) return std::nullopt;
  }
  return static_cast<std::int32_t>(value);
}

std::u16string FormatDecimal(std::int64_t value) {
  const std::string digits = std::to_string(value);
  return {digits.begin(), digits.end()};
}

}  // namespace brevant
