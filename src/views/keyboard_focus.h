// Which widget has the keyboard, across the windows of the program. User-interface thread only.
#pragma once

#include <QWidget>

namespace brevant {

// From another window of ours too, a floating pane. But never away from a dialog or from another program:
// playlists also change by themselves. Then it comes here as soon as the window has it again.
void GiveKeyboardTo(QWidget& widget);

// A field has the keyboard that takes texts: a label that is edited in place, a time, what is searched for.
[[nodiscard]] bool IsSomebodyTyping();

}  // namespace brevant
