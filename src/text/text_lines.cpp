#include "text/text_lines.h"

#include <algorithm>
#include <optional>
#include <utility>

#include "text/unicode.h"

namespace brevant {

namespace {

enum class Marks { Drop, Keep };

template <class Char>
std::size_t FindReturn(std::basic_string_view<Char> text, std::size_t from) {
  return std::min(text.find(Char{'\r'}, from), text.size());
}

// Of UTF-16 units or of bytes: `visit` gets a view into `text`.
template <class Char, class Visit>
void VisitLines(std::basic_string_view<Char> text, Marks marks, const Visit& visit) {
  bool dropsMarks = marks == Marks::Drop;  // until a character but marks and line ends has been seen
  bool first = true;
  for (std::size_t at = 0; at < text.size(); at += 2) {  // the carriage return and the unit it swallows
    std::size_t begin = at;
    at = FindReturn(text, at);
    const bool finished = at < text.size();

    if (dropsMarks) {
      while (begin < at && std::char_traits<Char>::to_int_type(text[begin]) == kByteOrderMark) ++begin;
      dropsMarks = begin == at;
    }
    if (finished || (first && begin < at)) visit(text.substr(begin, at - begin));
    first = false;
  }
}

// How many lines a file holds is counted first: growing step by step would hold most lines twice for a while.
TextLines SplitLines(std::u16string_view text, Marks marks) {
  std::size_t count = 1;
  for (std::size_t at = FindReturn(text, 0); at < text.size(); at = FindReturn(text, at + 2)) ++count;
  TextLines lines;
  lines.reserve(count);
  VisitLines(text, marks, [&lines](std::u16string_view line) { lines.emplace_back(line); });
  return lines;
}

// True when the unit behind every carriage return is a character of its own in UTF-8.
bool ReturnsSwallowAscii(std::string_view bytes) {
  for (std::size_t at = FindReturn(bytes, 0); at + 1 < bytes.size(); at = FindReturn(bytes, at + 2)) {
    if (static_cast<unsigned char>(bytes[at + 1]) >= 0x80) return false;
  }
  return true;
}

}  // namespace

TextLines SplitUtf16Lines(std::string_view bytes) {
  return SplitLines(DecodeUtf16(bytes), Marks::Drop);
}

TextLines SplitAnsiLines(std::string_view bytes) {
  return SplitLines(DecodeAnsi(bytes), Marks::Keep);
}

void VisitUtf16Lines(std::string_view bytes, const LineVisitor& visit) {
  const std::u16string text = DecodeUtf16(bytes);
  VisitLines(std::u16string_view(text), Marks::Drop, visit);
}

void VisitAnsiLines(std::string_view bytes, const LineVisitor& visit) {
  const std::u16string text = DecodeAnsi(bytes);
  VisitLines(std::u16string_view(text), Marks::Keep, visit);
}

std::optional<std::u16string> FirstUtf16Line(std::string_view bytes) {
  std::size_t end = 0;
  while (end + 1 < bytes.size() && (bytes[end] != '\r' || bytes[end + 1] != '\0')) end += 2;
  TextLines lines = SplitUtf16Lines(bytes.substr(0, end + 2));
  if (lines.empty()) return std::nullopt;
  return std::move(lines.front());
}

bool VisitUtf8Lines(std::string_view bytes, const ByteLineVisitor& visit) {
  if (!IsAscii(bytes) && (!IsUtf8(bytes) || !ReturnsSwallowAscii(bytes))) return false;
  VisitLines(bytes, Marks::Keep, visit);
  return true;
}

std::string JoinUtf16Lines(const TextLines& lines) {
  std::size_t units = 0;
  for (const std::u16string& line : lines) units += line.size() + 2;

  std::string bytes(2 * units, '\0');
  std::size_t at = 0;
  const auto put = [&bytes, &at](std::u16string_view text) {
    for (const char16_t unit : text) {
      bytes[at++] = static_cast<char>(unit & 0xFF);
      bytes[at++] = static_cast<char>(unit >> 8);
    }
  };
  for (const std::u16string& line : lines) {
    put(line);
    put(u"\r\n");
  }
  return bytes;
}

bool ReadTextLines(TCFileSystem& files, std::u16string_view path, TextLines& lines) {
  lines.clear();
  const std::optional<std::string> bytes = files.ReadFile(path, kMaxTextFileBytes);
  if (bytes) lines = SplitUtf16Lines(*bytes);
  return bytes.has_value();
}

bool ReadAnsiTextLines(TCFileSystem& files, std::u16string_view path, TextLines& lines) {
  lines.clear();
  const std::optional<std::string> bytes = files.ReadFile(path, kMaxTextFileBytes);
  if (bytes) lines = SplitAnsiLines(*bytes);
  return bytes.has_value();
}

bool WriteTextLines(TCFileSystem& files, std::u16string_view path, const TextLines& lines) {
  return files.ReplaceFile(path, JoinUtf16Lines(lines)) && !lines.empty();
}

}  // namespace brevant
