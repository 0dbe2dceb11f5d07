// What the main frame shows for the document.
#pragma once

#include <string_view>

namespace brevant {

enum class TCModifiedMark { Clean, Modified };

// Whether the next click into the tree places files there. While it does, the busy cursor shows over the
// playlist and the tree.
enum class TCPlacing { Nothing, Waiting };

class TCFrameDisplay {
 public:
  virtual ~TCFrameDisplay() = default;

  // `name` is the document's file name; empty for a new document.
  virtual void ShowTitle(std::u16string_view name, TCModifiedMark mark) = 0;
  // An option changed: check marks, colours and fonts are shown anew.
  virtual void ShowOptions() = 0;
  // One line in the status bar, until the next one or for a few seconds.
  virtual void ShowStatus(std::u16string_view text) = 0;
  // `hint` stands in the status bar for as long as the placing waits.
  virtual void ShowPlacing(TCPlacing placing, std::u16string_view hint) = 0;
};

}  // namespace brevant
