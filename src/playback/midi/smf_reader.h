// Reads Standard MIDI Files: formats 0, 1 and 2, metrical and SMPTE time, bare or wrapped in RIFF. A file cut
// short or damaged in a track gives what stands before the damage. Pure, bounded in time and memory by the
// size of the input; any thread.
#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brevant {

// A channel message, or a system exclusive one (status 0xF0).
struct TCMidiEvent {
  std::int64_t nanoseconds = 0;  // from the start of the song
  std::uint32_t sysexBegin = 0;  // 0xF0 only: its bytes in TCMidiSong::sysex
  std::uint16_t sysexSize = 0;
  std::uint8_t status = 0;  // with the channel in the low half
  std::uint8_t data1 = 0;
  std::uint8_t data2 = 0;

  [[nodiscard]] bool IsNote() const { return (status & 0xE0) == 0x80; }
};

struct TCMidiSong {
  std::vector<TCMidiEvent> events;  // in the order of playing
  std::string sysex;                // the data of all exclusive messages, without 0xF0 and 0xF7
  std::int64_t nanoseconds = 0;     // the end of the longest track

  [[nodiscard]] std::string_view SysexOf(const TCMidiEvent& event) const {
    return std::string_view(sysex).substr(event.sysexBegin, event.sysexSize);
  }
};

// Larger files are refused: an hour of dense MIDI is under 2 MB.
inline constexpr std::size_t kMidiMaxBytes = std::size_t{16} * 1024 * 1024;

// Songs are cut here, so that a delta time gone wild does not make one of a thousand years.
inline constexpr std::int64_t kMidiMaxNanoseconds = 24LL * 3600 * 1'000'000'000;

// What the first bytes of a file say; 12 are enough.
[[nodiscard]] bool LooksLikeMidi(std::string_view head);

// Empty when `bytes` is no MIDI file, holds no track at all, or is larger than kMidiMaxBytes.
[[nodiscard]] std::optional<TCMidiSong> ReadMidi(std::string_view bytes);

}  // namespace brevant
