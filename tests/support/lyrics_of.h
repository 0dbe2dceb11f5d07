// Lyric data of given lines, for tests of whoever holds or reads some.
#pragma once

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

}  // namespace brevant
