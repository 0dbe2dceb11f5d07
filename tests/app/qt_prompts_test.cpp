#include "app/qt_prompts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QMessageBox>
#include <QTemporaryDir>

#include "app/dialog_enter_user_text.h"
#include "dialog_answer.h"
#include "support/fake_player.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

// The file chooser hides this behind its base class.
void Accept(QDialog& dialog) {
  dialog.accept();
}

class QtPrompts : public testing::Test {
 protected:
  void SetUp() override { ASSERT_TRUE(folder.isValid()); }

  [[nodiscard]] QString Native(const char* name) const { return folder.filePath(QString::fromUtf8(name)); }
  [[nodiscard]] std::u16string Model(const char* name) const {
    return FromQString(Native(name).replace(QLatin1Char('/'), QLatin1Char('\\')));
  }
  void Write(const char* name) const {
    QFile file(Native(name));
    ASSERT_TRUE(file.open(QIODevice::WriteOnly));
  }

  TCSettings settings;
  TCSetListStore setLists;
  TCFakePlayer player;
  TCMainFrame frame{settings, player, player};
  TCQtPrompts prompts{frame, setLists, TCNativePaths()};
  QTemporaryDir folder;
};

QLineEdit& FieldOf(QDialog& dialog) {
  return *dialog.findChild<QLineEdit*>(QStringLiteral("Text"));
}

TEST_F(QtPrompts, TheTextComesBackAsItWasTyped) {
  const TCDialogAnswer<QDialog> answer([](QDialog& dialog) {
    EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
    EXPECT_EQ(FieldOf(dialog).text(), QStringLiteral("5"));
    FieldOf(dialog).setText(QStringLiteral("  12 abc \t"));
    dialog.accept();
  });
  EXPECT_EQ(prompts.EnterText({TCTextPromptMode::Property, u"How many", u"", u"5"}), u"  12 abc \t");
}

TEST_F(QtPrompts, AnEmptyTextIsAnAnswerTooAndACancelledPromptIsNone) {
  {
    const TCDialogAnswer<QDialog> answer([](QDialog& dialog) {
      FieldOf(dialog).clear();
      dialog.accept();
    });
    EXPECT_EQ(prompts.EnterText({TCTextPromptMode::Property, u"How many", u"", u"5"}), u"");
  }
  const TCDialogAnswer<QDialog> answer([](QDialog& dialog) { dialog.reject(); });
  EXPECT_EQ(prompts.EnterText({TCTextPromptMode::Property, u"How many", u"", u"5"}), std::nullopt);
}

TEST_F(QtPrompts, NoQuestionOpensOverAnother) {
  const TCDialogAnswer<QDialog> answer([this](QDialog& dialog) {
    EXPECT_EQ(prompts.EnterText({TCTextPromptMode::Property, u"Another", u"", u""}), std::nullopt);
    EXPECT_EQ(prompts.AskSaveChanges(u"show.brv"), TCSaveAnswer::Cancel);
    EXPECT_EQ(prompts.ChooseDocumentToOpen(), std::nullopt);
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    dialog.accept();
  });
  EXPECT_EQ(prompts.EnterText({TCTextPromptMode::Property, u"The first", u"", u"kept"}), u"kept");
}

TEST_F(QtPrompts, TheSaveQuestionNamesTheDocument) {
  QString text;
  const TCDialogAnswer<QMessageBox> answer([&text](QMessageBox& box) {
    text = box.text();
    box.button(QMessageBox::Save)->click();
  });
  EXPECT_EQ(prompts.AskSaveChanges(u"<b>show</b>.brv"), TCSaveAnswer::Save);
  EXPECT_EQ(text, QStringLiteral("Save changes to <b>show</b>.brv?"));
}

TEST_F(QtPrompts, TheSaveQuestionTakesThreeAnswersAndEscape) {
  {
    const TCDialogAnswer<QMessageBox> answer(
        [](QMessageBox& box) { box.button(QMessageBox::Discard)->click(); });
    EXPECT_EQ(prompts.AskSaveChanges(u""), TCSaveAnswer::Discard);
  }
  {
    const TCDialogAnswer<QMessageBox> answer(
        [](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); });
    EXPECT_EQ(prompts.AskSaveChanges(u""), TCSaveAnswer::Cancel);
  }
  {
    const TCDialogAnswer<QMessageBox> answer([](QMessageBox& box) { box.reject(); });
    EXPECT_EQ(prompts.AskSaveChanges(u""), TCSaveAnswer::Cancel);
  }
}

TEST_F(QtPrompts, AChosenDocumentComesBackAsAModelPath) {
  Write("show.brv");
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.nameFilters(), QStringList{QStringLiteral("Brevant Files (*.brv)")});
    dialog.setDirectory(folder.path());
    dialog.selectFile(Native("show.brv"));
    Accept(dialog);
  });
  EXPECT_EQ(prompts.ChooseDocumentToOpen(), Model("show.brv"));
}

TEST_F(QtPrompts, NothingIsChosenWhenTheUserCancels) {
  const TCDialogAnswer<QFileDialog> answer([](QFileDialog& dialog) { dialog.reject(); });
  EXPECT_FALSE(prompts.ChooseDocumentToOpen().has_value());
}

TEST_F(QtPrompts, ANameThatTheModelCannotHoldIsRefusedInTheStatusBar) {
  Write("back\\slash.brv");
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    dialog.setDirectory(folder.path());
    dialog.selectFile(Native("back\\slash.brv"));
    Accept(dialog);
  });
  EXPECT_FALSE(prompts.ChooseDocumentToOpen().has_value());
  EXPECT_TRUE(frame.StatusLine().ShownMessage().endsWith(QStringLiteral("back\\slash.brv")))
      << frame.StatusLine().ShownMessage().toStdString();
}

TEST_F(QtPrompts, TheChoosersStartInTheDocumentsFolder) {
  setLists.documentFolder = Model("");
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
    dialog.reject();
  });
  EXPECT_FALSE(prompts.ChooseDocumentToOpen().has_value());
}

TEST_F(QtPrompts, SavingUnderANameWithoutATypeAddsIt) {
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.selectedFiles(), QStringList{Native("old.brv")}) << "the present name is suggested";
    dialog.selectFile(Native("new"));
    Accept(dialog);
  });
  EXPECT_EQ(prompts.ChooseDocumentToSave(Model("old.brv")), Model("new.brv"));
}

}  // namespace
}  // namespace brevant
