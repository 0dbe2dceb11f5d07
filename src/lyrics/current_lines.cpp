#include "lyrics/current_lines.h"

#include <cstddef>

namespace brevant {

std::int32_t FindLyricLines(const TCSongLyrics& lyrics, std::vector<TCLyric>& out, std::int32_t timeMs,
                            std::int32_t lineCount) {
  out.clear();
  const std::int32_t current = lyrics.FindLineAt(timeMs);
  if (current < 0) return -1;

  const auto first = static_cast<std::size_t>(current);
  out.push_back(lyrics.LineAt(first));
  // Asked for as a count of its own, never as first + lineCount: the setting is not range-limited.
  for (std::size_t line = first + 1; line < lyrics.LineCount(); ++line) {
    if (static_cast<std::int64_t>(out.size()) >= lineCount) break;
    out.push_back(lyrics.LineAt(line));
  }
  return current;
}

}  // namespace brevant
