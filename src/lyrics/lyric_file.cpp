#include "lyrics/lyric_file.h"

#include <algorithm>
#include <array>
#include <limits>
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
  std::u16string TCLyricHeaders::*value;
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

// Every mark of the list ends with a lower-case letter and a colon. Nearly every tag is a time, in which no
// such pair stands, and need not be searched ten times.
bool MayHoldHeaderMark(std::u16string_view tag) {
  for (std::size_t colon = tag.find(u':', 1); colon != kNone; colon = tag.find(u':', colon + 1)) {
    if (tag[colon - 1] >= u'a' && tag[colon - 1] <= u'z') return true;
  }
  return false;
}

const HeaderTag* FindHeaderTag(std::u16string_view tag) {
  if (!MayHoldHeaderMark(tag)) return nullptr;
  const auto* known = std::find_if(kHeaderTags.begin(), kHeaderTags.end(),
                                   [tag](const HeaderTag& header) { return Contains(tag, header.mark); });
  return known == kHeaderTags.end() ? nullptr : known;
}

std::int32_t SingerOf(std::u16string_view text) {
  if (text.find(u':') == kNone) return 0;
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

bool ReadSheet(TCFileSystem& files, std::u16string_view songPath, TCLyricSheet& sheet) {
  const LineVisitor parse = [&sheet](std::u16string_view line) { ParseLyricLine(line, sheet); };
  if (const auto bytes = files.ReadFile(ReplaceExtension(songPath, u"lrc"), kMaxLyricFileBytes)) {
    VisitAnsiLines(*bytes, parse);
    return true;
  }
  if (const auto bytes = files.ReadFile(ReplaceExtension(songPath, u"lrcx"), kMaxLyricFileBytes)) {
    VisitUtf16Lines(*bytes, parse);
    return true;
  }
  return false;
}

}  // namespace

bool LoadLyrics(TCFileSystem& files, std::u16string_view songPath, TCSongLyrics& lyrics) {
  TCLyricSheet sheet;
  sheet.headers = lyrics.Headers();
  const bool read = ReadSheet(files, songPath, sheet);
  SetLineEnds(sheet);
  lyrics = TCSongLyrics(sheet);
  return read;
}

void ParseLyricLine(std::u16string_view line, TCLyricSheet& sheet) {
  if (line.find(u'[') == kNone) return;
  const std::size_t tagEnd = line.find(u']');
  if (tagEnd == kNone) return;

  // The '[' is taken to stand first: whatever stands there is dropped, so a line with something in front of
  // its '[' gives a garbled tag.
  const std::u16string_view tag = line.substr(0, tagEnd).substr(std::min<std::size_t>(tagEnd, 1));
  const std::u16string_view rest = line.substr(tagEnd + 1);

  if (const HeaderTag* header = FindHeaderTag(tag)) {
    // By its length: the mark itself is taken to stand first, as the '[' is.
    sheet.headers.*header->value = tag.substr(std::min(tag.size(), header->mark.size()));
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
