#include "playback/gst/gst_length_probe.h"

#include <utility>

namespace brevant {

namespace {

TCGstPlayerOptions Silent(TCGstPlayerOptions options) {
  options.use = TCGstUse::Measuring;
  return options;
}

}  // namespace

TCGstLengthProbe::TCGstLengthProbe(TCNativePaths nativePaths, TCGstPlayerOptions chosen)
    : paths(std::move(nativePaths)), options(Silent(std::move(chosen))) {}

void TCGstLengthProbe::Open(std::u16string_view path) {
  if (song == path) return;
  song = path;
  if (!loader) loader.emplace(paths, options);
  loader->LoadUrl(path);
}

int TCGstLengthProbe::GetDurationSeconds() const {
  return song ? loader->GetDurationSeconds() : -1;
}

void TCGstLengthProbe::Close() {
  song.reset();
}

}  // namespace brevant
