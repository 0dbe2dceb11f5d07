// The file kinds that the chooser for song files offers.
#pragma once

#include <QStringList>
#include <string>
#include <vector>

namespace brevant {

// The media files, by `types` without dots, and all files: "Media Files (*.mid *.mp3)", "All Files (*)".
// Without a type only the second.
[[nodiscard]] QStringList MediaFileFilters(const std::vector<std::u16string>& types);

}  // namespace brevant
