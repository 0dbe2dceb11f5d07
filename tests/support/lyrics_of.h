// Lyric data of given lines, and single lines of it, for tests of whoever holds or reads some.
#pragma once

#include <cstddef>
#include <utility>
#include <vector>

#include "lyrics/lyrics.h"

namespace brevant {

inline TCSongLyrics LyricsOf(const std::vector<TCLyric>& lines, TCLyricHeaders headers = {}) {
  TCLyricSheet sheet;
  sheet.headers = std::move(headers);
  for (const TCLyric& line : lines) sheet.Add(line);
  return TCSongLyrics(sheet);
}

// Line `index` in file order; a line without text and times when there is no such line.
inline TCLyric LineOf(const TCSongLyrics& lyrics, std::size_t index) {
  const std::vector<TCLyric> lines = lyrics.LinesFrom(index, 1);
  return lines.empty() ? TCLyric() : lines.front();
}

}  // namespace brevant
