#include "app/desktop/session_end.h"

#include <QEvent>

namespace brevant {

TCSessionEnd::TCSessionEnd(QCoreApplication& toolkit) {
  toolkit.installEventFilter(this);
}

// What the program itself does to quit is no spontaneous event.
bool TCSessionEnd::eventFilter(QObject* receiver, QEvent* event) {
  if (receiver != QCoreApplication::instance() || event->type() != QEvent::Quit || !event->spontaneous()) {
    return false;
  }
  Q_EMIT endWanted();
  return true;
}

}  // namespace brevant
