// The pictures on the player pane's controls.
#pragma once

#include <QColor>
#include <QIcon>

namespace brevant {

struct TCPlayerIcons {
  QIcon play;
  QIcon pause;
  QIcon stop;
  QIcon volume;
};

// Plain shapes in one colour, so that they can be seen on any background.
[[nodiscard]] TCPlayerIcons DrawnPlayerIcons(const QColor& colour);

}  // namespace brevant
