// The real disk behind TCFileSystem. Used on the user-interface thread only.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "text/file_system.h"
#include "text/native_path.h"

namespace brevant {

class TCDiskFiles final : public TCFileSystem {
 public:
  explicit TCDiskFiles(TCNativePaths paths);
  ~TCDiskFiles() override;

  [[nodiscard]] bool FileExists(std::u16string_view path) override;
  [[nodiscard]] std::optional<std::string> ReadFile(std::u16string_view path, std::size_t maxBytes) override;
  [[nodiscard]] bool ReplaceFile(std::u16string_view path, std::string_view bytes) override;
  [[nodiscard]] bool CopyFile(std::u16string_view from, std::u16string_view to) override;
  [[nodiscard]] bool MakeFolder(std::u16string_view path) override;
  bool DeleteFile(std::u16string_view path) override;

 private:
  // A document of 100,000 songs asks for 100,000 lyric files that are not there; each miss would read its
  // folder again in search of other upper and lower case. This remembers each folder's names for a moment.
  class FolderNames;

  TCNativePaths paths;
  std::unique_ptr<FolderNames> folderNames;
};

}  // namespace brevant
