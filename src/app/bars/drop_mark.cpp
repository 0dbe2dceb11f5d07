#include "app/bars/drop_mark.h"

#include <QApplication>
#include <utility>

namespace brevant {

void TCDropMark::Show(QWidget& widget, const QRect& gap) {
  ShowCursor(Qt::DragMoveCursor);
  if (line != nullptr && line->parentWidget() != &widget) delete line;
  if (line == nullptr) {
    line = new QWidget(&widget);
    line->setObjectName(QStringLiteral("DropMark"));
    line->setAutoFillBackground(true);
    line->setBackgroundRole(QPalette::Highlight);
  }
  line->setGeometry(gap);
  line->show();
}

void TCDropMark::Refuse() {
  ShowCursor(Qt::ForbiddenCursor);
  delete line;
}

void TCDropMark::End() {
  delete line;
  if (std::exchange(cursorShown, false)) QApplication::restoreOverrideCursor();
}

void TCDropMark::ShowCursor(Qt::CursorShape shape) {
  if (std::exchange(cursorShown, true)) {
    QApplication::changeOverrideCursor(shape);
  } else {
    QApplication::setOverrideCursor(shape);
  }
}

}  // namespace brevant
