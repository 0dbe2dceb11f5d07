// What the transport decides, without doing it: pure functions over what it is told. TCTransport carries the
// answers out.
#pragma once

#include <cstdint>

#include "model/set_list_store.h"

namespace brevant {

enum class TCTickAction {
  Wait,               // nothing to do until the next tick
  MarkStarted,        // the sound has begun
  JumpToRepeatBegin,  // the song ran past the end of the repeat range
  EndSong,            // the song ended, or the player itself stopped it
};

struct TCTickInput {
  bool started = false;           // the position has been seen to move since the last Play
  double position = 0.0;          // seconds, exactly 0.0 when nothing sounds
  bool autoPlayPlayList = false;  // the repeat range is held only while this is on
  std::int32_t repeatEnd = 0;     // seconds; 0: no range is set
};

// Asked on every tick while a song is playing.
[[nodiscard]] TCTickAction DecideTick(const TCTickInput& input);

enum class TCAdvance {
  Rest,          // the set has ended, or the musician goes on by hand
  NextSong,      // of the same playlist
  NextPlaylist,  // its first song; behind the last playlist of all the first one of all
};

struct TCAdvanceInput {
  bool autoSongAdvance = false;
  bool autoRecycle = false;
  bool hasNextSong = false;  // the current playlist holds a song behind the current one
};

// Where an ended song leads.
[[nodiscard]] TCAdvance DecideAdvance(const TCAdvanceInput& input);

// Where a step from one playlist to its neighbour leads; `moves` is false when there is nowhere to go.
struct TCPlaylistStep {
  bool moves = false;
  std::int32_t group = 0;
  std::int32_t playlist = 0;
};

// Behind the last playlist of a group comes the first one of the next group.
[[nodiscard]] TCPlaylistStep StepToNextPlaylist(const TCSetListStore& store);
// Before the first playlist of a group comes the first, not the last, one of the group before.
[[nodiscard]] TCPlaylistStep StepToPriorPlaylist(const TCSetListStore& store);

}  // namespace brevant
