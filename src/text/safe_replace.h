// Puts new content, or another file's, under a file's name in one step, by native names. Used by TCDiskFiles.
#pragma once

#include <string>
#include <string_view>

namespace brevant {

// Writes `bytes` to a new file in the same folder, waits until it is on the disk, and renames it over
// `native`: whatever happens on the way, the old file or the new one stands there whole. The new file takes
// over the old one's permissions, and its owner and group where the system allows it; access lists and other
// hard links are not carried over. A symbolic link stays, the file it leads to is replaced or made.
//
// False, with the old file untouched and nothing left beside it, when anything failed, and also when the file
// is no regular file, is not writable, or stands in a folder that takes no new file, even if the file itself
// could be overwritten: overwriting it in place could leave half of it behind.
[[nodiscard]] bool ReplaceFileSafely(const std::string& native, std::string_view bytes);

// Puts `source` under the name `target` as well: as a second name of the same file, which takes no space and
// is there at once, or as a copy where the disk knows no such thing. A later ReplaceFileSafely of `source`
// leaves it as it is, since it never writes into the old file. A link at `target` is replaced, its target
// stays.
//
// False, with what stood under `target` untouched and nothing left beside it, when that failed.
[[nodiscard]] bool CopyFileSafely(const std::string& source, const std::string& target);

}  // namespace brevant
