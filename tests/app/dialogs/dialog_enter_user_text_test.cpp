#include "app/dialogs/dialog_enter_user_text.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "resources/string_table.h"

namespace brevant {
namespace {

constexpr std::u16string_view kPrompt = u"Enter the name & number";
constexpr std::u16string_view kExample = u"e.g. \"<b>7</b>\"";

class DialogEnterUserText : public testing::Test {
 protected:
  void Open(TCTextPrompt prompt) {
    dialog.emplace(prompt, nullptr);
    dialog->open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*dialog));
  }
  [[nodiscard]] QLineEdit& Field() { return *dialog->findChild<QLineEdit*>(QStringLiteral("Text")); }
  [[nodiscard]] QLabel& Line(const char* name) { return *dialog->findChild<QLabel*>(QLatin1String(name)); }
  [[nodiscard]] QPushButton* Button(const char* text) {
    for (QPushButton* button : dialog->findChildren<QPushButton*>()) {
      if (button->text() == QLatin1String(text)) return button;
    }
    return nullptr;
  }

  std::optional<TCDialogEnterUserText> dialog;
};

QString TitleOf(TCTextPromptMode mode) {
  return TCDialogEnterUserText({mode, kPrompt, kExample, u""}, nullptr).windowTitle();
}

TEST_F(DialogEnterUserText, TheModePicksTheTitle) {
  EXPECT_EQ(TitleOf(TCTextPromptMode::CreateGroup), QStringLiteral("Create A Group Of Playlists "));
  EXPECT_EQ(TitleOf(TCTextPromptMode::CreateSetList), QStringLiteral("Create A Set List"));
  EXPECT_EQ(TitleOf(TCTextPromptMode::SongLatency), QStringLiteral("Set Song Latency"));
  EXPECT_EQ(TitleOf(TCTextPromptMode::Property), QStringLiteral("Enter property"));
  EXPECT_EQ(TitleOf(static_cast<TCTextPromptMode>(-1)), QStringLiteral("Enter property"));
  EXPECT_EQ(TitleOf(static_cast<TCTextPromptMode>(99)), QStringLiteral("Enter property"));
}

TEST_F(DialogEnterUserText, SaysWhatIsWantedInTwoLinesOfPlainText) {
  Open({TCTextPromptMode::Property, kPrompt, kExample, u""});
  EXPECT_TRUE(Line("Prompt").isVisible());
  EXPECT_TRUE(Line("Example").isVisible());
  EXPECT_EQ(Line("Prompt").text(), QStringLiteral("Enter the name & number"));
  EXPECT_EQ(Line("Example").text(), QStringLiteral("e.g. \"<b>7</b>\""));
  EXPECT_EQ(Line("Example").textFormat(), Qt::PlainText);
  EXPECT_LT(Line("Prompt").geometry().bottom(), Line("Example").geometry().top());
  EXPECT_LT(Line("Example").geometry().bottom(), Field().geometry().top());
}

TEST_F(DialogEnterUserText, AnEmptySecondLineTakesNoRoom) {
  Open({TCTextPromptMode::Property, kPrompt, u"", u""});
  EXPECT_FALSE(Line("Example").isVisible());
}

TEST_F(DialogEnterUserText, TheTabKeyGoesRoundFieldAndButtonsAlone) {
  Open({TCTextPromptMode::Property, kPrompt, kExample, u""});
  const QList<QWidget*> expected{Button("&OK"), Button("&Cancel"), &Field()};
  for (QWidget* next : expected) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget(), next);
  }
}

TEST_F(DialogEnterUserText, TypingReplacesTheTextItStartsWith) {
  Open({TCTextPromptMode::Property, kPrompt, kExample, u"18"});
  EXPECT_EQ(QApplication::focusWidget(), &Field());
  EXPECT_EQ(Field().selectedText(), QStringLiteral("18"));
  QTest::keyClicks(&Field(), QStringLiteral(" 24 "));
  QTest::keyClick(&Field(), Qt::Key_Return);
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_EQ(dialog->Text(), u" 24 ") << "nothing is trimmed";
}

TEST_F(DialogEnterUserText, EscapeAndCancelGiveUp) {
  Open({TCTextPromptMode::Property, kPrompt, kExample, u"18"});
  QTest::keyClick(&Field(), Qt::Key_Escape);
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  EXPECT_FALSE(dialog->isVisible());

  Open({TCTextPromptMode::Property, kPrompt, kExample, u"18"});
  Button("&Cancel")->click();
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(DialogEnterUserText, OkAccepts) {
  Open({TCTextPromptMode::Property, kPrompt, kExample, u"18"});
  Button("&OK")->click();
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
}

TEST_F(DialogEnterUserText, TheFieldIsAnnouncedByWhatIsWanted) {
  Open({TCTextPromptMode::Property, kPrompt, kExample, u"18"});
  EXPECT_EQ(Field().accessibleName(), QStringLiteral("Enter the name & number"));
  EXPECT_EQ(Field().accessibleDescription(), QStringLiteral("e.g. \"<b>7</b>\""));
}

TEST_F(DialogEnterUserText, ALineThatIsTooLongIsBrokenAndReadWhole) {
  std::u16string words;
  for (int i = 0; i < 60; ++i) words += u"words ";
  Open({TCTextPromptMode::Property, words, words, u""});
  for (const char* name : {"Prompt", "Example"}) {
    EXPECT_GE(Line(name).height(), Line(name).heightForWidth(Line(name).width()));
    EXPECT_GT(Line(name).height(), 2 * Line(name).fontMetrics().height());
  }
}

TEST_F(DialogEnterUserText, TheLongestPromptsStandOnOneLineEach) {
  for (const TCTextId example : {TCTextId::AddSongsHint, TCTextId::VolumeStepExplanation,
                                 TCTextId::MediaTypesExplanation, TCTextId::SongLatencyExplanation}) {
    Open({TCTextPromptMode::Property, TextOf(TCTextId::AddSongsPrompt), TextOf(example), u""});
    for (const char* name : {"Prompt", "Example"}) {
      const QLabel& line = Line(name);
      EXPECT_LE(line.fontMetrics().horizontalAdvance(line.text()), line.width()) << line.text().toStdString();
    }
    dialog->reject();
  }
}

}  // namespace
}  // namespace brevant
