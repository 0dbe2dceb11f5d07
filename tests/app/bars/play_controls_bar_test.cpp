#include "app/bars/play_controls_bar.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>

namespace brevant {
namespace {

class PlayControlsBar : public testing::Test {
 protected:
  PlayControlsBar() { window.addToolBar(bar); }

  static constexpr TCCommandId kFields[] = {TCCommandId::RepeatBeginField, TCCommandId::RepeatEndField};

  void Show() {
    for (const TCCommandId field : kFields) bar->addAction(&bar->FieldAction(field));
    window.resize(400, 300);
    window.show();
    ASSERT_TRUE(QTest::qWaitFor([this] { return bar->FieldOf(TCCommandId::RepeatEndField).isVisible(); }));
  }

  QMainWindow window;
  TCPlayControlsBar* bar = new TCPlayControlsBar(&window);
};

TEST_F(PlayControlsBar, TheFieldsHaveNamesForScreenReaders) {
  EXPECT_EQ(bar->windowTitle(), QStringLiteral("Play controls"));
  EXPECT_EQ(bar->FieldOf(TCCommandId::RepeatBeginField).accessibleName(),
            QStringLiteral("Repeat start time"));
  EXPECT_EQ(bar->FieldOf(TCCommandId::RepeatEndField).accessibleName(), QStringLiteral("Repeat stop time"));
}

TEST_F(PlayControlsBar, TheFieldsAreTheRepeatRange) {
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

TEST_F(PlayControlsBar, AFieldIsSeenOnceItsActionIsOnABar) {
  EXPECT_FALSE(bar->FieldOf(TCCommandId::RepeatBeginField).isVisible());
  Show();
  EXPECT_TRUE(bar->FieldOf(TCCommandId::RepeatBeginField).isVisible());
  EXPECT_EQ(bar->widgetForAction(&bar->FieldAction(TCCommandId::RepeatBeginField)),
            &bar->FieldOf(TCCommandId::RepeatBeginField));
}

TEST_F(PlayControlsBar, AFieldTakenOffABarKeepsItsTimeAndCanStandOnAnother) {
  Show();
  bar->SetRepeatBegin(75);
  QAction& action = bar->FieldAction(TCCommandId::RepeatBeginField);
  bar->removeAction(&action);
  EXPECT_EQ(bar->RepeatBegin(), 75);
  auto* other = new QToolBar(&window);
  window.addToolBar(other);
  other->addAction(&action);
  ASSERT_TRUE(QTest::qWaitFor([this] { return bar->FieldOf(TCCommandId::RepeatBeginField).isVisible(); }));
  EXPECT_EQ(bar->FieldOf(TCCommandId::RepeatBeginField).parentWidget(), other);
  EXPECT_EQ(bar->RepeatBegin(), 75);
}

TEST_F(PlayControlsBar, ABarThatFloatsLeavesTheKeysAloneUntilAFieldIsClicked) {
  Show();
  const TCRepeatTimeField& field = bar->FieldOf(TCCommandId::RepeatBeginField);
  EXPECT_EQ(field.focusPolicy(), Qt::StrongFocus);
  bar->setWindowFlags(Qt::Tool);
  bar->show();
  bar->activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(bar));
  EXPECT_EQ(QApplication::focusWidget(), nullptr);
  QTest::mouseClick(&bar->FieldOf(TCCommandId::RepeatBeginField), Qt::LeftButton);
  EXPECT_TRUE(field.hasFocus());
  QTest::keyClick(&bar->FieldOf(TCCommandId::RepeatBeginField), Qt::Key_Return);
  EXPECT_EQ(bar->focusWidget(), nullptr) << "the next click on the bar does not bring it back";
}

TEST_F(PlayControlsBar, TellsWhenTheTypingEnds) {
  Show();
  QSignalSpy ended(bar, &TCPlayControlsBar::typingEnded);
  for (const TCCommandId field : kFields) {
    QTest::keyClick(&bar->FieldOf(field), Qt::Key_Return);
    QTest::keyClick(&bar->FieldOf(field), Qt::Key_Escape);
  }
  EXPECT_EQ(ended.count(), 4);
}

}  // namespace
}  // namespace brevant
