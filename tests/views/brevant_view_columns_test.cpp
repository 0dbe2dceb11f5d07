#include <gtest/gtest.h>

#include <QHeaderView>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>

#include "views/brevant_view.h"
#include "views/playlist_rows.h"

namespace brevant {
namespace {

class BrevantViewColumns : public testing::Test {
 protected:
  void SetUp() override {
    view.resize(900, 400);
    view.show();
  }
  [[nodiscard]] std::vector<int> Widths() const {
    std::vector<int> widths;
    for (int column = 0; column < 5; ++column) widths.push_back(view.columnWidth(column));
    return widths;
  }
  // Drags the right edge of a column as the user does.
  void DragEdge(int column, int pixels) {
    QHeaderView* header = view.horizontalHeader();
    const int edge = header->sectionViewportPosition(column) + header->sectionSize(column) - 1;
    const int middle = header->height() / 2;
    QTest::mousePress(header->viewport(), Qt::LeftButton, {}, QPoint(edge, middle));
    QTest::mouseMove(header->viewport(), QPoint(edge + pixels, middle));
    QTest::mouseRelease(header->viewport(), Qt::LeftButton, {}, QPoint(edge + pixels, middle));
  }
  [[nodiscard]] int TextWidth(int row, int column) const {
    const QFontMetrics metrics(view.font(), &view);
    return metrics.horizontalAdvance(view.model()->index(row, column).data().toString());
  }

  TCBrevantView view;
};

TEST_F(BrevantViewColumns, BeginWithTheInitialWidths) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  EXPECT_EQ(Widths(), (std::vector<int>{64, 64, 96, 96, 1024}));
}

TEST_F(BrevantViewColumns, NumberStatusAndTimeAreNeverCutOffAtAnyFontSize) {
  std::vector<TCPlaylistRow> rows = Rows(3);
  rows[2].texts = {u"10000", u"Not found\\Lyrics", u"101:02:03", u"Song"};
  view.ShowRows(rows, TCShowRows::Afresh);
  for (const int points : {1, 8, 14, 24, 40, 72}) {
    view.SetDisplayFont(u"Times New Roman", points);
    for (int column = 1; column <= 3; ++column) {
      EXPECT_GT(view.columnWidth(column), TextWidth(2, column)) << points << " points, column " << column;
      const QString title = view.model()->headerData(column, Qt::Horizontal).toString();
      EXPECT_GT(view.columnWidth(column), QFontMetrics(view.font(), &view).horizontalAdvance(title));
    }
  }
}

TEST_F(BrevantViewColumns, ShrinkAgainWithTheFont) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  view.SetDisplayFont(u"Times New Roman", 60);
  EXPECT_GT(view.columnWidth(2), 96);
  view.SetDisplayFont(u"Times New Roman", 14);
  EXPECT_EQ(view.columnWidth(2), 96);
}

TEST_F(BrevantViewColumns, MakeRoomForATextThatComesLater) {
  view.SetDisplayFont(u"Times New Roman", 30);
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  const int before = view.columnWidth(3);
  view.SetRowTime(1, u"101:02:03 and more");
  EXPECT_GT(view.columnWidth(3), before);
  EXPECT_GT(view.columnWidth(3), TextWidth(1, 3));
  view.SetRowTexts(1, {u"2", u"Not found\\Lyrics", u"00:00", u"Song"});
  EXPECT_GT(view.columnWidth(2), TextWidth(1, 2));
}

TEST_F(BrevantViewColumns, DoNotJumpBackWhileThePlaylistStays) {
  view.SetDisplayFont(u"Times New Roman", 30);
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  view.SetRowTexts(1, {u"2", u"Not found\\Lyrics", u"00:00", u"Song"});
  const std::vector<int> widths = Widths();
  view.ShowRows(Rows(3), TCShowRows::KeepPlace);
  EXPECT_EQ(Widths(), widths);
}

TEST_F(BrevantViewColumns, ScrollToTheSideOnlyWhereANameIsCutOff) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);  // short names in a column wider than the window
  EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
  std::vector<TCPlaylistRow> rows = Rows(3);
  rows[1].texts.name = std::u16string(200, u'W');
  view.ShowRows(rows, TCShowRows::Afresh);
  QCoreApplication::processEvents();
  EXPECT_TRUE(view.horizontalScrollBar()->isVisible());
}

TEST_F(BrevantViewColumns, DoNotScrollToTheSideForAHeaderThatIsCutOff) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  view.SetPlaylistHeader(std::u16string(200, u'W') + u" - Total Playlist Time: 01:02:03");
  QCoreApplication::processEvents();
  EXPECT_FALSE(view.horizontalScrollBar()->isVisible());
}

TEST_F(BrevantViewColumns, GoBackToTheFirstColumnWhenNoNameIsCutOffAnyMore) {
  std::vector<TCPlaylistRow> rows = Rows(3);
  rows[1].texts.name = std::u16string(200, u'W');
  view.ShowRows(rows, TCShowRows::Afresh);
  QCoreApplication::processEvents();
  view.horizontalScrollBar()->setValue(50);
  ASSERT_EQ(view.horizontalScrollBar()->value(), 50);
  view.ShowRows(Rows(3), TCShowRows::KeepPlace);
  EXPECT_EQ(view.horizontalScrollBar()->value(), 0);
}

TEST_F(BrevantViewColumns, TheNamesTakeWhatAWideWindowLeaves) {
  view.resize(3000, 400);
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  EXPECT_EQ(view.horizontalHeader()->length(), view.viewport()->width());
  EXPECT_EQ(view.horizontalScrollBar()->maximum(), 0);
}

TEST_F(BrevantViewColumns, TheNamesAreAsWideAsTheHeaderAboveThem) {
  view.SetDisplayFont(u"Times New Roman", 60);
  const QString title = QStringLiteral("A name of a playlist that is long - Total Playlist Time: 01:02:03");
  view.SetPlaylistHeader(title.toStdU16String());
  EXPECT_GT(view.columnWidth(4), QFontMetrics(view.font(), &view).horizontalAdvance(title));
}

TEST_F(BrevantViewColumns, AWidthThatTheUserDraggedStands) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  DragEdge(2, 30);
  EXPECT_EQ(view.columnWidth(2), 126);
  view.SetDisplayFont(u"Times New Roman", 60);
  view.ShowRows(Rows(30), TCShowRows::Afresh);
  EXPECT_EQ(view.columnWidth(2), 126);
}

TEST_F(BrevantViewColumns, ADoubleClickOnAnEdgeLetsTheColumnFollowTheFontAgain) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  DragEdge(2, 30);
  QHeaderView* header = view.horizontalHeader();
  const QPoint edge(header->sectionViewportPosition(2) + header->sectionSize(2) - 1, header->height() / 2);
  QTest::mouseDClick(header->viewport(), Qt::LeftButton, {}, edge);
  EXPECT_EQ(view.columnWidth(2), 96);
}

TEST_F(BrevantViewColumns, SavedWidthsComeBackInAnotherView) {
  const QTemporaryDir folder;
  ASSERT_TRUE(folder.isValid());
  const QString path = folder.filePath(QStringLiteral("Profile.ini"));
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  DragEdge(2, 30);
  {
    QSettings store(path, QSettings::IniFormat);
    view.SaveColumnWidths(store);
  }
  QSettings store(path, QSettings::IniFormat);
  TCBrevantView later;
  later.LoadColumnWidths(store);
  EXPECT_EQ(later.columnWidth(2), 126);
  EXPECT_EQ(later.columnWidth(1), 64);
}

TEST_F(BrevantViewColumns, ALargeFontIsNotTakenForTheUsersWish) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  view.SetDisplayFont(u"Times New Roman", 100000);
  view.SetDisplayFont(u"Times New Roman", 14);
  EXPECT_EQ(Widths(), (std::vector<int>{64, 64, 96, 96, 1024}));
}

TEST_F(BrevantViewColumns, AllRowsAreEquallyHighAndHoldTheFont) {
  view.ShowRows(Rows(30), TCShowRows::Afresh);
  for (const int points : {1, 14, 40, 72}) {
    view.SetDisplayFont(u"Times New Roman", points);
    EXPECT_GE(view.rowHeight(0), QFontMetrics(view.font(), &view).height()) << points;
    EXPECT_EQ(view.rowHeight(29), view.rowHeight(0));
    EXPECT_GE(view.rowHeight(0), view.iconSize().height());
  }
  EXPECT_EQ(view.verticalHeader()->sectionResizeMode(0), QHeaderView::Fixed);
  EXPECT_TRUE(view.verticalHeader()->isHidden());
}

TEST_F(BrevantViewColumns, TheHeaderTakesTheRowsFontAndHeight) {
  view.SetDisplayFont(u"Times New Roman", 40);
  EXPECT_EQ(view.horizontalHeader()->font().pointSize(), 40);
  EXPECT_EQ(view.font().pointSize(), 40);
  EXPECT_GE(view.horizontalHeader()->height(), QFontMetrics(view.font(), &view).height());
}

TEST_F(BrevantViewColumns, FontSizesOutOfReasonStayUsable) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  view.SetDisplayFont(u"Times New Roman", -7);
  EXPECT_EQ(view.font().pointSize(), 1);
  view.SetDisplayFont(u"Times New Roman", 2'000'000'000);
  EXPECT_LT(view.rowHeight(0), 1000);
}

TEST_F(BrevantViewColumns, AClickOnAHeaderSelectsNothing) {
  view.ShowRows(Rows(3), TCShowRows::Afresh);
  QTest::mouseClick(view.horizontalHeader()->viewport(), Qt::LeftButton, {}, QPoint(300, 5));
  EXPECT_EQ(view.SelectedRow(), -1);
}

}  // namespace
}  // namespace brevant
