// A run that measures the lengths of many songs, one song a tick, and stores them all at its end. Owned by
// the transport; user-interface thread only.
#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "model/app_record.h"
#include "model/message_display.h"
#include "playback/length_probe.h"

namespace brevant {

enum class TCTimeScope { AllSongs, CurrentPlaylist };

enum class TCTimeRunStep { Measuring, Finished, FinishedWithChanges };

class TCTimeRun {
 public:
  // `lengthProbe` may be null: there is nothing to measure with, and no run starts.
  TCTimeRun(TCAppRecord& appRecord, TCLengthProbe* lengthProbe, TCMessageDisplay& messageDisplay);

  // Replaces a run that is under way. A scope without songs starts none.
  void Start(TCTimeScope timeScope);

  // Only while pending. Looks at one song: says its time in the message display once it is known, else waits
  // for the next tick. After the last one the times are stored in the songs that still have the measured path
  // and their playlists' totals are computed anew.
  TCTimeRunStep Step();

  // Ends the run with all times as they were.
  void Cancel();

  [[nodiscard]] bool Pending() const { return timesPending; }
  [[nodiscard]] std::size_t Measured() const { return index; }
  [[nodiscard]] std::size_t Count() const { return paths.size(); }

 private:
  void Record(std::int32_t seconds);
  [[nodiscard]] bool StoreTimes();
  [[nodiscard]] std::vector<TCPlayList*> PlaylistsOfScope();

  TCAppRecord& record;
  TCLengthProbe* probe = nullptr;
  TCMessageDisplay& messages;

  std::vector<std::u16string> paths;  // in model order
  std::vector<std::u16string> times;  // of the paths measured so far
  std::size_t index = 0;              // of the song being measured
  bool loadNext = false;              // the song is not opened yet
  bool timesPending = false;
  TCTimeScope scope = TCTimeScope::AllSongs;
};

}  // namespace brevant
