#include "document/song_properties.h"

#include <algorithm>

#include "document/set_list_editor.h"
#include "model/set_list_edit.h"
#include "text/path_parts.h"

namespace brevant {

namespace {

template <typename Entry>
std::u16string FileOf(const Entry& entry) {
  return std::u16string(std::u16string_view(entry.folder)) + entry.name + u"." + entry.extension;
}

// As the model holds folders: backslashes, one of them at the end. An empty folder stays empty.
std::u16string CleanFolder(std::u16string_view typed) {
  std::u16string folder = CleanName(typed);
  std::replace(folder.begin(), folder.end(), u'/', u'\\');
  if (!folder.empty() && folder.back() != u'\\') folder += u'\\';
  return folder;
}

}  // namespace

TCSongPropertiesForm::TCSongPropertiesForm(const TCEditParts& editParts, TCSongPosition at)
    : parts(editParts), chooser(parts.record, parts.prompts) {
  TCSetListStore& store = parts.Store();
  const TCPlayListItem* song = store.SongAt(at);
  if (song == nullptr) return;
  node = song->treeNode;
  const TCPlayList& list = *store.PlaylistAt(at.Playlist());
  songPath = std::u16string_view(song->folder);
  songName = song->fileName;
  songTime = song->time;
  playlistName = FileOf(list);
  groupName = FileOf(*store.GroupAt(at.group));
  pathForAll = list.state2 != 0;
  extensionForAll = list.state3 != 0;
}

void TCSongPropertiesForm::SetDir() {
  if (const auto path = chooser.ChooseSong()) songPath = FolderPart(*path);
}

void TCSongPropertiesForm::Apply() {
  const TCSongPosition position = parts.tree.EntryOf(node).Song();
  TCPlayListItem* song = parts.Store().SongAt(position);
  if (song == nullptr) return;
  TCPlayList& list = *parts.Store().PlaylistAt(position.Playlist());
  list.state2 = pathForAll ? 1 : 0;
  list.state3 = extensionForAll ? 1 : 0;
  ApplyToSong(*song);
  if (pathForAll || extensionForAll) {
    ApplyToAll(list, *song);
    parts.check.CheckSongFiles({position.group, position.playlist, 0},
                               static_cast<std::int32_t>(list.items.size()));
    parts.ShowChangedPlaylist(position.Playlist());
  } else {
    parts.tree.RenameSongNode(*song);
    parts.check.CheckSongFiles(position, 1);
    if (position.Playlist() == parts.Store().shown) parts.playlist.RefreshSongRow(position.song, *song);
  }
  parts.Changed();
}

void TCSongPropertiesForm::ApplyToSong(TCPlayListItem& song) const {
  const std::u16string name = CleanName(songName);
  song.SetPath(CleanFolder(songPath) + (name.empty() ? song.fileName : name));
}

void TCSongPropertiesForm::ApplyToAll(TCPlayList& list, const TCPlayListItem& song) {
  // Copies: the song is one of those that change.
  const std::u16string folder{std::u16string_view(song.folder)};
  const std::u16string fileName = song.fileName;
  if (pathForAll) SetFolderForAllSongs(list, folder);
  // A name without a type has none to give; it would leave every song with a bare dot.
  if (extensionForAll && !song.extension.empty()) SetExtensionForAllSongs(list, fileName);
  for (const TCPlayListItem& item : list.items) parts.tree.RenameSongNode(item);
}

}  // namespace brevant
