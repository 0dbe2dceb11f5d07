// Which song was just played, which is up and which comes next, and the colours that say so.
#pragma once

#include <cstdint>

#include "model/set_list_store.h"
#include "model/settings.h"

namespace brevant {

inline constexpr TCRgb kNextColour = 0xFFBF00;
inline constexpr TCRgb kCurrentColour = 0x00FF00;
inline constexpr TCRgb kPreviousColour = 0xFF0000;

// The mark of `row` while `current` (0 or more) is the current song.
[[nodiscard]] TCPlayMark PlayMarkOf(std::int32_t row, std::int32_t current);

// The text colour of a row: its mark's while "DynamicPlayColours" is on, else the normal one.
[[nodiscard]] TCRgb RowTextColour(TCPlayMark mark, const TCSettings& settings);

// Sets the marks of the current playlist from the current song. False, and nothing changed, when the current
// position names no song.
bool UpdatePlayMarks(TCSetListStore& store);

}  // namespace brevant
