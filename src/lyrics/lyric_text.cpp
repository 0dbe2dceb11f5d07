#include "lyrics/lyric_text.h"

#include <cstdint>
#include <optional>

#include "text/unicode.h"

namespace brevant {

namespace {

constexpr std::size_t kHalfLength = 3;

bool IsSurrogate(char16_t unit) {
  return (unit & 0xF800) == 0xD800;
}

// In valid UTF-8 no 0xED is followed by a byte from 0xA0 on.
std::size_t FindHalf(std::string_view bytes) {
  std::size_t at = bytes.find('\xED');
  while (at != std::string_view::npos && static_cast<std::uint8_t>(bytes[at + 1]) < 0xA0) {
    at = bytes.find('\xED', at + 1);
  }
  return at;
}

// Where the first half of a pair stands whose other half is missing; npos when there is none.
std::size_t FindLoneHalf(std::u16string_view text) {
  for (std::size_t at = 0; at < text.size(); ++at) {
    if (!IsSurrogate(text[at])) continue;
    const bool pair = text[at] < 0xDC00 && at + 1 < text.size() && (text[at + 1] & 0xFC00) == 0xDC00;
    if (!pair) return at;
    ++at;
  }
  return std::u16string_view::npos;
}

}  // namespace

void EncodeLyricText(std::string& bytes, std::u16string_view text) {
  while (true) {
    const std::size_t half = FindLoneHalf(text);
    AppendUtf8(bytes, text.substr(0, half));
    if (half == std::u16string_view::npos) return;
    const unsigned unit = text[half];
    bytes.push_back('\xED');
    bytes.push_back(static_cast<char>(0x80U | (unit >> 6 & 0x3FU)));
    bytes.push_back(static_cast<char>(0x80U | (unit & 0x3FU)));
    text.remove_prefix(half + 1);
  }
}

std::u16string DecodeLyricText(std::string_view bytes) {
  std::u16string text;
  while (true) {
    const std::size_t half = FindHalf(bytes);
    text += DecodeUtf8(bytes.substr(0, half)).value_or(std::u16string());
    if (half == std::string_view::npos) return text;
    const auto high = static_cast<unsigned>(bytes[half + 1]) & 0x3FU;
    const auto low = static_cast<unsigned>(bytes[half + 2]) & 0x3FU;
    text.push_back(static_cast<char16_t>(0xD000U | high << 6 | low));
    bytes.remove_prefix(half + kHalfLength);
  }
}

}  // namespace brevant
