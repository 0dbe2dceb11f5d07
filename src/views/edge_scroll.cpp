#include "views/edge_scroll.h"

#include <QScrollBar>
#include <utility>

namespace brevant {

namespace {

constexpr int kPeriod = 80;  // milliseconds a row: twelve rows a second can still be read
constexpr int kEdge = 12;    // pixels

}  // namespace

TCEdgeScroll::TCEdgeScroll(QAbstractItemView& scrolledView, std::function<void(QPoint)> whenScrolled)
    : QObject(&scrolledView), view(scrolledView), scrolled(std::move(whenScrolled)) {
  timer.setObjectName(QStringLiteral("edgeScroll"));
  timer.setInterval(kPeriod);
  connect(&timer, &QTimer::timeout, this, &TCEdgeScroll::Step);
}

void TCEdgeScroll::Follow(QPoint globalPosition) {
  place = globalPosition;
  if (Direction() == 0) {
    timer.stop();
  } else if (!timer.isActive()) {
    timer.start();
  }
}

void TCEdgeScroll::Stop() {
  timer.stop();
}

void TCEdgeScroll::Step() {
  QScrollBar& bar = *view.verticalScrollBar();
  const int before = bar.value();
  bar.setValue(before + Direction() * bar.singleStep());
  if (bar.value() != before) scrolled(place);
}

int TCEdgeScroll::Direction() const {
  const QWidget& rows = *view.viewport();
  const QPoint inside = rows.mapFromGlobal(place);
  if (inside.x() < 0 || inside.x() >= rows.width()) return 0;
  if (inside.y() < kEdge) return -1;
  return inside.y() >= rows.height() - kEdge ? 1 : 0;
}

}  // namespace brevant
