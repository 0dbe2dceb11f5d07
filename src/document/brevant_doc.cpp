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
  if (transport.TimeRun().Pending()) parts.frame.ShowStatus({});  // how far it had come
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

const TCBrevantDoc::Handler* TCBrevantDoc::HandlerOf(TCCommandId command) {
  using Doc = TCBrevantDoc;
  using Id = TCCommandId;
  static constexpr std::array kHandlers = {
      Handler{Id::FileNew, [](Doc& doc) { doc.FileNew(); }},
      Handler{Id::FileOpen, [](Doc& doc) { doc.FileOpen(); }},
      Handler{Id::FileSave, [](Doc& doc) { doc.Save(); }},
      Handler{Id::FileSaveAs, [](Doc& doc) { doc.SaveAs(); }},
      Handler{Id::Cancel, [](Doc& doc) { doc.Cancel(); }},
      Handler{Id::ClearInformation, [](Doc& doc) { doc.parts.messages.Clear(); }},

      Handler{Id::Play, [](Doc& doc) { doc.transport.Play(); }},
      Handler{Id::Stop, [](Doc& doc) { doc.transport.Stop(); }},
      Handler{Id::PauseContinue, [](Doc& doc) { doc.transport.PauseContinue(); }},
      Handler{Id::LoadSong, [](Doc& doc) { doc.PickRow(doc.parts.record.setLists.currentSong); }},
      Handler{Id::NextSong, [](Doc& doc) { doc.transport.NextSong(); }},
      Handler{Id::PriorSong, [](Doc& doc) { doc.transport.PriorSong(); }},
      Handler{Id::NextPlaylist, [](Doc& doc) { doc.transport.NextPlaylist(); }},
      Handler{Id::PriorPlaylist, [](Doc& doc) { doc.transport.PriorPlaylist(); }},

      Handler{Id::VolumeUp, [](Doc& doc) { doc.volumeAndSeek.VolumeUp(); }},
      Handler{Id::MediaVolumeUp, [](Doc& doc) { doc.volumeAndSeek.VolumeUp(); }},
      Handler{Id::VolumeDown, [](Doc& doc) { doc.volumeAndSeek.VolumeDown(); }},
      Handler{Id::MediaVolumeDown, [](Doc& doc) { doc.volumeAndSeek.VolumeDown(); }},
      Handler{Id::SeekForward, [](Doc& doc) { doc.volumeAndSeek.SeekForward(); }},
      Handler{Id::SeekBack, [](Doc& doc) { doc.volumeAndSeek.SeekBack(); }},
      Handler{Id::SetRepeatBegin, [](Doc& doc) { doc.volumeAndSeek.SetRepeatBegin(); }},
      Handler{Id::SetRepeatEnd, [](Doc& doc) { doc.volumeAndSeek.SetRepeatEnd(); }},

      Handler{Id::RefreshSongTime, [](Doc& doc) { doc.transport.RefreshCurrentSongTime(); }},
      Handler{Id::RefreshAllTimes, [](Doc& doc) { doc.transport.StartTimeRun(TCTimeScope::AllSongs); }},
      Handler{Id::RefreshPlaylistTimes,
              [](Doc& doc) { doc.transport.StartTimeRun(TCTimeScope::CurrentPlaylist); }},
  };
  for (const Handler& handler : kHandlers) {
    if (handler.command == command) return &handler;
  }
  return nullptr;
}

bool TCBrevantDoc::Handles(TCCommandId command) {
  return HandlerOf(command) != nullptr || OptionOf(command) != nullptr || IsOptionPrompt(command);
}

bool TCBrevantDoc::IsChecked(TCCommandId command) const {
  const OptionCommand* entry = OptionOf(command);
  return entry != nullptr && parts.record.settings.*entry->option;
}

bool TCBrevantDoc::OnCommand(TCCommandId command) {
  if (const Handler* handler = HandlerOf(command)) {
    handler->run(*this);
  } else if (OptionOf(command) != nullptr) {
    ToggleOption(command);
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

void TCBrevantDoc::FileNew() {
  if (SaveModified()) OnNewDocument();
}

void TCBrevantDoc::FileOpen() {
  if (const auto path = parts.prompts.ChooseDocumentToOpen()) OpenDocumentFile(*path);
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
