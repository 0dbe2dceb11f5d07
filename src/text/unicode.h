// Conversions between UTF-16 text and 8-bit bytes. 8-bit input that is valid UTF-8 as a whole is UTF-8, else
// Windows-1252 as a whole: nothing is guessed per line.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace brevant {

// Two of these, a high and a low one behind it, are one character past U+FFFF. Alone they are none, but the
// files that we read may hold one all the same.
[[nodiscard]] constexpr bool IsHighSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xD800;
}
[[nodiscard]] constexpr bool IsLowSurrogate(char16_t unit) {
  return (unit & 0xFC00) == 0xDC00;
}

// Where the first surrogate stands that is no half of a pair; npos when there is none.
[[nodiscard]] std::size_t FindLoneSurrogate(std::u16string_view text);

// What many files begin with, to say how they are encoded.
inline constexpr char16_t kByteOrderMark = u'\uFEFF';

// Empty when `bytes` is not valid UTF-8 (overlong forms, surrogates and values past U+10FFFF are invalid).
[[nodiscard]] std::optional<std::u16string> DecodeUtf8(std::string_view bytes);

[[nodiscard]] bool IsAscii(std::string_view bytes);

// Whether DecodeUtf8 would give something.
[[nodiscard]] bool IsUtf8(std::string_view bytes);

// Every byte is a character; the five bytes that the code page leaves open become U+0081 and so on.
[[nodiscard]] std::u16string DecodeWindows1252(std::string_view bytes);

// UTF-8 when the bytes are valid UTF-8, else Windows-1252. A byte order mark stays in the text.
[[nodiscard]] std::u16string DecodeAnsi(std::string_view bytes);

// Little-endian. A byte order mark stays in the text, an odd last byte is ignored.
[[nodiscard]] std::u16string DecodeUtf16(std::string_view bytes);

// A lone surrogate becomes U+FFFD.
[[nodiscard]] std::string EncodeUtf8(std::u16string_view text);
void AppendUtf8(std::string& bytes, std::u16string_view text);

}  // namespace brevant
