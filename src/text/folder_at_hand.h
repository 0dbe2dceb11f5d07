// A folder that is held open with its names read, so that many questions about its files in one go cost
// little. Part of TCDiskFiles; one thread at a time.
#pragma once

#include <dirent.h>

#include <optional>
#include <string>
#include <string_view>

#include "text/folder_handle.h"
#include "text/folder_names.h"

namespace brevant {

class TCFolderAtHand {
 public:
  // Empty when it cannot be opened or not be read to its end.
  [[nodiscard]] static std::optional<TCFolderAtHand> Open(const std::string& native);

  // True when nothing in it had this name in any case when it was opened.
  [[nodiscard]] bool IsMissing(std::string_view name) const { return names.IsMissing(name); }

  // True when it was listed under this very name as a regular file, not as a link to one.
  [[nodiscard]] bool IsRegular(std::string_view name) const { return names.IsRegular(name); }

  // For calls that take a name relative to an open folder.
  [[nodiscard]] int Descriptor() const { return dirfd(folder.get()); }

 private:
  TCFolderHandle folder;
  TCFolderNames names;
};

}  // namespace brevant
