#include "document/recovery_copy.h"

#include <gtest/gtest.h>

#include "support/memory_files.h"

namespace brevant {
namespace {

constexpr std::u16string_view kFolder = u"\\home\\me\\recovery\\";

TEST(RecoveryCopyTest, TheCopyBearsTheDocumentsNameAndIsADocument) {
  TCMemoryFiles files;
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"show.brv", {u"one"}), u"\\home\\me\\recovery\\show.brv");
  EXPECT_EQ(files.BytesOf(u"\\home\\me\\recovery\\show.brv"), JoinUtf16Lines({u"one"}));
  EXPECT_EQ(files.foldersMade.size(), 1u);
}

TEST(RecoveryCopyTest, AnEarlierCopyIsNeverReplaced) {
  TCMemoryFiles files;
  WriteRecoveryCopy(files, kFolder, u"show.brv", {u"one"});
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"show.brv", {u"two"}), u"\\home\\me\\recovery\\show (2).brv");
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"show.brv", {u"three"}),
            u"\\home\\me\\recovery\\show (3).brv");
  EXPECT_EQ(files.BytesOf(u"\\home\\me\\recovery\\show.brv"), JoinUtf16Lines({u"one"}));
}

TEST(RecoveryCopyTest, ADocumentWithoutANameGetsOne) {
  TCMemoryFiles files;
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"", {u"one"}), u"\\home\\me\\recovery\\Brevant.brv");
}

TEST(RecoveryCopyTest, ANameThatCannotBeWrittenIsPassedOver) {
  TCMemoryFiles files;
  files.MakeUnwritable(u"\\home\\me\\recovery\\show.brv");  // a folder of that name, say
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"show.brv", {u"one"}), u"\\home\\me\\recovery\\show (2).brv");
}

TEST(RecoveryCopyTest, WhenNothingCanBeWrittenTheAnswerIsEmpty) {
  TCMemoryFiles files;
  files.failWrites = true;
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"show.brv", {u"one"}), u"");
  files.failFolders = true;
  EXPECT_EQ(WriteRecoveryCopy(files, kFolder, u"show.brv", {u"one"}), u"");
}

}  // namespace
}  // namespace brevant
