#include "document/document_saver.h"

#include <gtest/gtest.h>

#include <chrono>
#include <filesystem>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <thread>

#include "support/document_rig.h"
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
class DocumentSaver : public testing::Test {
 protected:
  static constexpr std::u16string_view kShow = u"E:\\Show.brv";
  static constexpr std::u16string_view kRecovered = u"\\recovery\\Show.brv";

  TCMemoryFiles files;
  TCDocumentSaver saver{files, u"\\recovery\\"};
};

TEST_F(DocumentSaver, ADiskThatAnswersHasTheDocumentAtOnce) {
  saver.Save(kShow, ASong(u"a.mp3"));
  EXPECT_EQ(files.BytesOf(kShow), BytesOf(ASong(u"a.mp3")));
  EXPECT_FALSE(saver.IsSaving(kShow));
  EXPECT_FALSE(saver.DropEndedSaves());
  EXPECT_EQ(files.FileCount(), 1u);
}

TEST_F(DocumentSaver, WithoutASongNothingIsWritten) {
  files.Put(kShow, "as it was");
  saver.Save(kShow, {});
  saver.KeepRecoveryCopy(kShow, {});
  EXPECT_EQ(files.BytesOf(kShow), "as it was");
  EXPECT_EQ(files.FileCount(), 1u);
}

TEST_F(DocumentSaver, OnADiskThatHangsTheSaveGoesOnByItself) {
  files.hangs = true;
  saver.Save(kShow, ASong(u"a.mp3"));
  EXPECT_TRUE(saver.IsSaving(u"e:\\SHOW.brv")) << "one file, whatever its case";
  EXPECT_FALSE(saver.IsSaving(u"E:\\Other.brv"));
  EXPECT_FALSE(saver.DropEndedSaves());
  files.Wake();
  EXPECT_EQ(files.BytesOf(kShow), BytesOf(ASong(u"a.mp3")));
  EXPECT_FALSE(saver.IsSaving(kShow));
  EXPECT_TRUE(saver.DropEndedSaves());
  EXPECT_FALSE(saver.DropEndedSaves()) << "told once";
}

TEST_F(DocumentSaver, WhatFailsGoesToTheRecoveryFolderHoweverLate) {
  files.MakeUnwritable(kShow);
  saver.Save(kShow, ASong(u"a.mp3"));
  EXPECT_EQ(files.BytesOf(kRecovered), BytesOf(ASong(u"a.mp3")));
  files.hangs = true;
  saver.Save(kShow, ASong(u"b.mp3"));
  files.Wake();
  EXPECT_TRUE(saver.DropEndedSaves());
  EXPECT_EQ(files.BytesOf(u"\\recovery\\Show (2).brv"), BytesOf(ASong(u"b.mp3")));
}

TEST_F(DocumentSaver, AtTheEndOfTheProgramWhatIsOnTheDiskIsNotCopied) {
  files.hangs = true;
  saver.Save(kShow, ASong(u"a.mp3"));
  files.Wake();
  saver.Finish();
  EXPECT_EQ(files.FileCount(), 1u);
}

TEST_F(DocumentSaver, WhatFailsOnBothDisksHoldsNobodyUp) {
  files.failWrites = true;
  saver.Save(kShow, ASong(u"a.mp3"));
  saver.Finish();
  EXPECT_EQ(files.FileCount(), 0u);
}

TEST_F(DocumentSaver, AFileThatCouldNotBeReadIsKeptByTheFirstSaveThatComesThrough) {
  const std::string old = BytesOf(ASong(u"old.mp3"));
  files.Put(kShow, old);
  saver.SetUnreadFile(kShow);
  files.MakeUnwritable(kShow);
  saver.Save(kShow, ASong(u"a.mp3"));
  EXPECT_EQ(files.BytesOf(kShow), old) << "failed";
  files.MakeWritable(kShow);
  saver.Save(u"e:\\show.brv", ASong(u"b.mp3"));
  saver.Save(kShow, ASong(u"c.mp3"));
  EXPECT_EQ(files.BytesOf(u"E:\\Show.brv~"), old);
  EXPECT_EQ(files.BytesOf(kShow), BytesOf(ASong(u"c.mp3")));
}

TEST_F(DocumentSaver, AFileThatWasReadIsReplaced) {
  files.Put(kShow, BytesOf(ASong(u"old.mp3")));
  saver.SetUnreadFile(kShow);
  saver.SetUnreadFile({});
  saver.Save(kShow, ASong(u"a.mp3"));
  EXPECT_FALSE(files.BytesOf(u"E:\\Show.brv~").has_value());
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
    WaitUntil([this] { return disk->Waiting() > 0; });
  }

  void WaitUntilItIsCopied() {
    WaitUntil([this] { return std::filesystem::exists(folder.Native("recovery/Show.brv")); });
  }

  // For another thread, while this one waits for the save: once the copy is there, it is done.
  void OnceItIsCopied(const std::function<void()>& meanwhile = [] {}) {
    WaitUntilItIsCopied();
    meanwhile();
    disk.reset();
  }

  static void WaitUntil(const std::function<bool()>& holds) {
    const auto deadline = std::chrono::steady_clock::now() + seconds(30);
    bool held = holds();
    while (!held && std::chrono::steady_clock::now() < deadline) {
      std::this_thread::yield();
      held = holds();
    }
    EXPECT_TRUE(held);
  }

  std::optional<std::string> Read(const char* name) { return files.ReadFile(folder.Model(name), 1000); }

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
  EXPECT_EQ(Read("Show.brv"), BytesOf(ASong(u"second.mp3")));
}

TEST_F(SaveOnAHangingDisk, AnotherFileWaitsForNobody) {
  SaveHangs(u"first.mp3");
  saver.Save(folder.Model("Other.brv"), ASong(u"second.mp3"));
  WaitUntil([this] { return !saver.IsSaving(folder.Model("Other.brv")); });
  EXPECT_TRUE(saver.IsSaving(show));
  EXPECT_EQ(Read("Other.brv"), BytesOf(ASong(u"second.mp3")));
}

TEST_F(SaveOnAHangingDisk, WhatHangsIsInTheRecoveryFolderUntilItComesThrough) {
  SaveHangs(u"first.mp3");
  WaitUntil([this] { return Read("recovery/Show.brv") == BytesOf(ASong(u"first.mp3")); });
  EXPECT_TRUE(saver.IsSaving(show));
  disk.reset();
  WaitUntil([this] { return saver.DropEndedSaves(); });
  EXPECT_FALSE(Read("recovery/Show.brv").has_value());
  EXPECT_EQ(Read("Show.brv"), BytesOf(ASong(u"first.mp3")));
}

TEST_F(SaveOnAHangingDisk, ACopyThatSomebodyHasGoneOnWorkingInStays) {
  SaveHangs(u"first.mp3");
  WaitUntilItIsCopied();
  saver.Save(folder.Model("recovery/Show.brv"), ASong(u"later.mp3"));
  disk.reset();
  WaitUntil([this] { return saver.DropEndedSaves(); });
  EXPECT_EQ(Read("recovery/Show.brv"), BytesOf(ASong(u"later.mp3")));
}

TEST_F(SaveOnAHangingDisk, ASaveIsOverThoughItsCopyHangs) {
  disk.reset();
  disk = std::make_unique<TCHangingDisk>(folder.Native("recovery/Show.brv"));
  saver.Save(folder.Model("missing/Show.brv"), ASong(u"first.mp3"));
  WaitUntil([this] { return disk->Waiting() > 0; });
  EXPECT_FALSE(saver.IsSaving(folder.Model("missing/Show.brv")));
  EXPECT_TRUE(saver.DropEndedSaves());
  EXPECT_FALSE(saver.DropEndedSaves()) << "told once";
  disk.reset();
  saver.Finish();
  EXPECT_EQ(Read("recovery/Show.brv"), BytesOf(ASong(u"first.mp3")));
}

TEST_F(SaveOnAHangingDisk, AtTheEndOfTheProgramASaveThatALaterOneReplacedIsNotWaitedFor) {
  folder.Write("recovery");  // a file, where the folder would be
  SaveHangs(u"first.mp3");
  std::this_thread::sleep_for(milliseconds(200));  // nobody tells when its copy has failed
  std::filesystem::remove(folder.Native("recovery"));
  saver.Save(show, ASong(u"last.mp3"));
  saver.Finish(milliseconds(0));
  EXPECT_EQ(Read("recovery/Show.brv"), BytesOf(ASong(u"last.mp3")));
}

TEST_F(SaveOnAHangingDisk, WhoWaitsForAFileReadsWhatWasSavedLast) {
  SaveHangs(u"first.mp3");
  std::thread meanwhile([this] { OnceItIsCopied(); });
  saver.WaitFor(show);
  EXPECT_EQ(Read("Show.brv"), BytesOf(ASong(u"first.mp3")));
  meanwhile.join();
}

TEST_F(SaveOnAHangingDisk, AtTheEndOfTheProgramItIsInTheRecoveryFolder) {
  SaveHangs(u"first.mp3");
  saver.Finish(milliseconds(0));
  EXPECT_EQ(Read("recovery/Show.brv"), BytesOf(ASong(u"first.mp3")));
}

TEST_F(SaveOnAHangingDisk, AtTheEndOfTheProgramEveryFileIsThereOnceAsItWasSavedLast) {
  SaveHangs(u"first.mp3");
  WaitUntilItIsCopied();
  saver.Save(folder.Model("Other.brv"), ASong(u"other.mp3"));
  saver.Save(show, ASong(u"last.mp3"));
  saver.Finish(seconds(1));
  EXPECT_EQ(Read("recovery/Show (2).brv"), BytesOf(ASong(u"last.mp3")));
  EXPECT_FALSE(Read("recovery/Show.brv").has_value());
  EXPECT_FALSE(Read("recovery/Other.brv").has_value());
}

TEST_F(SaveOnAHangingDisk, OpeningTheDocumentWaitsForItsSave) {
  TCDocumentRig rig(files, nullptr, nullptr, folder.Model("recovery/"));
  rig.record.setLists.groups.emplace_back().playlists.emplace_back().items.emplace_back().SetPath(u"new.mp3");
  rig.document.OnSaveDocument(show);
  WaitUntil([this] { return disk->Waiting() > 0; });
  std::thread later([this] {
    std::this_thread::sleep_for(milliseconds(300));
    disk.reset();
  });
  rig.document.OnOpenDocument(show);
  ASSERT_EQ(rig.view.rows.size(), 1u) << "what stood there before had no song";
  EXPECT_EQ(rig.view.rows[0].texts.name, u"new.mp3");
  later.join();
}

TEST_F(SaveOnAHangingDisk, ASaveThatComesThroughWhileTheProgramEndsLeavesNoCopy) {
  SaveHangs(u"first.mp3");
  std::thread meanwhile([this] { OnceItIsCopied(); });
  saver.Finish(seconds(60));
  EXPECT_FALSE(Read("recovery/Show.brv").has_value());
  EXPECT_EQ(Read("Show.brv"), BytesOf(ASong(u"first.mp3")));
  meanwhile.join();
}

TEST_F(SaveOnAHangingDisk, ASaveThatFailsWhileTheProgramEndsIsInTheRecoveryFolder) {
  SaveHangs(u"first.mp3");
  std::thread meanwhile([this] {
    OnceItIsCopied([this] {
      std::filesystem::remove(folder.Native("Show.brv"));
      std::filesystem::create_directory(folder.Native("Show.brv"));
    });
  });
  saver.Finish(seconds(60));
  EXPECT_EQ(Read("recovery/Show.brv"), BytesOf(ASong(u"first.mp3")));
  meanwhile.join();
}

TEST_F(SaveOnAHangingDisk, WhatCannotBeCopiedIsWaitedForAsLongAsItTakes) {
  folder.Write("recovery");  // a file, where the folder would be
  SaveHangs(u"first.mp3");
  std::thread later([this] {
    std::this_thread::sleep_for(milliseconds(300));
    disk.reset();
  });
  saver.Finish(milliseconds(0));
  EXPECT_EQ(Read("Show.brv"), BytesOf(ASong(u"first.mp3")));
  later.join();
}

}  // namespace
}  // namespace brevant
