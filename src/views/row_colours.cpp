#include "views/row_colours.h"

#include <algorithm>
#include <cmath>

namespace brevant {

namespace {

constexpr TCRgb kSelectedDark = 0x000C44;
constexpr TCRgb kSelectedLight = 0xCFE3FF;

double LinearChannel(TCRgb colour, unsigned shift) {
  const double channel = static_cast<double>((colour >> shift) & 0xFFU) / 255.0;
  return channel <= 0.04045 ? channel / 12.92 : std::pow((channel + 0.055) / 1.055, 2.4);
}

double Luminance(TCRgb colour) {
  return 0.2126 * LinearChannel(colour, 16) + 0.7152 * LinearChannel(colour, 8) +
         0.0722 * LinearChannel(colour, 0);
}

}  // namespace

double ContrastRatio(TCRgb one, TCRgb other) {
  const auto [dark, light] = std::minmax({Luminance(one), Luminance(other)});
  return (light + 0.05) / (dark + 0.05);
}

TCRgb SelectedBackground(TCRgb text) {
  return ContrastRatio(text, kSelectedDark) >= ContrastRatio(text, kSelectedLight) ? kSelectedDark
                                                                                   : kSelectedLight;
}

}  // namespace brevant
