// The folders that stand for drive letters on this machine: section "Drives" of the user's profile file, one
// "C=/home/me/music" a drive. Read once, at the start.
#pragma once

#include <string_view>

#include "text/file_system.h"
#include "text/native_path.h"

namespace brevant {

// `settingsFolder` holds "Profile.ini". No drives when there is no such file; an entry that is no single
// letter or names no absolute folder is ignored.
[[nodiscard]] TCNativePaths::DriveFolders ReadDriveFolders(TCFileSystem& files,
                                                           std::u16string_view settingsFolder);

}  // namespace brevant
