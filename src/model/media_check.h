// What may enter a set list: user-interface thread. And whether a song's file is there: any thread, with a
// file system of its own.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "model/set_list_store.h"
#include "text/file_system.h"

namespace brevant {

// The words of the store's list of media types. Whenever it is consulted, the list itself is lower-cased in
// place.
[[nodiscard]] std::vector<std::u16string> ValidMediaExtensions(TCSetListStore& store);

// True when `extension`, lower-cased, is one of them; an empty one never is.
[[nodiscard]] bool IsValidMediaExtension(TCSetListStore& store, std::u16string_view extension);

// Found when the file can be opened for reading, else NotFound.
[[nodiscard]] TCSongStatus SongFileStatus(TCFileSystem& files, std::u16string_view path);

}  // namespace brevant
