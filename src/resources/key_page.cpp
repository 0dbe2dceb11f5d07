#include "resources/key_page.h"

#include <string_view>

#include "resources/command_table.h"
#include "resources/menu_text.h"

namespace brevant {
namespace {

constexpr std::string_view kOpening =
    R"(# Commands and keys

All commands, menu by menu, with the keys that Brevant comes with. A command without a key is reached by the menus and
the [bars](bars.md). Two more have neither key nor place in these menus: Refresh Song Time is in the menu of the right mouse
button ([what it does](performing.md#stop-before-you-step)), and "Copy playlist into the playlist window", which shows the
playlist that is selected in the playlist manager, can be
[put on a key or a bar](bars.md#making-bars-and-keys-your-own).

The keys act whichever part of the window has the focus, with three exceptions. While you type into a field only the
F-keys and the keyboard's own volume keys act. While the playlist manager has the focus, it keeps the arrow keys, Shift+Up
and Shift+Down for itself, and Enter when a playlist or a song is selected. While the properties have it, they keep the
arrow keys, and Enter on "Title".

Volume, seeking, stepping through songs and playlists, and moves in the playlist manager repeat while the key is held.
Every other key acts once a press. Some menus, the third column here and the line at the bottom of the window hint at
other keys, too; the first column has the ones that act, until you
[give a command others](bars.md#making-bars-and-keys-your-own).

<!-- Written by brevant_key_table from the command table. Do not edit: run it again. -->
)";

constexpr std::string_view kClosing = R"(
"Enter" is the Enter key of the keypad as well.
)";

// Every text of the table is plain ASCII; a test holds that.
std::string Plain(std::u16string_view text) {
  return {text.begin(), text.end()};
}

// The volume keys stand with their twins.
std::string KeysOf(const TCCommand& command) {
  std::string keys;
  for (const TCKeyBinding& binding : EffectiveBindings()) {
    if (WordedTwin(binding.command) != command.id) continue;
    if (!keys.empty()) keys += ", ";
    keys += Plain(KeyName(binding.key));
  }
  return keys;
}

// Empty where the title would be the sentence of the next column.
std::string NameOf(const TCCommand& command) {
  const std::u16string title = CommandTitle(command);
  return command.menuText.empty() && title == StatusLine(command) ? std::string() : Plain(title);
}

bool DoesSomething(const TCCommand& command) {
  return command.owners != TCCommandOwner::None && !CommandTitle(command).empty();
}

std::string Cell(const std::string& text) {
  return text.empty() ? " |" : " " + text + " |";
}

std::string Row(const TCCommand& command, const std::string& way) {
  return "|" + Cell(KeysOf(command)) + Cell(way + NameOf(command)) + Cell(Plain(StatusLine(command))) + "\n";
}

std::string Section(const std::string& title, const std::string& rows) {
  return "\n## " + title + "\n\n| Key | Command | What it does |\n|---|---|---|\n" + rows;
}

std::string MenuName(TCMenuPlace place) {
  return Plain(WithoutMnemonic(MenuTitle(place)));
}

std::string RowsOfMenu(TCMenuPlace place, const std::string& way = {}) {
  std::string rows;
  for (const TCCommand* const command : CommandsInMenu(place)) rows += Row(*command, way);
  return rows;
}

std::string RowsWithoutAMenu() {
  std::string rows;
  for (const TCCommand& command : Commands()) {
    if (command.menu != TCMenuPlace::None || KeysOf(command).empty() || !DoesSomething(command)) continue;
    rows += Row(command, {});
  }
  return rows;
}

}  // namespace

std::string KeyPage() {
  std::string page(kOpening);
  for (const TCMenuPlace place : MainMenus()) {
    std::string rows = RowsOfMenu(place);
    if (place == TCMenuPlace::View) {
      rows += RowsOfMenu(TCMenuPlace::ViewToolbars, MenuName(TCMenuPlace::ViewToolbars) + " > ");
    }
    page += Section(MenuName(place), rows);
  }
  page += Section("Without a menu entry", RowsWithoutAMenu());
  page += kClosing;
  return page;
}

}  // namespace brevant
