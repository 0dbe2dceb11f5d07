// Asks another thread where it stands: a signal makes it note its own stack. One catcher a process.
#pragma once

#include <pthread.h>

#include <string>
#include <vector>

namespace brevant {

// Return addresses, innermost first; empty when the thread did not answer.
using TCCaughtStack = std::vector<void*>;

class TCStackCatcher {
 public:
  TCStackCatcher();

  // Waits a twentieth of a second for the thread to note its stack.
  [[nodiscard]] TCCaughtStack Catch(pthread_t thread);
};

// A JSON list of texts "FILE+0xOFFSET NAME"; the name is that of the exported function, if any.
[[nodiscard]] std::string JsonOf(const TCCaughtStack& stack);

}  // namespace brevant
