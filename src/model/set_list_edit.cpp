#include "model/set_list_edit.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <utility>

#include "text/path_parts.h"

namespace brevant {

namespace {

template <typename Entry>
bool HasRoomAt(const std::vector<Entry>& list, std::int32_t index) {
  return index >= 0 && static_cast<std::size_t>(index) <= list.size();
}

template <typename Entry>
Entry TakeOut(std::vector<Entry>& list, std::int32_t index) {
  Entry entry = std::move(list[static_cast<std::size_t>(index)]);
  list.erase(list.begin() + index);
  return entry;
}

template <typename Entry>
void PutIn(std::vector<Entry>& list, std::int32_t index, Entry entry) {
  list.insert(list.begin() + index, std::move(entry));
}

// Where the entry at `index` is found after the change.
constexpr std::int32_t AfterInsert(std::int32_t index, std::int32_t at) {
  return index >= at ? index + 1 : index;
}
constexpr std::int32_t AfterRemove(std::int32_t index, std::int32_t at) {
  return index > at ? index - 1 : index;
}
constexpr std::int32_t AfterMove(std::int32_t index, std::int32_t from, std::int32_t to) {
  return index == from ? to : AfterInsert(AfterRemove(index, from), to);
}

// Positions of playlists that follow their entry whatever moves, and are none once it is removed.
std::array<TCPlaylistPosition*, 2> Followers(TCSetListStore& store) {
  return {&store.shown, &store.measured};
}

void FollowRemovedPlaylist(TCPlaylistPosition& position, TCPlaylistPosition at) {
  if (position.group == at.group) position.playlist = AfterRemove(position.playlist, at.playlist);
}

void FollowMovedPlaylist(TCPlaylistPosition& position, TCPlaylistPosition from, TCPlaylistPosition to) {
  if (position == from) {
    position = to;
    return;
  }
  FollowRemovedPlaylist(position, from);
  if (position.group == to.group) position.playlist = AfterInsert(position.playlist, to.playlist);
}

}  // namespace

// An index that names no entry follows none, so "valid" is asked before each change.

bool InsertGroup(TCSetListStore& store, std::int32_t group, TCPlayGroups entry) {
  if (!HasRoomAt(store.groups, group)) return false;
  if (store.IsValidGroup(store.currentGroup)) store.currentGroup = AfterInsert(store.currentGroup, group);
  for (TCPlaylistPosition* follower : Followers(store)) {
    if (follower->group >= 0) follower->group = AfterInsert(follower->group, group);
  }
  PutIn(store.groups, group, std::move(entry));
  return true;
}

bool InsertPlaylist(TCSetListStore& store, TCPlaylistPosition at, TCPlayList entry) {
  TCPlayGroups* group = store.GroupAt(at.group);
  if (group == nullptr || !HasRoomAt(group->playlists, at.playlist)) return false;
  if (store.currentGroup == at.group && store.IsValidPlaylistIndex(store.currentPlaylist))
    store.currentPlaylist = AfterInsert(store.currentPlaylist, at.playlist);
  for (TCPlaylistPosition* follower : Followers(store)) {
    if (follower->group == at.group) follower->playlist = AfterInsert(follower->playlist, at.playlist);
  }
  PutIn(group->playlists, at.playlist, std::move(entry));
  return true;
}

bool InsertSong(TCSetListStore& store, TCSongPosition at, TCPlayListItem entry) {
  std::vector<TCPlayListItem> entries;
  entries.push_back(std::move(entry));
  return InsertSongs(store, at, std::move(entries));
}

bool InsertSongs(TCSetListStore& store, TCSongPosition at, std::vector<TCPlayListItem> entries) {
  TCPlayList* playlist = store.PlaylistAt(at.Playlist());
  if (playlist == nullptr || !HasRoomAt(playlist->items, at.song)) return false;
  if (store.CurrentPosition() == at.Playlist() && store.IsValidSongIndex(store.currentSong) &&
      store.currentSong >= at.song)
    store.currentSong += static_cast<std::int32_t>(entries.size());
  playlist->items.insert(playlist->items.begin() + at.song, std::make_move_iterator(entries.begin()),
                         std::make_move_iterator(entries.end()));
  return true;
}

bool RemoveGroup(TCSetListStore& store, std::int32_t group) {
  if (!store.IsValidGroup(group)) return false;
  for (TCPlaylistPosition* follower : Followers(store)) {
    if (follower->group == group) *follower = {};
    follower->group = AfterRemove(follower->group, group);
  }
  store.currentGroup = AfterRemove(store.currentGroup, group);
  TakeOut(store.groups, group);
  return true;
}

bool RemovePlaylist(TCSetListStore& store, TCPlaylistPosition at) {
  if (store.PlaylistAt(at) == nullptr) return false;
  for (TCPlaylistPosition* follower : Followers(store)) {
    if (*follower == at) *follower = {};
    FollowRemovedPlaylist(*follower, at);
  }
  TCPlaylistPosition current = store.CurrentPosition();
  FollowRemovedPlaylist(current, at);
  store.currentPlaylist = current.playlist;
  TakeOut(store.GroupAt(at.group)->playlists, at.playlist);
  return true;
}

bool RemoveSong(TCSetListStore& store, TCSongPosition at) {
  return RemoveSongs(store, at.Playlist(), {at.song});
}

bool RemoveSongs(TCSetListStore& store, TCPlaylistPosition at, const std::vector<std::int32_t>& songs) {
  TCPlayList* playlist = store.PlaylistAt(at);
  if (playlist == nullptr) return false;
  std::vector<TCPlayListItem>& items = playlist->items;
  std::int32_t before = 0;  // removed ahead of the current song
  auto next = songs.begin();
  std::int32_t song = 0;
  const auto removed = std::remove_if(items.begin(), items.end(), [&](const TCPlayListItem&) {
    while (next != songs.end() && *next < song) ++next;
    const bool goes = next != songs.end() && *next == song;
    if (goes && song < store.currentSong) ++before;
    ++song;
    return goes;
  });
  if (removed == items.end()) return false;
  items.erase(removed, items.end());
  if (store.CurrentPosition() == at) store.currentSong -= before;
  return true;
}

bool MoveGroup(TCSetListStore& store, std::int32_t from, std::int32_t to) {
  if (!store.IsValidGroup(from) || !store.IsValidGroup(to)) return false;
  for (TCPlaylistPosition* follower : Followers(store)) {
    if (follower->group >= 0) follower->group = AfterMove(follower->group, from, to);
  }
  if (store.currentGroup == from) store.currentGroup = to;
  PutIn(store.groups, to, TakeOut(store.groups, from));
  return true;
}

bool MovePlaylist(TCSetListStore& store, TCPlaylistPosition from, TCPlaylistPosition to) {
  if (store.PlaylistAt(from) == nullptr || store.PlaylistAt(to) == nullptr) return false;
  for (TCPlaylistPosition* follower : Followers(store)) FollowMovedPlaylist(*follower, from, to);
  TCPlaylistPosition current = store.CurrentPosition();
  FollowMovedPlaylist(current, from, to);
  store.currentGroup = current.group;
  store.currentPlaylist = current.playlist;
  TCPlayList entry = TakeOut(store.GroupAt(from.group)->playlists, from.playlist);
  PutIn(store.GroupAt(to.group)->playlists, to.playlist, std::move(entry));
  return true;
}

bool MoveSong(TCSetListStore& store, TCSongPosition from, TCSongPosition to) {
  if (store.SongAt(from) == nullptr || store.SongAt(to) == nullptr) return false;
  const bool follows = store.CurrentPosition() == from.Playlist() && from.Playlist() == to.Playlist();
  const std::int32_t current = follows ? AfterMove(store.currentSong, from.song, to.song) : store.currentSong;
  TCPlayListItem entry = std::move(*store.SongAt(from));
  RemoveSong(store, from);
  InsertSong(store, to, std::move(entry));
  if (follows) store.currentSong = current;
  return true;
}

void SetFolderForAllSongs(TCPlayList& playlist, std::u16string_view folder) {
  const TCSharedText sharedFolder{std::u16string(folder)};
  for (TCPlayListItem& song : playlist.items) song.folder = sharedFolder;
}

void SetExtensionForAllSongs(TCPlayList& playlist, std::u16string_view fileName) {
  const TCSharedText extension = ExtensionPart(fileName);
  for (TCPlayListItem& song : playlist.items) {
    song.fileName = ReplaceExtension(song.fileName, extension);
    song.extension = extension;
  }
}

}  // namespace brevant
