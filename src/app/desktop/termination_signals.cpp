#include "app/desktop/termination_signals.h"

#include <fcntl.h>
#include <unistd.h>

#include <atomic>
#include <cerrno>
#include <csignal>

namespace brevant {
namespace {

constexpr std::array kSignals{SIGTERM, SIGINT, SIGHUP};

// A signal handler can reach nothing but static data; -1 while nobody listens.
std::atomic<int> wakeUpPipe{-1};
static_assert(std::atomic<int>::is_always_lock_free);

// Little is allowed in here: one byte into the pipe, the rest happens in the main loop.
extern "C" void OnTerminationSignal(int /*signal*/) {
  const int savedError = errno;
  const int end = wakeUpPipe.load();
  if (end >= 0) {
    const char byte = 0;
    [[maybe_unused]] const ssize_t written = write(end, &byte, 1);
  }
  errno = savedError;
}

}  // namespace

TCTerminationSignals::TCTerminationSignals() {
  if (pipe2(pipe.data(), O_CLOEXEC | O_NONBLOCK) != 0) return;  // signals then end the program at once
  notifier = std::make_unique<QSocketNotifier>(pipe[0], QSocketNotifier::Read);
  connect(notifier.get(), &QSocketNotifier::activated, this, [this] {
    char byte = 0;
    while (read(pipe[0], &byte, 1) > 0) {
    }
    Q_EMIT endWanted();
  });
  wakeUpPipe.store(pipe[1]);
  struct sigaction action = {};
  action.sa_handler = OnTerminationSignal;
  action.sa_flags = SA_RESTART;
  for (const int signal : kSignals) sigaction(signal, &action, nullptr);
}

TCTerminationSignals::~TCTerminationSignals() {
  if (pipe[0] < 0) return;
  for (const int signal : kSignals) std::signal(signal, SIG_DFL);
  wakeUpPipe.store(-1);
  notifier.reset();
  close(pipe[0]);
  close(pipe[1]);
}

}  // namespace brevant
