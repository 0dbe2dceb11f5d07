#include "app/panes/general_reports_tab.h"

#include <gtest/gtest.h>

#include <QAccessible>
#include <QClipboard>
#include <QGuiApplication>
#include <QScrollBar>
#include <QTest>
#include <QTextBlock>

#include "text/numbers.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

class GeneralReportsTab : public testing::Test {
 protected:
  void SetUp() override {
    pane.resize(400, 200);
    pane.SetDisplayFont(QStringLiteral("Times New Roman"), 18, Qt::white, Qt::black);
    pane.Enable(1024);
    pane.show();
  }
  [[nodiscard]] QString Text() const { return pane.toPlainText(); }
  void AppendNumbered(int first, int last) {
    for (int line = first; line <= last; ++line) pane.Append(u"line " + FormatDecimal(line));
  }
  // The colour in which the box line that holds `text` is drawn.
  [[nodiscard]] QColor ColourOf(const char* text) const {
    const QTextCursor found = pane.document()->find(QString::fromLatin1(text));
    EXPECT_FALSE(found.isNull()) << text;
    return found.charFormat().foreground().color();
  }
  [[nodiscard]] bool IsInView(const QTextBlock& line) const {
    const QRect place = pane.cursorRect(QTextCursor(line));
    return place.top() >= 0 && place.bottom() <= pane.viewport()->height();
  }
  [[nodiscard]] bool IsInView(const char* text) const {
    const QTextCursor found = pane.document()->find(QString::fromLatin1(text));
    EXPECT_FALSE(found.isNull()) << text;
    return IsInView(found.block());
  }
  // Whether the last line that holds text is wholly in the window.
  [[nodiscard]] bool NewestLineIsInView() const {
    QTextBlock newest = pane.document()->lastBlock();
    while (newest.text().isEmpty() && newest.previous().isValid()) newest = newest.previous();
    return IsInView(newest);
  }
  // As lyrics come: a blank line before each, and the first is the one that is sung.
  void ShowLyrics(std::initializer_list<std::u16string_view> lines) {
    pane.Clear();
    for (const std::u16string_view line : lines) {
      pane.Append(u"\r\n");
      pane.Append(std::u16string(u"\t").append(line));
    }
    pane.KeepFirstInView();
  }

  TCGeneralReportsTab pane;
};

TEST_F(GeneralReportsTab, BeforeItIsEnabledAppendingAndClearingDoNothing) {
  TCGeneralReportsTab sleeping;
  sleeping.Append(u"lost");
  sleeping.AppendMessage(TCTextId::CommandCanceled);
  sleeping.AppendMessage(TCTextId::UnableToLoadPlayList, u"C:\\x.brvpl");
  sleeping.Clear();
  EXPECT_EQ(sleeping.toPlainText(), QString());
  sleeping.Enable(1024);
  EXPECT_EQ(sleeping.toPlainText(), QString());
  sleeping.Append(u"kept");
  EXPECT_EQ(sleeping.toPlainText(), QStringLiteral("kept\n"));
}

TEST_F(GeneralReportsTab, LinesStandInOrderEachWithItsEnd) {
  pane.Append(u"...Brevant...");
  pane.Append(u"second");
  EXPECT_EQ(Text(), QStringLiteral("...Brevant...\nsecond\n"));
}

TEST_F(GeneralReportsTab, Of1025LinesTheFirstIsGone) {
  AppendNumbered(1, 1025);
  EXPECT_TRUE(Text().startsWith(QStringLiteral("line 2\nline 3\n")));
  EXPECT_TRUE(Text().endsWith(QStringLiteral("line 1024\nline 1025\n")));
  EXPECT_EQ(Text().count(QLatin1Char('\n')), 1024);
}

TEST_F(GeneralReportsTab, TheBoxHoldsWhatTheRingHoldsAfterEveryAppend) {
  TCGeneralReportsTab small;
  small.Enable(4);
  TCReportLines ring;
  ring.Enable(4);
  for (const std::u16string_view text : {u"one", u"", u"two\r\nlines", u"\r\n", u"\tlyric", u"\r\n\r\n",
                                         u"a\rb", u"a\nb\n", u"last", u"more", u"and", u"on"}) {
    small.Append(text);
    ring.Append(text, TCLineRole::Normal);
    QString expected;
    for (const TCReportLine& line : ring.Lines()) expected += ToQString(line.text);
    expected.replace(QStringLiteral("\r\n"), QStringLiteral("\n"))
        .replace(QLatin1Char('\r'), QLatin1Char('\n'));
    EXPECT_EQ(small.toPlainText(), expected);
  }
}

TEST_F(GeneralReportsTab, CharactersThatMeanSomethingToTheBoxAreDroppedWithTheirLine) {
  TCGeneralReportsTab small;
  small.Enable(2);
  small.Append(u"a\u2029b\uFDD0c\u2028d");
  small.Append(std::u16string{u'n', u'\0', u'n'});
  small.Append(u"second");
  small.Append(u"third");
  EXPECT_EQ(small.toPlainText(), QStringLiteral("second\nthird\n"));
}

TEST_F(GeneralReportsTab, AfterAClearExactlyTheNextLineStands) {
  AppendNumbered(1, 5);
  pane.Clear();
  EXPECT_EQ(Text(), QString());
  pane.Append(u"only");
  EXPECT_EQ(Text(), QStringLiteral("only\n"));
}

TEST_F(GeneralReportsTab, AMessageAndItsDetailAreOneBlankApart) {
  pane.AppendMessage(TCTextId::UnableToPlayMissingFile, u"C:\\a.mp3");
  EXPECT_EQ(Text(), QStringLiteral("Unable to play song as unable to find file: C:\\a.mp3\n"));
}

TEST_F(GeneralReportsTab, EachLineKeepsTheColourOfItsSinger) {
  pane.Append(u"normal");
  pane.SetLineRole(TCLineRole::SingerM);
  pane.Append(u"he sings");
  pane.SetLineRole(TCLineRole::SingerF);
  pane.Append(u"she sings");
  pane.SetLineRole(TCLineRole::SingerD);
  pane.Append(u"both sing");
  EXPECT_EQ(ColourOf("normal"), QColor(Qt::white));
  EXPECT_EQ(ColourOf("he sings"), QColor(0, 255, 0));
  EXPECT_EQ(ColourOf("she sings"), QColor(255, 192, 203));
  EXPECT_EQ(ColourOf("both sing"), QColor(255, 165, 0));
}

TEST_F(GeneralReportsTab, ChangingBlackAndWhiteRecoloursWhatStandsThere) {
  pane.Append(u"normal");
  pane.SetLineRole(TCLineRole::SingerM);
  pane.Append(u"he sings");
  pane.SetLineRole(TCLineRole::SingerF);
  pane.Append(u"she sings");
  const QString before = Text();
  pane.SetLook(TCPaneLook::BlackOnWhite);
  pane.SetDisplayFont(QStringLiteral("Times New Roman"), 18, Qt::black, Qt::white);
  EXPECT_EQ(Text(), before);
  EXPECT_EQ(ColourOf("normal"), QColor(Qt::black));
  EXPECT_EQ(ColourOf("he sings"), QColor(0, 0, 255));
  EXPECT_EQ(ColourOf("she sings"), QColor(255, 0, 0));
  pane.Append(u"she goes on");
  EXPECT_EQ(ColourOf("she goes on"), QColor(255, 0, 0));
  pane.SetDisplayFont(QStringLiteral("Times New Roman"), 18, Qt::white, Qt::black);
  pane.SetLook(TCPaneLook::WhiteOnBlack);
  EXPECT_EQ(ColourOf("normal"), QColor(Qt::white));
  EXPECT_EQ(ColourOf("he sings"), QColor(0, 255, 0));
}

TEST_F(GeneralReportsTab, TheSingersColoursGoByTheLookNotByTheBackground) {
  pane.SetLook(TCPaneLook::BlackOnWhite);
  pane.SetLineRole(TCLineRole::SingerM);
  pane.Append(u"he sings");
  EXPECT_EQ(ColourOf("he sings"), QColor(0, 0, 255));
  pane.SetDisplayFont(QStringLiteral("Times New Roman"), 18, Qt::white, QColor(0x20, 0x20, 0x20));
  EXPECT_EQ(ColourOf("he sings"), QColor(0, 0, 255));
}

TEST_F(GeneralReportsTab, AClearReturnsToTheNormalColour) {
  pane.SetLineRole(TCLineRole::SingerM);
  pane.Clear();
  pane.Append(u"normal");
  EXPECT_EQ(ColourOf("normal"), QColor(Qt::white));
}

TEST_F(GeneralReportsTab, TheBackgroundIsDrawnInItsColour) {
  const auto corner = [&] {
    const QImage image = pane.viewport()->grab().toImage();
    return image.pixelColor(image.width() - 3, image.height() - 3);
  };
  EXPECT_EQ(corner(), QColor(Qt::black));
  pane.SetDisplayFont(QStringLiteral("Times New Roman"), 18, Qt::black, Qt::white);
  EXPECT_EQ(corner(), QColor(Qt::white));
}

TEST_F(GeneralReportsTab, TheNewestLineIsAlwaysInView) {
  AppendNumbered(1, 100);
  EXPECT_TRUE(NewestLineIsInView());
  pane.verticalScrollBar()->setValue(0);
  EXPECT_FALSE(NewestLineIsInView());
  pane.Append(u"newest");
  EXPECT_TRUE(NewestLineIsInView());
  pane.resize(400, 90);
  EXPECT_TRUE(NewestLineIsInView());
  pane.SetDisplayFont(QStringLiteral("Times New Roman"), 36, Qt::white, Qt::black);
  EXPECT_TRUE(NewestLineIsInView());
  pane.hide();
  AppendNumbered(101, 200);
  pane.show();
  EXPECT_TRUE(NewestLineIsInView());
}

TEST_F(GeneralReportsTab, OfLyricLinesThatDoNotFitTheFirstStaysInView) {
  pane.resize(400, 90);
  ShowLyrics({u"sung now", u"sung next", u"sung later"});
  EXPECT_TRUE(IsInView("sung now"));
  EXPECT_FALSE(IsInView("sung later")) << "there was room for all of them";
  pane.resize(400, 70);
  EXPECT_TRUE(IsInView("sung now"));
  pane.resize(400, 200);
  pane.SetDisplayFont(QStringLiteral("Times New Roman"), 36, Qt::white, Qt::black);
  EXPECT_TRUE(IsInView("sung now"));
  EXPECT_FALSE(IsInView("sung later")) << "there was room for all of them";
  pane.hide();
  ShowLyrics({u"sung then", u"sung after", u"sung at last"});
  pane.show();
  EXPECT_TRUE(IsInView("sung then"));
}

TEST_F(GeneralReportsTab, TheBlankLinesGoOutOfViewBeforeALyricLineDoes) {
  // Room for four lines of six: the lyric lines are the third and the sixth.
  const int lineHeight = pane.cursorRect().height();
  pane.resize(400, 4 * lineHeight + lineHeight / 2 + pane.height() - pane.viewport()->height());
  ShowLyrics({u"sung now", u"sung next"});
  EXPECT_TRUE(IsInView("sung now"));
  EXPECT_TRUE(IsInView("sung next"));
}

TEST_F(GeneralReportsTab, AMessageAfterTheLyricsIsInView) {
  pane.resize(400, 90);
  ShowLyrics({u"sung now", u"sung next", u"sung later"});
  pane.Append(u"a message");
  EXPECT_TRUE(NewestLineIsInView());
  pane.resize(400, 80);
  EXPECT_TRUE(NewestLineIsInView());
  ShowLyrics({u"sung now", u"sung next", u"sung later"});
  pane.Clear();
  AppendNumbered(1, 20);
  EXPECT_TRUE(NewestLineIsInView());
}

TEST_F(GeneralReportsTab, ALongLineIsNotWrappedAndItsBeginningIsInView) {
  pane.horizontalScrollBar()->setValue(0);
  pane.Append(ToQString(u"word ").repeated(100).toStdU16String());
  EXPECT_EQ(pane.lineWrapMode(), QPlainTextEdit::NoWrap);
  EXPECT_GT(pane.horizontalScrollBar()->maximum(), 0);
  pane.horizontalScrollBar()->setValue(50);
  pane.Append(u"next");
  EXPECT_EQ(pane.horizontalScrollBar()->value(), 0);
}

TEST_F(GeneralReportsTab, BothScrollBarsAreThere) {
  EXPECT_TRUE(pane.verticalScrollBar()->isVisible());
  EXPECT_TRUE(pane.horizontalScrollBar()->isVisible());
}

TEST_F(GeneralReportsTab, NobodyCanTypeIntoIt) {
  pane.Append(u"text");
  pane.setFocus();
  QTest::keyClicks(&pane, QStringLiteral("abc"));
  QTest::keyClick(&pane, Qt::Key_Delete);
  EXPECT_TRUE(pane.isReadOnly());
  EXPECT_EQ(Text(), QStringLiteral("text\n"));
}

TEST_F(GeneralReportsTab, TabReachesItAndTheMouseSelectsAndCopies) {
  EXPECT_TRUE(pane.focusPolicy() & Qt::TabFocus);
  pane.Append(u"copy");
  QTest::mouseDClick(pane.viewport(), Qt::LeftButton, {},
                     pane.cursorRect(QTextCursor(pane.document())).center() + QPoint(12, 0));
  EXPECT_EQ(pane.textCursor().selectedText(), QStringLiteral("copy"));
  pane.copy();
  EXPECT_EQ(QGuiApplication::clipboard()->text(), QStringLiteral("copy"));
}

TEST_F(GeneralReportsTab, ItsPointsAreKeptUsable) {
  pane.SetDisplayFont(QStringLiteral("Times New Roman"), -3, Qt::white, Qt::black);
  EXPECT_EQ(pane.font().pointSize(), 1);
  pane.SetDisplayFont(QStringLiteral("Times New Roman"), 1'000'000, Qt::white, Qt::black);
  EXPECT_LT(pane.font().pointSize(), 1000);
}

TEST_F(GeneralReportsTab, ItsTextCanBeReadByAssistiveTechnology) {
  pane.Append(u"...Brevant...");
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&pane);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->text(QAccessible::Name), QStringLiteral("Brevant Information & Lyrics"));
  ASSERT_NE(accessible->textInterface(), nullptr);
  EXPECT_EQ(accessible->textInterface()->text(0, 13), QStringLiteral("...Brevant..."));
}

}  // namespace
}  // namespace brevant
