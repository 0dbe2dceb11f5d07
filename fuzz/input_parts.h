// Cuts one input into the several files that a set list is made of: the first is the file under test, the
// others lie beside it. Used by the targets of the model room.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "text/text_lines.h"

namespace brevant {

// Between two files. As UTF-16 text it is a character that no corpus file uses, twice.
inline constexpr std::string_view kPartMark = "\x1E\x1E\x1E\x1E";

// `count` parts, the last ones empty when the input has fewer; what is behind the last belongs to it.
[[nodiscard]] inline std::vector<std::string> CutIntoParts(std::string_view input, std::size_t count) {
  std::vector<std::string> parts;
  while (parts.size() + 1 < count) {
    const std::size_t mark = input.find(kPartMark);
    parts.emplace_back(input.substr(0, mark));
    input.remove_prefix(mark == std::string_view::npos ? input.size() : mark + kPartMark.size());
  }
  parts.emplace_back(input);
  return parts;
}

// Documents, group lists and playlists name each other line by line, so a few short files can ask for
// millions of songs. That would only make the target slow: such inputs are passed over.
[[nodiscard]] inline bool TooManyLines(const std::vector<std::string>& parts) {
  std::size_t lines = 0;
  for (const std::string& part : parts) lines += SplitUtf16Lines(part).size();
  return lines > 100;
}

}  // namespace brevant
