#include "views/column_widths.h"

#include <gtest/gtest.h>

#include <QTemporaryDir>

namespace brevant {
namespace {

using enum TCPlaylistColumn;

class ColumnWidths : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(folder.isValid()); }
  [[nodiscard]] QString StorePath() const { return folder.filePath(QStringLiteral("Profile.ini")); }

  QTemporaryDir folder;
  TCColumnWidths widths;
};

TEST_F(ColumnWidths, BeginWithTheInitialWidths) {
  EXPECT_EQ(widths.Of(Picture), 64);
  EXPECT_EQ(widths.Of(Number), 64);
  EXPECT_EQ(widths.Of(Status), 96);
  EXPECT_EQ(widths.Of(Time), 96);
  EXPECT_EQ(widths.Of(Name), 1024);
}

TEST_F(ColumnWidths, AreNeverNarrowerThanTheTextsNeedNorThanTheInitialWidth) {
  widths.SetNeeded(Status, 300);
  EXPECT_EQ(widths.Of(Status), 300);
  widths.SetNeeded(Status, 10);
  EXPECT_EQ(widths.Of(Status), 96);
}

TEST_F(ColumnWidths, MakeRoomForATextAndDoNotShrinkAgain) {
  widths.MakeRoomFor(Status, 300, 7);
  EXPECT_EQ(widths.Of(Status), 307);
  widths.MakeRoomFor(Status, 200, 7);
  EXPECT_EQ(widths.Of(Status), 307);
}

TEST_F(ColumnWidths, StayAsTheyAreForATextThatFits) {
  widths.MakeRoomFor(Status, 96, 7);
  EXPECT_EQ(widths.Of(Status), 96);
  widths.MakeRoomFor(Status, 97, 7);
  EXPECT_EQ(widths.Of(Status), 104);
}

TEST_F(ColumnWidths, TheUsersWidthStandsWhateverTheTextsNeedUntilItIsReleased) {
  widths.SetNeeded(Status, 300);
  widths.SetByUser(Status, 40);
  EXPECT_EQ(widths.Of(Status), 40);
  widths.Release(Status);
  EXPECT_EQ(widths.Of(Status), 300);
}

TEST_F(ColumnWidths, TheUsersWidthsComeBackAndTheOthersFollowTheFontAgain) {
  widths.SetNeeded(Time, 500);
  widths.SetByUser(Status, 123);
  {
    QSettings store(StorePath(), QSettings::IniFormat);
    widths.Save(store);
  }
  TCColumnWidths later;
  QSettings store(StorePath(), QSettings::IniFormat);
  later.Load(store);
  EXPECT_EQ(later.Of(Status), 123);
  EXPECT_EQ(later.Of(Time), 96);
}

TEST_F(ColumnWidths, AnEmptyOrDamagedStoreChangesNothing) {
  widths.SetByUser(Status, 123);
  QSettings store(StorePath(), QSettings::IniFormat);
  widths.Load(store);
  EXPECT_EQ(widths.Of(Status), 123);
  const QString key = QStringLiteral("PlaylistView/ColumnWidths");
  for (const QStringList& damaged : {
           QStringList{QStringLiteral("1"), QStringLiteral("2")},
           QStringList{QStringLiteral("0"), QStringLiteral("x"), QStringLiteral("0"), QStringLiteral("0"),
                       QStringLiteral("0")},
           QStringList{QStringLiteral("0"), QStringLiteral("-5"), QStringLiteral("77"), QStringLiteral("0"),
                       QStringLiteral("0")},
           QStringList{QStringLiteral("0"), QStringLiteral("0"), QStringLiteral("77"), QStringLiteral("0"),
                       QStringLiteral("99999999999")},
       }) {
    store.setValue(key, damaged);
    widths.Load(store);
    EXPECT_EQ(widths.Of(Status), 123) << damaged.join(QLatin1Char(',')).toStdString();
  }
}

TEST_F(ColumnWidths, AnEndlessTextDoesNotMakeAnEndlessColumn) {
  widths.SetNeeded(Status, 2'000'000'000);
  EXPECT_LE(widths.Of(Status), 16384);
}

}  // namespace
}  // namespace brevant
