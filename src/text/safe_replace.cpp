#include "text/safe_replace.h"

#include <fcntl.h>
#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <array>
#include <cerrno>
#include <cstdio>
#include <optional>
#include <random>

#include "text/file_handle.h"

namespace brevant {

namespace {

// As many as the kernel itself follows.
constexpr int kMaxLinks = 40;
constexpr int kMaxAttempts = 100;
constexpr std::size_t kBlockBytes = std::size_t{64} << 10;

// With its trailing slash; empty for a name in the working folder.
std::string FolderOf(const std::string& native) {
  return native.substr(0, native.rfind('/') + 1);
}

// Where the link, or the chain of links, leads, whether or not anything stands there.
std::optional<std::string> FollowLinks(std::string native) {
  for (int links = 0; links <= kMaxLinks; ++links) {
    std::array<char, PATH_MAX> target{};
    const ssize_t length = readlink(native.c_str(), target.data(), target.size());
    if (length < 0) return native;  // no link, or nothing at all
    const std::string_view next(target.data(), static_cast<std::size_t>(length));
    native = next.starts_with('/') ? std::string(next) : FolderOf(native).append(next);
  }
  return std::nullopt;
}

// A name of our own, which nobody else uses.
std::string NewName(const std::string& folder, std::random_device& random) {
  return folder + ".brevant-" + std::to_string(random()) + ".tmp";
}

// A file of our own beside the target.
class TCNewFile {
 public:
  TCNewFile(const std::string& folder, mode_t mode) {
    std::random_device random;
    for (int attempt = 0; attempt < kMaxAttempts && !file.IsOpen(); ++attempt) {
      name = NewName(folder, random);
      file = TCFileHandle(open(name.c_str(), O_WRONLY | O_CREAT | O_EXCL | O_CLOEXEC | O_NOFOLLOW, mode));
      if (!file.IsOpen() && errno != EEXIST) break;
    }
    needsRemoval = file.IsOpen();
  }
  TCNewFile(const TCNewFile&) = delete;
  TCNewFile& operator=(const TCNewFile&) = delete;
  ~TCNewFile() {
    if (needsRemoval) unlink(name.c_str());
  }

  [[nodiscard]] bool IsOpen() const { return file.IsOpen(); }

  // What cannot be taken over is let go: a file system without owners or permissions must not cost the save.
  void TakeOver(const struct stat& old) const {
    const auto sameOwner = static_cast<uid_t>(-1);
    const bool owner = fchown(file.Get(), old.st_uid, old.st_gid) == 0;
    const bool group = owner || fchown(file.Get(), sameOwner, old.st_gid) == 0;
    // Another group does not get what was the old group's.
    const mode_t permissions = old.st_mode & (group ? 0777U : 0707U);
    static_cast<void>(fchmod(file.Get(), permissions) == 0);
  }

  [[nodiscard]] bool Write(std::string_view bytes) const {
    while (!bytes.empty()) {
      const ssize_t written = write(file.Get(), bytes.data(), bytes.size());
      if (written < 0 && errno == EINTR) continue;
      if (written <= 0) return false;
      bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return true;
  }

  [[nodiscard]] bool WriteAllOf(const TCFileHandle& source) const {
    std::string block(kBlockBytes, '\0');
    while (true) {
      const ssize_t got = source.Read(block.data(), block.size());
      if (got == 0) return true;
      if (got < 0 || !Write(std::string_view(block).substr(0, static_cast<std::size_t>(got)))) return false;
    }
  }

  // Waits until what was written is on the disk.
  [[nodiscard]] bool MoveTo(const std::string& target) {
    const bool safe = fsync(file.Get()) == 0 && file.Close();
    if (!safe || rename(name.c_str(), target.c_str()) != 0) return false;
    needsRemoval = false;
    return true;
  }

 private:
  std::string name;
  TCFileHandle file;
  bool needsRemoval = false;
};

// Without this a power cut could still bring the old file back. It comes too late to fail: the new file
// already stands there.
void KeepNewName(const std::string& folder) {
  const TCFileHandle handle(open(folder.empty() ? "." : folder.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
  if (handle.IsOpen()) fsync(handle.Get());
}

// Gives the file one name more, which replaces `target` in one step.
bool LinkTo(const std::string& target, const std::string& source) {
  std::random_device random;
  for (int attempt = 0; attempt < kMaxAttempts; ++attempt) {
    const std::string name = NewName(FolderOf(target), random);
    if (linkat(AT_FDCWD, source.c_str(), AT_FDCWD, name.c_str(), AT_SYMLINK_FOLLOW) == 0) {
      const bool moved = rename(name.c_str(), target.c_str()) == 0;
      unlink(name.c_str());  // it is still there when `target` was a name of the same file already
      return moved;
    }
    if (errno != EEXIST) return false;
  }
  return false;
}

bool WriteCopy(const std::string& target, const std::string& source) {
  const TCFileHandle file(open(source.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC | O_NOCTTY));
  struct stat status {};
  if (!file.IsOpen() || fstat(file.Get(), &status) != 0 || !S_ISREG(status.st_mode)) return false;
  TCNewFile copy(FolderOf(target), 0600);
  if (!copy.IsOpen()) return false;
  copy.TakeOver(status);
  return copy.WriteAllOf(file) && copy.MoveTo(target);
}

}  // namespace

bool CopyFileSafely(const std::string& source, const std::string& target) {
  if (!LinkTo(target, source) && !WriteCopy(target, source)) return false;
  KeepNewName(FolderOf(target));
  return true;
}

bool ReplaceFileSafely(const std::string& native, std::string_view bytes) {
  const std::optional<std::string> target = FollowLinks(native);
  if (!target) return false;

  struct stat old {};
  const bool replaces = stat(target->c_str(), &old) == 0;
  const bool mayReplace = S_ISREG(old.st_mode) && faccessat(AT_FDCWD, target->c_str(), W_OK, AT_EACCESS) == 0;
  if (replaces && !mayReplace) return false;

  const std::string folder = FolderOf(*target);
  // Nobody else reads it before it has the old file's permissions.
  TCNewFile newFile(folder, replaces ? 0600 : 0666);
  if (!newFile.IsOpen()) return false;
  if (replaces) newFile.TakeOver(old);
  if (!newFile.Write(bytes) || !newFile.MoveTo(*target)) return false;
  KeepNewName(folder);
  return true;
}

}  // namespace brevant
