// Taking menu texts apart: "Set Repeat Start Time\tZ" is a name and, behind the tab, a hint at the key; "&"
// stands before the letter that the menu is driven with. Which keys act is the command table's column of
// keys, and the hints differ from it in places. Used by the menus, the tool tips and the key page.
#pragma once

#include <string>
#include <string_view>

namespace brevant {

// What stands before the tab, the whole text without one. Blanks and "&" stay.
[[nodiscard]] std::u16string_view MenuTextWithoutHint(std::u16string_view menuText);

// The text without its "&" marks.
[[nodiscard]] std::u16string WithoutMnemonic(std::u16string_view text);

}  // namespace brevant
