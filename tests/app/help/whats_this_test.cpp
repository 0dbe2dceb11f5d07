#include "app/help/whats_this.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QWhatsThis>

#include "app/whole_program.h"
#include "resources/command_bars.h"

namespace brevant {
namespace {

using Id = TCCommandId;

// The window that an answer is shown in.
QWidget* Answer() {
  QWidget* popup = QApplication::activePopupWidget();
  return popup != nullptr && popup->inherits("QWhatsThat") ? popup : nullptr;
}

class WhatsThis : public TCWholeProgram {
 public:
  void TearDown() override {
    QWhatsThis::leaveWhatsThisMode();
    QWhatsThis::hideText();
  }

  void Ask() {
    Press(Qt::Key_F1, Qt::ShiftModifier);
    ASSERT_TRUE(QWhatsThis::inWhatsThisMode());
  }

  [[nodiscard]] QToolButton& PlayButton() {
    return *static_cast<QToolButton*>(
        Frame().PlayControls().widgetForAction(app->Actions().ActionOf(Id::Play)));
  }
};

QString TextOfCommand(Id command) {
  return WhatsThisText(*CommandById(command), TCKeyAssignment().KeysOf(command));
}

TEST(WhatsThisText, IsTheCommandsNameWhatItDoesAndTheKeysThatAct) {
  EXPECT_EQ(TextOfCommand(Id::Stop), QStringLiteral("<b>Stop</b><p>Stop S, F6, 6</p><p>Keys: S, F6</p>"));
  EXPECT_EQ(TextOfCommand(Id::LoadLastFile),
            QStringLiteral("<b>Load Last File On Start</b><p>Load last loaded file on start</p>"));
  EXPECT_EQ(TextOfCommand(Id::PlayerPane), QStringLiteral("<b>Song Player</b>"));
}

TEST(WhatsThisText, HoldsNoMarkOfTheTextsThatWouldBeReadAsOneOfItsOwn) {
  EXPECT_TRUE(TextOfCommand(Id::PriorPlaylist).contains(QStringLiteral("&lt;- F7")));
}

TEST(WhatsThisText, AnActionIsKnownByItsName) {
  QAction action;
  EXPECT_EQ(CommandOf(action), Id::None);
  action.setObjectName(ActionName(Id::Stop));
  EXPECT_EQ(CommandOf(action), Id::Stop);
  action.setObjectName(QStringLiteral("Command1"));
  EXPECT_EQ(CommandOf(action), Id::None);
}

TEST_F(WhatsThis, EveryActionAndEveryButtonThatShowsOneHasItsText) {
  Start(kShow);
  for (const TCCommand& command : Commands()) {
    const QAction* action = app->Actions().ActionOf(command.id);
    if (action == nullptr) continue;
    EXPECT_EQ(action->whatsThis(), TextOfCommand(command.id));
  }
  EXPECT_EQ(PlayButton().whatsThis(), TextOfCommand(Id::Play));
}

TEST_F(WhatsThis, EveryPaneAndEveryFieldHasASentenceOfItsOwn) {
  Start(kShow);
  int seen = 0;
  for (const QWidget* widget : Frame().findChildren<QWidget*>()) {
    if (widget->focusPolicy() == Qt::NoFocus || !widget->isVisible()) continue;
    // What the toolkit puts into a control speaks through it.
    if (widget->objectName().startsWith(QStringLiteral("qt_"))) continue;
    ++seen;
    EXPECT_FALSE(widget->whatsThis().isEmpty())
        << widget->metaObject()->className() << ' ' << widget->accessibleName().toStdString();
  }
  EXPECT_GE(seen, 6);
}

TEST_F(WhatsThis, AClickIsAnsweredAndDoesNothingElse) {
  Start(kShow);
  Ask();
  QTest::mouseClick(&PlayButton(), Qt::LeftButton);
  QCoreApplication::sendPostedEvents();
  EXPECT_NE(Answer(), nullptr);
  EXPECT_FALSE(QWhatsThis::inWhatsThisMode());
  EXPECT_NE(player.Snapshot().phase, TCPlayerPhase::Playing);
}

TEST_F(WhatsThis, EscapeEndsTheAskingAndCancelsNothingElse) {
  Start(kShow);
  const QString before = Frame().MessageDisplay().toPlainText();
  Ask();
  Press(Qt::Key_Escape);
  EXPECT_FALSE(QWhatsThis::inWhatsThisMode());
  EXPECT_EQ(Frame().MessageDisplay().toPlainText(), before);
}

TEST_F(WhatsThis, AskedTwiceItTellsOfTheControlThatHasTheKeys) {
  Start(kShow);
  Frame().Tree().setFocus();
  Ask();
  Press(Qt::Key_F1, Qt::ShiftModifier);
  EXPECT_FALSE(QWhatsThis::inWhatsThisMode());
  EXPECT_NE(Answer(), nullptr);
}

TEST_F(WhatsThis, AKeyTakesTheAnswerAwayAndPerformsAllTheSame) {
  player.SetDefaultSong({.length = 200.0});
  Start(kShow);
  const auto answered = [this] {
    Ask();
    Press(Qt::Key_F1, Qt::ShiftModifier);
    return Answer();
  };
  QWidget* answer = answered();
  ASSERT_NE(answer, nullptr);
  QTest::keyClick(answer, Qt::Key_P);
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(Answer(), nullptr);
  player.Advance(1.0);
  EXPECT_EQ(player.Snapshot().phase, TCPlayerPhase::Playing);

  answer = answered();
  ASSERT_NE(answer, nullptr);
  const QString before = Frame().MessageDisplay().toPlainText();
  QTest::keyClick(answer, Qt::Key_Escape);
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(Answer(), nullptr);
  EXPECT_EQ(Frame().MessageDisplay().toPlainText(), before) << "Esc closes the answer and cancels nothing";
}

}  // namespace
}  // namespace brevant
