// Finds a song's file on the disk and looks into it. Blocks as long as the disk does, so it runs on a thread
// of its own.
#pragma once

#include <string>

#include "playback/engine/player_events.h"
#include "playback/gst/midi_synth.h"
#include "text/native_path.h"

namespace brevant {

// The note says what became of it: FileOpened, FileUnreadable or NoSoundfont. `synths` gets the synth ready
// that a MIDI song sounds through; null when it is not to sound.
[[nodiscard]] TCPlayerNote OpenMedia(const std::u16string& url, const TCNativePaths& paths,
                                     TCSynthStore* synths);

}  // namespace brevant
