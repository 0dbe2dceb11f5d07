#include "app/qt_keys.h"

namespace brevant {
namespace {

Qt::Key ToQtKey(TCKeyCode code) {
  const auto counted = [code](Qt::Key first, TCKeyCode firstCode) {
    return static_cast<Qt::Key>(first + (static_cast<int>(code) - static_cast<int>(firstCode)));
  };
  if (code >= TCKeyCode::A && code <= TCKeyCode::Z) return counted(Qt::Key_A, TCKeyCode::A);
  if (code >= TCKeyCode::F1 && code <= TCKeyCode::F9) return counted(Qt::Key_F1, TCKeyCode::F1);
  switch (code) {
    case TCKeyCode::Digit2:
      return Qt::Key_2;
    case TCKeyCode::Digit3:
      return Qt::Key_3;
    case TCKeyCode::Enter:
      return Qt::Key_Return;
    case TCKeyCode::Escape:
      return Qt::Key_Escape;
    case TCKeyCode::Space:
      return Qt::Key_Space;
    case TCKeyCode::Backspace:
      return Qt::Key_Backspace;
    case TCKeyCode::Delete:
      return Qt::Key_Delete;
    case TCKeyCode::Insert:
      return Qt::Key_Insert;
    case TCKeyCode::Home:
      return Qt::Key_Home;
    case TCKeyCode::Left:
      return Qt::Key_Left;
    case TCKeyCode::Right:
      return Qt::Key_Right;
    case TCKeyCode::Up:
      return Qt::Key_Up;
    case TCKeyCode::Down:
      return Qt::Key_Down;
    case TCKeyCode::VolumeUp:
      return Qt::Key_VolumeUp;
    case TCKeyCode::VolumeDown:
      return Qt::Key_VolumeDown;
    default:
      return Qt::Key_unknown;
  }
}

Qt::KeyboardModifiers ToQtModifiers(TCKeyModifier modifier) {
  switch (modifier) {
    case TCKeyModifier::None:
      return Qt::NoModifier;
    case TCKeyModifier::Shift:
      return Qt::ShiftModifier;
    case TCKeyModifier::Ctrl:
      return Qt::ControlModifier;
    case TCKeyModifier::Alt:
      return Qt::AltModifier;
  }
  return Qt::NoModifier;
}

}  // namespace

QList<QKeySequence> ToQtKeys(TCKey key) {
  const Qt::Key qtKey = ToQtKey(key.code);
  if (qtKey == Qt::Key_unknown) return {};
  const Qt::KeyboardModifiers modifiers = ToQtModifiers(key.modifier);
  QList<QKeySequence> sequences{QKeySequence(QKeyCombination(modifiers, qtKey))};
  if (key.code == TCKeyCode::Enter) {
    sequences.append(QKeySequence(QKeyCombination(modifiers, Qt::Key_Enter)));
  }
  return sequences;
}

}  // namespace brevant
