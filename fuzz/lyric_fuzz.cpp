// Lyric files of both widths: whatever the bytes, the lines found are packed and come back, each ends where
// the next begins, and the display finds what a plain search finds.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "lyrics/current_lines.h"
#include "lyrics/lyric_file.h"
#include "must_hold.h"
#include "support/memory_files.h"
#include "text/text_lines.h"

using namespace brevant;

namespace {

void CheckPacking(const TextLines& lines) {
  TCLyricSheet sheet;
  for (const std::u16string& line : lines) ParseLyricLine(line, sheet);
  // The texts of the lines once more, as texts of any kind.
  for (const std::u16string& line : lines) sheet.Add({line, -5, static_cast<std::int32_t>(line.size()), 2});
  const TCSongLyrics packed(sheet);
  MustHold(packed.Headers() == sheet.headers, "header values come back as they were read");
  MustHold(packed.LineCount() == sheet.lines.size(), "every line is packed");
  const std::vector<TCLyric> unpacked = packed.LinesFrom(0, sheet.lines.size());
  for (std::size_t i = 0; i < sheet.lines.size(); ++i) {
    MustHold(unpacked[i].start == sheet.lines[i].start && unpacked[i].end == sheet.lines[i].end &&
                 unpacked[i].singer == sheet.lines[i].singer,
             "a line comes back as it was read");
  }
  for (std::size_t i = 0; i < lines.size(); ++i) {
    MustHold(unpacked[unpacked.size() - lines.size() + i].text == lines[i], "a text comes back as it was");
  }
}

// Lines are cut and understood as bytes where that makes no difference.
void CheckWidths(std::string_view bytes) {
  TCMemoryFiles files;
  files.Put(u"song.lrc", std::string(bytes));
  TCSongLyrics loaded;
  MustHold(LoadLyrics(files, u"song.mp3", loaded), "a lyric file is read whatever it holds");
  TCLyricSheet sheet;
  for (const std::u16string& line : SplitAnsiLines(bytes)) ParseLyricLine(line, sheet);
  const std::vector<TCLyric> lines = TCSongLyrics(sheet).LinesFrom(0, sheet.lines.size());
  const std::vector<TCLyric> loadedLines = loaded.LinesFrom(0, loaded.LineCount());
  MustHold(loadedLines.size() == lines.size() && loaded.Headers() == sheet.headers,
           "both widths give the same lines");
  for (std::size_t i = 0; i < lines.size(); ++i) {
    const TCLyric& line = loadedLines[i];
    MustHold(line.text == lines[i].text && line.singer == lines[i].singer, "both widths give the same texts");
  }
}

void CheckLoading(const char16_t* fileName, std::string_view bytes) {
  TCMemoryFiles files;
  files.Put(fileName, std::string(bytes));
  TCSongLyrics lyrics;
  MustHold(LoadLyrics(files, u"song.mp3", lyrics), "a lyric file is read whatever it holds");

  const std::size_t count = lyrics.LineCount();
  const std::vector<TCLyric> lines = lyrics.LinesFrom(0, count);
  MustHold(lines.size() == count, "as many lines as are counted");
  for (std::size_t i = 0; i + 2 < count; ++i) {
    MustHold(lines[i].end == lines[i + 1].start, "a line ends where the next begins");
  }
  if (count > 0) MustHold(lines[count - 1].end == kEndOfLyrics, "the last line has no end");

  for (const std::int32_t timeMs : {0, 500, 10'000, kEndOfLyrics - 1}) {
    std::vector<TCLyric> found;
    const std::int32_t current = FindLyricLines(lyrics, found, timeMs, 3);
    MustHold((current == -1) == found.empty(), "lines are found where one is current");
    if (current < 0) continue;
    const auto first = static_cast<std::size_t>(current);
    MustHold(found.size() == std::min<std::size_t>(3, count - first), "as many lines as asked for");
    MustHold(found[0].start <= timeMs && timeMs < found[0].end, "the first line found is current");
  }

  TCSongLyrics again = lyrics;
  MustHold(LoadLyrics(files, u"song.mp3", again) && again.LineCount() == count,
           "loading again gives as many");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  CheckPacking(SplitAnsiLines(bytes));
  CheckPacking(SplitUtf16Lines(bytes));
  CheckWidths(bytes);
  CheckLoading(u"song.lrc", bytes);
  CheckLoading(u"song.lrcx", bytes);
  return 0;
}
