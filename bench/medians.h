// Times a piece of work several times over. Used by the whole-process measurements.
#pragma once

#include <time.h>

#include <algorithm>
#include <chrono>
#include <cstddef>
#include <vector>

namespace brevant {

// What a piece of work took, in milliseconds: on the clock, and of the processor, which other work on the
// machine touches less.
struct TCSpent {
  double wall = 0.0;
  double processor = 0.0;
};

[[nodiscard]] inline double ProcessorMilliseconds() {
  timespec now{};
  clock_gettime(CLOCK_PROCESS_CPUTIME_ID, &now);
  return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

template <class Work>
[[nodiscard]] TCSpent Spent(const Work& work) {
  const double processorBefore = ProcessorMilliseconds();
  const auto begin = std::chrono::steady_clock::now();
  work();
  const std::chrono::duration<double, std::milli> wall = std::chrono::steady_clock::now() - begin;
  return {wall.count(), ProcessorMilliseconds() - processorBefore};
}

template <class Work>
[[nodiscard]] double Milliseconds(const Work& work) {
  return Spent(work).wall;
}

// Of an odd number of samples the one in the middle; 0 without any.
[[nodiscard]] inline double Median(std::vector<double> samples) {
  if (samples.empty()) return 0.0;
  const auto middle = samples.begin() + static_cast<std::ptrdiff_t>(samples.size() / 2);
  std::nth_element(samples.begin(), middle, samples.end());
  return *middle;
}

}  // namespace brevant
