// Shows the lyric lines of the playing song in the message display, a few at a time, each in its singer's
// colour, half a second ahead of the music. Driven by the transport's tick; user-interface thread only.
#pragma once

#include <cstdint>
#include <string_view>

#include "model/app_record.h"
#include "model/message_display.h"

namespace brevant {

class TCLyricDisplay {
 public:
  TCLyricDisplay(const TCAppRecord& appRecord, TCMessageDisplay& messageDisplay);

  // `seconds`: the play position, truncated. `url`: the loaded song. `lastIndex`: the line that was shown
  // last, -1 to draw whatever is current; answers the line shown now. Nothing is redrawn while that stays the
  // same, and the pane keeps the last lines while none is current.
  [[nodiscard]] std::int32_t ShowLyricsAt(std::int32_t seconds, std::u16string_view url,
                                          std::int32_t lastIndex);

 private:
  const TCAppRecord& record;
  TCMessageDisplay& messages;
};

}  // namespace brevant
