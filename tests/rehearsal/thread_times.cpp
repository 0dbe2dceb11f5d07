#include "rehearsal/thread_times.h"

#include <fcntl.h>
#include <unistd.h>

#include <array>
#include <cstdio>
#include <string>

namespace brevant {

TCThreadTimes::TCThreadTimes()
    : file(open(("/proc/self/task/" + std::to_string(gettid()) + "/schedstat").c_str(),
                O_RDONLY | O_CLOEXEC)) {}

TCThreadTimes::~TCThreadTimes() {
  if (file >= 0) close(file);
}

TCThreadTimes::TCSums TCThreadTimes::Read() const {
  std::array<char, 128> text{};
  if (file < 0 || pread(file, text.data(), text.size() - 1, 0) <= 0) return {};
  unsigned long long worked = 0;
  unsigned long long queued = 0;
  if (std::sscanf(text.data(), "%llu %llu", &worked, &queued) != 2) return {};
  return {static_cast<double>(worked) / 1e9, static_cast<double>(queued) / 1e9};
}

}  // namespace brevant
