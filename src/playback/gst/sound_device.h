// Opens what the sound comes out of. Blocks as long as the sound server does; worker thread.
#pragma once

#include <string>

#include "playback/gst/gst_ref.h"

namespace brevant {

struct TCOpenedSink {
  TCGstOpenElement sink;  // in the READY state; null when nothing could be opened
  std::string detail;     // then: why
};

// `description` empty: the sound server when one answers, else the sound card when there is one. GStreamer's
// own choice would fall back to a sink that plays unheard. Otherwise a sink as on gst-launch's command line.
[[nodiscard]] TCOpenedSink OpenSink(const std::string& description);

}  // namespace brevant
