// Which lyric lines belong on the screen at a moment of the song. Used by the lyric display.
#pragma once

#include <cstdint>
#include <vector>

#include "lyrics/lyrics.h"

namespace brevant {

// Empties `out`, then puts the line that is current at `timeMs` and the lines after it there, `lineCount` in
// all as far as there are so many (the current line always, even for a `lineCount` below 1). Returns the
// index of the current line, or -1 when none is current.
std::int32_t FindLyricLines(const TCSongLyrics& lyrics, std::vector<TCLyric>& out, std::int32_t timeMs,
                            std::int32_t lineCount);

}  // namespace brevant
