#include "document/song_placement.h"

#include <algorithm>
#include <utility>

#include "model/media_check.h"
#include "model/set_list_edit.h"
#include "resources/string_table.h"
#include "text/numbers.h"
#include "text/quoted_words.h"

namespace brevant {

namespace {

std::u16string WaitingHint(std::size_t files) {
  if (files == 0) return u"No dropped files to place, Esc to cancel";
  return u"Click a playlist in the Play List Manager to place " +
         FormatDecimal(static_cast<std::int64_t>(files)) + (files == 1 ? u" file" : u" files") +
         u", Esc to cancel";
}

}  // namespace

TCSongPlacement::TCSongPlacement(const TCEditParts& editParts, TCSetListEditor& setListEditor)
    : parts(editParts), editor(setListEditor) {}

void TCSongPlacement::CopySelectedRows() {
  const std::vector<std::int32_t> rows = parts.view.SelectedRows();
  if (rows.empty()) return;
  copyText.clear();
  for (const std::int32_t row : rows) {
    if (const TCPlayListItem* song = parts.Store().SongInCurrentPlaylist(row))
      copyText += QuotedWord(song->FullPath());
  }
}

void TCSongPlacement::CopySelectedNode() {
  const TCNodeEntry entry = parts.tree.SelectedEntry();
  if (entry.kind != TCNodeKind::Song) return;
  const std::u16string path = parts.Store().SongAt(entry.Song())->FullPath();
  if (!path.empty()) copyText = QuotedWord(path);
}

void TCSongPlacement::Paste() {
  pending = true;
  ShowPending();
}

void TCSongPlacement::SetPendingFiles(std::vector<std::u16string> paths) {
  pendingFiles = std::move(paths);
  pending = true;
  ShowPending();
}

void TCSongPlacement::ShowPending() {
  if (pending) {
    parts.frame.ShowPlacing(TCPlacing::Waiting, WaitingHint(pendingFiles.size()));
  } else {
    parts.frame.ShowPlacing(TCPlacing::Nothing, {});
  }
}

void TCSongPlacement::PlacePendingFiles() {
  if (!pending || pendingFiles.empty()) return;
  pending = false;
  ShowPending();
  PlaceFiles(std::vector(pendingFiles));  // a prompt on the way leaves time for the next drop
  parts.ShowCurrentPlaylist();
}

void TCSongPlacement::Cancel() {
  pendingFiles.clear();
  pending = false;
  ShowPending();
}

void TCSongPlacement::PlaceText(std::u16string_view text) {
  std::vector<std::u16string> paths = SplitQuotedWords(text);
  for (std::u16string& path : paths) std::replace(path.begin(), path.end(), u'/', u'\\');
  PlaceFiles(paths);
}

void TCSongPlacement::PlaceFiles(const std::vector<std::u16string>& paths) {
  if (paths.empty() || !MakeStoreReady()) return;
  if (parts.tree.SelectedEntry().kind == TCNodeKind::None) return;
  std::vector<TCPlayListItem> songs;
  const std::u16string* wrong = nullptr;
  for (const std::u16string& path : paths) {
    TCPlayListItem song;
    song.SetPath(path);
    if (!IsValidMediaExtension(parts.Store(), song.extension)) {
      wrong = &path;
      break;
    }
    songs.push_back(std::move(song));
  }
  if (!songs.empty() && !PlaceSongs(std::move(songs))) return;
  if (wrong != nullptr) parts.messages.AppendMessage(TCTextId::InvalidMediaType, *wrong);
}

bool TCSongPlacement::MakeStoreReady() {
  const std::vector<TCPlayGroups>& groups = parts.Store().groups;
  if (groups.empty() && !editor.AskForGroup()) return false;
  return !groups.front().playlists.empty() || editor.AskForPlaylist();
}

bool TCSongPlacement::PlaceSongs(std::vector<TCPlayListItem> songs) {
  if (parts.tree.SelectedEntry().kind == TCNodeKind::Group && !editor.AskForPlaylist()) return false;
  TCSetListStore& store = parts.Store();
  const TCNodeEntry selected = parts.tree.SelectedEntry();
  const TCPlayList* playlist = store.PlaylistAt(selected.Playlist());
  if (playlist == nullptr) return false;
  TCSongPosition first{selected.group, selected.playlist, selected.song + 1};
  if (selected.kind == TCNodeKind::Playlist) first.song = static_cast<std::int32_t>(playlist->items.size());

  const auto count = static_cast<std::int32_t>(songs.size());
  InsertSongs(store, first, std::move(songs));
  parts.tree.AddSongNodes(first, count);
  // The next files that are placed stand behind these.
  parts.tree.Tree().SelectNode(store.SongAt({first.group, first.playlist, first.song + count - 1})->treeNode);
  parts.Changed();
  parts.check.CheckSongFiles(first, count);
  parts.ShowChangedPlaylist(first.Playlist());
  return true;
}

}  // namespace brevant
