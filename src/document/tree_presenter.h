// Keeps the playlist manager tree in step with the set lists. Every group, playlist and song remembers its
// own node, and both stand in the same place: so a node is led back to its entry. Used by the commands that
// edit set lists. User-interface thread only.
#pragma once

#include <cstdint>
#include <string>

#include "document/tree_display.h"
#include "model/set_list_store.h"

namespace brevant {

enum class TCNodeKind { None = 0, Group = 1, Playlist = 2, Song = 3 };

// The entry that a node stands for. Indices below the node's own level are -1; with kind None all are.
struct TCNodeEntry {
  TCNodeKind kind = TCNodeKind::None;
  std::int32_t group = -1;
  std::int32_t playlist = -1;
  std::int32_t song = -1;

  [[nodiscard]] TCPlaylistPosition Playlist() const { return {group, playlist}; }
  [[nodiscard]] TCSongPosition Song() const { return {group, playlist, song}; }
};

class TCTreePresenter {
 public:
  TCTreePresenter(TCSetListStore& setLists, TCTreeDisplay& tree);

  // Replaces all nodes.
  void BuildAll();
  void Clear();

  // Each adds the node of an entry that is in the set lists but not yet in the tree, at the entry's place,
  // with the nodes of everything under it, and selects it. False for an entry that is not there.
  bool AddGroupNode(std::int32_t group);
  bool AddPlaylistNode(TCPlaylistPosition playlist);
  // `count` songs of one playlist, `first` and those behind it; the first is selected.
  bool AddSongNodes(TCSongPosition first, std::int32_t count);

  // The text of a song's node follows its file name.
  void RenameSongNode(const TCPlayListItem& song);

  // Puts the node of an entry that was moved in the set lists to its place and selects it.
  void MoveGroupNode(std::int32_t group);
  void MovePlaylistNode(TCPlaylistPosition playlist);
  void MoveSongNode(TCSongPosition song);

  // The kind follows from the depth alone; None for a node that is not there.
  [[nodiscard]] TCNodeKind KindOf(TCTreeNode node) const;
  // Kind None when no entry has this node. Takes no search, however many entries there are.
  [[nodiscard]] TCNodeEntry EntryOf(TCTreeNode node) const;
  [[nodiscard]] TCNodeEntry SelectedEntry() const { return EntryOf(tree.SelectedNode()); }

  // As its node shows it; empty for an entry that is not there.
  [[nodiscard]] std::u16string NameOf(const TCNodeEntry& entry) const;

  [[nodiscard]] TCTreeDisplay& Tree() { return tree; }

 private:
  void AddPlaylistNodes(TCPlayGroups& group);
  void AddAllSongNodes(TCPlayList& playlist);

  TCSetListStore& store;
  TCTreeDisplay& tree;
};

}  // namespace brevant
