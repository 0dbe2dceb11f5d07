#include "rehearsal/loop_beat.h"

#include <algorithm>
#include <cmath>

namespace brevant {

TCStall JudgeBeat(const TCLoopBeat& beat) {
  if (beat.waited <= kStall) return TCStall::None;
  const double kept = beat.waited - beat.queued - beat.helpersQueued;
  return beat.worked > kStall || kept > kStall ? TCStall::OfTheProgram : TCStall::OfTheMachine;
}

void TCBeatSpread::Add(double seconds) {
  ++count;
  longest = std::max(longest, seconds);
  // A beat of exactly one step belongs to the first place.
  const double place = std::ceil(std::max(seconds, 0.0) / kStep - 1e-6) - 1.0;
  if (place < static_cast<double>(kPlaces)) ++places[static_cast<std::size_t>(std::max(place, 0.0))];
}

double TCBeatSpread::Within(double share) const {
  if (count == 0) return 0.0;
  const auto wanted = static_cast<std::uint64_t>(std::ceil(share * static_cast<double>(count) - 1e-9));
  std::uint64_t passed = 0;
  for (std::size_t place = 0; place < kPlaces; ++place) {
    passed += places[place];
    if (passed > 0 && passed >= wanted) return std::min(static_cast<double>(place + 1) * kStep, longest);
  }
  return longest;
}

}  // namespace brevant
