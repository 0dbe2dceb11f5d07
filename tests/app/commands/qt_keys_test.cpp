#include "app/commands/qt_keys.h"

#include <gtest/gtest.h>

#include <set>

#include "resources/command_table.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

TEST(QtKeys, EnterIsTheMainKeyAndTheKeypads) {
  const QList<QKeySequence> expected{QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)};
  EXPECT_EQ(ToQtKeys(TCKeyCode::Enter), expected);
}

TEST(QtKeys, NoKeyIsNoSequence) {
  EXPECT_TRUE(ToQtKeys(TCKey()).isEmpty());
}

TEST(QtKeys, ModifiersAreKept) {
  EXPECT_EQ(ToQtKeys(Ctrl(TCKeyCode::G)), QList<QKeySequence>{QKeySequence(Qt::CTRL | Qt::Key_G)});
  EXPECT_EQ(ToQtKeys(Shift(TCKeyCode::M)), QList<QKeySequence>{QKeySequence(Qt::SHIFT | Qt::Key_M)});
  EXPECT_EQ(ToQtKeys(Alt(TCKeyCode::Backspace)),
            QList<QKeySequence>{QKeySequence(Qt::ALT | Qt::Key_Backspace)});
}

TEST(QtKeys, EveryKeyOfTheTableIsAKeyOfTheToolkit) {
  for (const TCCommand& command : Commands()) {
    for (const TCKey& key : command.keys) {
      EXPECT_FALSE(ToQtKeys(key).isEmpty()) << ToQString(KeyName(key)).toStdString();
    }
  }
}

TEST(QtKeys, NoTwoKeysOfTheTableAreOneKeyOfTheToolkit) {
  std::set<QKeySequence> seen;
  for (const TCKeyBinding& binding : EffectiveBindings()) {
    for (const QKeySequence& sequence : ToQtKeys(binding.key)) {
      EXPECT_TRUE(seen.insert(sequence).second) << sequence.toString().toStdString();
    }
  }
}

TEST(QtKeys, LettersDigitsAndFunctionKeysAreTheirNamesakes) {
  for (const TCKeyCode code :
       {TCKeyCode::A, TCKeyCode::Z, TCKeyCode::Digit2, TCKeyCode::Digit3, TCKeyCode::F1, TCKeyCode::F9,
        TCKeyCode::Space, TCKeyCode::Home, TCKeyCode::Delete}) {
    const QString expected = code == TCKeyCode::Delete ? QStringLiteral("Del") : ToQString(KeyName(code));
    EXPECT_EQ(ToQtKeys(code).constFirst().toString(QKeySequence::PortableText), expected);
  }
}

}  // namespace
}  // namespace brevant
