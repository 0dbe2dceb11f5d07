// Where the program's own files live on this machine, as model paths with a trailing backslash.
#pragma once

#include <string>

namespace brevant {

struct TCProgramFolders {
  std::u16string program;   // of the running executable
  std::u16string settings;  // Brevant.ini and Profile.ini
  std::u16string recovery;  // copies of documents whose save failed
};

}  // namespace brevant
