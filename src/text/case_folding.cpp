#include "text/case_folding.h"

#include <algorithm>

#include "text/case_table.h"

namespace brevant {

char16_t ToLower(char16_t unit) {
  if (unit < 0x80) return unit >= u'A' && unit <= u'Z' ? static_cast<char16_t>(unit + 0x20) : unit;

  const auto* run = std::lower_bound(kCaseRuns.begin(), kCaseRuns.end(), unit,
                                     [](const CaseRun& a, char16_t b) { return a.last < b; });
  const bool inRun = run != kCaseRuns.end() && unit >= run->first && (unit - run->first) % run->step == 0;
  return inRun ? static_cast<char16_t>(unit + run->delta) : unit;
}

std::u16string ToLower(std::u16string_view text) {
  std::u16string lower(text);
  for (char16_t& unit : lower) unit = ToLower(unit);
  return lower;
}

bool EqualIgnoringCase(std::u16string_view a, std::u16string_view b) {
  return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](char16_t left, char16_t right) {
    return left == right || ToLower(left) == ToLower(right);
  });
}

}  // namespace brevant
