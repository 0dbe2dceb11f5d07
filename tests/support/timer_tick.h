// Lets a timer of a widget tick without waiting for it.
#pragma once

#include <QCoreApplication>
#include <QObject>
#include <QTimer>
#include <QTimerEvent>

namespace brevant {

// The timer with this name inside `owner`, or null.
inline QTimer* TimerOf(QObject& owner, const char* name) {
  return owner.findChild<QTimer*>(QString::fromLatin1(name));
}

inline void Tick(QTimer& timer) {
  QTimerEvent event(timer.timerId());
  QCoreApplication::sendEvent(&timer, &event);
}

}  // namespace brevant
