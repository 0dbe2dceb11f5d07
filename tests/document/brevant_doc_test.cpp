#include "document/brevant_doc.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "document/show_document.h"
#include "model/play_marks.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class BrevantDoc : public TCShowDocument {};

TEST_F(BrevantDoc, AnOpenedDocumentShowsItsFirstPlaylistWithItsTotal) {
  EXPECT_TRUE(document.OnOpenDocument(kShow));
  EXPECT_EQ(document.GetPathName(), kShow);
  EXPECT_EQ(frame.name, u"show.brv");
  EXPECT_FALSE(document.IsModified());
  ASSERT_EQ(view.rows.size(), 2u);
  EXPECT_EQ(view.rows[0].texts.name, u"a.mp3");
  EXPECT_EQ(view.header, u"One - Total Playlist Time: 07:15");
  EXPECT_EQ(record.setLists.groups[0].playlists[1].totalTime, u"01:00");
  EXPECT_THAT(messages.lines, ElementsAre(u"...Brevant..."));
}

TEST_F(BrevantDoc, WhatTheLoadersReportIsClearedByTheOpen) {
  files.PutUtf16(kShow, u"Gone.brvgl\r\n");
  document.OnOpenDocument(kShow);
  EXPECT_THAT(messages.lines, ElementsAre(u"...Brevant..."));
}

TEST_F(BrevantDoc, AnUnreadableDocumentOpensEmptyUnderItsNameAndSaysNothing) {
  document.OnOpenDocument(kShow);
  EXPECT_TRUE(document.OnOpenDocument(u"D:\\Docs\\none.brv"));
  EXPECT_EQ(frame.name, u"none.brv");
  EXPECT_THAT(view.rows, IsEmpty());
  EXPECT_THAT(record.setLists.groups, IsEmpty());
  EXPECT_THAT(messages.lines, ElementsAre(u"...Brevant..."));
}

TEST_F(BrevantDoc, ASaveOverADocumentThatCouldNotBeReadKeepsIt) {
  const std::string old = *files.BytesOf(kShow);
  files.MakeUnreadable(kShow);
  document.OnOpenDocument(kShow);
  files.MakeReadable(kShow);
  record.setLists.groups.emplace_back().playlists.emplace_back().items.emplace_back().SetPath(u"new.mp3");
  document.OnSaveDocument(kShow);
  EXPECT_NE(files.BytesOf(kShow), old);
  EXPECT_EQ(files.BytesOf(std::u16string(kShow) + u'~'), old);
  document.OnOpenDocument(kShow);
  const std::string saved = *files.BytesOf(kShow);
  document.OnSaveDocument(kShow);
  EXPECT_EQ(files.BytesOf(std::u16string(kShow) + u'~'), old) << "what was read is not kept";
  EXPECT_EQ(files.BytesOf(kShow), saved);
}

TEST_F(BrevantDoc, ANewDocumentIsEmptyAndHasNoName) {
  document.OnOpenDocument(kShow);
  document.SetModified();
  EXPECT_TRUE(document.OnNewDocument());
  EXPECT_THAT(record.setLists.groups, IsEmpty());
  EXPECT_THAT(view.rows, IsEmpty());
  EXPECT_EQ(frame.name, u"");
  EXPECT_EQ(frame.mark, TCModifiedMark::Clean);
  EXPECT_THAT(messages.lines, ElementsAre(u"...Brevant..."));
  EXPECT_EQ(record.setLists.documentFileName, u"show.brv");  // New leaves the last path
}

TEST_F(BrevantDoc, ASavedDocumentIsUnmodifiedUnderItsName) {
  document.OnOpenDocument(kShow);
  document.SetModified();
  EXPECT_EQ(frame.mark, TCModifiedMark::Modified);
  EXPECT_TRUE(document.OnSaveDocument(kShow));
  EXPECT_FALSE(document.IsModified());
  EXPECT_EQ(frame.mark, TCModifiedMark::Clean);
  EXPECT_FALSE(files.BytesOf(u"\\state\\recovery\\show.brv").has_value());
}

TEST_F(BrevantDoc, AFailedSaveIsSilentAndLosesNothing) {
  document.OnOpenDocument(kShow);
  document.SetModified();
  messages.Clear();
  files.MakeUnwritable(kShow);
  EXPECT_TRUE(document.OnSaveDocument(kShow));
  EXPECT_FALSE(document.IsModified());
  EXPECT_THAT(messages.lines, IsEmpty());
  TCMemoryFiles expected;
  expected.PutUtf16(kShow, kShowText);
  EXPECT_EQ(files.BytesOf(u"\\state\\recovery\\show.brv"), expected.BytesOf(kShow));
}

TEST_F(BrevantDoc, ADocumentWithoutSongsLeavesNoRecoveryCopy) {
  document.OnNewDocument();
  EXPECT_TRUE(document.OnSaveDocument(u"D:\\Docs\\new.brv"));
  EXPECT_THAT(files.writes, IsEmpty());
}

TEST_F(BrevantDoc, ASaveOnADiskThatHangsIsShownAsDoneWhenItIs) {
  document.OnOpenDocument(kShow);
  record.setLists.groups[0].playlists[0].items.pop_back();
  document.SetModified();
  files.hangs = true;
  document.OnCommand(TCCommandId::FileSave);
  EXPECT_FALSE(document.IsModified()) << "nobody is asked to save it once more";
  EXPECT_EQ(frame.mark, TCModifiedMark::Modified);
  document.OnPlayTimerTick();
  EXPECT_EQ(frame.mark, TCModifiedMark::Modified);
  files.Wake();
  document.OnPlayTimerTick();
  EXPECT_EQ(frame.mark, TCModifiedMark::Clean);
  document.OnOpenDocument(kShow);
  EXPECT_EQ(view.rows.size(), 1u);
}

TEST_F(BrevantDoc, AnotherDocumentIsCleanWhileTheFirstIsStillBeingSaved) {
  document.OnOpenDocument(kShow);
  files.hangs = true;
  document.OnCommand(TCCommandId::FileSave);
  document.OnNewDocument();
  EXPECT_EQ(frame.mark, TCModifiedMark::Clean);
  files.Wake();
}

TEST_F(BrevantDoc, OpeningTheOpenFileReadsItFromDiskAgain) {
  document.OpenDocumentFile(kShow);
  files.PutUtf16(kShow, u"\"Sets\" \"One\" \"C:\\c.mp3\" 01:00\r\n");
  document.OpenDocumentFile(kShow);
  ASSERT_EQ(view.rows.size(), 1u);
  EXPECT_EQ(view.rows[0].texts.name, u"c.mp3");
}

TEST_F(BrevantDoc, OnlyWhatIsOpenedThroughTheProgramOrSavedUnderANewNameIsARecentFile) {
  document.OnOpenDocument(kShow);  // as the last file is at a start
  document.OnCommand(TCCommandId::FileSave);
  EXPECT_THAT(rig.recent.paths, IsEmpty());
  document.OpenDocumentFile(kShow);
  EXPECT_THAT(rig.recent.paths, ElementsAre(kShow));
  document.SetModified();
  prompts.saveAnswers = {TCSaveAnswer::Cancel};
  document.OpenDocumentFile(u"D:\\Docs\\other.brv");
  prompts.saveAsAnswers = {std::nullopt, std::u16string(u"D:\\Docs\\copy.brv")};
  document.OnCommand(TCCommandId::FileSaveAs);
  EXPECT_THAT(rig.recent.paths, ElementsAre(kShow)) << "cancelled";
  document.OnCommand(TCCommandId::FileSaveAs);
  EXPECT_THAT(rig.recent.paths, ElementsAre(kShow, u"D:\\Docs\\copy.brv"));
}

TEST_F(BrevantDoc, TheOpenFileIsNotReadAgainWhileItsUnsavedChangesAreHeldOnTo) {
  document.OpenDocumentFile(kShow);
  document.SetModified();
  files.PutUtf16(kShow, u"\"Sets\" \"One\" \"C:\\c.mp3\" 01:00\r\n");
  prompts.saveAnswers = {TCSaveAnswer::Cancel};
  document.OpenDocumentFile(kShow);
  EXPECT_EQ(view.rows.size(), 2u);
  EXPECT_TRUE(document.IsModified());
}

TEST_F(BrevantDoc, UnsavedChangesAreAskedForBeforeTheyWouldBeLost) {
  document.OnOpenDocument(kShow);
  document.SetModified();
  prompts.saveAnswers = {TCSaveAnswer::Cancel};
  document.OpenDocumentFile(u"D:\\Docs\\other.brv");
  EXPECT_EQ(document.GetPathName(), kShow);
  EXPECT_EQ(prompts.lastName, u"show.brv");
  prompts.saveAnswers = {TCSaveAnswer::Discard};
  document.OnCommand(TCCommandId::FileNew);
  EXPECT_EQ(document.GetPathName(), u"");
}

TEST_F(BrevantDoc, SavingFromTheQuestionWritesTheFileFirst) {
  document.OnOpenDocument(kShow);
  record.setLists.groups[0].playlists[0].items.pop_back();
  document.SetModified();
  prompts.saveAnswers = {TCSaveAnswer::Save};
  EXPECT_TRUE(document.SaveModified());
  document.OpenDocumentFile(kShow);
  EXPECT_EQ(view.rows.size(), 1u);
}

TEST_F(BrevantDoc, AnUnchangedDocumentIsNeverAskedAbout) {
  document.OnOpenDocument(kShow);
  EXPECT_TRUE(document.SaveModified());
  document.OnCommand(TCCommandId::FileNew);
  EXPECT_EQ(document.GetPathName(), u"");
}

TEST_F(BrevantDoc, SaveOfANewDocumentAsksForItsName) {
  document.OnOpenDocument(kShow);
  const auto groups = record.setLists.groups;
  document.OnNewDocument();
  record.setLists.groups = groups;
  prompts.saveAsAnswers = {std::nullopt};
  document.OnCommand(TCCommandId::FileSave);
  EXPECT_EQ(document.GetPathName(), u"");
  prompts.saveAsAnswers = {std::u16string(u"D:\\Docs\\copy.brv")};
  document.OnCommand(TCCommandId::FileSave);
  EXPECT_EQ(document.GetPathName(), u"D:\\Docs\\copy.brv");
  EXPECT_EQ(frame.name, u"copy.brv");
  EXPECT_EQ(files.BytesOf(u"D:\\Docs\\copy.brv"), files.BytesOf(kShow));
}

TEST_F(BrevantDoc, SaveAsGoesOnUnderTheNewName) {
  document.OnOpenDocument(kShow);
  prompts.saveAsAnswers = {std::u16string(u"D:\\Docs\\copy.brv")};
  document.OnCommand(TCCommandId::FileSaveAs);
  EXPECT_EQ(prompts.lastName, kShow);
  EXPECT_EQ(document.GetPathName(), u"D:\\Docs\\copy.brv");
  EXPECT_EQ(record.setLists.documentFileName, u"copy.brv");
}

TEST_F(BrevantDoc, ACancelledOpenChangesNothing) {
  document.OnOpenDocument(kShow);
  document.SetModified();
  prompts.openAnswers = {std::nullopt};
  document.OnCommand(TCCommandId::FileOpen);
  EXPECT_EQ(document.GetPathName(), kShow);
  EXPECT_TRUE(document.IsModified());
}

TEST_F(BrevantDoc, OpeningAnotherDocumentLeavesTheSoundAloneButItsEndStartsNothing) {
  record.settings.autoPlayPlayList = true;
  player.SetDefaultSong({.length = 5.0});
  document.OnOpenDocument(kShow);
  document.OnCommand(TCCommandId::Play);
  player.Advance(1.0);
  document.OnPlayTimerTick();
  player.ForgetCalls();
  document.OnOpenDocument(kShow);
  EXPECT_GT(player.GetPosition().value_or(0.0), 0.0);
  player.Advance(10.0);
  document.OnPlayTimerTick();
  EXPECT_THAT(player.Calls(), IsEmpty());
  EXPECT_EQ(record.setLists.currentSong, 0);
}

TEST_F(BrevantDoc, EveryOptionCommandTurnsItsOptionAndItsCheckMark) {
  struct Case {
    TCCommandId command;
    bool TCSettings::*option;
  };
  for (const Case& c : {
           Case{TCCommandId::AutoSongAdvance, &TCSettings::autoSongAdvance},
           Case{TCCommandId::AutoPlayPlayList, &TCSettings::autoPlayPlayList},
           Case{TCCommandId::AutoRecycle, &TCSettings::autoRecycle},
           Case{TCCommandId::ImmediatePlay, &TCSettings::immediatePlay},
           Case{TCCommandId::PlaylistManagerImmediatePlay, &TCSettings::playlistManagerImmediatePlay},
           Case{TCCommandId::WhiteOnBlack, &TCSettings::whiteOnBlack},
           Case{TCCommandId::DynamicPlayColours, &TCSettings::dynamicPlayColours},
           Case{TCCommandId::FoldersSaveFormat, &TCSettings::foldersSaveFormat},
           Case{TCCommandId::LoadLastFile, &TCSettings::loadLastFileOnProgramRun},
           Case{TCCommandId::Reset, &TCSettings::resetPending},
       }) {
    const bool before = record.settings.*c.option;
    EXPECT_EQ(document.IsChecked(c.command), before);
    const int shows = frame.optionShows;
    EXPECT_TRUE(document.OnCommand(c.command));
    EXPECT_EQ(record.settings.*c.option, !before);
    EXPECT_EQ(document.IsChecked(c.command), !before);
    EXPECT_GT(frame.optionShows, shows);
    document.OnCommand(c.command);
    EXPECT_EQ(record.settings.*c.option, before);
  }
  EXPECT_FALSE(document.IsModified());  // options are no part of the document
}

TEST_F(BrevantDoc, TheHierarchicalFormatIsReadAndNeverWrittenWhateverTheOptionSays) {
  files.PutUtf16(u"D:\\Docs\\Sets.brvgl", u"One.brvpl\r\n");
  files.PutUtf16(u"D:\\Docs\\One.brvpl", u"C:\\a.mp3*02:00\r\n");
  TCMemoryFiles flat;
  flat.PutUtf16(kShow, u"\"Sets\" \"One\" \"C:\\a.mp3\" 02:00\r\n");
  for (const bool option : {true, false}) {
    record.settings.foldersSaveFormat = option;
    files.PutUtf16(kShow, u"Sets.brvgl\r\n");
    document.OnOpenDocument(kShow);
    ASSERT_EQ(view.rows.size(), 1u);
    document.OnSaveDocument(kShow);
    EXPECT_EQ(files.BytesOf(kShow), flat.BytesOf(kShow));
  }
}

TEST_F(BrevantDoc, WhiteOnBlackSwapsTheColoursAtOnce) {
  document.OnOpenDocument(kShow);
  document.OnCommand(TCCommandId::WhiteOnBlack);
  EXPECT_EQ(record.settings.backgroundColour, kWhite);
  EXPECT_EQ(view.rows[0].colours.background, kWhite);
  document.OnCommand(TCCommandId::DynamicPlayColours);
  EXPECT_EQ(view.rows[0].colours.text, kBlack);
}

TEST_F(BrevantDoc, TransportCommandsReachTheTransport) {
  document.OnOpenDocument(kShow);
  document.OnCommand(TCCommandId::NextSong);
  EXPECT_EQ(record.setLists.currentSong, 1);
  EXPECT_EQ(view.rows[1].colours.text, kCurrentColour);
  document.OnCommand(TCCommandId::PriorSong);
  EXPECT_EQ(record.setLists.currentSong, 0);
  document.OnCommand(TCCommandId::Play);
  document.OnCommand(TCCommandId::PauseContinue);
  document.OnCommand(TCCommandId::Stop);
  EXPECT_THAT(player.Calls(), ElementsAre("LoadUrl C:\\a.mp3", "Play", "Pause", "Stop"));
  document.OnCommand(TCCommandId::NextPlaylist);
  EXPECT_EQ(view.header, u"Two - Total Playlist Time: 01:00");
  document.OnCommand(TCCommandId::PriorPlaylist);
  EXPECT_EQ(record.setLists.currentPlaylist, 0);
}

TEST_F(BrevantDoc, EnterPlaysTheCurrentSongNotTheRowThatIsSelected) {
  document.OnOpenDocument(kShow);
  view.SelectRow(1);
  document.OnCommand(TCCommandId::LoadSong);
  EXPECT_EQ(player.GetUrl(), u"C:\\a.mp3");
}

TEST_F(BrevantDoc, ADoubleClickedRowBecomesCurrentAndPlays) {
  document.OnOpenDocument(kShow);
  document.PickRow(1);
  EXPECT_EQ(record.setLists.currentSong, 1);
  EXPECT_EQ(player.GetUrl(), u"C:\\b.mp3");
  document.PickRow(-1);
  EXPECT_EQ(record.setLists.currentSong, 1);
}

TEST_F(BrevantDoc, CancelSaysSoAndDropsTheMouseState) {
  document.OnCommand(TCCommandId::Cancel);
  EXPECT_THAT(messages.lines, ElementsAre(u"Command canceled"));
  EXPECT_EQ(view.mouseResets, 1);
}

TEST_F(BrevantDoc, CancelEndsATimeRunLeavesTheTimesAndTouchesNoSound) {
  player.SetDefaultSong({.length = 65.0, .opensAfter = 0.0});
  probe.defaultLength = 65;
  document.OnOpenDocument(kShow);
  document.OnCommand(TCCommandId::RefreshAllTimes);
  Poll(1);
  ASSERT_EQ(frame.status, u"1 of 4");
  document.OnCommand(TCCommandId::Cancel);
  EXPECT_FALSE(document.Transport().TimeRun().Pending());
  EXPECT_EQ(frame.status, u"");
  document.OnCommand(TCCommandId::Play);
  player.ForgetCalls();
  document.OnCommand(TCCommandId::Cancel);
  EXPECT_FALSE(document.Transport().State().refreshSongTime);
  document.OnPlayTimerTick();
  EXPECT_EQ(view.rows[0].texts.time, u"03:00");
  EXPECT_THAT(player.Calls(), IsEmpty());
}

TEST_F(BrevantDoc, ClearInformationEmptiesTheMessages) {
  messages.Append(u"old");
  document.OnCommand(TCCommandId::ClearInformation);
  EXPECT_THAT(messages.lines, IsEmpty());
}

TEST_F(BrevantDoc, ATimeRunShowsHowFarItHasComeAndMarksTheDocumentModified) {
  probe.defaultLength = 65;
  document.OnOpenDocument(kShow);
  document.OnCommand(TCCommandId::RefreshAllTimes);
  Poll(1);
  EXPECT_EQ(frame.status, u"1 of 4");
  EXPECT_FALSE(document.IsModified());
  Poll(5);
  EXPECT_EQ(frame.status, u"");
  EXPECT_TRUE(document.IsModified());
  EXPECT_EQ(view.header, u"One - Total Playlist Time: 02:25");
  EXPECT_EQ(view.rows[1].texts.time, u"01:05");
}

TEST_F(BrevantDoc, WhatAPlacingWaitsForStandsBeforeHowFarATimeRunHasCome) {
  document.OnOpenDocument(kShow);
  document.DropFiles({u"C:\\a.mp3"});
  document.OnCommand(TCCommandId::RefreshAllTimes);
  Poll(1);
  ASSERT_TRUE(document.Transport().TimeRun().Pending());
  EXPECT_EQ(frame.status, u"");
}

TEST_F(BrevantDoc, OpeningAnotherDocumentEndsATimeRun) {
  document.OnOpenDocument(kShow);
  document.OnCommand(TCCommandId::RefreshAllTimes);
  Poll(1);
  document.OnOpenDocument(kShow);
  EXPECT_FALSE(document.Transport().TimeRun().Pending());
  EXPECT_EQ(frame.status, u"");
}

TEST_F(BrevantDoc, ARunOverThePlaylistLeavesTheOthersAlone) {
  probe.defaultLength = 65;
  document.OnOpenDocument(kShow);
  document.OnCommand(TCCommandId::RefreshPlaylistTimes);
  Poll(5);
  EXPECT_EQ(record.setLists.groups[0].playlists[1].items[0].time, u"01:00");
  EXPECT_EQ(record.setLists.groups[0].playlists[0].items[0].time, u"01:05");
}

TEST_F(BrevantDoc, ANewLatencyMovesEveryTotal) {
  document.OnOpenDocument(kShow);
  prompts.texts = {u"0"};
  document.OnCommand(TCCommandId::SongLatency);
  EXPECT_EQ(view.header, u"One - Total Playlist Time: 07:00");
  EXPECT_FALSE(document.IsModified());
}

TEST_F(BrevantDoc, ATypedOptionIsShownAtOnceAndACancelledPromptShowsNothing) {
  prompts.texts = {u"44", std::nullopt};
  document.OnCommand(TCCommandId::PlaylistFontSize);
  EXPECT_EQ(frame.optionShows, 1);
  document.OnCommand(TCCommandId::PlaylistFontSize);
  EXPECT_EQ(frame.optionShows, 1);
  EXPECT_EQ(record.settings.playListFontSize, 44);
}

TEST_F(BrevantDoc, ANewLyricFontSizeAndANewNumberOfLinesAreDrawnAtTheNextPoll) {
  files.Put(u"C:\\a.lrc", "[00:00.000]one\r\n[01:00.000]two\r\n[02:00.000]three\r\n");
  document.OnOpenDocument(kShow);
  document.OnCommand(TCCommandId::Play);
  Poll(2);
  ASSERT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tone", u"\r\n", u"\ttwo"));
  messages.clears = 0;
  Poll(1);
  ASSERT_EQ(messages.clears, 0) << "the current line has not changed";

  prompts.texts = {u"40", u"3", u"7"};
  document.OnCommand(TCCommandId::LyricsFontSize);
  EXPECT_EQ(document.Transport().State().lastLyricIndex, -1);
  Poll(1);
  EXPECT_EQ(messages.clears, 1);
  EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tone", u"\r\n", u"\ttwo"));

  document.OnCommand(TCCommandId::LyricLines);
  EXPECT_EQ(document.Transport().State().lastLyricIndex, -1);
  Poll(1);
  EXPECT_THAT(messages.lines, ElementsAre(u"\r\n", u"\tone", u"\r\n", u"\ttwo", u"\r\n", u"\tthree"));

  document.OnCommand(TCCommandId::VolumeStep);
  Poll(1);
  EXPECT_EQ(messages.clears, 2) << "no other prompt draws them anew";
}

TEST_F(BrevantDoc, VolumeKeysReachThePlayer) {
  player.SetVolume(50);
  document.OnCommand(TCCommandId::VolumeUp);
  document.OnCommand(TCCommandId::MediaVolumeUp);
  EXPECT_EQ(player.GetVolume(), 60);
  document.OnCommand(TCCommandId::VolumeDown);
  document.OnCommand(TCCommandId::MediaVolumeDown);
  EXPECT_EQ(player.GetVolume(), 50);
}

TEST_F(BrevantDoc, SeekAndRepeatKeysReachThePlayerAndTheTimeFields) {
  document.OnOpenDocument(kShow);
  document.OnCommand(TCCommandId::Play);
  player.Advance(10.0);
  player.ForgetCalls();
  document.OnCommand(TCCommandId::SetRepeatEnd);
  document.OnCommand(TCCommandId::SeekBack);
  document.OnCommand(TCCommandId::SetRepeatBegin);
  document.OnCommand(TCCommandId::SeekForward);
  EXPECT_EQ(player.Calls().size(), 2u);
  EXPECT_EQ(rig.repeatFields.end, 9);
  EXPECT_EQ(rig.repeatFields.begin, 7);
  EXPECT_EQ(static_cast<int>(player.GetPosition().value_or(0.0)), 9);
}

TEST_F(BrevantDoc, WithoutAPlayerEveryKeyOfAPerformanceAndEveryPollRunsWithoutEffect) {
  TCDocumentRig silent(files, nullptr);
  TCBrevantDoc& mute = silent.document;
  mute.OnOpenDocument(kShow);
  using Id = TCCommandId;
  for (const Id command : {Id::Play, Id::LoadSong, Id::PauseContinue, Id::Stop, Id::SeekForward, Id::SeekBack,
                           Id::VolumeUp, Id::VolumeDown, Id::SetRepeatBegin, Id::SetRepeatEnd,
                           Id::RefreshSongTime, Id::RefreshAllTimes, Id::RefreshPlaylistTimes}) {
    EXPECT_TRUE(mute.OnCommand(command));
    mute.OnPlayTimerTick();
  }
  EXPECT_FALSE(mute.Transport().State().playing);
  EXPECT_FALSE(mute.IsModified());
  EXPECT_EQ(silent.view.rows[0].texts.time, u"03:00");
  EXPECT_THAT(silent.messages.lines, ElementsAre(u"...Brevant..."));
}

TEST_F(BrevantDoc, ACommandOfSomebodyElseIsNotTaken) {
  EXPECT_FALSE(TCBrevantDoc::Handles(TCCommandId::About));
  EXPECT_FALSE(document.OnCommand(TCCommandId::About));
  EXPECT_FALSE(document.OnCommand(TCCommandId::None));
}

}  // namespace
}  // namespace brevant
