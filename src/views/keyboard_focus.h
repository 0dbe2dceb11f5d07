// Which widget has the keyboard, across the windows of the program. User-interface thread only.
#pragma once

#include <QWidget>

namespace brevant {

// From another window of ours too, a floating pane. But never away from a dialog or from another program:
// playlists also change by themselves. Then it comes here as soon as the window has it again.
void GiveKeyboardTo(QWidget& widget);

// A field that texts are typed into: a label that is edited in place, a time, what is searched for. Null is
// none.
[[nodiscard]] bool TakesText(const QWidget* widget);

// Such a field has the keyboard.
[[nodiscard]] bool IsSomebodyTyping();

}  // namespace brevant
