// The exact length of an MP3 file, whatever its header says or leaves out. Reads the whole file, so it takes
// its time on a slow disk; any thread.
#pragma once

#include <optional>
#include <string>

namespace brevant {

// Seconds; empty when the file holds no MP3 frame.
[[nodiscard]] std::optional<double> MeasureMp3Length(const std::string& nativePath);

}  // namespace brevant
