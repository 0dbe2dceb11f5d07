// Reads lengths on GStreamer, by a back end of its own that only ever loads: its lengths are the player's, by
// construction, and neither the player nor a sound device is touched. User-interface thread; every call takes
// a mutex for a moment, whatever the disk does.
#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "playback/gst/gst_player.h"
#include "playback/length_probe.h"

namespace brevant {

class TCGstLengthProbe final : public TCLengthProbe {
 public:
  // Of the options only the limits of time count. Nothing is started before the first song is opened.
  explicit TCGstLengthProbe(TCNativePaths paths, TCGstPlayerOptions options = {});

  void Open(std::u16string_view path) override;
  [[nodiscard]] int GetDurationSeconds() const override;
  // What is being read is read to its end or its time limit, and then dropped.
  void Close() override;

 private:
  const TCNativePaths paths;
  const TCGstPlayerOptions options;
  std::optional<TCGstPlayer> loader;
  std::optional<std::u16string> song;  // empty: nothing is open
};

}  // namespace brevant
