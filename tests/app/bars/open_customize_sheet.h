// The customise sheet over a window with bars, keys and a key filter, for tests that drive it as a user does.
#pragma once

#include <gtest/gtest.h>

#include <QMenuBar>
#include <QPushButton>
#include <QTabWidget>
#include <QTest>
#include <optional>

#include "app/bars/customize_sheet.h"
#include "app/commands/command_menus.h"
#include "app/commands/key_filter.h"
#include "app/fake_target.h"
#include "resources/command_table.h"

namespace brevant {

class TCOpenSheet : public testing::Test {
 protected:
  void SetUp() override {
    for (const TCCommand& command : Commands()) target.handled.insert(command.id);
    target.handled.erase(TCCommandId::HelpTopics);
    actions.emplace(target, window);
    filter.emplace(*actions, window);
    FillMenuBar(*window.menuBar(), *actions);
    bars.Fill(*actions);
    window.setCentralWidget(new QWidget(&window));
    window.resize(1600, 900);
    window.show();
    TCCustomizeSheet::Open(bars, window);
    sheet = window.findChild<TCCustomizeSheet*>();
    ASSERT_NE(sheet, nullptr);
    sheet->activateWindow();
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == sheet; }));
  }

  template <typename Widget>
  [[nodiscard]] Widget& Find(const char* name) const {
    auto* found = sheet->findChild<Widget*>(QLatin1String(name));
    EXPECT_NE(found, nullptr) << name;
    return *found;
  }
  void ShowPage(int page) { Find<QTabWidget>("Pages").setCurrentIndex(page); }
  void Click(const char* button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }

  TCFakeTarget target;
  QMainWindow window;
  std::optional<TCCommandActions> actions;
  std::optional<TCKeyFilter> filter;
  TCPlayControlsBar* playBar = new TCPlayControlsBar(&window);
  TCBarSet bars{window, *playBar};
  TCCustomizeSheet* sheet = nullptr;
};

}  // namespace brevant
