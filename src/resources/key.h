// Keys as the command table names them, free of any toolkit. The frame turns them into shortcuts, the guide's
// key page into words.
#pragma once

#include <cstddef>
#include <initializer_list>
#include <string>

namespace brevant {

// The keys that the command table uses. Enter is the main key; whoever binds it binds the keypad's Enter with
// it, because toolkits take the two for different keys and a musician does not.
enum class TCKeyCode {
  None,
  // clang-format off
  A, B, C, D, E, F, G, H, I, J, K, L, M, N, O, P, Q, R, S, T, U, V, W, X, Y, Z,
  Digit2, Digit3,
  F1, F2, F3, F4, F5, F6, F7, F8, F9,
  // clang-format on
  Enter,
  Escape,
  Space,
  Backspace,
  Delete,
  Insert,
  Home,
  Left,
  Right,
  Up,
  Down,
  VolumeUp,    // the keyboard's own volume keys
  VolumeDown,  //
};

// No key of the table is held down with two of these.
enum class TCKeyModifier { None, Shift, Ctrl, Alt };

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

}  // namespace brevant
