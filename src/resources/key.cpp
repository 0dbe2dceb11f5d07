#include "resources/key.h"

#include <algorithm>
#include <iterator>

namespace brevant {
namespace {

struct TCNamedModifier {
  TCKeyModifier modifier;
  std::u16string_view name;
};

// In the order in which they are written.
constexpr TCNamedModifier kModifiers[] = {
    {TCKeyModifier::Ctrl, u"Ctrl+"}, {TCKeyModifier::Alt, u"Alt+"}, {TCKeyModifier::Shift, u"Shift+"}};

struct TCNamedKey {
  TCKeyCode code;
  std::u16string_view name;
};

using Key = TCKeyCode;

// clang-format off
constexpr TCNamedKey kNamedKeys[] = {
    {Key::F1, u"F1"}, {Key::F2, u"F2"}, {Key::F3, u"F3"}, {Key::F4, u"F4"}, {Key::F5, u"F5"}, {Key::F6, u"F6"},
    {Key::F7, u"F7"}, {Key::F8, u"F8"}, {Key::F9, u"F9"}, {Key::F10, u"F10"}, {Key::F11, u"F11"},
    {Key::F12, u"F12"}, {Key::F13, u"F13"}, {Key::F14, u"F14"}, {Key::F15, u"F15"}, {Key::F16, u"F16"},
    {Key::F17, u"F17"}, {Key::F18, u"F18"}, {Key::F19, u"F19"}, {Key::F20, u"F20"}, {Key::F21, u"F21"},
    {Key::F22, u"F22"}, {Key::F23, u"F23"}, {Key::F24, u"F24"},
    {Key::Enter, u"Enter"}, {Key::Escape, u"Esc"}, {Key::Space, u"Space"}, {Key::Backspace, u"Backspace"},
    {Key::Delete, u"Delete"}, {Key::Insert, u"Insert"}, {Key::Home, u"Home"}, {Key::End, u"End"},
    {Key::PageUp, u"Page Up"}, {Key::PageDown, u"Page Down"},
    {Key::Left, u"Left"}, {Key::Right, u"Right"}, {Key::Up, u"Up"}, {Key::Down, u"Down"},
    {Key::Pause, u"Pause"}, {Key::Print, u"Print"}, {Key::Menu, u"Menu"},
    {Key::VolumeUp, u"Volume Up"}, {Key::VolumeDown, u"Volume Down"}, {Key::VolumeMute, u"Volume Mute"},
    {Key::MediaPlay, u"Media Play"}, {Key::MediaStop, u"Media Stop"},
    {Key::MediaPrevious, u"Media Previous"}, {Key::MediaNext, u"Media Next"},
    {Key::MediaPause, u"Media Pause"}, {Key::MediaPlayPause, u"Media Play/Pause"},
};
// clang-format on

constexpr TCKeyCode kFirstNamed = Key::F1;

std::u16string CodeName(TCKeyCode code) {
  if (code < kFirstNamed) return {static_cast<char16_t>(code)};
  const auto* named = std::ranges::find(kNamedKeys, code, &TCNamedKey::code);
  return named == std::end(kNamedKeys) ? std::u16string() : std::u16string(named->name);
}

TCKeyCode CodeOfName(std::u16string_view name) {
  if (name.size() == 1) return CharacterKey(name.front());
  const auto* named = std::ranges::find(kNamedKeys, name, &TCNamedKey::name);
  return named == std::end(kNamedKeys) ? Key::None : named->code;
}

}  // namespace

TCKeyCode CharacterKey(char16_t character) {
  constexpr char16_t kNoBreakSpace = 0xA0;
  const bool control = character <= u' ' || (character >= 0x7F && character <= kNoBreakSpace);
  const bool halfOfAPair = character >= 0xD800 && character <= 0xDFFF;
  if (control || halfOfAPair) return Key::None;
  const bool small = character >= u'a' && character <= u'z';
  return static_cast<TCKeyCode>(small ? character - u'a' + u'A' : character);
}

std::u16string KeyName(TCKey key) {
  if (key.code == TCKeyCode::None) return {};
  std::u16string name;
  for (const TCNamedModifier& named : kModifiers) {
    if (Holds(key.modifier, named.modifier)) name += named.name;
  }
  return name + CodeName(key.code);
}

std::optional<TCKey> KeyOfName(std::u16string_view name) {
  TCKey key;
  for (const TCNamedModifier& named : kModifiers) {
    if (!name.starts_with(named.name)) continue;
    key.modifier = key.modifier | named.modifier;
    name.remove_prefix(named.name.size());
  }
  key.code = CodeOfName(name);
  return key.code == Key::None ? std::nullopt : std::optional(key);
}

}  // namespace brevant
