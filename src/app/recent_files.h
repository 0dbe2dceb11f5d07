// The documents used last, newest first, kept in the layout file's section "Recent File List" as "File1" to
// "File8". Written as soon as it changes, so that a killed program has lost next to none, and on a thread of
// its own: a loaded disk takes longer than the window may stand still. TCRecentFileMenu shows it.
// User-interface thread only.
#pragma once

#include <QObject>
#include <QSettings>
#include <QThreadPool>
#include <string>
#include <string_view>
#include <vector>

#include "document/recent_file_list.h"

namespace brevant {

inline constexpr std::size_t kRecentFiles = 8;

class TCRecentFiles final : public QObject, public TCRecentFileList {
  Q_OBJECT

 public:
  // Reads the list from `layout`, which outlives this. What cannot be in it is left out.
  explicit TCRecentFiles(QSettings& layout);

  // Model paths. None is there twice, also not in other upper and lower case.
  [[nodiscard]] const std::vector<std::u16string>& Paths() const { return paths; }

  // Returns when the list as it is now is on the disk.
  void WaitUntilWritten() { writer.waitForDone(); }

  // TCRecentFileList
  void AddToRecentFileList(std::u16string_view path) override;

 Q_SIGNALS:
  void changed();

 private:
  void Enter(std::u16string_view path);
  void Write();

  QSettings& layout;
  std::vector<std::u16string> paths;
  QThreadPool writer;  // of one thread, so that the newest list is written last; its end waits for it
};

}  // namespace brevant
