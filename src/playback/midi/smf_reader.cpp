#include "playback/midi/smf_reader.h"

#include <algorithm>
#include <cmath>
#include <functional>
#include <queue>
#include <utility>

#include "playback/midi/smf_track.h"

namespace brevant {

namespace {

constexpr std::size_t kChunkHeadBytes = 8;
constexpr std::size_t kHeaderBytes = 6;
// The header counts tracks in 16 bits.
constexpr std::size_t kMaxTracks = 0xFFFF;
constexpr double kDefaultTempo = 500'000.0;  // microseconds per quarter: 120 a minute

std::uint32_t BigEndian(std::string_view bytes) {
  std::uint32_t value = 0;
  for (const char byte : bytes) value = value << 8 | static_cast<std::uint8_t>(byte);
  return value;
}

std::uint32_t LittleEndian32(std::string_view bytes) {
  std::uint32_t value = 0;
  for (std::size_t i = 4; i-- > 0;) value = value << 8 | static_cast<std::uint8_t>(bytes[i]);
  return value;
}

// The MIDI file inside `RIFF....RMID`; other files as they are.
std::string_view Unwrap(std::string_view bytes) {
  if (bytes.substr(0, 4) != "RIFF") return bytes;
  bytes.remove_prefix(std::min<std::size_t>(bytes.size(), 12));
  while (bytes.size() >= kChunkHeadBytes) {
    const bool isData = bytes.substr(0, 4) == "data";
    const std::size_t size = LittleEndian32(bytes.substr(4, 4));
    bytes.remove_prefix(kChunkHeadBytes);
    if (isData) return bytes.substr(0, size);
    const std::size_t padded = size + size % 2;
    if (padded >= bytes.size()) break;
    bytes.remove_prefix(padded);
  }
  return {};
}

struct TCHeader {
  std::uint32_t format = 0;
  double ticksPerQuarter = 0.0;     // 0 with SMPTE time
  double nanosecondsPerTick = 0.0;  // SMPTE time only
};

// `field`: the six bytes of the header chunk. Empty when time would stand still.
std::optional<TCHeader> ReadHeader(std::string_view field) {
  TCHeader header;
  header.format = BigEndian(field.substr(0, 2));
  const std::uint32_t division = BigEndian(field.substr(4, 2));
  if ((division & 0x8000) == 0) {
    header.ticksPerQuarter = division;
    return division == 0 ? std::nullopt : std::optional(header);
  }
  const std::uint32_t frames = 0x100 - (division >> 8);
  const std::uint32_t ticksPerFrame = division & 0xFF;
  if (ticksPerFrame == 0) return std::nullopt;
  // 29 stands for the 29.97 of colour television.
  const double framesPerSecond = frames == 29 ? 30'000.0 / 1001.0 : frames;
  header.nanosecondsPerTick = 1e9 / (framesPerSecond * ticksPerFrame);
  return header;
}

std::vector<std::string_view> FindTracks(std::string_view bytes) {
  std::vector<std::string_view> tracks;
  while (bytes.size() >= kChunkHeadBytes && tracks.size() < kMaxTracks) {
    const bool isTrack = bytes.substr(0, 4) == "MTrk";
    const std::size_t size = BigEndian(bytes.substr(4, 4));
    bytes.remove_prefix(kChunkHeadBytes);
    if (isTrack) tracks.push_back(bytes.substr(0, size));
    bytes.remove_prefix(std::min(size, bytes.size()));
  }
  return tracks;
}

// Turns ticks, which must not go back, into time under the tempo of the moment.
class TCClock {
 public:
  TCClock(const TCHeader& fileHeader, std::int64_t start)
      : header(fileHeader), anchorTime(static_cast<double>(start)) {
    SetTempo(0, kDefaultTempo);
  }

  [[nodiscard]] std::int64_t TimeOf(std::uint64_t tick) const {
    const double time = anchorTime + static_cast<double>(tick - anchorTick) * nanosecondsPerTick;
    return static_cast<std::int64_t>(std::llround(std::min(time, static_cast<double>(kMidiMaxNanoseconds))));
  }

  void SetTempo(std::uint64_t tick, double microsecondsPerQuarter) {
    anchorTime += static_cast<double>(tick - anchorTick) * nanosecondsPerTick;
    anchorTick = tick;
    nanosecondsPerTick = header.ticksPerQuarter == 0.0
                             ? header.nanosecondsPerTick
                             : microsecondsPerQuarter * 1000.0 / header.ticksPerQuarter;
  }

 private:
  TCHeader header;
  double anchorTime = 0.0;
  std::uint64_t anchorTick = 0;
  double nanosecondsPerTick = 0.0;
};

void Append(TCMidiSong& song, const TCSmfTrack& track, std::int64_t time) {
  TCMidiEvent event;
  event.nanoseconds = time;
  event.status = track.Status();
  if (track.CurrentKind() == TCSmfTrack::Kind::Sysex) {
    event.sysexBegin = static_cast<std::uint32_t>(song.sysex.size());
    event.sysexSize = static_cast<std::uint16_t>(track.Sysex().size());
    song.sysex += track.Sysex();
  } else {
    event.data1 = track.Data1();
    event.data2 = track.Data2();
  }
  song.events.push_back(event);
}

// Plays `tracks` side by side, beginning where the song ends so far.
void AppendTogether(TCMidiSong& song, const TCHeader& header, const std::vector<std::string_view>& tracks) {
  TCClock clock(header, song.nanoseconds);
  std::vector<TCSmfTrack> cursors;
  cursors.reserve(tracks.size());
  // Of events at the same tick the lower track's come first: it holds the tempo and the set-up.
  using Turn = std::pair<std::uint64_t, std::size_t>;
  std::priority_queue<Turn, std::vector<Turn>, std::greater<>> turns;
  for (const std::string_view bytes : tracks) {
    cursors.emplace_back(bytes);
    turns.emplace(cursors.back().Tick(), cursors.size() - 1);
  }
  while (!turns.empty()) {
    const std::size_t turn = turns.top().second;
    turns.pop();
    TCSmfTrack& track = cursors[turn];
    const std::int64_t time = clock.TimeOf(track.Tick());
    song.nanoseconds = std::max(song.nanoseconds, time);
    if (time >= kMidiMaxNanoseconds) return;
    if (track.CurrentKind() == TCSmfTrack::Kind::End) continue;
    if (track.CurrentKind() == TCSmfTrack::Kind::Tempo) {
      clock.SetTempo(track.Tick(), track.MicrosecondsPerQuarter());
    } else {
      Append(song, track, time);
    }
    track.Next();
    turns.emplace(track.Tick(), turn);
  }
}

}  // namespace

bool LooksLikeMidi(std::string_view head) {
  return head.substr(0, 4) == "MThd" ||
         (head.substr(0, 4) == "RIFF" && head.size() >= 12 && head.substr(8, 4) == "RMID");
}

std::optional<TCMidiSong> ReadMidi(std::string_view bytes) {
  if (bytes.size() > kMidiMaxBytes || !LooksLikeMidi(bytes)) return std::nullopt;
  bytes = Unwrap(bytes);
  if (bytes.size() < kChunkHeadBytes + kHeaderBytes || bytes.substr(0, 4) != "MThd") return std::nullopt;
  const std::size_t headerSize = BigEndian(bytes.substr(4, 4));
  if (headerSize < kHeaderBytes) return std::nullopt;
  bytes.remove_prefix(kChunkHeadBytes);
  const std::optional<TCHeader> header = ReadHeader(bytes.substr(0, kHeaderBytes));
  bytes.remove_prefix(std::min(headerSize, bytes.size()));
  const std::vector<std::string_view> tracks = FindTracks(bytes);
  if (!header || tracks.empty()) return std::nullopt;

  TCMidiSong song;
  // The tracks of format 2 are pieces of their own, played one after another; all others sound together.
  if (header->format == 2) {
    for (const std::string_view track : tracks) AppendTogether(song, *header, {track});
  } else {
    AppendTogether(song, *header, tracks);
  }
  return song;
}

}  // namespace brevant
