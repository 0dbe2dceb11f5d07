#include "app/panes/status_pane.h"

#include <QEvent>
#include <QPainter>
#include <QStyle>
#include <utility>

namespace brevant {
namespace {

const QChar kEllipsis(0x2026);

}  // namespace

TCStatusPane::TCStatusPane(QWidget* parent, QString entrySeparator)
    : QLabel(parent), separator(std::move(entrySeparator)) {
  setTextFormat(Qt::PlainText);
}

QString TCStatusPane::ShownText(int width) const {
  const QFontMetrics metrics = fontMetrics();
  if (metrics.horizontalAdvance(text()) <= width) return text();
  if (separator.isEmpty()) return metrics.elidedText(text(), Qt::ElideRight, width);

  QString entries = text();
  for (qsizetype cut = entries.lastIndexOf(separator); cut > 0; cut = entries.lastIndexOf(separator)) {
    entries.truncate(cut);
    const QString shown = entries + separator + QLatin1Char(' ') + kEllipsis;
    if (metrics.horizontalAdvance(shown) <= width) return shown;
  }
  return metrics.elidedText(text(), Qt::ElideRight, width);
}

QSize TCStatusPane::sizeHint() const {
  const QMargins margins = contentsMargins();
  // One pixel to spare: the advance of a whole text is rounded, and a label that is exactly as wide as its
  // text must not cut it.
  return {fontMetrics().horizontalAdvance(text()) + 1 + margins.left() + margins.right(),
          fontMetrics().height() + margins.top() + margins.bottom()};
}

QSize TCStatusPane::minimumSizeHint() const {
  return {0, sizeHint().height()};
}

void TCStatusPane::paintEvent(QPaintEvent* /*event*/) {
  QPainter painter(this);
  const QRect area = contentsRect();
  style()->drawItemText(&painter, area, static_cast<int>(Qt::AlignLeft | Qt::AlignVCenter), palette(),
                        isEnabled(), ShownText(area.width()), foregroundRole());
}

bool TCStatusPane::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const bool cut = ShownText(contentsRect().width()) != text();
    setToolTip(cut ? text() : QString());
  }
  return QLabel::event(event);
}

}  // namespace brevant
