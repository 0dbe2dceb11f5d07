#include "lyrics/current_lines.h"

#include <algorithm>
#include <cstddef>

namespace brevant {

std::int32_t FindLyricLines(const TCSongLyrics& lyrics, std::vector<TCLyric>& out, std::int32_t timeMs,
                            std::int32_t lineCount) {
  out.clear();
  const std::int32_t current = lyrics.FindLineAt(timeMs);
  if (current < 0) return -1;

  const std::int32_t count = std::max(lineCount, 1);
  out = lyrics.LinesFrom(static_cast<std::size_t>(current), static_cast<std::size_t>(count));
  return current;
}

}  // namespace brevant
