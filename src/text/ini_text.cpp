#include "text/ini_text.h"

#include <algorithm>
#include <iterator>

#include "text/case_folding.h"
#include "text/unicode.h"
#include "text/white_space.h"

namespace brevant {

namespace {

constexpr std::size_t kNone = std::u16string_view::npos;

std::vector<std::u16string> SplitIniLines(std::u16string_view text) {
  std::vector<std::u16string> lines;
  while (!text.empty()) {
    const std::size_t end = std::min(text.find_first_of(u"\r\n"), text.size());
    lines.emplace_back(text.substr(0, end));
    text.remove_prefix(end);
    // Returns before a line feed are one line end with it; without one, each is one of its own.
    const std::size_t returns = std::min(text.find_first_not_of(u'\r'), text.size());
    text.remove_prefix(returns);
    if (text.starts_with(u'\n')) {
      text.remove_prefix(1);
    } else if (returns > 1) {
      lines.resize(lines.size() + returns - 1);
    }
  }
  return lines;
}

// The section's name when the line is a heading: from its '[' to the last ']', whatever follows.
std::optional<std::u16string_view> HeadingOf(std::u16string_view line) {
  line = Trim(line);
  const std::size_t end = line.rfind(u']');
  if (!line.starts_with(u'[') || end == kNone) return std::nullopt;
  return Trim(line.substr(1, end - 1));
}

// What stands before the first '='; the whole line without one.
std::u16string_view KeyOf(std::u16string_view line) {
  return Trim(line.substr(0, line.find(u'=')));
}

std::optional<std::u16string_view> ValueOf(std::u16string_view line) {
  const std::size_t equals = line.find(u'=');
  if (equals == kNone) return std::nullopt;
  line.remove_prefix(equals + 1);
  return Trim(line.substr(0, line.find(u'\0')));
}

bool IsQuoted(std::u16string_view value) {
  return value.size() >= 2 && value.front() == value.back() &&
         (value.front() == u'"' || value.front() == u'\'');
}

std::u16string_view WithoutQuotes(std::u16string_view value) {
  return IsQuoted(value) ? value.substr(1, value.size() - 2) : value;
}

std::u16string_view WithoutTrailingBlanks(std::u16string_view text) {
  return text.substr(0, text.find_last_not_of(u' ') + 1);
}

bool IsComment(std::u16string_view line) {
  return TrimLeft(line).starts_with(u';');
}

// The value of a digit in any base up to 16, or 16.
std::uint32_t DigitValue(char16_t unit) {
  if (unit >= u'0' && unit <= u'9') return unit - u'0';
  const char16_t lower = ToLower(unit);
  return lower >= u'a' && lower <= u'f' ? lower - u'a' + 10U : 16U;
}

}  // namespace

TCIniText TCIniText::Parse(std::string_view bytes) {
  const bool utf16 = bytes.starts_with("\xFF\xFE");
  TCIniText result;
  result.InsertText(0, utf16 ? DecodeUtf16(bytes) : DecodeAnsi(bytes));
  return result;
}

std::string TCIniText::Serialize() const {
  std::string bytes;
  for (const std::u16string& line : lines) bytes.append(EncodeUtf8(line)).append("\r\n");
  return bytes;
}

std::u16string TCIniText::GetString(std::u16string_view section, std::u16string_view key,
                                    std::u16string_view fallback) const {
  return std::u16string(WithoutQuotes(FindValue(section, key).value_or(WithoutTrailingBlanks(fallback))));
}

std::int32_t TCIniText::GetInt(std::u16string_view section, std::u16string_view key,
                               std::int32_t fallback) const {
  std::u16string_view text = WithoutQuotes(FindValue(section, key).value_or(std::u16string_view()));
  if (text.empty()) return fallback;

  text = TrimLeft(text);
  const bool negative = text.starts_with(u'-');
  if (negative || text.starts_with(u'+')) text.remove_prefix(1);
  std::uint32_t base = 10;
  if (text.starts_with(u"0x")) base = 16;
  if (text.starts_with(u"0o")) base = 8;
  if (text.starts_with(u"0b")) base = 2;
  if (base != 10) text.remove_prefix(2);

  std::uint32_t value = 0;
  for (const char16_t unit : text) {
    const std::uint32_t digit = DigitValue(unit);
    if (digit >= base) break;
    value = value * base + digit;
  }
  return static_cast<std::int32_t>(negative ? 0U - value : value);
}

void TCIniText::SetString(std::u16string_view section, std::u16string_view key, std::u16string_view value) {
  std::optional<Range> range = FindSection(section);
  if (!range) {
    InsertText(lines.size(), std::u16string(u"[").append(Trim(section)).append(u"]"));
    range = Range{lines.size(), lines.size()};
  }
  value = TrimLeft(value);
  if (const std::optional<std::size_t> line = FindKey(*range, key)) {
    const bool unchanged = ValueOf(lines[*line]) == value;
    if (unchanged) return;
    const std::u16string text = std::u16string(KeyOf(lines[*line])).append(u"=").append(value);
    lines.erase(lines.begin() + static_cast<std::ptrdiff_t>(*line));
    InsertText(*line, text);
    return;
  }
  std::size_t at = range->end;
  while (at > range->begin && Trim(lines[at - 1]).empty()) --at;
  InsertText(at, std::u16string(TrimLeft(key)).append(u"=").append(value));
}

std::u16string TCIniText::Protected(std::u16string text) {
  std::replace_if(
      text.begin(), text.end(), [](char16_t unit) { return unit == u'\r' || unit == u'\n'; }, u' ');
  const bool losesNothing = Trim(text).size() == text.size() && !IsQuoted(text);
  return losesNothing ? text : u'"' + text + u'"';
}

std::vector<std::u16string> TCIniText::Keys(std::u16string_view section) const {
  std::vector<std::u16string> keys;
  const Range range = FindSection(section).value_or(Range());
  for (std::size_t line = range.begin; line < range.end; ++line) {
    if (ValueOf(lines[line]) && !IsComment(lines[line])) keys.emplace_back(KeyOf(lines[line]));
  }
  return keys;
}

std::optional<TCIniText::Range> TCIniText::FindSection(std::u16string_view section) const {
  section = Trim(section);
  const auto isHeading = [](const std::u16string& line) { return HeadingOf(line).has_value(); };
  const auto isTheHeading = [section](const std::u16string& line) {
    const std::optional<std::u16string_view> name = HeadingOf(line);
    return name && EqualIgnoringCase(*name, section);
  };
  // The lines above the first heading are the first section, and the section without a name.
  auto begin = lines.begin();
  if (!section.empty()) {
    begin = std::find_if(begin, lines.end(), isTheHeading);
    if (begin == lines.end()) return std::nullopt;
    ++begin;
  }
  const auto end = std::find_if(begin, lines.end(), isHeading);
  return Range{static_cast<std::size_t>(begin - lines.begin()),
               static_cast<std::size_t>(end - lines.begin())};
}

std::optional<std::size_t> TCIniText::FindKey(Range range, std::u16string_view key) const {
  key = Trim(key);
  for (std::size_t line = range.begin; line < range.end; ++line) {
    const bool blank = Trim(lines[line]).empty();
    if (!blank && EqualIgnoringCase(KeyOf(lines[line]), key)) return line;
  }
  return std::nullopt;
}

std::optional<std::u16string_view> TCIniText::FindValue(std::u16string_view section,
                                                        std::u16string_view key) const {
  const std::optional<Range> range = FindSection(section);
  const std::optional<std::size_t> line = range ? FindKey(*range, key) : std::nullopt;
  return line ? ValueOf(lines[*line]) : std::nullopt;
}

void TCIniText::InsertText(std::size_t at, std::u16string_view text) {
  std::vector<std::u16string> added = SplitIniLines(text);
  lines.insert(lines.begin() + static_cast<std::ptrdiff_t>(at), std::make_move_iterator(added.begin()),
               std::make_move_iterator(added.end()));
  DropMarks();
}

void TCIniText::DropMarks() {
  if (!lines.empty()) lines.front().erase(0, lines.front().find_first_not_of(kByteOrderMark));
}

}  // namespace brevant
