// Finds the folders that the program keeps its own files in. Used once, at the start.
#pragma once

#include <string>

#include "model/program_folders.h"
#include "text/file_system.h"

namespace brevant {

// What the system says about where files live: native paths, as the environment has them.
struct TCFolderHints {
  std::string configHome;  // $XDG_CONFIG_HOME; empty or relative: .config in the home folder
  std::string stateHome;   // $XDG_STATE_HOME; empty or relative: .local/state in the home folder
  std::string home;
  std::string program;  // the folder of the running executable
};

// The hints of this process.
[[nodiscard]] TCFolderHints AskSystemForFolders();

// Makes the settings folder; when that cannot be done the program's own folder takes its place. The recovery
// folder is made by whoever writes there first.
[[nodiscard]] TCProgramFolders FindProgramFolders(TCFileSystem& files, const TCFolderHints& hints);

}  // namespace brevant
