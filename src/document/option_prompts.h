// Options that are typed: which command asks for which one, with which words, and what becomes of the answer.
// User-interface thread only.
#pragma once

#include "document/prompts.h"
#include "model/app_record.h"
#include "resources/command_id.h"

namespace brevant {

// True for the commands that ask for an option's value.
[[nodiscard]] bool IsOptionPrompt(TCCommandId command);

// Asks. The trimmed answer becomes the option's value; an empty one, a cancelled prompt and a number that is
// none or does not fit 32 bits leave it as it is. No range is held. True when the option took a value.
bool AskForOption(TCCommandId command, TCAppRecord& record, TCPrompts& prompts);

}  // namespace brevant
