#include "text/disk_files.h"

#include <limits.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <utility>
#include <vector>

#include "text/safe_replace.h"

namespace brevant {

namespace {

// Also behind a drive, which alone may lead anywhere.
bool EndsFolder(char16_t unit) {
  return unit == u'\\' || unit == u'/' || unit == u':';
}

bool IsThere(const std::string& native) {
  struct stat status {};
  return lstat(native.c_str(), &status) == 0;
}

bool IsFolder(const std::string& native) {
  struct stat status {};
  return stat(native.c_str(), &status) == 0 && S_ISDIR(status.st_mode);
}

}  // namespace

TCDiskFiles::TCDiskFiles(TCNativePaths nativePaths, TCOtherCase::Clock clock)
    : paths(std::move(nativePaths)), otherCase(std::move(clock)) {}

bool TCDiskFiles::FileExists(std::u16string_view path) {
  return OpenForReading(path, Expect::Found).file.IsOpen();
}

void TCDiskFiles::Ask(const std::function<void(TCFileSystem& disk)>& question) {
  const bool asked = questions.Start([question, nativePaths = paths] {
    TCDiskFiles disk(nativePaths);
    question(disk);
  });
  if (!asked) question(*this);
}

std::optional<std::string> TCDiskFiles::ReadFile(std::u16string_view path, std::size_t maxBytes) {
  const TCRegularFile opened = OpenForReading(path, Expect::Missing);
  if (!opened.file.IsOpen() || opened.size > maxBytes) return std::nullopt;

  // A file can grow or shrink while it is read, and some files of the system's say 0 and hold something. One
  // byte more is asked for than expected: no more than expected coming back is the end of the file.
  const auto expected = static_cast<std::size_t>(opened.size);
  std::string bytes(expected + 1, '\0');
  std::size_t length = 0;
  while (expected == 0 || length != expected) {
    const ssize_t got = opened.file.Read(bytes.data() + length, bytes.size() - length);
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
  ForgetFolders();
  return replaced;
}

bool TCDiskFiles::CopyFile(std::u16string_view from, std::u16string_view to) {
  const std::string source = Locate(paths.ToNative(from));
  const std::string target = Locate(paths.ToNative(to));
  const bool copied = !source.empty() && !target.empty() && CopyFileSafely(source, target);
  ForgetFolders();
  return copied;
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
  ForgetFolders();
  return true;
}

bool TCDiskFiles::DeleteFile(std::u16string_view path) {
  const std::string native = Locate(paths.ToNative(path));
  if (native.empty()) return true;
  unlink(native.c_str());
  ForgetFolders();
  return !IsThere(native);
}

void TCDiskFiles::EndManyFiles() {
  --manyFiles;
  if (manyFiles == 0) ForgetFolders();
}

void TCDiskFiles::ForgetFolders() {
  pathAtHand.clear();
  atHand.reset();
  otherCase.Forget();
}

TCRegularFile TCDiskFiles::OpenForReading(std::u16string_view path, Expect expect) {
  if (manyFiles > 0) {
    if (std::optional<TCRegularFile> opened = OpenAtHand(path, expect)) return *std::move(opened);
  }
  return FindRegularFile(paths.ToNative(path), otherCase);
}

std::optional<TCRegularFile> TCDiskFiles::OpenAtHand(std::u16string_view path, Expect expect) {
  std::size_t nameStart = path.size();
  while (nameStart > 0 && !EndsFolder(path[nameStart - 1])) --nameStart;
  if (nameStart < 2 || path[nameStart - 1] == u':') return std::nullopt;
  const std::u16string_view folder = path.substr(0, nameStart);
  if (!std::equal(folder.begin(), folder.end(), pathAtHand.begin(), pathAtHand.end())) TakeFolder(folder);
  std::string name = paths.ToNative(path.substr(nameStart));
  if (!atHand || name.empty()) return std::nullopt;

  if (expect == Expect::Missing && atHand->IsMissing(name))
    return TCRegularFile{std::move(name), {}, 0, ENOENT};
  // Whoever expects the file to be there asks for nothing but that.
  const bool listed = expect == Expect::Found && atHand->IsRegular(name);
  TCRegularFile opened = listed ? OpenListedFile(atHand->Descriptor(), std::move(name))
                                : OpenRegularFile(atHand->Descriptor(), std::move(name));
  if (!opened.NothingThere() || atHand->IsMissing(opened.native)) return opened;
  return std::nullopt;  // it stands there in other case
}

void TCDiskFiles::TakeFolder(std::u16string_view folder) {
  pathAtHand = folder;
  atHand.reset();
  std::string native = paths.ToNative(folder);
  while (native.size() > 1 && native.back() == '/') native.pop_back();
  if (!native.empty() && otherCase.StandsAlone(native)) atHand = TCFolderAtHand::Open(native);
}

std::string TCDiskFiles::Locate(const std::string& native) {
  if (native.empty() || IsThere(native)) return native;
  ForgetFolders();
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
