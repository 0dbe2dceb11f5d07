// The names and versions of the libraries that this room plays with, as found at run time. Used by the About
// box; any thread.
#pragma once

#include <string>
#include <vector>

namespace brevant {

// "Name version" each; the name alone where a library does not tell.
[[nodiscard]] std::vector<std::string> LibraryVersions();

}  // namespace brevant
