// Keys as the command table and the user's own key assignment name them, free of any toolkit. The frame turns
// them into shortcuts, the guide's key page into words.
#pragma once

#include <cstddef>
#include <cstdint>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

namespace brevant {

// A key that types a character has that character for its code, a letter in upper case; every other key has a
// number that is no character. Enter is the main key; whoever binds it binds the keypad's Enter with it,
// because toolkits take the two for different keys and a musician does not.
enum class TCKeyCode : std::uint32_t {
  None,
  Digit2 = u'2',
  Digit3,
  // clang-format off
  A = u'A', B, C, D, E, F, G, H, I, J, K, L, M, N, O, P, Q, R, S, T, U, V, W, X, Y, Z,
  F1 = 0x110000, F2, F3, F4, F5, F6, F7, F8, F9, F10, F11, F12, F13, F14, F15, F16, F17, F18, F19, F20, F21,
  F22, F23, F24,
  // clang-format on
  Enter,
  Escape,
  Space,
  Backspace,
  Delete,
  Insert,
  Home,
  End,
  PageUp,
  PageDown,
  Left,
  Right,
  Up,
  Down,
  Pause,
  Print,
  Menu,
  // The keyboard's own volume and player keys.
  VolumeUp,
  VolumeDown,
  VolumeMute,
  MediaPlay,
  MediaStop,
  MediaPrevious,
  MediaNext,
  MediaPause,
  MediaPlayPause,
};

// Held down with the key; several may be.
enum class TCKeyModifier : unsigned { None = 0, Shift = 1, Ctrl = 2, Alt = 4 };

[[nodiscard]] constexpr TCKeyModifier operator|(TCKeyModifier a, TCKeyModifier b) {
  return static_cast<TCKeyModifier>(static_cast<unsigned>(a) | static_cast<unsigned>(b));
}

[[nodiscard]] constexpr bool Holds(TCKeyModifier modifiers, TCKeyModifier one) {
  return (static_cast<unsigned>(modifiers) & static_cast<unsigned>(one)) != 0;
}

// The key that types this character; none for what no key types: a blank, which is Space, half of a pair, or
// a control character.
[[nodiscard]] TCKeyCode CharacterKey(char16_t character);

struct TCKey {
  constexpr TCKey() = default;
  constexpr TCKey(TCKeyCode keyCode, TCKeyModifier keyModifier = TCKeyModifier::None)
      : code(keyCode), modifier(keyModifier) {}

  friend constexpr bool operator==(const TCKey&, const TCKey&) = default;

  TCKeyCode code = TCKeyCode::None;
  TCKeyModifier modifier = TCKeyModifier::None;
};

[[nodiscard]] constexpr TCKey Shift(TCKeyCode code) {
  return {code, TCKeyModifier::Shift};
}
[[nodiscard]] constexpr TCKey Ctrl(TCKeyCode code) {
  return {code, TCKeyModifier::Ctrl};
}
[[nodiscard]] constexpr TCKey Alt(TCKeyCode code) {
  return {code, TCKeyModifier::Alt};
}

// The keys of one command: none, or up to three. Asking for more does not compile where the table is
// constant.
class TCKeyList {
 public:
  static constexpr std::size_t kCapacity = 3;

  constexpr TCKeyList() = default;
  constexpr TCKeyList(std::initializer_list<TCKey> keys) {
    for (const TCKey& key : keys) list[count++] = key;
  }

  [[nodiscard]] constexpr const TCKey* begin() const { return list; }
  [[nodiscard]] constexpr const TCKey* end() const { return list + count; }
  [[nodiscard]] constexpr std::size_t size() const { return count; }
  [[nodiscard]] constexpr bool empty() const { return count == 0; }

 private:
  TCKey list[kCapacity] = {};
  std::size_t count = 0;
};

// The key as a reader knows it: "Ctrl+G", "Enter", "Volume Up". Empty for no key.
[[nodiscard]] std::u16string KeyName(TCKey key);

// The key of such a name, to the letter but for a to z; empty when there is none.
[[nodiscard]] std::optional<TCKey> KeyOfName(std::u16string_view name);

}  // namespace brevant
