#include "document/brevant_doc.h"

#include <utility>

#include "document/add_play_items.h"
#include "document/option_commands.h"
#include "document/option_prompts.h"
#include "document/song_properties.h"
#include "text/numbers.h"
#include "text/path_parts.h"

namespace brevant {

TCBrevantDoc::TCBrevantDoc(TCDocumentParts documentParts)
    : parts(std::move(documentParts)),
      documentFile(parts.files, parts.record.setLists, parts.messages),
      saver(parts.files, parts.folders.recovery),
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
  saver.WaitFor(pathName);
  ClearViewsAndStore();
  const bool wasRead = documentFile.OpenSetListDocument(pathName);
  saver.SetUnreadFile(wasRead ? std::u16string_view() : pathName);
  if (wasRead) {
    tree.BuildAll();
    parts.record.setLists.RecalcAllTotalTimes();
    presenter.ShowPlaylist(parts.record.setLists.currentGroup, parts.record.setLists.currentPlaylist);
  }
  ShowTitle();
  ShowBanner();  // clears what the loaders reported
  return true;
}

bool TCBrevantDoc::OnSaveDocument(std::u16string_view path) {
  saver.Save(path, documentFile.PrepareSave(path));
  modified = false;
  ShowTitle();
  return true;
}

void TCBrevantDoc::KeepUnsavedChanges() {
  if (modified) saver.KeepRecoveryCopy(pathName, documentFile.FlatLines());
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
  const bool onDisk = !modified && !IsSaving();
  parts.frame.ShowTitle(FileNamePart(pathName), onDisk ? TCModifiedMark::Clean : TCModifiedMark::Modified);
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

void TCBrevantDoc::ToggleOption(TCCommandId command) {
  InvertOption(command, parts.record.settings);
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
  if (saver.DropEndedSaves()) ShowTitle();
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
  const TCPlayList* playlist = parts.record.setLists.PlaylistAt(entry.Playlist());
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
    if (IsDocumentPath(path)) return OpenDocumentFile(path);
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
  if (parts.record.setLists.SongAt(song) == nullptr) return;
  TCSongPropertiesForm form(EditParts(), song);
  if (parts.prompts.EditSongProperties(form)) form.Apply();
}

}  // namespace brevant
