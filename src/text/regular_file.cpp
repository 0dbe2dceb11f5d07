#include "text/regular_file.h"

#include <fcntl.h>
#include <sys/stat.h>

#include <cerrno>
#include <utility>

namespace brevant {

bool TCRegularFile::NothingThere() const {
  return failure == ENOENT || failure == ENOTDIR;
}

TCRegularFile OpenListedFile(int folder, std::string native) {
  // O_NONBLOCK keeps a FIFO without a writer from holding us up.
  constexpr int kFlags = O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY;
  TCRegularFile opened{std::move(native), {}};
  opened.file = TCFileHandle(openat(folder, opened.native.c_str(), kFlags));
  if (!opened.file.IsOpen()) opened.failure = errno;
  return opened;
}

TCRegularFile OpenRegularFile(int folder, std::string native) {
  TCRegularFile opened = OpenListedFile(folder, std::move(native));
  if (!opened.file.IsOpen()) return opened;
  struct stat status {};
  if (fstat(opened.file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) opened.file = TCFileHandle();
  opened.size = static_cast<std::uint64_t>(status.st_size);
  return opened;
}

TCRegularFile FindRegularFile(std::string native, TCOtherCase& otherCase) {
  TCRegularFile opened = OpenRegularFile(AT_FDCWD, std::move(native));
  if (!opened.NothingThere()) return opened;
  for (std::string& found : otherCase.Find(opened.native)) {
    opened = OpenRegularFile(AT_FDCWD, std::move(found));
    if (opened.file.IsOpen()) break;
  }
  return opened;
}

}  // namespace brevant
