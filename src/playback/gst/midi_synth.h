// The one synthesizer that all MIDI songs are played with, kept loaded for the life of the player because its
// soundfont takes time to read. Any thread; one song at a time holds it.
#pragma once

#include <cstdint>
#include <functional>
#include <memory>
#include <mutex>
#include <string>
#include <utility>
#include <vector>

#include "playback/gst/fluid_library.h"

namespace brevant {

class TCMidiSynth {
 public:
  static constexpr int kRate = 44100;  // frames per second, two channels

  // With the first of `soundfonts` that can be loaded; null when none can, or FluidSynth itself cannot.
  [[nodiscard]] static std::shared_ptr<TCMidiSynth> Load(const std::vector<std::string>& soundfonts);
  ~TCMidiSynth();

  TCMidiSynth(const TCMidiSynth&) = delete;
  TCMidiSynth& operator=(const TCMidiSynth&) = delete;

  // Takes the synth away from whoever held it; the song before, whose pipeline may still be on its way out,
  // finds its own claim void.
  using Claim = std::uint64_t;
  [[nodiscard]] Claim Take();

  // Runs `work` unless the claim is void; returns whether it ran.
  bool With(Claim claim, const std::function<void(const TCFluidSynth&)>& work);

 private:
  explicit TCMidiSynth(const TCFluidLibrary& loadedLibrary) : library(loadedLibrary) {}

  const TCFluidLibrary library;
  std::mutex mutex;
  Claim holder = 0;
  fluid_settings_t* settings = nullptr;
  fluid_synth_t* synth = nullptr;
};

// Loads the synth when the first MIDI song asks for it. Blocks as long as the disk does; any thread.
class TCSynthStore {
 public:
  TCSynthStore(std::vector<std::string> preferredSoundfonts, std::vector<std::string> folders)
      : preferred(std::move(preferredSoundfonts)), dataFolders(std::move(folders)) {}

  // Null when there is no soundfont; asked again, it looks again.
  [[nodiscard]] std::shared_ptr<TCMidiSynth> Get();

 private:
  const std::vector<std::string> preferred;
  const std::vector<std::string> dataFolders;
  std::mutex mutex;
  std::shared_ptr<TCMidiSynth> synth;
};

}  // namespace brevant
