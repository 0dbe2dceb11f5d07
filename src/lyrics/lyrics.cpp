#include "lyrics/lyrics.h"

#include <algorithm>
#include <array>
#include <utility>

#include "lyrics/lyric_text.h"

namespace brevant {

namespace {

using HeaderField = std::u16string TCLyricHeaders::*;

// In the order in which the values stand in the packed text.
constexpr std::array<HeaderField, 9> kHeaderFields = {
    &TCLyricHeaders::artist,      &TCLyricHeaders::album,   &TCLyricHeaders::title,
    &TCLyricHeaders::songCreator, &TCLyricHeaders::length,  &TCLyricHeaders::lyricWriter,
    &TCLyricHeaders::editor,      &TCLyricHeaders::version, &TCLyricHeaders::offset,
};

// How a sheet is packed, all in one block: the number of lines; the header values; the lines, one behind the
// other. Numbers take as many bytes as they need, seven bits in each, the lowest first (LEB128); a text
// stands behind its length. A line says how far its start is from the end of the line before it, nearly
// always 0, how long it lasts, its text's length and singer in one number, and its text.

std::size_t SizeOfNumber(std::uint64_t number) {
  std::size_t size = 1;
  for (; number >= 0x80; number >>= 7) ++size;
  return size;
}

// Numbers near 0 become small ones whatever their sign.
std::uint64_t ZigZag(std::int64_t number) {
  const auto bits = static_cast<std::uint64_t>(number);
  return number < 0 ? ~(bits << 1) : bits << 1;
}

// Finds out how large a block becomes.
class TCRuler {
 public:
  void PutNumber(std::uint64_t number) { size += SizeOfNumber(number); }
  void PutText(std::string_view text) { size += text.size(); }

  [[nodiscard]] std::size_t Size() const { return size; }

 private:
  std::size_t size = 0;
};

// Fills a block of that size.
class TCWriter {
 public:
  explicit TCWriter(char* block) : at(block) {}

  void PutNumber(std::uint64_t number) {
    for (; number >= 0x80; number >>= 7) *at++ = static_cast<char>(0x80U | (number & 0x7FU));
    *at++ = static_cast<char>(number);
  }
  void PutText(std::string_view text) { at = std::copy(text.begin(), text.end(), at); }

 private:
  char* at;
};

class TCReader {
 public:
  explicit TCReader(const char* block) : at(block) {}

  std::uint64_t TakeNumber() {
    std::uint64_t number = 0;
    for (unsigned shift = 0;; shift += 7) {
      const auto byte = static_cast<std::uint8_t>(*at++);
      number |= static_cast<std::uint64_t>(byte & 0x7FU) << shift;
      if (byte < 0x80) return number;
    }
  }
  std::int64_t TakeSigned() {
    const std::uint64_t number = TakeNumber();
    return static_cast<std::int64_t>((number & 1U) != 0 ? ~(number >> 1) : number >> 1);
  }
  std::string_view TakeText(std::size_t length) {
    const std::string_view text(at, length);
    at += length;
    return text;
  }

 private:
  const char* at;
};

// Takes the lines of a block one after the other.
class TCLineReader {
 public:
  explicit TCLineReader(const char* block) : reader(block), left(reader.TakeNumber()) {
    for (std::size_t header = 0; header < kHeaderFields.size(); ++header)
      reader.TakeText(reader.TakeNumber());
  }

  // False behind the last line.
  bool Next() {
    if (left == 0) return false;
    --left;
    start = static_cast<std::int32_t>(end + reader.TakeSigned());
    end = static_cast<std::int32_t>(start + reader.TakeSigned());
    const std::uint64_t lengthAndSinger = reader.TakeNumber();
    singer = static_cast<std::int32_t>(lengthAndSinger & 3U);
    text = reader.TakeText(lengthAndSinger >> 2);
    return true;
  }

  [[nodiscard]] bool IsCurrentAt(std::int32_t timeMs) const { return start <= timeMs && timeMs < end; }
  [[nodiscard]] TCLyric Line() const { return {DecodeLyricText(text), start, end, singer}; }

 private:
  TCReader reader;
  std::uint64_t left = 0;
  std::int32_t start = 0;
  std::int32_t end = 0;
  std::int32_t singer = kNoSinger;
  std::string_view text;
};

using EncodedHeaders = std::array<std::string, kHeaderFields.size()>;

template <class Target>
void Pack(const TCLyricSheet& sheet, const EncodedHeaders& headers, Target& target) {
  target.PutNumber(sheet.lines.size());
  for (const std::string& header : headers) {
    target.PutNumber(header.size());
    target.PutText(header);
  }
  const std::string_view texts = sheet.text;
  std::size_t textBegin = 0;
  std::int64_t previousEnd = 0;
  for (const TCLyricSheet::Line& line : sheet.lines) {
    const bool known = line.singer >= kNoSinger && line.singer <= kSingerD;
    const std::size_t length = line.textEnd - textBegin;
    const auto singer = static_cast<std::uint64_t>(known ? line.singer : kNoSinger);
    target.PutNumber(ZigZag(line.start - previousEnd));
    target.PutNumber(ZigZag(std::int64_t{line.end} - line.start));
    target.PutNumber(std::uint64_t{length} << 2 | singer);
    target.PutText(texts.substr(textBegin, length));
    textBegin = line.textEnd;
    previousEnd = line.end;
  }
}

}  // namespace

void TCLyricSheet::Add(const TCLyric& line) {
  EncodeLyricText(text, line.text);
  lines.push_back({line.start, line.end, line.singer, text.size()});
}

void TCLyricSheet::Add(std::string_view utf8, std::int32_t start, std::int32_t end, std::int32_t singer) {
  text += utf8;
  lines.push_back({start, end, singer, text.size()});
}

TCSongLyrics::TCSongLyrics(const TCLyricSheet& sheet) {
  if (sheet.lines.empty() && sheet.headers == TCLyricHeaders()) return;
  EncodedHeaders headers;
  for (std::size_t header = 0; header < headers.size(); ++header) {
    EncodeLyricText(headers[header], sheet.headers.*kHeaderFields[header]);
  }
  TCRuler ruler;
  Pack(sheet, headers, ruler);
  const std::shared_ptr<char[]> block = std::make_shared<char[]>(ruler.Size());
  TCWriter writer(block.get());
  Pack(sheet, headers, writer);
  packed = block;
}

std::size_t TCSongLyrics::LineCount() const {
  return packed ? TCReader(packed.get()).TakeNumber() : 0;
}

std::vector<TCLyric> TCSongLyrics::LinesFrom(std::size_t first, std::size_t count) const {
  std::vector<TCLyric> lines;
  if (!packed) return lines;
  TCLineReader reader(packed.get());
  for (std::size_t index = 0; lines.size() < count && reader.Next(); ++index) {
    if (index >= first) lines.push_back(reader.Line());
  }
  return lines;
}

std::int32_t TCSongLyrics::FindLineAt(std::int32_t timeMs) const {
  if (!packed) return -1;
  TCLineReader reader(packed.get());
  for (std::int32_t index = 0; reader.Next(); ++index) {
    if (reader.IsCurrentAt(timeMs)) return index;
  }
  return -1;
}

TCLyricHeaders TCSongLyrics::Headers() const {
  TCLyricHeaders headers;
  if (!packed) return headers;
  TCReader reader(packed.get());
  reader.TakeNumber();  // of lines
  for (const HeaderField field : kHeaderFields) {
    headers.*field = DecodeLyricText(reader.TakeText(reader.TakeNumber()));
  }
  return headers;
}

bool operator==(const TCSongLyrics& a, const TCSongLyrics& b) {
  if (a.packed == b.packed) return true;
  if (a.LineCount() != b.LineCount() || a.Headers() != b.Headers()) return false;
  return a.LinesFrom(0, a.LineCount()) == b.LinesFrom(0, b.LineCount());
}

}  // namespace brevant
