// Measures with the player itself, for a back end that has no silent probe: each song sounds for a moment.
#pragma once

#include <string_view>

#include "playback/length_probe.h"
#include "playback/player.h"

namespace brevant {

class TCPlayerLengthProbe final : public TCLengthProbe {
 public:
  explicit TCPlayerLengthProbe(TCPlayer& soundPlayer) : player(soundPlayer) {}

  void Open(std::u16string_view path) override {
    player.LoadUrl(path);
    player.Play();
  }
  [[nodiscard]] int GetDurationSeconds() const override { return player.GetDurationSeconds(); }
  void Close() override { player.Stop(); }

 private:
  TCPlayer& player;
};

}  // namespace brevant
