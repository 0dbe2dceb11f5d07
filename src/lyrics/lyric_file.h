// Reads the lyric file that lies beside a song: `song.lrc` (8-bit text), else `song.lrcx` (UTF-16). Used when
// songs enter the set lists. Any thread, with a file system of its own.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "lyrics/lyrics.h"
#include "text/file_system.h"

namespace brevant {

// A file past this size holds no lyrics and is passed over like one that cannot be opened.
inline constexpr std::size_t kMaxLyricFileBytes = std::size_t{4} << 20;

// Drops the lines that `lyrics` holds, then fills it from the song's lyric file. Header values that the file
// does not set stay as they were. False when there is no readable lyric file.
bool LoadLyrics(TCFileSystem& files, std::u16string_view songPath, TCSongLyrics& lyrics);

// Adds what one line of a lyric file says: a header value, a timed line, or nothing when it is neither.
void ParseLyricLine(std::u16string_view line, TCLyricSheet& sheet);

// Milliseconds of a tag "minutes:seconds.fraction". The fraction is added as milliseconds whatever its length
// (".5" is 5 ms). A missing or unreadable part counts 0, a tag without a colon is 0. Times that do not fit 32
// bits stop at the greatest or least value that does.
[[nodiscard]] std::int32_t ParseLyricTime(std::u16string_view tag);

}  // namespace brevant
