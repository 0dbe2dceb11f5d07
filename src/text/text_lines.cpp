#include "text/text_lines.h"

#include <algorithm>
#include <optional>

#include "text/unicode.h"

namespace brevant {

namespace {

constexpr char16_t kMark = u'\uFEFF';

enum class Marks { Drop, Keep };

// What lines are cut from: UTF-16 units or bytes.
template <class Char, Marks marks>
class Units {
 public:
  static constexpr bool kDropsMarks = marks == Marks::Drop;

  explicit Units(std::basic_string_view<Char> source) : text(source) {}
  [[nodiscard]] std::size_t size() const { return text.size(); }
  [[nodiscard]] Char operator[](std::size_t index) const { return text[index]; }
  [[nodiscard]] std::size_t FindReturn(std::size_t from) const {
    return std::min(text.find(Char{'\r'}, from), text.size());
  }
  [[nodiscard]] std::basic_string_view<Char> Slice(std::size_t begin, std::size_t end) const {
    return text.substr(begin, end - begin);
  }

 private:
  std::basic_string_view<Char> text;
};
using Utf16Units = Units<char16_t, Marks::Drop>;
using AnsiUnits = Units<char16_t, Marks::Keep>;
using Bytes = Units<char, Marks::Keep>;

// True when the unit behind every carriage return is a character of its own in UTF-8.
bool ReturnsSwallowAscii(const Bytes& bytes) {
  for (std::size_t at = bytes.FindReturn(0); at + 1 < bytes.size(); at = bytes.FindReturn(at + 2)) {
    if (static_cast<unsigned char>(bytes[at + 1]) >= 0x80) return false;
  }
  return true;
}

// How many lines a file holds is counted first: growing step by step would hold most lines twice for a while.
template <class Source>
std::size_t CountLines(const Source& units) {
  std::size_t lines = 0;
  for (std::size_t at = units.FindReturn(0); at < units.size(); at = units.FindReturn(at + 2)) ++lines;
  return std::max<std::size_t>(lines, 1);
}

template <class Source, class Visit>
void VisitLines(const Source& units, const Visit& visit) {
  [[maybe_unused]] bool atStart = true;  // no character but marks and line ends has been seen
  bool first = true;
  for (std::size_t at = 0; at < units.size(); at += 2) {  // the carriage return and the unit it swallows
    std::size_t begin = at;
    at = units.FindReturn(at);
    const bool finished = at < units.size();

    if constexpr (Source::kDropsMarks) {
      while (atStart && begin < at && units[begin] == kMark) ++begin;
      atStart = atStart && begin == at;
    }
    if (finished || (first && begin < at)) visit(units.Slice(begin, at));
    first = false;
  }
}

template <class Source>
TextLines SplitLines(const Source& units) {
  TextLines lines;
  lines.reserve(CountLines(units));
  VisitLines(units, [&lines](std::u16string_view line) { lines.emplace_back(line); });
  return lines;
}

}  // namespace

TextLines SplitUtf16Lines(std::string_view bytes) {
  const std::u16string text = DecodeUtf16(bytes);
  return SplitLines(Utf16Units(text));
}

TextLines SplitAnsiLines(std::string_view bytes) {
  const std::u16string text = DecodeAnsi(bytes);
  return SplitLines(AnsiUnits(text));
}

void VisitUtf16Lines(std::string_view bytes, const LineVisitor& visit) {
  const std::u16string text = DecodeUtf16(bytes);
  VisitLines(Utf16Units(text), visit);
}

void VisitAnsiLines(std::string_view bytes, const LineVisitor& visit) {
  const std::u16string text = DecodeAnsi(bytes);
  VisitLines(AnsiUnits(text), visit);
}

bool VisitUtf8Lines(std::string_view bytes, const ByteLineVisitor& visit) {
  const Bytes units(bytes);
  if (!IsUtf8(bytes) || !ReturnsSwallowAscii(units)) return false;
  VisitLines(units, visit);
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
