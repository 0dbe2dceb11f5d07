#include "app/recent_file_menu.h"

#include <gtest/gtest.h>

#include <QMenu>
#include <QMessageBox>
#include <QTest>

#include "app/dialog_answer.h"
#include "app/whole_program.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

// The texts.

TEST(RecentFileTexts, AnEntryIsItsNumberAndItsName) {
  EXPECT_EQ(RecentFileTexts({u"\\shows\\summer.brv", u"C:\\winter.brv"}),
            (QStringList{QStringLiteral("&1 summer.brv"), QStringLiteral("&2 winter.brv")}));
  EXPECT_EQ(RecentFileTexts({}), QStringList());
}

TEST(RecentFileTexts, TheFolderTellsApartWhatHasTheSameName) {
  EXPECT_EQ(RecentFileTexts({u"\\spring\\show.brv", u"\\a\\other.brv", u"\\autumn\\Show.brv"}),
            (QStringList{QStringLiteral("&1 show.brv  (\\spring\\)"), QStringLiteral("&2 other.brv"),
                         QStringLiteral("&3 Show.brv  (\\autumn\\)")}));
}

TEST(RecentFileTexts, LongNamesAndFoldersAreShortened) {
  const std::u16string folder = u"\\" + std::u16string(100, u'f') + u"\\end\\";
  const QStringList texts = RecentFileTexts(
      {folder + u"show.brv", u"\\a\\show.brv", u"\\a\\" + std::u16string(200, u'n') + u".brv"});
  EXPECT_EQ(texts[0], QStringLiteral("&1 show.brv  (\u2026%1\\end\\)").arg(QString(35, u'f')));
  EXPECT_EQ(texts[2], QStringLiteral("&3 %1\u2026%2.brv").arg(QString(30, u'n'), QString(26, u'n')));
}

TEST(RecentFileTexts, WhatMeansSomethingInAMenuIsShownAsItStands) {
  EXPECT_EQ(RecentFileTexts({u"\\a\\Rock & Roll\t1.brv"}),
            QStringList{QStringLiteral("&1 Rock && Roll 1.brv")});
}

// The whole program's menu.

class RecentFileMenu : public TCWholeProgram {
 protected:
  [[nodiscard]] QMenu& FileMenu() { return *Frame().menuBar()->actions().constFirst()->menu(); }

  // What stands between the line below "Save As" and the one above "Exit".
  [[nodiscard]] QStringList Entries() {
    QStringList texts;
    int lines = 0;
    for (const QAction* entry : FileMenu().actions()) {
      if (entry->isSeparator()) {
        ++lines;
      } else if (lines == 1 && entry->isVisible()) {
        texts.append(entry->text() + QLatin1String(entry->isEnabled() ? "" : " (disabled)"));
      }
    }
    EXPECT_EQ(lines, 2);
    return texts;
  }

  // `number` as the menu shows it.
  void Choose(int number) {
    for (QAction* entry : FileMenu().actions()) {
      if (entry->text().startsWith(QStringLiteral("&%1 ").arg(number))) entry->trigger();
    }
    QCoreApplication::sendPostedEvents();
  }

  void PutShow(std::u16string_view path) {
    files.PutUtf16(path, u"\"Band\" \"Set\" \"\\m\\one.mp3\" 03:00\r\n");
  }

  [[nodiscard]] const std::u16string& Open() { return app->Document().GetPathName(); }
};

TEST_F(RecentFileMenu, WithoutAFileTheEntryStandsThereDisabled) {
  Start();
  EXPECT_EQ(Entries(), QStringList{QStringLiteral("Recent File (disabled)")});
  EXPECT_EQ(FileMenu().actions().constLast()->text(), QStringLiteral("E&xit"));
}

TEST_F(RecentFileMenu, NumberedEntriesTakeThePlaceOfTheEntryAndComeBackAtTheNextStart) {
  PutShow(u"\\a\\b.brv");
  Start(kShow);
  app->Document().OpenDocumentFile(u"\\a\\b.brv");
  const QStringList entries{QStringLiteral("&1 b.brv"), QStringLiteral("&2 show.brv")};
  EXPECT_EQ(Entries(), entries);
  for (const QAction* entry : FileMenu().actions().mid(5, 2))
    EXPECT_EQ(entry->statusTip(), QStringLiteral("Open this document"));
  app.reset();  // without a close
  files.Remove(kIniPath);
  Start();
  EXPECT_EQ(Entries(), entries) << "a first start knows them as well";
}

TEST_F(RecentFileMenu, AnEntryOpensItsFileAndMovesToTheTop) {
  PutShow(u"\\a\\b.brv");
  Start(kShow);
  app->Document().OpenDocumentFile(u"\\a\\b.brv");
  Choose(2);
  EXPECT_EQ(Open(), kShow);
  EXPECT_EQ(Entries().constFirst(), QStringLiteral("&1 show.brv"));
  PutShow(kShow);
  Choose(1);
  EXPECT_EQ(Frame().PlaylistView().model()->rowCount(), 1) << "the open file is read again";
}

TEST_F(RecentFileMenu, EightFilesAreShown) {
  for (int i = 0; i < 10; ++i) PutShow(FromQString(QStringLiteral("\\a\\%1.brv").arg(i)));
  Start();
  for (int i = 0; i < 10; ++i)
    app->Document().OpenDocumentFile(FromQString(QStringLiteral("\\a\\%1.brv").arg(i)));
  ASSERT_EQ(Entries().size(), 8);
  EXPECT_EQ(Entries().constLast(), QStringLiteral("&8 2.brv"));
  Choose(8);
  EXPECT_EQ(Open(), u"\\a\\2.brv");
  EXPECT_EQ(Entries().size(), 8);
}

TEST_F(RecentFileMenu, CancelAtTheQuestionAboutUnsavedChangesOpensNothing) {
  PutShow(u"\\a\\b.brv");
  Start(u"\\a\\b.brv");
  app->Document().OpenDocumentFile(kShow);
  for (const int number : {1, 2}) {
    app->Document().SetModified();
    int asked = 0;
    const TCDialogAnswer<QMessageBox> answer([&asked](QMessageBox& box) {
      ++asked;
      box.button(QMessageBox::Cancel)->click();
    });
    Choose(number);
    EXPECT_EQ(asked, 1);
    EXPECT_EQ(Open(), kShow);
    EXPECT_TRUE(app->Document().IsModified());
    EXPECT_EQ(Entries().constFirst(), QStringLiteral("&1 show.brv"));
  }
}

TEST_F(RecentFileMenu, BehindAnOpenDialogNoEntryActs) {
  PutShow(u"\\a\\b.brv");
  Start(kShow);
  app->Document().OpenDocumentFile(u"\\a\\b.brv");
  const TCDialogAnswer<QDialog> answer([this](QDialog& dialog) {
    Choose(1);
    Choose(2);
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    EXPECT_EQ(Open(), u"\\a\\b.brv");
    EXPECT_EQ(Frame().PlaylistView().model()->rowCount(), 1);
    dialog.reject();
  });
  PutShow(kShow);
  Press(Qt::Key_V);
  EXPECT_EQ(Open(), u"\\a\\b.brv");
}

TEST_F(RecentFileMenu, AFileThatIsGoneOpensAsAnEmptyDocumentOfItsNameAndStaysInTheList) {
  Start(kShow);
  app->Document().OnNewDocument();
  files.Remove(kShow);
  Choose(1);
  EXPECT_EQ(Open(), kShow);
  EXPECT_EQ(Frame().PlaylistView().model()->rowCount(), 0);
  EXPECT_EQ(Entries(), QStringList{QStringLiteral("&1 show.brv")});
}

TEST_F(RecentFileMenu, TheLastFileOfTheLastRunIsNotEntered) {
  files.Put(kIniPath, "[Brevant]\r\nLastLoadedFileName=\\shows\\show.brv\r\n");
  Start();
  ASSERT_EQ(Open(), kShow);
  EXPECT_EQ(Entries(), QStringList{QStringLiteral("Recent File (disabled)")});
}

TEST_F(RecentFileMenu, APlaylistFileOfTheCommandLineOpensAndIsNotEntered) {
  constexpr std::u16string_view kPlaylist = u"\\shows\\Encores.brvpl";
  files.PutUtf16(kPlaylist, u"\\m\\one.mp3\r\n");
  Start(kPlaylist);
  EXPECT_EQ(Open(), kPlaylist);
  EXPECT_EQ(Entries(), QStringList{QStringLiteral("Recent File (disabled)")});
}

}  // namespace
}  // namespace brevant
