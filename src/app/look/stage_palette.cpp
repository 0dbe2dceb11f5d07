#include "app/look/stage_palette.h"

#include "views/row_colours.h"

namespace brevant {
namespace {

// `percent` of `text` in `background`.
QColor Mix(const QColor& text, const QColor& background, int percent) {
  const auto channel = [percent](int a, int b) { return (a * percent + b * (100 - percent)) / 100; };
  return {channel(text.red(), background.red()), channel(text.green(), background.green()),
          channel(text.blue(), background.blue())};
}

}  // namespace

QPalette StagePalette(TCRgb textColour, TCRgb backgroundColour) {
  const QColor text = ToQColor(textColour);
  const QColor background = ToQColor(backgroundColour);
  const QColor window = Mix(text, background, 10);
  const QColor button = Mix(text, background, 18);
  const QColor faint = Mix(text, background, 50);
  const QColor highlight(0x2F, 0x6F, 0xB5);

  QPalette palette;
  palette.setColor(QPalette::Window, window);
  palette.setColor(QPalette::WindowText, text);
  palette.setColor(QPalette::Base, background);
  palette.setColor(QPalette::AlternateBase, Mix(text, background, 6));
  palette.setColor(QPalette::Text, text);
  palette.setColor(QPalette::PlaceholderText, faint);
  palette.setColor(QPalette::Button, button);
  palette.setColor(QPalette::ButtonText, text);
  palette.setColor(QPalette::BrightText, text);
  palette.setColor(QPalette::ToolTipBase, button);
  palette.setColor(QPalette::ToolTipText, text);
  palette.setColor(QPalette::Light, Mix(text, background, 30));
  palette.setColor(QPalette::Midlight, Mix(text, background, 24));
  palette.setColor(QPalette::Mid, Mix(text, background, 34));
  palette.setColor(QPalette::Dark, Mix(text, background, 42));
  palette.setColor(QPalette::Shadow, background);
  palette.setColor(QPalette::Highlight, highlight);
  palette.setColor(QPalette::HighlightedText, QColor(Qt::white));
  palette.setColor(QPalette::Link, Mix(text, highlight, 30));
  palette.setColor(QPalette::LinkVisited, Mix(text, highlight, 30));

  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(QPalette::Disabled, role, faint);
  }
  // Disabled text is etched: drawn a second time in this colour, one pixel off.
  palette.setColor(QPalette::Disabled, QPalette::Light, window);
  return palette;
}

QPalette MenuPalette(TCRgb textColour, TCRgb backgroundColour) {
  const QColor text = ToQColor(textColour);
  const QColor background = ToQColor(backgroundColour);
  QPalette palette = StagePalette(textColour, backgroundColour);
  palette.setColor(QPalette::Base, Mix(text, background, 12));
  palette.setColor(QPalette::Window, Mix(text, background, 60));  // the edge is a shade of this
  return palette;
}

}  // namespace brevant
