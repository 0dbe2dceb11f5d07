// Which picture belongs to which command, row, tree node and cursor. The pictures are SVG files of one
// colour, compiled into the program by the target brevant_icons; whoever shows one loads IconResource(name).
#pragma once

#include <string>
#include <string_view>

#include "resources/command_id.h"

namespace brevant {

// The one colour that the pictures are drawn in, as it stands in their files. Replacing this text by another
// colour before the file is rendered gives the picture for a dark bar, a disabled button and so on. Cursors
// have a white rim as well and are shown as they are.
inline constexpr std::string_view kIconColour = "#1f2328";

// 24 x 24. Empty for a command that is shown without a picture.
[[nodiscard]] std::string_view IconName(TCCommandId id);

// The picture in front of every row of the playlist, 24 x 24.
inline constexpr std::string_view kRowIcon = "row_song";

// On the button behind a bar that is too narrow for all of its own, 24 x 24.
inline constexpr std::string_view kBarMoreIcon = "bar_more";

// On the buttons in a pane's title, 24 x 24: it becomes a window of its own, and it goes.
inline constexpr std::string_view kPaneFloatIcon = "pane_float";
inline constexpr std::string_view kPaneCloseIcon = "pane_close";

// Beside the volume in the player pane, 24 x 24. Its buttons have the pictures of their commands.
inline constexpr std::string_view kVolumeIcon = "volume";

// The tree's pictures, 23 x 19, by image number: group, playlist and song, each plain and then selected.
inline constexpr std::string_view kTreeIcons[] = {"tree_group",    "tree_group_selected",
                                                  "tree_playlist", "tree_playlist_selected",
                                                  "tree_song",     "tree_song_selected"};

// The cursors of the playlist and the tree, 32 x 32. All point with the tip of the same arrow.
inline constexpr std::string_view kPressedCursor = "cursor_pressed";
inline constexpr std::string_view kRowCursor = "cursor_row";
inline constexpr std::string_view kDragCursor = "cursor_drag";
inline constexpr std::string_view kBusyCursor = "cursor_busy";
inline constexpr int kCursorTipX = 3;
inline constexpr int kCursorTipY = 2;

// The program's own picture, in colours of its own.
inline constexpr std::string_view kProgramIcon = "brevant";

// ":/icons/NAME.svg", where the target brevant_icons puts the picture.
[[nodiscard]] std::string IconResource(std::string_view name);

}  // namespace brevant
