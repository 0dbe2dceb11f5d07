#include "app/panes/general_reports_tab.h"

#include <QFontMetrics>
#include <QPalette>
#include <QScrollBar>
#include <QTextBlock>
#include <QTextCharFormat>
#include <QTextCursor>
#include <algorithm>

#include "resources/string_table.h"
#include "views/display_font.h"
#include "views/row_colours.h"
#include "views/text_conversion.h"

namespace brevant {

namespace {

// Lyric lines begin with a tab.
constexpr int kTabCharacters = 4;

// The box breaks lines at a line feed alone.
QString BoxText(std::u16string_view text) {
  QString shown = ToQString(text);
  shown.replace(QStringLiteral("\r\n"), QStringLiteral("\n"));
  shown.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return shown;
}

TCRgb RgbOf(const QColor& colour) {
  return colour.rgb() & 0xFFFFFFU;
}

}  // namespace

TCGeneralReportsTab::TCGeneralReportsTab(QWidget* parent) : QPlainTextEdit(parent) {
  setObjectName(QStringLiteral("messageDisplay"));
  setAccessibleName(ToQString(TextOf(TCTextId::MessagePaneTitle)));
  setWhatsThis(QStringLiteral(
      "The words of the song that plays, if it has a lyric file; else what the program has to tell you, the "
      "newest line at the bottom."));
  setReadOnly(true);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  setFocusPolicy(Qt::StrongFocus);
  setUndoRedoEnabled(false);
  setLineWrapMode(NoWrap);
  setFrameShape(NoFrame);
  // Always there, so that the text does not jump when a longer lyric line comes and goes.
  setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
  setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOn);
}

void TCGeneralReportsTab::Enable(std::int32_t capacity) {
  ring.Enable(capacity);
  Rebuild();
}

void TCGeneralReportsTab::SetDisplayFont(const QString& face, int points, const QColor& text,
                                         const QColor& background) {
  setFont(DisplayFont(FromQString(face), points, *this));
  setTabStopDistance(kTabCharacters * QFontMetricsF(font(), this).averageCharWidth());

  QPalette colours = palette();
  colours.setColor(QPalette::Base, background);
  colours.setColor(QPalette::Text, text);
  setPalette(colours);
  normalText = RgbOf(text);
  Rebuild();
}

void TCGeneralReportsTab::SetLook(TCPaneLook newLook) {
  if (newLook == look) return;
  look = newLook;
  Rebuild();
}

void TCGeneralReportsTab::Clear() {
  if (!ring.Enabled()) return;
  ring.Clear();
  role = TCLineRole::Normal;
  firstInView = false;
  Rebuild();
}

void TCGeneralReportsTab::Append(std::u16string_view text) {
  if (!ring.Enabled()) return;
  firstInView = false;
  ring.Append(text, role);
  AddToBox(std::u16string(text) + u"\r\n", role);
  while (blocksOfLine.size() > static_cast<std::size_t>(ring.Count())) DropOldestFromBox();
  ScrollIntoView();
}

void TCGeneralReportsTab::SetLineRole(TCLineRole newRole) {
  role = newRole;
}

void TCGeneralReportsTab::KeepFirstInView() {
  firstInView = true;
  ScrollIntoView();
}

void TCGeneralReportsTab::resizeEvent(QResizeEvent* event) {
  QPlainTextEdit::resizeEvent(event);
  ScrollIntoView();
}

void TCGeneralReportsTab::showEvent(QShowEvent* event) {
  QPlainTextEdit::showEvent(event);
  ScrollIntoView();
}

void TCGeneralReportsTab::Rebuild() {
  clear();
  blocksOfLine.clear();
  for (const TCReportLine& line : ring.Lines()) AddToBox(line.text, line.role);
  ScrollIntoView();
}

void TCGeneralReportsTab::AddToBox(std::u16string_view text, TCLineRole lineRole) {
  QTextCharFormat format;
  format.setForeground(ToQColor(LineColour(lineRole, look, normalText)));
  const int blocksBefore = blockCount();
  QTextCursor end(document());
  end.movePosition(QTextCursor::End);
  end.insertText(BoxText(text), format);
  blocksOfLine.push_back(blockCount() - blocksBefore);
}

void TCGeneralReportsTab::DropOldestFromBox() {
  QTextCursor oldest(document());
  oldest.movePosition(QTextCursor::NextBlock, QTextCursor::KeepAnchor, blocksOfLine.front());
  oldest.removeSelectedText();
  blocksOfLine.pop_front();
}

// Blank lines that stand above it are no loss.
int TCGeneralReportsTab::FirstTextLine() const {
  QTextBlock block = document()->firstBlock();
  while (block.isValid() && block.text().isEmpty()) block = block.next();
  return block.isValid() ? block.blockNumber() : 0;
}

void TCGeneralReportsTab::ScrollIntoView() {
  // Behind the newest line's end stands an empty one; in a low pane it would take the newest one's place.
  const int newest = verticalScrollBar()->maximum() - 1;
  verticalScrollBar()->setValue(firstInView ? std::min(newest, FirstTextLine()) : newest);
  horizontalScrollBar()->setValue(horizontalScrollBar()->minimum());
}

}  // namespace brevant
