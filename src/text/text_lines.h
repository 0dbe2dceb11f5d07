// Text line files: the one way in which documents, playlists, group lists and lyrics are cut into lines.
// A carriage return ends a line and swallows the one unit after it, whatever it is; a lone line feed is text.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "text/file_system.h"

namespace brevant {

using TextLines = std::vector<std::u16string>;

// A file past this size is no text line file of ours and is refused like one that cannot be opened.
inline constexpr std::size_t kMaxTextFileBytes = std::size_t{256} << 20;

// UTF-16 little-endian. Byte order marks before the first character are dropped; an odd last byte is ignored.
// An unfinished last line is kept only when it is the only line.
[[nodiscard]] TextLines SplitUtf16Lines(std::string_view bytes);

// The 8-bit twin: the same line rules, but a byte order mark stays at the head of the first line.
[[nodiscard]] TextLines SplitAnsiLines(std::string_view bytes);

// The same lines one after the other, for readers that keep none of them. A line is valid during its call.
using LineVisitor = std::function<void(std::u16string_view)>;
void VisitUtf16Lines(std::string_view bytes, const LineVisitor& visit);
void VisitAnsiLines(std::string_view bytes, const LineVisitor& visit);

// The first of those lines; empty when there is none.
[[nodiscard]] std::optional<std::u16string> FirstUtf16Line(std::string_view bytes);

// The lines of VisitAnsiLines as they stand in the file, for a reader that has no need of UTF-16. False, and
// nothing visited, when the bytes are no UTF-8 or a carriage return swallows a part of a character.
using ByteLineVisitor = std::function<void(std::string_view)>;
[[nodiscard]] bool VisitUtf8Lines(std::string_view bytes, const ByteLineVisitor& visit);

// Every line followed by carriage return and line feed, UTF-16 little-endian, no byte order mark.
[[nodiscard]] std::string JoinUtf16Lines(const TextLines& lines);

// Empties `lines` and fills it from the file. False only when the file cannot be read; an empty file gives
// true and no lines.
[[nodiscard]] bool ReadTextLines(TCFileSystem& files, std::u16string_view path, TextLines& lines);
[[nodiscard]] bool ReadAnsiTextLines(TCFileSystem& files, std::u16string_view path, TextLines& lines);

// False when the file cannot be written, and also when `lines` is empty (the file is then left empty).
[[nodiscard]] bool WriteTextLines(TCFileSystem& files, std::u16string_view path, const TextLines& lines);

}  // namespace brevant
