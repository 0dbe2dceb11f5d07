#include "app/kept_state.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace brevant {
namespace {

class KeptStates : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(folder.isValid()); }

  QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("Layout.ini"));
  const QString name = QStringLiteral("NormalLayout");
  const QByteArray state = QByteArray("\0\xff\x10 state, \r\n and more", 24);
};

TEST_F(KeptStates, WhatWasKeptComesBack) {
  {
    QSettings layout(file, QSettings::IniFormat);
    KeepState(layout, name, state);
    KeepState(layout, QStringLiteral("CommandBars"), QByteArray("other"));
  }
  const QSettings layout(file, QSettings::IniFormat);
  EXPECT_EQ(KeptState(layout, name), state);
  EXPECT_EQ(KeptState(layout, QStringLiteral("CommandBars")), QByteArray("other"));
}

TEST_F(KeptStates, WhatIsNotThereOrHasNoCheckIsNothing) {
  QSettings layout(file, QSettings::IniFormat);
  EXPECT_EQ(KeptState(layout, name), QByteArray());
  layout.setValue(name, state);
  EXPECT_EQ(KeptState(layout, name), QByteArray());
  layout.setValue(name + QStringLiteral("Check"), QStringLiteral("much"));
  EXPECT_EQ(KeptState(layout, name), QByteArray());
}

TEST_F(KeptStates, AStateWhoseCheckIsNoughtNeedsItAllTheSame) {
  QByteArray sumless(3, 'x');
  for (int number = 0; number < 0x10000 && qChecksum(sumless) != 0; ++number) {
    sumless[0] = static_cast<char>(number & 0xFF);
    sumless[1] = static_cast<char>(number >> 8);
  }
  ASSERT_EQ(qChecksum(sumless), 0);
  QSettings layout(file, QSettings::IniFormat);
  layout.setValue(name, sumless);
  EXPECT_EQ(KeptState(layout, name), QByteArray());
  KeepState(layout, name, sumless);
  EXPECT_EQ(KeptState(layout, name), sumless);
}

TEST_F(KeptStates, AStateWithOneBitChangedIsNothing) {
  QSettings layout(file, QSettings::IniFormat);
  KeepState(layout, name, state);
  for (qsizetype place = 0; place < state.size(); ++place) {
    for (int bit = 0; bit < 8; ++bit) {
      QByteArray damaged = state;
      damaged[place] = static_cast<char>(damaged[place] ^ (1 << bit));
      layout.setValue(name, damaged);
      EXPECT_EQ(KeptState(layout, name), QByteArray()) << place << ' ' << bit;
    }
  }
  layout.setValue(name, state.left(8));
  EXPECT_EQ(KeptState(layout, name), QByteArray());
}

}  // namespace
}  // namespace brevant
