#include "app/bars/key_field.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QContextMenuEvent>
#include <QSignalSpy>
#include <QTest>
#include <QVBoxLayout>

#include "app/commands/qt_keys.h"

namespace brevant {
namespace {

class KeyField : public testing::Test {
 protected:
  void SetUp() override {
    auto* layout = new QVBoxLayout(&window);
    layout->addWidget(field);
    layout->addWidget(next);
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    field->setFocus();
  }

  QWidget window;
  TCKeyField* field = new TCKeyField;
  QLineEdit* next = new QLineEdit;
};

TEST_F(KeyField, ShowsTheKeyThatIsPressed) {
  const QSignalSpy changes(field, &TCKeyField::keyChanged);
  QTest::keyClick(field, Qt::Key_P);
  EXPECT_EQ(field->Key(), TCKey(TCKeyCode::P));
  EXPECT_EQ(field->text(), QStringLiteral("P"));
  QTest::keyClick(field, Qt::Key_PageDown, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(field->text(), QStringLiteral("Ctrl+Shift+Page Down"));
  EXPECT_EQ(changes.count(), 2);
}

TEST_F(KeyField, AKeyThatIsStillHeldFromBeforeIsNotMeant) {
  QKeyEvent held(QEvent::KeyPress, Qt::Key_P, Qt::NoModifier, QStringLiteral("p"), true);
  QCoreApplication::sendEvent(field, &held);
  EXPECT_EQ(field->Key(), TCKey());
  EXPECT_EQ(field->text(), QString());
}

TEST_F(KeyField, HasNoMenuThatCouldPasteIntoIt) {
  QContextMenuEvent click(QContextMenuEvent::Mouse, QPoint(4, 4), field->mapToGlobal(QPoint(4, 4)));
  QCoreApplication::sendEvent(field, &click);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(KeyField, TakesTheKeysThatAreSomethingElseElsewhere) {
  for (const auto& [key, name] :
       {std::pair(Qt::Key_Escape, "Esc"), std::pair(Qt::Key_Return, "Enter"),
        std::pair(Qt::Key_Enter, "Enter"), std::pair(Qt::Key_Backspace, "Backspace"),
        std::pair(Qt::Key_Delete, "Delete"), std::pair(Qt::Key_Left, "Left"),
        std::pair(Qt::Key_Space, "Space"), std::pair(Qt::Key_F5, "F5"),
        std::pair(Qt::Key_VolumeUp, "Volume Up")}) {
    QTest::keyClick(field, key);
    EXPECT_EQ(field->text().toStdString(), name);
  }
  QTest::keyClick(field, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(field->text(), QStringLiteral("Ctrl+A"));
  EXPECT_FALSE(field->hasSelectedText());
}

TEST_F(KeyField, AModifierAloneIsNoKey) {
  QTest::keyClick(field, Qt::Key_P);
  QTest::keyPress(field, Qt::Key_Control, Qt::ControlModifier);
  QTest::keyRelease(field, Qt::Key_Control, Qt::ControlModifier);
  QTest::keyClick(field, Qt::Key_P, Qt::MetaModifier);
  EXPECT_EQ(field->text(), QStringLiteral("P"));
}

TEST_F(KeyField, TabLeadsOn) {
  QTest::keyClick(field, Qt::Key_Tab);
  EXPECT_TRUE(next->hasFocus());
  EXPECT_EQ(field->Key(), TCKey());
}

// The field tells the press, the actions bind it: both have to mean one key.
TEST(QtKeys, APressAndTheKeyThatIsBoundForItAreOne) {
  for (auto code = static_cast<std::uint32_t>(TCKeyCode::F1);
       code <= static_cast<std::uint32_t>(TCKeyCode::MediaPlayPause); ++code) {
    const TCKey key(static_cast<TCKeyCode>(code), TCKeyModifier::Ctrl | TCKeyModifier::Shift);
    for (const QKeySequence& sequence : ToQtKeys(key)) {
      EXPECT_EQ(FromQtKey(sequence[0].key(), sequence[0].keyboardModifiers()), key) << code;
    }
    EXPECT_FALSE(ToQtKeys(key).isEmpty()) << code;
  }
  for (const char16_t character : {u'A', u'5', u'+', u'\x00D6', u'\x0416'}) {
    const TCKey key(CharacterKey(character), TCKeyModifier::Alt);
    const QKeyCombination bound = ToQtKeys(key).constFirst()[0];
    EXPECT_EQ(FromQtKey(bound.key(), bound.keyboardModifiers()), key);
  }
  EXPECT_EQ(FromQtKey(Qt::Key_Tab, {}), TCKey());
  EXPECT_EQ(FromQtKey(Qt::Key_Shift, Qt::ShiftModifier), TCKey());
  EXPECT_EQ(FromQtKey(Qt::Key_5, Qt::KeypadModifier), TCKey(CharacterKey(u'5')));
}

}  // namespace
}  // namespace brevant
