// Builds the bytes of MIDI files for tests.
#pragma once

#include <cstdint>
#include <initializer_list>
#include <string>
#include <vector>

namespace brevant {

inline std::string Bytes(std::initializer_list<int> values) {
  std::string bytes;
  for (const int value : values) bytes.push_back(static_cast<char>(value));
  return bytes;
}

inline std::string BigEndian32(std::uint32_t value) {
  return Bytes({static_cast<int>(value >> 24), static_cast<int>(value >> 16 & 0xFF),
                static_cast<int>(value >> 8 & 0xFF), static_cast<int>(value & 0xFF)});
}

inline std::string LittleEndian32(std::uint32_t value) {
  return Bytes({static_cast<int>(value & 0xFF), static_cast<int>(value >> 8 & 0xFF),
                static_cast<int>(value >> 16 & 0xFF), static_cast<int>(value >> 24)});
}

// A variable-length number, as before every event.
inline std::string Delta(std::uint32_t ticks) {
  std::string bytes = Bytes({static_cast<int>(ticks & 0x7F)});
  while ((ticks >>= 7) != 0) bytes.insert(bytes.begin(), static_cast<char>((ticks & 0x7F) | 0x80));
  return bytes;
}

inline std::string NoteOn(std::uint32_t delta, int key) {
  return Delta(delta) + Bytes({0x90, key, 100});
}
inline std::string NoteOff(std::uint32_t delta, int key) {
  return Delta(delta) + Bytes({0x80, key, 0});
}
inline std::string TrackEnd(std::uint32_t delta) {
  return Delta(delta) + Bytes({0xFF, 0x2F, 0});
}
inline std::string Tempo(std::uint32_t delta, std::uint32_t microseconds) {
  return Delta(delta) +
         Bytes({0xFF, 0x51, 3, static_cast<int>(microseconds >> 16),
                static_cast<int>(microseconds >> 8 & 0xFF), static_cast<int>(microseconds & 0xFF)});
}

inline std::string Chunk(const std::string& name, const std::string& body) {
  return name + BigEndian32(static_cast<std::uint32_t>(body.size())) + body;
}

inline std::string MidiFile(int format, int division, const std::vector<std::string>& tracks) {
  const int count = static_cast<int>(tracks.size());
  std::string bytes =
      Chunk("MThd", Bytes({0, format, count >> 8, count & 0xFF, division >> 8, division & 0xFF}));
  for (const std::string& track : tracks) bytes += Chunk("MTrk", track);
  return bytes;
}

inline std::string RiffMidi(const std::string& midi) {
  const std::string body = "RMIDLIST" + LittleEndian32(3) + "abc" + Bytes({0}) + "data" +
                           LittleEndian32(static_cast<std::uint32_t>(midi.size())) + midi;
  return "RIFF" + LittleEndian32(static_cast<std::uint32_t>(body.size())) + body;
}

}  // namespace brevant
