// The bars and keys of the layout file, line by line: whatever the texts, what was read is written so that it
// reads the same, no key belongs to two commands, and a bar that is put together from them shows nothing
// twice that is there once.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

#include "must_hold.h"
#include "resources/bar_target.h"
#include "resources/customised_bars.h"

using namespace brevant;

namespace {

// UTF-16 as it stands in the input, halves of pairs and all.
std::vector<std::u16string> Lines(const std::uint8_t* data, std::size_t size) {
  std::vector<std::u16string> lines(1);
  for (std::size_t i = 0; i + 1 < size; i += 2) {
    const auto unit = static_cast<char16_t>(data[i] | data[i + 1] << 8);
    if (unit == u'\n') {
      lines.emplace_back();
    } else {
      lines.back() += unit;
    }
  }
  return lines;
}

void CheckKeys(const std::vector<std::u16string>& lines) {
  std::vector<TCKeyAssignment::TCChange> changes;
  for (std::size_t i = 0; i < lines.size() && i < Commands().size(); ++i) {
    const std::optional<TCKey> key = KeyOfName(lines[i]);
    if (!key) continue;
    MustHold(KeyOfName(KeyName(*key)) == key, "a key is read back from its name");
    changes.push_back({Commands()[i].id, {*key}});
  }
  const TCKeyAssignment keys = TCKeyAssignment::WithChanges(changes);
  for (const TCKeyBinding& binding : keys.Bindings()) {
    const auto bound = std::ranges::count(keys.Bindings(), binding.key, &TCKeyBinding::key);
    MustHold(bound == 1, "a key belongs to one command");
    MustHold(MenuOpenedBy(binding.key) == TCMenuPlace::None, "a menu keeps its key");
  }
  MustHold(TCKeyAssignment::WithChanges(keys.Changes()) == keys, "the changes tell all");
}

void CheckItems(const std::vector<std::u16string>& lines) {
  TCCustomisedBars bars;
  for (const std::u16string& line : lines) {
    const std::optional<TCBarItem> item = ItemOfText(line);
    if (!item) continue;
    MustHold(ItemOfText(ItemText(*item)) == item, "an item is read back from its text");
    for (const TCBarTarget& target : BarTargets(bars)) InsertInto(bars, target, line.size() % 7, *item);
  }
  std::ptrdiff_t fields = 0;
  for (const TCBarTarget& target : BarTargets(bars)) {
    const TCBarItems items = ItemsIn(bars, target);
    for (const TCBarItem& item : items) {
      const bool once = item.kind == TCBarItem::Kind::Command || item.kind == TCBarItem::Kind::BuiltInMenu;
      MustHold(!once || std::ranges::count(items, item) == 1, "a command is on a bar or in a menu once");
      fields += item.command == TCCommandId::RepeatBeginField ? 1 : 0;
    }
  }
  MustHold(fields == 1, "a time field is on one bar");
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  constexpr std::size_t kMostLines = 24;
  std::vector<std::u16string> lines = Lines(data, size);
  if (lines.size() > kMostLines) return 0;
  CheckKeys(lines);
  CheckItems(lines);
  return 0;
}
