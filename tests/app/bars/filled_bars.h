// The tool bars of a window with commands that a fake carries out, for tests of TCBarSet.
#pragma once

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QToolButton>
#include <algorithm>
#include <optional>
#include <set>
#include <vector>

#include "app/bars/bar_set.h"
#include "app/commands/command_menus.h"
#include "app/fake_target.h"
#include "resources/command_table.h"

namespace brevant {

class TCFilledBars : public testing::Test {
 protected:
  void FillFor(std::set<TCCommandId> handled) {
    target.handled = std::move(handled);
    actions.emplace(target, window);
    FillMenuBar(*window.menuBar(), *actions);
    bars.Fill(*actions);
  }
  void FillForAll() {
    std::set<TCCommandId> all;
    for (const TCCommand& command : Commands()) all.insert(command.id);
    FillFor(all);
  }

  void Show(int width, int height) {
    window.setCentralWidget(new QWidget(&window));
    window.statusBar()->show();
    window.resize(width, height);
    bars.FitRows();
    window.show();
    QCoreApplication::processEvents();
  }

  // What a bar holds, as the table writes it.
  [[nodiscard]] std::vector<TCCommandId> Items(TCTextId name) {
    std::vector<TCCommandId> items;
    for (const QAction* action : bars.BarOf(name)->actions()) {
      TCCommandId item = TCCommandId::None;
      for (const TCCommandId field : {TCCommandId::RepeatBeginField, TCCommandId::RepeatEndField}) {
        if (action == &playBar->FieldAction(field)) item = field;
      }
      for (const TCCommand& command : Commands()) {
        if (actions->ActionOf(command.id) == action) item = command.id;
      }
      EXPECT_EQ(item == TCCommandId::None, action->isSeparator());
      items.push_back(item);
    }
    return items;
  }

  [[nodiscard]] QToolButton* ButtonOf(TCTextId bar, TCCommandId command) {
    return qobject_cast<QToolButton*>(bars.BarOf(bar)->widgetForAction(actions->ActionOf(command)));
  }

  [[nodiscard]] std::vector<QToolBar*> ToolBars() const {
    std::vector<QToolBar*> all;
    for (const TCCommandBar& plan : CommandBars()) {
      if (QToolBar* bar = bars.BarOf(plan.name)) all.push_back(bar);
    }
    return all;
  }
  [[nodiscard]] int ShownBars() const {
    return static_cast<int>(
        std::ranges::count_if(ToolBars(), [](QToolBar* bar) { return bar->isVisible(); }));
  }

  TCFakeTarget target;
  QMainWindow window;
  std::optional<TCCommandActions> actions;
  TCPlayControlsBar* playBar = new TCPlayControlsBar(&window);
  TCBarSet bars{window, *playBar};
};

}  // namespace brevant
