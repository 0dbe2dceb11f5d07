#include "model/flat_line.h"

#include "text/white_space.h"

namespace brevant {

namespace {

constexpr char16_t kQuote = u'"';
constexpr char16_t kReturn = u'\r';

void SkipPastQuote(std::u16string_view& rest) {
  const std::size_t quote = rest.find(kQuote);
  rest.remove_prefix(quote == std::u16string_view::npos ? rest.size() : quote + 1);
}

// Leaves the closing quote in `rest`.
std::u16string_view TakeUntilQuote(std::u16string_view& rest) {
  rest = TrimLeft(rest);
  const std::u16string_view taken = rest.substr(0, rest.find(kQuote));
  rest.remove_prefix(taken.size());
  return taken;
}

std::u16string_view TakeQuoted(std::u16string_view& rest) {
  SkipPastQuote(rest);
  const std::u16string_view taken = TakeUntilQuote(rest);
  SkipPastQuote(rest);
  return taken;
}

void AppendQuoted(std::u16string& line, std::u16string_view text) {
  line += kQuote;
  for (const char16_t unit : text) {
    if (unit != kQuote && unit != kReturn) line += unit;
  }
  line += kQuote;
  line += u' ';
}

std::u16string WithoutWhiteSpace(std::u16string_view text) {
  std::u16string result;
  for (const char16_t unit : text) {
    if (!IsWhiteSpace(unit)) result += unit;
  }
  return result;
}

}  // namespace

TCFlatLine ParseFlatLine(std::u16string_view line) {
  TCFlatLine parsed;
  std::u16string_view rest = line;
  parsed.group = TakeQuoted(rest);
  parsed.playlist = TakeQuoted(rest);
  parsed.path = TakeQuoted(rest);
  rest = TrimLeft(rest);
  parsed.time = rest.substr(0, rest.find_first_of(u" \t"));
  return parsed;
}

std::u16string FormatFlatLine(std::u16string_view group, std::u16string_view playlist,
                              const TCPlayListItem& song) {
  std::u16string line;
  line.reserve(group.size() + playlist.size() + song.folder.str().size() + song.fileName.size() +
               song.time.size() + 9);
  AppendQuoted(line, group);
  AppendQuoted(line, playlist);
  AppendQuoted(line, song.FullPath());
  line += song.time;
  return line;
}

bool IsWholeFlatLine(std::u16string_view line) {
  const TCFlatLine parsed = ParseFlatLine(line);
  std::u16string again;
  AppendQuoted(again, parsed.group);
  AppendQuoted(again, parsed.playlist);
  AppendQuoted(again, parsed.path);
  again += parsed.time;
  return WithoutWhiteSpace(again) == WithoutWhiteSpace(line);
}

}  // namespace brevant
