// A message display that keeps what it is given, for tests of whoever reports something.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/message_display.h"

namespace brevant {

class TCMessageLog final : public TCMessageDisplay {
 public:
  std::vector<std::u16string> lines;
  std::vector<TCLineRole> roles;
  int clears = 0;
  bool firstInView = false;

  void Clear() override {
    lines.clear();
    roles.clear();
    role = TCLineRole::Normal;
    firstInView = false;
    ++clears;
  }
  void Append(std::u16string_view text) override {
    lines.emplace_back(text);
    roles.push_back(role);
    firstInView = false;
  }
  void SetLineRole(TCLineRole lineRole) override { role = lineRole; }
  void KeepFirstInView() override { firstInView = true; }

 private:
  TCLineRole role = TCLineRole::Normal;
};

}  // namespace brevant
