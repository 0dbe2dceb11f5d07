#include "lyrics/lyric_text.h"

#include <cstdint>

#include "text/unicode.h"

namespace brevant {

namespace {

constexpr std::size_t kSurrogateBytes = 3;

// Where the first surrogate stands; npos when there is none. In valid UTF-8 no 0xED is followed by a byte
// from 0xA0 on.
std::size_t FindEncodedSurrogate(std::string_view bytes) {
  std::size_t at = bytes.find('\xED');
  while (at != std::string_view::npos && static_cast<std::uint8_t>(bytes[at + 1]) < 0xA0) {
    at = bytes.find('\xED', at + 1);
  }
  return at;
}

}  // namespace

void EncodeLyricText(std::string& bytes, std::u16string_view text) {
  while (true) {
    const std::size_t surrogate = FindLoneSurrogate(text);
    AppendUtf8(bytes, text.substr(0, surrogate));
    if (surrogate == std::u16string_view::npos) return;
    const unsigned unit = text[surrogate];
    bytes.push_back('\xED');
    bytes.push_back(static_cast<char>(0x80U | (unit >> 6 & 0x3FU)));
    bytes.push_back(static_cast<char>(0x80U | (unit & 0x3FU)));
    text.remove_prefix(surrogate + 1);
  }
}

std::u16string DecodeLyricText(std::string_view bytes) {
  std::u16string text;
  while (true) {
    const std::size_t surrogate = FindEncodedSurrogate(bytes);
    text += DecodeUtf8(bytes.substr(0, surrogate)).value_or(std::u16string());
    if (surrogate == std::string_view::npos) return text;
    const auto high = static_cast<unsigned>(bytes[surrogate + 1]) & 0x3FU;
    const auto low = static_cast<unsigned>(bytes[surrogate + 2]) & 0x3FU;
    text.push_back(static_cast<char16_t>(0xD000U | high << 6 | low));
    bytes.remove_prefix(surrogate + kSurrogateBytes);
  }
}

}  // namespace brevant
