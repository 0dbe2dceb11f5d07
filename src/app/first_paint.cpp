#include "app/first_paint.h"

#include <QEvent>
#include <QWidget>
#include <utility>

namespace brevant {

TCFirstPaint::TCFirstPaint(QWidget& window, std::function<void()> then, std::chrono::milliseconds patience)
    : watched(window), callback(std::move(then)) {
  watched.installEventFilter(this);
  timer.setSingleShot(true);
  connect(&timer, &QTimer::timeout, this, &TCFirstPaint::Finish);
  timer.start(patience);
}

bool TCFirstPaint::eventFilter(QObject* /*receiver*/, QEvent* event) {
  // The rest of the window is painted by the time the event loop is back.
  if (event->type() == QEvent::Paint) timer.start(0);
  return false;
}

void TCFirstPaint::Finish() {
  watched.removeEventFilter(this);
  callback();
}

}  // namespace brevant
