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
  bool DropEndedSaves();

  // Returns when no save of the file is under way: who reads it then, reads what was saved last. A disk that
  // hangs holds it up for as long; what was saved is in the recovery folder meanwhile.
  void WaitFor(std::u16string_view path);

  // For the end of the program; no save counts as under way afterwards. What does not come at once goes to
  // the recovery folder first. Then it waits for all saves, together no longer than `patience`: a slow stick
  // may take seconds. Only for lines that the recovery folder did not take it waits as long as their disk
  // does.
  void Finish(std::chrono::milliseconds patience = std::chrono::seconds(5));

 private:
  struct TCSave {
    std::u16string path;
    std::shared_ptr<const TextLines> lines;
    std::shared_future<bool> onDisk;  // false when it has failed, and went to the recovery folder
    std::u16string copy;              // in the recovery folder, for as long as nobody knows how it ends
  };

  // The last save of the file that is under way; null when there is none.
  [[nodiscard]] const TCSave* LastSaveOf(std::u16string_view path) const;
  // Before a wait that may be long. Of the saves of one file only the last one counts.
  void CopyWhatHangs();

  TCFileSystem& files;
  const std::u16string recoveryFolder;
  std::vector<TCSave> underWay;  // in the order they were asked for
};

}  // namespace brevant
