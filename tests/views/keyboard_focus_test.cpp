#include "views/keyboard_focus.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>
#include <QTimeEdit>
#include <QWindow>

namespace brevant {
namespace {

class KeyboardFocus : public testing::Test {
 protected:
  KeyboardFocus() { window.show(); }

  QWidget window;
  QWidget field{&window};
};

TEST_F(KeyboardFocus, ComesFromAnotherWindowOfThisProgram) {
  QWidget floating;
  floating.show();
  floating.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&floating));
  GiveKeyboardTo(field);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_TRUE(field.hasFocus());
}

TEST_F(KeyboardFocus, ComesFromNoDialogAndWaitsForItsEnd) {
  {
    QDialog dialog(&window);
    dialog.open();
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    GiveKeyboardTo(field);
    QCoreApplication::processEvents();
    EXPECT_EQ(QApplication::activeWindow(), &dialog);
  }
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  EXPECT_TRUE(field.hasFocus());
}

TEST_F(KeyboardFocus, ComesFromNoOtherProgram) {
  // No widget's window, as another program's is none.
  QWindow foreign;
  foreign.show();
  foreign.requestActivate();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&foreign));
  ASSERT_EQ(QApplication::activeWindow(), nullptr);
  GiveKeyboardTo(field);
  QCoreApplication::processEvents();
  EXPECT_EQ(QGuiApplication::focusWindow(), &foreign);
}

TEST_F(KeyboardFocus, OnlyAFieldThatTakesTextsIsTypedInto) {
  QLineEdit line(&window);
  QTimeEdit time(&window);
  line.show();
  time.show();
  window.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  field.setFocus();
  EXPECT_FALSE(IsSomebodyTyping());
  line.setFocus();
  EXPECT_TRUE(IsSomebodyTyping());
  line.setReadOnly(true);
  EXPECT_FALSE(IsSomebodyTyping());
  time.setFocus();
  EXPECT_TRUE(IsSomebodyTyping());
}

}  // namespace
}  // namespace brevant
