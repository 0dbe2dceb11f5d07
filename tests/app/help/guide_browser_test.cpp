#include "app/help/guide_browser.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QScrollBar>
#include <QSignalSpy>
#include <QTest>
#include <QTextBlock>
#include <set>

#include "app/help/guide_dress.h"
#include "app/look/stage_palette.h"

namespace brevant {
namespace {

using Direction = TCGuideBrowser::TCDirection;
using From = TCGuideBrowser::TCFrom;

class GuideBrowser : public testing::Test {
 protected:
  void SetUp() override {
    browser.resize(600, 300);
    browser.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&browser));
  }

  // The line at the top of what is shown.
  [[nodiscard]] QString TopLine() { return browser.cursorForPosition({30, 8}).block().text(); }

  [[nodiscard]] QString Selected() { return browser.textCursor().selectedText(); }

  [[nodiscard]] int Place() { return browser.verticalScrollBar()->value(); }

  TCGuideBrowser browser;
};

TEST_F(GuideBrowser, ShowsAPageWithItsTitle) {
  browser.Open(QStringLiteral("panes.md"));
  EXPECT_EQ(browser.Title(), QStringLiteral("The panes"));
  EXPECT_TRUE(browser.toPlainText().contains(QStringLiteral("Four panes")));
}

TEST_F(GuideBrowser, APictureIsDrawnSmallerWithoutLosingLines) {
  browser.Open(QStringLiteral("performing.md"));
  const QString name = QStringLiteral("../images/daylight.png");
  const auto shown = browser.document()
                         ->resource(QTextDocument::ImageResource, browser.source().resolved(QUrl(name)))
                         .value<QImage>();
  ASSERT_FALSE(shown.isNull());
  const QImage whole(QStringLiteral(":/guide/images/daylight.png"));
  ASSERT_GT(whole.width(), shown.width());
  // A line of one pixel leaves a shade, where every other pixel left out would leave it whole or nothing.
  EXPECT_EQ(
      shown.convertToFormat(QImage::Format_RGB32),
      whole.scaledToWidth(shown.width(), Qt::SmoothTransformation).convertToFormat(QImage::Format_RGB32));
}

TEST(GuidePicture, HasAsManyPixelsAsTheScreenShowsOfIt) {
  const QImage whole(1600, 1000, QImage::Format_RGB32);
  const QImage plain = GuidePicture(whole, 1);
  const QImage fine = GuidePicture(whole, 2);
  EXPECT_EQ(fine.width(), 2 * plain.width());
  EXPECT_EQ(fine.deviceIndependentSize(), plain.deviceIndependentSize());
  EXPECT_EQ(plain.height(), plain.width() * 1000 / 1600);
}

// Each change of a document that is shown has it laid out anew.
TEST_F(GuideBrowser, APageComesInAsOneChangeHoweverManyBlocksItHas) {
  browser.Open(QStringLiteral("panes.md"));
  QSignalSpy changes(browser.document(), &QTextDocument::contentsChange);
  browser.Open(QStringLiteral("keys.md"));
  ASSERT_GT(browser.document()->blockCount(), 100);
  EXPECT_LE(changes.count(), 2);  // the old page goes, the new one comes
  changes.clear();
  browser.backward();
  EXPECT_LE(changes.count(), 2);
  changes.clear();
  browser.Open(QStringLiteral("no such page.md"));
  browser.Open(QStringLiteral("options.md"));
  EXPECT_LE(changes.count(), 4);
  EXPECT_EQ(browser.Title(), QStringLiteral("Options"));
}

TEST_F(GuideBrowser, OpensAPageAtAHeading) {
  browser.Open(QStringLiteral("panes.md#the-player"));
  EXPECT_GT(Place(), 0);
  EXPECT_EQ(TopLine(), QStringLiteral("The player"));
  browser.Open(QStringLiteral("performing.md#when-a-song-ends"));
  EXPECT_EQ(TopLine(), QStringLiteral("When a song ends"));
}

TEST_F(GuideBrowser, GoesBackToThePlaceThatWasLeftAndForwardAgain) {
  browser.Open(QStringLiteral("panes.md"));
  browser.verticalScrollBar()->setValue(77);
  browser.Open(QStringLiteral("performing.md#stepping"));
  const int place = Place();
  browser.backward();
  EXPECT_EQ(browser.Title(), QStringLiteral("The panes"));
  EXPECT_EQ(Place(), 77);
  browser.forward();
  EXPECT_EQ(browser.Title(), QStringLiteral("Performing"));
  EXPECT_EQ(Place(), place);
}

TEST_F(GuideBrowser, FollowsALinkWithTheKeyboard) {
  browser.Open(QStringLiteral("README.md"));
  browser.setFocus();
  QTest::keyClick(&browser, Qt::Key_Tab);
  EXPECT_EQ(Selected(), QStringLiteral("Starting"));
  QTest::keyClick(&browser, Qt::Key_Return);
  EXPECT_EQ(browser.Title(), QStringLiteral("Starting"));
}

TEST_F(GuideBrowser, LeavesTheGuideForNothing) {
  browser.Open(QStringLiteral("README.md"));
  for (const char* address : {"file:///etc/passwd", "https://example.org/"}) {
    browser.setSource(QUrl(QString::fromLatin1(address)));
    EXPECT_EQ(browser.Title(), QStringLiteral("The Brevant guide")) << address;
  }
}

TEST_F(GuideBrowser, FindsOnePlaceAfterTheOtherAndGoesRound) {
  browser.Open(QStringLiteral("moving.md"));
  const QString word = QStringLiteral("drive letter");
  std::set<int> places;
  int searches = 0;
  do {
    ASSERT_TRUE(browser.Find(word, Direction::Forward, From::Selection));
    EXPECT_EQ(Selected().toLower(), word) << "upper and lower case are alike";
    ++searches;
  } while (places.insert(browser.textCursor().position()).second && searches < 100);
  ASSERT_GT(places.size(), 2U);
  EXPECT_EQ(browser.textCursor().position(), *places.begin()) << "behind the last comes the first";
  ASSERT_TRUE(browser.Find(word, Direction::Backward, From::Selection));
  EXPECT_EQ(browser.textCursor().position(), *places.rbegin());
}

TEST_F(GuideBrowser, StaysAtAWordWhileMoreOfItIsTyped) {
  browser.Open(QStringLiteral("performing.md"));
  ASSERT_TRUE(browser.Find(QStringLiteral("rep"), Direction::Forward, From::SelectionStart));
  const int start = browser.textCursor().selectionStart();
  ASSERT_TRUE(browser.Find(Selected() + QStringLiteral("e"), Direction::Forward, From::SelectionStart));
  EXPECT_EQ(browser.textCursor().selectionStart(), start);
}

TEST_F(GuideBrowser, SelectsNothingWhenAWordIsNotThere) {
  browser.Open(QStringLiteral("performing.md"));
  ASSERT_TRUE(browser.Find(QStringLiteral("song"), Direction::Forward, From::Selection));
  EXPECT_FALSE(browser.Find(QStringLiteral("no such word"), Direction::Forward, From::SelectionStart));
  EXPECT_TRUE(Selected().isEmpty());
}

TEST_F(GuideBrowser, ChangesColoursWhereItStands) {
  const QPalette before = QApplication::palette();
  browser.Open(QStringLiteral("performing.md#playing"));
  const int place = Place();
  ASSERT_GT(place, 0);
  for (const QPalette& palette : {StagePalette(0xFFFFFF, 0), StagePalette(0, 0xFFFFFF)}) {
    QApplication::setPalette(palette);
    QCoreApplication::sendPostedEvents();
    ASSERT_TRUE(browser.Find(QStringLiteral("words"), Direction::Forward, From::SelectionStart));
    EXPECT_EQ(browser.textCursor().charFormat().foreground().color(), palette.color(QPalette::Link));
    browser.verticalScrollBar()->setValue(place);
  }
  QApplication::setPalette(before);
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(Place(), place);
}

}  // namespace
}  // namespace brevant
