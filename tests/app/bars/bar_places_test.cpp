// Where TCBarSet's bars stand, in how many rows, and what of that comes back.
#include <QTemporaryDir>

#include "app/bars/bar_set.h"
#include "app/bars/filled_bars.h"

namespace brevant {
namespace {

class BarPlaces : public TCFilledBars {
 protected:
  // The bars that begin a row of their own.
  [[nodiscard]] std::vector<TCTextId> Breaks() {
    std::vector<TCTextId> names;
    for (const TCCommandBar& plan : CommandBars()) {
      QToolBar* bar = bars.BarOf(plan.name);
      if (bar != nullptr && window.toolBarBreak(bar)) names.push_back(plan.name);
    }
    return names;
  }

  [[nodiscard]] int WidthOf(const std::vector<TCTextId>& names) const {
    int width = 0;
    for (const TCTextId name : names) width += bars.BarOf(name)->sizeHint().width();
    return width;
  }

  [[nodiscard]] bool EveryTopButtonIsSeen() const {
    for (const QToolBar* bar : ToolBars()) {
      if (window.toolBarArea(bar) != Qt::TopToolBarArea) continue;
      for (QAction* action : bar->actions()) {
        if (!bar->widgetForAction(action)->isVisible()) return false;
      }
    }
    return true;
  }

  [[nodiscard]] static QRect OnScreen(const QWidget& widget) {
    return {widget.mapToGlobal(QPoint(0, 0)), widget.size()};
  }
};

TEST_F(BarPlaces, BarsCanBeMovedFloatedAndHidden) {
  for (const QToolBar* bar : ToolBars()) {
    EXPECT_TRUE(bar->isMovable() && bar->isFloatable()) << bar->windowTitle().toStdString();
    EXPECT_EQ(bar->allowedAreas(), Qt::AllToolBarAreas);
    EXPECT_TRUE(bar->toggleViewAction()->isEnabled());
  }
}

TEST_F(BarPlaces, FourBarsStandInOneRowBelowTheMenuAndTheOptionsAtTheRightEdge) {
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

TEST_F(BarPlaces, ANarrowWindowHasARowMoreAndHidesNoButton) {
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
TEST_F(BarPlaces, OnASmallScreenEveryButtonIsSeen) {
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

TEST_F(BarPlaces, WhereTheRowIsTooShortThePlayControlsKeepTheirButtons) {
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

TEST_F(BarPlaces, ResetBringsBackPlacesButtonsLookAndKeys) {
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

TEST_F(BarPlaces, ResetLaysTheRowsOutForTheWindowAndForgetsWhatWasHiddenTogether) {
  FillForAll();
  Show(1000, 700);
  bars.BarOf(TCTextId::CreateToolbar)->hide();
  bars.Toggle();
  bars.Reset();
  QCoreApplication::processEvents();
  EXPECT_TRUE(EveryTopButtonIsSeen());
  for (QToolBar* bar : ToolBars()) bar->hide();
  bars.Toggle();
  EXPECT_EQ(ShownBars(), 5);
}

TEST_F(BarPlaces, LargerButtonsGetTheRowsThatTheyNeed) {
  FillForAll();
  Show(1600, 900);
  ASSERT_TRUE(EveryTopButtonIsSeen());
  for (const TCBarLook& look : {TCBarLook{.iconSize = 48}, TCBarLook{.textsUnderIcons = true}, TCBarLook{}}) {
    TCCustomisedBars wanted;
    wanted.look = look;
    bars.Customise(wanted);
    QCoreApplication::processEvents();
    EXPECT_TRUE(EveryTopButtonIsSeen()) << look.iconSize;
  }
  EXPECT_EQ(Breaks(), std::vector<TCTextId>{});
}

TEST_F(BarPlaces, ABarThatDoesNotFitBeginsARowThatTheNextOneJoins) {
  FillForAll();
  window.resize(WidthOf({TCTextId::StandardToolbar, TCTextId::PlayControlsToolbar}) + 10, 700);
  ASSERT_LT(WidthOf({TCTextId::CreateToolbar, TCTextId::CommandsToolbar}), window.width());
  bars.FitRows();
  EXPECT_EQ(Breaks(), std::vector{TCTextId::CreateToolbar});
  window.resize(50, 700);
  bars.FitRows();
  EXPECT_EQ(Breaks(),
            (std::vector{TCTextId::PlayControlsToolbar, TCTextId::CreateToolbar, TCTextId::CommandsToolbar}))
      << "there is no row above the first bar";
}

TEST_F(BarPlaces, BarsThatTheUserPutElsewhereTakeNoRoomInTheRowsAndStayAsTheyAre) {
  FillForAll();
  Show(1600, 900);
  QToolBar* create = bars.BarOf(TCTextId::CreateToolbar);
  window.addToolBar(Qt::BottomToolBarArea, bars.BarOf(TCTextId::OptionsToolbar));
  window.addToolBar(Qt::BottomToolBarArea, create);
  window.insertToolBarBreak(create);
  playBar->setWindowFlags(Qt::Tool | Qt::FramelessWindowHint);
  playBar->show();
  ASSERT_TRUE(playBar->isFloating());
  window.resize(WidthOf({TCTextId::StandardToolbar, TCTextId::CommandsToolbar}) + 10, 900);
  bars.FitRows();
  EXPECT_EQ(Breaks(), std::vector{TCTextId::CreateToolbar});
}

TEST_F(BarPlaces, RowsThatComeBackStandInPlaceOfThoseThatTheWidthAsksFor) {
  const QTemporaryDir folder;
  QSettings layout(folder.filePath(QStringLiteral("Layout.ini")), QSettings::IniFormat);
  window.resize(1600, 900);
  window.insertToolBarBreak(playBar);
  bars.Save(layout);
  window.removeToolBarBreak(playBar);
  FillForAll();
  ASSERT_TRUE(Breaks().empty());
  bars.RestorePlaces(layout);
  EXPECT_EQ(Breaks(), std::vector{TCTextId::PlayControlsToolbar}) << "the user's, although all would fit";
}

TEST_F(BarPlaces, TellsWhereSomethingWouldGoThatIsLetGoOfOverABar) {
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
  const QToolBar* standard = bars.BarOf(TCTextId::StandardToolbar);
  const QRect open = OnScreen(*ButtonOf(TCTextId::StandardToolbar, TCCommandId::FileOpen));
  EXPECT_EQ(place->gap, QRect(open.left() - 1, OnScreen(*standard).top(), 3, standard->height()));
  place = centreOf(TCTextId::StandardToolbar, TCCommandId::FileSave, QPoint(4, 0));
  EXPECT_EQ(place->index, 3u) << "behind all";
  const QRect save = OnScreen(*ButtonOf(TCTextId::StandardToolbar, TCCommandId::FileSave));
  EXPECT_EQ(place->gap, QRect(save.right(), OnScreen(*standard).top(), 3, standard->height()));
  place = centreOf(TCTextId::OptionsToolbar, TCCommandId::AutoRecycle, QPoint(0, 4));
  EXPECT_EQ(place->bar, TCTextId::OptionsToolbar);
  EXPECT_EQ(place->index, 4u) << "an upright bar, behind the separator";
  const QToolBar* options = bars.BarOf(TCTextId::OptionsToolbar);
  const QRect live = OnScreen(*ButtonOf(TCTextId::OptionsToolbar, TCCommandId::LiveViewMode));
  EXPECT_EQ(place->gap, QRect(OnScreen(*options).left(), live.top() - 1, options->width(), 3));
  place = centreOf(TCTextId::OptionsToolbar, TCCommandId::DisableEditing, QPoint(0, 4));
  const QRect last = OnScreen(*ButtonOf(TCTextId::OptionsToolbar, TCCommandId::DisableEditing));
  EXPECT_EQ(place->gap, QRect(OnScreen(*options).left(), last.bottom(), options->width(), 3));
  EXPECT_FALSE(bars.PlaceAt(window.mapToGlobal(QPoint(800, 450))).has_value());
  bars.BarOf(TCTextId::StandardToolbar)->hide();
  EXPECT_FALSE(centreOf(TCTextId::StandardToolbar, TCCommandId::FileOpen, QPoint()).has_value());
}

TEST_F(BarPlaces, OnABarThatIsTooShortNothingIsPutOutOfSight) {
  FillForAll();
  Show(1600, 900);
  window.resize(1200, 900);
  QCoreApplication::processEvents();
  constexpr TCTextId kBar = TCTextId::CommandsToolbar;
  const QToolButton* last = nullptr;
  std::size_t seen = 0;
  for (std::size_t i = 0; i < Items(kBar).size(); ++i) {
    const TCCommandId item = Items(kBar)[i];
    if (item == TCCommandId::None) continue;
    if (!ButtonOf(kBar, item)->isVisible()) break;
    last = ButtonOf(kBar, item);
    seen = i + 1;
  }
  ASSERT_NE(last, nullptr);
  ASSERT_LT(seen, Items(kBar).size()) << "the bar is cut off";
  const std::size_t hidden = seen + (Items(kBar)[seen] == TCCommandId::None ? 1 : 0);
  const auto place = bars.PlaceAt(last->mapToGlobal(last->rect().center() + QPoint(4, 0)));
  ASSERT_TRUE(place.has_value());
  EXPECT_EQ(place->index, hidden);
  EXPECT_EQ(place->gap.left(), OnScreen(*last).right());
}

TEST_F(BarPlaces, WhatTheUserMadeOfItIsKeptForTheNextStart) {
  const QTemporaryDir folder;
  QSettings layout(folder.filePath(QStringLiteral("Layout.ini")), QSettings::IniFormat);
  TCCustomisedBars wanted;
  wanted.keys.Assign(TCKeyCode::P, TCCommandId::Stop);
  wanted.Insert(TCTextId::StandardToolbar, 0, CommandItem(TCCommandId::Stop));
  bars.Customise(wanted);
  bars.Save(layout);
  bars.Customise({});
  bars.RestoreItems(layout);
  EXPECT_EQ(bars.Customised(), wanted);
  FillForAll();
  EXPECT_EQ(Items(TCTextId::StandardToolbar).front(), TCCommandId::Stop);
  EXPECT_EQ(actions->CommandOfKey(Qt::Key_P, {}).command, TCCommandId::Stop);
}

}  // namespace
}  // namespace brevant
