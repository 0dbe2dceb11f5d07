// What the player, its workers and their jobs have in common. Held by shared pointers, so that a thread stuck
// in a dead sound server keeps what it uses even after the player is gone.
#pragma once

#include <utility>

#include "playback/engine/player_desk.h"
#include "playback/gst/gst_player_options.h"
#include "playback/gst/midi_synth.h"
#include "text/job_threads.h"
#include "text/native_path.h"

namespace brevant {

struct TCGstShared {
  TCGstShared(TCNativePaths nativePaths, const TCGstPlayerOptions& chosen)
      : paths(std::move(nativePaths)),
        options(chosen),
        synths({chosen.soundfont, chosen.systemSoundfont}, chosen.dataFolders) {}

  const TCNativePaths paths;
  const TCGstPlayerOptions options;
  TCPlayerDesk desk;
  TCJobThreads jobs;
  TCSynthStore synths;
};

}  // namespace brevant
