#include "app/bars/bar_item_names.h"

#include "app/commands/command_categories.h"
#include "resources/menu_text.h"
#include "views/text_conversion.h"

namespace brevant {

QString BarItemName(const TCBarItem& item) {
  switch (item.kind) {
    case TCBarItem::Kind::Separator:
      return QStringLiteral("Separator");
    case TCBarItem::Kind::BuiltInMenu:
      return ToQString(WithoutMnemonic(MenuTitle(item.menu)));
    case TCBarItem::Kind::NewMenu:
      return ToQString(item.title);
    case TCBarItem::Kind::Command:
      break;
  }
  if (item.command == TCCommandId::RepeatBeginField) return QStringLiteral("Repeat start time");
  if (item.command == TCCommandId::RepeatEndField) return QStringLiteral("Repeat stop time");
  return CommandName(item.command);
}

}  // namespace brevant
