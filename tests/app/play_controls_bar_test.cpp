#include "app/play_controls_bar.h"

#include <gtest/gtest.h>

#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>
#include <QToolButton>

#include "fake_target.h"
#include "resources/command_bars.h"
#include "resources/command_table.h"

namespace brevant {
namespace {

constexpr std::size_t kPlayBar = 2;  // behind the menu bar and the standard bar

class PlayControlsBar : public testing::Test {
 protected:
  PlayControlsBar() { window.addToolBar(bar); }

  void FillFor(std::set<TCCommandId> handled) {
    target.handled = std::move(handled);
    actions.emplace(target, window);
    bar->Fill(*actions);
  }
  void FillForAll() {
    std::set<TCCommandId> all;
    for (const TCCommand& command : Commands()) all.insert(command.id);
    FillFor(all);
  }

  // What the bar holds, as the table writes it.
  [[nodiscard]] std::vector<TCCommandId> Items() const {
    std::vector<TCCommandId> items;
    for (QAction* action : bar->actions()) {
      const QWidget* widget = bar->widgetForAction(action);
      TCCommandId item = TCCommandId::None;
      for (const TCCommandId field : {TCCommandId::RepeatBeginField, TCCommandId::RepeatEndField}) {
        if (widget == &bar->FieldOf(field)) item = field;
      }
      for (const TCCommand& command : Commands()) {
        if (actions->ActionOf(command.id) == action) item = command.id;
      }
      EXPECT_EQ(item == TCCommandId::None, action->isSeparator());
      items.push_back(item);
    }
    return items;
  }

  TCFakeTarget target;
  QMainWindow window;
  TCPlayControlsBar* bar = new TCPlayControlsBar(&window);
  std::optional<TCCommandActions> actions;
};

TEST_F(PlayControlsBar, HoldsWhatTheTableListsInItsOrder) {
  const TCCommandBar& table = CommandBars()[kPlayBar];
  ASSERT_EQ(table.name, TCTextId::PlayControlsToolbar);
  FillForAll();
  EXPECT_EQ(Items(), (std::vector<TCCommandId>{table.items.begin(), table.items.end()}));
}

TEST_F(PlayControlsBar, GoesByItsNameInSavedStatesAndForScreenReaders) {
  EXPECT_EQ(bar->objectName(), QStringLiteral("Play controls"));
  EXPECT_EQ(bar->windowTitle(), QStringLiteral("Play controls"));
  EXPECT_EQ(bar->accessibleName(), QStringLiteral("Play controls"));
  EXPECT_EQ(bar->FieldOf(TCCommandId::RepeatBeginField).accessibleName(),
            QStringLiteral("Repeat start time"));
  EXPECT_EQ(bar->FieldOf(TCCommandId::RepeatEndField).accessibleName(), QStringLiteral("Repeat stop time"));
}

TEST_F(PlayControlsBar, EveryButtonHasAPictureANameAndATipButNeverTheKeyboard) {
  FillForAll();
  window.show();
  int buttons = 0;
  for (const QAction* action : bar->actions()) {
    const auto* button = qobject_cast<QToolButton*>(bar->widgetForAction(const_cast<QAction*>(action)));
    if (button == nullptr) continue;
    ++buttons;
    EXPECT_FALSE(action->icon().isNull()) << action->text().toStdString();
    EXPECT_FALSE(button->text().contains(QLatin1Char('\t'))) << button->text().toStdString();
    EXPECT_FALSE(button->toolTip().isEmpty());
    EXPECT_EQ(button->focusPolicy(), Qt::NoFocus);
  }
  EXPECT_EQ(buttons, 13);
}

TEST_F(PlayControlsBar, AButtonRunsItsCommand) {
  FillForAll();
  window.show();
  for (const TCCommandId command : {TCCommandId::Play, TCCommandId::VolumeUp, TCCommandId::SetRepeatEnd}) {
    target.ran.clear();
    QTest::mouseClick(bar->widgetForAction(actions->ActionOf(command)), Qt::LeftButton);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(target.ran, std::vector{command});
  }
}

TEST_F(PlayControlsBar, ShowsNoButtonForWhatNobodyDoesAndNoSeparatorBesideIt) {
  FillFor({TCCommandId::Stop});
  EXPECT_EQ(Items(),
            (std::vector<TCCommandId>{TCCommandId::Stop, TCCommandId::None, TCCommandId::RepeatBeginField,
                                      TCCommandId::None, TCCommandId::RepeatEndField}));
}

TEST_F(PlayControlsBar, TheFieldsAreTheRepeatRange) {
  FillForAll();
  TCRepeatFields& range = *bar;
  EXPECT_EQ(range.RepeatBegin(), 0);
  EXPECT_EQ(range.RepeatEnd(), 0);
  range.SetRepeatBegin(30);
  range.SetRepeatEnd(3725);
  EXPECT_EQ(bar->FieldOf(TCCommandId::RepeatBeginField).text(), QStringLiteral("00:30"));
  EXPECT_EQ(bar->FieldOf(TCCommandId::RepeatEndField).text(), QStringLiteral("02:05"));
  EXPECT_EQ(range.RepeatEnd(), 125);
  bar->FieldOf(TCCommandId::RepeatBeginField).setTime(QTime(0, 1, 10));
  EXPECT_EQ(range.RepeatBegin(), 70) << "read afresh";
}

TEST_F(PlayControlsBar, TheFieldsAreSeenOnceTheBarIsFilled) {
  window.show();
  EXPECT_FALSE(bar->FieldOf(TCCommandId::RepeatBeginField).isVisible());
  FillForAll();
  window.resize(1200, 400);
  EXPECT_TRUE(QTest::qWaitFor([this] { return bar->FieldOf(TCCommandId::RepeatEndField).isVisible(); }));
  EXPECT_TRUE(bar->FieldOf(TCCommandId::RepeatBeginField).isVisible());
}

TEST_F(PlayControlsBar, TellsWhenTheTypingEnds) {
  FillForAll();
  window.resize(1200, 400);
  window.show();
  ASSERT_TRUE(QTest::qWaitFor([this] { return bar->FieldOf(TCCommandId::RepeatEndField).isVisible(); }));
  QSignalSpy ended(bar, &TCPlayControlsBar::typingEnded);
  for (const TCCommandId field : {TCCommandId::RepeatBeginField, TCCommandId::RepeatEndField}) {
    QTest::keyClick(&bar->FieldOf(field), Qt::Key_Return);
    QTest::keyClick(&bar->FieldOf(field), Qt::Key_Escape);
  }
  EXPECT_EQ(ended.count(), 4);
}

}  // namespace
}  // namespace brevant
