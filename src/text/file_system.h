// The disk as the core sees it: whole files by the model's own (Windows) paths. Tests put a failing disk in
// its place. One thread at a time.
#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace brevant {

class TCFileSystem {
 public:
  virtual ~TCFileSystem() = default;

  // True when `path` names a regular file, or a link to one, that can be opened for reading. A folder, FIFO
  // or device is no file, and asking about one never blocks.
  [[nodiscard]] virtual bool FileExists(std::u16string_view path) = 0;

  // For whoever must not wait for a disk that has stopped answering: `question` runs at once, later, or never
  // to its end, on a thread and with a file system of its own; it owns what it uses. Waits for nothing. See
  // AskDisk.
  virtual void Ask(const std::function<void(TCFileSystem& disk)>& question) { question(*this); }

  // All bytes of the file; empty when it is no readable regular file, when reading breaks off, or when it
  // holds more than `maxBytes`.
  [[nodiscard]] virtual std::optional<std::string> ReadFile(std::u16string_view path,
                                                            std::size_t maxBytes) = 0;

  // Puts `bytes` under `path` so that after a crash, a kill or a full disk the old file or the new one stands
  // there, never half of one. Permissions survive; a symbolic link stays a link and its target is replaced.
  // The folder must exist. False when anything failed; the old file is then untouched.
  [[nodiscard]] virtual bool ReplaceFile(std::u16string_view path, std::string_view bytes) = 0;

  // Keeps the file `from` under `to` as well, replacing what stands there; a later ReplaceFile of `from`
  // leaves that copy as it is. False when it failed.
  [[nodiscard]] virtual bool CopyFile(std::u16string_view from, std::u16string_view to) = 0;

  // Makes the folder and every missing one above it. True when it stands there afterwards.
  [[nodiscard]] virtual bool MakeFolder(std::u16string_view path) = 0;

  // False when the file is still there afterwards.
  virtual bool DeleteFile(std::u16string_view path) = 0;

  // From the first to the second many files are asked for at once: see TCManyFiles.
  virtual void BeginManyFiles() {}
  virtual void EndManyFiles() {}
};

// While one lives, questions about one folder that come one after the other may be answered from one look
// into it: opening a document asks for two lyric files of every song, most of them in vain. A file that
// appears in that moment may not be seen. What the file system remembers for it is dropped at the end.
class TCManyFiles {
 public:
  explicit TCManyFiles(TCFileSystem& fileSystem) : files(fileSystem) { files.BeginManyFiles(); }
  TCManyFiles(const TCManyFiles&) = delete;
  TCManyFiles& operator=(const TCManyFiles&) = delete;
  ~TCManyFiles() { files.EndManyFiles(); }

 private:
  TCFileSystem& files;
};

}  // namespace brevant
