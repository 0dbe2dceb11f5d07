// What every action of the program does, one row a command: triggered as a menu or a screen reader does, seen
// where the musician sees it.
#include <gtest/gtest.h>

#include <QDialog>
#include <QFileDialog>
#include <QLineEdit>
#include <QMenuBar>
#include <QWhatsThis>
#include <algorithm>
#include <array>
#include <ostream>
#include <string>

#include "app/dialog_answer.h"
#include "app/whole_program.h"
#include "resources/command_table.h"
#include "resources/string_table.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

using Id = TCCommandId;

class CommandEffects : public TCWholeProgram {
 public:
  void Trigger(Id id) {
    app->Actions().ActionOf(id)->trigger();
    QCoreApplication::sendPostedEvents();
  }

  // The first song, sounding.
  void PlayFor(double seconds) {
    app->Document().OnCommand(Id::Play);
    player.Advance(seconds);
    player.ForgetCalls();
  }

  // What the last command asked of the player.
  [[nodiscard]] std::string LastCall() const {
    return player.Calls().empty() ? std::string() : player.Calls().back();
  }

  void ExpectCall(Id id, std::string_view call) {
    player.ForgetCalls();
    Trigger(id);
    EXPECT_EQ(LastCall(), call);
  }

  // The page of the guide that is open.
  [[nodiscard]] QString GuideTitle() {
    return app->Help().Window() != nullptr ? app->Help().Window()->Page().Title() : QString();
  }

  // The option turns over with each use, and the mark with it.
  void ExpectToggle(Id id, bool TCSettings::*option) {
    const bool before = Settings().*option;
    for (const bool expected : {!before, before}) {
      Trigger(id);
      EXPECT_EQ(Settings().*option, expected);
      EXPECT_EQ(app->Actions().ActionOf(id)->isChecked(), expected);
    }
  }

  // Neither the songs nor the document's mark nor the copied songs change, after something that could be
  // undone.
  void ExpectNothing(Id id) {
    SelectRow(0);
    Trigger(Id::MoveSongDown);
    SelectRow(0);
    Trigger(Id::FileSave);
    ASSERT_FALSE(app->Document().IsModified());
    Trigger(id);
    EXPECT_EQ(CellText(0, 4), QStringLiteral("two.mp3"));
    EXPECT_EQ(CellText(1, 4), QStringLiteral("one.mp3"));
    EXPECT_EQ(app->Document().Placement().CopyText(), u"");
    EXPECT_FALSE(app->Document().IsModified());
  }

  // A prompt opens, and what is entered becomes the value.
  void ExpectPrompt(Id id, const std::int32_t& value) {
    ASSERT_NE(value, 7);
    const TCDialogAnswer<QDialog> answer([](QDialog& dialog) {
      dialog.findChild<QLineEdit*>()->setText(QStringLiteral("7"));
      dialog.accept();
    });
    Trigger(id);
    EXPECT_EQ(value, 7);
  }

  void ExpectPane(Id id, const QWidget& content) {
    for (const bool shown : {false, true}) {
      Trigger(id);
      EXPECT_EQ(content.isVisible(), shown);
      EXPECT_EQ(app->Actions().ActionOf(id)->isChecked(), shown);
    }
  }

  void ExpectFileDialog(Id id, QFileDialog::AcceptMode mode) {
    const TCDialogAnswer<QFileDialog> answer([mode](QFileDialog& dialog) {
      EXPECT_EQ(dialog.acceptMode(), mode);
      dialog.reject();
    });
    Trigger(id);
  }

  [[nodiscard]] TCPlayListManagerTreeView& Tree() { return Frame().Tree(); }

  void SelectGroup() { Tree().SelectNode(SetLists().groups[0].treeNode); }
  void SelectRow(std::int32_t row) { Frame().PlaylistView().SelectRow(row); }

  // As the tree shows them.
  [[nodiscard]] QStringList GroupNames() { return TextsUnder({}); }
  [[nodiscard]] QStringList PlaylistNames() { return TextsUnder(Tree().model()->index(0, 0)); }
  [[nodiscard]] QStringList TextsUnder(const QModelIndex& parent) {
    QStringList texts;
    const QAbstractItemModel& model = *Tree().model();
    for (int row = 0; row < model.rowCount(parent); ++row)
      texts.append(model.index(row, 0, parent).data().toString());
    return texts;
  }

  // A dialog of this name opens, and is cancelled.
  void ExpectDialog(Id id, const QString& name) {
    QString opened;
    const TCDialogAnswer<QDialog> answer([&opened](QDialog& dialog) {
      opened = dialog.objectName();
      dialog.reject();
    });
    Trigger(id);
    EXPECT_EQ(opened, name);
  }

  // A prompt opens, and gets this answer.
  void Answer(Id id, const QString& text) {
    const TCDialogAnswer<QDialog> answer([&text](QDialog& dialog) {
      dialog.findChild<QLineEdit*>()->setText(text);
      dialog.accept();
    });
    Trigger(id);
  }

  [[nodiscard]] TCSetListStore& SetLists() { return app->Record().setLists; }
  [[nodiscard]] const TCTimeRun& TimeRun() { return app->Document().Transport().TimeRun(); }
  [[nodiscard]] QString RepeatTime(Id field) { return Frame().PlayControls().FieldOf(field).text(); }
};

using Program = CommandEffects;

struct TCEffect {
  Id command;
  void (*expect)(Program& program);  // with the document open and nothing playing

  // The list of tests shows which command a row is for.
  friend void PrintTo(const TCEffect& effect, std::ostream* out) {
    const std::u16string_view text = StatusLine(*CommandById(effect.command));
    *out << static_cast<int>(effect.command) << ' ' << std::string(text.begin(), text.end());
  }
};

const std::array kEffects = {
    TCEffect{Id::FileNew,
             [](Program& p) {
               p.Trigger(Id::FileNew);
               EXPECT_EQ(p.app->Document().GetPathName(), u"");
               EXPECT_EQ(p.Frame().PlaylistView().model()->rowCount(), 0);
             }},
    TCEffect{Id::RecentFile,
             [](Program& p) {
               p.app->Document().OnNewDocument();
               p.Trigger(Id::RecentFile);
               EXPECT_EQ(p.app->Document().GetPathName(), kShow);
             }},
    TCEffect{Id::FileOpen, [](Program& p) { p.ExpectFileDialog(Id::FileOpen, QFileDialog::AcceptOpen); }},
    TCEffect{Id::FileSave,
             [](Program& p) {
               p.app->Document().SetModified();
               p.Trigger(Id::FileSave);
               EXPECT_EQ(p.files.writes, std::vector<std::u16string>{std::u16string(kShow)});
               EXPECT_FALSE(p.app->Document().IsModified());
             }},
    TCEffect{Id::FileSaveAs, [](Program& p) { p.ExpectFileDialog(Id::FileSaveAs, QFileDialog::AcceptSave); }},
    TCEffect{Id::Exit,
             [](Program& p) {
               p.Trigger(Id::Exit);
               EXPECT_FALSE(p.Frame().isVisible());
             }},

    TCEffect{Id::Play, [](Program& p) { p.ExpectCall(Id::Play, "Play"); }},
    TCEffect{Id::Stop, [](Program& p) { p.ExpectCall(Id::Stop, "Stop"); }},
    TCEffect{Id::PauseContinue,
             [](Program& p) {
               p.PlayFor(1.0);
               p.ExpectCall(Id::PauseContinue, "Pause");
               p.ExpectCall(Id::PauseContinue, "Play");
             }},
    TCEffect{Id::LoadSong,
             [](Program& p) {
               p.ExpectCall(Id::LoadSong, "Play");
               EXPECT_EQ(p.player.Calls().front(), "LoadUrl \\m\\one.mp3");
             }},
    TCEffect{Id::NextSong,
             [](Program& p) {
               p.Trigger(Id::NextSong);
               EXPECT_EQ(p.SetLists().currentSong, 1);
             }},
    TCEffect{Id::PriorSong,
             [](Program& p) {
               p.SetLists().currentSong = 1;
               p.Trigger(Id::PriorSong);
               EXPECT_EQ(p.SetLists().currentSong, 0);
             }},
    TCEffect{Id::NextPlaylist,
             [](Program& p) {
               p.Trigger(Id::NextPlaylist);
               EXPECT_EQ(p.CellText(0, 4), QStringLiteral("three.mp3"));
             }},
    TCEffect{Id::PriorPlaylist,
             [](Program& p) {
               p.Trigger(Id::NextPlaylist);
               p.Trigger(Id::PriorPlaylist);
               EXPECT_EQ(p.CellText(0, 4), QStringLiteral("one.mp3"));
             }},
    TCEffect{Id::SeekForward,
             [](Program& p) {
               p.PlayFor(20.0);
               p.Trigger(Id::SeekForward);
               EXPECT_NEAR(p.player.GetPosition().value_or(0.0), 22.0, 0.1);
             }},
    TCEffect{Id::SeekBack,
             [](Program& p) {
               p.PlayFor(20.0);
               p.Trigger(Id::SeekBack);
               EXPECT_NEAR(p.player.GetPosition().value_or(0.0), 18.0, 0.1);
             }},
    TCEffect{Id::VolumeDown, [](Program& p) { p.ExpectCall(Id::VolumeDown, "SetVolume 95"); }},
    TCEffect{Id::VolumeUp, [](Program& p) { p.ExpectCall(Id::VolumeUp, "SetVolume 105"); }},
    TCEffect{Id::MediaVolumeDown, [](Program& p) { p.ExpectCall(Id::MediaVolumeDown, "SetVolume 95"); }},
    TCEffect{Id::MediaVolumeUp, [](Program& p) { p.ExpectCall(Id::MediaVolumeUp, "SetVolume 105"); }},
    TCEffect{Id::SetRepeatBegin,
             [](Program& p) {
               p.PlayFor(20.5);
               p.Trigger(Id::SetRepeatBegin);
               EXPECT_EQ(p.RepeatTime(Id::RepeatBeginField), QStringLiteral("00:20"));
               EXPECT_EQ(p.RepeatTime(Id::RepeatEndField), QStringLiteral("00:00"));
             }},
    TCEffect{Id::SetRepeatEnd,
             [](Program& p) {
               p.PlayFor(20.5);
               p.Trigger(Id::SetRepeatEnd);
               EXPECT_EQ(p.RepeatTime(Id::RepeatBeginField), QStringLiteral("00:00"));
               EXPECT_EQ(p.RepeatTime(Id::RepeatEndField), QStringLiteral("00:20"));
             }},

    TCEffect{Id::Cancel,
             [](Program& p) {
               p.app->Document().OnCommand(Id::RefreshAllTimes);
               p.Trigger(Id::Cancel);
               EXPECT_FALSE(p.TimeRun().Pending());
               EXPECT_TRUE(p.Frame().MessageDisplay().toPlainText().contains(
                   ToQString(TextOf(TCTextId::CommandCanceled))));
             }},
    TCEffect{Id::ClearInformation,
             [](Program& p) {
               p.Trigger(Id::ClearInformation);
               EXPECT_EQ(p.Frame().MessageDisplay().toPlainText().trimmed(), QString());
             }},
    TCEffect{Id::RefreshSongTime,
             [](Program& p) {
               p.PlayFor(1.0);
               p.Trigger(Id::RefreshSongTime);
               EXPECT_EQ(p.SetLists().SongInCurrentPlaylist(0)->time, u"03:20");
             }},
    TCEffect{Id::RefreshAllTimes,
             [](Program& p) {
               p.Trigger(Id::RefreshAllTimes);
               EXPECT_TRUE(p.TimeRun().Pending());
               EXPECT_EQ(p.TimeRun().Count(), 3u);
             }},
    TCEffect{Id::RefreshPlaylistTimes,
             [](Program& p) {
               p.Trigger(Id::RefreshPlaylistTimes);
               EXPECT_TRUE(p.TimeRun().Pending());
               EXPECT_EQ(p.TimeRun().Count(), 2u);
             }},

    TCEffect{Id::AutoSongAdvance,
             [](Program& p) { p.ExpectToggle(Id::AutoSongAdvance, &TCSettings::autoSongAdvance); }},
    TCEffect{Id::AutoPlayPlayList,
             [](Program& p) { p.ExpectToggle(Id::AutoPlayPlayList, &TCSettings::autoPlayPlayList); }},
    TCEffect{Id::AutoRecycle, [](Program& p) { p.ExpectToggle(Id::AutoRecycle, &TCSettings::autoRecycle); }},
    TCEffect{Id::WhiteOnBlack,
             [](Program& p) {
               p.ExpectToggle(Id::WhiteOnBlack, &TCSettings::whiteOnBlack);
               const QPalette before = p.Frame().PlaylistView().palette();
               p.Trigger(Id::WhiteOnBlack);
               EXPECT_NE(p.Frame().PlaylistView().palette().color(QPalette::Base),
                         before.color(QPalette::Base));
             }},
    TCEffect{Id::DynamicPlayColours,
             [](Program& p) {
               p.ExpectToggle(Id::DynamicPlayColours, &TCSettings::dynamicPlayColours);
               const auto colour = [&p] {
                 return p.Frame().PlaylistView().model()->index(0, 4).data(Qt::ForegroundRole);
               };
               const QVariant before = colour();
               p.Trigger(Id::DynamicPlayColours);
               EXPECT_NE(colour(), before);
             }},
    TCEffect{Id::ImmediatePlay,
             [](Program& p) { p.ExpectToggle(Id::ImmediatePlay, &TCSettings::immediatePlay); }},
    TCEffect{Id::PlaylistManagerImmediatePlay,
             [](Program& p) {
               p.ExpectToggle(Id::PlaylistManagerImmediatePlay, &TCSettings::playlistManagerImmediatePlay);
             }},
    TCEffect{Id::FoldersSaveFormat,
             [](Program& p) { p.ExpectToggle(Id::FoldersSaveFormat, &TCSettings::foldersSaveFormat); }},
    TCEffect{Id::LoadLastFile,
             [](Program& p) { p.ExpectToggle(Id::LoadLastFile, &TCSettings::loadLastFileOnProgramRun); }},
    TCEffect{
        Id::LoadLastWindowState,
        [](Program& p) { p.ExpectToggle(Id::LoadLastWindowState, &TCSettings::loadLastWindowState); }},
    TCEffect{Id::Reset, [](Program& p) { p.ExpectToggle(Id::Reset, &TCSettings::resetPending); }},

    TCEffect{Id::SongLatency,
             [](Program& p) {
               p.ExpectPrompt(Id::SongLatency, p.SetLists().songLatencySeconds);
               EXPECT_EQ(p.SetLists().CurrentPlaylist()->totalTime, u"05:07");
             }},
    TCEffect{Id::VolumeStep, [](Program& p) { p.ExpectPrompt(Id::VolumeStep, p.Settings().volumeStep); }},
    TCEffect{Id::SeekStep, [](Program& p) { p.ExpectPrompt(Id::SeekStep, p.Settings().seekStepSeconds); }},
    TCEffect{Id::PlaylistFontSize,
             [](Program& p) {
               p.ExpectPrompt(Id::PlaylistFontSize, p.Settings().playListFontSize);
               EXPECT_EQ(p.Frame().PlaylistView().font().pointSize(), 7);
             }},
    TCEffect{Id::LyricsFontSize,
             [](Program& p) {
               p.ExpectPrompt(Id::LyricsFontSize, p.Settings().lyricsFontSize);
               EXPECT_EQ(p.Frame().MessageDisplay().font().pointSize(), 7);
             }},
    TCEffect{Id::LyricLines, [](Program& p) { p.ExpectPrompt(Id::LyricLines, p.Settings().numberLyricLines); }},
    TCEffect{Id::MediaFileTypes,
             [](Program& p) {
               const TCDialogAnswer<QDialog> answer([](QDialog& dialog) {
                 dialog.findChild<QLineEdit*>()->setText(QStringLiteral("ogg"));
                 dialog.accept();
               });
               p.Trigger(Id::MediaFileTypes);
               EXPECT_EQ(p.SetLists().validMediaExtensions, u"ogg");
             }},

    TCEffect{Id::CreateGroupList,
             [](Program& p) {
               p.Answer(Id::CreateGroupList, QStringLiteral("Tour"));
               EXPECT_EQ(p.GroupNames(), (QStringList{QStringLiteral("Band"), QStringLiteral("Tour")}));
             }},
    TCEffect{Id::NewGroupFolder,
             [](Program& p) {
               p.Trigger(Id::NewGroupFolder);
               EXPECT_EQ(p.GroupNames().last(), QStringLiteral("New Group Folder"));
             }},
    TCEffect{Id::CreatePlaylist,
             [](Program& p) {
               p.SelectGroup();
               p.Answer(Id::CreatePlaylist, QStringLiteral("Encore"));
               EXPECT_EQ(p.PlaylistNames().last(), QStringLiteral("Encore"));
             }},
    TCEffect{Id::NewPlaylistFolder,
             [](Program& p) {
               p.SelectGroup();
               p.Trigger(Id::NewPlaylistFolder);
               EXPECT_EQ(p.PlaylistNames().last(), QStringLiteral("New Playlist Folder"));
             }},
    TCEffect{Id::AddSongs,
             [](Program& p) { p.ExpectDialog(Id::AddSongs, QStringLiteral("CreateSetLists")); }},
    TCEffect{Id::SongProperties,
             [](Program& p) {
               p.SelectRow(0);
               p.ExpectDialog(Id::SongProperties, QStringLiteral("SongProperties"));
             }},
    TCEffect{Id::Rename,
             [](Program& p) {
               p.SelectGroup();
               p.Answer(Id::Rename, QStringLiteral("Duo"));
               EXPECT_EQ(p.GroupNames(), QStringList{QStringLiteral("Duo")});
             }},
    TCEffect{Id::Remove,
             [](Program& p) {
               p.SelectRow(0);
               p.Trigger(Id::Remove);
               EXPECT_EQ(p.CellText(0, 4), QStringLiteral("two.mp3"));
             }},
    TCEffect{Id::Copy,
             [](Program& p) {
               p.SelectRow(1);
               p.Trigger(Id::Copy);
               EXPECT_EQ(p.app->Document().Placement().CopyText(), u"\"\\m\\two.mp3\"");
             }},
    TCEffect{Id::Paste,
             [](Program& p) {
               p.Trigger(Id::Paste);
               EXPECT_TRUE(p.app->Document().Placement().Pending());
               EXPECT_EQ(p.Frame().StatusLine().ShownMessage(),
                         QStringLiteral("No dropped files to place, Esc to cancel"));
             }},
    TCEffect{Id::Duplicate,
             [](Program& p) {
               p.SelectGroup();
               p.Trigger(Id::Duplicate);
               EXPECT_EQ(p.GroupNames(), (QStringList{QStringLiteral("Band"), QStringLiteral("Band")}));
             }},
    TCEffect{Id::SelectSongToMove,
             [](Program& p) {
               p.Trigger(Id::NextSong);
               p.Trigger(Id::SelectSongToMove);
               EXPECT_EQ(p.Frame().PlaylistView().SelectedRow(), 1);
             }},
    TCEffect{Id::MoveSongUp,
             [](Program& p) {
               p.SelectRow(1);
               p.Trigger(Id::MoveSongUp);
               EXPECT_EQ(p.CellText(0, 4), QStringLiteral("two.mp3"));
               EXPECT_EQ(p.Frame().PlaylistView().SelectedRow(), 0);
             }},
    TCEffect{Id::MoveSongDown,
             [](Program& p) {
               p.SelectRow(0);
               p.Trigger(Id::MoveSongDown);
               EXPECT_EQ(p.CellText(1, 4), QStringLiteral("one.mp3"));
               EXPECT_EQ(p.Frame().PlaylistView().SelectedRow(), 1);
             }},
    TCEffect{Id::ShowTreeSelection,
             [](Program& p) {
               p.Tree().SelectNode(p.SetLists().groups[0].playlists[1].treeNode);
               p.Trigger(Id::ShowTreeSelection);
               EXPECT_EQ(p.CellText(0, 4), QStringLiteral("three.mp3"));
             }},
    TCEffect{Id::FocusPlaylistManager,
             [](Program& p) {
               p.Trigger(Id::FocusPlaylistManager);
               EXPECT_TRUE(p.Tree().HasFocus());
             }},
    TCEffect{Id::ConfirmFileRemove,
             [](Program& p) { p.ExpectToggle(Id::ConfirmFileRemove, &TCSettings::confirmFileRemove); }},
    TCEffect{Id::DisableEditing,
             [](Program& p) {
               p.Trigger(Id::DisableEditing);
               EXPECT_EQ(p.Settings().disableEditing, 1);
               EXPECT_TRUE(p.app->Actions().ActionOf(Id::DisableEditing)->isChecked());
             }},
    TCEffect{Id::PlaylistManagerPane, [](Program& p) { p.ExpectPane(Id::PlaylistManagerPane, p.Tree()); }},
    TCEffect{Id::PropertiesPane, [](Program& p) { p.ExpectPane(Id::PropertiesPane, p.Frame().Properties()); }},
    TCEffect{Id::PlayerPane, [](Program& p) { p.ExpectPane(Id::PlayerPane, p.Frame().PlayerPane()); }},
    TCEffect{Id::MessagePane, [](Program& p) { p.ExpectPane(Id::MessagePane, p.Frame().MessageDisplay()); }},
    TCEffect{Id::LiveViewMode,
             [](Program& p) {
               const TCBrevantView& list = p.Frame().PlaylistView();
               const QSize before = list.size();
               p.ExpectToggle(Id::LiveViewMode, &TCSettings::liveViewMode);
               EXPECT_EQ(list.size(), before);
               p.Trigger(Id::LiveViewMode);
               QCoreApplication::processEvents();
               EXPECT_EQ(list.size(), p.Frame().centralWidget()->size()) << "nothing but the playlist";
               EXPECT_FALSE(p.app->Actions().ActionOf(Id::PlayerPane)->isChecked());
             }},
    TCEffect{Id::StatusBarVisible,
             [](Program& p) { p.ExpectPane(Id::StatusBarVisible, p.Frame().StatusLine()); }},
    TCEffect{Id::ToolbarVisible,
             [](Program& p) { p.ExpectPane(Id::ToolbarVisible, p.Frame().PlayControls()); }},
    TCEffect{Id::Customize,
             [](Program& p) {
               p.Trigger(Id::Customize);
               auto* sheet = p.Frame().findChild<QDialog*>(QStringLiteral("Customize"));
               ASSERT_NE(sheet, nullptr);
               EXPECT_TRUE(sheet->isVisible() && sheet->isModal());
               sheet->reject();
             }},
    TCEffect{Id::FocusPlaylist,
             [](Program& p) {
               p.Frame().MessageDisplay().setFocus();
               p.Trigger(Id::FocusPlaylist);
               EXPECT_EQ(QApplication::focusWidget(), &p.Frame().PlaylistView());
             }},
    // These four do nothing at all, so that nothing else does something on their keys.
    TCEffect{Id::SelectAll,
             [](Program& p) {
               p.Trigger(Id::SelectAll);
               EXPECT_TRUE(p.Frame().PlaylistView().SelectedRows().empty());
             }},
    TCEffect{Id::SwallowF4, [](Program& p) { p.ExpectCall(Id::SwallowF4, ""); }},
    TCEffect{Id::Cut, [](Program& p) { p.ExpectNothing(Id::Cut); }},
    TCEffect{Id::Undo, [](Program& p) { p.ExpectNothing(Id::Undo); }},
    TCEffect{Id::HelpTopics,
             [](Program& p) {
               p.Trigger(Id::HelpTopics);
               EXPECT_EQ(p.GuideTitle(), QStringLiteral("The Brevant guide"));
             }},
    TCEffect{Id::Help,
             [](Program& p) {
               p.Trigger(Id::Help);
               EXPECT_EQ(p.GuideTitle(), QStringLiteral("Performing"));
             }},
    TCEffect{Id::ContextHelp,
             [](Program& p) {
               p.Trigger(Id::ContextHelp);
               EXPECT_TRUE(QWhatsThis::inWhatsThisMode());
               QWhatsThis::leaveWhatsThisMode();
             }},
    TCEffect{Id::About,
             [](Program& p) {
               p.Trigger(Id::About);
               EXPECT_EQ(p.AboutBoxes().size(), 1);
             }},
};

class EachCommand : public CommandEffects, public testing::WithParamInterface<TCEffect> {};

TEST_P(EachCommand, DoesWhatItIsFor) {
  player.SetDefaultSong({.length = 200.0});
  Start(kShow);
  ASSERT_NE(app->Actions().ActionOf(GetParam().command), nullptr);
  GetParam().expect(*this);
}

INSTANTIATE_TEST_SUITE_P(Commands, EachCommand, testing::ValuesIn(kEffects),
                         [](const testing::TestParamInfo<TCEffect>& row) {
                           return std::to_string(static_cast<int>(row.param.command));
                         });

TEST_F(CommandEffects, NoActionIsLeftOut) {
  Start();
  for (const TCCommand& command : Commands()) {
    if (app->Actions().ActionOf(command.id) == nullptr) continue;
    EXPECT_TRUE(std::ranges::any_of(kEffects, [&](const TCEffect& row) { return row.command == command.id; }))
        << ToQString(command.menuText).toStdString() << " is tried by no row of kEffects";
  }
}

TEST_F(CommandEffects, EveryMenuEntryIsTheActionOfACommand) {
  Start(kShow);  // so that there is a recent file
  QList<const QAction*> actions;
  for (const TCEffect& row : kEffects) actions.append(app->Actions().ActionOf(row.command));
  QStringList titles;
  for (const QAction* title : Frame().menuBar()->actions()) {
    titles.append(title->text());
    ASSERT_NE(title->menu(), nullptr);
    EXPECT_FALSE(title->menu()->isEmpty()) << title->text().toStdString();
    QList<QAction*> entries = title->menu()->actions();
    for (const QAction* entry : title->menu()->actions()) {
      if (entry->menu() != nullptr) entries.append(entry->menu()->actions());
    }
    for (const QAction* entry : entries) {
      if (entry->isSeparator() || entry->menu() != nullptr || !entry->isVisible()) continue;
      EXPECT_TRUE(actions.contains(entry)) << entry->text().toStdString();
      EXPECT_TRUE(entry->isEnabled()) << entry->text().toStdString();
    }
  }
  EXPECT_EQ(titles.join(u'|').toStdString(), "&File|&Edit|&Play|&Commands|&Options|&View|&Help");
}

}  // namespace
}  // namespace brevant
