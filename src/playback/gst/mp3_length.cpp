#include "playback/gst/mp3_length.h"

#include <mpg123.h>

#include <memory>

namespace brevant {

std::optional<double> MeasureMp3Length(const std::string& nativePath) {
  struct TCRelease {
    void operator()(mpg123_handle* handle) const { mpg123_delete(handle); }
  };
  const std::unique_ptr<mpg123_handle, TCRelease> handle(mpg123_new(nullptr, nullptr));
  if (!handle) return std::nullopt;
  mpg123_param(handle.get(), MPG123_ADD_FLAGS, MPG123_QUIET, 0.0);
  // The pipeline plays the encoder's padding too, and the length is that of what sounds.
  mpg123_param(handle.get(), MPG123_REMOVE_FLAGS, MPG123_GAPLESS, 0.0);
  // However long a tag or a damage is, the frames behind it are found.
  mpg123_param(handle.get(), MPG123_RESYNC_LIMIT, -1, 0.0);
  if (mpg123_open(handle.get(), nativePath.c_str()) != MPG123_OK) return std::nullopt;
  long rate = 0;
  int channels = 0;
  int encoding = 0;
  if (mpg123_getformat(handle.get(), &rate, &channels, &encoding) != MPG123_OK || rate <= 0)
    return std::nullopt;
  if (mpg123_scan(handle.get()) != MPG123_OK) return std::nullopt;
  const off_t samples = mpg123_length(handle.get());
  if (samples <= 0) return std::nullopt;
  return static_cast<double>(samples) / static_cast<double>(rate);
}

}  // namespace brevant
