#include "text/numbers.h"

#include <limits>

#include "text/white_space.h"

namespace brevant {

namespace {

template <class Char>
bool IsDigit(Char unit) {
  return unit >= '0' && unit <= '9';
}

template <class Char>
std::optional<std::int32_t> ReadNumber(std::basic_string_view<Char> text) {
  using Limits = std::numeric_limits<std::int32_t>;
  while (!text.empty() && IsWhiteSpace(static_cast<char16_t>(text.front()))) text.remove_prefix(1);
  const bool negative = !text.empty() && text.front() == '-';
  if (negative || (!text.empty() && text.front() == '+')) text.remove_prefix(1);
  if (text.empty() || !IsDigit(text.front())) return std::nullopt;

  constexpr std::int64_t kMost = std::int64_t{Limits::max()} + 1;  // the most that a negative number can be
  std::int64_t magnitude = 0;
  for (const Char unit : text) {
    if (!IsDigit(unit)) break;
    magnitude = magnitude * 10 + (unit - '0');
    if (magnitude > kMost) return std::nullopt;
  }
  if (!negative && magnitude == kMost) return std::nullopt;
  return static_cast<std::int32_t>(negative ? -magnitude : magnitude);
}

}  // namespace

std::optional<std::int32_t> ReadDecimal(std::u16string_view text) {
  return ReadNumber(text);
}

std::optional<std::int32_t> ReadDecimal(std::string_view text) {
  return ReadNumber(text);
}

std::u16string FormatDecimal(std::int64_t value) {
  const std::string digits = std::to_string(value);
  return {digits.begin(), digits.end()};
}

}  // namespace brevant
