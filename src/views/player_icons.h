// The pictures on the player pane's controls. They draw themselves in the colours of the moment.
#pragma once

#include <QIcon>

namespace brevant {

struct TCPlayerIcons {
  QIcon play;
  QIcon pause;
  QIcon stop;
  QIcon volume;
};

}  // namespace brevant
