// Creates, renames and removes groups, playlists and songs, in the set lists and in the tree at once. What
// cannot be done ends silently with nothing changed. Part of the document; user-interface thread only.
#pragma once

#include <string_view>

#include "document/edit_parts.h"

namespace brevant {

// As a name may be kept: without double quotes, which no document can hold, with a blank for each character
// that would break its line, and without blanks at its ends.
[[nodiscard]] std::u16string CleanName(std::u16string_view typed);

class TCSetListEditor {
 public:
  explicit TCSetListEditor(const TCEditParts& editParts);

  // A group behind the selected node's own, or last when none is selected. False when the name is empty.
  bool CreateGroup(std::u16string_view name);
  // A playlist behind the selected one (or the selected song's), or last in the selected group. False when
  // the name is empty or nothing is selected.
  bool CreatePlaylist(std::u16string_view name);
  // The same with a name that the user is asked for. Without a place for a playlist nobody is asked.
  bool AskForGroup();
  bool AskForPlaylist();

  // Gives the entry of `node` the name; of a song the file name, its file stays as it is. False when the name
  // is empty or the node stands for nothing.
  bool Rename(TCTreeNode node, std::u16string_view name);
  // The same for the selected node with a name that the user is asked for.
  void AskForNewName();

  // The rows selected in the view, unasked.
  void RemoveSelectedRows();
  // The selected node's entry with all under it; "ConfirmFileRemove" has the user asked first.
  void RemoveSelectedNode();

 private:
  bool CreateGroupAt(TCTreeNode node, std::u16string_view name);
  bool CreatePlaylistAt(TCTreeNode node, std::u16string_view name);
  [[nodiscard]] bool UserWantsRemoved(const TCNodeEntry& entry) const;
  void RenameSong(TCSongPosition at, std::u16string_view name);

  TCEditParts parts;
};

}  // namespace brevant
