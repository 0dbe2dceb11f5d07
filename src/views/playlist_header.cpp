#include "views/playlist_header.h"

#include <QPaintEvent>
#include <QPainter>
#include <QStyle>
#include <algorithm>

namespace brevant {

namespace {

// Between two colours: for lines that should be seen but not stand out.
QColor Mixed(const QColor& one, const QColor& other) {
  return QColor((one.red() + other.red() * 2) / 3, (one.green() + other.green() * 2) / 3,
                (one.blue() + other.blue() * 2) / 3);
}

// Cut to `width` pixels in front of its last word: half a time would be read as another time.
QString CutBeforeLastWord(const QString& text, const QFontMetrics& metrics, int width) {
  if (metrics.horizontalAdvance(text) <= width) return text;
  const QString lastWord = text.mid(text.lastIndexOf(QLatin1Char(' ')) + 1);
  const QString front = text.chopped(lastWord.size());
  const int frontWidth = width - metrics.horizontalAdvance(lastWord);
  if (front.isEmpty() || frontWidth <= 0) return metrics.elidedText(lastWord, Qt::ElideRight, width);
  return metrics.elidedText(front, Qt::ElideRight, frontWidth) + lastWord;
}

}  // namespace

TCPlaylistHeader::TCPlaylistHeader(QWidget* parent) : QHeaderView(Qt::Horizontal, parent) {
  setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  setSectionsClickable(false);
  setHighlightSections(false);
  setSectionResizeMode(Interactive);
  setFocusPolicy(Qt::NoFocus);
}

int TCPlaylistHeader::TextMargins() const {
  // Two more than the rows' cells leave free: text widths are rounded when they are measured.
  return 2 * SideMargin() + 2;
}

int TCPlaylistHeader::GapBetweenTexts() const {
  return std::max(4, fontMetrics().averageCharWidth());
}

int TCPlaylistHeader::SideMargin() const {
  return style()->pixelMetric(QStyle::PM_FocusFrameHMargin, nullptr, this) + 1;
}

QSize TCPlaylistHeader::sizeHint() const {
  const int line = fontMetrics().height();
  return {QHeaderView::sizeHint().width(), line + std::max(6, line / 5)};
}

void TCPlaylistHeader::paintEvent(QPaintEvent* event) {
  // Where no column stands the style would draw its own colours; so all of it is filled first and the
  // columns are drawn over that.
  QPainter painter(viewport());
  painter.setFont(font());
  painter.fillRect(event->rect(), palette().base());
  const QColor line = Mixed(palette().color(QPalette::Text), palette().color(QPalette::Base));
  painter.fillRect(0, viewport()->height() - 1, viewport()->width(), 1, line);
  for (int section = 0; section < count(); ++section) {
    const QRect rect(sectionViewportPosition(section), 0, sectionSize(section), viewport()->height());
    if (rect.intersects(event->rect())) DrawSection(painter, rect, section);
  }
}

void TCPlaylistHeader::DrawSection(QPainter& painter, const QRect& rect, int section) const {
  const QColor text = palette().color(QPalette::Text);
  const QColor line = Mixed(text, palette().color(QPalette::Base));
  painter.fillRect(rect.right(), rect.top() + 4, 1, rect.height() - 8, line);

  const bool isLast = section == count() - 1;
  QRect place = isLast ? rect.intersected(viewport()->rect()) : rect;
  place.adjust(SideMargin(), 0, -SideMargin(), 0);
  if (place.width() <= 0) return;
  const QString whole = model()->headerData(section, orientation()).toString();
  const QFontMetrics metrics = painter.fontMetrics();
  const QString cut = isLast ? CutBeforeLastWord(whole, metrics, place.width())
                             : metrics.elidedText(whole, Qt::ElideRight, place.width());
  painter.setPen(text);
  painter.drawText(place, static_cast<int>(defaultAlignment()) | Qt::TextSingleLine, cut);
}

}  // namespace brevant
