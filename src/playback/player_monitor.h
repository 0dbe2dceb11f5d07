// What a player pane shows beside the sound: phase, times, and what the sound system or a broken file has to
// say. Read by the pane on the user-interface thread; never blocks.
#pragma once

#include <string>

namespace brevant {

enum class TCPlayerPhase { Empty, Loading, Stopped, Playing, Paused, Failed };

// What the pane has to tell. The pane chooses the words; `detail` below carries the back end's own.
enum class TCPlayerNotice {
  None,
  NoSoundDevice,  // nothing to sound through; a Play works again once there is a device
  NoSoundfont,    // a MIDI file, and no soundfont on this machine
  CannotPlay,     // the file is no media that can be played
  FileBrokeOff,   // reading stopped in the middle: the song ended early
  LoadTimedOut,   // the file did not open within the load time
};

struct TCPlayerSnapshot {
  TCPlayerPhase phase = TCPlayerPhase::Empty;
  std::u16string url;            // as LoadUrl was given it
  double positionSeconds = 0.0;  // as GetPosition answers
  double durationSeconds = 0.0;  // 0 while unknown
  int volume = 100;              // 0 to 100
  TCPlayerNotice notice = TCPlayerNotice::None;
  std::string detail;  // UTF-8, the back end's own words; may be empty
};

class TCPlayerMonitor {
 public:
  virtual ~TCPlayerMonitor() = default;
  [[nodiscard]] virtual TCPlayerSnapshot Snapshot() const = 0;
};

}  // namespace brevant
