// Where a seek step leads. Pure functions over seconds.
#pragma once

#include <cstdint>

namespace brevant {

// Not past the end; while the length is not known (0 or less) not past 10000 s.
[[nodiscard]] double SeekForwardTarget(double position, std::int32_t step, int duration);

// Not before the start.
[[nodiscard]] double SeekBackTarget(double position, std::int32_t step);

}  // namespace brevant
