// Song lengths out of a table, for tests of whoever measures: like the program's probe it makes no sound and
// leaves the player alone.
#pragma once

#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "playback/length_probe.h"

namespace brevant {

class TCFakeLengthProbe final : public TCLengthProbe {
 public:
  std::map<std::u16string, int> lengths;  // in seconds; -1: the song is missing or cannot be read
  int defaultLength = 180;                // of a song that is not among them
  int looksUntilKnown = 0;                // so often a song that was opened answers 0 first
  std::vector<std::u16string> opened;
  bool open = false;

  void Open(std::u16string_view path) override {
    if (!open || opened.back() != path) looks = 0;
    opened.emplace_back(path);
    open = true;
  }
  [[nodiscard]] int GetDurationSeconds() const override {
    if (!open) return -1;
    if (looks++ < looksUntilKnown) return 0;
    const auto length = lengths.find(opened.back());
    return length == lengths.end() ? defaultLength : length->second;
  }
  void Close() override { open = false; }

 private:
  mutable int looks = 0;  // at the song that is open
};

}  // namespace brevant
