// What may enter a set list, and whether a song's file is there.
#pragma once

#include <string_view>

#include "model/set_list_store.h"
#include "text/file_system.h"

namespace brevant {

// True when `extension`, lower-cased, is a word of the store's list of media types; an empty one never is.
// The list itself is lower-cased in place by every call.
[[nodiscard]] bool IsValidMediaExtension(TCSetListStore& store, std::u16string_view extension);

// Found when the file can be opened for reading, else NotFound.
[[nodiscard]] TCSongStatus SongFileStatus(TCFileSystem& files, std::u16string_view path);

// How a set list is repaired whose songs moved to another folder (`folder` with its trailing backslash) or
// were converted to another type (the type of `fileName`). Every song is changed and has then to be checked
// again.
void SetFolderForAllSongs(TCPlayList& playlist, std::u16string_view folder);
void SetExtensionForAllSongs(TCPlayList& playlist, std::u16string_view fileName);

}  // namespace brevant
