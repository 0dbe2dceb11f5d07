#include "app/dialogs/song_files_field.h"

#include <QKeyEvent>
#include <QMimeData>
#include <QTextDocument>

#include "views/text_conversion.h"

namespace brevant {
namespace {

constexpr int kLinesVisible = 6;

}  // namespace

TCSongFilesField::TCSongFilesField(QWidget* parent) : QPlainTextEdit(parent) {
  setTabChangesFocus(true);
  setWordWrapMode(QTextOption::WrapAnywhere);  // else a path breaks behind its drive letter
  const int frames = 2 * (frameWidth() + static_cast<int>(document()->documentMargin()));
  setMinimumHeight(kLinesVisible * fontMetrics().lineSpacing() + frames);
}

std::u16string TCSongFilesField::Text() const {
  // Not the toolkit's plain text: that turns the no-break blanks of a name into blanks.
  QString text = document()->toRawText();
  text.replace(QChar::ParagraphSeparator, u' ');
  return FromQString(text);
}

void TCSongFilesField::SetText(std::u16string_view text) {
  QString lines = ToQString(text);
  lines.replace(QStringLiteral("\" \""), QStringLiteral("\"\n\""));
  QTextCursor all(document());
  all.select(QTextCursor::Document);
  all.insertText(lines);
  moveCursor(QTextCursor::Start);
}

void TCSongFilesField::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
    event->ignore();
  } else {
    QPlainTextEdit::keyPressEvent(event);
  }
}

bool TCSongFilesField::canInsertFromMimeData(const QMimeData* source) const {
  return !source->hasUrls() && QPlainTextEdit::canInsertFromMimeData(source);
}

void TCSongFilesField::insertFromMimeData(const QMimeData* source) {
  if (canInsertFromMimeData(source)) QPlainTextEdit::insertFromMimeData(source);  // a paste does not ask
}

}  // namespace brevant
