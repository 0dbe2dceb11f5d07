// Keys as the toolkit names them, and back. Used by the actions, the key filter and the field that a key is
// pressed into.
#pragma once

#include <QKeySequence>
#include <QList>

#include "resources/key.h"

namespace brevant {

// Enter gives two sequences, the main key's and the keypad's; every other key one, no key none.
[[nodiscard]] QList<QKeySequence> ToQtKeys(TCKey key);

// The key of a press. None for what can be no command's: a modifier alone, Tab, which leads on to the next
// field, and everything with the desktop's own modifier.
[[nodiscard]] TCKey FromQtKey(int key, Qt::KeyboardModifiers modifiers);

}  // namespace brevant
