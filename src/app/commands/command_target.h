// Who carries commands out, as the menus, keys and bars see it. Implemented by TCCommandRouter; tests put
// their own in its place.
#pragma once

#include "resources/command_id.h"

namespace brevant {

class TCCommandTarget {
 public:
  virtual ~TCCommandTarget() = default;

  // Whether anybody carries `command` out. What nobody does is not shown and its key is not bound.
  [[nodiscard]] virtual bool Handles(TCCommandId command) const = 0;
  virtual void OnCommand(TCCommandId command) = 0;
  // The check mark; false for every command without one.
  [[nodiscard]] virtual bool IsChecked(TCCommandId command) const = 0;
};

}  // namespace brevant
