// Loudness, position and the repeat range of whatever song is loaded, by single keys. Works on the player
// alone; user-interface thread only.
#pragma once

#include "model/settings.h"
#include "playback/player.h"
#include "playback/repeat_range.h"

namespace brevant {

class TCVolumeAndSeek {
 public:
  // Without a player (null) every command is without effect; without fields (null) the repeat commands are.
  TCVolumeAndSeek(const TCSettings& options, TCPlayer* soundPlayer, TCRepeatFields* repeatFields);

  // One "VolumeStep" up or down; the player keeps the result within 0 to 100.
  void VolumeUp();
  void VolumeDown();

  // One time step on or back, as far as the song goes.
  void SeekForward();
  void SeekBack();

  // The play position, in whole seconds, becomes the begin or end of the repeat range.
  void SetRepeatBegin();
  void SetRepeatEnd();

 private:
  void ChangeVolume(std::int64_t difference);
  [[nodiscard]] std::int32_t WholeSeconds() const;

  const TCSettings& settings;
  TCPlayer* player = nullptr;
  TCRepeatFields* fields = nullptr;
};

}  // namespace brevant
