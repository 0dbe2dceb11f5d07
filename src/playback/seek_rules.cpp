#include "playback/seek_rules.h"

#include <algorithm>

namespace brevant {

namespace {
constexpr double kLongestSong = 10000.0;  // seconds; stands in for a length that is not known
}

double SeekForwardTarget(double position, std::int32_t step, int duration) {
  return std::min(position + step, duration > 0 ? static_cast<double>(duration) : kLongestSong);
}

double SeekBackTarget(double position, std::int32_t step) {
  return std::max(position - step, 0.0);
}

}  // namespace brevant
