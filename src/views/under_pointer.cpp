#include "views/under_pointer.h"

#include <QApplication>

namespace brevant {

bool IsUnder(const QWidget& widget, QPoint globalPosition) {
  if (!widget.isVisible() || !widget.rect().contains(widget.mapFromGlobal(globalPosition))) return false;
  const QWidget* top = QApplication::widgetAt(globalPosition);
  return top == nullptr || top->window() == widget.window();
}

}  // namespace brevant
