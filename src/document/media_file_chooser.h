// Asks for song files, beginning where the last one was found. User-interface thread only.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "document/prompts.h"
#include "model/app_record.h"

namespace brevant {

class TCMediaFileChooser {
 public:
  TCMediaFileChooser(TCAppRecord& appRecord, TCPrompts& userPrompts);

  // Model paths in double quotes with blanks between, as the song text of Create Set Lists holds them. The
  // first one and its type are remembered. Empty when the user cancelled, which forgets the last file, and
  // when no chosen file can be used, which does not.
  [[nodiscard]] std::u16string ChooseSongs();

  // One file, whose type is remembered. Empty as above.
  [[nodiscard]] std::optional<std::u16string> ChooseSong();

 private:
  [[nodiscard]] std::vector<std::u16string> Choose(TCChooseFiles count);

  TCAppRecord& record;
  TCPrompts& prompts;
};

}  // namespace brevant
