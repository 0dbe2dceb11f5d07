// One line of a document file: "group" "playlist" "path" time. Written exactly so, read more loosely.
#pragma once

#include <string>
#include <string_view>

#include "model/set_list.h"

namespace brevant {

// Views into the line they were cut from.
struct TCFlatLine {
  std::u16string_view group;
  std::u16string_view playlist;
  std::u16string_view path;
  std::u16string_view time;
};

// Never fails: what is missing is empty, and a text without its closing quote takes the whole rest.
[[nodiscard]] TCFlatLine ParseFlatLine(std::u16string_view line);

// The format knows no escape, so what would break the line is left out of its quoted texts: double quotes and
// carriage returns. The time is written as it is held.
[[nodiscard]] std::u16string FormatFlatLine(std::u16string_view group, std::u16string_view playlist,
                                            const TCPlayListItem& song);

// True when the line says no more than its four texts: parsed and written again nothing of it is lost.
[[nodiscard]] bool IsWholeFlatLine(std::u16string_view line);

}  // namespace brevant
