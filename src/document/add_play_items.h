// What the dialog "Create Set Lists" shows and does: a group and a playlist of it are chosen or created, and
// songs are added to them. The dialog shows this form anew after every call. User-interface thread only.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "document/edit_parts.h"
#include "document/media_file_chooser.h"
#include "document/set_list_editor.h"
#include "document/song_placement.h"

namespace brevant {

class TCAddPlayItems {
 public:
  // Begins with the group and playlist that were shown last; of several groups of that name with the last,
  // and with the first of all when none has it.
  TCAddPlayItems(const TCEditParts& editParts, TCSetListEditor& setListEditor, TCSongPlacement& placement);

  [[nodiscard]] const std::vector<TCGroupNamesLists>& Lists() const { return lists; }
  // -1: none.
  [[nodiscard]] std::int32_t Group() const { return group; }
  [[nodiscard]] std::int32_t Playlist() const { return playlist; }
  // Song paths, each in double quotes, separated by blanks.
  std::u16string songFiles;

  // The first playlist of the group is chosen with it. An index that is none chooses none.
  void ChooseGroup(std::int32_t index);
  void ChoosePlaylist(std::int32_t index);

  void FindSongs();
  // Each asks for a name; what was created is chosen.
  void CreateGroup();
  void CreateSet();
  // Makes the chosen playlist current and adds the songs to it.
  void Create();
  // OK was pressed: the chosen names are suggested next time.
  void Accept();

 private:
  void FillLists();
  void RememberNames();
  [[nodiscard]] bool MakeChosenCurrent();

  TCEditParts parts;
  TCSetListEditor& editor;
  TCSongPlacement& placement;
  TCMediaFileChooser chooser;
  std::vector<TCGroupNamesLists> lists;
  std::int32_t group = -1;
  std::int32_t playlist = -1;
};

}  // namespace brevant
