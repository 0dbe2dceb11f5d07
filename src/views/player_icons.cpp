#include "views/player_icons.h"

#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <array>

namespace brevant {

namespace {

// The shapes are drawn on a square of this size and scaled.
constexpr double kSide = 16.0;
constexpr std::array kSizes{16, 20, 24, 32, 48};

QPainterPath PlayShape() {
  QPainterPath shape(QPointF(4.0, 2.0));
  shape.lineTo(14.0, 8.0);
  shape.lineTo(4.0, 14.0);
  shape.closeSubpath();
  return shape;
}

QPainterPath PauseShape() {
  QPainterPath shape;
  shape.addRect(3.5, 2.5, 3.0, 11.0);
  shape.addRect(9.5, 2.5, 3.0, 11.0);
  return shape;
}

QPainterPath StopShape() {
  QPainterPath shape;
  shape.addRect(3.0, 3.0, 10.0, 10.0);
  return shape;
}

QPainterPath VolumeShape() {
  QPainterPath shape(QPointF(1.5, 6.0));
  shape.lineTo(4.5, 6.0);
  shape.lineTo(8.5, 2.5);
  shape.lineTo(8.5, 13.5);
  shape.lineTo(4.5, 10.0);
  shape.lineTo(1.5, 10.0);
  shape.closeSubpath();
  // Two rings of sound: each the space between two arcs.
  for (const double radius : {3.5, 6.0}) {
    const double inner = radius - 1.2;
    const QRectF outerRing(8.5 - radius, 8.0 - radius, 2 * radius, 2 * radius);
    const QRectF innerRing(8.5 - inner, 8.0 - inner, 2 * inner, 2 * inner);
    shape.arcMoveTo(outerRing, 45.0);
    shape.arcTo(outerRing, 45.0, -90.0);
    shape.arcTo(innerRing, -45.0, 90.0);
    shape.closeSubpath();
  }
  return shape;
}

QPixmap Drawn(const QPainterPath& shape, int size, const QColor& colour) {
  QPixmap picture(size, size);
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.scale(size / kSide, size / kSide);
  painter.fillPath(shape, colour);
  return picture;
}

QIcon IconOf(const QPainterPath& shape, const QColor& colour) {
  QColor faint = colour;
  faint.setAlphaF(0.35F);
  QIcon icon;
  for (const int size : kSizes) {
    icon.addPixmap(Drawn(shape, size, colour), QIcon::Normal);
    icon.addPixmap(Drawn(shape, size, faint), QIcon::Disabled);
  }
  return icon;
}

}  // namespace

TCPlayerIcons DrawnPlayerIcons(const QColor& colour) {
  return {IconOf(PlayShape(), colour), IconOf(PauseShape(), colour), IconOf(StopShape(), colour),
          IconOf(VolumeShape(), colour)};
}

}  // namespace brevant
