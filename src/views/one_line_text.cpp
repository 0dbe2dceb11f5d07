#include "views/one_line_text.h"

namespace brevant {

namespace {

// No window shows more of one line, and laying out a million characters would stop the show.
constexpr qsizetype kMostCharacters = 1000;

bool BreaksLine(QChar character) {
  return character.unicode() < u' ' || character == QChar::LineSeparator ||
         character == QChar::ParagraphSeparator;
}

}  // namespace

QString OneLineText(QStringView text) {
  QString line = text.left(kMostCharacters).toString();
  for (qsizetype i = 0; i < line.size(); ++i) {
    if (BreaksLine(line.at(i))) line[i] = QLatin1Char(' ');
  }
  return line;
}

}  // namespace brevant
