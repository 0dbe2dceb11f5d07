#include "playback/gst/midi_synth.h"

#include "playback/midi/soundfont_search.h"

namespace brevant {

namespace {

// Full chords of a dense song stay below the limiter of the sound card.
constexpr double kGain = 0.4;

}  // namespace

std::shared_ptr<TCMidiSynth> TCMidiSynth::Load(const std::vector<std::string>& soundfonts) {
  // A song that asks for an instrument the soundfont lacks is no news for the terminal.
  for (const int level : {FLUID_PANIC, FLUID_ERR, FLUID_WARN, FLUID_INFO, FLUID_DBG}) {
    fluid_set_log_function(level, nullptr, nullptr);
  }
  std::shared_ptr<TCMidiSynth> made(new TCMidiSynth);
  made->settings = new_fluid_settings();
  if (made->settings == nullptr) return nullptr;
  fluid_settings_setnum(made->settings, "synth.sample-rate", kRate);
  fluid_settings_setnum(made->settings, "synth.gain", kGain);
  made->synth = new_fluid_synth(made->settings);
  if (made->synth == nullptr) return nullptr;
  for (const std::string& file : soundfonts) {
    if (fluid_synth_sfload(made->synth, file.c_str(), 1) != FLUID_FAILED) return made;
  }
  return nullptr;
}

TCMidiSynth::~TCMidiSynth() {
  delete_fluid_synth(synth);
  delete_fluid_settings(settings);
}

TCMidiSynth::Claim TCMidiSynth::Take() {
  const std::lock_guard lock(mutex);
  return ++holder;
}

bool TCMidiSynth::With(Claim claim, const std::function<void(fluid_synth_t&)>& work) {
  const std::lock_guard lock(mutex);
  if (claim != holder) return false;
  work(*synth);
  return true;
}

std::shared_ptr<TCMidiSynth> TCSynthStore::Get() {
  const std::lock_guard lock(mutex);
  if (!synth) synth = TCMidiSynth::Load(FindSoundfonts(preferred, dataFolders));
  return synth;
}

}  // namespace brevant
