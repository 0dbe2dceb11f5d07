#include "document/brevant_doc.h"

#include <array>
#include <utility>

#include "document/add_play_items.h"
#include "document/option_prompts.h"
#include "document/recovery_copy.h"
#include "document/song_properties.h"
#include "text/case_folding.h"
#include "text/numbers.h"
#include "text/path_parts.h"

namespace brevant {

namespace {

struct OptionCommand {
  TCCommandId command;
  bool (*isOn)(const TCSettings&);
  void (*invert)(TCSettings&);
};

template <auto Option>
constexpr OptionCommand Toggle(TCCommandId command) {
  return {command, [](const TCSettings& settings) { return static_cast<bool>(settings.*Option); },
          [](TCSettings& settings) { settings.*Option = !(settings.*Option); }};
}

// Commands that do nothing but turn an option on or off.
constexpr std::array kOptionCommands = {
    Toggle<&TCSettings::autoSongAdvance>(TCCommandId::AutoSongAdvance),
    Toggle<&TCSettings::autoPlayPlayList>(TCCommandId::AutoPlayPlayList),
    Toggle<&TCSettings::autoRecycle>(TCCommandId::AutoRecycle),
    // With the two colours that follow it.
    OptionCommand{TCCommandId::WhiteOnBlack, [](const TCSettings& settings) { return settings.whiteOnBlack; },
                  [](TCSettings& settings) { settings.SetWhiteOnBlack(!settings.whiteOnBlack); }},
    Toggle<&TCSettings::dynamicPlayColours>(TCCommandId::DynamicPlayColours),
    Toggle<&TCSettings::immediatePlay>(TCCommandId::ImmediatePlay),
    Toggle<&TCSettings::playlistManagerImmediatePlay>(TCCommandId::PlaylistManagerImmediatePlay),
    Toggle<&TCSettings::confirmFileRemove>(TCCommandId::ConfirmFileRemove),
    Toggle<&TCSettings::disableEditing>(TCCommandId::DisableEditing),
    Toggle<&TCSettings::foldersSaveFormat>(TCCommandId::FoldersSaveFormat),
    Toggle<&TCSettings::loadLastFileOnProgramRun>(TCCommandId::LoadLastFile),
    Toggle<&TCSettings::loadLastWindowState>(TCCommandId::LoadLastWindowState),
    OptionCommand{TCCommandId::Reset, [](const TCSettings& settings) { return settings.resetPending; },
                  [](TCSettings& settings) { settings.ToggleReset(); }},
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
      properties(parts.record, parts.folders, parts.playlistView, parts.properties),
      presenter(parts.record, parts.playlistView, parts.treeView, [this] { RefreshProperties(); }),
      tree(parts.record.setLists, parts.treeView),
      songCheck(parts.files, parts.record.setLists, tree, presenter),
      editor(EditParts()),
      mover(EditParts()),
      placement(EditParts(), editor),
      transport({parts.record, parts.files, presenter, parts.messages, parts.player, parts.lengthProbe,
                 parts.repeatFields}),
      volumeAndSeek(parts.record.settings, parts.player, parts.repeatFields) {}

TCEditParts TCBrevantDoc::EditParts() {
  return {parts.record,   songCheck,          tree,
          presenter,      parts.playlistView, parts.frame,
          parts.messages, parts.prompts,      [this] { SetModified(); }};
}

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
    tree.BuildAll();
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
  tree.Clear();
  parts.record.setLists.ClearSetLists();
  transport.ForgetSong();
}

void TCBrevantDoc::ShowBanner() {
  parts.messages.Clear();
  parts.messages.AppendMessage(TCTextId::Banner);
}

void TCBrevantDoc::ShowTitle() {
  parts.frame.ShowTitle(FileNamePart(pathName), modified ? TCModifiedMark::Modified : TCModifiedMark::Clean);
  RefreshProperties();
}

void TCBrevantDoc::SetModified() {
  modified = true;
  ShowTitle();
}

void TCBrevantDoc::OpenDocumentFile(std::u16string_view path) {
  if (!SaveModified()) return;
  OnOpenDocument(path);
  AddToRecentFiles();
}

void TCBrevantDoc::AddToRecentFiles() {
  if (parts.recentFiles != nullptr) parts.recentFiles->AddToRecentFileList(pathName);
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
  OnSaveDocument(pathName);
  AddToRecentFiles();
  return true;
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

      Handler{Id::CreateGroupList, [](Doc& doc) { doc.editor.AskForGroup(); }},
      Handler{Id::NewGroupFolder, [](Doc& doc) { doc.editor.CreateGroup(TextOf(TCTextId::NewGroupFolder)); }},
      Handler{Id::CreatePlaylist, [](Doc& doc) { doc.editor.AskForPlaylist(); }},
      Handler{Id::NewPlaylistFolder,
              [](Doc& doc) { doc.editor.CreatePlaylist(TextOf(TCTextId::NewPlaylistFolder)); }},
      Handler{Id::AddSongs, [](Doc& doc) { doc.AddSongs(); }},
      Handler{Id::Rename, [](Doc& doc) { doc.editor.AskForNewName(); }},
      Handler{Id::Remove, [](Doc& doc) { doc.Remove(); }},
      Handler{Id::SongProperties, [](Doc& doc) { doc.ShowSongProperties(); }},
      Handler{Id::Copy, [](Doc& doc) { doc.Copy(); }},
      Handler{Id::Paste, [](Doc& doc) { doc.placement.Paste(); }},
      Handler{Id::Duplicate, [](Doc& doc) { doc.mover.Duplicate(); }},
      Handler{Id::SelectSongToMove, [](Doc& doc) { doc.mover.SelectSongToMove(); }},
      Handler{Id::MoveSongUp, [](Doc& doc) { doc.mover.MoveSongUp(); }},
      Handler{Id::MoveSongDown, [](Doc& doc) { doc.mover.MoveSongDown(); }},
      Handler{Id::ShowTreeSelection, [](Doc& doc) { doc.ShowTreeSelection(); }},
      Handler{Id::FocusPlaylistManager, [](Doc& doc) { doc.parts.treeView.TakeFocus(); }},

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
  return entry != nullptr && entry->isOn(parts.record.settings);
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
  OptionOf(command)->invert(parts.record.settings);
  parts.frame.ShowOptions();
  RefreshProperties();
  if (command == TCCommandId::WhiteOnBlack || command == TCCommandId::DynamicPlayColours)
    presenter.ShowColours();
}

void TCBrevantDoc::ChangeOption(TCCommandId command) {
  if (!AskForOption(command, parts.record, parts.prompts)) return;
  parts.frame.ShowOptions();
  RefreshProperties();
  TCSetListStore& setLists = parts.record.setLists;
  switch (command) {
    case TCCommandId::SongLatency:
      setLists.RecalcAllTotalTimes();
      presenter.ShowAgain();
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
  songCheck.TakeLateAnswers();
  const bool measuring = transport.TimeRun().Pending();
  const bool timesChanged = transport.OnPlayTimerTick();
  if (measuring) ShowTimeRun();
  if (!timesChanged) return;
  presenter.ShowAgain();
  SetModified();
}

void TCBrevantDoc::ShowTimeRun() {
  const TCTimeRun& run = transport.TimeRun();
  if (!run.Pending()) return parts.frame.ShowStatus({});
  if (placement.Pending()) return;  // what the busy pointer waits for stands there
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
  placement.Cancel();
  parts.treeView.ResetMouseState();
  parts.playlistView.ResetMouseState();
  transport.CancelPending();
  parts.frame.ShowStatus({});
  parts.messages.AppendMessage(TCTextId::CommandCanceled);
}

void TCBrevantDoc::PickRow(std::int32_t row) {
  transport.SelectSong(row, TCSelect::MayPlay);
}

void TCBrevantDoc::MakePlaylistCurrent(TCPlaylistPosition playlist) {
  transport.SelectPlaylist(playlist.group, playlist.playlist);
}

void TCBrevantDoc::PressNode(TCTreeNode node) {
  const TCNodeEntry entry = tree.EntryOf(node);
  properties.RefreshSelectionProperties(entry.group, entry.playlist, entry.song);
}

void TCBrevantDoc::PickNode(TCTreeNode node) {
  const TCNodeEntry entry = tree.EntryOf(node);
  if (entry.kind != TCNodeKind::Playlist && entry.kind != TCNodeKind::Song) return;
  MakePlaylistCurrent(entry.Playlist());
  if (entry.kind == TCNodeKind::Playlist) return;
  transport.SelectSong(entry.song, parts.record.settings.playlistManagerImmediatePlay ? TCSelect::MayPlay
                                                                                      : TCSelect::Silently);
}

void TCBrevantDoc::EnterOnNode() {
  const TCTreeNode node = parts.treeView.SelectedNode();
  const TCNodeKind kind = tree.KindOf(node);
  if (kind != TCNodeKind::Playlist && kind != TCNodeKind::Song) return;
  parts.treeView.ExpandNode(kind == TCNodeKind::Song ? parts.treeView.ParentOf(node) : node);
  PickNode(node);
}

void TCBrevantDoc::ShowTreeSelection() {
  const TCNodeEntry entry = tree.SelectedEntry();
  const TCPlayList* playlist = PlaylistAt(parts.record.setLists, entry.Playlist());
  if (playlist == nullptr) return;
  parts.treeView.SelectNode(playlist->treeNode);
  MakePlaylistCurrent(entry.Playlist());
}

void TCBrevantDoc::DropRowsOnPlaylist() {
  if (const TCPlayList* current = parts.record.setLists.CurrentPlaylist()) {
    parts.treeView.SelectNode(current->treeNode);
  }
  mover.CopySelectedRowsToNode();
}

void TCBrevantDoc::DropFiles(std::vector<std::u16string> paths) {
  for (const std::u16string& path : paths) {
    if (ToLower(ExtensionPart(path)) == TextOf(TCTextId::DocumentExtension)) return OpenDocumentFile(path);
  }
  if (!paths.empty()) placement.SetPendingFiles(std::move(paths));
}

void TCBrevantDoc::AddSongs() {
  TCAddPlayItems form(EditParts(), editor, placement);
  if (parts.prompts.EditSetLists(form)) form.Accept();
}

void TCBrevantDoc::Copy() {
  if (parts.treeView.HasFocus()) {
    placement.CopySelectedNode();
  } else {
    placement.CopySelectedRows();
  }
}

void TCBrevantDoc::Remove() {
  if (parts.treeView.HasFocus() || parts.playlistView.SelectedRow() < 0) {
    editor.RemoveSelectedNode();
  } else {
    editor.RemoveSelectedRows();
  }
}

void TCBrevantDoc::ShowSongProperties() {
  const std::int32_t row = parts.treeView.HasFocus() ? -1 : parts.playlistView.SelectedRow();
  const TCPlaylistPosition current = parts.record.setLists.CurrentPosition();
  const TCSongPosition song =
      row < 0 ? tree.SelectedEntry().Song() : TCSongPosition{current.group, current.playlist, row};
  if (SongAt(parts.record.setLists, song) == nullptr) return;
  TCSongPropertiesForm form(EditParts(), song);
  if (parts.prompts.EditSongProperties(form)) form.Apply();
}

}  // namespace brevant
