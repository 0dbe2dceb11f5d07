// What a command's tool tip says. Used for the actions, and so for every bar that shows them.
#pragma once

#include <string>

#include "resources/command_table.h"

namespace brevant {

// The table's tool tip, and in brackets behind it the keys that really act, unless the tip names all of them
// already: "Set the auto repeat begin time (Z)", but "Increase Volume, F9".
[[nodiscard]] std::u16string ToolTipWithKeys(const TCCommand& command);

// The keys that really act, "P, F5"; empty for a command without one.
[[nodiscard]] std::u16string KeysText(TCCommandId command);

}  // namespace brevant
