#include "app/commands/command_menus.h"

#include "views/text_conversion.h"

namespace brevant {
namespace {

void AddCommands(QMenu& menu, TCMenuPlace place, const TCCommandActions& actions) {
  // A separator goes in only between entries that are there.
  bool separatorDue = false;
  for (const TCCommand* command : CommandsInMenu(place)) {
    separatorDue = separatorDue || BeginsMenuGroup(command->id);
    QAction* action = actions.ActionOf(command->id);
    if (action == nullptr) continue;
    if (separatorDue && !menu.isEmpty()) menu.addSeparator();
    separatorDue = false;
    menu.addAction(action);
  }
}

// Stands for `source` under another text. It has no keys of its own: two actions on one key fire neither.
QAction* MakeAlias(QAction& source, const QString& text, QMenu& menu) {
  auto* alias = new QAction(source.icon(), text, &menu);
  alias->setObjectName(source.objectName());
  alias->setStatusTip(source.statusTip());
  alias->setToolTip(source.toolTip());
  alias->setWhatsThis(source.whatsThis());
  alias->setCheckable(source.isCheckable());
  alias->setChecked(source.isChecked());
  QObject::connect(alias, &QAction::triggered, &source, &QAction::trigger);
  QObject::connect(&source, &QAction::toggled, alias, &QAction::setChecked);
  return alias;
}

}  // namespace

void FillMenuBar(QMenuBar& bar, const TCCommandActions& actions) {
  for (const TCMenuPlace place : MainMenus()) {
    auto* menu = new QMenu(ToQString(MenuTitle(place)), &bar);
    if (place == TCMenuPlace::View) {
      auto* toolbars = new QMenu(ToQString(MenuTitle(TCMenuPlace::ViewToolbars)), menu);
      AddCommands(*toolbars, TCMenuPlace::ViewToolbars, actions);
      if (!toolbars->isEmpty()) menu->addMenu(toolbars);
    }
    AddCommands(*menu, place, actions);
    if (menu->isEmpty()) {
      delete menu;
    } else {
      bar.addMenu(menu);
    }
  }
}

QMenu* MakeContextMenu(TCContextMenu which, const TCCommandActions& actions, QWidget& parent) {
  auto* menu = new QMenu(&parent);
  bool separatorDue = false;  // as above
  for (const TCMenuItem& item : ContextMenu(which)) {
    QAction* source = actions.ActionOf(item.id);
    if (source == nullptr) {
      separatorDue = separatorDue || item.id == TCCommandId::None;
      continue;
    }
    if (separatorDue && !menu->isEmpty()) menu->addSeparator();
    separatorDue = false;
    menu->addAction(MakeAlias(*source, ToQString(item.text), *menu));
  }
  return menu;
}

}  // namespace brevant
