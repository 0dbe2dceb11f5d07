// The bars and keys as the user has them: what each bar holds, how the bars look, and which keys fire which
// command. At first all of it is as delivered. A plain value that the customise sheet edits, TCBarSet shows
// and the layout file keeps.
#pragma once

#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "resources/command_bars.h"
#include "resources/command_table.h"
#include "resources/key_assignment.h"

namespace brevant {

struct TCBarItem {
  enum class Kind {
    Command,  // a button, or a time field
    Separator,
    BuiltInMenu,  // one of the main menus on a button
    NewMenu,      // a menu of the user's own on a button
  };
  Kind kind = Kind::Separator;
  TCCommandId command = TCCommandId::None;  // of Command
  TCMenuPlace menu = TCMenuPlace::None;     // of BuiltInMenu
  std::u16string title;                     // of NewMenu
  std::vector<TCCommandId> entries;         // of NewMenu, each command once

  friend bool operator==(const TCBarItem&, const TCBarItem&) = default;
};

[[nodiscard]] TCBarItem CommandItem(TCCommandId command);
[[nodiscard]] TCBarItem MenuItem(TCMenuPlace builtInMenu);
[[nodiscard]] TCBarItem NewMenuItem(std::u16string title);

using TCBarItems = std::vector<TCBarItem>;

// What the command bar table lists.
[[nodiscard]] TCBarItems DeliveredItems(TCTextId bar);

struct TCBarLook {
  static constexpr int kIconSizes[] = {16, 24, 32, 48};

  int iconSize = 24;  // pixels, one of kIconSizes
  bool textsUnderIcons = false;
  bool toolTips = true;
  bool keysInToolTips = true;

  friend bool operator==(const TCBarLook&, const TCBarLook&) = default;
};

struct TCCustomisedBars {
  TCKeyAssignment keys;
  TCBarLook look;
  std::map<TCTextId, TCBarItems> changedBars;  // the bars that are not as delivered

  [[nodiscard]] TCBarItems ItemsOf(TCTextId bar) const;
  void SetItems(TCTextId bar, TCBarItems items);

  // Puts the item in front of the one at `place`, or behind all. A bar shows a command or built-in menu once,
  // so one that is there already moves; a time field leaves the bar that it was on.
  void Insert(TCTextId bar, std::size_t place, TCBarItem item);

  friend bool operator==(const TCCustomisedBars&, const TCCustomisedBars&) = default;
};

// One line for each item, as the layout file keeps it: "32772", "-", "menu &File", "new 32772,32773 My menu".
[[nodiscard]] std::u16string ItemText(const TCBarItem& item);
// Empty when the text is no item: another version wrote it, or somebody else.
[[nodiscard]] std::optional<TCBarItem> ItemOfText(std::u16string_view text);

}  // namespace brevant
