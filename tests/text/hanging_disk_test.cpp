// What TCDiskFiles does on a disk that no longer answers.
#include "support/hanging_disk.h"

#include <gtest/gtest.h>

#include <chrono>
#include <memory>
#include <optional>
#include <thread>

#include "support/temp_folder.h"
#include "text/disk_files.h"
#include "text/disk_question.h"

namespace brevant {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

constexpr milliseconds kMoment(50);
constexpr seconds kLong(30);

class HangingDisk : public testing::Test {
 protected:
  HangingDisk() {
    folder.Write("song.mp3");
    folder.Write("other.mp3");
    disk = std::make_unique<TCHangingDisk>(folder.Native("song.mp3"));
    files.emplace(TCNativePaths());
  }

  std::future<bool> AskFor(const char* name) {
    return AskDisk(*files, [path = folder.Model(name)](TCFileSystem& own) { return own.FileExists(path); });
  }

  TCTempFolder folder;
  std::unique_ptr<TCHangingDisk> disk;
  std::optional<TCDiskFiles> files;
};

TEST_F(HangingDisk, TheAnswerComesWhenTheDiskIsBack) {
  std::future<bool> found = AskFor("song.mp3");
  EXPECT_EQ(found.wait_for(kMoment), std::future_status::timeout);
  disk.reset();
  ASSERT_EQ(found.wait_for(kLong), std::future_status::ready);
  EXPECT_TRUE(found.get());
}

TEST_F(HangingDisk, AnotherFileIsAnsweredForMeanwhile) {
  const std::future<bool> hanging = AskFor("song.mp3");
  std::future<bool> found = AskFor("other.mp3");
  std::future<bool> missing = AskFor("nothing.mp3");
  ASSERT_EQ(found.wait_for(kLong), std::future_status::ready);
  ASSERT_EQ(missing.wait_for(kLong), std::future_status::ready);
  EXPECT_TRUE(found.get());
  EXPECT_FALSE(missing.get());
  EXPECT_EQ(hanging.wait_for(milliseconds(0)), std::future_status::timeout);
}

TEST_F(HangingDisk, NobodyWaitsForTheQuestionToEnd) {
  {
    const std::future<bool> found = AskFor("song.mp3");
    while (disk->Waiting() == 0) std::this_thread::yield();
    files.reset();
  }
  EXPECT_EQ(disk->Waiting(), 1);
}

}  // namespace
}  // namespace brevant
