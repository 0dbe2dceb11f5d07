// The watch as a library that a built program is started with (LD_PRELOAD), so that the very program that is
// shipped can be watched. Without BREVANT_WATCHDOG_LOG, the file its lines are appended to, it does nothing.
#include <QCoreApplication>
#include <cstdio>
#include <cstdlib>
#include <memory>

#include "rehearsal/loop_watch.h"

namespace {

// The toolkit calls plain functions, so what they share stands here.
std::unique_ptr<brevant::TCLoopWatch> watch;

void EndTheWatch() {
  watch.reset();
}

void BeginTheWatch() {
  const char* const name = std::getenv("BREVANT_WATCHDOG_LOG");
  std::FILE* const file = name == nullptr ? nullptr : std::fopen(name, "ae");
  if (file == nullptr) return;
  const char* const server = std::getenv("BREVANT_STAGE_SERVER");
  watch = std::make_unique<brevant::TCLoopWatch>(file, server == nullptr ? 0 : std::atoi(server));
  qAddPostRoutine(EndTheWatch);
}

}  // namespace

Q_COREAPP_STARTUP_FUNCTION(BeginTheWatch)
