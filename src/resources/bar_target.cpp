#include "resources/bar_target.h"

#include <algorithm>
#include <utility>

namespace brevant {
namespace {

using Kind = TCBarItem::Kind;

bool IsMenu(const TCBarItems& items, const TCBarTarget& target) {
  return target.menu && *target.menu < items.size() && items[*target.menu].kind == Kind::NewMenu;
}

void SetItemsIn(TCCustomisedBars& bars, const TCBarTarget& target, const TCBarItems& items) {
  if (!target.menu) {
    bars.SetItems(target.bar, items);
    return;
  }
  TCBarItems onBar = bars.ItemsOf(target.bar);
  if (!IsMenu(onBar, target)) return;
  TCBarItem& menu = onBar[*target.menu];
  menu.entries.clear();
  for (const TCBarItem& item : items) menu.entries.push_back(item.command);
  bars.SetItems(target.bar, std::move(onBar));
}

}  // namespace

std::vector<TCBarTarget> BarTargets(const TCCustomisedBars& bars) {
  std::vector<TCBarTarget> targets;
  for (const TCCommandBar& plan : CommandBars()) {
    if (plan.name == TCTextId::MainToolbar) continue;
    targets.push_back({plan.name, {}});
    const TCBarItems items = bars.ItemsOf(plan.name);
    for (std::size_t i = 0; i < items.size(); ++i) {
      if (items[i].kind == Kind::NewMenu) targets.push_back({plan.name, i});
    }
  }
  return targets;
}

TCBarItems ItemsIn(const TCCustomisedBars& bars, const TCBarTarget& target) {
  TCBarItems items = bars.ItemsOf(target.bar);
  if (!target.menu) return items;
  TCBarItems entries;
  if (IsMenu(items, target)) {
    for (const TCCommandId entry : items[*target.menu].entries) entries.push_back(CommandItem(entry));
  }
  return entries;
}

bool Takes(const TCBarTarget& target, const TCBarItem& item) {
  return !target.menu || (item.kind == Kind::Command && !IsTimeField(item.command));
}

void InsertInto(TCCustomisedBars& bars, const TCBarTarget& target, std::size_t place, const TCBarItem& item) {
  if (!Takes(target, item)) return;
  if (!target.menu) {
    bars.Insert(target.bar, place, item);
    return;
  }
  TCBarItems items = ItemsIn(bars, target);
  const auto there = std::ranges::find(items, item);
  if (there != items.end()) {
    MoveWithin(bars, target, static_cast<std::size_t>(there - items.begin()), place);
    return;
  }
  items.insert(items.begin() + static_cast<std::ptrdiff_t>(std::min(place, items.size())), item);
  SetItemsIn(bars, target, items);
}

void RemoveFrom(TCCustomisedBars& bars, const TCBarTarget& target, std::size_t place) {
  TCBarItems items = ItemsIn(bars, target);
  if (place >= items.size()) return;
  items.erase(items.begin() + static_cast<std::ptrdiff_t>(place));
  SetItemsIn(bars, target, items);
}

void MoveWithin(TCCustomisedBars& bars, const TCBarTarget& target, std::size_t from, std::size_t to) {
  TCBarItems items = ItemsIn(bars, target);
  if (from >= items.size()) return;
  const auto at = [&items](std::size_t place) { return items.begin() + static_cast<std::ptrdiff_t>(place); };
  to = std::min(to, items.size());
  if (from < to) {
    std::rotate(at(from), at(from + 1), at(to));
  } else {
    std::rotate(at(to), at(from), at(from + 1));
  }
  SetItemsIn(bars, target, items);
}

void RenameMenu(TCCustomisedBars& bars, const TCBarTarget& menu, std::u16string title) {
  TCBarItems items = bars.ItemsOf(menu.bar);
  if (!IsMenu(items, menu)) return;
  items[*menu.menu].title = std::move(title);
  bars.SetItems(menu.bar, std::move(items));
}

}  // namespace brevant
