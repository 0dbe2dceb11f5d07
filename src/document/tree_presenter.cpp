#include "document/tree_presenter.h"

#include <utility>
#include <vector>

namespace brevant {

namespace {

// The entry that stands in the node's place, if it has this node; -1 if not. Each edit brings entries and
// nodes into step before anybody asks.
template <typename Entry>
std::int32_t IndexOfNode(const TCTreeDisplay& tree, const std::vector<Entry>& list, TCTreeNode node) {
  const std::size_t place = tree.PlaceOf(node);
  return place < list.size() && list[place].treeNode == node ? static_cast<std::int32_t>(place) : -1;
}

// Adds one node for each entry from `first` on, and hands each entry its own.
template <typename Entry, typename TextOfEntry>
void AddNodesFor(TCTreeDisplay& tree, TCTreeNode parent, std::vector<Entry>& list, std::size_t first,
                 std::size_t count, const TextOfEntry& textOf) {
  std::vector<std::u16string> texts;
  texts.reserve(count);
  for (std::size_t i = 0; i < count; ++i) texts.push_back(textOf(list[first + i]));
  const std::vector<TCTreeNode> nodes = tree.AddNodes(parent, first, std::move(texts));
  for (std::size_t i = 0; i < count; ++i) {
    list[first + i].treeNode = i < nodes.size() ? nodes[i] : TCTreeNode::None;
  }
}

template <typename Entry>
const std::u16string& NameOfEntry(const Entry& entry) {
  return entry.name;
}

const std::u16string& FileNameOf(const TCPlayListItem& song) {
  return song.fileName;
}

}  // namespace

TCTreePresenter::TCTreePresenter(TCSetListStore& setLists, TCTreeDisplay& treeDisplay)
    : store(setLists), tree(treeDisplay) {}

void TCTreePresenter::Clear() {
  tree.ClearNodes();
}

void TCTreePresenter::BuildAll() {
  tree.ClearNodes();
  AddNodesFor(tree, TCTreeNode::None, store.groups, 0, store.groups.size(), NameOfEntry<TCPlayGroups>);
  for (TCPlayGroups& group : store.groups) AddPlaylistNodes(group);
}

void TCTreePresenter::AddPlaylistNodes(TCPlayGroups& group) {
  AddNodesFor(tree, group.treeNode, group.playlists, 0, group.playlists.size(), NameOfEntry<TCPlayList>);
  for (TCPlayList& playlist : group.playlists) AddAllSongNodes(playlist);
}

void TCTreePresenter::AddAllSongNodes(TCPlayList& playlist) {
  AddNodesFor(tree, playlist.treeNode, playlist.items, 0, playlist.items.size(), FileNameOf);
}

bool TCTreePresenter::AddGroupNode(std::int32_t index) {
  TCPlayGroups* group = store.GroupAt(index);
  if (group == nullptr) return false;
  AddNodesFor(tree, TCTreeNode::None, store.groups, static_cast<std::size_t>(index), 1,
              NameOfEntry<TCPlayGroups>);
  AddPlaylistNodes(*group);
  tree.SelectNode(group->treeNode);
  return true;
}

bool TCTreePresenter::AddPlaylistNode(TCPlaylistPosition at) {
  TCPlayList* playlist = store.PlaylistAt(at);
  if (playlist == nullptr) return false;
  TCPlayGroups& group = *store.GroupAt(at.group);
  AddNodesFor(tree, group.treeNode, group.playlists, static_cast<std::size_t>(at.playlist), 1,
              NameOfEntry<TCPlayList>);
  AddAllSongNodes(*playlist);
  tree.SelectNode(playlist->treeNode);
  return true;
}

bool TCTreePresenter::AddSongNodes(TCSongPosition first, std::int32_t count) {
  const TCSongPosition last{first.group, first.playlist, first.song + count - 1};
  if (count < 1 || store.SongAt(first) == nullptr || store.SongAt(last) == nullptr) return false;
  TCPlayList& playlist = *store.PlaylistAt(first.Playlist());
  AddNodesFor(tree, playlist.treeNode, playlist.items, static_cast<std::size_t>(first.song),
              static_cast<std::size_t>(count), FileNameOf);
  tree.SelectNode(store.SongAt(first)->treeNode);
  return true;
}

void TCTreePresenter::RenameSongNode(const TCPlayListItem& song) {
  tree.SetNodeText(song.treeNode, song.fileName);
}

void TCTreePresenter::MoveGroupNode(std::int32_t index) {
  const TCPlayGroups* group = store.GroupAt(index);
  if (group == nullptr) return;
  tree.MoveNode(group->treeNode, TCTreeNode::None, static_cast<std::size_t>(index));
  tree.SelectNode(group->treeNode);
}

void TCTreePresenter::MovePlaylistNode(TCPlaylistPosition at) {
  const TCPlayList* playlist = store.PlaylistAt(at);
  if (playlist == nullptr) return;
  tree.MoveNode(playlist->treeNode, store.GroupAt(at.group)->treeNode, static_cast<std::size_t>(at.playlist));
  tree.SelectNode(playlist->treeNode);
}

void TCTreePresenter::MoveSongNode(TCSongPosition at) {
  const TCPlayListItem* song = store.SongAt(at);
  if (song == nullptr) return;
  tree.MoveNode(song->treeNode, store.PlaylistAt(at.Playlist())->treeNode, static_cast<std::size_t>(at.song));
  tree.SelectNode(song->treeNode);
}

TCNodeKind TCTreePresenter::KindOf(TCTreeNode node) const {
  if (node == TCTreeNode::None) return TCNodeKind::None;
  const TCTreeNode parent = tree.ParentOf(node);
  if (parent == TCTreeNode::None) return TCNodeKind::Group;
  return tree.ParentOf(parent) == TCTreeNode::None ? TCNodeKind::Playlist : TCNodeKind::Song;
}

TCNodeEntry TCTreePresenter::EntryOf(TCTreeNode node) const {
  switch (KindOf(node)) {
    case TCNodeKind::None:
      break;
    case TCNodeKind::Group: {
      const std::int32_t group = IndexOfNode(tree, store.groups, node);
      if (group >= 0) return {TCNodeKind::Group, group};
      break;
    }
    case TCNodeKind::Playlist: {
      const TCNodeEntry group = EntryOf(tree.ParentOf(node));
      if (group.kind == TCNodeKind::None) break;
      const std::int32_t playlist = IndexOfNode(tree, store.GroupAt(group.group)->playlists, node);
      if (playlist >= 0) return {TCNodeKind::Playlist, group.group, playlist};
      break;
    }
    case TCNodeKind::Song: {
      const TCNodeEntry playlist = EntryOf(tree.ParentOf(node));
      if (playlist.kind == TCNodeKind::None) break;
      const std::int32_t song = IndexOfNode(tree, store.PlaylistAt(playlist.Playlist())->items, node);
      if (song >= 0) return {TCNodeKind::Song, playlist.group, playlist.playlist, song};
      break;
    }
  }
  return {};
}

std::u16string TCTreePresenter::NameOf(const TCNodeEntry& entry) const {
  switch (entry.kind) {
    case TCNodeKind::None:
      break;
    case TCNodeKind::Group:
      if (const TCPlayGroups* group = store.GroupAt(entry.group)) return group->name;
      break;
    case TCNodeKind::Playlist:
      if (const TCPlayList* playlist = store.PlaylistAt(entry.Playlist())) return playlist->name;
      break;
    case TCNodeKind::Song:
      if (const TCPlayListItem* song = store.SongAt(entry.Song())) return song->fileName;
      break;
  }
  return {};
}

}  // namespace brevant
