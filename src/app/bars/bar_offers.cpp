#include "app/bars/bar_offers.h"

#include <utility>

#include "app/commands/command_categories.h"
#include "resources/menu_text.h"
#include "views/text_conversion.h"

namespace brevant {

std::vector<TCBarOffer> BarOffers(const TCCommandActions& actions) {
  std::vector<TCBarOffer> offers;
  const TCBarItems fields{CommandItem(TCCommandId::RepeatBeginField),
                          CommandItem(TCCommandId::RepeatEndField)};
  const QString play = ToQString(WithoutMnemonic(MenuTitle(TCMenuPlace::Play)));
  const std::vector<TCCommandCategory> categories = CommandCategories(actions);
  for (const TCCommandCategory& category : categories) {
    TCBarOffer& offer = offers.emplace_back(TCBarOffer{category.name, {}});
    for (const TCCommandId command : category.commands) offer.items.push_back(CommandItem(command));
    const bool hasFields = category.name == play || &category == &categories.back();
    if (hasFields) offer.items.insert(offer.items.end(), fields.begin(), fields.end());
  }
  TCBarOffer builtIn{QStringLiteral("Built-in Menus"), {}};
  for (const TCMenuPlace menu : MainMenus()) builtIn.items.push_back(MenuItem(menu));
  offers.push_back(std::move(builtIn));
  offers.push_back({QStringLiteral("New Menu"), {NewMenuItem(u"New Menu"), TCBarItem()}});
  return offers;
}

}  // namespace brevant
