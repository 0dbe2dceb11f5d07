#include "text/disk_files.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <cstdint>
#include <filesystem>
#include <system_error>
#include <utility>
#include <vector>

#include "text/file_handle.h"
#include "text/safe_replace.h"

namespace brevant {

namespace {

bool IsThere(const std::string& native) {
  struct stat status {};
  return lstat(native.c_str(), &status) == 0;
}

bool IsFolder(const std::string& native) {
  struct stat status {};
  return stat(native.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

struct TCDiskFiles::OpenedFile {
  TCFileHandle file;
  std::uint64_t size = 0;     // what the file says of itself
  bool nothingThere = false;  // worth a search for other case; any other failure is the file's own
};

TCDiskFiles::TCDiskFiles(TCNativePaths nativePaths, TCOtherCase::Clock clock)
    : paths(std::move(nativePaths)), otherCase(std::move(clock)) {}

bool TCDiskFiles::FileExists(std::u16string_view path) {
  return OpenForReading(paths.ToNative(path)).file.IsOpen();
}

std::optional<std::string> TCDiskFiles::ReadFile(std::u16string_view path, std::size_t maxBytes) {
  const std::string native = paths.ToNative(path);
  if (manyFiles > 0 && otherCase.IsMissing(native)) return std::nullopt;
  const OpenedFile opened = OpenForReading(native);
  if (!opened.file.IsOpen() || opened.size > maxBytes) return std::nullopt;

  // A file can grow or shrink while it is read, and some files of the system's say 0 and hold something. One
  // byte more is asked for than expected: no more than expected coming back is the end of the file.
  const auto expected = static_cast<std::size_t>(opened.size);
  std::string bytes(expected + 1, '\0');
  std::size_t length = 0;
  while (expected == 0 || length != expected) {
    const ssize_t got = read(opened.file.Get(), bytes.data() + length, bytes.size() - length);
    if (got < 0 && errno == EINTR) continue;
    if (got < 0) return std::nullopt;
    if (got == 0) break;
    length += static_cast<std::size_t>(got);
    if (length > maxBytes) return std::nullopt;
    if (length == bytes.size()) bytes.resize(2 * length);
  }
  bytes.resize(length);
  return bytes;
}

bool TCDiskFiles::ReplaceFile(std::u16string_view path, std::string_view bytes) {
  const std::string native = paths.ToNative(path);
  if (native.empty()) return false;
  const bool replaced = ReplaceFileSafely(Locate(native), bytes);
  otherCase.Forget();
  return replaced;
}

bool TCDiskFiles::CopyFile(std::u16string_view from, std::u16string_view to) {
  std::error_code failure;
  const bool copied = std::filesystem::copy_file(Locate(paths.ToNative(from)), Locate(paths.ToNative(to)),
                                                 std::filesystem::copy_options::overwrite_existing, failure);
  otherCase.Forget();
  return copied && !failure;
}

bool TCDiskFiles::MakeFolder(std::u16string_view path) {
  const std::string native = paths.ToNative(path);
  if (native.empty() || native.size() >= PATH_MAX) return false;

  std::string made = native.starts_with('/') ? "/" : "";  // in the spelling that stands on the disk
  for (std::size_t at = 0; at < native.size();) {
    const std::size_t end = std::min(native.find('/', at), native.size());
    if (end > at) {
      const std::string folder = Locate(made + native.substr(at, end - at));
      if (!IsFolder(folder) && mkdir(folder.c_str(), 0700) != 0 && !IsFolder(folder)) return false;
      made = folder + "/";
    }
    at = end + 1;
  }
  otherCase.Forget();
  return true;
}

bool TCDiskFiles::DeleteFile(std::u16string_view path) {
  const std::string native = Locate(paths.ToNative(path));
  if (native.empty()) return true;
  unlink(native.c_str());
  otherCase.Forget();
  return !IsThere(native);
}

void TCDiskFiles::EndManyFiles() {
  --manyFiles;
  if (manyFiles == 0) otherCase.Forget();
}

// Regular files only. What else stands there is closed at once, and O_NONBLOCK keeps a FIFO without a writer
// from holding us up.
TCDiskFiles::OpenedFile TCDiskFiles::OpenRegularFile(const std::string& native) {
  OpenedFile opened{TCFileHandle(open(native.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY))};
  if (!opened.file.IsOpen()) {
    opened.nothingThere = errno == ENOENT || errno == ENOTDIR;
    return opened;
  }
  struct stat status {};
  if (fstat(opened.file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) opened.file = TCFileHandle();
  opened.size = static_cast<std::uint64_t>(status.st_size);
  return opened;
}

TCDiskFiles::OpenedFile TCDiskFiles::OpenForReading(const std::string& native) {
  OpenedFile opened = OpenRegularFile(native);
  if (!opened.nothingThere) return opened;

  for (const std::string& found : otherCase.Find(native)) {
    opened = OpenRegularFile(found);
    if (opened.file.IsOpen()) break;
  }
  return opened;
}

std::string TCDiskFiles::Locate(const std::string& native) {
  if (native.empty() || IsThere(native)) return native;
  otherCase.Forget();
  const std::vector<std::string> found = otherCase.Find(native);
  if (!found.empty()) return found.front();

  const std::size_t nameStart = native.rfind('/') + 1;
  const std::string folder = native.substr(0, nameStart);
  if (nameStart < 2 || IsFolder(folder)) return native;
  for (const std::string& other : otherCase.Find(native.substr(0, nameStart - 1))) {
    if (IsFolder(other)) return other + "/" + native.substr(nameStart);
  }
  return native;
}

}  // namespace brevant
