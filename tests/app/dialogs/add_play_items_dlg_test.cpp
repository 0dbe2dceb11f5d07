#include "app/dialogs/add_play_items_dlg.h"

#include <gtest/gtest.h>

#include <QAbstractItemView>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include "app/dialogs/song_files_field.h"
#include "app/look/stage_palette.h"
#include "support/edit_rig.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

class AddPlayItemsDlg : public testing::Test {
 protected:
  void SetUp() override {
    rig.AddGroup(u"Mariner Sets", {{u"Harbour", {u"Anchor.mp3"}}, {u"Open Sea", {}}});
    rig.AddGroup(u"Winter", {{u"First Half", {}}, {u"Second Half", {u"Snow.mp3"}}});
    rig.Show();
  }

  void Open() {
    form.emplace(rig.parts, rig.editor, rig.placement);
    dialog.emplace(*form, nullptr);
    dialog->open();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&*dialog));
  }

  template <typename Widget>
  [[nodiscard]] Widget& Find(const char* name) {
    return *dialog->findChild<Widget*>(QLatin1String(name));
  }
  [[nodiscard]] QComboBox& Groups() { return Find<QComboBox>("GroupName"); }
  [[nodiscard]] QComboBox& Playlists() { return Find<QComboBox>("PlaylistName"); }
  [[nodiscard]] TCSongFilesField& Songs() {
    return *dynamic_cast<TCSongFilesField*>(&Find<QWidget>("SongFiles"));
  }
  void Click(const char* button) { QTest::mouseClick(&Find<QPushButton>(button), Qt::LeftButton); }

  static QStringList NamesIn(const QComboBox& list) {
    QStringList names;
    for (int i = 0; i < list.count(); ++i) names.append(list.itemText(i));
    return names;
  }

  TCEditRig rig;
  std::optional<TCAddPlayItems> form;
  std::optional<TCAddPlayItemsDlg> dialog;
};

TEST_F(AddPlayItemsDlg, ItsTextsStandToTheLetter) {
  Open();
  EXPECT_EQ(dialog->windowTitle(), QStringLiteral("Create Set Lists"));
  QStringList texts;
  for (const QLabel* label : dialog->findChildren<QLabel*>()) texts.append(label->text());
  for (const QPushButton* button : dialog->findChildren<QPushButton*>()) texts.append(button->text());
  texts.sort();
  QStringList expected{
      QStringLiteral("Enter the full name and path of the song (s) to be added"),
      QStringLiteral(
          "or use the Find Songs button. Enclose each song in quotes there is a space in the name"),
      QStringLiteral("Setlist Group Name"),
      QStringLiteral("Setlist Name"),
      QStringLiteral("Song File Names:"),
      QStringLiteral("Find &Songs"),
      QStringLiteral("Create Group"),
      QStringLiteral("Create Set"),
      QStringLiteral("Create"),
      QStringLiteral("&Help"),
      QStringLiteral("OK"),
      QStringLiteral("Cancel")};
  expected.sort();
  EXPECT_EQ(texts, expected);
}

TEST_F(AddPlayItemsDlg, OpensAtTheGroupAndPlaylistShownLast) {
  rig.store.lastGroupListName = u"Winter";
  rig.store.lastPlayListName = u"Second Half";
  Open();
  EXPECT_EQ(NamesIn(Groups()), (QStringList{QStringLiteral("Mariner Sets"), QStringLiteral("Winter")}));
  EXPECT_EQ(Groups().currentText(), QStringLiteral("Winter"));
  EXPECT_EQ(NamesIn(Playlists()), (QStringList{QStringLiteral("First Half"), QStringLiteral("Second Half")}));
  EXPECT_EQ(Playlists().currentText(), QStringLiteral("Second Half"));
}

TEST_F(AddPlayItemsDlg, TheListsKeepTheDocumentsOrderAndTakeNoTyping) {
  rig.AddGroup(u"Autumn", {{u"Second Half", {}}, {u"First Half", {}}});
  rig.Show();
  rig.store.lastGroupListName = u"Autumn";
  Open();
  EXPECT_EQ(NamesIn(Groups()), (QStringList{QStringLiteral("Mariner Sets"), QStringLiteral("Winter"),
                                            QStringLiteral("Autumn")}));
  EXPECT_EQ(NamesIn(Playlists()), (QStringList{QStringLiteral("Second Half"), QStringLiteral("First Half")}));
  EXPECT_FALSE(Groups().isEditable());
  EXPECT_FALSE(Playlists().isEditable());
}

TEST_F(AddPlayItemsDlg, OpensAtTheFirstGroupWhenNoneHasTheName) {
  rig.store.lastGroupListName = u"Summer";
  Open();
  EXPECT_EQ(Groups().currentIndex(), 0);
  EXPECT_EQ(NamesIn(Playlists()), (QStringList{QStringLiteral("Harbour"), QStringLiteral("Open Sea")}));
}

TEST_F(AddPlayItemsDlg, OfTwoGroupsWithOneNameTheLaterIsChosen) {
  rig.AddGroup(u"Winter", {{u"Encores", {}}});
  rig.Show();
  rig.store.lastGroupListName = u"Winter";
  Open();
  EXPECT_EQ(Groups().currentIndex(), 2);
  EXPECT_EQ(NamesIn(Playlists()), QStringList{QStringLiteral("Encores")});
}

TEST_F(AddPlayItemsDlg, WithoutGroupsTheListsAreEmptyAndNothingCanBeAdded) {
  rig.store.groups.clear();
  rig.Show();
  Open();
  EXPECT_EQ(Groups().count(), 0);
  EXPECT_EQ(Playlists().count(), 0);
  QTest::keyClicks(&Songs(), QStringLiteral("C:\\a.mp3"));
  Click("CreateSet");
  Click("Create");
  EXPECT_TRUE(rig.ModelLines().empty());
  EXPECT_TRUE(dialog->isVisible());
}

TEST_F(AddPlayItemsDlg, ChoosingAGroupShowsItsPlaylistsAndChoosesTheFirst) {
  rig.store.lastPlayListName = u"Open Sea";
  Open();
  ASSERT_EQ(Playlists().currentText(), QStringLiteral("Open Sea"));
  QTest::keyClick(&Groups(), Qt::Key_Down);
  EXPECT_EQ(NamesIn(Playlists()), (QStringList{QStringLiteral("First Half"), QStringLiteral("Second Half")}));
  EXPECT_EQ(Playlists().currentIndex(), 0);
  EXPECT_EQ(form->Group(), 1);
  EXPECT_EQ(form->Playlist(), 0);
}

TEST_F(AddPlayItemsDlg, APlaylistIsChosenFromTheOpenedList) {
  Open();
  QTest::mouseClick(&Playlists(), Qt::LeftButton);
  QAbstractItemView& list = *Playlists().view();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(list.window()));
  QTest::keyClick(&list, Qt::Key_Down);
  QTest::keyClick(&list, Qt::Key_Return);
  EXPECT_EQ(Playlists().currentText(), QStringLiteral("Open Sea"));
  EXPECT_EQ(form->Playlist(), 1);
  EXPECT_TRUE(dialog->isVisible()) << "Enter chose, and pressed no OK";
}

TEST_F(AddPlayItemsDlg, CreateGroupAsksForANameAndChoosesTheNewGroup) {
  Open();
  rig.prompts.texts = {u"  Spring "};
  Click("CreateGroup");
  EXPECT_EQ(rig.prompts.lastMode, TCTextPromptMode::CreateGroup);
  EXPECT_EQ(Groups().count(), 3);
  EXPECT_EQ(Groups().currentText(), QStringLiteral("Spring"));
  EXPECT_EQ(Playlists().count(), 0);
}

TEST_F(AddPlayItemsDlg, CreateSetAsksForANameAndChoosesTheNewPlaylist) {
  rig.store.lastGroupListName = u"Winter";
  Open();
  rig.prompts.texts = {u"Encores"};
  Click("CreateSet");
  EXPECT_EQ(rig.prompts.lastMode, TCTextPromptMode::CreateSetList);
  EXPECT_EQ(Groups().currentText(), QStringLiteral("Winter"));
  EXPECT_EQ(Playlists().count(), 3);
  EXPECT_EQ(Playlists().currentText(), QStringLiteral("Encores"));
}

TEST_F(AddPlayItemsDlg, ANameThatIsNotGivenChangesNothing) {
  rig.store.lastGroupListName = u"Winter";
  rig.store.lastPlayListName = u"Second Half";
  Open();
  rig.prompts.texts = {std::nullopt, u"   "};
  Click("CreateGroup");
  Click("CreateSet");
  EXPECT_EQ(Groups().count(), 2);
  EXPECT_EQ(Groups().currentText(), QStringLiteral("Winter"));
  EXPECT_EQ(Playlists().count(), 2);
  EXPECT_EQ(Playlists().currentText(), QStringLiteral("Second Half"));
}

TEST_F(AddPlayItemsDlg, FindSongsPutsTheFilesInQuotesIntoTheField) {
  Open();
  rig.prompts.mediaAnswers = {TCFakePrompts::TCPaths{u"\\music\\Grey Waves.mp3", u"\\music\\b.wav"}};
  Click("FindSongs");
  EXPECT_EQ(rig.prompts.lastMediaQuestion.count, TCChooseFiles::Several);
  EXPECT_EQ(Songs().Text(), u"\"\\music\\Grey Waves.mp3\" \"\\music\\b.wav\"");
  EXPECT_EQ(form->songFiles, Songs().Text());
  EXPECT_EQ(rig.record.settings.lastMediaFileName, u"\\music\\Grey Waves.mp3");
}

TEST_F(AddPlayItemsDlg, CancellingFindSongsKeepsTheFieldAndForgetsTheLastFile) {
  rig.record.settings.lastMediaFileName = u"\\music\\a.mp3";
  Open();
  QTest::keyClicks(&Songs(), QStringLiteral("C:\\b.mp3"));
  rig.prompts.mediaAnswers = {std::nullopt};
  Click("FindSongs");
  EXPECT_EQ(rig.prompts.lastMediaQuestion.initialPath, u"\\music\\a.mp3");
  EXPECT_EQ(Songs().toPlainText(), QStringLiteral("C:\\b.mp3"));
  EXPECT_EQ(rig.record.settings.lastMediaFileName, u"");
}

TEST_F(AddPlayItemsDlg, CreateAddsWhatIsTypedAndStaysOpenForTheNextBatch) {
  Open();
  QTest::keyClick(&Playlists(), Qt::Key_Down);
  QTest::keyClicks(&Songs(), QStringLiteral("\"C:\\Grey Waves.mp3\" C:\\b.wav"));
  Click("Create");
  EXPECT_TRUE(dialog->isVisible());
  Songs().selectAll();
  QTest::keyClicks(&Songs(), QStringLiteral("C:\\c.mid"));
  Click("Create");
  EXPECT_EQ(rig.ModelLines(),
            (std::vector<std::u16string>{u"Mariner Sets", u"  Harbour", u"    Anchor.mp3", u"  Open Sea",
                                         u"    Grey Waves.mp3", u"    b.wav", u"    c.mid", u"Winter",
                                         u"  First Half", u"  Second Half", u"    Snow.mp3"}));
}

TEST_F(AddPlayItemsDlg, CreateWithoutSongsOnlyMakesThePlaylistCurrent) {
  Open();
  const std::vector<std::u16string> before = rig.ModelLines();
  QTest::keyClick(&Groups(), Qt::Key_Down);
  QTest::keyClick(&Playlists(), Qt::Key_Down);
  EXPECT_EQ(rig.store.CurrentPosition(), (TCPlaylistPosition{0, 0})) << "choosing alone changes nothing";
  Click("Create");
  EXPECT_EQ(rig.store.CurrentPosition(), (TCPlaylistPosition{1, 1}));
  EXPECT_EQ(rig.ModelLines(), before);
}

TEST_F(AddPlayItemsDlg, HelpDoesNothing) {
  Open();
  QSignalSpy pressed(&Find<QPushButton>("Help"), &QPushButton::clicked);
  Click("Help");
  QTest::keyClick(&Songs(), Qt::Key_H, Qt::AltModifier);
  ASSERT_TRUE(QTest::qWaitFor([&pressed] { return pressed.count() == 2; }));
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(AddPlayItemsDlg, AltWithTheUnderlinedLetterFindsSongsFromTheField) {
  Open();
  rig.prompts.mediaAnswers = {TCFakePrompts::TCPaths{u"\\music\\a.mp3"}};
  QTest::keyClick(&Songs(), Qt::Key_S, Qt::AltModifier);
  EXPECT_TRUE(
      QTest::qWaitFor([this] { return Songs().toPlainText() == QStringLiteral("\"\\music\\a.mp3\""); }));
}

TEST_F(AddPlayItemsDlg, EnterIsOkFromTheFieldAndTheLists) {
  for (const char* control : {"SongFiles", "GroupName", "PlaylistName"}) {
    for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter}) {
      Open();
      Find<QWidget>(control).setFocus();
      QTest::keyClick(QApplication::focusWidget(), key);
      EXPECT_FALSE(dialog->isVisible()) << control;
      EXPECT_EQ(dialog->result(), QDialog::Accepted) << control;
      EXPECT_EQ(form->songFiles, u"") << "no line break was typed";
    }
  }
}

TEST_F(AddPlayItemsDlg, EnterOnAButtonIsThatButton) {
  Open();
  rig.prompts.texts = {u"Spring"};
  Find<QPushButton>("CreateGroup").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_TRUE(dialog->isVisible());
  EXPECT_EQ(Groups().currentText(), QStringLiteral("Spring"));

  Find<QPushButton>("Cancel").setFocus();
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
  EXPECT_FALSE(dialog->isVisible());
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
}

TEST_F(AddPlayItemsDlg, OkAcceptsAndEscapeAndCancelGiveUp) {
  Open();
  Click("OK");
  EXPECT_EQ(dialog->result(), QDialog::Accepted);
  EXPECT_FALSE(dialog->isVisible());

  Open();
  QTest::keyClick(&Songs(), Qt::Key_Escape);
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  EXPECT_FALSE(dialog->isVisible());

  Open();
  Click("Cancel");
  EXPECT_EQ(dialog->result(), QDialog::Rejected);
  EXPECT_FALSE(dialog->isVisible());
}

TEST_F(AddPlayItemsDlg, TheTabKeyGoesRoundAllControls) {
  Open();
  EXPECT_EQ(QApplication::focusWidget(), &Songs());
  for (const char* next : {"Create", "OK", "Cancel", "Help", "GroupName", "CreateGroup", "PlaylistName",
                           "CreateSet", "FindSongs", "SongFiles"}) {
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    EXPECT_EQ(QApplication::focusWidget()->objectName(), QLatin1String(next));
  }
}

TEST_F(AddPlayItemsDlg, EachControlIsAnnouncedByItsLabel) {
  Open();
  EXPECT_EQ(Groups().accessibleName(), QStringLiteral("Setlist Group Name"));
  EXPECT_EQ(Playlists().accessibleName(), QStringLiteral("Setlist Name"));
  EXPECT_EQ(Songs().accessibleName(), QStringLiteral("Song File Names:"));
  EXPECT_TRUE(Songs().accessibleDescription().startsWith(QStringLiteral("Enter the full name and path")));
}

TEST_F(AddPlayItemsDlg, ALargerDialogShowsMoreOfTheSongs) {
  Open();
  const int lines = Songs().height() / Songs().fontMetrics().lineSpacing();
  EXPECT_GE(lines, 6);
  const int before = Songs().height();
  dialog->resize(dialog->width(), dialog->height() + 200);
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(Songs().height(), before + 200);
}

TEST_F(AddPlayItemsDlg, ThousandsOfPlaylistsMakeItNoWider) {
  Open();
  const int before = dialog->sizeHint().width();
  dialog->reject();
  for (int i = 0; i < 5000; ++i) {
    rig.store.groups.front().playlists.emplace_back().name = std::u16string(200, u'W');
  }
  rig.Show();
  Open();
  EXPECT_EQ(Playlists().count(), 5002);
  EXPECT_EQ(dialog->sizeHint().width(), before);
}

TEST_F(AddPlayItemsDlg, FollowsTheProgramsColoursWhileItIsOpen) {
  const auto restore = qScopeGuard([before = QApplication::palette()] { QApplication::setPalette(before); });
  Open();
  QApplication::setPalette(StagePalette(0xFFFFFF, 0x000000));
  QCoreApplication::processEvents();
  EXPECT_EQ(Songs().palette().color(QPalette::Base), QColor(Qt::black));
  EXPECT_EQ(Groups().palette().color(QPalette::ButtonText), QColor(Qt::white));
  QApplication::setPalette(StagePalette(0x000000, 0xFFFFFF));
  QCoreApplication::processEvents();
  EXPECT_EQ(Songs().palette().color(QPalette::Base), QColor(Qt::white));
  EXPECT_EQ(Groups().palette().color(QPalette::ButtonText), QColor(Qt::black));
}

}  // namespace
}  // namespace brevant
