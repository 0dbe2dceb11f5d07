// What the properties pane says: where the user is, how the program is set, and the tags of the current
// song's lyric file. The document refreshes it whenever any of that changed. Nothing happens before the pane
// is built. User-interface thread only.
#pragma once

#include <cstdint>
#include <string_view>

#include "document/playlist_display.h"
#include "document/properties_display.h"
#include "model/app_record.h"
#include "model/program_folders.h"

namespace brevant {

class TCPropertiesPresenter {
 public:
  // `properties` may be null: there is no pane. The rest outlives the presenter.
  TCPropertiesPresenter(TCAppRecord& appRecord, const TCProgramFolders& programFolders,
                        const TCPlaylistDisplay& playlistView, TCPropertiesDisplay* properties);

  // Everything. The song is the one selected in the playlist view, or the current one when none is; the tags
  // are always the current song's. `documentPath` is empty for a new document.
  void RefreshProperties(std::u16string_view documentPath);

  // Names and path of one song. What is shown stays as it is when an index is wrong.
  void RefreshSelectionProperties(std::int32_t group, std::int32_t playlist, std::int32_t song);

  // What is shown stays as it is when no song is current.
  void RefreshLyricProperties();

 private:
  [[nodiscard]] bool IsBuilt() const { return display != nullptr && display->IsBuilt(); }
  [[nodiscard]] std::int32_t ShownSong() const;
  void RefreshOptions();

  TCAppRecord& record;
  const TCProgramFolders& folders;
  const TCPlaylistDisplay& view;
  TCPropertiesDisplay* display = nullptr;
};

}  // namespace brevant
