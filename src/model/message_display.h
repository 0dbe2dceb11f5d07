// Where information and error lines go instead of a message box: whoever has something to say on stage says
// it here. Called on the user-interface thread.
#pragma once

#include <cstdint>
#include <string_view>

#include "resources/string_table.h"

namespace brevant {

// Who a line belongs to; the pane turns it into a colour, so that a change of black and white recolours what
// stands there.
enum class TCLineRole : std::uint8_t { Normal, SingerM, SingerF, SingerD };

class TCMessageDisplay {
 public:
  virtual ~TCMessageDisplay() = default;

  virtual void Clear() = 0;
  virtual void Append(std::u16string_view text) = 0;
  // Of the lines appended from now on, until the next call or Clear, which returns to Normal.
  virtual void SetLineRole(TCLineRole role) = 0;
  // The lines appended since the last Clear are read from the first on: where there is no room for all of
  // them it is the last ones that are out of view. Until the next Append, which has the newest in view again.
  virtual void KeepFirstInView() = 0;

  void AppendMessage(TCTextId id);
  // The message text, one blank, `detail`.
  void AppendMessage(TCTextId id, std::u16string_view detail);
};

}  // namespace brevant
