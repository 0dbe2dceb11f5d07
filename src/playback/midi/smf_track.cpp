#include "playback/midi/smf_track.h"

namespace brevant {

namespace {

constexpr std::uint8_t kSysex = 0xF0;
constexpr std::uint8_t kSysexEscape = 0xF7;
constexpr std::uint8_t kFirstRealTime = 0xF8;
constexpr std::uint8_t kMeta = 0xFF;
constexpr std::uint8_t kMetaTrackEnd = 0x2F;
constexpr std::uint8_t kMetaTempo = 0x51;

// Longer exclusive messages are dumps for one maker's hardware, nothing a synth here understands.
constexpr std::size_t kMaxSysexBytes = 0xFFFF;

}  // namespace

TCSmfTrack::TCSmfTrack(std::string_view bytes) : rest(bytes) {
  Next();
}

void TCSmfTrack::Next() {
  for (;;) {
    const std::uint64_t before = tick;
    std::uint32_t delta = 0;
    Step step = Step::Damage;
    if (ReadLength(delta)) {
      tick += delta;
      step = ReadEvent();
    }
    if (step == Step::Event) return;
    if (step == Step::NothingToPlay) continue;
    if (step == Step::Damage) tick = before;
    kind = Kind::End;
    rest = {};
    return;
  }
}

TCSmfTrack::Step TCSmfTrack::ReadEvent() {
  std::uint8_t first = 0;
  if (rest.empty()) return Step::Damage;
  if (static_cast<std::uint8_t>(rest.front()) < 0x80) {
    if (runningStatus == 0) return Step::Damage;
    return ReadChannel(runningStatus);
  }
  if (!ReadByte(first)) return Step::Damage;
  if (first < kSysex) return ReadChannel(first);
  if (first == kMeta) return ReadMeta();
  if (first == kSysex || first == kSysexEscape) return ReadSysex(first);
  // Real-time bytes have no business in a file but do no harm; the others would be followed by data whose
  // length nobody can know.
  return first >= kFirstRealTime ? Step::NothingToPlay : Step::Damage;
}

TCSmfTrack::Step TCSmfTrack::ReadChannel(std::uint8_t message) {
  const bool one = (message & 0xE0) == 0xC0;  // program change and channel pressure
  std::uint8_t second = 0;
  std::uint8_t third = 0;
  if (!ReadByte(second) || (!one && !ReadByte(third))) return Step::Damage;
  // Kept through meta and exclusive events too: many writers rely on it, and no sound file suffers.
  runningStatus = message;
  kind = Kind::Channel;
  status = message;
  data1 = second & 0x7F;
  data2 = third & 0x7F;
  return Step::Event;
}

TCSmfTrack::Step TCSmfTrack::ReadSysex(std::uint8_t message) {
  std::string_view block;
  if (!ReadBlock(block)) return Step::Damage;
  // Escapes carry pieces of messages or raw bytes for a cable; a synth has no use for them.
  if (message == kSysexEscape || block.empty() || block.size() > kMaxSysexBytes) return Step::NothingToPlay;
  if (static_cast<std::uint8_t>(block.back()) == kSysexEscape) block.remove_suffix(1);
  kind = Kind::Sysex;
  status = kSysex;
  payload = block;
  return Step::Event;
}

TCSmfTrack::Step TCSmfTrack::ReadMeta() {
  std::uint8_t type = 0;
  std::string_view block;
  if (!ReadByte(type) || !ReadBlock(block)) return type == kMetaTrackEnd ? Step::TrackEnd : Step::Damage;
  if (type == kMetaTrackEnd) return Step::TrackEnd;
  if (type != kMetaTempo || block.size() < 3) return Step::NothingToPlay;
  tempo = 0;
  for (const char byte : block.substr(0, 3)) tempo = tempo << 8 | static_cast<std::uint8_t>(byte);
  // No time at all per quarter is nonsense; the old tempo goes on.
  if (tempo == 0) return Step::NothingToPlay;
  kind = Kind::Tempo;
  return Step::Event;
}

bool TCSmfTrack::ReadByte(std::uint8_t& value) {
  if (rest.empty()) return false;
  value = static_cast<std::uint8_t>(rest.front());
  rest.remove_prefix(1);
  return true;
}

bool TCSmfTrack::ReadLength(std::uint32_t& value) {
  value = 0;
  for (int count = 0; count < 4; ++count) {
    std::uint8_t byte = 0;
    if (!ReadByte(byte)) return false;
    value = value << 7 | (byte & 0x7Fu);
    if ((byte & 0x80) == 0) return true;
  }
  return false;
}

bool TCSmfTrack::ReadBlock(std::string_view& block) {
  std::uint32_t size = 0;
  if (!ReadLength(size) || size > rest.size()) return false;
  block = rest.substr(0, size);
  rest.remove_prefix(size);
  return true;
}

}  // namespace brevant
