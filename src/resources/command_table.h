// The command table: every command once, with its menu text, keys, status text and owner. Menus, tool bars,
// shortcuts, tool tips, the guide's key page and tests are all built from it. Constant data; any thread.
#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "resources/command_id.h"
#include "resources/key.h"

namespace brevant {

// Where the main menu shows a command. ViewToolbars is a menu inside View, ahead of View's own entries.
enum class TCMenuPlace { None, File, Edit, Play, Commands, Options, View, ViewToolbars, Help };

// Who handles a command. Several owners of one command are asked in the order of the focus: the list or the
// tree while it has the focus, else the document.
enum class TCCommandOwner : unsigned {
  None = 0,
  Application = 1,
  Framework = 2,  // what every program with a document has: save, exit, show or hide the bars
  Document = 4,
  View = 8,  // the playlist
  Tree = 16,
  Frame = 32,
};

[[nodiscard]] constexpr TCCommandOwner operator|(TCCommandOwner a, TCCommandOwner b) {
  return static_cast<TCCommandOwner>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}

enum class TCCommandTrait {
  Plain,
  Checkable,  // shows a check mark while the option, pane or bar it stands for is on
  Repeats,    // acts again and again while its key is held; every other command acts once a press
};

struct TCCommand {
  TCCommandId id = TCCommandId::None;
  TCMenuPlace menu = TCMenuPlace::None;
  std::u16string_view menuText;    // with "&" and, behind a tab, the key hint; empty for keys and bars alone
  TCKeyList keys;                  // a key that an earlier command has too is listed all the same
  std::u16string_view statusText;  // a line break separates the tool tip; empty when there is none
  TCCommandOwner owners = TCCommandOwner::None;
  TCCommandTrait trait = TCCommandTrait::Plain;
};

[[nodiscard]] std::span<const TCCommand> Commands();

// Null when the table has no such command, as for the time fields.
[[nodiscard]] const TCCommand* CommandById(TCCommandId id);

[[nodiscard]] constexpr bool HasOwner(const TCCommand& command, TCCommandOwner owner) {
  return (static_cast<unsigned>(command.owners) & static_cast<unsigned>(owner)) != 0;
}

// The keyboard's volume keys are commands of their own, without a word: this is the command with words that
// does the same. Any other command is its own.
[[nodiscard]] TCCommandId WordedTwin(TCCommandId id);

// What the command is called outside the menus: the menu text without mark, key hint and blanks behind it,
// else the tool tip; "Increase Volume (volume key)" for a volume key. Empty for a command without a text.
[[nodiscard]] std::u16string CommandTitle(const TCCommand& command);

// The line for the status bar while the command is pointed at.
[[nodiscard]] std::u16string_view StatusLine(const TCCommand& command);

// What follows the line break of the status text, else the status text, else the title.
[[nodiscard]] std::u16string ToolTip(const TCCommand& command);

// The main menu.

// In their order; ViewToolbars, being inside View, is not among them.
[[nodiscard]] std::span<const TCMenuPlace> MainMenus();

// "&File": the letters are fixed so that no menu takes Alt+L or Alt+R from the key table.
[[nodiscard]] std::u16string_view MenuTitle(TCMenuPlace place);

// The entries of one menu from top to bottom.
[[nodiscard]] std::vector<const TCCommand*> CommandsInMenu(TCMenuPlace place);

// Whether the main menu draws a line above the command: it and those below it, down to the next line, belong
// together.
[[nodiscard]] bool BeginsMenuGroup(TCCommandId id);

// The context menus.

enum class TCContextMenu : int {
  Tree = 4001,      // over the playlist manager
  Playlist = 4002,  // over the playlist
};

struct TCMenuItem {
  TCCommandId id = TCCommandId::None;  // None: a separator
  std::u16string_view text;            // some entries are named differently than in the main menu
};

[[nodiscard]] std::vector<TCMenuItem> ContextMenu(TCContextMenu menu);

// The keys.

struct TCKeyBinding {
  TCKey key;
  TCCommandId command = TCCommandId::None;
};

// Every key once, in the table's order. Where two commands list one key the first has it: toolkits fire
// neither of two shortcuts that are the same.
[[nodiscard]] std::vector<TCKeyBinding> EffectiveBindings();

}  // namespace brevant
