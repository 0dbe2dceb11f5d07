#include "playback/repeat_range.h"

namespace brevant {

TCFieldTime RepeatFieldTime(std::int32_t seconds) {
  if (seconds < 0) return {};
  const std::int32_t withinHour = seconds % 3600;
  return {withinHour / 60, withinHour % 60};
}

}  // namespace brevant
