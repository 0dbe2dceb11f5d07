// brevant_measure_lyric_type [METRES]: how large the lyrics stand before whoever reads them from that far
// away (3 by default), at several type sizes, on a screen of 96 dots an inch: taken from the letters as they
// are drawn in the message display of a window of 1600 x 1000.
#include <QApplication>
#include <QImage>
#include <QPainter>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <numbers>

#include "app/main_frame.h"
#include "support/fake_player.h"

namespace brevant {
namespace {

constexpr double kDotsAnInch = 96.0;
constexpr double kMillimetresAnInch = 25.4;
constexpr double kArcMinutes = 60.0 * 180.0 / std::numbers::pi;  // in a radian

// How many rows of dots the letter takes.
int HeightDrawn(const QFont& font, QChar letter) {
  QImage sheet(400, 600, QImage::Format_RGB32);
  sheet.fill(Qt::black);
  QPainter painter(&sheet);
  painter.setFont(font);
  painter.setPen(Qt::white);
  painter.drawText(50, 450, QString(letter));
  painter.end();
  int rows = 0;
  for (int y = 0; y < sheet.height(); ++y) {
    for (int x = 0; x < sheet.width(); ++x) {
      if (qGray(sheet.pixel(x, y)) < 128) continue;
      ++rows;
      break;
    }
  }
  return rows;
}

double Millimetres(int dots) {
  return dots * kMillimetresAnInch / kDotsAnInch;
}

double ArcMinutes(int dots, double metres) {
  return std::atan(Millimetres(dots) / 1000.0 / metres) * kArcMinutes;
}

void Print(double metres) {
  TCSettings settings;
  TCFakePlayer player;
  TCMainFrame frame(settings, player, player);
  frame.resize(1600, 1000);
  frame.show();
  QCoreApplication::processEvents();
  const TCGeneralReportsTab& pane = frame.MessageDisplay();
  std::printf("the pane is %d x %d of a window of %d x %d, at %d dots an inch; from %g m:\n",
              pane.viewport()->width(), pane.viewport()->height(), frame.width(), frame.height(),
              pane.logicalDpiY(), metres);
  for (const std::int32_t points : {18, 24, 30, 36, 48, 60, 72}) {
    settings.lyricsFontSize = points;
    frame.ShowOptions();
    const QFont& font = pane.font();
    const int capital = HeightDrawn(font, QLatin1Char('H'));
    const int small = HeightDrawn(font, QLatin1Char('x'));
    // The lines of the box: each lyric line and the two blank ones above it, which may go out of view first.
    const int lines = pane.viewport()->height() / pane.fontMetrics().lineSpacing();
    std::printf("%3d points in %s: capitals %d dots, %.1f mm, %.1f'; small letters %d dots, %.1f mm, %.1f'; ",
                font.pointSize(), qPrintable(QFontInfo(font).family()), capital, Millimetres(capital),
                ArcMinutes(capital, metres), small, Millimetres(small), ArcMinutes(small, metres));
    std::printf("%d lyric lines, %d letters wide\n", (lines + 2) / 3,
                pane.viewport()->width() / pane.fontMetrics().averageCharWidth());
  }
}

}  // namespace
}  // namespace brevant

int main(int argc, char** argv) {
  const double metres = argc > 1 ? std::atof(argv[1]) : 3.0;
  if (metres <= 0.0) return 2;
  const QApplication toolkit(argc, argv);
  brevant::Print(metres);
  return 0;
}
