// What the main frame shows for the document.
#pragma once

#include <string_view>

namespace brevant {

enum class TCModifiedMark { Clean, Modified };

class TCFrameDisplay {
 public:
  virtual ~TCFrameDisplay() = default;

  // `name` is the document's file name; empty for a new document.
  virtual void ShowTitle(std::u16string_view name, TCModifiedMark mark) = 0;
  // An option changed: check marks, colours and fonts are shown anew.
  virtual void ShowOptions() = 0;
  // One line in the status bar, until the next one or for a few seconds.
  virtual void ShowStatus(std::u16string_view text) = 0;
};

}  // namespace brevant
