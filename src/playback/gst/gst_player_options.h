// How a TCGstPlayer is set up.
#pragma once

#include <string>
#include <vector>

#include "playback/engine/player_machine.h"
#include "playback/gst/soundfont_search.h"

namespace brevant {

enum class TCGstUse {
  Playing,
  Measuring,  // only lengths are asked for: a MIDI file has one without a soundfont, and nothing is warmed up
};

struct TCGstPlayerOptions {
  TCGstUse use = TCGstUse::Playing;
  // Empty: the sound server, else the sound card. Otherwise a sink as on gst-launch's command line, such as
  // "fakesink sync=true" or "pulsesink server=...".
  std::string audioSink{};
  // A soundfont to be tried before those of the system.
  std::string soundfont{};
  std::string systemSoundfont = kSystemSoundfont;
  // Where soundfonts are looked for besides.
  std::vector<std::string> dataFolders = DataFoldersOfEnvironment();
  TCPlayerLimits limits{};
  // Seconds that the worker may take over one thing before another takes its place.
  double workerLimit = 1.0;
  // Seconds that the destructor waits for threads to leave before it goes without them.
  double closeLimit = 1.0;
};

}  // namespace brevant
