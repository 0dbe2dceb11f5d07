#include "app/bars/customize_sheet.h"

#include <QCheckBox>
#include <QComboBox>
#include <QListWidget>
#include <QTreeWidget>
#include <set>
#include <string>

#include "app/bars/open_customize_sheet.h"
#include "app/whole_program.h"

namespace brevant {
namespace {

using Id = TCCommandId;

class CustomizeSheet : public TCOpenSheet {};

TEST_F(CustomizeSheet, OpensOnceAndModal) {
  TCCustomizeSheet::Open(bars, window);
  EXPECT_EQ(window.findChildren<TCCustomizeSheet*>().size(), 1);
  EXPECT_TRUE(sheet->isModal());
  EXPECT_EQ(sheet->windowTitle(), QStringLiteral("Customize"));
  Click("Close");
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(window.findChild<TCCustomizeSheet*>(), nullptr);
}

TEST_F(CustomizeSheet, HasThreePages) {
  const auto& pages = Find<QTabWidget>("Pages");
  QStringList names;
  for (int i = 0; i < pages.count(); ++i) names.append(pages.tabText(i));
  EXPECT_EQ(names.join(u'|').toStdString(), "Keyboard|Options|Commands");
}

TEST_F(CustomizeSheet, CtrlTabGoesFromPageToPageWhateverHasTheFocus) {
  auto& pages = Find<QTabWidget>("Pages");
  for (int page = 0; page < pages.count(); ++page) {
    int controls = 0;
    for (QWidget* control : pages.widget(page)->findChildren<QWidget*>()) {
      pages.setCurrentIndex(page);
      if (control->focusPolicy() == Qt::NoFocus || !control->isVisible() || !control->isEnabled()) continue;
      control->setFocus();
      if (!control->hasFocus()) continue;
      ++controls;
      const std::string name = control->objectName().toStdString() + " of page " + std::to_string(page);
      QTest::keyClick(control, Qt::Key_Tab, Qt::ControlModifier);
      EXPECT_EQ(pages.currentIndex(), (page + 1) % pages.count()) << name;
      EXPECT_TRUE(pages.currentWidget()->isAncestorOf(QApplication::focusWidget())) << name;
      pages.setCurrentIndex(page);
      control->setFocus();
      QTest::keyClick(control, Qt::Key_Backtab, Qt::ControlModifier | Qt::ShiftModifier);
      EXPECT_EQ(pages.currentIndex(), (page + pages.count() - 1) % pages.count()) << name;
    }
    EXPECT_GT(controls, 2) << "page " << page;
  }
}

TEST_F(CustomizeSheet, TabGoesThroughEveryControlOfAPageAndComesBack) {
  auto& pages = Find<QTabWidget>("Pages");
  for (int page = 0; page < pages.count(); ++page) {
    pages.setCurrentIndex(page);
    pages.setFocus();
    std::set<QWidget*> reached;
    while (reached.insert(QApplication::focusWidget()).second) {
      QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    for (QWidget* control : sheet->findChildren<QWidget*>()) {
      const bool takesKeys = (control->focusPolicy() & Qt::TabFocus) != 0 && control->isVisible() &&
                             control->isEnabled() && control->focusProxy() == nullptr;
      if (takesKeys && !control->objectName().isEmpty() &&
          !control->objectName().startsWith(QStringLiteral("qt_"))) {
        EXPECT_TRUE(reached.contains(control)) << control->objectName().toStdString() << " of page " << page;
      }
    }
  }
}

TEST_F(CustomizeSheet, ResetBringsEverythingBackOnAllPages) {
  TCCustomisedBars wanted;
  wanted.keys.Assign(TCKeyCode::P, Id::Stop);
  wanted.SetItems(TCTextId::StandardToolbar, {});
  wanted.look = {.iconSize = 16, .textsUnderIcons = true, .toolTips = false, .keysInToolTips = false};
  bars.Customise(wanted);
  Click("Reset");
  EXPECT_EQ(bars.Customised(), TCCustomisedBars());
  EXPECT_EQ(Find<QComboBox>("IconSize").currentData().toInt(), 24);
  EXPECT_TRUE(Find<QCheckBox>("ToolTips").isChecked());
  EXPECT_FALSE(Find<QCheckBox>("TextsUnderIcons").isChecked());
  EXPECT_EQ(Find<QListWidget>("BarItems").count(), 3);
  const auto stop = Find<QTreeWidget>("KeyCommands").findItems(QStringLiteral("Stop"), Qt::MatchExactly);
  ASSERT_EQ(stop.size(), 1);
  EXPECT_EQ(stop.first()->text(1), QStringLiteral("S, F6"));
}

TEST_F(CustomizeSheet, TheOptionsAreTheBarsAtOnce) {
  ShowPage(1);
  auto& size = Find<QComboBox>("IconSize");
  QStringList names;
  for (int i = 0; i < size.count(); ++i) names.append(size.itemText(i));
  EXPECT_EQ(names.join(u'|').toStdString(), "Small|Normal|Large|Very large");
  size.setCurrentIndex(3);
  EXPECT_EQ(window.iconSize(), QSize(48, 48));
  for (const auto& [box, option] : {std::pair("TextsUnderIcons", &TCBarLook::textsUnderIcons),
                                    std::pair("KeysInToolTips", &TCBarLook::keysInToolTips),
                                    std::pair("ToolTips", &TCBarLook::toolTips)}) {
    const bool before = bars.Customised().look.*option;
    EXPECT_EQ(Find<QCheckBox>(box).isChecked(), before) << box;
    Find<QCheckBox>(box).click();
    EXPECT_EQ(bars.Customised().look.*option, !before) << box;
  }
  EXPECT_EQ(window.toolButtonStyle(), Qt::ToolButtonTextUnderIcon);
  EXPECT_FALSE(Find<QCheckBox>("KeysInToolTips").isEnabled()) << "there are no tool tips for them";
}

class CustomizedProgram : public TCWholeProgram {};

TEST_F(CustomizedProgram, KeysBarsAndPlacesComeBackAtTheNextStart) {
  Start();
  TCCustomisedBars wanted;
  wanted.keys.Assign(TCKeyCode::PageDown, Id::VolumeDown);
  wanted.Insert(TCTextId::StandardToolbar, 0, CommandItem(Id::Stop));
  wanted.look.iconSize = 32;
  Frame().Bars().Customise(wanted);
  Frame().addToolBar(Qt::BottomToolBarArea, &Frame().PlayControls());
  Frame().insertToolBarBreak(Frame().Bars().BarOf(TCTextId::CommandsToolbar));
  Frame().Bars().BarOf(TCTextId::CreateToolbar)->hide();
  Frame().close();
  app.reset();

  Start();
  EXPECT_EQ(Frame().Bars().Customised(), wanted);
  EXPECT_EQ(Frame().toolBarArea(&Frame().PlayControls()), Qt::BottomToolBarArea);
  EXPECT_TRUE(Frame().toolBarBreak(Frame().Bars().BarOf(TCTextId::CommandsToolbar)));
  EXPECT_TRUE(Frame().Bars().BarOf(TCTextId::CreateToolbar)->isHidden());
  EXPECT_EQ(Frame().Bars().BarOf(TCTextId::StandardToolbar)->actions().first(),
            app->Actions().ActionOf(Id::Stop));
  EXPECT_EQ(Frame().PlayControls().iconSize(), QSize(32, 32));
  player.ForgetCalls();
  Press(Qt::Key_PageDown);
  EXPECT_EQ(player.Calls(), std::vector<std::string>{"SetVolume 95"});
}

TEST_F(CustomizedProgram, WithoutLoadLastWindowStateAllIsAsDelivered) {
  Start();
  Settings().loadLastWindowState = false;
  TCCustomisedBars wanted;
  wanted.keys.Assign(TCKeyCode::PageDown, Id::VolumeDown);
  Frame().Bars().Customise(wanted);
  Frame().close();
  app.reset();
  Start();
  EXPECT_EQ(Frame().Bars().Customised(), TCCustomisedBars());
}

TEST_F(CustomizedProgram, TheSheetIsReachedFromTheMenuWhateverKeysAreAssigned) {
  Start();
  TCCustomisedBars wanted;
  for (const TCCommand& command : Commands()) {
    for (const TCKey& key : TCKeyAssignment().KeysOf(command.id)) wanted.keys.Remove(key);
  }
  for (const TCCommandBar& plan : CommandBars()) wanted.SetItems(plan.name, {});
  for (char16_t letter = u'A'; letter <= u'Z'; ++letter) {
    wanted.keys.Assign(Alt(CharacterKey(letter)), Id::Stop);
  }
  Frame().Bars().Customise(wanted);
  Press(Qt::Key_V, Qt::AltModifier);
  const auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr) << "Alt+V opens View";
  EXPECT_EQ(menu->title(), QStringLiteral("&View"));
  QApplication::activePopupWidget()->close();
  app->Actions().ActionOf(Id::Customize)->trigger();
  QCoreApplication::sendPostedEvents();
  auto* sheet = Frame().findChild<TCCustomizeSheet*>();
  ASSERT_NE(sheet, nullptr);
  sheet->findChild<QPushButton*>(QStringLiteral("Reset"))->click();
  EXPECT_EQ(Frame().Bars().Customised(), TCCustomisedBars());
  sheet->accept();
}

}  // namespace
}  // namespace brevant
