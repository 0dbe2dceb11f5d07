// The real disk behind TCFileSystem. One thread at a time; every question of Ask has one of its own.
#pragma once

#include <chrono>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

#include "text/file_system.h"
#include "text/folder_at_hand.h"
#include "text/job_threads.h"
#include "text/native_path.h"
#include "text/other_case.h"
#include "text/regular_file.h"

namespace brevant {

// Every name is tried as it is written. Only where nothing stands under it, a name that differs in upper and
// lower case is looked for. A document of 100,000 songs asks for 100,000 lyric files that are not there, so
// the names of the folders are remembered for that: see TCOtherCase.
class TCDiskFiles final : public TCFileSystem {
 public:
  // The clock decides how long the names of a folder are remembered; tests bring their own.
  explicit TCDiskFiles(TCNativePaths paths, TCOtherCase::Clock clock = std::chrono::steady_clock::now);

  [[nodiscard]] bool FileExists(std::u16string_view path) override;
  // On a thread that nobody waits for.
  void Ask(const std::function<void(TCFileSystem& disk)>& question) override;
  [[nodiscard]] std::optional<std::string> ReadFile(std::u16string_view path, std::size_t maxBytes) override;

  // Also false for a file that is write-protected, and for one in a folder that takes no new file: the new
  // content is written beside the old.
  [[nodiscard]] bool ReplaceFile(std::u16string_view path, std::string_view bytes) override;

  [[nodiscard]] bool CopyFile(std::u16string_view from, std::u16string_view to) override;

  // New folders can be entered by the user alone: what the program makes of its own is the user's.
  [[nodiscard]] bool MakeFolder(std::u16string_view path) override;
  bool DeleteFile(std::u16string_view path) override;

  void BeginManyFiles() override { ++manyFiles; }
  void EndManyFiles() override;

 private:
  void ForgetFolders();
  // Decides what is asked first, the disk or the names that are known.
  enum class Expect { Found, Missing };

  [[nodiscard]] TCRegularFile OpenForReading(std::u16string_view path, Expect expect);
  // Empty when the folder at hand cannot tell.
  [[nodiscard]] std::optional<TCRegularFile> OpenAtHand(std::u16string_view path, Expect expect);
  void TakeFolder(std::u16string_view folder);
  // The name under which something stands there: `native`, or its like in other case, or else `native` within
  // the folder that answers to its folder's name.
  [[nodiscard]] std::string Locate(const std::string& native);

  TCNativePaths paths;
  TCOtherCase otherCase;
  TCJobThreads questions;
  int manyFiles = 0;  // BeginManyFiles that were not ended

  // While many files are asked for, the folder of the last one.
  std::u16string pathAtHand;  // as it was asked for, with the separator behind it
  std::optional<TCFolderAtHand> atHand;
};

}  // namespace brevant
