// The colours of the message display's lines by whose they are.
#pragma once

#include "model/message_display.h"
#include "model/settings.h"

namespace brevant {

enum class TCPaneLook { BlackOnWhite, WhiteOnBlack };

// `normalText` for a line that is no singer's.
[[nodiscard]] constexpr TCRgb LineColour(TCLineRole role, TCPaneLook look, TCRgb normalText) {
  const bool onBlack = look == TCPaneLook::WhiteOnBlack;
  switch (role) {
    case TCLineRole::SingerM:
      return onBlack ? 0x00FF00 : 0x0000FF;  // green, blue
    case TCLineRole::SingerF:
      return onBlack ? 0xFFC0CB : 0xFF0000;  // pink, red
    case TCLineRole::SingerD:
      return 0xFFA500;  // orange on both
    case TCLineRole::Normal:
      break;
  }
  return normalText;
}

}  // namespace brevant
