#include "app/bars/repeat_time_field.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QHBoxLayout>
#include <QLineEdit>
#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>

namespace brevant {
namespace {

class RepeatTimeField : public testing::Test {
 protected:
  void SetUp() override {
    auto* layout = new QHBoxLayout(&window);
    layout->addWidget(&field);
    layout->addWidget(&other);
    other.setFocus();
    window.show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }

  void TakeFocus() {
    field.setFocus();
    QCoreApplication::sendPostedEvents();
    ASSERT_TRUE(field.hasFocus());
  }

  void Wheel() {
    const QPointF middle = QRectF(field.rect()).center();
    QWheelEvent turn(middle, field.mapToGlobal(middle), {}, QPoint(0, 120), Qt::NoButton, Qt::NoModifier,
                     Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&field, &turn);
  }

  QWidget window;
  TCRepeatTimeField field{QStringLiteral("Repeat start time"), QStringLiteral("A tip")};
  QLineEdit other;
  QSignalSpy ended{&field, &TCRepeatTimeField::typingEnded};
};

TEST_F(RepeatTimeField, BeginsAtNoughtAndSaysWhatItIs) {
  EXPECT_EQ(field.text(), QStringLiteral("00:00"));
  EXPECT_EQ(field.Seconds(), 0);
  EXPECT_EQ(field.accessibleName(), QStringLiteral("Repeat start time"));
  EXPECT_EQ(field.toolTip(), QStringLiteral("A tip"));
}

TEST_F(RepeatTimeField, ShowsMinutesAndSecondsWithoutTheHours) {
  const std::vector<std::pair<std::int32_t, QString>> cases{
      {65, QStringLiteral("01:05")},   {3599, QStringLiteral("59:59")}, {3600, QStringLiteral("00:00")},
      {3725, QStringLiteral("02:05")}, {-1, QStringLiteral("00:00")},
  };
  for (const auto& [seconds, text] : cases) {
    field.SetSeconds(seconds);
    EXPECT_EQ(field.text(), text) << seconds;
  }
  field.SetSeconds(3725);
  EXPECT_EQ(field.Seconds(), 125);
}

TEST_F(RepeatTimeField, HasRoomForItsTextInEveryFont) {
  EXPECT_GE(field.sizeHint().width(), 64);
  EXPECT_GE(field.sizeHint().height(), 24);
  for (const int points : {6, 9, 24, 60}) {
    QFont font = field.font();
    font.setPointSize(points);
    field.setFont(font);
    field.adjustSize();
    const auto* text = field.findChild<QLineEdit*>();
    EXPECT_GE(text->width(), field.fontMetrics().horizontalAdvance(QStringLiteral("00:00"))) << points;
    EXPECT_GE(field.height(), field.fontMetrics().height()) << points;
  }
}

TEST_F(RepeatTimeField, FourDigitsSetTheTimeFromTheMinutesOn) {
  TakeFocus();
  EXPECT_EQ(field.currentSection(), QDateTimeEdit::MinuteSection);
  EXPECT_EQ(field.findChild<QLineEdit*>()->selectedText(), QStringLiteral("00"));
  QTest::keyClicks(&field, QStringLiteral("0130"));
  EXPECT_EQ(field.Seconds(), 90) << "it is read while it is being typed";
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(field.Seconds(), 90);
  EXPECT_EQ(ended.count(), 1);
}

TEST_F(RepeatTimeField, WhereItIsClickedFirstTheMinutesAreSelected) {
  QTest::mouseClick(field.findChild<QLineEdit*>(), Qt::LeftButton, {}, QPoint(30, 10));
  QCoreApplication::sendPostedEvents();
  ASSERT_TRUE(field.hasFocus());
  QTest::keyClicks(&field, QStringLiteral("0245"));
  EXPECT_EQ(field.Seconds(), 165);
}

TEST_F(RepeatTimeField, AColonLeadsToTheSeconds) {
  TakeFocus();
  QTest::keyClicks(&field, QStringLiteral("2:05"));
  QTest::keyClick(&field, Qt::Key_Enter);
  EXPECT_EQ(field.Seconds(), 125);
}

TEST_F(RepeatTimeField, StepsWithTheArrowsAndKeepsToItsRange) {
  TakeFocus();
  QTest::keyClick(&field, Qt::Key_Up);
  EXPECT_EQ(field.Seconds(), 60);
  QTest::keyClick(&field, Qt::Key_Right);
  QTest::keyClick(&field, Qt::Key_Up);
  EXPECT_EQ(field.Seconds(), 61);
  QTest::keyClick(&field, Qt::Key_Left);
  QTest::keyClick(&field, Qt::Key_Down);
  QTest::keyClick(&field, Qt::Key_Down);
  EXPECT_EQ(field.text(), QStringLiteral("00:01"));
  field.SetSeconds(3599);
  QTest::keyClick(&field, Qt::Key_Up);
  EXPECT_EQ(field.text(), QStringLiteral("59:59"));
  EXPECT_EQ(ended.count(), 0);
}

TEST_F(RepeatTimeField, TakesNoMoreThanFiftyNine) {
  TakeFocus();
  QTest::keyClicks(&field, QStringLiteral("7599"));
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_LE(field.time().minute(), 59);
  EXPECT_EQ(field.text(), field.time().toString(QStringLiteral("mm:ss")));
}

TEST_F(RepeatTimeField, LettersAreNoTime) {
  field.SetSeconds(65);
  TakeFocus();
  QTest::keyClicks(&field, QStringLiteral("zx p"));
  EXPECT_EQ(field.Seconds(), 65);
}

TEST_F(RepeatTimeField, EscapeBringsBackTheTimeItHad) {
  field.SetSeconds(65);
  TakeFocus();
  QTest::keyClicks(&field, QStringLiteral("3030"));
  QTest::keyClick(&field, Qt::Key_Escape);
  EXPECT_EQ(field.text(), QStringLiteral("01:05"));
  EXPECT_EQ(field.Seconds(), 65);
  EXPECT_EQ(ended.count(), 1);
}

TEST_F(RepeatTimeField, EscapeBringsBackATimeThatWasSetMeanwhile) {
  field.SetSeconds(65);
  TakeFocus();
  QTest::keyClicks(&field, QStringLiteral("30"));
  field.SetSeconds(90);  // by the button beside it
  EXPECT_EQ(field.text(), QStringLiteral("01:30"));
  QTest::keyClick(&field, Qt::Key_Up);
  QTest::keyClick(&field, Qt::Key_Escape);
  EXPECT_EQ(field.text(), QStringLiteral("01:30"));
  EXPECT_EQ(field.Seconds(), 90);
}

TEST_F(RepeatTimeField, EscapeDropsATimeThatIsNotComplete) {
  field.SetSeconds(65);
  TakeFocus();
  QTest::keyClick(&field, Qt::Key_Backspace);
  QTest::keyClick(&field, Qt::Key_Escape);
  EXPECT_EQ(field.text(), QStringLiteral("01:05"));
}

TEST_F(RepeatTimeField, BackFromAnotherWindowOrAMenuTheTypingGoesOn) {
  field.SetSeconds(65);
  for (const Qt::FocusReason reason : {Qt::ActiveWindowFocusReason, Qt::PopupFocusReason}) {
    TakeFocus();
    QTest::keyClicks(&field, QStringLiteral("30"));
    QFocusEvent back(QEvent::FocusIn, reason);
    QCoreApplication::sendEvent(&field, &back);
    QTest::keyClick(&field, Qt::Key_Escape);
    EXPECT_EQ(field.text(), QStringLiteral("01:05")) << reason;
    field.clearFocus();
  }
}

TEST_F(RepeatTimeField, ADigitAloneIsAWholeTimeOnceItIsEntered) {
  field.SetSeconds(65);
  TakeFocus();
  QTest::keyClicks(&field, QStringLiteral("7"));
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(field.text(), QStringLiteral("07:05"));
  EXPECT_EQ(field.Seconds(), 425);
  field.setSelectedSection(QTimeEdit::MinuteSection);
  QTest::keyClick(&field, Qt::Key_Backspace);
  EXPECT_NE(field.text(), field.time().toString(QStringLiteral("mm:ss")));
  QTest::keyClick(&field, Qt::Key_Return);
  EXPECT_EQ(field.text(), field.time().toString(QStringLiteral("mm:ss")));
}

TEST_F(RepeatTimeField, OnlyAFieldThatIsTypedIntoTurnsWithTheWheel) {
  Wheel();
  EXPECT_EQ(field.Seconds(), 0);
  EXPECT_FALSE(field.hasFocus());
  TakeFocus();
  Wheel();
  EXPECT_EQ(field.Seconds(), 60);
}

}  // namespace
}  // namespace brevant
