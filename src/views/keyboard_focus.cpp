#include "views/keyboard_focus.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QLineEdit>

namespace brevant {

void GiveKeyboardTo(QWidget& widget) {
  const QWidget* active = QApplication::activeWindow();
  if (active != nullptr && active != widget.window() && QApplication::activeModalWidget() == nullptr) {
    widget.activateWindow();
  }
  widget.setFocus(Qt::OtherFocusReason);
}

bool IsSomebodyTyping() {
  const QWidget* focus = QApplication::focusWidget();
  const auto* line = qobject_cast<const QLineEdit*>(focus);
  const auto* field = qobject_cast<const QAbstractSpinBox*>(focus);  // times, too
  return (line != nullptr && !line->isReadOnly()) || (field != nullptr && !field->isReadOnly());
}

}  // namespace brevant
