// Which widget has the keyboard, across the windows of the program. User-interface thread only.
#pragma once

#include <QWidget>

namespace brevant {

// From another window of ours too, a floating pane. But never away from a dialog or from another program:
// playlists also change by themselves. Then it comes here as soon as the window has it again.
void GiveKeyboardTo(QWidget& widget);

}  // namespace brevant
