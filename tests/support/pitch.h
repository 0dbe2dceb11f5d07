// Listens to recorded samples: how loud a stretch is, and whether a pitch is in it.
#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numbers>
#include <optional>
#include <span>
#include <vector>

namespace brevant {

// Root of the mean square.
inline double Loudness(std::span<const double> samples) {
  double sum = 0.0;
  for (const double sample : samples) sum += sample * sample;
  return samples.empty() ? 0.0 : std::sqrt(sum / static_cast<double>(samples.size()));
}

// The amplitude of a sine of `frequency` in the samples (Goertzel's filter).
inline double Amplitude(std::span<const double> samples, double frequency, double rate) {
  const double turn = 2.0 * std::cos(2.0 * std::numbers::pi * frequency / rate);
  double last = 0.0;
  double beforeLast = 0.0;
  for (const double sample : samples) {
    const double next = sample + turn * last - beforeLast;
    beforeLast = last;
    last = next;
  }
  const double power = last * last + beforeLast * beforeLast - turn * last * beforeLast;
  return samples.empty() ? 0.0 : 2.0 * std::sqrt(std::max(power, 0.0)) / static_cast<double>(samples.size());
}

// The first moment, in seconds after `from`, at which `frequency` sounds louder than `threshold` over a
// thirtieth of a second.
inline std::optional<double> FirstHeard(std::span<const double> samples, double frequency, double rate,
                                        double threshold, double from = 0.0) {
  const auto window = static_cast<std::size_t>(rate / 30.0);
  const auto step = static_cast<std::size_t>(rate / 1000.0);
  for (auto begin = static_cast<std::size_t>(from * rate); begin + window <= samples.size(); begin += step) {
    if (Amplitude(samples.subspan(begin, window), frequency, rate) > threshold) {
      return static_cast<double>(begin) / rate;
    }
  }
  return std::nullopt;
}

}  // namespace brevant
