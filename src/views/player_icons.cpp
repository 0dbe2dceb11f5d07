#include "views/player_icons.h"

#include <QIconEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>
#include <utility>

namespace brevant {

namespace {

// The shapes are drawn on a square of this size and scaled.
constexpr double kSide = 16.0;

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

// Draws the shape when it is shown, at the size of the moment: icons are made anew with every palette.
class TCShapeEngine final : public QIconEngine {
 public:
  TCShapeEngine(QPainterPath drawnShape, const QColor& shapeColour)
      : shape(std::move(drawnShape)), colour(shapeColour) {}

  void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State /*state*/) override {
    QColor shown = colour;
    if (mode == QIcon::Disabled) shown.setAlphaF(0.35F);
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(area.topLeft());
    painter->scale(area.width() / kSide, area.height() / kSide);
    painter->fillPath(shape, shown);
    painter->restore();
  }

  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    QPixmap picture(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    return picture;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new TCShapeEngine(*this); }
  [[nodiscard]] bool isNull() override { return false; }

 private:
  QPainterPath shape;
  QColor colour;
};

QIcon IconOf(const QPainterPath& shape, const QColor& colour) {
  return QIcon(new TCShapeEngine(shape, colour));
}

}  // namespace

TCPlayerIcons DrawnPlayerIcons(const QColor& colour) {
  return {IconOf(PlayShape(), colour), IconOf(PauseShape(), colour), IconOf(StopShape(), colour),
          IconOf(VolumeShape(), colour)};
}

}  // namespace brevant
