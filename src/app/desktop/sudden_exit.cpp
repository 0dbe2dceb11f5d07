#include "app/desktop/sudden_exit.h"

#include <cstdlib>
#include <utility>

namespace brevant {
namespace {

// exit() calls a plain function.
std::function<void()>& LastWork() {
  static std::function<void()> work;
  return work;
}

void DoLastWork() {
  // Once: what is done there may call exit() itself.
  if (const auto work = std::exchange(LastWork(), nullptr)) work();
}

}  // namespace

TCSuddenExit::TCSuddenExit(std::function<void()> lastWork) {
  LastWork() = std::move(lastWork);  // made before exit() is told, so it goes after the call
  [[maybe_unused]] static const bool told = std::atexit(DoLastWork) == 0;
}

TCSuddenExit::~TCSuddenExit() {
  LastWork() = nullptr;
}

}  // namespace brevant
