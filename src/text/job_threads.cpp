#include "text/job_threads.h"

#include <chrono>
#include <system_error>
#include <thread>
#include <utility>

namespace brevant {

bool TCJobThreads::Start(std::function<void()> job) {
  const auto leave = [](Count& shared) {
    const std::lock_guard lock(shared.mutex);
    --shared.running;
    shared.changed.notify_all();
  };
  {
    const std::lock_guard lock(count->mutex);
    ++count->running;
  }
  try {
    std::thread([shared = count, work = std::move(job), leave]() mutable {
      work();
      // What the job owns goes before it counts as done.
      work = nullptr;
      leave(*shared);
    }).detach();
  } catch (const std::system_error&) {
    leave(*count);
    return false;
  }
  return true;
}

bool TCJobThreads::WaitUntilDone(double seconds) const {
  std::unique_lock lock(count->mutex);
  return count->changed.wait_for(lock, std::chrono::duration<double>(seconds),
                                 [this] { return count->running == 0; });
}

}  // namespace brevant
