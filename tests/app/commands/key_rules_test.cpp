#include "app/commands/key_rules.h"

#include <gtest/gtest.h>

#include <string_view>

namespace brevant {
namespace {

struct TCCase {
  std::string_view what;
  TCKeyPress press;
  TCKeyVerdict verdict;
};

TCKeyPress Press(int key, Qt::KeyboardModifiers modifiers, TCKeyFocus focus, bool bound) {
  TCKeyPress press;
  press.key = key;
  press.modifiers = modifiers;
  press.focus = focus;
  press.bound = bound;
  return press;
}

TCKeyPress Bound(int key, TCKeyFocus focus, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  return Press(key, modifiers, focus, true);
}

TCKeyPress Unbound(int key, TCKeyFocus focus, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
  return Press(key, modifiers, focus, false);
}

TCKeyPress Held(TCKeyPress press, bool commandRepeats) {
  press.held = true;
  press.commandRepeats = commandRepeats;
  return press;
}

TCKeyPress HeldFromElsewhere(TCKeyPress press, bool commandRepeats = false) {
  press.heldFromElsewhere = true;
  return Held(press, commandRepeats);
}

TCKeyPress Kept(TCKeyPress press) {
  press.widgetKeepsIt = true;
  return press;
}

TEST(KeyRules, SayWhoHasAKey) {
  constexpr TCKeyFocus kOrdinary = TCKeyFocus::Ordinary;
  constexpr TCKeyFocus kTyping = TCKeyFocus::Typing;
  constexpr TCKeyFocus kAsking = TCKeyFocus::Asking;
  constexpr TCKeyFocus kMenu = TCKeyFocus::Menu;
  const TCCase cases[] = {
      {"a list's arrow", Bound(Qt::Key_Down, kOrdinary), TCKeyVerdict::Table},
      {"a list's Enter", Bound(Qt::Key_Return, kOrdinary), TCKeyVerdict::Table},
      {"a button's Space", Bound(Qt::Key_Space, kOrdinary), TCKeyVerdict::Table},
      {"a letter", Bound(Qt::Key_P, kOrdinary), TCKeyVerdict::Table},
      {"read-only text's copy", Bound(Qt::Key_C, kOrdinary, Qt::ControlModifier), TCKeyVerdict::Table},
      {"a key of no command", Unbound(Qt::Key_PageDown, kOrdinary), TCKeyVerdict::Untouched},
      {"Alt alone", Unbound(Qt::Key_Alt, kOrdinary, Qt::AltModifier), TCKeyVerdict::Untouched},
      {"an arrow that the tree keeps", Kept(Bound(Qt::Key_Down, kOrdinary)), TCKeyVerdict::Widget},
      {"Enter that the tree keeps, held", Kept(Held(Bound(Qt::Key_Return, kOrdinary), false)),
       TCKeyVerdict::Swallow},
      {"an arrow that the tree keeps, held", Kept(Held(Bound(Qt::Key_Down, kOrdinary), true)),
       TCKeyVerdict::Widget},
      {"a key of no command that the tree keeps, held",
       Kept(Held(Unbound(Qt::Key_Down, kOrdinary, Qt::ShiftModifier), false)), TCKeyVerdict::Widget},

      {"a letter being typed", Bound(Qt::Key_P, kTyping), TCKeyVerdict::Widget},
      {"a blank being typed", Bound(Qt::Key_Space, kTyping), TCKeyVerdict::Widget},
      {"Enter that ends the typing", Bound(Qt::Key_Return, kTyping), TCKeyVerdict::Widget},
      {"keypad Enter that ends the typing", Bound(Qt::Key_Enter, kTyping, Qt::KeypadModifier),
       TCKeyVerdict::Widget},
      {"an arrow in the text", Bound(Qt::Key_Up, kTyping), TCKeyVerdict::Widget},
      {"Esc that gives up the typing", Bound(Qt::Key_Escape, kTyping), TCKeyVerdict::Widget},
      {"a Ctrl key of the table", Bound(Qt::Key_K, kTyping, Qt::ControlModifier), TCKeyVerdict::Widget},
      {"a Ctrl key of the editor", Unbound(Qt::Key_Z, kTyping, Qt::ControlModifier), TCKeyVerdict::Widget},
      {"an Alt key of the table", Bound(Qt::Key_L, kTyping, Qt::AltModifier), TCKeyVerdict::Widget},
      {"a menu's letter", Unbound(Qt::Key_F, kTyping, Qt::AltModifier), TCKeyVerdict::Untouched},
      {"an F-key", Bound(Qt::Key_F5, kTyping), TCKeyVerdict::Table},
      {"the volume key", Bound(Qt::Key_VolumeUp, kTyping), TCKeyVerdict::Table},
      {"the play key", Unbound(Qt::Key_MediaPlay, kTyping), TCKeyVerdict::Table},
      {"a letter held while typing", Held(Bound(Qt::Key_P, kTyping), false), TCKeyVerdict::Widget},

      {"a letter where a key is asked for", Bound(Qt::Key_P, kAsking), TCKeyVerdict::Widget},
      {"an F-key where a key is asked for", Bound(Qt::Key_F5, kAsking), TCKeyVerdict::Widget},
      {"the volume key where a key is asked for", Bound(Qt::Key_VolumeUp, kAsking), TCKeyVerdict::Widget},
      {"a menu's letter where a key is asked for", Unbound(Qt::Key_F, kAsking, Qt::AltModifier),
       TCKeyVerdict::Widget},
      {"a key held into where a key is asked for", HeldFromElsewhere(Bound(Qt::Key_F5, kAsking)),
       TCKeyVerdict::Swallow},

      {"an arrow in the menu bar", Bound(Qt::Key_Left, kMenu), TCKeyVerdict::Widget},
      {"Enter in the menu bar", Bound(Qt::Key_Return, kMenu), TCKeyVerdict::Widget},
      {"Tab in the menu bar", Unbound(Qt::Key_Tab, kMenu), TCKeyVerdict::Untouched},

      {"a held key that may repeat", Held(Bound(Qt::Key_Down, kOrdinary), true), TCKeyVerdict::Table},
      {"a held key that acts once", Held(Bound(Qt::Key_Space, kOrdinary), false), TCKeyVerdict::Swallow},
      {"a held F-key that acts once, while typing", Held(Bound(Qt::Key_F5, kTyping), false),
       TCKeyVerdict::Swallow},
      {"a held key of no command", Held(Unbound(Qt::Key_PageDown, kOrdinary), false),
       TCKeyVerdict::Untouched},

      {"a letter that opened a prompt", HeldFromElsewhere(Bound(Qt::Key_O, kTyping)), TCKeyVerdict::Swallow},
      {"a letter of no command that opened a prompt", HeldFromElsewhere(Unbound(Qt::Key_Q, kTyping)),
       TCKeyVerdict::Swallow},
      {"Page Down that closed a prompt", HeldFromElsewhere(Unbound(Qt::Key_PageDown, kOrdinary)),
       TCKeyVerdict::Swallow},
      {"a volume key held into a prompt", HeldFromElsewhere(Bound(Qt::Key_F9, kTyping), true),
       TCKeyVerdict::Table},
      {"an F-key that acts once, held into a prompt", HeldFromElsewhere(Bound(Qt::Key_F5, kTyping)),
       TCKeyVerdict::Swallow},
  };
  for (const TCCase& each : cases) {
    EXPECT_EQ(static_cast<int>(DecideKey(each.press)), static_cast<int>(each.verdict)) << each.what;
  }
}

TEST(HeldKeys, TheToolkitsWordIsTaken) {
  EXPECT_TRUE(TCHeldKeys().IsHeld(Qt::Key_P, 5000, true));
}

TEST(HeldKeys, APressThatFollowsItsReleaseAtOnceIsARepeat) {
  TCHeldKeys keys;
  keys.Released(Qt::Key_P, 5000);
  EXPECT_TRUE(keys.IsHeld(Qt::Key_P, 5000, false));
  EXPECT_TRUE(keys.IsHeld(Qt::Key_P, 5001, false));
  EXPECT_FALSE(keys.IsHeld(Qt::Key_P, 5002, false));
}

TEST(HeldKeys, AnotherKeysReleaseIsNone) {
  TCHeldKeys keys;
  keys.Released(Qt::Key_S, 5000);
  EXPECT_FALSE(keys.IsHeld(Qt::Key_P, 5000, false));
}

TEST(HeldKeys, AnUnknownTimeTellsNothing) {
  TCHeldKeys keys;
  keys.Released(Qt::Key_P, 0);
  EXPECT_FALSE(keys.IsHeld(Qt::Key_P, 0, false));
}

TEST(HeldKeys, AClockThatStartedAnewTellsNothing) {
  TCHeldKeys keys;
  keys.Released(Qt::Key_P, 5000);
  EXPECT_FALSE(keys.IsHeld(Qt::Key_P, 4999, false));
}

}  // namespace
}  // namespace brevant
