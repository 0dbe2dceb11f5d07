// The lines of a tree, from each node to the one it lies in.
#pragma once

#include <QModelIndex>
#include <QPainter>
#include <QRect>

namespace brevant {

// `branches` is what the view leaves free before the node of `index`, `indentation` pixels a level. Drawn
// with the painter's pen, with room for the arrow of a node that has children.
void DrawTreeLines(QPainter& painter, const QRect& branches, const QModelIndex& index, int indentation);

}  // namespace brevant
