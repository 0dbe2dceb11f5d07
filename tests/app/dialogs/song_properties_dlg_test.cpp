#include "app/dialogs/song_properties_dlg.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QCheckBox>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTest>

#include "support/edit_rig.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

class SongPropertiesDlg : public testing::Test {
 protected:
  void SetUp() override {
    rig.AddGroup(u"Mariner Sets", {{u"Harbour", {u"Anchor.mp3", u"Buoy.mp3"}}});
    List().folder = TCSharedText(u"C:\\sets\\");
    List().extension = u"brvpl";
    rig.store.groups.front().folder = TCSharedText(u"C:\\groups\\");
    rig.store.groups.front().extension = u"brvgl";
    rig.Show();
  }

  [[nodiscard]] TCPlayList& List() { return rig.store.groups.front().playlists.front(); }

  void Open() {
    form.emplace(rig.parts, TCSongPosition{0, 0, 0});
    dialog.emplace(*form, nullptr);
    dialog->open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*dialog));
  }

  template <typename Widget>
  [[nodiscard]] Widget& Find(const char* name) {
    return *dialog->findChild<Widget*>(QLatin1String(name));
  }
  [[nodiscard]] QString TextIn(const char* field) { return Find<QLineEdit>(field).text(); }
  void Click(const char* button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }

  TCEditRig rig;
  std::optional<TCSongPropertiesForm> form;
  std::optional<TCSongProperties> dialog;
};

TEST_F(SongPropertiesDlg, ItsTextsStandToTheLetter) {
  Open();
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Song properties"));
  QStringList texts;
  for (const QLabel* label : dialog->findChildren<QLabel*>()) texts.append(label->text());
  for (const QAbstractButton* button : dialog->findChildren<QAbstractButton*>()) texts.append(button->text());
  texts.sort();
  QStringList expected{QStringLiteral("To change the song's (s) file path, use the \"Set Dir\" button"),
                       QStringLiteral("to navigate to the required directory folder and select any song"),
                       QStringLiteral("Song File Path:"),
                       QStringLiteral("Set Dir"),
                       QStringLiteral("Song Name:"),
                       QStringLiteral("Song Time:"),
                       QStringLiteral("Playlist Name:"),
                       QStringLiteral("Grouplist Name:"),
                       QStringLiteral("Use this directory/file path to update all songs in this playlist"),
                       QStringLiteral("Use this files's extention type for all songs in this playlist"),
                       QStringLiteral("OK"),
                       QStringLiteral("Cancel")};
  expected.sort();
  EXPECT_EQ(texts, expected);
}

TEST_F(SongPropertiesDlg, ShowsTheSongAndWhereItBelongs) {
  Open();
  EXPECT_EQ(TextIn("SongPath"), QStringLiteral("C:\\"));
  EXPECT_EQ(TextIn("SongName"), QStringLiteral("Anchor.mp3"));
  EXPECT_EQ(TextIn("SongTime"), QStringLiteral("01:00"));
  EXPECT_EQ(TextIn("PlaylistName"), QStringLiteral("C:\\sets\\Harbour.brvpl"));
  EXPECT_EQ(TextIn("GroupName"), QStringLiteral("C:\\groups\\Mariner Sets.brvgl"));
}

TEST_F(SongPropertiesDlg, TheBoxesStandAsThePlaylistRemembersThem) {
  Open();
  EXPECT_FALSE(Find<QCheckBox>("PathForAll").isChecked());
  EXPECT_FALSE(Find<QCheckBox>("ExtensionForAll").isChecked());
  dialog->reject();
  List().state2 = 1;
  Open();
  EXPECT_TRUE(Find<QCheckBox>("PathForAll").isChecked());
  EXPECT_FALSE(Find<QCheckBox>("ExtensionForAll").isChecked());
  dialog->reject();
  List().state2 = 0;
  List().state3 = 1;
  Open();
  EXPECT_FALSE(Find<QCheckBox>("PathForAll").isChecked());
  EXPECT_TRUE(Find<QCheckBox>("ExtensionForAll").isChecked());
}

TEST_F(SongPropertiesDlg, WhatIsTypedAndTickedGoesIntoTheForm) {
  Open();
  QTest::keyClick(&Find<QLineEdit>("SongPath"), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&Find<QLineEdit>("SongPath"), QStringLiteral("D:\\new\\"));
  QTest::keyClick(&Find<QLineEdit>("SongName"), Qt::Key_A, Qt::ControlModifier);
  QTest::keyClicks(&Find<QLineEdit>("SongName"), QStringLiteral("Bell.wav"));
  QTest::keyClick(&Find<QCheckBox>("PathForAll"), Qt::Key_Space);
  EXPECT_EQ(form->songPath, u"D:\\new\\");
  EXPECT_EQ(form->songName, u"Bell.wav");
  EXPECT_TRUE(form->pathForAll);
  EXPECT_FALSE(form->extensionForAll);
  QTest::keyClick(&Find<QCheckBox>("ExtensionForAll"), Qt::Key_Space);
  EXPECT_TRUE(form->extensionForAll);
}

TEST_F(SongPropertiesDlg, TimePlaylistAndGroupTakeNoTyping) {
  Open();
  for (const char* name : {"SongTime", "PlaylistName", "GroupName"}) {
    auto& field = Find<QLineEdit>(name);
    const QString before = field.text();
    QTest::keyClicks(&field, QStringLiteral("x"));
    EXPECT_EQ(field.text(), before) << name;
    EXPECT_NE(field.focusPolicy() & Qt::TabFocus, 0) << "it is reached, read and copied: " << name;
  }
}

TEST_F(SongPropertiesDlg, SetDirTakesTheFolderOfTheChosenFileAndKeepsWhatWasTyped) {
  rig.record.settings.lastMediaFileName = u"C:\\Anchor.mp3";
  Open();
  QTest::keyClick(&Find<QLineEdit>("SongName"), Qt::Key_End);
  QTest::keyClicks(&Find<QLineEdit>("SongName"), QStringLiteral("x"));
  rig.prompts.mediaAnswers = {TCFakePrompts::TCPaths{u"\\music\\new\\other.wav"}};
  Click("SetDir");
  EXPECT_EQ(rig.prompts.lastMediaQuestion.count, TCChooseFiles::One);
  EXPECT_EQ(rig.prompts.lastMediaQuestion.initialPath, u"C:\\Anchor.mp3");
  EXPECT_EQ(TextIn("SongPath"), QStringLiteral("\\music\\new\\"));
  EXPECT_EQ(TextIn("SongName"), QStringLiteral("Anchor.mp3x"));
  EXPECT_EQ(rig.record.settings.lastMediaFileExtSpec, u"wav");
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(SongPropertiesDlg, CancellingSetDirKeepsThePathAndForgetsTheLastFile) {
  rig.record.settings.lastMediaFileName = u"C:\\Anchor.mp3";
  Open();
  rig.prompts.mediaAnswers = {std::nullopt};
  Click("SetDir");
  EXPECT_EQ(TextIn("SongPath"), QStringLiteral("C:\\"));
  EXPECT_EQ(rig.record.settings.lastMediaFileName, u"");
}

TEST_F(SongPropertiesDlg, NothingChangesBeforeOk) {
  Open();
  QTest::keyClicks(&Find<QLineEdit>("SongName"), QStringLiteral("x"));
  QTest::keyClick(&Find<QCheckBox>("PathForAll"), Qt::Key_Space);
  EXPECT_EQ(List().items.front().fileName, u"Anchor.mp3");
  EXPECT_EQ(List().state2, 0);
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(SongPropertiesDlg, EnterIsOkFromEveryFieldAndEscapeGivesUp) {
  for (const char* control : {"SongPath", "SongName", "SongTime", "PathForAll"}) {
    Open();
    Find<QWidget>(control).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
    EXPECT_EQ(dialog->result(), QDialog::Accepted) << control;
    EXPECT_FALSE(dialog->isVisible()) << control;

    Open();
    Find<QWidget>(control).setFocus();
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    EXPECT_EQ(dialog->result(), QDialog::Rejected) << control;
    EXPECT_FALSE(dialog->isVisible()) << control;
  }
}

TEST_F(SongPropertiesDlg, EnterOnSetDirIsSetDir) {
  Open();
  rig.prompts.mediaAnswers = {TCFakePrompts::TCPaths{u"\\music\\a.mp3"}};
  Find<QPushButton>("SetDir").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(TextIn("SongPath"), QStringLiteral("\\music\\"));
}

TEST_F(SongPropertiesDlg, TheTabKeyGoesRoundAllControls) {
  Open();
  EXPECT_EQ(QApplication::focusWidget(), &Find<QLineEdit>("SongPath"));
  for (const char* next : {"SetDir", "SongName", "SongTime", "PlaylistName", "GroupName", "PathForAll",
                           "ExtensionForAll", "OK", "Cancel", "SongPath"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QLatin1String(next));
  }
}

TEST_F(SongPropertiesDlg, EachFieldIsAnnouncedByItsLabel) {
  Open();
  const std::pair<const char*, const char*> fields[] = {{"SongPath", "Song File Path:"},
                                                        {"SongName", "Song Name:"},
                                                        {"SongTime", "Song Time:"},
                                                        {"PlaylistName", "Playlist Name:"},
                                                        {"GroupName", "Grouplist Name:"}};
  for (const auto& [name, label] : fields) {
    EXPECT_EQ(Find<QLineEdit>(name).accessibleName(), QLatin1String(label));
  }
}

}  // namespace
}  // namespace brevant
