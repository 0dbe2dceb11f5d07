// A command target that remembers what it was asked to do. Shared by the tests of actions, menus and keys.
#pragma once

#include <set>
#include <vector>

#include "app/commands/command_target.h"

namespace brevant {

class TCFakeTarget final : public TCCommandTarget {
 public:
  std::set<TCCommandId> handled;
  std::set<TCCommandId> checked;
  std::vector<TCCommandId> ran;

  [[nodiscard]] bool Handles(TCCommandId command) const override { return handled.contains(command); }
  void OnCommand(TCCommandId command) override { ran.push_back(command); }
  [[nodiscard]] bool IsChecked(TCCommandId command) const override { return checked.contains(command); }
};

}  // namespace brevant
