#include "views/playlist_model.h"

#include <gtest/gtest.h>

#include <QAbstractItemModelTester>
#include <QBrush>
#include <QPixmap>
#include <QSignalSpy>

#include "views/playlist_rows.h"

namespace brevant {
namespace {

class PlaylistModel : public testing::Test {
 protected:
  [[nodiscard]] QString Text(int row, TCPlaylistColumn column) const {
    return model.index(row, static_cast<int>(column)).data(Qt::DisplayRole).toString();
  }
  [[nodiscard]] QColor Colour(int row, int role) const {
    return model.index(row, 1).data(role).value<QBrush>().color();
  }
  [[nodiscard]] QString Header(int section) const {
    return model.headerData(section, Qt::Horizontal, Qt::DisplayRole).toString();
  }

  TCPlaylistModel model;
  // Ends the test when the model breaks one of Qt's rules for models.
  QAbstractItemModelTester tester{&model, QAbstractItemModelTester::FailureReportingMode::Fatal};
};

TEST_F(PlaylistModel, HasFiveColumnsWithTheirHeaders) {
  EXPECT_EQ(model.columnCount(), 5);
  EXPECT_EQ(Header(0), QStringLiteral(" "));
  EXPECT_EQ(Header(1), QStringLiteral("Song #"));
  EXPECT_EQ(Header(2), QStringLiteral("Status"));
  EXPECT_EQ(Header(3), QStringLiteral("Song Time"));
  EXPECT_EQ(Header(4), QStringLiteral("Play List"));
  EXPECT_EQ(Header(5), QString());
}

TEST_F(PlaylistModel, TheLastHeaderTakesThePlaylistsNameAndTotal) {
  model.SetNameHeader(QStringLiteral("Set 1 - Total Playlist Time: 12:34"));
  EXPECT_EQ(Header(4), QStringLiteral("Set 1 - Total Playlist Time: 12:34"));
}

TEST_F(PlaylistModel, ShowsEachTextInItsColumn) {
  TCPlaylistRow row;
  row.texts = {u"7", u"Found\\Lyrics", u"01:02:03", u"Open Road.mp3"};
  model.ShowRows({row}, TCShowRows::Afresh);
  EXPECT_EQ(Text(0, TCPlaylistColumn::Picture), QString());
  EXPECT_EQ(Text(0, TCPlaylistColumn::Number), QStringLiteral("7"));
  EXPECT_EQ(Text(0, TCPlaylistColumn::Status), QStringLiteral("Found\\Lyrics"));
  EXPECT_EQ(Text(0, TCPlaylistColumn::Time), QStringLiteral("01:02:03"));
  EXPECT_EQ(Text(0, TCPlaylistColumn::Name), QStringLiteral("Open Road.mp3"));
}

TEST_F(PlaylistModel, EveryRowHasItsOwnColours) {
  model.ShowRows({RowNamed(u"a", 0x00FF00, kBlack), RowNamed(u"b", 0xFFBF00, kWhite)}, TCShowRows::Afresh);
  EXPECT_EQ(Colour(0, Qt::ForegroundRole), QColor(0, 255, 0));
  EXPECT_EQ(Colour(0, Qt::BackgroundRole), QColor(Qt::black));
  EXPECT_EQ(Colour(1, Qt::ForegroundRole), QColor(255, 191, 0));
  EXPECT_EQ(Colour(1, Qt::BackgroundRole), QColor(Qt::white));
}

TEST_F(PlaylistModel, ThePictureStandsInTheFirstColumnOfEveryRow) {
  model.ShowRows(Rows(2), TCShowRows::Afresh);
  EXPECT_FALSE(model.index(1, 0).data(Qt::DecorationRole).isValid());
  QPixmap pixmap(16, 16);
  pixmap.fill(Qt::red);
  model.SetRowPicture(QIcon(pixmap));
  EXPECT_FALSE(model.index(0, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
  EXPECT_FALSE(model.index(1, 0).data(Qt::DecorationRole).value<QIcon>().isNull());
  EXPECT_FALSE(model.index(1, 1).data(Qt::DecorationRole).isValid());
}

TEST_F(PlaylistModel, RowsShownInPlaceAddAndRemoveAtTheEndAndResetNothing) {
  model.ShowRows(Rows(3), TCShowRows::Afresh);
  const QSignalSpy resets(&model, &QAbstractItemModel::modelReset);
  model.ShowRows(Rows(5), TCShowRows::KeepPlace);
  EXPECT_EQ(model.rowCount(), 5);
  model.ShowRows(Rows(2), TCShowRows::KeepPlace);
  EXPECT_EQ(model.rowCount(), 2);
  model.ShowRows({RowNamed(u"x"), RowNamed(u"y")}, TCShowRows::KeepPlace);
  EXPECT_EQ(Text(1, TCPlaylistColumn::Name), QStringLiteral("y"));
  model.ShowRows({}, TCShowRows::KeepPlace);
  EXPECT_EQ(model.rowCount(), 0);
  EXPECT_EQ(resets.count(), 0);
}

TEST_F(PlaylistModel, RowsThatAreNotThereAreIgnored) {
  model.ShowRows(Rows(1), TCShowRows::Afresh);
  const QSignalSpy changes(&model, &QAbstractItemModel::dataChanged);
  for (const int row : {-1, 1, 1000}) {
    model.SetTexts(row, {});
    model.SetTime(row, u"09:09");
  }
  EXPECT_EQ(changes.count(), 0);
  EXPECT_EQ(Text(0, TCPlaylistColumn::Time), QStringLiteral("03:45"));
}

TEST_F(PlaylistModel, ColoursBeyondTheLastRowAreDroppedAndRowsBeyondTheLastColourKeepTheirs) {
  model.ShowRows(Rows(2), TCShowRows::Afresh);
  model.SetColours({{kWhite, 0xFF0000}, {kWhite, 0x00FF00}, {kWhite, 0x0000FF}});
  EXPECT_EQ(Colour(1, Qt::ForegroundRole), QColor(0, 255, 0));
  model.SetColours({{kBlack, 0x123456}});
  EXPECT_EQ(Colour(0, Qt::ForegroundRole), QColor(0x12, 0x34, 0x56));
  EXPECT_EQ(Colour(1, Qt::ForegroundRole), QColor(0, 255, 0));
  model.SetColours({});
  EXPECT_EQ(Colour(0, Qt::ForegroundRole), QColor(0x12, 0x34, 0x56));
}

TEST_F(PlaylistModel, OfAnEndlessNameOnlyItsBeginningGoesToTheScreen) {
  model.ShowRows({RowNamed(std::u16string(1'000'000, u'x'))}, TCShowRows::Afresh);
  EXPECT_LE(Text(0, TCPlaylistColumn::Name).size(), 1000);
}

}  // namespace
}  // namespace brevant
