#include "playback/gst/fluid_library.h"

#include <dlfcn.h>

namespace brevant {

namespace {

// The binary interface of the headers that this is compiled with.
static_assert(FLUIDSYNTH_VERSION_MAJOR == 2);
constexpr const char* kFileName = "libfluidsynth.so.3";

class TCSymbols {
 public:
  explicit TCSymbols(void* openLibrary) : library(openLibrary) {}

  template <class Function>
  void Find(Function*& function, const char* name) {
    function = reinterpret_cast<Function*>(dlsym(library, name));
    complete = complete && function != nullptr;
  }

  [[nodiscard]] bool Complete() const { return complete; }

 private:
  void* library = nullptr;
  bool complete = true;
};

}  // namespace

std::optional<TCFluidLibrary> TCFluidLibrary::Load() {
  void* opened = dlopen(kFileName, RTLD_NOW | RTLD_LOCAL);
  if (opened == nullptr) return std::nullopt;
  TCSymbols symbols(opened);
  TCFluidLibrary library;
  symbols.Find(library.setLogFunction, "fluid_set_log_function");
  symbols.Find(library.newSettings, "new_fluid_settings");
  symbols.Find(library.deleteSettings, "delete_fluid_settings");
  symbols.Find(library.settingsSetNum, "fluid_settings_setnum");
  symbols.Find(library.newSynth, "new_fluid_synth");
  symbols.Find(library.deleteSynth, "delete_fluid_synth");
  symbols.Find(library.loadSoundfont, "fluid_synth_sfload");
  symbols.Find(library.systemReset, "fluid_synth_system_reset");
  symbols.Find(library.allNotesOff, "fluid_synth_all_notes_off");
  symbols.Find(library.countMidiChannels, "fluid_synth_count_midi_channels");
  symbols.Find(library.getActiveVoiceCount, "fluid_synth_get_active_voice_count");
  symbols.Find(library.writeFloat, "fluid_synth_write_float");
  symbols.Find(library.noteOff, "fluid_synth_noteoff");
  symbols.Find(library.noteOn, "fluid_synth_noteon");
  symbols.Find(library.keyPressure, "fluid_synth_key_pressure");
  symbols.Find(library.controlChange, "fluid_synth_cc");
  symbols.Find(library.programChange, "fluid_synth_program_change");
  symbols.Find(library.channelPressure, "fluid_synth_channel_pressure");
  symbols.Find(library.pitchBend, "fluid_synth_pitch_bend");
  symbols.Find(library.sysex, "fluid_synth_sysex");
  if (!symbols.Complete()) return std::nullopt;
  return library;
}

}  // namespace brevant
