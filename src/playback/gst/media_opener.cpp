#include "playback/gst/media_opener.h"

#include <unistd.h>

#include <algorithm>
#include <cerrno>
#include <filesystem>
#include <memory>
#include <optional>
#include <system_error>
#include <utility>

#include "text/other_case.h"
#include "text/regular_file.h"

namespace brevant {

namespace {

// Appends up to `limit` bytes. False when reading failed.
bool Read(const TCFileHandle& file, std::string& bytes, std::size_t limit) {
  char block[64 * 1024];
  while (limit > 0) {
    const ssize_t got = file.Read(block, std::min(limit, sizeof block));
    if (got <= 0) return got == 0;
    bytes.append(block, static_cast<std::size_t>(got));
    limit -= static_cast<std::size_t>(got);
  }
  return true;
}

std::string ReasonOf(int systemError) {
  return std::error_code(systemError, std::generic_category()).message();
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
  TCOtherCase otherCase;
  const TCRegularFile found = FindRegularFile(paths.ToNative(url), otherCase);
  if (!found.file.IsOpen()) return Refuse(found.failure == 0 ? "This is no file." : ReasonOf(found.failure));
  std::error_code error;
  TCPlayable playable;
  playable.nativePath = std::filesystem::absolute(found.native, error).string();
  std::string bytes;
  constexpr std::size_t kHeadBytes = 12;
  if (!Read(found.file, bytes, kHeadBytes)) return Refuse(ReasonOf(errno));
  if (LooksLikeMidi(bytes)) {
    if (!Read(found.file, bytes, kMidiMaxBytes)) return Refuse(ReasonOf(errno));
    return OpenMidi(std::move(playable), bytes, synths);
  }
  TCPlayerNote note;
  note.kind = TCPlayerNote::Kind::FileOpened;
  note.playable = std::make_shared<TCPlayable>(std::move(playable));
  return note;
}

}  // namespace brevant
