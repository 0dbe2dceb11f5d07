// Duplicates and moves groups, playlists and songs, and copies songs that were dragged from the playlist into
// the tree. What cannot be done ends silently with nothing changed; "Disable Editing" stops every move and
// every copy by drag. Part of the document; user-interface thread only.
#pragma once

#include "document/edit_parts.h"

namespace brevant {

class TCEntryMover {
 public:
  explicit TCEntryMover(const TCEditParts& editParts);

  // A copy of the selected node's entry: a playlist or group right behind it, a song at its playlist's end.
  void Duplicate();

  // Puts the source's entry where the target's stands, across playlists and groups too. Both are of one kind.
  void Move(TCTreeNode source, TCTreeNode target);
  // The song of one row of the current playlist to the place of another, whose row is selected then, whatever
  // became of the move.
  void MoveRow(std::int32_t from, std::int32_t to);

  // The first selected row, one place up or down; the selection goes along even if the song may not.
  void MoveSongUp();
  void MoveSongDown();
  // Selects the current song's row.
  void SelectSongToMove();

  // Copies the selected rows' songs to the end of the playlist that the tree's selected node is or lies in.
  void CopySelectedRowsToNode();

 private:
  void MoveGroups(std::int32_t from, std::int32_t to);
  void MovePlaylists(TCPlaylistPosition from, TCPlaylistPosition to);
  void MoveSongs(TCSongPosition from, TCSongPosition to);

  TCEditParts parts;
};

}  // namespace brevant
