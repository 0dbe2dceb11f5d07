#include "rehearsal/queue_times.h"

#include <fcntl.h>
#include <unistd.h>

#include <algorithm>
#include <array>
#include <cstdio>
#include <filesystem>
#include <fstream>
#include <string_view>

namespace brevant {

namespace {

// As the kernel keeps names, cut off after fifteen letters.
constexpr std::array<std::string_view, 3> kToolkitThreads{"QXcbEventQueue", "QDBusConnection",
                                                          "Thread (pooled)"};
constexpr double kRefreshEvery = 1.0;  // seconds

std::string NameOf(const std::filesystem::path& task) {
  std::ifstream file(task / "comm");
  std::string name;
  std::getline(file, name);
  return name;
}

}  // namespace

TCQueueTimes::TCQueueTimes(const std::string& task)
    : file(open((task + "/schedstat").c_str(), O_RDONLY | O_CLOEXEC)) {}

TCQueueTimes::~TCQueueTimes() {
  if (file >= 0) close(file);
}

TCQueueTimes TCQueueTimes::OfThisThread() {
  return TCQueueTimes("/proc/self/task/" + std::to_string(gettid()));
}

TCQueueTimes::TCSums TCQueueTimes::Read() const {
  std::array<char, 128> text{};
  if (file < 0 || pread(file, text.data(), text.size() - 1, 0) <= 0) return {};
  unsigned long long worked = 0;
  unsigned long long queued = 0;
  if (std::sscanf(text.data(), "%llu %llu", &worked, &queued) != 2) return {};
  return {static_cast<double>(worked) / 1e9, static_cast<double>(queued) / 1e9};
}

TCHelpersQueue::TCHelpersQueue(pid_t server) : displayServer(server) {}

void TCHelpersQueue::Refresh(double now) {
  if (refreshed >= 0.0 && now - refreshed < kRefreshEvery) return;
  refreshed = now;
  helpers.clear();
  if (displayServer > 0) helpers.emplace_back("/proc/" + std::to_string(displayServer));
  std::error_code ignored;
  for (const auto& task : std::filesystem::directory_iterator("/proc/self/task", ignored)) {
    if (std::ranges::find(kToolkitThreads, NameOf(task.path())) == kToolkitThreads.end()) continue;
    helpers.emplace_back(task.path().native());
  }
}

double TCHelpersQueue::Read() const {
  double sum = 0.0;
  for (const TCQueueTimes& helper : helpers) sum += helper.Read().queued;
  return sum;
}

}  // namespace brevant
