#include "app/bars/bar_set.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QSignalSpy>
#include <QStatusBar>
#include <QTemporaryDir>
#include <QTest>
#include <QToolButton>
#include <QToolTip>
#include <algorithm>
#include <optional>

#include "app/commands/command_menus.h"
#include "app/fake_target.h"
#include "resources/command_table.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

class BarSet : public testing::Test {
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

TEST_F(BarSet, EveryBarHoldsWhatTheTableListsInItsOrder) {
  FillForAll();
  ASSERT_EQ(ToolBars().size(), 5u);
  for (const TCCommandBar& plan : CommandBars()) {
    if (plan.name == TCTextId::MainToolbar) continue;
    EXPECT_EQ(Items(plan.name), (std::vector<TCCommandId>{plan.items.begin(), plan.items.end()}))
        << bars.BarOf(plan.name)->windowTitle().toStdString();
  }
}

TEST_F(BarSet, ShowsNoButtonForWhatNobodyDoesAndNoSeparatorBesideIt) {
  FillFor({TCCommandId::Stop, TCCommandId::VolumeStep});
  EXPECT_EQ(Items(TCTextId::PlayControlsToolbar),
            (std::vector<TCCommandId>{TCCommandId::Stop, TCCommandId::None, TCCommandId::RepeatBeginField,
                                      TCCommandId::None, TCCommandId::RepeatEndField}));
  EXPECT_EQ(Items(TCTextId::OptionsToolbar), std::vector{TCCommandId::VolumeStep});
  EXPECT_TRUE(Items(TCTextId::StandardToolbar).empty());
}

TEST_F(BarSet, GoesByTheTablesNamesInSavedStatesAndForScreenReaders) {
  for (const TCCommandBar& plan : CommandBars()) {
    const QToolBar* bar = bars.BarOf(plan.name);
    if (bar == nullptr) continue;
    EXPECT_EQ(bar->objectName(), ToQString(TextOf(plan.name)));
    EXPECT_EQ(bar->accessibleName(), ToQString(TextOf(plan.name)));
    EXPECT_EQ(bar->windowTitle(), ToQString(TextOf(plan.name)));
  }
  EXPECT_EQ(window.menuBar()->accessibleName(), QStringLiteral("Main toolbar"));
}

TEST_F(BarSet, BarsCanBeMovedFloatedAndHidden) {
  for (const QToolBar* bar : ToolBars()) {
    EXPECT_TRUE(bar->isMovable() && bar->isFloatable()) << bar->windowTitle().toStdString();
    EXPECT_EQ(bar->allowedAreas(), Qt::AllToolBarAreas);
    EXPECT_TRUE(bar->toggleViewAction()->isEnabled());
  }
}

TEST_F(BarSet, FourBarsStandInOneRowBelowTheMenuAndTheOptionsAtTheRightEdge) {
  FillForAll();
  Show(1600, 900);
  EXPECT_EQ(window.toolBarArea(bars.BarOf(TCTextId::OptionsToolbar)), Qt::RightToolBarArea);
  int right = 0;
  for (const TCTextId name : {TCTextId::StandardToolbar, TCTextId::PlayControlsToolbar,
                              TCTextId::CreateToolbar, TCTextId::CommandsToolbar}) {
    const QToolBar* bar = bars.BarOf(name);
    EXPECT_EQ(window.toolBarArea(bar), Qt::TopToolBarArea);
    EXPECT_EQ(bar->y(), window.menuBar()->geometry().bottom() + 1);
    EXPECT_GE(bar->x(), right);
    right = bar->x() + bar->width();
  }
}

TEST_F(BarSet, ANarrowWindowHasARowMoreAndHidesNoButton) {
  FillForAll();
  Show(1000, 700);
  EXPECT_EQ(bars.BarOf(TCTextId::PlayControlsToolbar)->y(), bars.BarOf(TCTextId::StandardToolbar)->y());
  EXPECT_GT(bars.BarOf(TCTextId::CommandsToolbar)->y(), bars.BarOf(TCTextId::StandardToolbar)->y());
  for (const QToolButton* button : window.findChildren<QToolButton*>()) {
    if (button->defaultAction() == nullptr) continue;
    EXPECT_TRUE(button->isVisible()) << button->text().toStdString();
  }
}

// A window on a screen of 1280 x 720, its title bar and borders taken off.
TEST_F(BarSet, OnASmallScreenEveryButtonIsSeen) {
  FillForAll();
  Show(1264, 672);
  int buttons = 0;
  for (const QToolButton* button : window.findChildren<QToolButton*>()) {
    if (button->defaultAction() == nullptr) continue;
    ++buttons;
    EXPECT_TRUE(button->isVisible()) << button->text().toStdString();
  }
  EXPECT_EQ(buttons, 3 + 13 + 7 + 7 + 16);
  EXPECT_TRUE(playBar->FieldOf(TCCommandId::RepeatEndField).isVisible());
}

TEST_F(BarSet, WhereTheRowIsTooShortThePlayControlsKeepTheirButtons) {
  FillForAll();
  Show(1600, 700);
  window.resize(900, 700);
  QCoreApplication::processEvents();
  for (const TCCommandId command : Items(TCTextId::PlayControlsToolbar)) {
    if (command == TCCommandId::None || IsTimeField(command)) continue;
    EXPECT_TRUE(ButtonOf(TCTextId::PlayControlsToolbar, command)->isVisible()) << static_cast<int>(command);
  }
  EXPECT_FALSE(ButtonOf(TCTextId::CommandsToolbar, TCCommandId::Reset)->isVisible());
}

TEST_F(BarSet, EveryButtonHasAPictureANameAndATipButNeverTheKeyboard) {
  FillForAll();
  window.show();
  for (QToolBar* bar : ToolBars()) {
    for (QAction* action : bar->actions()) {
      const auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(action));
      if (button == nullptr) continue;
      EXPECT_FALSE(action->icon().isNull()) << action->text().toStdString();
      EXPECT_FALSE(button->text().isEmpty()) << action->toolTip().toStdString();
      EXPECT_FALSE(button->text().contains(QLatin1Char('\t'))) << button->text().toStdString();
      EXPECT_FALSE(button->toolTip().isEmpty());
      EXPECT_EQ(button->focusPolicy(), Qt::NoFocus);
    }
  }
}

TEST_F(BarSet, AButtonRunsItsCommand) {
  FillForAll();
  Show(1600, 900);
  QTest::mouseClick(ButtonOf(TCTextId::PlayControlsToolbar, TCCommandId::VolumeUp), Qt::LeftButton);
  QTest::mouseClick(ButtonOf(TCTextId::OptionsToolbar, TCCommandId::FoldersSaveFormat), Qt::LeftButton);
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(target.ran, (std::vector{TCCommandId::VolumeUp, TCCommandId::FoldersSaveFormat}));
}

TEST_F(BarSet, AButtonThatAScreenReaderTurnsOverRunsItsCommandOnce) {
  FillForAll();
  ButtonOf(TCTextId::OptionsToolbar, TCCommandId::AutoRecycle)->toggle();
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(target.ran, std::vector{TCCommandId::AutoRecycle});
  target.ran.clear();
  target.checked = {TCCommandId::WhiteOnBlack};
  actions->RefreshChecks();
  QCoreApplication::sendPostedEvents();
  EXPECT_TRUE(ButtonOf(TCTextId::OptionsToolbar, TCCommandId::WhiteOnBlack)->isChecked());
  EXPECT_TRUE(target.ran.empty()) << "a mark that is shown is no command";
}

TEST_F(BarSet, ToggleHidesTheShownBarsAndBringsTheSameBack) {
  FillForAll();
  Show(1600, 900);
  bars.BarOf(TCTextId::CreateToolbar)->hide();
  ASSERT_TRUE(bars.AnyShown());
  bars.Toggle();
  EXPECT_FALSE(bars.AnyShown());
  EXPECT_EQ(ShownBars(), 0);
  EXPECT_TRUE(window.menuBar()->isVisible()) << "the menu bar always stays";
  bars.Toggle();
  EXPECT_EQ(ShownBars(), 4);
  EXPECT_FALSE(bars.BarOf(TCTextId::CreateToolbar)->isVisible());
}

TEST_F(BarSet, ToggleShowsAllBarsWhenTheyWereHiddenOneByOne) {
  FillForAll();
  Show(1600, 900);
  for (QToolBar* bar : ToolBars()) bar->hide();
  EXPECT_FALSE(bars.AnyShown());
  bars.Toggle();
  EXPECT_EQ(ShownBars(), 5);
}

TEST_F(BarSet, TheBarsMenuHasATickForEachBar) {
  FillForAll();
  Show(1600, 900);
  QStringList names;
  for (QAction* entry : bars.BarMenu().actions()) {
    if (entry->isCheckable()) names.append(entry->text());
  }
  EXPECT_EQ(names.join(u'|').toStdString(), "Standard toolbar|Play controls|Create|Commands|Options");
  const QSignalSpy changes(&bars, &TCBarSet::shownBarsChanged);
  bars.BarMenu().actions().at(1)->trigger();
  EXPECT_FALSE(playBar->isVisible());
  EXPECT_FALSE(bars.BarMenu().actions().at(1)->isChecked());
  EXPECT_EQ(changes.count(), 1);
}

TEST_F(BarSet, FollowsWhatTheUserMakesOfItAtOnce) {
  FillForAll();
  Show(1600, 900);
  TCCustomisedBars wanted;
  wanted.Insert(TCTextId::StandardToolbar, 1, CommandItem(TCCommandId::Stop));
  wanted.Insert(TCTextId::StandardToolbar, 0, CommandItem(TCCommandId::RepeatEndField));
  wanted.SetItems(TCTextId::CreateToolbar, {});
  bars.Customise(wanted);
  EXPECT_EQ(Items(TCTextId::StandardToolbar),
            (std::vector{TCCommandId::RepeatEndField, TCCommandId::FileNew, TCCommandId::Stop,
                         TCCommandId::FileOpen, TCCommandId::FileSave}));
  EXPECT_TRUE(Items(TCTextId::CreateToolbar).empty());
  const std::vector<TCCommandId> play = Items(TCTextId::PlayControlsToolbar);
  EXPECT_EQ(std::ranges::count(play, TCCommandId::RepeatEndField), 0);
  EXPECT_EQ(bars.Customised(), wanted);

  bars.Customise({});
  for (const TCCommandBar& plan : CommandBars()) {
    if (plan.name == TCTextId::MainToolbar) continue;
    EXPECT_EQ(Items(plan.name), (std::vector<TCCommandId>{plan.items.begin(), plan.items.end()}));
  }
  QCoreApplication::processEvents();
  EXPECT_TRUE(playBar->FieldOf(TCCommandId::RepeatEndField).isVisible());
}

TEST_F(BarSet, MenusOnABarOpenFromAButton) {
  FillForAll();
  Show(1600, 900);
  TCCustomisedBars wanted;
  TCBarItem mine = NewMenuItem(u"Rock & Roll");
  mine.entries = {TCCommandId::Play, TCCommandId::Stop};
  wanted.Insert(TCTextId::StandardToolbar, 0, mine);
  wanted.Insert(TCTextId::StandardToolbar, 0, MenuItem(TCMenuPlace::Play));
  bars.Customise(wanted);
  QToolBar* bar = bars.BarOf(TCTextId::StandardToolbar);
  ASSERT_EQ(bar->actions().size(), 5);
  const QMenu* builtIn = bar->actions().at(0)->menu();
  ASSERT_NE(builtIn, nullptr);
  EXPECT_TRUE(builtIn->actions().contains(actions->ActionOf(TCCommandId::NextSong)));
  const auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(bar->actions().at(1)));
  ASSERT_NE(button, nullptr);
  EXPECT_EQ(button->popupMode(), QToolButton::InstantPopup);
  EXPECT_EQ(button->text(), QStringLiteral("Rock && Roll")) << "drawn as one, and no mnemonic";
  EXPECT_EQ(bar->actions().at(1)->menu()->actions(),
            (QList<QAction*>{actions->ActionOf(TCCommandId::Play), actions->ActionOf(TCCommandId::Stop)}));
  bar->actions().at(1)->menu()->actions().at(1)->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(target.ran, std::vector{TCCommandId::Stop});
  bars.Customise({});
  EXPECT_EQ(window.menuBar()->actions().size(), 7) << "the menu bar always stays, and all of it";
}

TEST_F(BarSet, TheLookIsThatOfEveryButton) {
  FillForAll();
  Show(1600, 900);
  TCCustomisedBars wanted;
  wanted.look.iconSize = 48;
  wanted.look.textsUnderIcons = true;
  bars.Customise(wanted);
  for (const QToolBar* bar : ToolBars()) {
    EXPECT_EQ(bar->iconSize(), QSize(48, 48));
    EXPECT_EQ(bar->toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
  }
}

TEST_F(BarSet, ToolTipsAreShownUnlessTheUserWantsNone) {
  FillForAll();
  Show(1600, 900);
  QToolButton* button = ButtonOf(TCTextId::StandardToolbar, TCCommandId::FileNew);
  const auto shows = [button] {
    QToolTip::hideText();
    EXPECT_TRUE(QTest::qWaitFor([] { return !QToolTip::isVisible(); }));
    QHelpEvent ask(QEvent::ToolTip, QPoint(4, 4), button->mapToGlobal(QPoint(4, 4)));
    QCoreApplication::sendEvent(button, &ask);
    return QToolTip::text();
  };
  EXPECT_EQ(shows(), QStringLiteral("New (Ctrl+N)"));
  TCCustomisedBars wanted;
  wanted.look.keysInToolTips = false;
  bars.Customise(wanted);
  EXPECT_EQ(shows(), QStringLiteral("New"));
  wanted.look.toolTips = false;
  bars.Customise(wanted);
  EXPECT_EQ(shows(), QString());
}

TEST_F(BarSet, ResetBringsBackPlacesButtonsLookAndKeys) {
  FillForAll();
  Show(1600, 900);
  TCCustomisedBars wanted;
  wanted.keys.Assign(TCKeyCode::P, TCCommandId::Stop);
  wanted.look.iconSize = 16;
  wanted.SetItems(TCTextId::CreateToolbar, {});
  bars.Customise(wanted);
  window.addToolBar(Qt::BottomToolBarArea, playBar);
  bars.BarOf(TCTextId::OptionsToolbar)->hide();
  QToolBar* floating = bars.BarOf(TCTextId::CommandsToolbar);
  floating->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
  floating->show();
  ASSERT_TRUE(floating->isFloating());
  bars.Reset();
  EXPECT_FALSE(floating->isFloating());
  EXPECT_EQ(bars.Customised(), TCCustomisedBars());
  EXPECT_EQ(ShownBars(), 5);
  EXPECT_EQ(window.toolBarArea(playBar), Qt::TopToolBarArea);
  EXPECT_EQ(window.iconSize(), QSize(24, 24));
  EXPECT_EQ(Items(TCTextId::CreateToolbar).size(), 8u);
  EXPECT_EQ(actions->CommandOfKey(Qt::Key_P, {}).command, TCCommandId::Play);
  QCoreApplication::processEvents();
  EXPECT_LT(bars.BarOf(TCTextId::StandardToolbar)->x(), playBar->x());
  EXPECT_LT(playBar->x(), bars.BarOf(TCTextId::CreateToolbar)->x());
}

TEST_F(BarSet, TellsWhereSomethingWouldGoThatIsLetGoOfOverABar) {
  FillForAll();
  Show(1600, 900);
  const auto centreOf = [this](TCTextId bar, TCCommandId command, QPoint off) {
    const QWidget* button = ButtonOf(bar, command);
    return bars.PlaceAt(button->mapToGlobal(button->rect().center() + off));
  };
  auto place = centreOf(TCTextId::StandardToolbar, TCCommandId::FileOpen, QPoint(-4, 0));
  ASSERT_TRUE(place.has_value());
  EXPECT_EQ(place->bar, TCTextId::StandardToolbar);
  EXPECT_EQ(place->index, 1u);
  place = centreOf(TCTextId::StandardToolbar, TCCommandId::FileSave, QPoint(4, 0));
  EXPECT_EQ(place->index, 3u) << "behind all";
  place = centreOf(TCTextId::OptionsToolbar, TCCommandId::AutoRecycle, QPoint(0, 4));
  EXPECT_EQ(place->bar, TCTextId::OptionsToolbar);
  EXPECT_EQ(place->index, 4u) << "an upright bar, behind the separator";
  EXPECT_FALSE(bars.PlaceAt(window.mapToGlobal(QPoint(800, 450))).has_value());
  bars.BarOf(TCTextId::StandardToolbar)->hide();
  EXPECT_FALSE(centreOf(TCTextId::StandardToolbar, TCCommandId::FileOpen, QPoint()).has_value());
}

TEST_F(BarSet, WhatTheUserMadeOfItIsKeptForTheNextStart) {
  const QTemporaryDir folder;
  QSettings layout(folder.filePath(QStringLiteral("Layout.ini")), QSettings::IniFormat);
  TCCustomisedBars wanted;
  wanted.keys.Assign(TCKeyCode::P, TCCommandId::Stop);
  wanted.Insert(TCTextId::StandardToolbar, 0, CommandItem(TCCommandId::Stop));
  bars.Customise(wanted);
  bars.Save(layout);
  bars.Customise({});
  bars.Restore(layout);
  EXPECT_EQ(bars.Customised(), wanted);
  FillForAll();
  EXPECT_EQ(Items(TCTextId::StandardToolbar).front(), TCCommandId::Stop);
  EXPECT_EQ(actions->CommandOfKey(Qt::Key_P, {}).command, TCCommandId::Stop);
}

TEST_F(BarSet, ARightClickOnABarOrTheMenuBarOpensTheBarsMenu) {
  FillForAll();
  Show(1600, 900);
  for (QWidget* place : {static_cast<QWidget*>(playBar), static_cast<QWidget*>(window.menuBar()),
                         static_cast<QWidget*>(ButtonOf(TCTextId::CreateToolbar, TCCommandId::AddSongs))}) {
    QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(4, 4), place->mapToGlobal(QPoint(4, 4)));
    QCoreApplication::sendEvent(place, &click);
    EXPECT_TRUE(bars.BarMenu().isVisible());
    bars.BarMenu().hide();
  }
}

}  // namespace
}  // namespace brevant
