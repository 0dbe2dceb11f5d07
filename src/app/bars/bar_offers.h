// What can be put on a bar, in the categories of the customise sheet's page of commands.
#pragma once

#include <QString>
#include <vector>

#include "app/commands/command_actions.h"
#include "resources/customised_bars.h"

namespace brevant {

struct TCBarOffer {
  QString name;
  TCBarItems items;
};

// One for each main menu, with its commands that somebody carries out; one for all of them; the main menus
// themselves; and what the user makes, an empty menu and a separator. The time fields stand where the
// commands do that play.
[[nodiscard]] std::vector<TCBarOffer> BarOffers(const TCCommandActions& actions);

}  // namespace brevant
