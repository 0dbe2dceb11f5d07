// The mouse pointers that the playlist and the tree share: own pictures, handed in by whoever can draw them.
#pragma once

#include <QCursor>

namespace brevant {

enum class TCPointer {
  Arrow,    // nothing here answers to the mouse
  Row,      // over a row or node
  Pressed,  // the button is down on one
  Drag,     // one is being dragged
  Busy,     // the next click or release puts songs down
};

struct TCStageCursors {
  QCursor row;
  QCursor pressed;
  QCursor drag;
  QCursor busy;

  [[nodiscard]] const QCursor& Of(TCPointer pointer) const {
    static const QCursor arrow(Qt::ArrowCursor);
    switch (pointer) {
      case TCPointer::Row:
        return row;
      case TCPointer::Pressed:
        return pressed;
      case TCPointer::Drag:
        return drag;
      case TCPointer::Busy:
        return busy;
      case TCPointer::Arrow:
        break;
    }
    return arrow;
  }
};

}  // namespace brevant
