// What the transport decides, without doing it: pure functions over what it is told. TCTransport carries the
// answers out.
#pragma once

#include <cstdint>

#include "model/set_list_store.h"

namespace brevant {

enum class TCTickAction {
  Wait,         // nothing to do until the next poll
  MarkStarted,  // the sound has begun
  EndSong,      // the song ended, or the player itself stopped it
};

// Asked on every poll while a song is playing. `started`: the position has been seen to move since the last
// Play. `position`: seconds, exactly 0.0 when nothing sounds.
[[nodiscard]] TCTickAction DecideTick(bool started, double position);

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
