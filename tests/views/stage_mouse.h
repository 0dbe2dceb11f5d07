// A mouse whose button stays down, for the tests of dragging, and cursors that can be told apart.
#pragma once

#include <QApplication>
#include <QMouseEvent>
#include <QWidget>

#include "views/stage_cursors.h"

namespace brevant {

inline TCStageCursors TestCursors() {
  return {QCursor(Qt::PointingHandCursor), QCursor(Qt::CrossCursor), QCursor(Qt::SizeAllCursor),
          QCursor(Qt::WaitCursor)};
}

inline Qt::CursorShape ShapeOf(TCPointer pointer) {
  return TestCursors().Of(pointer).shape();
}

// As the window system has it: while its button is down every move goes to the widget that was pressed.
class TCStageMouse {
 public:
  explicit TCStageMouse(QWidget& pressedWidget) : widget(pressedWidget) {}

  void Press(QPoint place, Qt::KeyboardModifiers held = {}) {
    Send(QEvent::MouseButtonPress, place, Qt::LeftButton, Qt::LeftButton, held);
  }
  void Drag(QPoint place, Qt::KeyboardModifiers held = {}) {
    Send(QEvent::MouseMove, place, Qt::NoButton, Qt::LeftButton, held);
  }
  void Release(QPoint place, Qt::KeyboardModifiers held = {}) {
    Send(QEvent::MouseButtonRelease, place, Qt::LeftButton, Qt::NoButton, held);
  }
  void Hover(QPoint place) { Send(QEvent::MouseMove, place, Qt::NoButton, Qt::NoButton, {}); }
  void Click(QPoint place, Qt::KeyboardModifiers held = {}) {
    Press(place, held);
    Release(place, held);
  }
  void DoubleClick(QPoint place) {
    Click(place);
    Send(QEvent::MouseButtonDblClick, place, Qt::LeftButton, Qt::LeftButton, {});
    Release(place);
  }

 private:
  void Send(QEvent::Type type, QPoint place, Qt::MouseButton button, Qt::MouseButtons buttons,
            Qt::KeyboardModifiers held) {
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, buttons, held);
    QCoreApplication::sendEvent(&widget, &event);
  }

  QWidget& widget;
};

}  // namespace brevant
