// What the kernel counts of a thread: time on a processor, and time in the queue for one. And the same queue
// for those that the user-interface thread waits for when it paints: on a busy machine they wait in its
// place.
#pragma once

#include <sys/types.h>

#include <string>
#include <vector>

namespace brevant {

class TCQueueTimes {
 public:
  struct TCSums {
    double worked = 0.0;  // seconds since the thread began
    double queued = 0.0;
  };

  // `task` is a folder of /proc, as "/proc/self/task/17".
  explicit TCQueueTimes(const std::string& task);
  ~TCQueueTimes();
  TCQueueTimes(TCQueueTimes&& other) noexcept : file(other.file) { other.file = -1; }
  TCQueueTimes& operator=(TCQueueTimes&&) = delete;

  // Of the thread that calls.
  [[nodiscard]] static TCQueueTimes OfThisThread();

  // Both 0 where the kernel counts nothing: then no stall is ever put down to the machine.
  [[nodiscard]] TCSums Read() const;

 private:
  int file = -1;
};

// The display server, and the toolkit's own threads in this process that read from it, paint and speak to the
// bus.
class TCHelpersQueue {
 public:
  // 0 when the display server's process is not known.
  explicit TCHelpersQueue(pid_t displayServer);

  // Looks for threads that have come and gone, once a second. Sums from before and after do not compare.
  void Refresh(double now);
  // Seconds that all of them together have been in the queue.
  [[nodiscard]] double Read() const;

 private:
  pid_t displayServer;
  double refreshed = -1.0;
  std::vector<TCQueueTimes> helpers;
};

}  // namespace brevant
