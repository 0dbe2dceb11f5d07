// What the kernel counts of the thread that made this: time on a processor, and time in the queue for one.
// Read by the watch's thread.
#pragma once

namespace brevant {

class TCThreadTimes {
 public:
  struct TCSums {
    double worked = 0.0;  // seconds since the thread began
    double queued = 0.0;
  };

  TCThreadTimes();
  ~TCThreadTimes();
  TCThreadTimes(const TCThreadTimes&) = delete;
  TCThreadTimes& operator=(const TCThreadTimes&) = delete;

  // Both 0 where the kernel counts nothing: then no stall is ever put down to the machine.
  [[nodiscard]] TCSums Read() const;

 private:
  int file = -1;
};

}  // namespace brevant
