// The command table's keys as the toolkit names them. Used by the actions and the key filter.
#pragma once

#include <QKeySequence>
#include <QList>

#include "resources/key.h"

namespace brevant {

// Enter gives two sequences, the main key's and the keypad's; every other key one, no key none.
[[nodiscard]] QList<QKeySequence> ToQtKeys(TCKey key);

}  // namespace brevant
