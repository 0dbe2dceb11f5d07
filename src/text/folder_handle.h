// An open folder of the system's, closed when it goes out of scope.
#pragma once

#include <dirent.h>

#include <memory>

namespace brevant {

struct TCCloseFolder {
  void operator()(DIR* open) const { closedir(open); }
};

using TCFolderHandle = std::unique_ptr<DIR, TCCloseFolder>;

}  // namespace brevant
