#include "document/document_saver.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <memory>
#include <thread>

#include "support/hanging_disk.h"
#include "support/memory_files.h"
#include "support/temp_folder.h"
#include "text/disk_files.h"

namespace brevant {
namespace {

using std::chrono::milliseconds;
using std::chrono::seconds;

TextLines ASong(std::u16string_view name) {
  return {u"\"Sets\" \"One\" \"" + std::u16string(name) + u"\" 03:00"};
}

std::string BytesOf(const TextLines& lines) {
  return Utf16Bytes(lines.front() + u"\r\n");
}

// With a disk that answers when the test wants it.
class DocumentSaverTest : public testing::Test {
 protected:
  static constexpr std::u16string_view kShow = u"E:\\Show.brv";
  static constexpr std::u16string_view kRecovered = u"\\recovery\\Show.brv";

  TCMemoryFiles files;
  TCDocumentSaver saver{files, u"\\recovery\\"};
};

TEST_F(DocumentSaverTest, ADiskThatAnswersHasTheDocumentAtOnce) {
  saver.Save(kShow, ASong(u"a.mp3"));
  EXPECT_EQ(files.BytesOf(kShow), BytesOf(ASong(u"a.mp3")));
  EXPECT_FALSE(saver.IsSaving(kShow));
  EXPECT_FALSE(saver.TakeEndedSaves());
  EXPECT_EQ(files.FileCount(), 1u);
}

TEST_F(DocumentSaverTest, WithoutASongNothingIsWritten) {
  files.Put(kShow, "as it was");
  saver.Save(kShow, {});
  saver.KeepRecoveryCopy(kShow, {});
  EXPECT_EQ(files.BytesOf(kShow), "as it was");
  EXPECT_EQ(files.FileCount(), 1u);
}

TEST_F(DocumentSaverTest, OnADiskThatHangsTheSaveGoesOnByItself) {
  files.hangs = true;
  saver.Save(kShow, ASong(u"a.mp3"));
  EXPECT_TRUE(saver.IsSaving(u"e:\\SHOW.brv")) << "one file, whatever its case";
  EXPECT_FALSE(saver.IsSaving(u"E:\\Other.brv"));
  EXPECT_FALSE(saver.TakeEndedSaves());
  files.Wake();
  EXPECT_EQ(files.BytesOf(kShow), BytesOf(ASong(u"a.mp3")));
  EXPECT_FALSE(saver.IsSaving(kShow));
  EXPECT_TRUE(saver.TakeEndedSaves());
  EXPECT_FALSE(saver.TakeEndedSaves()) << "told once";
}

TEST_F(DocumentSaverTest, WhatFailsGoesToTheRecoveryFolderHoweverLate) {
  files.MakeUnwritable(kShow);
  saver.Save(kShow, ASong(u"a.mp3"));
  EXPECT_EQ(files.BytesOf(kRecovered), BytesOf(ASong(u"a.mp3")));
  files.hangs = true;
  saver.Save(kShow, ASong(u"b.mp3"));
  files.Wake();
  EXPECT_TRUE(saver.TakeEndedSaves());
  EXPECT_EQ(files.BytesOf(u"\\recovery\\Show (2).brv"), BytesOf(ASong(u"b.mp3")));
}

TEST_F(DocumentSaverTest, AtTheEndOfTheProgramASaveThatHangsIsInTheRecoveryFolder) {
  files.hangs = true;
  saver.Save(kShow, ASong(u"a.mp3"));
  saver.Finish(milliseconds(0));
  EXPECT_EQ(files.BytesOf(kRecovered), BytesOf(ASong(u"a.mp3")));
}

TEST_F(DocumentSaverTest, AtTheEndOfTheProgramWhatIsOnTheDiskIsNotCopied) {
  files.hangs = true;
  saver.Save(kShow, ASong(u"a.mp3"));
  files.Wake();
  saver.Finish();
  EXPECT_EQ(files.FileCount(), 1u);
}

// With threads, on a disk that hangs as a real one does: whoever opens the document waits.
class SaveOnAHangingDisk : public testing::Test {
 protected:
  SaveOnAHangingDisk() {
    folder.Write("Show.brv");
    disk = std::make_unique<TCHangingDisk>(folder.Native("Show.brv"));
  }
  ~SaveOnAHangingDisk() override {
    disk.reset();
    saver.WaitFor(show);
  }

  void SaveHangs(std::u16string_view song) {
    saver.Save(show, ASong(song));
    while (disk->Waiting() == 0) std::this_thread::yield();
  }

  TCTempFolder folder;
  std::u16string show = folder.Model("Show.brv");
  std::unique_ptr<TCHangingDisk> disk;
  TCDiskFiles files{TCNativePaths()};
  TCDocumentSaver saver{files, folder.Model("recovery/")};
};

TEST_F(SaveOnAHangingDisk, TheSavesOfOneFileTakeEffectInTheirOrder) {
  SaveHangs(u"first.mp3");
  saver.Save(show, ASong(u"second.mp3"));
  EXPECT_EQ(disk->Waiting(), 1) << "the second does not ask for the file before the first is through";
  disk.reset();
  saver.WaitFor(show);
  EXPECT_EQ(files.ReadFile(show, 1000), BytesOf(ASong(u"second.mp3")));
}

TEST_F(SaveOnAHangingDisk, AnotherFileWaitsForNobody) {
  SaveHangs(u"first.mp3");
  saver.Save(folder.Model("Other.brv"), ASong(u"second.mp3"));
  EXPECT_TRUE(saver.IsSaving(show));
  saver.WaitFor(folder.Model("Other.brv"));
  EXPECT_EQ(files.ReadFile(folder.Model("Other.brv"), 1000), BytesOf(ASong(u"second.mp3")));
}

TEST_F(SaveOnAHangingDisk, WhoWaitsForAFileReadsWhatWasSavedLast) {
  SaveHangs(u"first.mp3");
  std::thread later([this] {
    std::this_thread::sleep_for(milliseconds(50));
    disk.reset();
  });
  saver.WaitFor(show);
  EXPECT_EQ(files.ReadFile(show, 1000), BytesOf(ASong(u"first.mp3")));
  later.join();
}

TEST_F(SaveOnAHangingDisk, ASaveThatComesThroughWhileTheProgramEndsLeavesNoCopy) {
  SaveHangs(u"first.mp3");
  std::thread onceItIsCopied([this] {
    while (!std::filesystem::exists(folder.Native("recovery/Show.brv"))) std::this_thread::yield();
    disk.reset();
  });
  saver.Finish(seconds(60));
  EXPECT_FALSE(std::filesystem::exists(folder.Native("recovery/Show.brv")));
  EXPECT_EQ(files.ReadFile(show, 1000), BytesOf(ASong(u"first.mp3")));
  onceItIsCopied.join();
}

}  // namespace
}  // namespace brevant
