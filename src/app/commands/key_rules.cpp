#include "app/commands/key_rules.h"

namespace brevant {
namespace {

// A repeat's press follows its release within this many milliseconds.
constexpr unsigned long kRepeatGap = 1;

bool IsFunctionKey(int key) {
  return key >= Qt::Key_F1 && key <= Qt::Key_F35;
}

bool IsMediaKey(int key) {
  return (key >= Qt::Key_VolumeDown && key <= Qt::Key_VolumeUp) ||
         (key >= Qt::Key_MediaPlay && key <= Qt::Key_MediaTogglePlayPause);
}

TCKeyVerdict DecideWhileTyping(const TCKeyPress& press) {
  if (IsFunctionKey(press.key) || IsMediaKey(press.key)) return TCKeyVerdict::Table;
  // Alt with a letter of the menu bar opens that menu from everywhere.
  if (press.modifiers.testFlag(Qt::AltModifier) && !press.bound) return TCKeyVerdict::Untouched;
  return TCKeyVerdict::Widget;
}

TCKeyVerdict DecideOwner(const TCKeyPress& press) {
  switch (press.focus) {
    case TCKeyFocus::Menu:
      return press.bound ? TCKeyVerdict::Widget : TCKeyVerdict::Untouched;
    case TCKeyFocus::Typing:
      return DecideWhileTyping(press);
    case TCKeyFocus::Asking:
      return TCKeyVerdict::Widget;
    case TCKeyFocus::Ordinary:
      break;
  }
  if (press.widgetKeepsIt) return TCKeyVerdict::Widget;
  // What is no command's goes its usual way: Alt with a letter to the menu bar, Page Down to the list.
  return press.bound ? TCKeyVerdict::Table : TCKeyVerdict::Untouched;
}

}  // namespace

TCKeyVerdict DecideKey(const TCKeyPress& press) {
  const TCKeyVerdict owner = DecideOwner(press);
  // A widget that keeps a command's key does something of the kind with it: Enter in the tree plays a song.
  const bool actsOnTheShow =
      owner == TCKeyVerdict::Table || (owner == TCKeyVerdict::Widget && press.focus == TCKeyFocus::Ordinary);
  if (actsOnTheShow && press.bound && press.held && !press.commandRepeats) return TCKeyVerdict::Swallow;
  if (owner == TCKeyVerdict::Table) return owner;
  // The press has opened or closed a window, and its repeats mean nothing to the one that is there now: they
  // would be typed into a prompt, or press the button of a question.
  return press.heldFromElsewhere ? TCKeyVerdict::Swallow : owner;
}

void TCHeldKeys::Released(int key, unsigned long time) {
  releaseTimes[key] = time;
}

bool TCHeldKeys::IsHeld(int key, unsigned long time, bool autoRepeat) const {
  if (autoRepeat) return true;
  const auto released = releaseTimes.find(key);
  if (released == releaseTimes.end() || released->second == 0 || time < released->second) return false;
  return time - released->second <= kRepeatGap;
}

}  // namespace brevant
