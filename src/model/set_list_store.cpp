#include "model/set_list_store.h"

#include "text/case_folding.h"
#include "text/path_parts.h"
#include "text/time_text.h"

namespace brevant {

namespace {

template <typename List>
bool Holds(const List& list, std::int32_t index) {
  return index >= 0 && static_cast<std::size_t>(index) < list.size();
}

template <typename List>
std::int32_t FindByName(const List& list, std::u16string_view name) {
  for (std::size_t i = 0; i < list.size(); ++i) {
    if (EqualIgnoringCase(list[i].name, name)) return static_cast<std::int32_t>(i);
  }
  return -1;
}

bool HasPath(const TCPlayListItem& song, std::u16string_view path) {
  // Asked at every tick, perhaps of a hundred thousand songs: the two lengths are at hand, the letters of the
  // name are far away in memory, and the lengths alone rule nearly every song out.
  const std::size_t folderLength = song.folder.size();
  if (folderLength + song.fileName.size() != path.size()) return false;
  return path.substr(folderLength) == song.fileName &&
         path.substr(0, folderLength) == std::u16string_view(song.folder);
}

}  // namespace

void TCSetListStore::ClearSetLists() {
  groups.clear();
  currentGroup = 0;
  currentPlaylist = 0;
  currentSong = 0;
  shown = {};
  measured = {};
}

std::int32_t TCSetListStore::FindGroupByName(std::u16string_view name) const {
  return FindByName(groups, name);
}

std::int32_t TCSetListStore::FindPlaylistByName(const TCPlayGroups& group, std::u16string_view name) {
  return FindByName(group.playlists, name);
}

bool TCSetListStore::IsValidGroup(std::int32_t group) const {
  return Holds(groups, group);
}

bool TCSetListStore::IsValidPlaylist(std::int32_t group, std::int32_t playlist) const {
  return IsValidGroup(group) && Holds(groups[static_cast<std::size_t>(group)].playlists, playlist);
}

bool TCSetListStore::IsValidPlaylistIndex(std::int32_t playlist) const {
  return IsValidPlaylist(currentGroup, playlist);
}

bool TCSetListStore::IsValidSongIndex(std::int32_t song) const {
  if (!IsValidPlaylist(currentGroup, currentPlaylist)) return false;
  const TCPlayGroups& group = groups[static_cast<std::size_t>(currentGroup)];
  return Holds(group.playlists[static_cast<std::size_t>(currentPlaylist)].items, song);
}

TCPlayGroups* TCSetListStore::GroupAt(std::int32_t group) {
  return IsValidGroup(group) ? &groups[static_cast<std::size_t>(group)] : nullptr;
}

TCPlayList* TCSetListStore::PlaylistAt(TCPlaylistPosition at) {
  if (!IsValidPlaylist(at.group, at.playlist)) return nullptr;
  return &GroupAt(at.group)->playlists[static_cast<std::size_t>(at.playlist)];
}

TCPlayListItem* TCSetListStore::SongAt(TCSongPosition at) {
  TCPlayList* playlist = PlaylistAt(at.Playlist());
  if (playlist == nullptr || !Holds(playlist->items, at.song)) return nullptr;
  return &playlist->items[static_cast<std::size_t>(at.song)];
}

TCPlayList* TCSetListStore::CurrentPlaylist() {
  return PlaylistAt(CurrentPosition());
}

TCPlayListItem* TCSetListStore::SongInCurrentPlaylist(std::int32_t song) {
  return SongAt({currentGroup, currentPlaylist, song});
}

const TCPlayListItem* TCSetListStore::FindSongByPath(std::u16string_view path) const {
  for (const TCPlayGroups& group : groups) {
    for (const TCPlayList& playlist : group.playlists) {
      for (const TCPlayListItem& song : playlist.items) {
        if (HasPath(song, path)) return &song;
      }
    }
  }
  return nullptr;
}

TCTreeNode TCSetListStore::GetSongTreeNode(std::int32_t song) const {
  if (!IsValidSongIndex(song)) return TCTreeNode::None;
  const TCPlayGroups& group = groups[static_cast<std::size_t>(currentGroup)];
  const TCPlayList& playlist = group.playlists[static_cast<std::size_t>(currentPlaylist)];
  return playlist.items[static_cast<std::size_t>(song)].treeNode;
}

void TCSetListStore::SetGroupFileInfo(std::int32_t group, std::u16string_view path) {
  if (!Holds(groups, group)) return;
  TCPlayGroups& target = groups[static_cast<std::size_t>(group)];
  target.name = FileNamePart(path);
  target.folder = FolderPart(path);
  target.extension = ExtensionPart(documentFileName);
}

void TCSetListStore::SetPlaylistFileInfo(TCPlayGroups& group, std::int32_t playlist,
                                         std::u16string_view path) {
  if (!Holds(group.playlists, playlist)) return;
  TCPlayList& target = group.playlists[static_cast<std::size_t>(playlist)];
  target.name = FileNamePart(path);
  target.folder = FolderPart(path);
  target.extension = ExtensionPart(group.name);
}

void TCSetListStore::RecalcPlaylistTotalTime(TCPlayList& playlist) const {
  if (playlist.items.empty()) return;
  const auto latency = static_cast<std::uint32_t>(songLatencySeconds);
  std::uint32_t sum = 0;
  for (const TCPlayListItem& song : playlist.items) {
    sum += static_cast<std::uint32_t>(ParseTime(song.time)) + latency;
  }
  sum -= latency;  // the gap counts only between songs
  playlist.totalTime = FormatTime(static_cast<std::int32_t>(sum));
}

void TCSetListStore::RecalcAllTotalTimes() {
  for (TCPlayGroups& group : groups) {
    for (TCPlayList& playlist : group.playlists) RecalcPlaylistTotalTime(playlist);
  }
}

void TCSetListStore::RecordLastShownNames() {
  if (!Holds(groups, currentGroup)) return;
  const TCPlayGroups& group = groups[static_cast<std::size_t>(currentGroup)];
  lastGroupListName = group.name;
  if (!Holds(group.playlists, currentPlaylist)) return;
  const TCPlayList& playlist = group.playlists[static_cast<std::size_t>(currentPlaylist)];
  lastPlayListName = playlist.name;
  if (!Holds(playlist.items, currentSong)) return;
  lastSongName = playlist.items[static_cast<std::size_t>(currentSong)].fileName;
}

void TCSetListStore::BuildGroupNamesLists(std::vector<TCGroupNamesLists>& list) const {
  list.resize(groups.size());
  for (std::size_t i = 0; i < groups.size(); ++i) {
    list[i].groupName = groups[i].name;
    list[i].playlistNames.resize(groups[i].playlists.size());
    for (std::size_t k = 0; k < groups[i].playlists.size(); ++k) {
      list[i].playlistNames[k] = groups[i].playlists[k].name;
    }
  }
}

}  // namespace brevant
