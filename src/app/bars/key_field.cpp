#include "app/bars/key_field.h"

#include <QKeyEvent>

#include "app/commands/qt_keys.h"
#include "views/text_conversion.h"

namespace brevant {

TCKeyField::TCKeyField(QWidget* parent) : QLineEdit(parent) {
  setPlaceholderText(QStringLiteral("Press a key"));
  setContextMenuPolicy(Qt::NoContextMenu);
  // An input method would keep keys to itself until a character is complete.
  setAttribute(Qt::WA_InputMethodEnabled, false);
}

void TCKeyField::SetKey(TCKey key) {
  pressed = key;
  setText(ToQString(KeyName(key)));
  Q_EMIT keyChanged();
}

bool TCKeyField::event(QEvent* event) {
  const QEvent::Type type = event->type();
  if (type != QEvent::ShortcutOverride && type != QEvent::KeyPress) return QLineEdit::event(event);
  const auto& key = static_cast<const QKeyEvent&>(*event);
  if (key.key() == Qt::Key_Tab || key.key() == Qt::Key_Backtab) return QLineEdit::event(event);
  event->accept();
  if (type == QEvent::KeyPress && !key.isAutoRepeat()) {
    const TCKey found = FromQtKey(key.key(), key.modifiers());
    // A modifier that goes down first is no key yet.
    if (found.code != TCKeyCode::None) SetKey(found);
  }
  return true;
}

}  // namespace brevant
