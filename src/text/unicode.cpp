#include "text/unicode.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstring>
#include <utility>

namespace brevant {

namespace {

constexpr char16_t kReplacement = u'\uFFFD';

// 0x80 to 0x9F; the rest of the code page is the same as Latin-1. Where it has no character the C1 control of
// the same number stands, as the platform's own conversion gives it.
constexpr std::array<char16_t, 32> kWindows1252 = {
    u'\u20AC', 0x0081,    u'\u201A', u'\u0192', u'\u201E', u'\u2026', u'\u2020', u'\u2021',
    u'\u02C6', u'\u2030', u'\u0160', u'\u2039', u'\u0152', 0x008D,    u'\u017D', 0x008F,
    0x0090,    u'\u2018', u'\u2019', u'\u201C', u'\u201D', u'\u2022', u'\u2013', u'\u2014',
    u'\u02DC', u'\u2122', u'\u0161', u'\u203A', u'\u0153', 0x009D,    u'\u017E', u'\u0178'};

// Where the ASCII that stands at `at` ends. Nearly all text that comes through here is ASCII, and there is
// much of it, so it is looked at in words.
std::size_t EndOfAscii(std::string_view bytes, std::size_t at) {
  for (std::uint64_t word = 0; at + sizeof word <= bytes.size(); at += sizeof word) {
    std::memcpy(&word, bytes.data() + at, sizeof word);
    if ((word & 0x8080808080808080U) != 0) break;
  }
  while (at < bytes.size() && static_cast<std::uint8_t>(bytes[at]) < 0x80) ++at;
  return at;
}

std::size_t EndOfAscii(std::u16string_view text, std::size_t at) {
  constexpr std::size_t kUnits = sizeof(std::uint64_t) / sizeof(char16_t);
  for (std::uint64_t word = 0; at + kUnits <= text.size(); at += kUnits) {
    std::memcpy(&word, text.data() + at, sizeof word);
    if ((word & 0xFF80FF80FF80FF80U) != 0) break;
  }
  while (at < text.size() && text[at] < 0x80) ++at;
  return at;
}

// What the first byte of a sequence says of it.
struct Sequence {
  std::size_t length = 0;  // in bytes; 0: the byte opens none
  std::uint32_t leadBits = 0;
  std::uint32_t least = 0;  // the least value that needs so many bytes
};

Sequence SequenceOf(std::uint8_t lead) {
  if ((lead & 0xE0) == 0xC0) return {2, lead & 0x1FU, 0x80};
  if ((lead & 0xF0) == 0xE0) return {3, lead & 0x0FU, 0x800};
  if ((lead & 0xF8) == 0xF0) return {4, lead & 0x07U, 0x10000};
  return {};
}

struct CodePoint {
  std::uint32_t value = 0;
  std::size_t length = 0;
};

// The sequence at the head of `bytes`, which is no ASCII.
std::optional<CodePoint> DecodeSequence(std::string_view bytes) {
  const Sequence sequence = SequenceOf(static_cast<std::uint8_t>(bytes.front()));
  if (sequence.length == 0 || sequence.length > bytes.size()) return std::nullopt;
  std::uint32_t value = sequence.leadBits;
  for (std::size_t next = 1; next < sequence.length; ++next) {
    const auto byte = static_cast<std::uint8_t>(bytes[next]);
    if ((byte & 0xC0) != 0x80) return std::nullopt;
    value = value << 6 | (byte & 0x3FU);
  }
  const bool surrogate = value >= 0xD800 && value <= 0xDFFF;
  const bool overlong = value < sequence.least;
  if (overlong || surrogate || value > 0x10FFFF) return std::nullopt;
  return CodePoint{value, sequence.length};
}

// Returns where the next unit goes.
std::size_t PutUtf16(std::u16string& text, std::size_t at, std::uint32_t codePoint) {
  if (codePoint < 0x10000) {
    text[at] = static_cast<char16_t>(codePoint);
    return at + 1;
  }
  text[at] = static_cast<char16_t>(0xD800 + ((codePoint - 0x10000) >> 10));
  text[at + 1] = static_cast<char16_t>(0xDC00 + ((codePoint - 0x10000) & 0x3FF));
  return at + 2;
}

void AppendCodePoint(std::string& bytes, std::uint32_t codePoint) {
  const auto put = [&bytes](std::uint32_t value) { bytes.push_back(static_cast<char>(value)); };
  if (codePoint < 0x80) {
    put(codePoint);
  } else if (codePoint < 0x800) {
    put(0xC0 | (codePoint >> 6));
    put(0x80 | (codePoint & 0x3F));
  } else if (codePoint < 0x10000) {
    put(0xE0 | (codePoint >> 12));
    put(0x80 | ((codePoint >> 6) & 0x3F));
    put(0x80 | (codePoint & 0x3F));
  } else {
    put(0xF0 | (codePoint >> 18));
    put(0x80 | ((codePoint >> 12) & 0x3F));
    put(0x80 | ((codePoint >> 6) & 0x3F));
    put(0x80 | (codePoint & 0x3F));
  }
}

}  // namespace

std::size_t FindLoneSurrogate(std::u16string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!IsHighSurrogate(text[at]) && !IsLowSurrogate(text[at])) continue;
    const bool pair = IsHighSurrogate(text[at]) && at + 1 < text.size() && IsLowSurrogate(text[at + 1]);
    if (!pair) return at;
    ++at;
  }
  return std::u16string_view::npos;
}

std::optional<std::u16string> DecodeUtf8(std::string_view bytes) {
  // No sequence is shorter than the units it becomes.
  std::u16string text(bytes.size(), u'\0');
  std::size_t length = 0;
  for (std::size_t at = 0; at < bytes.size();) {
    const std::size_t end = EndOfAscii(bytes, at);
    std::copy(bytes.begin() + static_cast<std::ptrdiff_t>(at),
              bytes.begin() + static_cast<std::ptrdiff_t>(end), text.data() + length);
    length += end - at;
    at = end;
    if (at == bytes.size()) break;
    const std::optional<CodePoint> next = DecodeSequence(bytes.substr(at));
    if (!next) return std::nullopt;
    length = PutUtf16(text, length, next->value);
    at += next->length;
  }
  text.resize(length);
  return text;
}

bool IsAscii(std::string_view bytes) {
  return EndOfAscii(bytes, 0) == bytes.size();
}

bool IsUtf8(std::string_view bytes) {
  for (std::size_t at = EndOfAscii(bytes, 0); at < bytes.size(); at = EndOfAscii(bytes, at)) {
    const std::optional<CodePoint> next = DecodeSequence(bytes.substr(at));
    if (!next) return false;
    at += next->length;
  }
  return true;
}

std::u16string DecodeWindows1252(std::string_view bytes) {
  std::u16string text;
  text.reserve(bytes.size());
  for (const char byte : bytes) {
    const auto value = static_cast<std::uint8_t>(byte);
    const bool differs = value >= 0x80 && value <= 0x9F;
    text.push_back(differs ? kWindows1252[value - 0x80U] : value);
  }
  return text;
}

std::u16string DecodeAnsi(std::string_view bytes) {
  if (std::optional<std::u16string> text = DecodeUtf8(bytes)) return *std::move(text);
  return DecodeWindows1252(bytes);
}

std::u16string DecodeUtf16(std::string_view bytes) {
  std::u16string text(bytes.size() / 2, u'\0');
  const char* from = bytes.data();
  for (char16_t& unit : text) {
    const auto low = static_cast<std::uint8_t>(*from++);
    const auto high = static_cast<std::uint8_t>(*from++);
    unit = static_cast<char16_t>(low | high << 8);
  }
  return text;
}

std::string EncodeUtf8(std::u16string_view text) {
  std::string bytes;
  AppendUtf8(bytes, text);
  return bytes;
}

void AppendUtf8(std::string& bytes, std::u16string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (const std::size_t end = EndOfAscii(text, at); end > at) {
      const std::size_t length = bytes.size();
      bytes.resize(length + end - at);
      std::transform(text.begin() + static_cast<std::ptrdiff_t>(at),
                     text.begin() + static_cast<std::ptrdiff_t>(end), bytes.data() + length,
                     [](char16_t unit) { return static_cast<char>(unit); });
      at = end;
      if (at == text.size()) break;
    }
    const char16_t unit = text[at];
    if (IsHighSurrogate(unit) && at + 1 < text.size() && IsLowSurrogate(text[at + 1])) {
      const std::uint32_t high = unit & 0x3FFU;
      const std::uint32_t low = text[++at] & 0x3FFU;
      AppendCodePoint(bytes, 0x10000 + (high << 10 | low));
    } else {
      AppendCodePoint(bytes, IsHighSurrogate(unit) || IsLowSurrogate(unit) ? kReplacement : unit);
    }
  }
}

}  // namespace brevant
