// A value that the user just picked and that the player takes up a moment later: until it has, the picked
// value is shown, so that no handle jumps back and forth.
#pragma once

#include <cmath>

namespace brevant {

class TCHeldValue {
 public:
  // `reachedWithin`: how near the player's value counts as taken up.
  explicit TCHeldValue(double reachedWithin) : tolerance(reachedWithin) {}

  void Hold(double picked) {
    held = picked;
    pollsLeft = kPolls;
  }
  void Release() { pollsLeft = 0; }

  // To be asked once a poll: what to show while the player reports `polled`.
  [[nodiscard]] double Shown(double polled) {
    if (pollsLeft == 0) return polled;
    if (std::abs(polled - held) <= tolerance) {
      pollsLeft = 0;
      return polled;
    }
    --pollsLeft;
    return held;
  }

 private:
  static constexpr int kPolls = 5;  // half a second

  double tolerance = 0.0;
  double held = 0.0;
  int pollsLeft = 0;
};

}  // namespace brevant
