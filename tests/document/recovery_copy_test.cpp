#include "document/recovery_copy.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <iterator>
#include <thread>

#include "support/memory_files.h"
#include "support/temp_folder.h"
#include "text/disk_files.h"

namespace brevant {
namespace {

constexpr std::u16string_view kFolder = u"\\home\\me\\recovery\\";

TEST(RecoveryCopy, TheCopyBearsTheDocumentsNameAndIsADocument) {
  TCMemoryFiles files;
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"show.brv", {u"one"}), u"\\home\\me\\recovery\\show.brv");
  EXPECT_EQ(files.BytesOf(u"\\home\\me\\recovery\\show.brv"), JoinUtf16Lines({u"one"}));
  EXPECT_EQ(files.foldersMade.size(), 1u);
}

TEST(RecoveryCopy, AnEarlierCopyIsNeverReplaced) {
  TCMemoryFiles files;
  WriteRecoveryCopy(files, kFolder, u"show.brv", {u"one"});
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"show.brv", {u"two"}), u"\\home\\me\\recovery\\show (2).brv");
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"show.brv", {u"three"}),
            u"\\home\\me\\recovery\\show (3).brv");
  EXPECT_EQ(files.BytesOf(u"\\home\\me\\recovery\\show.brv"), JoinUtf16Lines({u"one"}));
}

TEST(RecoveryCopy, ADocumentWithoutANameGetsOne) {
  TCMemoryFiles files;
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"", {u"one"}), u"\\home\\me\\recovery\\Brevant.brv");
}

TEST(RecoveryCopy, OfTwoThreadsNeitherReplacesTheOthersCopy) {
  const TCTempFolder folder;
  const auto keep = [&folder] {
    TCDiskFiles files{TCNativePaths()};
    for (int copy = 0; copy < 20; ++copy)
      WriteRecoveryCopy(files, folder.Model("kept/"), u"show.brv", {u"one"});
  };
  std::thread other(keep);
  keep();
  other.join();
  const std::filesystem::directory_iterator copies(folder.Native("kept"));
  EXPECT_EQ(std::distance(begin(copies), end(copies)), 40);
}

TEST(RecoveryCopy, ANameThatCannotBeWrittenIsPassedOver) {
  TCMemoryFiles files;
  files.MakeUnwritable(u"\\home\\me\\recovery\\show.brv");  // a folder of that name, say
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"show.brv", {u"one"}), u"\\home\\me\\recovery\\show (2).brv");
}

TEST(RecoveryCopy, WhenNothingCanBeWrittenTheAnswerIsEmpty) {
  TCMemoryFiles files;
  files.failWrites = true;
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"show.brv", {u"one"}), u"");
  files.failFolders = true;
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"show.brv", {u"one"}), u"");
}

}  // namespace
}  // namespace brevant
