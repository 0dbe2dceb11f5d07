// The program's pictures as icons: drawn when they are shown, at the size and in the text colour of the
// moment, so that they follow "White On Black" by themselves. Used for actions, rows, nodes and cursors.
#pragma once

#include <QCursor>
#include <QIcon>
#include <string_view>

namespace brevant {

// `name` as resources/icons/icon_names.h has it. An icon without a picture for an empty name.
[[nodiscard]] QIcon PictureIcon(std::string_view name);

// The picture of a cursor, as its file has it; pointing with kCursorTipX and kCursorTipY.
[[nodiscard]] QCursor PictureCursor(std::string_view name);

// In colours of its own, as a window or task list shows it.
[[nodiscard]] QIcon ProgramIcon();

}  // namespace brevant
