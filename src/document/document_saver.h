// Puts documents on the disk without holding the window up: a save that takes longer than a moment goes on by
// itself. What cannot be saved goes to the recovery folder. Part of the document; user-interface thread only.
#pragma once

#include <chrono>
#include <future>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "text/file_system.h"
#include "text/text_lines.h"

namespace brevant {

class TCDocumentSaver {
 public:
  // `fileSystem` outlives the saver; `recovery` is the recovery folder, with a backslash at its end.
  TCDocumentSaver(TCFileSystem& fileSystem, std::u16string_view recovery);

  // Waits a moment for the disk. The saves of one file take effect in the order they were asked for, those of
  // different files wait for nobody. Without lines nothing is written.
  void Save(std::u16string_view path, TextLines lines);

  // Into the recovery folder, at once. Without lines nothing is written.
  void KeepRecoveryCopy(std::u16string_view path, const TextLines& lines);

  // A save of the file is still under way.
  [[nodiscard]] bool IsSaving(std::u16string_view path) const;

  // True when a save has ended since the last call that had not ended within its moment.
  bool TakeEndedSaves();

  // Returns when no save of the file is under way: who reads it then, reads what was saved last. A disk that
  // hangs holds it up for as long.
  void WaitFor(std::u16string_view path);

  // For the end of the program. Waits for all saves together, a slow stick may take seconds. What is not on
  // its disk after `patience` is in the recovery folder.
  void Finish(std::chrono::milliseconds patience = std::chrono::seconds(5));

 private:
  struct TCSave {
    std::u16string path;
    std::shared_ptr<const TextLines> lines;
    std::shared_future<bool> saved;  // false: it went to the recovery folder
  };

  // The last save of the file that is under way; of no state when there is none.
  [[nodiscard]] std::shared_future<bool> LastSaveOf(std::u16string_view path) const;

  TCFileSystem& files;
  const std::u16string recoveryFolder;
  std::vector<TCSave> underWay;  // in the order they were asked for
};

}  // namespace brevant
