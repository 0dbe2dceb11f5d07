// A line of a dialog that says what is wanted: plain text, broken where it is too long, and read out as it
// stands. Shared by the text prompt and the larger dialogs.
#pragma once

#include <QLabel>
#include <string_view>

namespace brevant {

// At this width, in average characters, none of the program's own lines breaks.
constexpr int kPromptWidthInCharacters = 92;

// An empty text takes no room. The caller gives the label a parent.
[[nodiscard]] QLabel* MakePromptLine(const QString& name, std::u16string_view text);

}  // namespace brevant
