// The command bars as data: the menu bar and the five tool bars with their buttons. The frame builds its bars
// from here, in this order.
#pragma once

#include <span>

#include "resources/command_id.h"
#include "resources/string_table.h"

namespace brevant {

enum class TCBarDock {
  TopEdge,
  RightOfPrevious,  // in the same row as the bar before it
  RightEdge,
};

struct TCCommandBar {
  TCTextId name = TCTextId::MainToolbar;
  TCBarDock dock = TCBarDock::TopEdge;
  // None: a separator. The menu bar has no items, its content is the main menu.
  std::span<const TCCommandId> items;
};

// The menu bar first.
[[nodiscard]] std::span<const TCCommandBar> CommandBars();

// True for the two ids of the play bar that are time fields and no buttons.
[[nodiscard]] bool IsTimeField(TCCommandId id);

}  // namespace brevant
