// Puts documents on the disk without holding the window up: a save that takes longer than a moment goes on by
// itself. What cannot be saved goes to the recovery folder. Part of the document; user-interface thread only.
#pragma once

#include <atomic>
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

  // Waits a moment for the disk. What is not on it by then goes to the recovery folder as well, by itself,
  // and is taken out of there when the save comes through, unless somebody has made something else of it. The
  // saves of one file take effect in the order
  // they were asked for, those of different files wait for nobody. Without lines nothing is written.
  void Save(std::u16string_view path, TextLines lines);

  // Into the recovery folder, at once. Without lines nothing is written.
  void KeepRecoveryCopy(std::u16string_view path, const TextLines& lines);

  // What stands at `path` could not be read, so whoever saves there has not seen it: the first save that
  // comes through keeps it as "NAME.brv~". Counts until the next call; empty when all was read.
  void SetUnreadFile(std::u16string_view path);

  // A save of the file is still under way.
  [[nodiscard]] bool IsSaving(std::u16string_view path) const;

  // True when a save has ended since the last call that had not come through within its moment.
  bool DropEndedSaves();

  // Returns when no save of the file is under way: who reads it then, reads what was saved last. A disk that
  // hangs holds it up for as long.
  void WaitFor(std::u16string_view path);

  // For the end of the program; no save counts as under way afterwards. Waits for all saves, together no
  // longer than `patience`: a slow stick may take seconds. Only for what is not in the recovery folder by
  // then it waits as long as it takes to get there, or to its disk.
  void Finish(std::chrono::milliseconds patience = std::chrono::seconds(5));

 private:
  struct TCSave {
    std::u16string path;
    std::shared_ptr<const TextLines> lines;
    std::shared_future<bool> onDisk;          // false when it has failed
    std::shared_future<std::u16string> copy;  // in the recovery folder; empty when that has failed, too
    bool told = false;                        // that `onDisk` has come

    [[nodiscard]] bool CameThrough() const;
    [[nodiscard]] bool IsCopied() const;
    // Nothing of it is under way any more.
    [[nodiscard]] bool HasEnded() const;
  };

  // Shared with the jobs: whichever save comes through first, those behind it must not keep its own file.
  struct TCUnreadFile {
    std::u16string path;
    std::atomic<bool> replaced = false;
  };

  [[nodiscard]] std::shared_future<bool> WriteBehindOthers(std::u16string_view path,
                                                           std::shared_ptr<const TextLines> lines);
  // The last save of the file that is under way; null when there is none.
  [[nodiscard]] const TCSave* LastSaveOf(std::u16string_view path) const;
  void TakeBackCopy(const TCSave& save);

  TCFileSystem& files;
  const std::u16string recoveryFolder;
  std::shared_ptr<TCUnreadFile> unread;
  std::vector<TCSave> underWay;  // in the order they were asked for
};

}  // namespace brevant
