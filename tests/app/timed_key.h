// A key event with a time of its own, sent as the display server's events come in. A held key that the
// toolkit does not recognise is a release and a press of one time, without the mark of a repeat.
#pragma once

#include <QCoreApplication>
#include <QKeyEvent>
#include <QString>
#include <QTest>
#include <QWidget>

namespace brevant {

inline void SendKey(QWidget* widget, QEvent::Type type, Qt::Key key, unsigned long time, bool autoRepeat,
                    const QString& text = {}) {
  if (type == QEvent::KeyPress &&
      qt_sendShortcutOverrideEvent(widget, time, key, Qt::NoModifier, {}, autoRepeat)) {
    return;
  }
  QKeyEvent event(type, key, Qt::NoModifier, 0, 0, 0, text, autoRepeat);
  event.setTimestamp(time);
  QCoreApplication::sendEvent(widget, &event);
}

}  // namespace brevant
