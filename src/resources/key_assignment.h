// Which key fires which command, as the user has it. At first the keys are the command table's; the customise
// sheet gives them to other commands. A plain value; no key ever belongs to two commands.
#pragma once

#include <vector>

#include "resources/command_table.h"

namespace brevant {

class TCKeyAssignment {
 public:
  // The delivered keys.
  TCKeyAssignment();

  [[nodiscard]] const std::vector<TCKeyBinding>& Bindings() const { return bindings; }
  // In the order in which they were given; none for a command without keys.
  [[nodiscard]] std::vector<TCKey> KeysOf(TCCommandId command) const;
  // None when the key is free.
  [[nodiscard]] TCCommandId CommandOf(TCKey key) const;

  // Gives the key to `command` and takes it away from whoever had it. Nothing for a key that opens a menu.
  void Assign(TCKey key, TCCommandId command);
  // The key is free afterwards.
  void Remove(TCKey key);

  // What differs from the delivered keys.
  struct TCChange {
    TCCommandId command = TCCommandId::None;
    std::vector<TCKey> keys;  // all that it has
    friend bool operator==(const TCChange&, const TCChange&) = default;
  };
  [[nodiscard]] std::vector<TCChange> Changes() const;
  // The delivered keys with these changes. A changed command has its keys before one that is not changed, so
  // that a key that a later version delivers takes nothing away from the user. Of two changes that name one
  // key, the first has it.
  [[nodiscard]] static TCKeyAssignment WithChanges(const std::vector<TCChange>& changes);

  friend bool operator==(const TCKeyAssignment& a, const TCKeyAssignment& b) {
    return a.Changes() == b.Changes();
  }

 private:
  std::vector<TCKeyBinding> bindings;  // every key once
};

// Alt with the letter of one of the main menus. It stays with the menu, which is the way back from every
// assignment: no command can have it.
[[nodiscard]] TCMenuPlace MenuOpenedBy(TCKey key);

// What giving a key to a command would mean.
struct TCKeyUse {
  enum class Kind {
    NoKey,      // nothing was pressed
    Free,       // nobody has it
    Own,        // the command has it already
    Taken,      // `owner` would lose it
    OpensMenu,  // it stays with `menu`
  };
  Kind kind = Kind::NoKey;
  TCCommandId owner = TCCommandId::None;
  TCMenuPlace menu = TCMenuPlace::None;
};
[[nodiscard]] TCKeyUse UseOf(const TCKeyAssignment& keys, TCKey key, TCCommandId command);

}  // namespace brevant
