// What a command's tool tip says. Used for the actions, and so for every bar that shows them.
#pragma once

#include <span>
#include <string>

#include "resources/command_table.h"

namespace brevant {

// The table's tool tip, and in brackets behind it the keys that really act, unless the tip names all of them
// already: "Set the auto repeat begin time (Z)", but "Increase Volume, F9".
[[nodiscard]] std::u16string ToolTipWithKeys(const TCCommand& command, std::span<const TCKey> keys);

// "P, F5"; empty for no key.
[[nodiscard]] std::u16string KeysText(std::span<const TCKey> keys);

}  // namespace brevant
