#include "resources/key.h"

#include <string_view>

namespace brevant {
namespace {

std::u16string_view ModifierName(TCKeyModifier modifier) {
  switch (modifier) {
    case TCKeyModifier::None:
      return u"";
    case TCKeyModifier::Shift:
      return u"Shift+";
    case TCKeyModifier::Ctrl:
      return u"Ctrl+";
    case TCKeyModifier::Alt:
      return u"Alt+";
  }
  return u"";
}

std::u16string_view NamedKey(TCKeyCode code) {
  switch (code) {
    case TCKeyCode::Enter:
      return u"Enter";
    case TCKeyCode::Escape:
      return u"Esc";
    case TCKeyCode::Space:
      return u"Space";
    case TCKeyCode::Backspace:
      return u"Backspace";
    case TCKeyCode::Delete:
      return u"Delete";
    case TCKeyCode::Insert:
      return u"Insert";
    case TCKeyCode::Home:
      return u"Home";
    case TCKeyCode::Left:
      return u"Left";
    case TCKeyCode::Right:
      return u"Right";
    case TCKeyCode::Up:
      return u"Up";
    case TCKeyCode::Down:
      return u"Down";
    case TCKeyCode::VolumeUp:
      return u"Volume Up";
    case TCKeyCode::VolumeDown:
      return u"Volume Down";
    default:
      return u"";
  }
}

char16_t Counted(char16_t first, TCKeyCode code, TCKeyCode firstCode) {
  return static_cast<char16_t>(first + (static_cast<int>(code) - static_cast<int>(firstCode)));
}

std::u16string CodeName(TCKeyCode code) {
  if (code >= TCKeyCode::A && code <= TCKeyCode::Z) return {Counted(u'A', code, TCKeyCode::A)};
  if (code >= TCKeyCode::Digit2 && code <= TCKeyCode::Digit3) {
    return {Counted(u'2', code, TCKeyCode::Digit2)};
  }
  if (code >= TCKeyCode::F1 && code <= TCKeyCode::F9) return {u'F', Counted(u'1', code, TCKeyCode::F1)};
  return std::u16string(NamedKey(code));
}

}  // namespace

std::u16string KeyName(TCKey key) {
  if (key.code == TCKeyCode::None) return {};
  return std::u16string(ModifierName(key.modifier)) + CodeName(key.code);
}

}  // namespace brevant
