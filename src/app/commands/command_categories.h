// The commands as the customise sheet lists them: by the main menus, and all together.
#pragma once

#include <QString>
#include <vector>

#include "app/commands/command_actions.h"

namespace brevant {

// The command's title. Empty for a command that does nothing but keep a key away from somebody.
[[nodiscard]] QString CommandName(TCCommandId command);

struct TCCommandCategory {
  QString name;
  std::vector<TCCommandId> commands;  // those that somebody carries out and that have a name
};

// The main menus in their order, then "All Commands" by name.
[[nodiscard]] std::vector<TCCommandCategory> CommandCategories(const TCCommandActions& actions);

}  // namespace brevant
