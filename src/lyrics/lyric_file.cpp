#include "lyrics/lyric_file.h"

#include <algorithm>
#include <array>
#include <limits>
#include <optional>
#include <string>
#include <utility>

#include "lyrics/lyric_text.h"
#include "text/numbers.h"
#include "text/path_parts.h"
#include "text/text_lines.h"

namespace brevant {

namespace {

// The rules are written for both widths of text: a file in UTF-8, as nearly all are, is read without turning
// it into UTF-16 and back. What they look for is ASCII, one unit in either.
template <class Char>
using View = std::basic_string_view<Char>;

constexpr std::size_t kNone = std::string_view::npos;

std::int32_t Clamp32(std::int64_t value) {
  using Limits = std::numeric_limits<std::int32_t>;
  return static_cast<std::int32_t>(std::clamp<std::int64_t>(value, Limits::min(), Limits::max()));
}

template <class Char>
bool Contains(View<Char> text, std::string_view ascii) {
  return std::search(text.begin(), text.end(), ascii.begin(), ascii.end()) != text.end();
}

// A tag is tested for these in this order, and the first that stands anywhere in it decides. "id:" and "ar:"
// both name the artist.
struct HeaderTag {
  std::string_view mark;
  std::u16string TCLyricHeaders::*value;
};
constexpr std::array<HeaderTag, 10> kHeaderTags = {{
    {"id:", &TCLyricHeaders::artist},
    {"ti:", &TCLyricHeaders::title},
    {"ar:", &TCLyricHeaders::artist},
    {"al:", &TCLyricHeaders::album},
    {"by:", &TCLyricHeaders::lyricWriter},
    {"au:", &TCLyricHeaders::songCreator},
    {"re:", &TCLyricHeaders::editor},
    {"ve:", &TCLyricHeaders::version},
    {"length:", &TCLyricHeaders::length},
    {"offset:", &TCLyricHeaders::offset},
}};

// Every mark of the list ends with a lower-case letter and a colon. Nearly every tag is a time, in which no
// such pair stands, and need not be searched ten times.
template <class Char>
bool MayHoldHeaderMark(View<Char> tag) {
  for (std::size_t colon = tag.find(':', 1); colon != kNone; colon = tag.find(':', colon + 1)) {
    if (tag[colon - 1] >= 'a' && tag[colon - 1] <= 'z') return true;
  }
  return false;
}

template <class Char>
const HeaderTag* FindHeaderTag(View<Char> tag) {
  if (!MayHoldHeaderMark(tag)) return nullptr;
  const auto* known = std::find_if(kHeaderTags.begin(), kHeaderTags.end(),
                                   [tag](const HeaderTag& header) { return Contains(tag, header.mark); });
  return known == kHeaderTags.end() ? nullptr : known;
}

// The mark is taken to stand first, as the '[' is.
template <class Char>
View<Char> HeaderValue(View<Char> tag, const HeaderTag& header) {
  return tag.substr(std::min(tag.size(), header.mark.size()));
}

// False when the tag is no header's.
template <class Char>
bool TakeHeader(View<Char> tag, TCLyricSheet& sheet) {
  const HeaderTag* header = FindHeaderTag(tag);
  if (header == nullptr) return false;
  const View<Char> value = HeaderValue(tag, *header);
  (sheet.headers.*header->value).assign(value.begin(), value.end());
  return true;
}

template <class Char>
std::int32_t SingerOf(View<Char> text) {
  if (text.find(':') == kNone) return kNoSinger;
  if (Contains(text, "F:")) return kSingerF;
  if (Contains(text, "M:")) return kSingerM;
  if (Contains(text, "D:")) return kSingerD;
  return kNoSinger;
}

template <class Char>
std::int32_t TimeOf(View<Char> tag) {
  const std::size_t colon = tag.find(':');
  if (colon == kNone) return 0;
  const View<Char> rest = tag.substr(colon + 1);
  const std::size_t point = rest.find('.');

  const std::int64_t minutes = ReadDecimal(tag.substr(0, colon)).value_or(0);
  const std::int64_t seconds = ReadDecimal(rest.substr(0, point)).value_or(0);
  const std::int64_t fraction = point == kNone ? 0 : ReadDecimal(rest.substr(point + 1)).value_or(0);
  return Clamp32((minutes * 60 + seconds) * 1000 + fraction);
}

// Of several time tags the first counts; the text stands behind the last.
template <class Char>
View<Char> TextBehindTags(View<Char> rest) {
  for (std::size_t tagEnd = rest.find(']'); tagEnd != kNone; tagEnd = rest.find(']')) {
    rest.remove_prefix(tagEnd + 1);
  }
  return rest;
}

// Where the line's first tag ends; kNone when the line has none and says nothing.
template <class Char>
std::size_t FirstTagEnd(View<Char> line) {
  return line.find('[') == kNone ? kNone : line.find(']');
}

// The '[' is taken to stand first: whatever stands there is dropped, so a line with something in front of its
// '[' gives a garbled tag.
template <class Char>
View<Char> TagIn(View<Char> line, std::size_t tagEnd) {
  return line.substr(0, tagEnd).substr(std::min<std::size_t>(tagEnd, 1));
}

// What nearly every line of a lyric file begins with, "[" digits ":" digits "." digits "]", read in one go.
struct PlainTag {
  std::size_t end = 0;  // where its ']' stands; 0 when the line begins with anything else
  std::int32_t time = 0;
};

PlainTag ReadPlainTag(std::string_view line) {
  constexpr std::size_t kMostDigits = 4;  // far from any limit of a number
  constexpr std::string_view kEnds = ":.]";
  std::array<std::int32_t, kEnds.size()> numbers{};
  std::size_t at = 0;
  if (line.empty() || line[at++] != '[') return {};
  for (std::size_t part = 0; part < kEnds.size(); ++part) {
    const std::size_t begin = at;
    for (; at < line.size() && line[at] >= '0' && line[at] <= '9'; ++at) {
      if (at - begin == kMostDigits) return {};
      numbers[part] = numbers[part] * 10 + (line[at] - '0');
    }
    if (at == line.size() || line[at++] != kEnds[part]) return {};
  }
  return {at - 1, (numbers[0] * 60 + numbers[1]) * 1000 + numbers[2]};
}

void AddByteLine(std::string_view line, std::size_t tagEnd, std::int32_t time, TCLyricSheet& sheet) {
  const std::string_view text = TextBehindTags(line.substr(tagEnd + 1));
  sheet.Add(text, time, kEndOfLyrics, SingerOf(text));
}

void ParseByteLine(std::string_view line, TCLyricSheet& sheet) {
  if (const PlainTag plain = ReadPlainTag(line); plain.end > 0) {
    return AddByteLine(line, plain.end, plain.time, sheet);
  }
  const std::size_t tagEnd = FirstTagEnd(line);
  if (tagEnd == kNone) return;
  const bool ascii = std::all_of(line.begin(), line.begin() + static_cast<std::ptrdiff_t>(tagEnd),
                                 [](char byte) { return static_cast<unsigned char>(byte) < 0x80; });
  if (!ascii) return ParseLyricLine(DecodeLyricText(line), sheet);  // where units are counted, UTF-16 counts
  const std::string_view tag = TagIn(line, tagEnd);
  if (!TakeHeader(tag, sheet)) AddByteLine(line, tagEnd, TimeOf(tag), sheet);
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

struct LyricFile {
  std::string bytes;
  bool wide = false;
};

std::optional<LyricFile> ReadLyricFile(TCFileSystem& files, std::u16string_view songPath) {
  std::u16string path = ReplaceExtension(songPath, u"lrc");
  if (auto bytes = files.ReadFile(path, kMaxLyricFileBytes)) return LyricFile{std::move(*bytes), false};
  path += u'x';
  if (auto bytes = files.ReadFile(path, kMaxLyricFileBytes)) return LyricFile{std::move(*bytes), true};
  return std::nullopt;
}

void FillSheet(const LyricFile& file, TCLyricSheet& sheet) {
  const LineVisitor parse = [&sheet](std::u16string_view line) { ParseLyricLine(line, sheet); };
  if (file.wide) return VisitUtf16Lines(file.bytes, parse);
  sheet.text.reserve(file.bytes.size());
  sheet.lines.reserve(file.bytes.size() / 32);
  if (!VisitUtf8Lines(file.bytes, [&sheet](std::string_view line) { ParseByteLine(line, sheet); })) {
    VisitAnsiLines(file.bytes, parse);
  }
}

}  // namespace

bool LoadLyrics(TCFileSystem& files, std::u16string_view songPath, TCSongLyrics& lyrics) {
  const std::optional<LyricFile> file = ReadLyricFile(files, songPath);
  if (!file && lyrics.HoldsNothing()) return false;  // of most songs

  TCLyricSheet sheet;
  sheet.headers = lyrics.Headers();
  if (file) FillSheet(*file, sheet);
  SetLineEnds(sheet);
  lyrics = TCSongLyrics(sheet);
  return file.has_value();
}

void ParseLyricLine(std::u16string_view line, TCLyricSheet& sheet) {
  const std::size_t tagEnd = FirstTagEnd(line);
  if (tagEnd == kNone) return;
  const std::u16string_view tag = TagIn(line, tagEnd);
  if (TakeHeader(tag, sheet)) return;

  const std::u16string_view text = TextBehindTags(line.substr(tagEnd + 1));
  sheet.Add({std::u16string(text), ParseLyricTime(tag), kEndOfLyrics, SingerOf(text)});
}

std::int32_t ParseLyricTime(std::u16string_view tag) {
  return TimeOf(tag);
}

}  // namespace brevant
