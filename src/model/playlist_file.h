// Playlist files (.brvpl): one song a line, "path*time". Read only; a document is saved in one file of its
// own.
#pragma once

#include <string_view>

#include "model/set_list_store.h"
#include "text/file_system.h"

namespace brevant {

// Fills `playlist` from the file. False, and nothing changed, when it cannot be read. A file without lines
// leaves the playlist as it was. Songs already in it keep what the file does not say, lyrics are not read.
[[nodiscard]] bool LoadPlaylistFile(TCFileSystem& files, const TCSetListStore& store, TCPlayList& playlist,
                                    std::u16string_view path);

}  // namespace brevant
