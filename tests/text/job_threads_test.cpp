#include "text/job_threads.h"

#include <gtest/gtest.h>

#include <atomic>
#include <future>
#include <memory>
#include <optional>

namespace brevant {
namespace {

constexpr double kLong = 30.0;
constexpr double kMoment = 0.05;

TEST(JobThreads, WithoutAJobNothingIsWaitedFor) {
  EXPECT_TRUE(TCJobThreads().WaitUntilDone(0.0));
}

TEST(JobThreads, AJobIsWaitedForUntilItIsDone) {
  TCJobThreads jobs;
  std::promise<void> leave;
  std::atomic<bool> done = false;
  ASSERT_TRUE(jobs.Start([&, left = leave.get_future().share()] {
    left.wait();
    done = true;
  }));
  EXPECT_FALSE(jobs.WaitUntilDone(kMoment));
  EXPECT_FALSE(done);
  leave.set_value();
  EXPECT_TRUE(jobs.WaitUntilDone(kLong));
  EXPECT_TRUE(done);
}

TEST(JobThreads, WhatAJobOwnsIsGoneWhenItIsDone) {
  TCJobThreads jobs;
  auto owned = std::make_shared<int>(1);
  const std::weak_ptr<int> watched = owned;
  ASSERT_TRUE(jobs.Start([held = std::move(owned)] {}));
  ASSERT_TRUE(jobs.WaitUntilDone(kLong));
  EXPECT_TRUE(watched.expired());
}

TEST(JobThreads, AJobMayOutliveWhoeverStartedIt) {
  std::optional<TCJobThreads> jobs(std::in_place);
  std::promise<void> leave;
  std::promise<void> left;
  ASSERT_TRUE(jobs->Start([&left, leaving = leave.get_future().share()] {
    leaving.wait();
    left.set_value();
  }));
  jobs.reset();
  leave.set_value();
  left.get_future().wait();
}

}  // namespace
}  // namespace brevant
