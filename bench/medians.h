// Times a piece of work several times over. Used by the whole-process measurements.
#pragma once

#include <algorithm>
#include <chrono>
#include <vector>

namespace brevant {

// Milliseconds that `work` takes on the wall clock.
template <class Work>
[[nodiscard]] double Milliseconds(const Work& work) {
  const auto begin = std::chrono::steady_clock::now();
  work();
  return std::chrono::duration<double, std::milli>(std::chrono::steady_clock::now() - begin).count();
}

// Of an odd number of samples the one in the middle; 0 without any.
[[nodiscard]] inline double Median(std::vector<double> samples) {
  if (samples.empty()) return 0.0;
  const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
  std::nth_element(samples.begin(), middle, samples.end());
  return *middle;
}

}  // namespace brevant
