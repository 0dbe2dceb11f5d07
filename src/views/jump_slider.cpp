#include "views/jump_slider.h"

#include <QMouseEvent>
#include <QPainter>
#include <QStyle>
#include <QWheelEvent>

namespace brevant {

namespace {

constexpr int kHandle = 14;  // pixels across
constexpr int kGroove = 4;

}  // namespace

TCJumpSlider::TCJumpSlider(TCWheel wheelUse, QWidget* parent)
    : QSlider(Qt::Horizontal, parent), wheel(wheelUse) {
  setFocusPolicy(Qt::NoFocus);
  connect(this, &QSlider::valueChanged, this, [this](int value) {
    if (showing) return;
    Q_EMIT dragged(value);
    if (!isSliderDown()) Q_EMIT picked(value);
  });
}

void TCJumpSlider::ShowRange(int newMaximum) {
  showing = true;
  setRange(0, newMaximum);
  showing = false;
}

void TCJumpSlider::ShowValue(int value) {
  if (isSliderDown()) return;
  showing = true;
  setValue(value);
  showing = false;
}

void TCJumpSlider::CancelDrag() {
  if (isSliderDown()) setSliderDown(false);
}

void TCJumpSlider::paintEvent(QPaintEvent*) {
  const QColor handleColour = palette().color(QPalette::WindowText);
  QColor grooveColour = handleColour;
  grooveColour.setAlphaF(0.25F);
  const double middle = height() / 2.0;
  const double place = PlaceOf(value());
  const double start = PlaceOf(minimum());
  const QRectF groove(kHandle / 2.0, middle - kGroove / 2.0, width() - kHandle, kGroove);
  const QRectF passed = QRectF(start, groove.top(), place - start, kGroove).normalized();

  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(grooveColour);
  painter.drawRoundedRect(groove, kGroove / 2.0, kGroove / 2.0);
  if (!isEnabled()) return;
  painter.setBrush(palette().color(QPalette::Highlight));
  painter.drawRoundedRect(passed, kGroove / 2.0, kGroove / 2.0);
  painter.setBrush(handleColour);
  painter.drawEllipse(QPointF(place, middle), kHandle / 2.0 - 0.5, kHandle / 2.0 - 0.5);
}

void TCJumpSlider::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    event->ignore();
    return;
  }
  event->accept();
  setSliderDown(true);
  setValue(ValueAt(event->position().toPoint().x()));
}

void TCJumpSlider::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
  if (isSliderDown()) setValue(ValueAt(event->position().toPoint().x()));
}

void TCJumpSlider::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    event->ignore();
    return;
  }
  event->accept();
  if (!isSliderDown()) return;
  setSliderDown(false);
  Q_EMIT picked(value());
}

void TCJumpSlider::wheelEvent(QWheelEvent* event) {
  if (wheel == TCWheel::Moves && !isSliderDown()) {
    QSlider::wheelEvent(event);
    event->accept();
    return;
  }
  // Not passed on either: a turn over the slider must not move something else.
  event->accept();
}

int TCJumpSlider::ValueAt(int x) const {
  return QStyle::sliderValueFromPosition(minimum(), maximum(), x - kHandle / 2, width() - kHandle,
                                         layoutDirection() == Qt::RightToLeft);
}

int TCJumpSlider::PlaceOf(int value) const {
  return kHandle / 2 + QStyle::sliderPositionFromValue(minimum(), maximum(), value, width() - kHandle,
                                                       layoutDirection() == Qt::RightToLeft);
}

}  // namespace brevant
