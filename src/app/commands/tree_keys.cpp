#include "app/commands/tree_keys.h"

namespace brevant {

bool TreeKeepsKey(int key, Qt::KeyboardModifiers modifiers, TCNodeKind selected) {
  const Qt::KeyboardModifiers held = modifiers & ~Qt::KeypadModifier;
  switch (key) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return held == Qt::NoModifier && (selected == TCNodeKind::Playlist || selected == TCNodeKind::Song);
    case Qt::Key_Up:
    case Qt::Key_Down:
      return held == Qt::NoModifier || held == Qt::ShiftModifier;
    case Qt::Key_Left:
    case Qt::Key_Right:
      return held == Qt::NoModifier;
    default:
      return false;
  }
}

}  // namespace brevant
