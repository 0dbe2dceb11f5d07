#include "views/keyboard_focus.h"

#include <QApplication>

namespace brevant {

void GiveKeyboardTo(QWidget& widget) {
  const QWidget* active = QApplication::activeWindow();
  if (active != nullptr && active != widget.window() && QApplication::activeModalWidget() == nullptr) {
    widget.activateWindow();
  }
  widget.setFocus(Qt::OtherFocusReason);
}

}  // namespace brevant
