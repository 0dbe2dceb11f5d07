// What the dialog "Song properties" shows of one song and what its OK changes: the song's file, and on demand
// the folder or the file type of every song of its playlist. User-interface thread only.
#pragma once

#include <string>

#include "document/edit_parts.h"
#include "document/media_file_chooser.h"

namespace brevant {

class TCSongPropertiesForm {
 public:
  // `at` names a song.
  TCSongPropertiesForm(const TCEditParts& editParts, TCSongPosition at);

  std::u16string songPath;  // its folder
  std::u16string songName;
  std::u16string songTime;
  std::u16string playlistName;  // of the playlist's file
  std::u16string groupName;     // of the group's file
  bool pathForAll = false;      // the playlist remembers the two
  bool extensionForAll = false;

  // Asks for any song in the folder that is to be `songPath`.
  void SetDir();

  // OK was pressed. A typed folder gets its trailing backslash; an empty name leaves the song's own.
  void Apply();

 private:
  void ApplyToSong(TCPlayListItem& song) const;
  void ApplyToAll(TCPlayList& list, const TCPlayListItem& song);

  TCEditParts parts;
  TCTreeNode node = TCTreeNode::None;  // entries may change places while the dialog is open
  TCMediaFileChooser chooser;
};

}  // namespace brevant
