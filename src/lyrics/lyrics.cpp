#include "lyrics/lyrics.h"

#include <algorithm>
#include <array>
#include <cstring>
#include <string_view>

#include "text/unicode.h"

namespace brevant {

namespace {

using HeaderField = std::u16string TCLyricHeaders::*;

// The order in which the header values stand in the packed text.
enum Header : std::size_t {
  kArtist,
  kAlbum,
  kTitle,
  kSongCreator,
  kLength,
  kLyricWriter,
  kEditor,
  kVersion,
  kOffset,
  kHeaderCount
};

constexpr std::array<HeaderField, kHeaderCount> kHeaderFields = {
    &TCLyricHeaders::artist,      &TCLyricHeaders::album,   &TCLyricHeaders::title,
    &TCLyricHeaders::songCreator, &TCLyricHeaders::length,  &TCLyricHeaders::lyricWriter,
    &TCLyricHeaders::editor,      &TCLyricHeaders::version, &TCLyricHeaders::offset,
};

enum class Encoding : std::uint8_t { Utf8, Utf16 };

std::u16string Decode(std::string_view bytes, Encoding encoding) {
  if (encoding == Encoding::Utf8) return DecodeUtf8(bytes).value_or(std::u16string());
  std::u16string text(bytes.size() / sizeof(char16_t), u'\0');
  if (!text.empty()) std::memcpy(text.data(), bytes.data(), bytes.size());
  return text;
}

struct EncodedSize {
  std::size_t utf8 = 0;
  std::size_t utf16 = 0;
  bool lossless = true;  // as UTF-8

  void Add(std::u16string_view text) {
    utf16 += text.size() * sizeof(char16_t);
    std::size_t at = 0;
    while (at < text.size() && text[at] < 0x80) ++at;
    utf8 += at;
    for (; at < text.size(); ++at) {
      const char16_t unit = text[at];
      if ((unit & 0xF800) != 0xD800) {
        utf8 += unit < 0x80 ? 1 : unit < 0x800 ? 2 : 3;
        continue;
      }
      const bool pair = (unit & 0x0400) == 0 && at + 1 < text.size() && (text[at + 1] & 0xFC00) == 0xDC00;
      lossless = lossless && pair;
      utf8 += 4;
      ++at;
    }
  }
};

EncodedSize Measure(const TCLyricSheet& sheet) {
  EncodedSize size;
  for (const HeaderField field : kHeaderFields) size.Add(sheet.headers.*field);
  for (const TCLyric& line : sheet.lines) size.Add(line.text);
  return size;
}

}  // namespace

// One text for all header values and lines, and a record of twelve bytes a line. Each piece of the text
// begins where the one before it ended.
struct TCSongLyrics::Packed {
  struct Line {
    std::int32_t start = 0;
    std::int32_t end = 0;
    std::uint32_t textEnd : 30 = 0;
    std::uint32_t singer : 2 = 0;
  };

  explicit Packed(const TCLyricSheet& sheet) {
    // UTF-8 holds most lyrics in half the room. UTF-16 is taken where it is smaller, and where UTF-8 would
    // lose half a surrogate pair.
    const EncodedSize size = Measure(sheet);
    encoding = size.lossless && size.utf8 <= size.utf16 ? Encoding::Utf8 : Encoding::Utf16;
    text.reserve(std::min<std::size_t>(encoding == Encoding::Utf8 ? size.utf8 : size.utf16, kMaxTextBytes));
    for (std::size_t header = 0; header < kHeaderCount; ++header) {
      headerEnds[header] = Append(sheet.headers.*kHeaderFields[header]);
    }
    lines.reserve(sheet.lines.size());
    for (const TCLyric& line : sheet.lines) {
      Line& record = lines.emplace_back();
      record.start = line.start;
      record.end = line.end;
      record.textEnd = Append(line.text) & kMaxTextBytes;
      record.singer = line.singer < 0 || line.singer > 3 ? 0 : static_cast<std::uint32_t>(line.singer) & 3U;
    }
  }

  [[nodiscard]] std::u16string HeaderText(std::size_t header) const {
    return Piece(header == 0 ? 0 : headerEnds[header - 1], headerEnds[header]);
  }
  [[nodiscard]] std::u16string LineText(std::size_t index) const {
    return Piece(index == 0 ? headerEnds.back() : lines[index - 1].textEnd, lines[index].textEnd);
  }

  std::vector<Line> lines;

 private:
  // What 30 bits can address. A lyric file is far smaller; a text that would go past is left out.
  static constexpr std::uint32_t kMaxTextBytes = (std::uint32_t{1} << 30) - 1;

  std::uint32_t Append(std::u16string_view piece) {
    const std::size_t begin = text.size();
    if (encoding == Encoding::Utf8) {
      AppendUtf8(text, piece);
    } else {
      text.append(reinterpret_cast<const char*>(piece.data()), piece.size() * sizeof(char16_t));
    }
    if (text.size() > kMaxTextBytes) text.resize(begin);
    return static_cast<std::uint32_t>(text.size());
  }
  [[nodiscard]] std::u16string Piece(std::size_t begin, std::size_t end) const {
    return Decode(std::string_view(text).substr(begin, end - begin), encoding);
  }

  std::string text;
  std::array<std::uint32_t, kHeaderCount> headerEnds{};
  Encoding encoding = Encoding::Utf8;
};

TCSongLyrics::TCSongLyrics(const TCLyricSheet& sheet) {
  if (sheet.lines.empty() && sheet.headers == TCLyricHeaders()) return;
  packed = std::make_shared<const Packed>(sheet);
}

std::size_t TCSongLyrics::LineCount() const {
  return packed ? packed->lines.size() : 0;
}

TCLyric TCSongLyrics::LineAt(std::size_t index) const {
  if (index >= LineCount()) return {};
  const Packed::Line& line = packed->lines[index];
  return {packed->LineText(index), line.start, line.end, static_cast<std::int32_t>(line.singer)};
}

std::int32_t TCSongLyrics::FindLineAt(std::int32_t timeMs) const {
  for (std::size_t index = 0; index < LineCount(); ++index) {
    const Packed::Line& line = packed->lines[index];
    if (line.start <= timeMs && timeMs < line.end) return static_cast<std::int32_t>(index);
  }
  return -1;
}

std::u16string TCSongLyrics::HeaderAt(std::size_t header) const {
  return packed ? packed->HeaderText(header) : std::u16string();
}

std::u16string TCSongLyrics::Artist() const {
  return HeaderAt(kArtist);
}
std::u16string TCSongLyrics::Album() const {
  return HeaderAt(kAlbum);
}
std::u16string TCSongLyrics::Title() const {
  return HeaderAt(kTitle);
}
std::u16string TCSongLyrics::SongCreator() const {
  return HeaderAt(kSongCreator);
}
std::u16string TCSongLyrics::Length() const {
  return HeaderAt(kLength);
}
std::u16string TCSongLyrics::LyricWriter() const {
  return HeaderAt(kLyricWriter);
}
std::u16string TCSongLyrics::Editor() const {
  return HeaderAt(kEditor);
}
std::u16string TCSongLyrics::Version() const {
  return HeaderAt(kVersion);
}
std::u16string TCSongLyrics::Offset() const {
  return HeaderAt(kOffset);
}

TCLyricHeaders TCSongLyrics::Headers() const {
  TCLyricHeaders headers;
  for (std::size_t header = 0; header < kHeaderCount; ++header) {
    headers.*kHeaderFields[header] = HeaderAt(header);
  }
  return headers;
}

bool operator==(const TCSongLyrics& a, const TCSongLyrics& b) {
  if (a.packed == b.packed) return true;
  if (a.LineCount() != b.LineCount() || a.Headers() != b.Headers()) return false;
  for (std::size_t index = 0; index < a.LineCount(); ++index) {
    if (a.LineAt(index) != b.LineAt(index)) return false;
  }
  return true;
}

}  // namespace brevant
