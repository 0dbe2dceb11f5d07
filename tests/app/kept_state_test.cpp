#include "app/kept_state.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace brevant {
namespace {

class KeptStateTest : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(folder.isValid()); }

  QTemporaryDir folder;
  const QString file = folder.filePath(QStringLiteral("Layout.ini"));
  const QString name = QStringLiteral("NormalLayout");
  const QByteArray state = QByteArray("\0\xff\x10 state, \r\n and more", 24);
};

TEST_F(KeptStateTest, WhatWasKeptComesBack) {
  {
    QSettings layout(file, QSettings::IniFormat);
    KeepState(layout, name, state);
    KeepState(layout, QStringLiteral("CommandBars"), QByteArray("other"));
  }
  const QSettings layout(file, QSettings::IniFormat);
  EXPECT_EQ(KeptState(layout, name), state);
  EXPECT_EQ(KeptState(layout, QStringLiteral("CommandBars")), QByteArray("other"));
}

TEST_F(KeptStateTest, WhatIsNotThereOrHasNoCheckIsNothing) {
  QSettings layout(file, QSettings::IniFormat);
  EXPECT_EQ(KeptState(layout, name), QByteArray());
  layout.setValue(name, state);
  EXPECT_EQ(KeptState(layout, name), QByteArray());
  layout.setValue(name + QStringLiteral("Check"), QStringLiteral("much"));
  EXPECT_EQ(KeptState(layout, name), QByteArray());
}

TEST_F(KeptStateTest, AStateWithOneBitChangedIsNothing) {
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
