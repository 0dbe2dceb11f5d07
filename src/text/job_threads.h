// Threads for work that may never come back: a disk that is gone, a sound server that hangs. Nobody joins
// them; they own what they use, and the program may end without them. Any thread may start one.
#pragma once

#include <condition_variable>
#include <functional>
#include <memory>
#include <mutex>

namespace brevant {

class TCJobThreads {
 public:
  // False when the system has no more threads; the job is then gone.
  bool Start(std::function<void()> job);

  // Waits until no job runs any more, at most `seconds`. True when none does.
  bool WaitUntilDone(double seconds) const;

 private:
  struct Count {
    std::mutex mutex;
    std::condition_variable changed;
    int running = 0;
  };
  // Outlives this object as long as a job runs.
  std::shared_ptr<Count> count = std::make_shared<Count>();
};

}  // namespace brevant
