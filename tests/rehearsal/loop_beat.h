// How long one beat of the watch over the user interface's event loop waited for its answer, and what that
// says. Pure; no clock of its own.
#pragma once

#include <cstdint>
#include <vector>

namespace brevant {

// All in seconds, of the user-interface thread, from the posting of the beat to its answer.
struct TCLoopBeat {
  double waited = 0.0;         // by the clock on the wall
  double worked = 0.0;         // on a processor
  double queued = 0.0;         // ready to run, while the processors were others'
  double helpersQueued = 0.0;  // the same of the display server and the toolkit's threads, which it waits for
};

enum class TCStall {
  None,
  OfTheMachine,  // without the time spent in the queue for a processor it would have been none
  OfTheProgram,  // and always, when the thread itself worked for so long
};

inline constexpr double kStall = 0.1;  // seconds; longer than this is a stall

[[nodiscard]] TCStall JudgeBeat(const TCLoopBeat& beat);

// How all beats so far were spread. Its size does not grow with them.
class TCBeatSpread {
 public:
  void Add(double seconds);

  [[nodiscard]] std::uint64_t Count() const { return count; }
  // The longest; 0 before the first.
  [[nodiscard]] double Longest() const { return longest; }
  // What `share` (0 to 1) of the beats stayed below or reached, rounded up to tenths of a millisecond; the
  // longest one for what lies beyond half a second, and 0 before the first.
  [[nodiscard]] double Within(double share) const;

 private:
  static constexpr double kStep = 0.0001;       // seconds a place
  static constexpr std::size_t kPlaces = 5000;  // up to half a second

  std::vector<std::uint64_t> places = std::vector<std::uint64_t>(kPlaces, 0);
  std::uint64_t count = 0;
  double longest = 0.0;
};

}  // namespace brevant
