// Copied songs, files that wait to be placed, and the placing of song files at the tree's selected node. Part
// of the document; user-interface thread only.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "document/edit_parts.h"
#include "document/set_list_editor.h"
#include "model/set_list.h"

namespace brevant {

class TCSongPlacement {
 public:
  TCSongPlacement(const TCEditParts& editParts, TCSetListEditor& setListEditor);

  // Full names of the songs, each in double quotes and one directly behind the other; never saved. Without a
  // selected row, or with a node that is no song, the text stays.
  void CopySelectedRows();
  void CopySelectedNode();
  [[nodiscard]] const std::u16string& CopyText() const { return copyText; }

  // Waits for a click, but brings nothing to place: the click places the files of the last drop once more.
  void Paste();
  // Waits for a click that places these files (model paths).
  void SetPendingFiles(std::vector<std::u16string> paths);
  [[nodiscard]] bool Pending() const { return pending; }
  // The click: places the pending files and keeps their list. With an empty list nothing happens, and the
  // wait goes on.
  void PlacePendingFiles();
  // Gives up the wait and the list.
  void Cancel();

  // Places each word of `text`, as SplitQuotedWords gives them; slashes are taken for backslashes.
  void PlaceText(std::u16string_view text);

 private:
  // Those before the first of a wrong type, which is reported.
  void PlaceFiles(const std::vector<std::u16string>& paths);
  bool MakeStoreReady();
  // At the selected node; with a group selected, in a playlist that is asked for. False when nothing was
  // placed.
  bool PlaceSongs(std::vector<TCPlayListItem> songs);
  void ShowPending();

  TCEditParts parts;
  TCSetListEditor& editor;
  std::u16string copyText;
  std::vector<std::u16string> pendingFiles;
  bool pending = false;
};

}  // namespace brevant
