#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QHeaderView>
#include <QImage>
#include <QPaintEvent>
#include <QPixmap>
#include <QScrollBar>
#include <QTest>
#include <array>
#include <utility>

#include "model/play_marks.h"
#include "views/brevant_view.h"
#include "views/playlist_rows.h"
#include "views/row_colours.h"

namespace brevant {
namespace {

class BrevantViewDrawing : public testing::Test {
 protected:
  void SetUp() override {
    view.resize(900, 500);
    view.SetDisplayFont(u"Times New Roman", 30);
    view.show();
  }
  [[nodiscard]] QImage Viewport() { return view.viewport()->grab().toImage(); }
  [[nodiscard]] QImage Row(int row) {
    return Viewport().copy(0, view.rowViewportPosition(row), view.viewport()->width(), view.rowHeight(row));
  }
  [[nodiscard]] QImage Header() { return view.horizontalHeader()->viewport()->grab().toImage(); }

  // How many pixels have exactly this colour.
  static int Count(const QImage& image, TCRgb colour) {
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) count += (image.pixel(x, y) & 0xFFFFFFU) == colour ? 1 : 0;
    }
    return count;
  }
  static bool IsMostly(const QImage& image, TCRgb colour) {
    return Count(image, colour) > image.width() * image.height() / 2;
  }

  TCBrevantView view;
};

TEST_F(BrevantViewDrawing, EachRowIsDrawnInItsOwnColours) {
  view.ShowRows({RowNamed(u"Previous", kPreviousColour), RowNamed(u"Current", kCurrentColour),
                 RowNamed(u"Next", kNextColour), RowNamed(u"Other", kWhite),
                 RowNamed(u"Black on white", kBlack, kWhite)},
                TCShowRows::Afresh);
  const std::array texts{kPreviousColour, kCurrentColour, kNextColour, kWhite};
  for (int row = 0; row < 4; ++row) {
    EXPECT_TRUE(IsMostly(Row(row), kBlack)) << row;
    for (int other = 0; other < 4; ++other) {
      const int pixels = Count(Row(row), texts[static_cast<std::size_t>(other)]);
      if (other == row) {
        EXPECT_GT(pixels, 50) << row;
      } else {
        EXPECT_EQ(pixels, 0) << row << " in the colour of " << other;
      }
    }
  }
  EXPECT_TRUE(IsMostly(Row(4), kWhite));
  EXPECT_GT(Count(Row(4), kBlack), 50);
}

TEST_F(BrevantViewDrawing, RecolouringRedrawsRowsAndTheEmptySpaceAndTheHeader) {
  view.ShowRows(Rows(2), TCShowRows::Afresh);
  EXPECT_TRUE(IsMostly(Viewport(), kBlack));
  EXPECT_TRUE(IsMostly(Header(), kBlack));
  view.SetRowColours({{kWhite, kCurrentColour}, {kWhite, kBlack}});
  EXPECT_TRUE(IsMostly(Viewport(), kWhite));
  EXPECT_TRUE(IsMostly(Header(), kWhite));
  EXPECT_GT(Count(Header(), kBlack), 50);
  EXPECT_GT(Count(Row(0), kCurrentColour), 50);
  EXPECT_GT(Count(Row(1), kBlack), 50);
}

TEST_F(BrevantViewDrawing, WithoutAnyRowTheBackgroundIsTheOneThatWasSet) {
  EXPECT_TRUE(IsMostly(Viewport(), kBlack));
  view.SetBackground(Qt::black, Qt::white);
  EXPECT_EQ(Count(Viewport(), kWhite), view.viewport()->width() * view.viewport()->height());
  EXPECT_TRUE(IsMostly(Header(), kWhite));
  view.SetBackground(Qt::white, Qt::black);
  EXPECT_EQ(Count(Viewport(), kBlack), view.viewport()->width() * view.viewport()->height());
  EXPECT_GT(Count(Header(), kWhite), 50);
}

TEST_F(BrevantViewDrawing, ASelectedRowKeepsItsTextColourAndStandsOut) {
  for (const TCRgb background : {kBlack, kWhite}) {
    for (const TCRgb text : {kPreviousColour, kCurrentColour, kNextColour, background ^ kWhite}) {
      view.ShowRows({RowNamed(u"Some song", text, background), RowNamed(u"Other", text, background)},
                    TCShowRows::Afresh);
      view.SelectRow(0);
      EXPECT_GT(Count(Row(0), text), 50) << std::hex << text;
      EXPECT_TRUE(IsMostly(Row(0), SelectedBackground(text))) << std::hex << text;
      EXPECT_GT(Count(Row(0), kSelectionOutline), view.viewport()->width()) << std::hex << text;
      EXPECT_TRUE(IsMostly(Row(1), background)) << std::hex << text;
      EXPECT_EQ(Count(Row(1), kSelectionOutline), 0) << std::hex << text;
    }
  }
}

TEST_F(BrevantViewDrawing, ThePictureOfASelectedRowIsTheOneThatIsSeenOnIt) {
  constexpr TCRgb kPlain = 0x804020;
  constexpr TCRgb kSelected = 0x208040;
  QIcon picture;
  for (const auto& [colour, mode] :
       {std::pair(kPlain, QIcon::Normal), std::pair(kSelected, QIcon::Selected)}) {
    QPixmap pixmap(64, 64);
    pixmap.fill(ToQColor(colour));
    picture.addPixmap(pixmap, mode);
  }
  view.SetRowPicture(picture);
  const auto show = [this](TCRgb windowText, TCRgb rowText) {
    QPalette colours = view.palette();
    colours.setColor(QPalette::ButtonText, ToQColor(windowText));
    colours.setColor(QPalette::HighlightedText, Qt::white);
    view.setPalette(colours);
    view.ShowRows({RowNamed(u"Selected", rowText), RowNamed(u"Other", rowText)}, TCShowRows::Afresh);
    view.SelectRow(0);
  };
  show(kBlack, kNextColour);  // on dark blue
  EXPECT_GT(Count(Row(0), kSelected), 50);
  EXPECT_EQ(Count(Row(0), kPlain), 0);
  EXPECT_EQ(Count(Row(1), kSelected), 0);
  show(kBlack, kBlack);  // on light blue
  EXPECT_EQ(Count(Row(0), kSelected), 0);
  EXPECT_GT(Count(Row(0), kPlain), 50);
  show(kWhite, kNextColour);
  EXPECT_EQ(Count(Row(0), kSelected), 0);
  EXPECT_GT(Count(Row(0), kPlain), 50);
}

TEST_F(BrevantViewDrawing, ASelectedRowLooksTheSameWhereverTheFocusIs) {
  view.ShowRows(Rows(2), TCShowRows::Afresh);
  view.SelectRow(0);
  view.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&view));
  view.setFocus();
  ASSERT_TRUE(view.hasFocus());
  const QImage focused = Row(0);
  view.clearFocus();
  EXPECT_EQ(Row(0), focused);
}

TEST_F(BrevantViewDrawing, TheRowPictureIsDrawnInEveryRow) {
  QPixmap pixmap(16, 16);
  pixmap.fill(QColor(1, 2, 250));
  view.SetRowPicture(QIcon(pixmap));
  view.ShowRows(Rows(2), TCShowRows::Afresh);
  for (const int row : {0, 1}) EXPECT_GT(Count(Row(row).copy(0, 0, 64, 100), 0x0102FA), 100) << row;
}

TEST_F(BrevantViewDrawing, ALineBreakInANameDoesNotPushTheTextOutOfItsRow) {
  view.ShowRows({RowNamed(u"Song")}, TCShowRows::Afresh);
  const int plain = Count(Row(0), kWhite);
  view.ShowRows({RowNamed(u"\nSong\r\n"), RowNamed(u"\u2028Song")}, TCShowRows::Afresh);
  EXPECT_EQ(Count(Row(0), kWhite), plain);
  EXPECT_EQ(Count(Row(1), kWhite), plain);
}

TEST_F(BrevantViewDrawing, TheTotalInTheHeaderStaysInSightInANarrowWindow) {
  view.ShowRows(Rows(2), TCShowRows::Afresh);
  view.SetPlaylistHeader(u"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW 01:02:03");
  const QImage withTotal = Header();
  view.SetPlaylistHeader(u"WWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWWW 01:02:08");
  EXPECT_NE(Header(), withTotal);
}

// Remembers what a widget was asked to draw.
class TCPaintLog : public QObject {
 public:
  QRegion painted;

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) painted += static_cast<QPaintEvent*>(event)->region();
    return false;
  }
};

TEST_F(BrevantViewDrawing, TheHeaderIsDrawnAnewAfterAScrollToTheSideAsItIsCutElsewhere) {
  view.ShowRows(Rows(2), TCShowRows::Afresh);
  QCoreApplication::processEvents();
  QWidget* drawn = view.horizontalHeader()->viewport();
  TCPaintLog log;
  drawn->installEventFilter(&log);
  view.horizontalScrollBar()->setValue(20);
  QCoreApplication::processEvents();
  EXPECT_EQ(log.painted, QRegion(drawn->rect()));
}

TEST_F(BrevantViewDrawing, AnEndlessNameIsDrawnAsFarAsItsRowGoes) {
  view.ShowRows({RowNamed(std::u16string(1'000'000, u'm'))}, TCShowRows::Afresh);
  EXPECT_GT(Count(Row(0), kWhite), 50);
}

}  // namespace
}  // namespace brevant
