// A library may end the program: the toolkit calls exit() when the display has gone. main() never returns
// then, and whoever has something to bring to safety has this moment for it.
#pragma once

#include <functional>

namespace brevant {

// One at a time.
class TCSuddenExit {
 public:
  // Whoever calls exit() while this lives has `lastWork` done on the way, on its thread. Not at a crash, and
  // not at a kill.
  explicit TCSuddenExit(std::function<void()> lastWork);
  ~TCSuddenExit();
  TCSuddenExit(const TCSuddenExit&) = delete;
  TCSuddenExit& operator=(const TCSuddenExit&) = delete;
};

}  // namespace brevant
