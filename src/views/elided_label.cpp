#include "views/elided_label.h"

#include <QPaintEvent>
#include <QPainter>

namespace brevant {

TCElidedLabel::TCElidedLabel(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
}

void TCElidedLabel::ShowText(const QString& shownText, const QString& shownDetail) {
  if (shownText == text() && shownDetail == detail) return;
  setText(shownText);
  detail = shownDetail;
  UpdateToolTip();
}

QSize TCElidedLabel::sizeHint() const {
  return {QLabel::sizeHint().width(), minimumSizeHint().height()};
}

QSize TCElidedLabel::minimumSizeHint() const {
  return {fontMetrics().horizontalAdvance(QChar(0x2026)), fontMetrics().height()};
}

void TCElidedLabel::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setPen(palette().color(foregroundRole()));
  const QString cut = fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width());
  painter.drawText(contentsRect(), static_cast<int>(alignment()) | Qt::TextSingleLine, cut);
}

void TCElidedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  UpdateToolTip();
}

void TCElidedLabel::UpdateToolTip() {
  const bool isCut = fontMetrics().horizontalAdvance(text()) > contentsRect().width();
  QString tip;
  if (isCut || !detail.isEmpty()) tip = text().toHtmlEscaped();
  if (!detail.isEmpty()) tip += QStringLiteral("<br>") + detail.toHtmlEscaped();
  // As markup of our own, so that Qt breaks long lines and never takes a file's name for markup.
  setToolTip(tip.isEmpty() ? QString() : QString(QStringLiteral("<qt>") + tip + QStringLiteral("</qt>")));
}

}  // namespace brevant
