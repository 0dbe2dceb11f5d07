#include "app/commands/command_categories.h"

#include <algorithm>

#include "resources/command_table.h"
#include "resources/menu_text.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

std::vector<TCCommandId> InMenu(TCMenuPlace place, const TCCommandActions& actions) {
  std::vector<TCCommandId> commands;
  for (const TCCommand* command : CommandsInMenu(place)) {
    if (actions.ActionOf(command->id) != nullptr) commands.push_back(command->id);
  }
  return commands;
}

TCCommandCategory AllCommands(const TCCommandActions& actions) {
  TCCommandCategory all{QStringLiteral("All Commands"), {}};
  for (const TCCommand& command : Commands()) {
    const bool listed = actions.ActionOf(command.id) != nullptr && !CommandName(command.id).isEmpty();
    if (listed) all.commands.push_back(command.id);
  }
  std::ranges::sort(all.commands, [](TCCommandId a, TCCommandId b) {
    return CommandName(a).compare(CommandName(b), Qt::CaseInsensitive) < 0;
  });
  return all;
}

}  // namespace

QString CommandName(TCCommandId id) {
  const TCCommand* command = CommandById(id);
  if (command == nullptr || command->owners == TCCommandOwner::None) return {};
  return ToQString(CommandTitle(*command));
}

std::vector<TCCommandCategory> CommandCategories(const TCCommandActions& actions) {
  std::vector<TCCommandCategory> categories;
  for (const TCMenuPlace menu : MainMenus()) {
    TCCommandCategory category{ToQString(WithoutMnemonic(MenuTitle(menu))), {}};
    if (menu == TCMenuPlace::View) category.commands = InMenu(TCMenuPlace::ViewToolbars, actions);
    for (const TCCommandId command : InMenu(menu, actions)) category.commands.push_back(command);
    if (!category.commands.empty()) categories.push_back(std::move(category));
  }
  categories.push_back(AllCommands(actions));
  return categories;
}

}  // namespace brevant
