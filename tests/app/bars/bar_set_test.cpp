#include "app/bars/bar_set.h"

#include <QSignalSpy>
#include <QTest>
#include <QToolTip>

#include "app/bars/filled_bars.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

class BarSet : public TCFilledBars {};

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
  for (QToolBar* bar : ToolBars()) bar->hide();
  bars.Toggle();
  EXPECT_EQ(ShownBars(), 5) << "these were hidden one by one";
}

TEST_F(BarSet, InAWindowThatIsNotYetSeenTheBarsAreShownAllTheSame) {
  FillForAll();
  EXPECT_TRUE(bars.AnyShown());
  bars.Toggle();
  EXPECT_FALSE(bars.AnyShown());
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
  QCoreApplication::processEvents();
  const QWidget& field = playBar->FieldOf(TCCommandId::RepeatEndField);
  EXPECT_TRUE(bars.BarOf(TCTextId::StandardToolbar)->isAncestorOf(&field));
  EXPECT_TRUE(field.isVisible());

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
