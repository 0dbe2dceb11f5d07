// The user guide's page of commands and keys, written from the command table. The program brevant_key_table prints it, and
// a test holds the committed page against it, so the guide cannot tell of keys that do something else.
#pragma once

#include <string>

namespace brevant {

// Markdown: a table for each menu with all its commands, and one for the keys that no menu shows. Holds the keys that
// act, so a key that two commands list stands with the first, and what does nothing and has no menu is left out.
[[nodiscard]] std::string KeyPage();

}  // namespace brevant
