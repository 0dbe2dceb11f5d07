#include "app/bars/customised_bars_store.h"

#include <QStringList>
#include <algorithm>
#include <optional>

#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr QLatin1String kKeys("CommandBars/Keys/");
constexpr QLatin1String kBars("CommandBars/Bars/");
constexpr QLatin1String kIconSize("CommandBars/IconSize");
// An empty list would be read back as a value that is missing.
constexpr QLatin1String kNone("none");

struct TCSwitch {
  QLatin1String key;
  bool TCBarLook::*on;
};
constexpr TCSwitch kSwitches[] = {
    {QLatin1String("CommandBars/TextsUnderIcons"), &TCBarLook::textsUnderIcons},
    {QLatin1String("CommandBars/ToolTips"), &TCBarLook::toolTips},
    {QLatin1String("CommandBars/KeysInToolTips"), &TCBarLook::keysInToolTips},
};

QString KeyOf(TCCommandId command) {
  return kKeys + QString::number(static_cast<int>(command));
}

QString KeyOf(TCTextId bar) {
  return kBars + ToQString(TextOf(bar));
}

void SaveList(const QString& key, const QStringList& list, QSettings& layout) {
  layout.setValue(key, list.isEmpty() ? QStringList(QString(kNone)) : list);
}

// Null for what is no list. An item that `read` refuses makes the whole list worthless: half of somebody's
// bar would be neither theirs nor ours.
template <typename Item, typename Read>
std::optional<std::vector<Item>> LoadList(const QSettings& layout, const QString& key, Read read) {
  const QStringList texts = layout.value(key).toStringList();
  if (texts.isEmpty()) return std::nullopt;
  std::vector<Item> items;
  if (texts == QStringList(QString(kNone))) return items;
  for (const QString& text : texts) {
    const std::optional<Item> item = read(FromQString(text));
    if (!item) return std::nullopt;
    items.push_back(*item);
  }
  return items;
}

TCKeyAssignment LoadKeys(const QSettings& layout) {
  std::vector<TCKeyAssignment::TCChange> changes;
  for (const TCCommand& command : Commands()) {
    if (auto keys = LoadList<TCKey>(layout, KeyOf(command.id), KeyOfName)) {
      changes.push_back({command.id, std::move(*keys)});
    }
  }
  return TCKeyAssignment::WithChanges(changes);
}

TCBarLook LoadLook(const QSettings& layout) {
  TCBarLook look;
  const int size = layout.value(QString(kIconSize)).toInt();
  if (std::ranges::count(TCBarLook::kIconSizes, size) > 0) look.iconSize = size;
  for (const TCSwitch& row : kSwitches) {
    const QString value = layout.value(QString(row.key)).toString();
    if (value == QLatin1String("true")) look.*row.on = true;
    if (value == QLatin1String("false")) look.*row.on = false;
  }
  return look;
}

}  // namespace

void SaveCustomisedBars(const TCCustomisedBars& bars, QSettings& layout) {
  layout.remove(QString(kKeys));
  layout.remove(QString(kBars));
  for (const TCKeyAssignment::TCChange& change : bars.keys.Changes()) {
    QStringList names;
    for (const TCKey& key : change.keys) names.append(ToQString(KeyName(key)));
    SaveList(KeyOf(change.command), names, layout);
  }
  for (const auto& [bar, items] : bars.changedBars) {
    QStringList texts;
    for (const TCBarItem& item : items) texts.append(ToQString(ItemText(item)));
    SaveList(KeyOf(bar), texts, layout);
  }
  layout.setValue(QString(kIconSize), bars.look.iconSize);
  for (const TCSwitch& row : kSwitches) layout.setValue(QString(row.key), bars.look.*row.on);
}

TCCustomisedBars LoadCustomisedBars(const QSettings& layout) {
  TCCustomisedBars bars;
  bars.keys = LoadKeys(layout);
  bars.look = LoadLook(layout);
  for (const TCCommandBar& plan : CommandBars()) {
    const auto items = LoadList<TCBarItem>(layout, KeyOf(plan.name), ItemOfText);
    if (!items || plan.name == TCTextId::MainToolbar) continue;
    bars.SetItems(plan.name, {});
    // One by one, so that nothing stands anywhere twice.
    for (const TCBarItem& item : *items) bars.Insert(plan.name, items->size(), item);
  }
  return bars;
}

}  // namespace brevant
