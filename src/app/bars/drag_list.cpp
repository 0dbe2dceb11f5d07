#include "app/bars/drag_list.h"

#include <QApplication>
#include <QKeyEvent>
#include <QMouseEvent>
#include <algorithm>
#include <utility>

namespace brevant {

TCDragList::TCDragList(QWidget* parent) : QListWidget(parent) {}

int TCDragList::RowGapAt(QPoint globalPosition) const {
  const QPoint position = viewport()->mapFromGlobal(globalPosition);
  if (!viewport()->rect().contains(position)) return -1;
  const QModelIndex index = indexAt(position);
  if (!index.isValid()) return count();
  return index.row() + (position.y() > visualRect(index).center().y() ? 1 : 0);
}

QRect TCDragList::GapRect(int row) const {
  constexpr int kThick = 3;
  int top = 0;
  if (row > 0 && count() > 0) {
    const int above = std::min(row, count()) - 1;
    top = visualRect(model()->index(above, 0)).bottom();
  }
  return {0, std::max(0, top - 1), viewport()->width(), kThick};
}

void TCDragList::mousePressEvent(QMouseEvent* event) {
  pressedRow = -1;
  // Beside the entries the chosen one stays chosen.
  if (!indexAt(event->pos()).isValid()) return;
  QListWidget::mousePressEvent(event);
  if (event->button() != Qt::LeftButton) return;
  pressedAt = event->pos();
  pressedRow = indexAt(event->pos()).row();
}

void TCDragList::mouseMoveEvent(QMouseEvent* event) {
  // The list itself would select whatever is passed on the way.
  if (!event->buttons().testFlag(Qt::LeftButton)) return QListWidget::mouseMoveEvent(event);
  if (pressedRow < 0) return;
  const int way = (event->pos() - pressedAt).manhattanLength();
  dragging = dragging || way >= QApplication::startDragDistance();
  if (dragging) Q_EMIT dragMoved(pressedRow, event->globalPosition().toPoint());
}

void TCDragList::mouseReleaseEvent(QMouseEvent* event) {
  const int row = pressedRow;
  if (event->button() == Qt::LeftButton && EndDrag()) {
    Q_EMIT dragged(row, event->globalPosition().toPoint());
  } else {
    QListWidget::mouseReleaseEvent(event);
  }
}

void TCDragList::keyPressEvent(QKeyEvent* event) {
  if (event->key() == Qt::Key_Escape && EndDrag()) return;
  QListWidget::keyPressEvent(event);
}

void TCDragList::focusOutEvent(QFocusEvent* event) {
  EndDrag();
  QListWidget::focusOutEvent(event);
}

bool TCDragList::EndDrag() {
  pressedRow = -1;
  if (!std::exchange(dragging, false)) return false;
  Q_EMIT dragEnded();
  return true;
}

}  // namespace brevant
