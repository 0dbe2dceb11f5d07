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

  void Clear() override {
    lines.clear();
    roles.clear();
    role = TCLineRole::Normal;
    ++clears;
  }
  void Append(std::u16string_view text) override {
    lines.emplace_back(text);
    roles.push_back(role);
  }
  void SetLineRole(TCLineRole lineRole) override { role = lineRole; }

 private:
  TCLineRole role = TCLineRole::Normal;
};

}  // namespace brevant
