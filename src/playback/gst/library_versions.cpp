#include "playback/gst/library_versions.h"

#include <fluidsynth.h>
#include <gst/gst.h>

namespace brevant {

std::vector<std::string> LibraryVersions() {
  guint major = 0;
  guint minor = 0;
  guint micro = 0;
  guint nano = 0;
  gst_version(&major, &minor, &micro, &nano);
  std::string gstreamer = "GStreamer " + std::to_string(major);
  gstreamer += "." + std::to_string(minor) + "." + std::to_string(micro);

  // FluidSynth is not loaded before it is needed, and mpg123 of this age cannot be asked.
  return {gstreamer, "FluidSynth " FLUIDSYNTH_VERSION, "mpg123"};
}

}  // namespace brevant
