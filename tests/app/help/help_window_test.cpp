#include "app/help/help_window.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QPointer>
#include <QTest>

namespace brevant {
namespace {

class HelpWindow : public testing::Test {
 protected:
  void SetUp() override {
    window = new TCHelpWindow;
    window->ShowPage(QStringLiteral("panes.md"));
    ASSERT_TRUE(QTest::qWaitFor([this] { return QApplication::activeWindow() == window; }));
  }
  void TearDown() override { delete window; }

  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    QTest::keyClick(QApplication::focusWidget(), key, modifiers);
    QCoreApplication::sendPostedEvents();
  }
  void Type(const char* text) { QTest::keyClicks(QApplication::focusWidget(), QString::fromLatin1(text)); }

  [[nodiscard]] QString Title() { return window->Page().Title(); }
  [[nodiscard]] QString Selected() { return window->Page().textCursor().selectedText(); }
  [[nodiscard]] QString NotFound() { return window->findChild<QLabel*>(QStringLiteral("NotFound"))->text(); }

  QPointer<TCHelpWindow> window;
};

TEST_F(HelpWindow, ShowsThePageAndGivesItTheKeys) {
  EXPECT_EQ(Title(), QStringLiteral("The panes"));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("The panes - Help"));
  EXPECT_EQ(QApplication::focusWidget(), &window->Page());
}

TEST_F(HelpWindow, EscapeClosesItFromEverywhereAndNothingIsLeft) {
  Press(Qt::Key_F, Qt::ControlModifier);
  Press(Qt::Key_Escape);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_EQ(window, nullptr);
}

TEST_F(HelpWindow, KeysLeadBackForwardAndToTheContents) {
  Press(Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(Title(), QStringLiteral("The Brevant guide"));
  Press(Qt::Key_Left, Qt::AltModifier);
  EXPECT_EQ(Title(), QStringLiteral("The panes"));
  Press(Qt::Key_Right, Qt::AltModifier);
  EXPECT_EQ(Title(), QStringLiteral("The Brevant guide"));
  EXPECT_EQ(window->windowTitle(), QStringLiteral("The Brevant guide - Help"));
}

TEST_F(HelpWindow, TheButtonsDoTheSameAndAreOffWhereTheyLeadNowhere) {
  auto* back = window->findChild<QToolButton*>(QStringLiteral("Back"));
  auto* forward = window->findChild<QToolButton*>(QStringLiteral("Forward"));
  EXPECT_FALSE(back->isEnabled());
  EXPECT_FALSE(forward->isEnabled());
  window->findChild<QToolButton*>(QStringLiteral("Contents"))->click();
  EXPECT_TRUE(back->isEnabled());
  back->click();
  EXPECT_EQ(Title(), QStringLiteral("The panes"));
  EXPECT_TRUE(forward->isEnabled());
}

TEST_F(HelpWindow, FindsAWordWhileItIsTypedAndEnterLeadsOn) {
  Press(Qt::Key_F, Qt::ControlModifier);
  Type("slider");
  EXPECT_EQ(Selected().toLower(), QStringLiteral("slider"));
  const int first = window->Page().textCursor().position();
  Type(" moves");
  EXPECT_EQ(Selected().toLower(), QStringLiteral("slider moves"));
  Press(Qt::Key_A, Qt::ControlModifier);
  Type("player");
  const int one = window->Page().textCursor().position();
  Press(Qt::Key_Return);
  EXPECT_GT(window->Page().textCursor().position(), one);
  Press(Qt::Key_Return, Qt::ShiftModifier);
  EXPECT_EQ(window->Page().textCursor().position(), one);
  EXPECT_NE(first, 0);
}

TEST_F(HelpWindow, SaysThatAWordIsNotOnThePage) {
  Press(Qt::Key_F, Qt::ControlModifier);
  Type("xylophone");
  EXPECT_EQ(NotFound(), QStringLiteral("Not on this page"));
  Press(Qt::Key_Home, Qt::AltModifier);
  EXPECT_EQ(NotFound(), QString()) << "that was another page";
}

TEST_F(HelpWindow, TypeGrowsAndShrinks) {
  const qreal before = window->Page().font().pointSizeF();
  Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_GT(window->Page().font().pointSizeF(), before);
  Press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(window->Page().font().pointSizeF(), before);
}

TEST_F(HelpWindow, TabReachesEveryControl) {
  QSet<QString> reached;
  for (int i = 0; i < 60; ++i) {
    reached.insert(QApplication::focusWidget()->objectName());
    Press(Qt::Key_Tab);
  }
  EXPECT_TRUE(reached.contains(QStringLiteral("GuidePage")));
  EXPECT_TRUE(reached.contains(QStringLiteral("Contents")));
  EXPECT_TRUE(reached.contains(QStringLiteral("Find")));
}

TEST_F(HelpWindow, KeepsTheProgramFromNothing) {
  EXPECT_FALSE(window->testAttribute(Qt::WA_QuitOnClose));
  EXPECT_FALSE(window->isModal());
}

}  // namespace
}  // namespace brevant
