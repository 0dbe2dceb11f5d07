// The keys that the playlist manager tree has for itself while it has the focus; all others are the table's.
#pragma once

#include <qnamespace.h>

#include "document/tree_presenter.h"

namespace brevant {

// Enter with a playlist or song selected, Shift+Up, Shift+Down and the four plain arrows.
[[nodiscard]] bool TreeKeepsKey(int key, Qt::KeyboardModifiers modifiers, TCNodeKind selected);

}  // namespace brevant
