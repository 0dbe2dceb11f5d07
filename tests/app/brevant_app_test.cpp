#include "app/brevant_app.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QHeaderView>
#include <QLineEdit>
#include <QMenuBar>
#include <QMessageBox>
#include <QSignalSpy>
#include <QTest>

#include "app/commands/qt_keys.h"
#include "app/dialog_answer.h"
#include "app/dialogs/about_box.h"
#include "app/whole_program.h"
#include "resources/command_table.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

class BrevantApp : public TCWholeProgram {};

// Start-up.

TEST_F(BrevantApp, ShowsTheAboutBoxOnceAtTheStart) {
  StartWith({});
  ASSERT_EQ(AboutBoxes().size(), 1);
  EXPECT_TRUE(AboutBoxes().constFirst()->isVisible());
  EXPECT_TRUE(AboutBoxes().constFirst()->isModal());
  CloseAboutBox();
  QCoreApplication::processEvents();
  EXPECT_TRUE(AboutBoxes().isEmpty());
}

// Notes what stands behind every About box that opens.
class TCAboutBoxWatch : public QObject {
 public:
  explicit TCAboutBoxWatch(const TCBrevantDoc& openDocument) : document(openDocument) {
    qApp->installEventFilter(this);
  }

  [[nodiscard]] const std::vector<std::u16string>& Opened() const { return opened; }

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override {
    const bool isBox = event->type() == QEvent::Show && dynamic_cast<TCAboutBox*>(receiver) != nullptr;
    if (isBox) opened.push_back(document.GetPathName());
    return false;
  }

 private:
  const TCBrevantDoc& document;
  std::vector<std::u16string> opened;
};

TEST_F(BrevantApp, TheAboutBoxOpensOnceBehindTheLastDocument) {
  files.Put(kIniPath, "[Brevant]\r\nLastLoadedFileName=\\shows\\show.brv\r\n");
  Make();
  const TCAboutBoxWatch watch(app->Document());
  app->InitInstance({});
  ASSERT_TRUE(QTest::qWaitFor([this] { return !AboutBoxes().isEmpty(); }));
  CloseAboutBox();
  app->Document().OpenDocumentFile(kShow);
  Frame().hide();
  Frame().show();
  QTest::qWait(0);
  QCoreApplication::processEvents();
  EXPECT_EQ(watch.Opened(), std::vector<std::u16string>{std::u16string(kShow)});
}

TEST_F(BrevantApp, TheSongGoesOnBehindTheAboutBox) {
  StartWith({true, "typed", std::u16string(kShow)});
  app->Document().OnCommand(TCCommandId::Play);
  player.Advance(1.0);
  ASSERT_EQ(AboutBoxes().size(), 1);
  EXPECT_TRUE(QTest::qWaitFor([this] { return app->Document().Transport().State().started; }))
      << "the poll stands still";
  EXPECT_EQ(AboutBoxes().size(), 1);
}

TEST_F(BrevantApp, TheWindowIsSeenBeforeTheDocumentIsRead) {
  Make();
  app->InitInstance({true, "typed", std::u16string(kShow)});
  EXPECT_TRUE(Frame().isVisible());
  EXPECT_EQ(app->Document().GetPathName(), u"");
  EXPECT_TRUE(QTest::qWaitFor([this] { return app->Document().GetPathName() == kShow; }));
  EXPECT_FALSE(Frame().windowIcon().isNull());
}

TEST_F(BrevantApp, StartsWithAnEmptyDocumentAndTheBanner) {
  Start();
  EXPECT_EQ(Frame().windowTitle(), QStringLiteral("Brevant[*]"));
  EXPECT_TRUE(Frame().isVisible());
  EXPECT_EQ(Frame().MessageDisplay().toPlainText().trimmed(), QStringLiteral("...Brevant..."));
  EXPECT_EQ(QApplication::focusWidget(), &Frame().PlaylistView());
}

TEST_F(BrevantApp, OpensTheDocumentOfTheCommandLine) {
  Start(kShow);
  EXPECT_EQ(Frame().windowTitle(), QStringLiteral("show.brv[*] - Brevant"));
  ASSERT_EQ(Frame().PlaylistView().model()->rowCount(), 2);
  EXPECT_EQ(CellText(0, 4), QStringLiteral("one.mp3"));
}

TEST_F(BrevantApp, OpensAPlaylistFileOfTheCommandLineAsTheDocument) {
  constexpr std::u16string_view kPlaylist = u"\\shows\\Encores.brvpl";
  files.PutUtf16(kPlaylist, u"\\m\\one.mp3\r\n\\m\\two.mp3\r\n");
  Start(kPlaylist);
  EXPECT_EQ(app->Document().GetPathName(), kPlaylist);
  EXPECT_EQ(Frame().windowTitle(), QStringLiteral("Encores.brvpl[*] - Brevant"));
  EXPECT_EQ(Frame().MessageDisplay().toPlainText().trimmed(), QStringLiteral("...Brevant..."));
  EXPECT_TRUE(Frame().close());
  EXPECT_EQ(Written(u"LastLoadedFileName"), kPlaylist);
}

TEST_F(BrevantApp, AFileOfTheCommandLineThatCannotBeReadIsAnEmptyDocumentOfThatName) {
  files.MakeUnreadable(kShow);
  for (const std::u16string_view file : {kShow, std::u16string_view(u"\\shows\\gone.brv")}) {
    Start(file);
    EXPECT_EQ(app->Document().GetPathName(), file);
    EXPECT_FALSE(app->Document().IsModified());
    EXPECT_EQ(Frame().PlaylistView().model()->rowCount(), 0);
    EXPECT_EQ(Frame().MessageDisplay().toPlainText().trimmed(), QStringLiteral("...Brevant..."));
    EXPECT_EQ(Frame().StatusLine().ShownMessage(), QString());
  }
}

TEST_F(BrevantApp, ColumnWidthsComeBackOnlyWithTheLastWindowState) {
  {
    Start(kShow);
    Frame().PlaylistView().horizontalHeader()->resizeSection(1, 217);
    EXPECT_TRUE(Frame().close());
    app.reset();
  }
  files.Put(kIniPath, "[Brevant]\r\nLoadLastWindowState=No\r\n");
  Start(kShow);
  EXPECT_NE(Frame().PlaylistView().columnWidth(1), 217);
  app.reset();
  files.Put(kIniPath, "[Brevant]\r\nLoadLastWindowState=Yes\r\n");
  Start(kShow);
  EXPECT_EQ(Frame().PlaylistView().columnWidth(1), 217);
}

TEST_F(BrevantApp, LiveViewComesBackWithTheLayoutBehindIt) {
  Start();
  Press(Qt::Key_Home);
  EXPECT_TRUE(Frame().close());
  EXPECT_EQ(Written(u"LiveViewMode"), u"Yes");
  app.reset();
  Start();
  EXPECT_FALSE(Frame().Tree().isVisible());
  EXPECT_TRUE(app->Actions().ActionOf(TCCommandId::LiveViewMode)->isChecked());
  Press(Qt::Key_Home);
  EXPECT_TRUE(Frame().Tree().isVisible());
}

TEST_F(BrevantApp, OpensTheLastDocumentWhenNoneIsNamed) {
  files.Put(kIniPath, "[Brevant]\r\nLastLoadedFileName=\\shows\\show.brv\r\n");
  Start();
  EXPECT_EQ(app->Document().GetPathName(), kShow);
}

TEST_F(BrevantApp, TheDocumentOfTheCommandLineGoesBeforeTheLast) {
  files.Put(kIniPath, "[Brevant]\r\nLastLoadedFileName=\\shows\\other.brv\r\n");
  files.PutUtf16(u"\\shows\\other.brv", u"");
  Start(kShow);
  EXPECT_EQ(app->Document().GetPathName(), kShow);
}

TEST_F(BrevantApp, LeavesTheLastDocumentAloneWhenTheOptionIsOff) {
  files.Put(kIniPath, "[Brevant]\r\nLastLoadedFileName=\\shows\\show.brv\r\nLoadLastFileOnProgramRun=No\r\n");
  Start();
  EXPECT_EQ(app->Document().GetPathName(), u"");
}

TEST_F(BrevantApp, ALastDocumentThatIsGoneOpensNothing) {
  files.Put(kIniPath, "[Brevant]\r\nLastLoadedFileName=\\shows\\gone.brv\r\n");
  Start();
  EXPECT_EQ(Frame().windowTitle(), QStringLiteral("Brevant[*]"));
}

TEST_F(BrevantApp, RefusesANameThatTheModelCannotHold) {
  files.Put(kIniPath, "[Brevant]\r\nLastLoadedFileName=\\shows\\show.brv\r\n");
  StartWith({true, "back\\slash.brv", {}});
  EXPECT_TRUE(Frame().StatusLine().ShownMessage().endsWith(QStringLiteral("back\\slash.brv")));
  EXPECT_EQ(app->Document().GetPathName(), u"") << "another document was not asked for";
}

TEST_F(BrevantApp, ReadsTheSettingsButForTheFontFaces) {
  files.Put(kIniPath,
            "[Brevant]\r\nWhiteOnBlack=No\r\nPlayListFontSize=33\r\nPlayListFontTypeName=Arial\r\n"
            "LyricsFontTypeName=Arial\r\n");
  Start();
  EXPECT_FALSE(Settings().whiteOnBlack);
  EXPECT_EQ(Frame().PlaylistView().font().pointSize(), 33);
  EXPECT_EQ(Settings().playListFontTypeName, u"Times New Roman");
  EXPECT_EQ(Settings().lyricsFontTypeName, u"Times New Roman");
}

// Menus and keys.

TEST_F(BrevantApp, HasWhatAPerformanceNeeds) {
  Start();
  for (const TCCommandId command :
       {TCCommandId::FileNew,       TCCommandId::FileOpen,      TCCommandId::FileSave,
        TCCommandId::FileSaveAs,    TCCommandId::Exit,          TCCommandId::Play,
        TCCommandId::Stop,          TCCommandId::PauseContinue, TCCommandId::NextSong,
        TCCommandId::PriorSong,     TCCommandId::NextPlaylist,  TCCommandId::PriorPlaylist,
        TCCommandId::LoadSong,      TCCommandId::Cancel,        TCCommandId::ClearInformation,
        TCCommandId::Reset,         TCCommandId::WhiteOnBlack,  TCCommandId::DynamicPlayColours,
        TCCommandId::PlayerPane,    TCCommandId::MessagePane,   TCCommandId::StatusBarVisible,
        TCCommandId::FocusPlaylist, TCCommandId::About}) {
    EXPECT_NE(app->Actions().ActionOf(command), nullptr) << static_cast<int>(command);
  }
}

TEST_F(BrevantApp, EveryKeyOfTheTableFiresItsCommandAndNoOther) {
  Start();
  for (QWidget* focus :
       {static_cast<QWidget*>(&Frame().PlaylistView()), static_cast<QWidget*>(&Frame().MessageDisplay())}) {
    focus->setFocus();
    ASSERT_EQ(QApplication::focusWidget(), focus);
    for (const TCKeyBinding& binding : EffectiveBindings()) {
      const QAction* expected = app->Actions().ActionOf(binding.command);
      for (const QKeySequence& key : ToQtKeys(binding.key)) {
        QList<const QAction*> fired;
        QObject listener;
        for (const QAction* action : Frame().actions()) {
          QObject::connect(action, &QAction::triggered, &listener,
                           [&fired, action] { fired.append(action); });
        }
        QTest::keyClick(focus, key[0].key(), key[0].keyboardModifiers());
        EXPECT_EQ(fired, expected != nullptr ? QList<const QAction*>{expected} : QList<const QAction*>())
            << key.toString().toStdString();
        // Whether it fires is the question here; what it does is asked elsewhere.
        QCoreApplication::removePostedEvents(const_cast<TCCommandActions*>(&app->Actions()));
      }
    }
  }
}

TEST_F(BrevantApp, KeysPerformTheSet) {
  Start(kShow);
  player.ForgetCalls();
  Press(Qt::Key_Down);
  EXPECT_EQ(app->Record().setLists.currentSong, 1);
  Press(Qt::Key_Return);
  EXPECT_EQ(player.Calls(), (std::vector<std::string>{"LoadUrl \\m\\two.mp3", "Play"}));
  player.Advance(1.0);
  Press(Qt::Key_Space);
  EXPECT_EQ(player.Calls().back(), "Pause");
  Press(Qt::Key_S);
  EXPECT_EQ(player.Calls().back(), "Stop");
  Press(Qt::Key_Right);
  ASSERT_EQ(Frame().PlaylistView().model()->rowCount(), 1);
  EXPECT_EQ(CellText(0, 4), QStringLiteral("three.mp3"));
}

TEST_F(BrevantApp, EnterOnlyChoosesTheSongWhileImmediatePlayIsOff) {
  Start(kShow);
  Settings().immediatePlay = false;
  Press(Qt::Key_Down);
  player.ForgetCalls();
  Press(Qt::Key_Return);
  Press(Qt::Key_Enter);
  EXPECT_EQ(player.Calls(), std::vector<std::string>());
  EXPECT_FALSE(app->Document().Transport().State().playing);
  EXPECT_EQ(app->Record().setLists.lastSongName, u"two.mp3");
  Press(Qt::Key_P);
  EXPECT_EQ(player.Calls(), (std::vector<std::string>{"LoadUrl \\m\\two.mp3", "Play"}));
}

TEST_F(BrevantApp, F4AndSelectAllAreKeptFromTheList) {
  Start(kShow);
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_TRUE(Frame().PlaylistView().SelectedRows().empty());
  Press(Qt::Key_F4);
  EXPECT_EQ(player.Calls(), std::vector<std::string>{"SetVolume 100"});
}

TEST_F(BrevantApp, FocusPlaylistBringsTheKeyboardBack) {
  Start();
  Frame().MessageDisplay().setFocus();
  Press(Qt::Key_F3);
  EXPECT_EQ(QApplication::focusWidget(), &Frame().PlaylistView());
}

TEST_F(BrevantApp, CheckMarksFollowTheOptions) {
  Start();
  const QAction* action = app->Actions().ActionOf(TCCommandId::WhiteOnBlack);
  EXPECT_TRUE(action->isChecked());
  Press(Qt::Key_W);
  EXPECT_FALSE(Settings().whiteOnBlack);
  EXPECT_FALSE(action->isChecked());
  EXPECT_EQ(QApplication::palette().color(QPalette::Base), QColor(Qt::white));
  Press(Qt::Key_W);
  EXPECT_TRUE(action->isChecked());
  EXPECT_EQ(QApplication::palette().color(QPalette::Base), QColor(Qt::black));
}

TEST_F(BrevantApp, CheckMarksFollowThePanes) {
  Start();
  QAction* action = app->Actions().ActionOf(TCCommandId::MessagePane);
  EXPECT_TRUE(action->isChecked());
  for (QDockWidget* pane : Frame().findChildren<QDockWidget*>()) pane->close();
  EXPECT_FALSE(action->isChecked());
  action->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_TRUE(action->isChecked());
  EXPECT_TRUE(Frame().MessageDisplay().isVisible());
}

TEST_F(BrevantApp, ResetIsCheckedWhileItIsPending) {
  Start();
  QAction* action = app->Actions().ActionOf(TCCommandId::Reset);
  EXPECT_FALSE(action->isChecked());
  action->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_TRUE(action->isChecked());
  action->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_FALSE(action->isChecked());
}

TEST_F(BrevantApp, AHeldKeyRepeatsOnlyWhatTheTableSays) {
  Start(kShow);
  TCBrevantView& view = Frame().PlaylistView();
  unsigned long time = 1000;
  for (const TCKeyBinding& binding : EffectiveBindings()) {
    const QAction* action = app->Actions().ActionOf(binding.command);
    if (action == nullptr) continue;
    const bool repeats = CommandById(binding.command)->trait == TCCommandTrait::Repeats;
    const QKeyCombination key = ToQtKeys(binding.key).constFirst()[0];
    const QSignalSpy fired(action, &QAction::triggered);
    for (int press = 0; press < 3; ++press) {
      qt_sendShortcutOverrideEvent(&view, time, key.key(), key.keyboardModifiers(), {}, press > 0);
      time += 30;
    }
    EXPECT_EQ(fired.count(), repeats ? 3 : 1) << action->text().toStdString();
    QCoreApplication::removePostedEvents(const_cast<TCCommandActions*>(&app->Actions()));
  }
}

TEST_F(BrevantApp, TheMenusOfferWhatAnEarlierOneMissed) {
  Start();
  const auto entriesOf = [this](const char* title) {
    QStringList entries;
    for (const QAction* menu : Frame().menuBar()->actions()) {
      if (menu->text() != QLatin1String(title)) continue;
      for (const QAction* entry : menu->menu()->actions()) entries.append(entry->text());
    }
    return entries;
  };
  for (const char* entry :
       {"Fast &Foward\tCtrl+Right Arrow", "Fast &Reverse\tCtrl+Left Arrow", "Increase Volume\tF9",
        "Reduce Volume \tF8", "Set Repeat Start Time\tZ", "Set Repeat Stop Time\tX"}) {
    EXPECT_TRUE(entriesOf("&Play").contains(QLatin1String(entry))) << entry;
  }
  for (const char* entry :
       {"Refresh &Playlist Song Times\tT", "Refresh All Song &Times\tAlt-R", "Set Playlist Font Size\tF",
        "Set &Lyrics Font Size\tL", "Set Number Lyric Lines\tN"}) {
    EXPECT_TRUE(entriesOf("&Commands").contains(QLatin1String(entry))) << entry;
  }
  for (const char* entry :
       {"Song Latency Time...\tN", "FF FR Time Step...\tO", "Volume Step\tV", "Media File Types...\tY"}) {
    EXPECT_TRUE(entriesOf("&Options").contains(QLatin1String(entry))) << entry;
  }
}

TEST_F(BrevantApp, TheContextMenuRefreshesTimes) {
  Start(kShow);
  Q_EMIT Frame().PlaylistView().contextMenuWanted(QPoint(20, 20));
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  QStringList entries;
  for (const QAction* entry : menu->actions()) entries.append(entry->text());
  menu->close();
  for (const char* entry :
       {"Refresh &Playlist Song Times\tT", "Refresh All Song &Times\tAlt-R", "Refresh &Song Time"}) {
    EXPECT_TRUE(entries.contains(QLatin1String(entry))) << entry;
  }
}

// Song times, volume, seeking and the repeat range.

TEST_F(BrevantApp, AltRMeasuresAllSongsAndOpensNoMenu) {
  Start(kShow);
  Press(Qt::Key_R, Qt::AltModifier);
  EXPECT_TRUE(app->Document().Transport().TimeRun().Pending());
  EXPECT_EQ(app->Document().Transport().TimeRun().Count(), 3U);
  EXPECT_EQ(QApplication::activePopupWidget(), nullptr);
}

TEST_F(BrevantApp, TheStatusBarSaysHowFarARunHasComeUntilItEnds) {
  Start(kShow);
  Press(Qt::Key_T);
  app->Document().OnPlayTimerTick();
  EXPECT_EQ(Frame().StatusLine().ShownMessage(), QStringLiteral("1 of 2"));
  app->Document().OnPlayTimerTick();
  EXPECT_EQ(Frame().StatusLine().ShownMessage(), QString());
  EXPECT_TRUE(Frame().MessageDisplay().toPlainText().contains(
      QStringLiteral("Calculating times for song \"two.mp3\": 03:00")));
}

TEST_F(BrevantApp, KeysChangeTheVolumeAndThePosition) {
  Start(kShow);
  Press(Qt::Key_F8);
  Press(Qt::Key_VolumeDown);
  EXPECT_EQ(player.GetVolume(), 90);
  Press(Qt::Key_F9);
  EXPECT_EQ(player.GetVolume(), 95);
  Press(Qt::Key_P);
  player.Advance(10.0);
  Press(Qt::Key_Right, Qt::ControlModifier);
  EXPECT_EQ(player.Calls().back().substr(0, 13), "SetPosition 1");
  EXPECT_NEAR(player.GetPosition().value_or(0.0), 12.0, 0.1);
  Press(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_NEAR(player.GetPosition().value_or(0.0), 10.0, 0.1);
}

TEST_F(BrevantApp, KeysSetARangeThatTheSongRepeats) {
  Start(kShow);
  Settings().autoPlayPlayList = true;
  Press(Qt::Key_P);
  player.Advance(10.5);
  Press(Qt::Key_Z);
  player.Advance(10.0);
  Press(Qt::Key_X);
  EXPECT_EQ(Frame().PlayControls().FieldOf(TCCommandId::RepeatBeginField).text(), QStringLiteral("00:10"));
  EXPECT_EQ(Frame().PlayControls().FieldOf(TCCommandId::RepeatEndField).text(), QStringLiteral("00:20"));
  app->Document().OnPlayTimerTick();  // sees that the song has begun
  app->Document().OnPlayTimerTick();
  EXPECT_EQ(player.Calls().back(), "SetPosition 10");
}

TEST_F(BrevantApp, ATimeIsTypedWithoutAKeyOfTheTableAndGivesTheKeyboardBack) {
  Start(kShow);
  TCRepeatTimeField& field = Frame().PlayControls().FieldOf(TCCommandId::RepeatEndField);
  Frame().resize(1200, 700);
  ASSERT_TRUE(QTest::qWaitFor([&field] { return field.isVisible(); }));
  for (const Qt::Key end : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Escape}) {
    field.SetSeconds(0);
    player.ForgetCalls();
    QTest::mouseClick(field.findChild<QLineEdit*>(), Qt::LeftButton);
    QCoreApplication::processEvents();
    ASSERT_EQ(QApplication::focusWidget(), &field);
    for (const Qt::Key key : {Qt::Key_0, Qt::Key_2, Qt::Key_3, Qt::Key_0, Qt::Key_P, Qt::Key_Space})
      Press(key);
    Press(Qt::Key_Down);
    Press(Qt::Key_R, Qt::AltModifier);
    EXPECT_EQ(player.Calls(), std::vector<std::string>()) << "no command acts";
    EXPECT_EQ(app->Record().setLists.currentSong, 0);
    EXPECT_EQ(field.text(), QStringLiteral("02:29")) << "the arrow stepped the seconds";
    Press(Qt::Key_F8);
    EXPECT_EQ(player.Calls(), std::vector<std::string>{"SetVolume " + std::to_string(player.GetVolume())});

    Press(end);
    EXPECT_EQ(field.text(), end == Qt::Key_Escape ? QStringLiteral("00:00") : QStringLiteral("02:29"));
    EXPECT_EQ(QApplication::focusWidget(), &Frame().PlaylistView());
    EXPECT_EQ(app->Record().setLists.currentSong, 0) << "Enter and Esc were the field's";
  }
  Press(Qt::Key_Down);
  EXPECT_EQ(app->Record().setLists.currentSong, 1);
}

TEST_F(BrevantApp, APromptAsksWithoutHoldingTheShowUp) {
  Start(kShow);
  Press(Qt::Key_P);
  player.Advance(1.0);
  const TCDialogAnswer<QDialog> answer([this](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), QStringLiteral("Enter property"));
    EXPECT_TRUE(QTest::qWaitFor([this] { return app->Document().Transport().State().started; }))
        << "the poll stands still";
    auto* field = dialog.findChild<QLineEdit*>();
    QTest::keyClick(field, Qt::Key_F6);
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(player.Calls().back(), "Stop") << "a function key acts all the same";
    QTest::keyClicks(field, QStringLiteral("12"));
    QTest::keyClick(field, Qt::Key_Return);
  });
  Press(Qt::Key_O);
  EXPECT_EQ(Settings().seekStepSeconds, 12);
}

TEST_F(BrevantApp, AKeyPressedTwiceAsksOnce) {
  Start(kShow);
  int asked = 0;
  const TCDialogAnswer<QDialog> answer([this, &asked](QDialog& dialog) {
    ++asked;
    QTest::keyClick(&Frame().PlaylistView(), Qt::Key_V);
    app->Actions().ActionOf(TCCommandId::VolumeStep)->trigger();  // as a screen reader may
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(QApplication::activeModalWidget(), &dialog);
    dialog.reject();
  });
  Press(Qt::Key_V);
  EXPECT_EQ(asked, 1);
  EXPECT_EQ(Settings().volumeStep, 5);
}

TEST_F(BrevantApp, AFontSizeThatWasEnteredShows) {
  Start(kShow);
  const auto enter = [](const char* text) {
    return [text](QDialog& dialog) {
      QTest::keyClicks(dialog.findChild<QLineEdit*>(), QLatin1String(text));
      dialog.accept();
    };
  };
  {
    const TCDialogAnswer<QDialog> answer(enter("24"));
    Press(Qt::Key_F);
  }
  EXPECT_EQ(Frame().PlaylistView().font().pointSize(), 24);
  const TCDialogAnswer<QDialog> answer(enter("30"));
  app->Actions().ActionOf(TCCommandId::LyricsFontSize)->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(Frame().MessageDisplay().font().pointSize(), 30);
}

TEST_F(BrevantApp, WhatWasEnteredIsThereAfterTheNextStart) {
  struct Case {
    TCCommandId command;
    const char* typed;
    const char* key;
    std::int32_t TCSettings::*option;
  };
  const std::vector<Case> cases{
      {TCCommandId::VolumeStep, "7", "VolumeStep", &TCSettings::volumeStep},
      {TCCommandId::SeekStep, "12", "FastFowardFastReverseTimeStep", &TCSettings::seekStepSeconds},
      {TCCommandId::PlaylistFontSize, "33", "PlayListFontSize", &TCSettings::playListFontSize},
      {TCCommandId::LyricsFontSize, "41", "LyricsFontSize", &TCSettings::lyricsFontSize},
      {TCCommandId::LyricLines, "4", "NumberLyricLines", &TCSettings::numberLyricLines},
  };
  const auto ask = [this](TCCommandId command, std::function<void(QDialog&)> give) {
    const TCDialogAnswer<QDialog> answer(std::move(give));
    app->Actions().ActionOf(command)->trigger();
    QCoreApplication::sendPostedEvents();
  };
  const auto enter = [](const char* text) {
    return [text](QDialog& dialog) {
      QTest::keyClicks(dialog.findChild<QLineEdit*>(), QLatin1String(text));
      QTest::keyClick(dialog.findChild<QLineEdit*>(), Qt::Key_Return);
    };
  };
  const auto expectHeld = [&ask](TCCommandId command, const char* text) {
    ask(command, [text](QDialog& dialog) {
      EXPECT_EQ(dialog.findChild<QLineEdit*>()->text(), QLatin1String(text));
      dialog.reject();
    });
  };
  Start(kShow);
  for (const Case& each : cases) ask(each.command, enter(each.typed));
  ask(TCCommandId::SongLatency, enter("3"));
  ask(TCCommandId::MediaFileTypes, enter("mp3 ogg"));
  EXPECT_EQ(Written(u"VolumeStep"), u"(no file)") << "the file is written at the end";
  ASSERT_TRUE(Frame().close());
  for (const Case& each : cases) {
    const auto text = [](const char* ascii) { return FromQString(QString::fromLatin1(ascii)); };
    EXPECT_EQ(Written(text(each.key)), text(each.typed)) << each.key;
  }
  EXPECT_EQ(Written(u"SongLatencySeconds"), u"3");
  EXPECT_EQ(Written(u"ValidMediaFileExtensions"), u"mp3 ogg");
  app.reset();

  Start(kShow);
  for (const Case& each : cases) {
    EXPECT_EQ(QString::number(Settings().*each.option), QLatin1String(each.typed)) << each.key;
    expectHeld(each.command, each.typed);
  }
  EXPECT_EQ(Frame().PlaylistView().font().pointSize(), 33);
  EXPECT_EQ(Frame().MessageDisplay().font().pointSize(), 41);
  EXPECT_EQ(app->Record().setLists.songLatencySeconds, 3);
  expectHeld(TCCommandId::SongLatency, "3");
  expectHeld(TCCommandId::MediaFileTypes, "mp3 ogg");
}

// How many pixels of the message display have exactly this colour. The letters' edges are smoothed; inside
// they have their own.
int PixelsOf(const TCGeneralReportsTab& pane, const QColor& colour) {
  const QImage image = pane.viewport()->grab().toImage();
  int found = 0;
  for (int y = 0; y < image.height(); ++y) {
    for (int x = 0; x < image.width(); ++x) found += image.pixelColor(x, y) == colour ? 1 : 0;
  }
  return found;
}

TEST_F(BrevantApp, EachSingersWordsAreDrawnInTheirColourOnBlackAndOnWhite) {
  struct Line {
    const char* words;
    QColor onBlack;
    QColor onWhite;
  };
  const std::vector<Line> lines{
      {"M: he sings", QColor(0, 255, 0), QColor(0, 0, 255)},
      {"F: she sings", QColor(255, 192, 203), QColor(255, 0, 0)},
      {"D: both sing", QColor(255, 165, 0), QColor(255, 165, 0)},
      {"nobody sings", QColor(Qt::white), QColor(Qt::black)},
  };
  std::string lyrics;
  for (std::size_t i = 0; i <= lines.size(); ++i) {
    lyrics += "[00:" + std::to_string(i) + "0.000]" + (i < lines.size() ? lines[i].words : "") + "\r\n";
  }
  files.Put(u"\\m\\one.lrc", lyrics);
  files.Put(kIniPath, "[Brevant]\r\nNumberLyricLines=1\r\nLyricsFontSize=40\r\n");
  Start(kShow);
  Press(Qt::Key_P);
  player.Advance(5.0);
  for (const Line& line : lines) {
    app->Document().OnPlayTimerTick();
    const TCGeneralReportsTab& pane = Frame().MessageDisplay();
    ASSERT_EQ(pane.toPlainText().trimmed(), QLatin1String(line.words));
    for (const bool onBlack : {true, false}) {
      SCOPED_TRACE(std::string(line.words) + (onBlack ? " on black" : " on white"));
      ASSERT_EQ(Settings().whiteOnBlack, onBlack);
      const QColor own = onBlack ? line.onBlack : line.onWhite;
      const QColor background = onBlack ? Qt::black : Qt::white;
      EXPECT_GT(PixelsOf(pane, own), 100);
      EXPECT_GT(PixelsOf(pane, background), 10000);
      for (const Line& other : lines) {
        for (const QColor& colour : {other.onBlack, other.onWhite}) {
          if (colour == own || colour == background) continue;
          EXPECT_EQ(PixelsOf(pane, colour), 0) << other.words;
        }
      }
      Press(Qt::Key_W);
    }
    player.Advance(10.0);
  }
}

// The views' wishes.

TEST_F(BrevantApp, APickedRowPlays) {
  Start(kShow);
  Q_EMIT Frame().PlaylistView().rowPicked(1);
  EXPECT_EQ(player.Calls().back(), "Play");
  EXPECT_EQ(player.GetUrl(), u"\\m\\two.mp3");
}

TEST_F(BrevantApp, ThePlayerPanesButtonsRunTheTransport) {
  Start(kShow);
  Q_EMIT Frame().PlayerPane().playWanted();
  EXPECT_TRUE(app->Document().Transport().State().playing);
  Q_EMIT Frame().PlayerPane().pauseWanted();
  EXPECT_TRUE(app->Document().Transport().State().paused);
  Q_EMIT Frame().PlayerPane().stopWanted();
  EXPECT_FALSE(app->Document().Transport().State().playing);
}

TEST_F(BrevantApp, TheContextMenuOpensOverThePlaylistWithoutHoldingTheCaller) {
  Start(kShow);
  Q_EMIT Frame().PlaylistView().contextMenuWanted(QPoint(20, 20));
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  EXPECT_FALSE(menu->isEmpty());
  menu->close();
}

// Closing.

TEST_F(BrevantApp, ClosingWritesTheSettings) {
  Start(kShow);
  EXPECT_EQ(Written(u"WhiteOnBlack"), u"(no file)");
  EXPECT_TRUE(Frame().close());
  EXPECT_EQ(Written(u"WhiteOnBlack"), u"Yes");
  EXPECT_EQ(Written(u"LastLoadedFileName"), kShow);
}

TEST_F(BrevantApp, ClosingWithAResetPendingDeletesTheSettings) {
  files.Put(kIniPath, "[Brevant]\r\n");
  Start();
  Settings().ToggleReset();
  EXPECT_TRUE(Frame().close());
  EXPECT_FALSE(files.BytesOf(kIniPath).has_value());
}

TEST_F(BrevantApp, ClosingWithUnsavedChangesCanBeCancelledAfterTheSettingsAreWritten) {
  Start(kShow);
  app->Document().SetModified();
  const TCDialogAnswer<QMessageBox> answer(
      [](QMessageBox& box) { box.button(QMessageBox::Cancel)->click(); });
  EXPECT_FALSE(Frame().close());
  EXPECT_TRUE(Frame().isVisible());
  EXPECT_EQ(Written(u"WhiteOnBlack"), u"Yes");
}

TEST_F(BrevantApp, ClosingCanSaveOrGiveUpTheChanges) {
  Start(kShow);
  const std::optional<std::string> before = files.BytesOf(kShow);
  app->Record().setLists.groups[0].playlists[0].items.pop_back();
  app->Document().SetModified();
  {
    const TCDialogAnswer<QMessageBox> answer(
        [](QMessageBox& box) { box.button(QMessageBox::Discard)->click(); });
    EXPECT_TRUE(Frame().close());
    EXPECT_EQ(files.BytesOf(kShow), before);
  }
  Frame().show();
  const TCDialogAnswer<QMessageBox> answer([](QMessageBox& box) { box.button(QMessageBox::Save)->click(); });
  EXPECT_TRUE(Frame().close());
  EXPECT_NE(files.BytesOf(kShow), before);
}

TEST_F(BrevantApp, ADocumentSavedUnderANewNameWhileClosingIsTheLastOne) {
  Start(kShow);
  app->Document().SetModified();
  // What a save-as while closing does to the store, seen from here.
  const TCDialogAnswer<QMessageBox> answer([this](QMessageBox& box) {
    EXPECT_EQ(Written(u"LastLoadedFileName"), kShow);
    app->Document().OnSaveDocument(u"\\shows\\new.brv");
    box.button(QMessageBox::Discard)->click();
  });
  EXPECT_TRUE(Frame().close());
  EXPECT_EQ(Written(u"LastLoadedFileName"), u"\\shows\\new.brv");
}

TEST_F(BrevantApp, ExitClosesTheWindow) {
  Start();
  app->Actions().ActionOf(TCCommandId::Exit)->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_FALSE(Frame().isVisible());
  EXPECT_EQ(Written(u"WhiteOnBlack"), u"Yes");
}

// Ends the session inside the event loop, as a signal does. False when somebody was asked something.
bool EndSession(TCBrevantApp& app) {
  bool asked = false;
  QTimer noticesAQuestion;
  QObject::connect(&noticesAQuestion, &QTimer::timeout, [&asked] {
    if (auto* question = qobject_cast<QDialog*>(QApplication::activeModalWidget())) {
      asked = true;
      question->reject();
      QCoreApplication::exit(1);
    }
  });
  noticesAQuestion.start(0);
  QTimer::singleShot(0, &app, &TCBrevantApp::EndSession);
  return QApplication::exec() == 0 && !asked;
}

TEST_F(BrevantApp, TheEndOfTheSessionAsksNothingAndKeepsUnsavedChanges) {
  Start(kShow);
  app->Document().SetModified();
  const std::optional<std::string> before = files.BytesOf(kShow);
  EXPECT_TRUE(EndSession(*app));
  EXPECT_EQ(Written(u"LastLoadedFileName"), kShow);
  EXPECT_EQ(files.BytesOf(u"\\state\\show.brv"), before);
}

TEST_F(BrevantApp, TheEndOfTheSessionKeepsNothingWhenNothingIsUnsaved) {
  Start(kShow);
  EXPECT_TRUE(EndSession(*app));
  EXPECT_EQ(Written(u"WhiteOnBlack"), u"Yes");
  EXPECT_FALSE(files.BytesOf(u"\\state\\show.brv").has_value());
}

}  // namespace
}  // namespace brevant
