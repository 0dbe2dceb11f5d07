#include "app/commands/qt_keys.h"

#include <algorithm>
#include <iterator>

namespace brevant {
namespace {

struct TCQtKey {
  TCKeyCode code;
  Qt::Key key;
};

constexpr TCQtKey kNamedKeys[] = {
    {TCKeyCode::Enter, Qt::Key_Return},
    {TCKeyCode::Escape, Qt::Key_Escape},
    {TCKeyCode::Space, Qt::Key_Space},
    {TCKeyCode::Backspace, Qt::Key_Backspace},
    {TCKeyCode::Delete, Qt::Key_Delete},
    {TCKeyCode::Insert, Qt::Key_Insert},
    {TCKeyCode::Home, Qt::Key_Home},
    {TCKeyCode::End, Qt::Key_End},
    {TCKeyCode::PageUp, Qt::Key_PageUp},
    {TCKeyCode::PageDown, Qt::Key_PageDown},
    {TCKeyCode::Left, Qt::Key_Left},
    {TCKeyCode::Right, Qt::Key_Right},
    {TCKeyCode::Up, Qt::Key_Up},
    {TCKeyCode::Down, Qt::Key_Down},
    {TCKeyCode::Pause, Qt::Key_Pause},
    {TCKeyCode::Print, Qt::Key_Print},
    {TCKeyCode::Menu, Qt::Key_Menu},
    {TCKeyCode::VolumeUp, Qt::Key_VolumeUp},
    {TCKeyCode::VolumeDown, Qt::Key_VolumeDown},
    {TCKeyCode::VolumeMute, Qt::Key_VolumeMute},
    {TCKeyCode::MediaPlay, Qt::Key_MediaPlay},
    {TCKeyCode::MediaStop, Qt::Key_MediaStop},
    {TCKeyCode::MediaPrevious, Qt::Key_MediaPrevious},
    {TCKeyCode::MediaNext, Qt::Key_MediaNext},
    {TCKeyCode::MediaPause, Qt::Key_MediaPause},
    {TCKeyCode::MediaPlayPause, Qt::Key_MediaTogglePlayPause},
};

struct TCQtModifier {
  TCKeyModifier modifier;
  Qt::KeyboardModifier qtModifier;
};

constexpr TCQtModifier kModifiers[] = {{TCKeyModifier::Shift, Qt::ShiftModifier},
                                       {TCKeyModifier::Ctrl, Qt::ControlModifier},
                                       {TCKeyModifier::Alt, Qt::AltModifier}};

constexpr int kFunctionKeys = 24;

Qt::Key ToQtKey(TCKeyCode code) {
  const int functionKey = static_cast<int>(code) - static_cast<int>(TCKeyCode::F1);
  if (functionKey >= 0 && functionKey < kFunctionKeys) return static_cast<Qt::Key>(Qt::Key_F1 + functionKey);
  // What types a character is numbered by that character here and there.
  if (functionKey < 0) return code == TCKeyCode::None ? Qt::Key_unknown : static_cast<Qt::Key>(code);
  const auto* named = std::ranges::find(kNamedKeys, code, &TCQtKey::code);
  return named == std::end(kNamedKeys) ? Qt::Key_unknown : named->key;
}

TCKeyCode FromQtCode(int key) {
  if (key > 0 && key <= 0xFFFF) {
    if (key == Qt::Key_Space) return TCKeyCode::Space;
    return CharacterKey(static_cast<char16_t>(key));
  }
  if (key >= Qt::Key_F1 && key < Qt::Key_F1 + kFunctionKeys) {
    return static_cast<TCKeyCode>(static_cast<int>(TCKeyCode::F1) + key - Qt::Key_F1);
  }
  if (key == Qt::Key_Enter) return TCKeyCode::Enter;
  const auto* named = std::ranges::find(kNamedKeys, static_cast<Qt::Key>(key), &TCQtKey::key);
  return named == std::end(kNamedKeys) ? TCKeyCode::None : named->code;
}

}  // namespace

QList<QKeySequence> ToQtKeys(TCKey key) {
  const Qt::Key qtKey = ToQtKey(key.code);
  if (qtKey == Qt::Key_unknown) return {};
  Qt::KeyboardModifiers modifiers = Qt::NoModifier;
  for (const TCQtModifier& pair : kModifiers) {
    if (Holds(key.modifier, pair.modifier)) modifiers |= pair.qtModifier;
  }
  QList<QKeySequence> sequences{QKeySequence(QKeyCombination(modifiers, qtKey))};
  if (key.code == TCKeyCode::Enter) {
    sequences.append(QKeySequence(QKeyCombination(modifiers, Qt::Key_Enter)));
  }
  return sequences;
}

TCKey FromQtKey(int key, Qt::KeyboardModifiers modifiers) {
  if (modifiers.testFlag(Qt::MetaModifier)) return {};
  TCKey found(FromQtCode(key));
  if (found.code == TCKeyCode::None) return {};
  for (const TCQtModifier& pair : kModifiers) {
    if (modifiers.testFlag(pair.qtModifier)) found.modifier = found.modifier | pair.modifier;
  }
  return found;
}

}  // namespace brevant
