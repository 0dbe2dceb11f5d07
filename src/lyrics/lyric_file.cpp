#include "lyrics/lyric_file.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <string>

#include "text/numbers.h"
#include "text/path_parts.h"
#include "text/text_lines.h"

namespace brevant {

namespace {

constexpr std::size_t kNone = std::u16string_view::npos;

std::int32_t Clamp32(std::int64_t value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

bool Contains(std::u16string_view text, std::u16string_view part) {
  return text.find(part) != kNone;
}

// A tag is tested for these in this order, and the first that stands anywhere in it decides. "id:" and "ar:"
// both name the artist.
struct HeaderTag {
  std::u16string_view mark;
  std::u16string TCLyricHeaders::*header;
};
constexpr std::array<HeaderTag, 10> kHeaderTags = {{
    {u"id:", &TCLyricHeaders::artist},
    {u"ti:", &TCLyricHeaders::title},
    {u"ar:", &TCLyricHeaders::artist},
    {u"al:", &TCLyricHeaders::album},
    {u"by:", &TCLyricHeaders::lyricWriter},
    {u"au:", &TCLyricHeaders::songCreator},
    {u"re:", &TCLyricHeaders::editor},
    {u"ve:", &TCLyricHeaders::version},
    {u"length:", &TCLyricHeaders::length},
    {u"offset:", &TCLyricHeaders::offset},
}};

std::int32_t SingerOf(std::u16string_view text) {
  if (Contains(text, u"F:")) return 2;
  if (Contains(text, u"M:")) return 1;
  if (Contains(text, u"D:")) return 3;
  return 0;
}

// Every line ends where the next one begins. All but the last are moved by the offset; the last keeps its
// start and stays to the end of the song.
void SetLineEnds(TCLyricSheet& sheet) {
  if (sheet.lines.empty()) return;
  const std::int64_t offset = ReadDecimal(sheet.headers.offset).value_or(0);
  for (std::size_t line = 0; line + 1 < sheet.lines.size(); ++line) {
    sheet.lines[line].start = Clamp32(sheet.lines[line].start - offset);
    sheet.lines[line].end = Clamp32(sheet.lines[line + 1].start - offset);
  }
}

std::optional<TextLines> ReadLyricLines(TCFileSystem& files, std::u16string_view songPath) {
  if (const auto bytes = files.ReadFile(ReplaceExtension(songPath, u"lrc"), kMaxLyricFileBytes)) {
    return SplitAnsiLines(*bytes);
  }
  if (const auto bytes = files.ReadFile(ReplaceExtension(songPath, u"lrcx"), kMaxLyricFileBytes)) {
    return SplitUtf16Lines(*bytes);
  }
  return std::nullopt;
}

}  // namespace

bool LoadLyrics(TCFileSystem& files, std::u16string_view songPath, TCSongLyrics& lyrics) {
  TCLyricSheet sheet;
  sheet.headers = lyrics.Headers();
  const std::optional<TextLines> lines = ReadLyricLines(files, songPath);
  if (lines) {
    for (const std::u16string& line : *lines) ParseLyricLine(line, sheet);
    SetLineEnds(sheet);
  }
  lyrics = TCSongLyrics(sheet);
  return lines.has_value();
}

void ParseLyricLine(std::u16string_view line, TCLyricSheet& sheet) {
  if (!Contains(line, u"[")) return;
  const std::size_t tagEnd = line.find(u']');
  if (tagEnd == kNone) return;

  // The '[' is taken to stand first: whatever stands there is dropped, so a line with something in front of
  // its '[' gives a garbled tag.
  const std::u16string_view tag = line.substr(0, tagEnd).substr(std::min<std::size_t>(tagEnd, 1));
  const std::u16string_view rest = line.substr(tagEnd + 1);

  for (const HeaderTag& known : kHeaderTags) {
    if (!Contains(tag, known.mark)) continue;
    sheet.headers.*known.header = tag.substr(std::min(tag.size(), known.mark.size()));
    return;
  }

  // Of several time tags the first counts; the text stands behind the last.
  const std::size_t lastTagEnd = rest.rfind(u']');
  const std::u16string_view text = lastTagEnd == kNone ? rest : rest.substr(lastTagEnd + 1);
  sheet.lines.push_back({std::u16string(text), ParseLyricTime(tag), kEndOfLyrics, SingerOf(text)});
}

std::int32_t ParseLyricTime(std::u16string_view tag) {
  const std::size_t colon = tag.find(u':');
  if (colon == kNone) return 0;
  const std::u16string_view rest = tag.substr(colon + 1);
  const std::size_t point = rest.find(u'.');

  const std::int64_t minutes = ReadDecimal(tag.substr(0, colon)).value_or(0);
  const std::int64_t seconds = ReadDecimal(rest.substr(0, point)).value_or(0);
  const std::int64_t fraction = point == kNone ? 0 : ReadDecimal(rest.substr(point + 1)).value_or(0);
  return Clamp32((minutes * 60 + seconds) * 1000 + fraction);
}

}  // namespace brevant
