#include "playback/gst/midi_synth.h"

#include <optional>

#include "playback/gst/soundfont_search.h"

namespace brevant {

namespace {

// Full chords of a dense song stay below the limiter of the sound card.
constexpr double kGain = 0.4;

}  // namespace

std::shared_ptr<TCMidiSynth> TCMidiSynth::Load(const std::vector<std::string>& soundfonts) {
  const std::optional<TCFluidLibrary> library = TCFluidLibrary::Load();
  if (!library) return nullptr;
  // A song that asks for an instrument the soundfont lacks is no news for the terminal.
  for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG}) {
    library->setLogFunction(level, nullptr, nullptr);
  }
  std::shared_ptr<TCMidiSynth> made(new TCMidiSynth(*library));
  made->settings = library->newSettings();
  if (made->settings == nullptr) return nullptr;
  library->settingsSetNum(made->settings, "synth.sample-rate", kRate);
  library->settingsSetNum(made->settings, "synth.gain", kGain);
  made->synth = library->newSynth(made->settings);
  if (made->synth == nullptr) return nullptr;
  for (const std::string& file : soundfonts) {
    if (library->loadSoundfont(made->synth, file.c_str(), 1) != FLUID_FAILED) return made;
  }
  return nullptr;
}

TCMidiSynth::~TCMidiSynth() {
  library.deleteSynth(synth);
  library.deleteSettings(settings);
}

TCMidiSynth::Claim TCMidiSynth::Take() {
  const std::lock_guard lock(mutex);
  return ++holder;
}

bool TCMidiSynth::With(Claim claim, const std::function<void(const TCFluidSynth&)>& work) {
  const std::lock_guard lock(mutex);
  if (claim != holder) return false;
  work({library, synth});
  return true;
}

std::shared_ptr<TCMidiSynth> TCSynthStore::Get() {
  const std::lock_guard lock(mutex);
  if (!synth) synth = TCMidiSynth::Load(FindSoundfonts(preferred, dataFolders));
  return synth;
}

}  // namespace brevant
