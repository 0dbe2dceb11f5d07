// Stands in for the C library's open() and openat(): a definition in the program comes before those of its
// libraries, so GStreamer and mpg123 meet it as well.
#include "support/hanging_disk.h"

#include <fcntl.h>
#include <sys/syscall.h>
#include <unistd.h>

#include <atomic>
#include <condition_variable>
#include <cstdarg>
#include <mutex>
#include <string>

namespace brevant {
namespace {

// Files are opened before main() makes the rest.
constinit std::atomic<bool> armed{false};

std::mutex mutex;
std::condition_variable changed;
std::string hangingFile;
bool hangs = false;
int goodOpensLeft = 0;
int goodOpensDone = 0;
int waiting = 0;

void WaitWhileItHangs(const char* path) {
  if (!armed) return;
  std::unique_lock lock(mutex);
  if (!hangs || hangingFile != path) return;
  if (goodOpensLeft > 0) {
    --goodOpensLeft;
    ++goodOpensDone;
    return;
  }
  ++waiting;
  changed.wait(lock, [] { return !hangs; });
  --waiting;
  changed.notify_all();
}

int Open(int folder, const char* path, int flags, mode_t mode) {
  WaitWhileItHangs(path);
  return static_cast<int>(syscall(SYS_openat, folder, path, flags, mode));
}

}  // namespace

TCHangingDisk::TCHangingDisk(const std::filesystem::path& file, int goodOpens) {
  const std::lock_guard lock(mutex);
  hangingFile = file.string();
  goodOpensLeft = goodOpens;
  goodOpensDone = 0;
  hangs = true;
  armed = true;
}

TCHangingDisk::~TCHangingDisk() {
  std::unique_lock lock(mutex);
  hangs = false;
  changed.notify_all();
  changed.wait(lock, [] { return waiting == 0; });
}

int TCHangingDisk::Waiting() const {
  const std::lock_guard lock(mutex);
  return waiting;
}

int TCHangingDisk::GoodOpens() const {
  const std::lock_guard lock(mutex);
  return goodOpensDone;
}

}  // namespace brevant

extern "C" {

int open(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return brevant::Open(AT_FDCWD, path, flags, mode);
}

int open64(const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return brevant::Open(AT_FDCWD, path, flags, mode);
}

int openat(int folder, const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return brevant::Open(folder, path, flags, mode);
}

int openat64(int folder, const char* path, int flags, ...) {
  va_list arguments;
  va_start(arguments, flags);
  const mode_t mode = (flags & (O_CREAT | O_TMPFILE)) != 0 ? va_arg(arguments, mode_t) : 0;
  va_end(arguments);
  return brevant::Open(folder, path, flags, mode);
}
}
