// MIDI files: whatever the bytes, time never goes back, exclusive messages lie within their store, and the
// song is no larger than its file.

#include <cstddef>
#include <cstdint>
#include <string_view>

#include "must_hold.h"
#include "playback/midi/smf_reader.h"

using namespace brevant;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string_view bytes(reinterpret_cast<const char*>(data), size);
  const std::optional<TCMidiSong> song = ReadMidi(bytes);
  if (!song) return 0;
  MustHold(LooksLikeMidi(bytes), "what can be read is recognised");
  // The shortest event is a delta time and one data byte.
  MustHold(song->events.size() <= size / 2, "no event comes from nowhere");
  MustHold(song->sysex.size() <= size, "no exclusive byte comes from nowhere");
  std::int64_t last = 0;
  for (const TCMidiEvent& event : song->events) {
    MustHold(event.nanoseconds >= last, "time does not go back");
    MustHold(event.data1 < 0x80 && event.data2 < 0x80 && event.status >= 0x80, "messages are well formed");
    MustHold(event.sysexBegin + event.sysexSize <= song->sysex.size(), "exclusive bytes are stored");
    last = event.nanoseconds;
  }
  MustHold(last <= song->nanoseconds && song->nanoseconds <= kMidiMaxNanoseconds,
           "the song ends after its events");
  return 0;
}
