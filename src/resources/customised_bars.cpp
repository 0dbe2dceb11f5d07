#include "resources/customised_bars.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <utility>

namespace brevant {
namespace {

using Kind = TCBarItem::Kind;

constexpr std::u16string_view kSeparatorText = u"-";
constexpr std::u16string_view kMenuText = u"menu ";
constexpr std::u16string_view kNewMenuText = u"new ";

std::u16string NumberText(TCCommandId command) {
  const std::string digits = std::to_string(static_cast<int>(command));
  return {digits.begin(), digits.end()};
}

// None for what is no command's number.
TCCommandId CommandOfText(std::u16string_view text) {
  std::array<char, 8> digits{};
  if (text.empty() || text.size() > digits.size()) return TCCommandId::None;
  for (std::size_t i = 0; i < text.size(); ++i) {
    if (text[i] < u'0' || text[i] > u'9') return TCCommandId::None;
    digits[i] = static_cast<char>(text[i]);
  }
  int number = 0;
  std::from_chars(digits.data(), digits.data() + text.size(), number);
  const auto command = static_cast<TCCommandId>(number);
  return CommandById(command) != nullptr || IsTimeField(command) ? command : TCCommandId::None;
}

std::optional<TCBarItem> MenuOfText(std::u16string_view title) {
  for (const TCMenuPlace menu : MainMenus()) {
    if (MenuTitle(menu) == title) return MenuItem(menu);
  }
  return std::nullopt;
}

std::optional<TCBarItem> NewMenuOfText(std::u16string_view text) {
  const std::size_t blank = text.find(u' ');
  if (blank == std::u16string_view::npos) return std::nullopt;
  TCBarItem item = NewMenuItem(std::u16string(text.substr(blank + 1)));
  std::u16string_view numbers = text.substr(0, blank);
  while (!numbers.empty()) {
    const std::size_t comma = std::min(numbers.find(u','), numbers.size());
    const TCCommandId entry = CommandOfText(numbers.substr(0, comma));
    // A field for typing has no place in a menu.
    if (entry == TCCommandId::None || IsTimeField(entry)) return std::nullopt;
    if (std::ranges::find(item.entries, entry) == item.entries.end()) item.entries.push_back(entry);
    numbers.remove_prefix(std::min(comma + 1, numbers.size()));
  }
  return item;
}

// The one may be on a bar, or the other, but not both.
bool IsTheSame(const TCBarItem& a, const TCBarItem& b) {
  return a.kind == b.kind && (a.kind == Kind::Command || a.kind == Kind::BuiltInMenu) &&
         a.command == b.command && a.menu == b.menu;
}

}  // namespace

TCBarItem CommandItem(TCCommandId command) {
  TCBarItem item;
  item.kind = command == TCCommandId::None ? Kind::Separator : Kind::Command;
  item.command = command;
  return item;
}

TCBarItem MenuItem(TCMenuPlace builtInMenu) {
  TCBarItem item;
  item.kind = Kind::BuiltInMenu;
  item.menu = builtInMenu;
  return item;
}

TCBarItem NewMenuItem(std::u16string title) {
  TCBarItem item;
  item.kind = Kind::NewMenu;
  item.title = std::move(title);
  return item;
}

TCBarItems DeliveredItems(TCTextId bar) {
  TCBarItems items;
  for (const TCCommandBar& plan : CommandBars()) {
    if (plan.name != bar) continue;
    for (const TCCommandId item : plan.items) items.push_back(CommandItem(item));
  }
  return items;
}

TCBarItems TCCustomisedBars::ItemsOf(TCTextId bar) const {
  const auto changed = changedBars.find(bar);
  return changed == changedBars.end() ? DeliveredItems(bar) : changed->second;
}

void TCCustomisedBars::SetItems(TCTextId bar, TCBarItems items) {
  if (items == DeliveredItems(bar)) {
    changedBars.erase(bar);
  } else {
    changedBars[bar] = std::move(items);
  }
}

void TCCustomisedBars::Insert(TCTextId bar, std::size_t place, TCBarItem item) {
  if (item.kind == Kind::Command && IsTimeField(item.command)) {
    for (const TCCommandBar& other : CommandBars()) {
      TCBarItems items = ItemsOf(other.name);
      if (other.name == bar || std::ranges::count(items, item) == 0) continue;
      std::erase(items, item);
      SetItems(other.name, std::move(items));
    }
  }
  TCBarItems items = ItemsOf(bar);
  place = std::min(place, items.size());
  const auto there =
      std::ranges::find_if(items, [&item](const TCBarItem& other) { return IsTheSame(other, item); });
  if (there != items.end()) {
    if (static_cast<std::size_t>(there - items.begin()) < place) --place;
    items.erase(there);
  }
  items.insert(items.begin() + static_cast<std::ptrdiff_t>(place), std::move(item));
  SetItems(bar, std::move(items));
}

std::u16string ItemText(const TCBarItem& item) {
  switch (item.kind) {
    case Kind::Command:
      return NumberText(item.command);
    case Kind::Separator:
      return std::u16string(kSeparatorText);
    case Kind::BuiltInMenu:
      return std::u16string(kMenuText) + std::u16string(MenuTitle(item.menu));
    case Kind::NewMenu:
      break;
  }
  std::u16string entries;
  for (const TCCommandId entry : item.entries) entries += (entries.empty() ? u"" : u",") + NumberText(entry);
  return std::u16string(kNewMenuText) + entries + u" " + item.title;
}

std::optional<TCBarItem> ItemOfText(std::u16string_view text) {
  if (text == kSeparatorText) return TCBarItem();
  if (text.starts_with(kMenuText)) return MenuOfText(text.substr(kMenuText.size()));
  if (text.starts_with(kNewMenuText)) return NewMenuOfText(text.substr(kNewMenuText.size()));
  const TCCommandId command = CommandOfText(text);
  return command == TCCommandId::None ? std::nullopt : std::optional(CommandItem(command));
}

}  // namespace brevant
