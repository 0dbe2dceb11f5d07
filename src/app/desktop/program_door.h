// How the program is reached from outside, once it runs: by a second start, a file manager, the desktop's
// menu. TCBrevantApp stands behind it and TCRunningProgram knocks; tests stand there themselves.
#pragma once

#include <string>

namespace brevant {

class TCProgramDoor {
 public:
  virtual ~TCProgramDoor() = default;

  // Brings the program's window, or the dialog in front of it, before all others.
  virtual void ComeForward() = 0;

  // Opens a document, by its absolute native name. False when it will not, because a dialog is open. The
  // user may be asked about unsaved changes; that happens after the return.
  virtual bool OpenFromOutside(const std::string& nativeName) = 0;
};

}  // namespace brevant
