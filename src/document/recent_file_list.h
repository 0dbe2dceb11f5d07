// Who remembers the documents that were opened and saved last. Implemented by TCRecentFiles.
#pragma once

#include <string_view>

namespace brevant {

class TCRecentFileList {
 public:
  virtual ~TCRecentFileList() = default;

  // A document was opened, or saved under a new name. What is no document (".brv") is not entered.
  virtual void AddToRecentFileList(std::u16string_view path) = 0;
};

}  // namespace brevant
