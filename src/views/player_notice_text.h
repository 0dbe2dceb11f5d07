// What the player pane says about sound system and file, in words for a musician on stage.
#pragma once

#include <QString>

#include "playback/player_monitor.h"

namespace brevant {

// Empty for None.
[[nodiscard]] QString NoticeText(TCPlayerNotice notice);

// "Playing", "Paused" and so on; empty for Empty.
[[nodiscard]] QString PhaseText(TCPlayerPhase phase);

}  // namespace brevant
