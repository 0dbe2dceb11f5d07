// FluidSynth, loaded when the first MIDI song asks for it: it brings some fifty libraries along, and the
// first window is not to wait for them. Its calls, without their prefix. Immutable once loaded; any thread.
#pragma once

#include <fluidsynth.h>

#include <optional>

namespace brevant {

struct TCFluidLibrary {
  // Empty when it is not installed. Never unloaded: what came along has threads of its own.
  [[nodiscard]] static std::optional<TCFluidLibrary> Load();

  decltype(fluid_set_log_function)* setLogFunction = nullptr;
  decltype(new_fluid_settings)* newSettings = nullptr;
  decltype(delete_fluid_settings)* deleteSettings = nullptr;
  decltype(fluid_settings_setnum)* settingsSetNum = nullptr;
  decltype(new_fluid_synth)* newSynth = nullptr;
  decltype(delete_fluid_synth)* deleteSynth = nullptr;
  decltype(fluid_synth_sfload)* loadSoundfont = nullptr;

  decltype(fluid_synth_system_reset)* systemReset = nullptr;
  decltype(fluid_synth_all_notes_off)* allNotesOff = nullptr;
  decltype(fluid_synth_count_midi_channels)* countMidiChannels = nullptr;
  decltype(fluid_synth_get_active_voice_count)* getActiveVoiceCount = nullptr;
  decltype(fluid_synth_write_float)* writeFloat = nullptr;

  decltype(fluid_synth_noteoff)* noteOff = nullptr;
  decltype(fluid_synth_noteon)* noteOn = nullptr;
  decltype(fluid_synth_key_pressure)* keyPressure = nullptr;
  decltype(fluid_synth_cc)* controlChange = nullptr;
  decltype(fluid_synth_program_change)* programChange = nullptr;
  decltype(fluid_synth_channel_pressure)* channelPressure = nullptr;
  decltype(fluid_synth_pitch_bend)* pitchBend = nullptr;
  decltype(fluid_synth_sysex)* sysex = nullptr;
};

// A synthesizer together with the library that it is played by.
struct TCFluidSynth {
  const TCFluidLibrary& library;
  fluid_synth_t* synth = nullptr;
};

}  // namespace brevant
