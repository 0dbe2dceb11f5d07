#include "model/settings.h"

namespace brevant {

void TCSettings::SetWhiteOnBlack(bool on) {
  whiteOnBlack = on;
  backgroundColour = on ? kBlack : kWhite;
  textColour = on ? kWhite : kBlack;
}

}  // namespace brevant
