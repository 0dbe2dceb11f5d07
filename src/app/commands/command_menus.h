// The menu bar and the playlist's context menu, laid out as the command table says. A menu shows only what
// somebody carries out, and a menu without entries is not shown.
#pragma once

#include <QMenu>
#include <QMenuBar>

#include "app/commands/command_actions.h"
#include "resources/command_table.h"

namespace brevant {

void FillMenuBar(QMenuBar& bar, const TCCommandActions& actions);

// Its entries go by the context menu's own texts. `parent` owns it and receives its status tips.
[[nodiscard]] QMenu* MakeContextMenu(TCContextMenu which, const TCCommandActions& actions, QWidget& parent);

}  // namespace brevant
