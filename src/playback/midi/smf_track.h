// Walks over the events of one track of a Standard MIDI File, one at a time, so that several tracks can be
// played side by side without being unpacked first. Used by the file reader.
#pragma once

#include <cstdint>
#include <string_view>

namespace brevant {

class TCSmfTrack {
 public:
  enum class Kind { Channel, Sysex, Tempo, End };

  explicit TCSmfTrack(std::string_view bytes);

  // The event under the cursor. At the End, `Tick` is the length of the track.
  [[nodiscard]] Kind CurrentKind() const { return kind; }
  [[nodiscard]] std::uint64_t Tick() const { return tick; }
  [[nodiscard]] std::uint8_t Status() const { return status; }
  [[nodiscard]] std::uint8_t Data1() const { return data1; }
  [[nodiscard]] std::uint8_t Data2() const { return data2; }
  [[nodiscard]] std::string_view Sysex() const { return payload; }
  [[nodiscard]] std::uint32_t MicrosecondsPerQuarter() const { return tempo; }

  // Moves on. An event that is cut short or makes no sense ends the track at the event before it.
  void Next();

 private:
  // What became of one attempt to read an event.
  enum class Step { Event, NothingToPlay, TrackEnd, Damage };

  Step ReadEvent();
  Step ReadChannel(std::uint8_t message);
  Step ReadSysex(std::uint8_t message);
  Step ReadMeta();
  bool ReadByte(std::uint8_t& value);
  bool ReadLength(std::uint32_t& value);
  bool ReadBlock(std::string_view& block);

  std::string_view rest;
  Kind kind = Kind::End;
  std::uint64_t tick = 0;
  std::uint8_t status = 0;
  std::uint8_t data1 = 0;
  std::uint8_t data2 = 0;
  std::uint8_t runningStatus = 0;
  std::uint32_t tempo = 0;
  std::string_view payload;
};

}  // namespace brevant
