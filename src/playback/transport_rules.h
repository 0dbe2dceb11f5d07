// What the transport decides, without doing it: pure functions over what it is told. TCTransport carries the
// answers out.
#pragma once

#include <cstdint>

namespace brevant {

// What the poll knows while a song is playing.
struct TCTickInput {
  bool started = false;   // the position has been seen to move since the last Play
  double position = 0.0;  // seconds; exactly 0.0 when the song has ended
};

enum class TCTickAction {
  Wait,         // nothing to do until the next poll
  MarkStarted,  // the sound has begun
  EndSong,      // the song ended or was stopped by the player itself
};

[[nodiscard]] TCTickAction DecideTick(const TCTickInput& input);

struct TCAdvanceInput {
  bool autoSongAdvance = false;
  bool autoRecycle = false;
  bool hasNextSong = false;  // the current playlist holds a song behind the current one
};

enum class TCAdvance {
  Rest,  // the set has ended, or the musician advances by hand
  NextSong,
  NextPlaylist,  // its first song; after the last playlist of the last group the first of all
};

[[nodiscard]] TCAdvance DecideAdvance(const TCAdvanceInput& input);

// Where a step between playlists leads; `moves` is false when there is nowhere to go.
struct TCPlaylistStep {
  bool moves = false;
  std::int32_t group = 0;
  std::int32_t playlist = 0;
};

}  // namespace brevant
