#include "views/keyboard_focus.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace brevant {

void GiveKeyboardTo(QWidget& widget) {
  const QWidget* active = QApplication::activeWindow();
  if (active != nullptr && active != widget.window() && QApplication::activeModalWidget() == nullptr) {
    widget.activateWindow();
  }
  widget.setFocus(Qt::OtherFocusReason);
}

bool TakesText(const QWidget* widget) {
  if (const auto* line = qobject_cast<const QLineEdit*>(widget)) return !line->isReadOnly();
  if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(widget)) return !spin->isReadOnly();
  if (const auto* combo = qobject_cast<const QComboBox*>(widget)) return combo->isEditable();
  if (const auto* plain = qobject_cast<const QPlainTextEdit*>(widget)) return !plain->isReadOnly();
  if (const auto* rich = qobject_cast<const QTextEdit*>(widget)) return !rich->isReadOnly();
  return false;
}

bool IsSomebodyTyping() {
  return TakesText(QApplication::focusWidget());
}

}  // namespace brevant
