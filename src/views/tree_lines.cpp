#include "views/tree_lines.h"

#include <QAbstractItemModel>

namespace brevant {

namespace {

constexpr int kArrowRoom = 7;  // pixels that the lines leave free around the middle of an arrow

}  // namespace

void DrawTreeLines(QPainter& painter, const QRect& branches, const QModelIndex& index, int indentation) {
  QRect cell(branches.right() + 1 - indentation, branches.top(), indentation, branches.height());
  for (QModelIndex node = index; node.isValid(); node = node.parent()) {
    const QPoint middle = cell.center();
    const bool hasNext = node.row() + 1 < node.model()->rowCount(node.parent());
    if (node == index) {
      const int gap = node.model()->hasChildren(node) ? kArrowRoom : 0;
      const bool isFirst = node.row() == 0 && !node.parent().isValid();
      if (!isFirst) painter.drawLine(middle.x(), cell.top(), middle.x(), middle.y() - gap);
      if (hasNext) painter.drawLine(middle.x(), middle.y() + gap, middle.x(), cell.bottom());
      painter.drawLine(middle.x() + gap, middle.y(), cell.right(), middle.y());
    } else if (hasNext) {
      painter.drawLine(middle.x(), cell.top(), middle.x(), cell.bottom());
    }
    cell.translate(-indentation, 0);
  }
}

}  // namespace brevant
