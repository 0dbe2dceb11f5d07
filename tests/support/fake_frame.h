// A frame without a window, for tests of the document.
#pragma once

#include <string>

#include "document/frame_display.h"

namespace brevant {

class TCFakeFrame final : public TCFrameDisplay {
 public:
  std::u16string name = u"?";
  TCModifiedMark mark = TCModifiedMark::Clean;
  int optionShows = 0;
  std::u16string status;
  TCPlacing placing = TCPlacing::Nothing;
  std::u16string placingHint;

  void ShowTitle(std::u16string_view documentName, TCModifiedMark modifiedMark) override {
    name = documentName;
    mark = modifiedMark;
  }
  void ShowOptions() override { ++optionShows; }
  void ShowStatus(std::u16string_view text) override { status = text; }
  void ShowPlacing(TCPlacing newPlacing, std::u16string_view hint) override {
    placing = newPlacing;
    placingHint = hint;
  }
};

}  // namespace brevant
