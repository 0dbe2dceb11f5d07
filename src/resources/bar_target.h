// The places that hold items in the user's bars: a bar, or a menu of the user's own on a bar. What the
// customise sheet's page of commands does to them, as functions of the value.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "resources/customised_bars.h"

namespace brevant {

struct TCBarTarget {
  TCTextId bar = TCTextId::StandardToolbar;
  std::optional<std::size_t> menu;  // the place of the menu on the bar; empty for the bar itself

  friend bool operator==(const TCBarTarget&, const TCBarTarget&) = default;
};

// The tool bars in their order, each with its menus behind it.
[[nodiscard]] std::vector<TCBarTarget> BarTargets(const TCCustomisedBars& bars);

// What is there; a menu's entries are commands all. Nothing when there is no such menu.
[[nodiscard]] TCBarItems ItemsIn(const TCCustomisedBars& bars, const TCBarTarget& target);

// A menu takes commands alone, and no time field.
[[nodiscard]] bool Takes(const TCBarTarget& target, const TCBarItem& item);

// In front of the item at `place`, or behind all; what may be there once only moves. Nothing when the target
// does not take it.
void InsertInto(TCCustomisedBars& bars, const TCBarTarget& target, std::size_t place, const TCBarItem& item);
void RemoveFrom(TCCustomisedBars& bars, const TCBarTarget& target, std::size_t place);
// To where it stands in front of what is at `to` now, or behind all.
void MoveWithin(TCCustomisedBars& bars, const TCBarTarget& target, std::size_t from, std::size_t to);

// Nothing for a bar, whose name is fixed.
void RenameMenu(TCCustomisedBars& bars, const TCBarTarget& menu, std::u16string title);

}  // namespace brevant
