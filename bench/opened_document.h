// A document opened from the real disk with nothing else round it. Used by the whole-process measurements.
#pragma once

#include <string>
#include <string_view>

#include "model/document_file.h"
#include "text/disk_files.h"

namespace brevant {

// The loaders' messages are of no interest to a measurement.
class TCNoMessages final : public TCMessageDisplay {
 public:
  void Clear() override {}
  void Append(std::u16string_view) override {}
  void SetLineRole(TCLineRole) override {}
  void KeepFirstInView() override {}
};

struct TCOpenedDocument {
  TCDiskFiles files{TCNativePaths()};
  TCSetListStore store;
  TCNoMessages messages;
  TCDocumentFile file{files, store, messages};

  [[nodiscard]] bool Open(std::u16string_view path) {
    store.ClearSetLists();
    return file.OpenSetListDocument(path);
  }
};

// The model path of a document named on the command line; empty with a line on the error output when there is
// none.
[[nodiscard]] std::u16string DocumentArgument(int argc, char** argv);

}  // namespace brevant
