// Who gets a key: the key table, the focused widget, or nobody. Pure functions; TCKeyFilter tells them what
// it sees and carries the answers out.
#pragma once

#include <qnamespace.h>
#include <map>

namespace brevant {

// What the keyboard is used for where the focus is.
enum class TCKeyFocus {
  Ordinary,  // lists, buttons, read-only text: the key table rules
  Typing,    // text is being entered
  Asking,    // a key is asked for, any key
  Menu,      // the menu bar is walked with the keys
};

struct TCKeyPress {
  int key = 0;  // Qt::Key
  Qt::KeyboardModifiers modifiers;
  TCKeyFocus focus = TCKeyFocus::Ordinary;
  bool widgetKeepsIt = false;      // the focused widget has claimed this very key
  bool bound = false;              // the key belongs to a command that exists
  bool held = false;               // the key is down already and this is the keyboard repeating it
  bool heldFromElsewhere = false;  // ... since it was pressed in another window
  bool commandRepeats = false;     // the command, or the widget in its place, may act again while it is held
};

enum class TCKeyVerdict {
  Untouched,  // nothing of ours: as if nobody had looked
  Widget,     // the focused widget has it; no command acts
  Table,      // the command acts, whatever the focused widget would have liked
  Swallow,    // nobody has it
};

[[nodiscard]] TCKeyVerdict DecideKey(const TCKeyPress& press);

// Tells a press from the repeats of a held key. The display server announces a repeat as a release and a
// press at the same moment, and the toolkit does not always recognise it; no finger is that fast.
class TCHeldKeys {
 public:
  // Times are the events' own, in milliseconds; 0 means unknown.
  void Released(int key, unsigned long time);
  [[nodiscard]] bool IsHeld(int key, unsigned long time, bool autoRepeat) const;

 private:
  std::map<int, unsigned long> releaseTimes;
};

}  // namespace brevant
