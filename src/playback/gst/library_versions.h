// The names and versions of the libraries that this room plays with. Used by the About box; any thread.
#pragma once

#include <string>
#include <vector>

namespace brevant {

// "Name version" each: of GStreamer the version that is loaded, of FluidSynth the one that this was built
// with; the name alone where a library does not tell.
[[nodiscard]] std::vector<std::string> LibraryVersions();

}  // namespace brevant
