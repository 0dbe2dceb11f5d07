// Finds the soundfont that MIDI songs are played with. Reads folders, so it may block as long as the disk
// does; any thread.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brevant {

// The folders of shared data in order of preference: XDG_DATA_HOME, else .local/share in the home folder;
// then each of XDG_DATA_DIRS, else /usr/local/share and /usr/share. Relative folders count for nothing: a
// variable that is empty or holds no others is as good as not set.
[[nodiscard]] std::vector<std::string> DataFolders(std::string_view home, std::string_view dataHome,
                                                   std::string_view dataDirs);

// The same out of this process's environment.
[[nodiscard]] std::vector<std::string> DataFoldersOfEnvironment();

// Where the distribution's alternatives system puts the soundfont of its choice.
inline constexpr const char* kSystemSoundfont = "/usr/share/sounds/sf3/default-GM.sf3";

// Every soundfont worth trying, best first: those of `preferred` that stand on the disk, then what lies in
// sounds/sf2, sounds/sf3 and soundfonts below `dataFolders`, by name.
[[nodiscard]] std::vector<std::string> FindSoundfonts(const std::vector<std::string>& preferred,
                                                      const std::vector<std::string>& dataFolders);

}  // namespace brevant
