#include "app/dialogs/qt_prompts.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QLineEdit>
#include <QListView>
#include <QMessageBox>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>
#include <QTreeView>

#include "app/dialog_answer.h"
#include "app/dialogs/dialog_enter_user_text.h"
#include "app/dialogs/form_dialog.h"
#include "document/add_play_items.h"
#include "document/song_properties.h"
#include "support/edit_rig.h"
#include "support/fake_player.h"
#include "support/memory_files.h"
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
  TCMemoryFiles disk;  // hangs when a test wants it
  TCQtPrompts prompts{frame, setLists, disk, TCNativePaths()};
  QTemporaryDir folder;
};

TCMediaFileQuestion SongQuestion() {
  return {TCChooseFiles::Several, {u"mid", u"mp3", u"wav", u"wma"}, u"mp3", u""};
}

// The first column that does not show what it holds, or none.
int ColumnCutOff(QFileDialog& dialog) {
  auto& files = *dialog.findChild<QTreeView*>(QStringLiteral("treeView"));
  if (!QTest::qWaitFor([&files] { return files.model()->rowCount(files.rootIndex()) > 0; })) return 0;
  files.doItemsLayout();
  for (int column = 1; column < files.model()->columnCount(); ++column) {
    const QString text = files.model()->index(0, column, files.rootIndex()).data().toString();
    if (!files.isColumnHidden(column) &&
        files.columnWidth(column) < files.fontMetrics().horizontalAdvance(text)) {
      return column;
    }
  }
  return -1;
}

QLineEdit& NameIn(QFileDialog& dialog) {
  return *dialog.findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
}

QLineEdit& FieldOf(QDialog& dialog) {
  return *dialog.findChild<QLineEdit*>(QStringLiteral("Text"));
}

TEST_F(QtPrompts, AFileDialogCutsNoDateOrSize) {
  Write("show.brv");
  Write("song.mp3");
  setLists.documentFolder = Model("");
  const auto expectWhole = [](QFileDialog& dialog) {
    EXPECT_EQ(ColumnCutOff(dialog), -1);
    dialog.reject();
  };
  {
    const TCDialogAnswer<QFileDialog> answer(expectWhole);
    (void)prompts.ChooseDocumentToOpen();
  }
  {
    const TCDialogAnswer<QFileDialog> answer(expectWhole);
    (void)prompts.ChooseDocumentToSave(u"");
  }
  const TCDialogAnswer<QFileDialog> answer(expectWhole);
  (void)prompts.ChooseMediaFiles(SongQuestion());
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

TEST_F(QtPrompts, TheKeysComeBackToTheWindowThatAskedWhoeverHasThemBehindTheDialog) {
  frame.show();
  QWidget another;
  another.show();
  const TCDialogAnswer<QFileDialog> answer([&another](QFileDialog& dialog) {
    QObject::connect(&dialog, &QDialog::finished, &another, [&another] { another.activateWindow(); });
    dialog.reject();
  });
  EXPECT_EQ(prompts.ChooseDocumentToOpen(), std::nullopt);
  EXPECT_TRUE(QTest::qWaitFor([this] { return frame.isActiveWindow(); }, 2000));
}

TEST_F(QtPrompts, TheKeysComeBackToAPaneThatFloats) {
  frame.show();
  QWidget pane(&frame, Qt::Tool);
  pane.show();
  pane.activateWindow();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&pane));
  const TCDialogAnswer<QMessageBox> answer([](QMessageBox& box) { box.reject(); });
  (void)prompts.ConfirmRemove(u"Remove it?");
  for (int round = 0; round < 10; ++round) QCoreApplication::processEvents();  // whoever else asked for them
  EXPECT_EQ(QApplication::activeWindow(), &pane);
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

TEST_F(QtPrompts, AFolderWhoseDiskDoesNotAnswerIsNotWaitedFor) {
  setLists.documentFolder = Model("");
  disk.hangs = true;
  const auto expectHome = [](const QString& name) {
    return [name](QFileDialog& dialog) {
      EXPECT_EQ(dialog.directory(), QDir::home());
      EXPECT_EQ(NameIn(dialog).text(), name);
      dialog.reject();
    };
  };
  {
    const TCDialogAnswer<QFileDialog> answer(expectHome(QString()));
    (void)prompts.ChooseDocumentToOpen();
  }
  {
    const TCDialogAnswer<QFileDialog> answer(expectHome(QStringLiteral("show.brv")));
    (void)prompts.ChooseDocumentToSave(Model("show.brv"));
  }
  TCMediaFileQuestion question = SongQuestion();
  question.initialPath = Model("song.mp3");
  const TCDialogAnswer<QFileDialog> answer(expectHome(QStringLiteral("song.mp3")));
  (void)prompts.ChooseMediaFiles(question);
}

TEST_F(QtPrompts, SavingUnderANameWithoutATypeAddsIt) {
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.selectedFiles(), QStringList{Native("old.brv")}) << "the present name is suggested";
    dialog.selectFile(Native("new"));
    Accept(dialog);
  });
  EXPECT_EQ(prompts.ChooseDocumentToSave(Model("old.brv")), Model("new.brv"));
}

TEST_F(QtPrompts, TheRemovalQuestionIsANoUntilTheUserSaysYes) {
  {
    QString text;
    const TCDialogAnswer<QMessageBox> answer([&text](QMessageBox& box) {
      text = box.text();
      box.button(QMessageBox::Yes)->click();
    });
    EXPECT_TRUE(prompts.ConfirmRemove(u"Are you sure you want to remove file: <b>a</b>.mp3"));
    EXPECT_EQ(text, QStringLiteral("Are you sure you want to remove file: <b>a</b>.mp3"));
  }
  {
    const TCDialogAnswer<QMessageBox> answer([](QMessageBox& box) { box.button(QMessageBox::No)->click(); });
    EXPECT_FALSE(prompts.ConfirmRemove(u"Remove?"));
  }
  for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Escape, Qt::Key_Space, Qt::Key_N, Qt::Key_Y}) {
    const TCDialogAnswer<QMessageBox> answer([key](QMessageBox& box) {
      ASSERT_TRUE(QTest::qWaitForWindowActive(&box));
      QTest::keyClick(QApplication::focusWidget(), key);
    });
    EXPECT_EQ(prompts.ConfirmRemove(u"Remove?"), key == Qt::Key_Y) << key;
  }
}

TEST_F(QtPrompts, SeveralSongsComeBackAsModelPathsInTheOrderOfTheChooser) {
  Write("b.mp3");
  Write("a song.wav");
  Write("\u5F9E\u524D.mid");
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
    EXPECT_EQ(dialog.nameFilters(), (QStringList{QStringLiteral("Media Files (*.mid *.mp3 *.wav *.wma)"),
                                                 QStringLiteral("All Files (*)")}));
    EXPECT_EQ(dialog.defaultSuffix(), QStringLiteral("mp3"));
    dialog.setDirectory(folder.path());
    NameIn(dialog).setText(QStringLiteral("\"b.mp3\" \"a song.wav\" \"\u5F9E\u524D.mid\""));
    Accept(dialog);
  });
  EXPECT_EQ(prompts.ChooseMediaFiles(SongQuestion()),
            (std::vector<std::u16string>{Model("b.mp3"), Model("a song.wav"), Model("\u5F9E\u524D.mid")}));
}

TEST_F(QtPrompts, HundredsOfSongsAreChosenAtOnce) {
  for (int i = 0; i < 300; ++i) Write(QStringLiteral("a song with a long name %1.mp3").arg(i).toUtf8());
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    dialog.setDirectory(folder.path());
    auto& list = *dialog.findChild<QListView*>(QStringLiteral("listView"));
    ASSERT_TRUE(QTest::qWaitFor([&list] { return list.model()->rowCount(list.rootIndex()) == 300; }));
    list.selectAll();
    Accept(dialog);
  });
  EXPECT_EQ(prompts.ChooseMediaFiles(SongQuestion())->size(), 300U);
}

TEST_F(QtPrompts, OneSongIsChosenWhereOneIsWanted) {
  Write("b.mp3");
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.fileMode(), QFileDialog::ExistingFile);
    dialog.selectFile(Native("b.mp3"));
    Accept(dialog);
  });
  TCMediaFileQuestion question = SongQuestion();
  question.count = TCChooseFiles::One;
  EXPECT_EQ(prompts.ChooseMediaFiles(question), std::vector{Model("b.mp3")});
}

TEST_F(QtPrompts, AFileOfATypeInCapitalsIsOffered) {
  Write("LOUD.MP3");
  Write("notes.txt");
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    dialog.setDirectory(folder.path());
    const auto& list = *dialog.findChild<QListView*>(QStringLiteral("listView"));
    ASSERT_TRUE(QTest::qWaitFor([&list] { return list.model()->rowCount(list.rootIndex()) > 0; }));
    EXPECT_EQ(list.model()->rowCount(list.rootIndex()), 1);
    EXPECT_EQ(list.model()->index(0, 0, list.rootIndex()).data().toString(), QStringLiteral("LOUD.MP3"));
    dialog.reject();
  });
  EXPECT_FALSE(prompts.ChooseMediaFiles(SongQuestion()).has_value());
}

TEST_F(QtPrompts, TheMediaChooserBeginsAtTheLastSongWhateverItsCase) {
  Write("Last.mp3");
  TCMediaFileQuestion question = SongQuestion();
  question.initialPath = Model("LAST.mp3");
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
    EXPECT_EQ(NameIn(dialog).text(), QStringLiteral("Last.mp3"));
    dialog.reject();
  });
  EXPECT_FALSE(prompts.ChooseMediaFiles(question).has_value());
}

TEST_F(QtPrompts, WithoutALastSongTheMediaChooserBeginsWhereItWasLeftAndWithoutAName) {
  setLists.documentFolder = Model("");
  ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("songs")));
  Write("songs/a.mp3");
  {
    const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
      EXPECT_EQ(dialog.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
      EXPECT_EQ(NameIn(dialog).text(), QString());
      dialog.selectFile(Native("songs/a.mp3"));
      Accept(dialog);
    });
    EXPECT_EQ(prompts.ChooseMediaFiles(SongQuestion())->size(), 1U);
  }
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().canonicalPath(), QDir(Native("songs")).canonicalPath());
    EXPECT_EQ(NameIn(dialog).text(), QString());
    dialog.reject();
  });
  EXPECT_FALSE(prompts.ChooseMediaFiles(SongQuestion()).has_value());
}

TEST_F(QtPrompts, AFolderThatIsGoneLeavesTheMediaChooserInTheDocumentsFolder) {
  setLists.documentFolder = Model("");
  TCMediaFileQuestion question = SongQuestion();
  question.initialPath = Model("gone\\a.mp3");
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    EXPECT_EQ(dialog.directory().canonicalPath(), QDir(folder.path()).canonicalPath());
    dialog.reject();
  });
  EXPECT_FALSE(prompts.ChooseMediaFiles(question).has_value());
}

TEST_F(QtPrompts, OfSeveralSongsTheOnesWithNamesTheModelCannotHoldAreLeftOut) {
  Write("back\\slash.mp3");
  Write("good.mp3");
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    dialog.setDirectory(folder.path());
    NameIn(dialog).setText(QStringLiteral("\"back\\slash.mp3\" \"good.mp3\""));
    Accept(dialog);
  });
  EXPECT_EQ(prompts.ChooseMediaFiles(SongQuestion()), std::vector{Model("good.mp3")});
  EXPECT_TRUE(frame.StatusLine().ShownMessage().endsWith(QStringLiteral("back\\slash.mp3")))
      << frame.StatusLine().ShownMessage().toStdString();
}

TEST_F(QtPrompts, AChoiceOfWhichNothingCanBeUsedIsNoCancelledOne) {
  Write("back\\slash.mp3");
  const TCDialogAnswer<QFileDialog> answer([this](QFileDialog& dialog) {
    dialog.setDirectory(folder.path());
    NameIn(dialog).setText(QStringLiteral("\"back\\slash.mp3\""));
    Accept(dialog);
  });
  EXPECT_EQ(prompts.ChooseMediaFiles(SongQuestion()), std::vector<std::u16string>());
}

// The two larger dialogs over the real questions.
class QtPromptsOverAForm : public QtPrompts {
 protected:
  void SetUp() override {
    QtPrompts::SetUp();
    rig.AddGroup(u"Mariner Sets", {{u"Harbour", {u"Anchor.mp3"}}, {u"Open Sea", {}}});
    rig.Show();
  }

  static void Press(QDialog& dialog, const char* button) {
    QTest::mouseClick(dialog.findChild<QPushButton*>(QLatin1String(button)), Qt::LeftButton);
  }

  TCEditRig rig;
  TCEditParts parts{rig.record, rig.check,    rig.treePresenter, rig.presenter, rig.view,
                    rig.frame,  rig.messages, prompts,           [] {}};
  TCSetListEditor editor{parts};
  TCSongPlacement placement{parts, editor};
};

TEST_F(QtPromptsOverAForm, CreateSetListsAsksForNamesAndFilesOverItself) {
  Write("a.mp3");
  TCAddPlayItems form(parts, editor, placement);
  const TCDialogAnswer<TCFormDialog> answer([this, &form](TCFormDialog& dialog) {
    EXPECT_EQ(dialog.windowModality(), Qt::WindowModal);
    {
      const TCDialogAnswer<TCDialogEnterUserText> name([&dialog](TCDialogEnterUserText& prompt) {
        EXPECT_EQ(prompt.parentWidget(), &dialog);
        FieldOf(prompt).setText(QStringLiteral("Encores"));
        prompt.accept();
      });
      Press(dialog, "CreateSet");
    }
    EXPECT_EQ(form.Playlist(), 2);
    {
      const TCDialogAnswer<QFileDialog> files([this, &dialog](QFileDialog& chooser) {
        EXPECT_EQ(chooser.parentWidget(), &dialog);
        chooser.selectFile(Native("a.mp3"));
        Accept(chooser);
      });
      Press(dialog, "FindSongs");
    }
    Press(dialog, "Create");
    Press(dialog, "OK");
  });
  EXPECT_TRUE(prompts.EditSetLists(form));
  EXPECT_EQ(rig.ModelLines(), (std::vector<std::u16string>{u"Mariner Sets", u"  Harbour", u"    Anchor.mp3",
                                                           u"  Open Sea", u"  Encores", u"    a.mp3"}));
  EXPECT_EQ(rig.store.groups[0].playlists[2].items[0].FullPath(), Model("a.mp3"));
}

TEST_F(QtPromptsOverAForm, CreateSetListsCancelledIsNoOk) {
  TCAddPlayItems form(parts, editor, placement);
  const TCDialogAnswer<TCFormDialog> answer([](TCFormDialog& dialog) { Press(dialog, "Cancel"); });
  EXPECT_FALSE(prompts.EditSetLists(form));
}

TEST_F(QtPromptsOverAForm, OnlyItsOwnButtonsAskOverADialog) {
  TCAddPlayItems form(parts, editor, placement);
  const TCDialogAnswer<TCFormDialog> answer([this](TCFormDialog& dialog) {
    EXPECT_EQ(prompts.EnterText({TCTextPromptMode::Property, u"Another", u"", u""}), std::nullopt);
    EXPECT_FALSE(prompts.ConfirmRemove(u"Remove?"));
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    Press(dialog, "Cancel");
  });
  EXPECT_FALSE(prompts.EditSetLists(form));
}

TEST_F(QtPromptsOverAForm, WhileADialogAsksNothingElseOfItWorks) {
  TCAddPlayItems form(parts, editor, placement);
  form.ChoosePlaylist(1);
  const TCDialogAnswer<TCFormDialog> answer([this, &form](TCFormDialog& dialog) {
    const TCDialogAnswer<TCDialogEnterUserText> name([this, &form, &dialog](TCDialogEnterUserText& prompt) {
      // As a screen reader does, which no open question keeps out.
      for (const char* button : {"Create", "CreateGroup", "FindSongs", "OK", "Cancel"}) {
        dialog.findChild<QPushButton*>(QLatin1String(button))->click();
        EXPECT_EQ(QApplication::activeModalWidget(), &prompt) << button;
      }
      EXPECT_TRUE(dialog.isVisible());
      EXPECT_EQ(rig.store.CurrentPosition(), (TCPlaylistPosition{0, 0}));
      EXPECT_EQ(prompts.EnterText({TCTextPromptMode::Property, u"Another", u"", u""}), std::nullopt);
      FieldOf(prompt).setText(QStringLiteral("Spring"));
      prompt.accept();
    });
    Press(dialog, "CreateGroup");
    EXPECT_EQ(form.Group(), 1);
    Press(dialog, "OK");
  });
  EXPECT_TRUE(prompts.EditSetLists(form));
}

TEST_F(QtPromptsOverAForm, SongPropertiesTakesAFolderAndIsOkOrNot) {
  ASSERT_TRUE(QDir(folder.path()).mkdir(QStringLiteral("moved")));
  Write("moved/other.mp3");
  {
    TCSongPropertiesForm form(parts, {0, 0, 0});
    const TCDialogAnswer<TCFormDialog> answer([this](TCFormDialog& dialog) {
      const TCDialogAnswer<QFileDialog> file([this, &dialog](QFileDialog& chooser) {
        EXPECT_EQ(chooser.parentWidget(), &dialog);
        chooser.selectFile(Native("moved/other.mp3"));
        Accept(chooser);
      });
      Press(dialog, "SetDir");
      Press(dialog, "OK");
    });
    EXPECT_TRUE(prompts.EditSongProperties(form));
    EXPECT_EQ(form.songPath, Model("moved/"));
  }
  TCSongPropertiesForm form(parts, {0, 0, 0});
  const TCDialogAnswer<TCFormDialog> answer([](TCFormDialog& dialog) { Press(dialog, "Cancel"); });
  EXPECT_FALSE(prompts.EditSongProperties(form));
}

}  // namespace
}  // namespace brevant
