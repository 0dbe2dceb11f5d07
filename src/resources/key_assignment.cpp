#include "resources/key_assignment.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace brevant {
namespace {

std::vector<TCKey> KeysAmong(const std::vector<TCKeyBinding>& bindings, TCCommandId command) {
  std::vector<TCKey> keys;
  for (const TCKeyBinding& binding : bindings) {
    if (binding.command == command) keys.push_back(binding.key);
  }
  return keys;
}

}  // namespace

TCKeyAssignment::TCKeyAssignment() : bindings(EffectiveBindings()) {}

std::vector<TCKey> TCKeyAssignment::KeysOf(TCCommandId command) const {
  return KeysAmong(bindings, command);
}

TCCommandId TCKeyAssignment::CommandOf(TCKey key) const {
  const auto bound = std::ranges::find(bindings, key, &TCKeyBinding::key);
  return bound == bindings.end() ? TCCommandId::None : bound->command;
}

void TCKeyAssignment::Assign(TCKey key, TCCommandId command) {
  const TCKeyUse use = UseOf(*this, key, command);
  if (use.kind == TCKeyUse::Kind::Taken) Remove(key);
  if (use.kind == TCKeyUse::Kind::Taken || use.kind == TCKeyUse::Kind::Free) {
    bindings.push_back({key, command});
  }
}

void TCKeyAssignment::Remove(TCKey key) {
  std::erase_if(bindings, [key](const TCKeyBinding& binding) { return binding.key == key; });
}

std::vector<TCKeyAssignment::TCChange> TCKeyAssignment::Changes() const {
  std::vector<TCChange> changes;
  const std::vector<TCKeyBinding> delivered = EffectiveBindings();
  for (const TCCommand& command : Commands()) {
    std::vector<TCKey> keys = KeysOf(command.id);
    if (keys != KeysAmong(delivered, command.id)) changes.push_back({command.id, std::move(keys)});
  }
  return changes;
}

TCKeyAssignment TCKeyAssignment::WithChanges(const std::vector<TCChange>& changes) {
  TCKeyAssignment assignment;
  assignment.bindings.clear();
  for (const TCChange& change : changes) {
    for (const TCKey& key : change.keys) {
      if (assignment.CommandOf(key) == TCCommandId::None) assignment.Assign(key, change.command);
    }
  }
  for (const TCKeyBinding& binding : EffectiveBindings()) {
    const bool changed = std::ranges::find(changes, binding.command, &TCChange::command) != changes.end();
    const bool taken = assignment.CommandOf(binding.key) != TCCommandId::None;
    if (!changed && !taken) assignment.bindings.push_back(binding);
  }
  return assignment;
}

TCMenuPlace MenuOpenedBy(TCKey key) {
  if (key.modifier != TCKeyModifier::Alt) return TCMenuPlace::None;
  for (const TCMenuPlace menu : MainMenus()) {
    const std::u16string_view title = MenuTitle(menu);
    const std::size_t mark = title.find(u'&');
    if (mark + 1 < title.size() && CharacterKey(title[mark + 1]) == key.code) return menu;
  }
  return TCMenuPlace::None;
}

TCKeyUse UseOf(const TCKeyAssignment& keys, TCKey key, TCCommandId command) {
  using Kind = TCKeyUse::Kind;
  if (key.code == TCKeyCode::None) return {};
  if (const TCMenuPlace menu = MenuOpenedBy(key); menu != TCMenuPlace::None) {
    return {Kind::OpensMenu, TCCommandId::None, menu};
  }
  const TCCommandId owner = keys.CommandOf(key);
  if (owner == TCCommandId::None) return {Kind::Free, owner, TCMenuPlace::None};
  return {owner == command ? Kind::Own : Kind::Taken, owner, TCMenuPlace::None};
}

}  // namespace brevant
