#include "text/safe_replace.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include <csignal>
#include <filesystem>
#include <fstream>
#include <iterator>

#include "support/temp_folder.h"

namespace brevant {
namespace {

using testing::ElementsAre;

// While it lives, no file can grow past a page: what a full disk looks like to whoever writes.
class TCFullDisk {
 public:
  TCFullDisk() {
    EXPECT_EQ(getrlimit(RLIMIT_FSIZE, &before), 0);
    struct rlimit small = before;
    small.rlim_cur = kPage;
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &small), 0);
    oldHandler = std::signal(SIGXFSZ, SIG_IGN);
  }
  TCFullDisk(const TCFullDisk&) = delete;
  TCFullDisk& operator=(const TCFullDisk&) = delete;
  ~TCFullDisk() {
    EXPECT_EQ(setrlimit(RLIMIT_FSIZE, &before), 0);
    std::signal(SIGXFSZ, oldHandler);
  }

  static constexpr rlim_t kPage = 4096;

 private:
  struct rlimit before {};
  void (*oldHandler)(int) = nullptr;
};

class SafeReplace : public testing::Test {
 protected:
  [[nodiscard]] mode_t Permissions(std::string_view name) const {
    struct stat status {};
    EXPECT_EQ(stat(folder.Native(name).c_str(), &status), 0) << name;
    return status.st_mode & 07777;
  }

  TCTempFolder folder;
};

TEST_F(SafeReplace, ReplacingMakesAMissingFile) {
  const mode_t oldMask = umask(027);
  EXPECT_TRUE(ReplaceFileSafely(folder.Native("a.brv"), "new"));
  umask(oldMask);
  EXPECT_EQ(folder.Read("a.brv"), "new");
  EXPECT_EQ(Permissions("a.brv"), 0640U);
  EXPECT_THAT(folder.Names(), ElementsAre("a.brv"));
}

TEST_F(SafeReplace, ReplacingKeepsThePermissions) {
  folder.Write("a.brv", "old");
  ASSERT_EQ(chmod(folder.Native("a.brv").c_str(), 0664), 0);
  EXPECT_TRUE(ReplaceFileSafely(folder.Native("a.brv"), "new and longer"));
  EXPECT_EQ(folder.Read("a.brv"), "new and longer");
  EXPECT_EQ(Permissions("a.brv"), 0664U);
  EXPECT_THAT(folder.Names(), ElementsAre("a.brv"));
}

TEST_F(SafeReplace, ReplacingKeepsTheOwnerWhereTheSystemAllowsIt) {
  folder.Write("a.brv", "old");
  const uid_t owner = geteuid() == 0 ? 65534 : geteuid();
  ASSERT_EQ(chown(folder.Native("a.brv").c_str(), owner, static_cast<gid_t>(-1)), 0);
  EXPECT_TRUE(ReplaceFileSafely(folder.Native("a.brv"), "new"));
  struct stat status {};
  ASSERT_EQ(stat(folder.Native("a.brv").c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, owner);
}

TEST_F(SafeReplace, ReplacingThroughALinkReplacesItsTarget) {
  folder.Write("real/a.brv", "old");
  folder.MakeFolder("links");
  ASSERT_EQ(symlink("../real/a.brv", folder.Native("links/one.brv").c_str()), 0);
  ASSERT_EQ(symlink(folder.Native("links/one.brv").c_str(), folder.Native("two.brv").c_str()), 0);
  EXPECT_TRUE(ReplaceFileSafely(folder.Native("two.brv"), "new"));
  EXPECT_EQ(folder.Read("real/a.brv"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Native("two.brv")));
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Native("links/one.brv")));
  EXPECT_FALSE(std::filesystem::is_symlink(folder.Native("real/a.brv")));
}

TEST_F(SafeReplace, ReplacingThroughALinkThatLeadsNowhereMakesItsTarget) {
  folder.MakeFolder("real");
  ASSERT_EQ(symlink("real/a.brv", folder.Native("link.brv").c_str()), 0);
  EXPECT_TRUE(ReplaceFileSafely(folder.Native("link.brv"), "new"));
  EXPECT_EQ(folder.Read("real/a.brv"), "new");
  EXPECT_TRUE(std::filesystem::is_symlink(folder.Native("link.brv")));
}

TEST_F(SafeReplace, ReplacingThroughLinksInACircleFails) {
  ASSERT_EQ(symlink("b.brv", folder.Native("a.brv").c_str()), 0);
  ASSERT_EQ(symlink("a.brv", folder.Native("b.brv").c_str()), 0);
  EXPECT_FALSE(ReplaceFileSafely(folder.Native("a.brv"), "new"));
  EXPECT_THAT(folder.Names(), ElementsAre("a.brv", "b.brv"));
}

TEST_F(SafeReplace, AFolderIsNotReplaced) {
  folder.MakeFolder("a.brv");
  EXPECT_FALSE(ReplaceFileSafely(folder.Native("a.brv"), "new"));
  EXPECT_THAT(folder.Names(), ElementsAre("a.brv"));
}

TEST_F(SafeReplace, AFullDiskLeavesTheOldFileAndNothingBesideIt) {
  const std::string old(TCFullDisk::kPage, 'o');
  folder.Write("a.brv", old);
  {
    const TCFullDisk full;
    EXPECT_FALSE(ReplaceFileSafely(folder.Native("a.brv"), std::string(100'000, 'n')));
    EXPECT_FALSE(ReplaceFileSafely(folder.Native("b.brv"), std::string(100'000, 'n')));
    EXPECT_TRUE(ReplaceFileSafely(folder.Native("small.brv"), "fits"));
  }
  EXPECT_EQ(folder.Read("a.brv"), old);
  EXPECT_THAT(folder.Names(), ElementsAre("a.brv", "small.brv"));
}

TEST_F(SafeReplace, ACopyStaysAsItIsWhenTheFileIsReplaced) {
  folder.Write("a.brv", "old");
  folder.Write("a.brv~", "older");
  EXPECT_TRUE(CopyFileSafely(folder.Native("a.brv"), folder.Native("a.brv~")));
  EXPECT_TRUE(ReplaceFileSafely(folder.Native("a.brv"), "new"));
  EXPECT_EQ(folder.Read("a.brv~"), "old");
  EXPECT_EQ(folder.Read("a.brv"), "new");
  EXPECT_THAT(folder.Names(), ElementsAre("a.brv", "a.brv~"));
}

TEST_F(SafeReplace, ACopyMadeTwiceLeavesNothingBesideIt) {
  folder.Write("a.brv", "old");
  EXPECT_TRUE(CopyFileSafely(folder.Native("a.brv"), folder.Native("a.brv~")));
  EXPECT_TRUE(CopyFileSafely(folder.Native("a.brv"), folder.Native("a.brv~")));
  EXPECT_EQ(folder.Read("a.brv~"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("a.brv", "a.brv~"));
}

TEST_F(SafeReplace, ACopyOfALinkIsOneOfTheFileItLeadsTo) {
  folder.Write("real.brv", "old");
  ASSERT_EQ(symlink("real.brv", folder.Native("a.brv").c_str()), 0);
  EXPECT_TRUE(CopyFileSafely(folder.Native("a.brv"), folder.Native("a.brv~")));
  EXPECT_TRUE(ReplaceFileSafely(folder.Native("a.brv"), "new"));
  EXPECT_EQ(folder.Read("a.brv~"), "old");
}

TEST_F(SafeReplace, AFailedCopyLeavesTheEarlierOne) {
  folder.Write("a.brv~", "earlier");
  EXPECT_FALSE(CopyFileSafely(folder.Native("gone.brv"), folder.Native("a.brv~")));
  EXPECT_FALSE(CopyFileSafely("", folder.Native("a.brv~")));
  {
    const TCFullDisk full;  // the system's own files can be given no second name, and this one is long
    EXPECT_FALSE(CopyFileSafely("/proc/self/smaps", folder.Native("a.brv~")));
  }
  EXPECT_EQ(folder.Read("a.brv~"), "earlier");
  EXPECT_THAT(folder.Names(), ElementsAre("a.brv~"));
}

TEST_F(SafeReplace, AFileThatCannotHaveASecondNameIsCopied) {
  std::ifstream file("/proc/version");
  const std::string version{std::istreambuf_iterator<char>(file), {}};
  ASSERT_FALSE(version.empty());
  folder.Write("kept", "earlier");
  EXPECT_TRUE(CopyFileSafely("/proc/version", folder.Native("kept")));
  EXPECT_EQ(folder.Read("kept"), version);
  EXPECT_THAT(folder.Names(), ElementsAre("kept"));
}

TEST_F(SafeReplace, AFolderThatTakesNoNewFileFailsTheSave) {
  folder.Write("a.brv", "old");
  ASSERT_EQ(chmod(folder.Native("a.brv").c_str(), 0666), 0);
  ASSERT_EQ(chmod(folder.Native("").c_str(), 0555), 0);
  {
    const TCOrdinaryUser user;
    EXPECT_FALSE(ReplaceFileSafely(folder.Native("a.brv"), "new"));
  }
  ASSERT_EQ(chmod(folder.Native("").c_str(), 0755), 0);
  EXPECT_EQ(folder.Read("a.brv"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("a.brv"));
}

TEST_F(SafeReplace, AWriteProtectedFileFailsTheSave) {
  folder.Write("a.brv", "old");
  ASSERT_EQ(chmod(folder.Native("a.brv").c_str(), 0444), 0);
  ASSERT_EQ(chmod(folder.Native("").c_str(), 0777), 0);
  {
    const TCOrdinaryUser user;
    EXPECT_FALSE(ReplaceFileSafely(folder.Native("a.brv"), "new"));
  }
  EXPECT_EQ(folder.Read("a.brv"), "old");
  EXPECT_THAT(folder.Names(), ElementsAre("a.brv"));
}

}  // namespace
}  // namespace brevant
