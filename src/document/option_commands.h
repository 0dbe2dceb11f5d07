// Options that are turned on and off: which command turns which one. User-interface thread only.
#pragma once

#include "model/settings.h"
#include "resources/command_id.h"

namespace brevant {

// True for the commands that do nothing but turn an option.
[[nodiscard]] bool IsOptionCommand(TCCommandId command);

// The check mark. False for every other command.
[[nodiscard]] bool IsOptionOn(TCCommandId command, const TCSettings& settings);

// On becomes off, and off on; the two colours follow "White On Black". Other commands change nothing.
void InvertOption(TCCommandId command, TCSettings& settings);

}  // namespace brevant
