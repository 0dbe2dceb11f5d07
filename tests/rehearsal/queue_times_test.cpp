#include "rehearsal/queue_times.h"

#include <gtest/gtest.h>
#include <pthread.h>
#include <sched.h>
#include <unistd.h>

#include <atomic>
#include <chrono>
#include <thread>

namespace brevant {
namespace {

using namespace std::chrono_literals;

void Work(std::chrono::milliseconds time) {
  const auto end = std::chrono::steady_clock::now() + time;
  while (std::chrono::steady_clock::now() < end) {
  }
}

// Two threads that may run on one processor alone, this one and another of that name, work beside each other.
double QueuedBesideAThreadNamed(const char* name) {
  cpu_set_t all;
  cpu_set_t one;
  EXPECT_EQ(sched_getaffinity(0, sizeof all, &all), 0);
  CPU_ZERO(&one);
  CPU_SET(sched_getcpu(), &one);
  EXPECT_EQ(sched_setaffinity(0, sizeof one, &one), 0);
  std::atomic<bool> named = false;
  std::atomic<bool> over = false;
  std::thread other([&] {
    pthread_setname_np(pthread_self(), name);
    named = true;
    named.notify_one();
    while (!over) Work(1ms);
  });
  named.wait(false);
  TCHelpersQueue helpers(0);
  helpers.Refresh(0.0);
  const double before = helpers.Read();
  Work(300ms);
  const double queued = helpers.Read() - before;
  over = true;
  other.join();
  EXPECT_EQ(sched_setaffinity(0, sizeof all, &all), 0);
  return queued;
}

TEST(QueueTimes, AThreadThatWorksIsCountedAsWorking) {
  const TCQueueTimes times = TCQueueTimes::OfThisThread();
  const TCQueueTimes::TCSums before = times.Read();
  const auto begun = std::chrono::steady_clock::now();
  Work(200ms);
  const TCQueueTimes::TCSums after = times.Read();
  const double passed = std::chrono::duration<double>(std::chrono::steady_clock::now() - begun).count();
  // The kernel adds up at its ticks.
  EXPECT_NEAR(after.worked - before.worked + after.queued - before.queued, passed, 0.05);
}

TEST(QueueTimes, NothingIsKnownOfAThreadThatIsNotThere) {
  const TCQueueTimes::TCSums sums = TCQueueTimes("/proc/self/task/none").Read();
  EXPECT_EQ(sums.worked, 0.0);
  EXPECT_EQ(sums.queued, 0.0);
}

TEST(QueueTimes, AToolkitThreadIsAHelperAndAnotherIsNone) {
  EXPECT_GT(QueuedBesideAThreadNamed("Thread (pooled)"), 0.02);
  EXPECT_EQ(QueuedBesideAThreadNamed("worker"), 0.0);
}

}  // namespace
}  // namespace brevant
