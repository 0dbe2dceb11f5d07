#include "document/brevant_doc.h"

#include <array>
#include <utility>

#include "document/option_prompts.h"
#include "document/recovery_copy.h"
#include "text/numbers.h"
#include "text/path_parts.h"

namespace brevant {

namespace {

struct OptionCommand {
  TCCommandId command;
  bool TCSettings::*option;
};

// Commands that do nothing but turn an option on or off.
constexpr std::array kOptionCommands = {
    OptionCommand{TCCommandId::AutoSongAdvance, &TCSettings::autoSongAdvance},
    OptionCommand{TCCommandId::AutoPlayPlayList, &TCSettings::autoPlayPlayList},
    OptionCommand{TCCommandId::AutoRecycle, &TCSettings::autoRecycle},
    OptionCommand{TCCommandId::WhiteOnBlack, &TCSettings::whiteOnBlack},  // with two colours that follow it
    OptionCommand{TCCommandId::DynamicPlayColours, &TCSettings::dynamicPlayColours},
    OptionCommand{TCCommandId::ImmediatePlay, &TCSettings::immediatePlay},
    OptionCommand{TCCommandId::PlaylistManagerImmediatePlay, &TCSettings::playlistManagerImmediatePlay},
    OptionCommand{TCCommandId::FoldersSaveFormat, &TCSettings::foldersSaveFormat},
    OptionCommand{TCCommandId::LoadLastFile, &TCSettings::loadLastFileOnProgramRun},
    OptionCommand{TCCommandId::Reset, &TCSettings::resetPending},
};

const OptionCommand* OptionOf(TCCommandId command) {
  for (const OptionCommand& entry : kOptionCommands) {
    if (entry.command == command) return &entry;
  }
  return nullptr;
}

constexpr std::array kTransportCommands = {TCCommandId::Play,          TCCommandId::Stop,
                                           TCCommandId::PauseContinue, TCCommandId::LoadSong,
                                           TCCommandId::NextSong,      TCCommandId::PriorSong,
                                           TCCommandId::NextPlaylist,  TCCommandId::PriorPlaylist,
                                           TCCommandId::Cancel,        TCCommandId::ClearInformation};

constexpr std::array kFileCommands = {TCCommandId::FileNew, TCCommandId::FileOpen, TCCommandId::FileSave,
                                      TCCommandId::FileSaveAs};

constexpr std::array kPlayerCommands = {TCCommandId::VolumeUp,       TCCommandId::VolumeDown,
                                        TCCommandId::MediaVolumeUp,  TCCommandId::MediaVolumeDown,
                                        TCCommandId::SeekForward,    TCCommandId::SeekBack,
                                        TCCommandId::SetRepeatBegin, TCCommandId::SetRepeatEnd};

constexpr std::array kTimeCommands = {TCCommandId::RefreshSongTime, TCCommandId::RefreshAllTimes,
                                      TCCommandId::RefreshPlaylistTimes};

template <typename List>
bool Contains(const List& list, TCCommandId command) {
  for (const TCCommandId entry : list) {
    if (entry == command) return true;
  }
  return false;
}

}  // namespace

TCBrevantDoc::TCBrevantDoc(TCDocumentParts documentParts)
    : parts(std::move(documentParts)),
      documentFile(parts.files, parts.record.setLists, parts.messages),
      presenter(parts.record, parts.playlistView),
      transport({parts.record, parts.files, presenter, parts.messages, parts.player, parts.lengthProbe,
                 parts.repeatFields}),
      volumeAndSeek(parts.record.settings, parts.player, parts.repeatFields) {}

bool TCBrevantDoc::OnNewDocument() {
  pathName.clear();
  modified = false;
  ClearViewsAndStore();
  ShowTitle();
  ShowBanner();
  return true;
}

bool TCBrevantDoc::OnOpenDocument(std::u16string_view path) {
  pathName = path;
  modified = false;
  ClearViewsAndStore();
  if (documentFile.OpenSetListDocument(pathName)) {
    parts.record.setLists.RecalcAllTotalTimes();
    presenter.ShowPlaylist(parts.record.setLists.currentGroup, parts.record.setLists.currentPlaylist);
  }
  ShowTitle();
  ShowBanner();  // clears what the loaders reported
  return true;
}

bool TCBrevantDoc::OnSaveDocument(std::u16string_view path) {
  if (!documentFile.SaveSetListDocument(path)) KeepRecoveryCopy(path);
  modified = false;
  ShowTitle();
  return true;
}

void TCBrevantDoc::KeepRecoveryCopy(std::u16string_view path) {
  const TextLines lines = documentFile.FlatLines();
  if (!lines.empty()) WriteRecoveryCopy(parts.files, parts.folders.recovery, FileNamePart(path), lines);
}

void TCBrevantDoc::KeepUnsavedChanges() {
  if (modified) KeepRecoveryCopy(pathName);
}

void TCBrevantDoc::ClearViewsAndStore() {
  presenter.Clear();
  parts.record.setLists.ClearSetLists();
  transport.ForgetSong();
}

void TCBrevantDoc::ShowBanner() {
  parts.messages.Clear();
  parts.messages.AppendMessage(TCTextId::Banner);
}

void TCBrevantDoc::ShowTitle() {
  parts.frame.ShowTitle(FileNamePart(pathName), modified ? TCModifiedMark::Modified : TCModifiedMark::Clean);
}

void TCBrevantDoc::SetModified() {
  modified = true;
  ShowTitle();
}

void TCBrevantDoc::OpenDocumentFile(std::u16string_view path) {
  if (SaveModified()) OnOpenDocument(path);
}

bool TCBrevantDoc::SaveModified() {
  if (!modified) return true;
  switch (parts.prompts.AskSaveChanges(FileNamePart(pathName))) {
    case TCSaveAnswer::Save:
      return Save();
    case TCSaveAnswer::Discard:
      return true;
    case TCSaveAnswer::Cancel:
      break;
  }
  return false;
}

bool TCBrevantDoc::Save() {
  return pathName.empty() ? SaveAs() : OnSaveDocument(pathName);
}

bool TCBrevantDoc::SaveAs() {
  const std::optional<std::u16string> path = parts.prompts.ChooseDocumentToSave(pathName);
  if (!path) return false;
  pathName = *path;
  return OnSaveDocument(pathName);
}

bool TCBrevantDoc::Handles(TCCommandId command) {
  return Contains(kTransportCommands, command) || Contains(kFileCommands, command) ||
         Contains(kPlayerCommands, command) || Contains(kTimeCommands, command) || IsOptionPrompt(command) ||
         OptionOf(command) != nullptr;
}

bool TCBrevantDoc::IsChecked(TCCommandId command) const {
  const OptionCommand* entry = OptionOf(command);
  return entry != nullptr && parts.record.settings.*entry->option;
}

bool TCBrevantDoc::OnCommand(TCCommandId command) {
  if (OptionOf(command) != nullptr) {
    ToggleOption(command);
  } else if (Contains(kTransportCommands, command)) {
    RunTransportCommand(command);
  } else if (Contains(kFileCommands, command)) {
    RunFileCommand(command);
  } else if (Contains(kPlayerCommands, command)) {
    RunPlayerCommand(command);
  } else if (Contains(kTimeCommands, command)) {
    RunTimeCommand(command);
  } else if (IsOptionPrompt(command)) {
    ChangeOption(command);
  } else {
    return false;
  }
  return true;
}

void TCBrevantDoc::ToggleOption(TCCommandId command) {
  bool TCSettings::*option = OptionOf(command)->option;
  TCSettings& settings = parts.record.settings;
  settings.*option = !(settings.*option);
  if (command == TCCommandId::WhiteOnBlack) settings.SetWhiteOnBlack(settings.whiteOnBlack);
  parts.frame.ShowOptions();
  if (command == TCCommandId::WhiteOnBlack || command == TCCommandId::DynamicPlayColours)
    presenter.ShowColours();
}

void TCBrevantDoc::ChangeOption(TCCommandId command) {
  if (!AskForOption(command, parts.record, parts.prompts)) return;
  parts.frame.ShowOptions();
  TCSetListStore& setLists = parts.record.setLists;
  switch (command) {
    case TCCommandId::SongLatency:
      setLists.RecalcAllTotalTimes();
      presenter.ShowPlaylist(setLists.currentGroup, setLists.currentPlaylist);
      return;
    case TCCommandId::LyricsFontSize:
    case TCCommandId::LyricLines:
      transport.RedrawLyrics();
      return;
    default:
      return;
  }
}

void TCBrevantDoc::RunPlayerCommand(TCCommandId command) {
  switch (command) {
    case TCCommandId::VolumeUp:
    case TCCommandId::MediaVolumeUp:
      return volumeAndSeek.VolumeUp();
    case TCCommandId::VolumeDown:
    case TCCommandId::MediaVolumeDown:
      return volumeAndSeek.VolumeDown();
    case TCCommandId::SeekForward:
      return volumeAndSeek.SeekForward();
    case TCCommandId::SeekBack:
      return volumeAndSeek.SeekBack();
    case TCCommandId::SetRepeatBegin:
      return volumeAndSeek.SetRepeatBegin();
    case TCCommandId::SetRepeatEnd:
      return volumeAndSeek.SetRepeatEnd();
    default:
      return;
  }
}

void TCBrevantDoc::RunTimeCommand(TCCommandId command) {
  switch (command) {
    case TCCommandId::RefreshSongTime:
      return transport.RefreshCurrentSongTime();
    case TCCommandId::RefreshAllTimes:
      return transport.StartTimeRun(TCTimeScope::AllSongs);
    case TCCommandId::RefreshPlaylistTimes:
      return transport.StartTimeRun(TCTimeScope::CurrentPlaylist);
    default:
      return;
  }
}

void TCBrevantDoc::OnPlayTimerTick() {
  const bool measuring = transport.TimeRun().Pending();
  const bool timesChanged = transport.OnPlayTimerTick();
  if (measuring) ShowTimeRun();
  if (timesChanged) SetModified();
}

void TCBrevantDoc::ShowTimeRun() {
  const TCTimeRun& run = transport.TimeRun();
  if (!run.Pending()) return parts.frame.ShowStatus({});
  parts.frame.ShowStatus(FormatDecimal(static_cast<std::int64_t>(run.Measured())) + u" of " +
                         FormatDecimal(static_cast<std::int64_t>(run.Count())));
}

void TCBrevantDoc::RunTransportCommand(TCCommandId command) {
  switch (command) {
    case TCCommandId::Play:
      return transport.Play();
    case TCCommandId::Stop:
      return transport.Stop();
    case TCCommandId::PauseContinue:
      return transport.PauseContinue();
    case TCCommandId::LoadSong:
      return transport.SelectSong(parts.record.setLists.currentSong, TCSelect::MayPlay);
    case TCCommandId::NextSong:
      return transport.NextSong();
    case TCCommandId::PriorSong:
      return transport.PriorSong();
    case TCCommandId::NextPlaylist:
      transport.NextPlaylist();
      return;
    case TCCommandId::PriorPlaylist:
      return transport.PriorPlaylist();
    case TCCommandId::ClearInformation:
      return parts.messages.Clear();
    case TCCommandId::Cancel:
      return Cancel();
    default:
      return;
  }
}

void TCBrevantDoc::RunFileCommand(TCCommandId command) {
  switch (command) {
    case TCCommandId::FileNew:
      if (SaveModified()) OnNewDocument();
      return;
    case TCCommandId::FileOpen:
      if (const auto path = parts.prompts.ChooseDocumentToOpen()) OpenDocumentFile(*path);
      return;
    case TCCommandId::FileSave:
      Save();
      return;
    case TCCommandId::FileSaveAs:
      SaveAs();
      return;
    default:
      return;
  }
}

void TCBrevantDoc::Cancel() {
  parts.playlistView.ResetMouseState();
  transport.CancelPending();
  parts.frame.ShowStatus({});
  parts.messages.AppendMessage(TCTextId::CommandCanceled);
}

void TCBrevantDoc::PickRow(std::int32_t row) {
  transport.SelectSong(row, TCSelect::MayPlay);
}

}  // namespace brevant
