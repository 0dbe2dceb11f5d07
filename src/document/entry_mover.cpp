#include "document/entry_mover.h"

#include <utility>
#include <vector>

#include "model/set_list_edit.h"

namespace brevant {

namespace {

// Appends copies of `songs`; the place of the first of them.
TCSongPosition AppendSongs(TCSetListStore& store, TCPlaylistPosition target,
                           std::vector<TCPlayListItem> songs) {
  const auto first = static_cast<std::int32_t>(store.PlaylistAt(target)->items.size());
  const TCSongPosition place{target.group, target.playlist, first};
  InsertSongs(store, place, std::move(songs));
  return place;
}

}  // namespace

TCEntryMover::TCEntryMover(const TCEditParts& editParts) : parts(editParts) {}

void TCEntryMover::Duplicate() {
  TCSetListStore& store = parts.Store();
  const TCNodeEntry entry = parts.tree.SelectedEntry();
  switch (entry.kind) {
    case TCNodeKind::None:
      return;
    case TCNodeKind::Group:
      InsertGroup(store, entry.group + 1, *store.GroupAt(entry.group));
      parts.tree.AddGroupNode(entry.group + 1);
      break;
    case TCNodeKind::Playlist: {
      const TCPlaylistPosition behind{entry.group, entry.playlist + 1};
      InsertPlaylist(store, behind, *store.PlaylistAt(entry.Playlist()));
      parts.tree.AddPlaylistNode(behind);
      break;
    }
    case TCNodeKind::Song:
      parts.tree.AddSongNodes(AppendSongs(store, entry.Playlist(), {*store.SongAt(entry.Song())}), 1);
      parts.ShowChangedPlaylist(entry.Playlist());
      break;
  }
  parts.Changed();
}

void TCEntryMover::Move(TCTreeNode source, TCTreeNode target) {
  if (parts.record.settings.disableEditing != 0 || source == target) return;
  const TCNodeEntry from = parts.tree.EntryOf(source);
  const TCNodeEntry to = parts.tree.EntryOf(target);
  if (from.kind != to.kind) {
    // A walk with the keys that would leave the list ends here, still holding what it walked along.
    if (from.kind != TCNodeKind::None) parts.tree.Tree().SelectNode(source);
    return;
  }
  switch (from.kind) {
    case TCNodeKind::None:
      return;
    case TCNodeKind::Group:
      MoveGroups(from.group, to.group);
      break;
    case TCNodeKind::Playlist:
      MovePlaylists(from.Playlist(), to.Playlist());
      break;
    case TCNodeKind::Song:
      MoveSongs(from.Song(), to.Song());
      break;
  }
  parts.Changed();
}

void TCEntryMover::MoveGroups(std::int32_t from, std::int32_t to) {
  MoveGroup(parts.Store(), from, to);
  parts.tree.MoveGroupNode(to);
}

void TCEntryMover::MovePlaylists(TCPlaylistPosition from, TCPlaylistPosition to) {
  TCSetListStore& store = parts.Store();
  const bool currentMoves = store.CurrentPosition() == from;
  MovePlaylist(store, from, to);
  parts.tree.MovePlaylistNode(to);
  if (currentMoves) parts.ShowCurrentPlaylist();  // its group's name is remembered as the last shown
}

void TCEntryMover::MoveSongs(TCSongPosition from, TCSongPosition to) {
  MoveSong(parts.Store(), from, to);
  parts.tree.MoveSongNode(to);
  parts.ShowChangedPlaylist(to.Playlist());
  if (from.Playlist() != to.Playlist()) parts.ShowChangedPlaylist(from.Playlist());
}

void TCEntryMover::MoveRow(std::int32_t from, std::int32_t to) {
  Move(parts.Store().GetSongTreeNode(from), parts.Store().GetSongTreeNode(to));
  parts.view.SelectRow(to);
}

void TCEntryMover::MoveSongUp() {
  const std::int32_t row = parts.view.SelectedRow();
  if (row < 1) return;
  MoveRow(row, row - 1);
}

void TCEntryMover::MoveSongDown() {
  const std::int32_t row = parts.view.SelectedRow();
  if (!parts.Store().IsValidSongIndex(row + 1)) return;
  MoveRow(row, row + 1);  // without a selected row there is no song to move, and the first row is selected
}

void TCEntryMover::SelectSongToMove() {
  parts.view.SelectRow(parts.playlist.RowToMove());
  parts.view.ScrollToRow(parts.playlist.RowToMove());
}

void TCEntryMover::CopySelectedRowsToNode() {
  const std::vector<std::int32_t> rows = parts.view.SelectedRows();
  const TCNodeEntry target = parts.tree.SelectedEntry();
  if (parts.record.settings.disableEditing != 0 || target.playlist < 0) return;
  TCSetListStore& store = parts.Store();
  std::vector<TCPlayListItem> songs;
  for (const std::int32_t row : rows) {
    if (const TCPlayListItem* song = store.SongInCurrentPlaylist(row)) songs.push_back(*song);
  }
  if (songs.empty()) return;
  const auto count = static_cast<std::int32_t>(songs.size());
  parts.tree.AddSongNodes(AppendSongs(store, target.Playlist(), std::move(songs)), count);
  parts.ShowChangedPlaylist(target.Playlist());
  parts.Changed();
}

}  // namespace brevant
