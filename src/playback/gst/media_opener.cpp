#include "playback/gst/media_opener.h"

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <system_error>
#include <utility>

namespace brevant {

namespace {

class TCFile {
 public:
  // Not blocking, so that a FIFO nobody writes to does not hold the thread.
  explicit TCFile(const std::string& path)
      : handle(::open(path.c_str(), O_RDONLY | O_NONBLOCK | O_CLOEXEC)) {}
  ~TCFile() {
    if (handle >= 0) ::close(handle);
  }
  TCFile(const TCFile&) = delete;
  TCFile& operator=(const TCFile&) = delete;

  [[nodiscard]] bool IsOpen() const { return handle >= 0; }

  [[nodiscard]] bool IsRegular() const {
    struct stat status {};
    return ::fstat(handle, &status) == 0 && S_ISREG(status.st_mode);
  }

  // Appends up to `limit` bytes. False when reading failed.
  bool Read(std::string& bytes, std::size_t limit) const {
    char block[64 * 1024];
    while (limit > 0) {
      const ssize_t got = ::read(handle, block, std::min(limit, sizeof block));
      if (got < 0 && errno == EINTR) continue;
      if (got <= 0) return got == 0;
      bytes.append(block, static_cast<std::size_t>(got));
      limit -= static_cast<std::size_t>(got);
    }
    return true;
  }

 private:
  int handle = -1;
};

std::string LastError() {
  return std::error_code(errno, std::generic_category()).message();
}

TCPlayerNote Refuse(const std::string& why) {
  TCPlayerNote note;
  note.kind = TCPlayerNote::Kind::FileUnreadable;
  note.detail = why;
  return note;
}

TCPlayerNote OpenMidi(TCPlayable playable, const std::string& bytes, TCSynthStore* synths) {
  std::optional<TCMidiSong> song = ReadMidi(bytes);
  if (!song) return Refuse("The MIDI file is damaged.");
  TCPlayerNote note;
  if (synths != nullptr && !synths->Get()) {
    note.kind = TCPlayerNote::Kind::NoSoundfont;
    note.detail = "No soundfont was found.";
    return note;
  }
  playable.midi = std::make_shared<TCMidiSong>(std::move(*song));
  note.kind = TCPlayerNote::Kind::FileOpened;
  note.playable = std::make_shared<TCPlayable>(std::move(playable));
  return note;
}

}  // namespace

TCPlayerNote OpenMedia(const std::u16string& url, const TCNativePaths& paths, TCSynthStore* synths) {
  std::error_code error;
  TCPlayable playable;
  playable.nativePath = std::filesystem::absolute(paths.FindOnDisk(url), error).string();
  const TCFile file(playable.nativePath);
  if (!file.IsOpen()) return Refuse(LastError());
  if (!file.IsRegular()) return Refuse("This is no file.");
  std::string bytes;
  constexpr std::size_t kHeadBytes = 12;
  if (!file.Read(bytes, kHeadBytes)) return Refuse(LastError());
  if (LooksLikeMidi(bytes)) {
    if (!file.Read(bytes, kMidiMaxBytes)) return Refuse(LastError());
    return OpenMidi(std::move(playable), bytes, synths);
  }
  TCPlayerNote note;
  note.kind = TCPlayerNote::Kind::FileOpened;
  note.playable = std::make_shared<TCPlayable>(std::move(playable));
  return note;
}

}  // namespace brevant
