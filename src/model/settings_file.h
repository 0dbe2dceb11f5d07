// The settings file "Brevant.ini": read once before the main window is created, written once when it closes.
// Failures are silent; the options then keep their values.
#pragma once

#include <string>
#include <string_view>

#include "model/app_record.h"
#include "text/file_system.h"

namespace brevant {

class TCSettingsFile {
 public:
  // `folder` ends with a backslash and may not exist yet.
  TCSettingsFile(TCFileSystem& fileSystem, std::u16string_view settingsFolder);

  [[nodiscard]] std::u16string SettingsFilePath() const { return path; }

  // False when the file cannot be opened: every option keeps its built-in default. Sets `settingsFileFound`.
  bool LoadSettings(TCAppRecord& record) const;

  // True after writing every key, what else stands in the file is kept. With a reset pending the file is
  // deleted instead, and the answer is false. A failed write is silent and answers true.
  bool SaveSettings(const TCAppRecord& record) const;

  // The document of the last run; empty when there was none.
  [[nodiscard]] std::u16string LastLoadedFileName() const;

 private:
  TCFileSystem& files;
  std::u16string folder;
  std::u16string path;
};

}  // namespace brevant
