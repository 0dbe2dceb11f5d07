#include "text/time_text.h"

#include "text/numbers.h"

namespace brevant {

namespace {

std::u16string TwoDigits(std::int32_t value) {
  std::u16string digits = FormatDecimal(value);
  return digits.size() < 2 ? u"0" + digits : digits;
}

// Two characters hold no number past 99, so the sums below stay far inside 32 bits.
std::int32_t NumberAt(std::u16string_view text, std::size_t position) {
  const int tens = text[position] - u'0';
  const int ones = text[position + 1] - u'0';
  if (tens >= 0 && tens <= 9 && ones >= 0 && ones <= 9) return 10 * tens + ones;  // nearly always, and often
  return ReadDecimal(text.substr(position, 2)).value_or(0);
}

}  // namespace

std::u16string FormatTime(std::int32_t seconds) {
  if (seconds < 0) return u"00:00";
  const std::int32_t hours = seconds / 3600;
  const std::u16string minutesAndSeconds = TwoDigits(seconds / 60 % 60) + u":" + TwoDigits(seconds % 60);
  return hours == 0 ? minutesAndSeconds : TwoDigits(hours) + u":" + minutesAndSeconds;
}

std::int32_t ParseTime(std::u16string_view text) {
  if (text.size() == 5) return 60 * NumberAt(text, 0) + NumberAt(text, 3);
  if (text.size() == 8) return (60 * NumberAt(text, 0) + NumberAt(text, 3)) * 60 + NumberAt(text, 6);
  return 0;
}

}  // namespace brevant
