// Feeds a MIDI song into a pipeline whose address is "appsrc://".
#pragma once

#include <gst/app/gstappsrc.h>

#include <memory>

#include "playback/gst/midi_synth.h"
#include "playback/midi/smf_reader.h"

namespace brevant {

inline constexpr const char* kMidiSourceUri = "appsrc://";

// To be called when the pipeline sets its source up. `source` keeps what it needs alive.
void FeedMidi(GstAppSrc* source, std::shared_ptr<TCMidiSynth> synth, std::shared_ptr<const TCMidiSong> song);

}  // namespace brevant
