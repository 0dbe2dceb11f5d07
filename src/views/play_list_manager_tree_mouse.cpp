// What the mouse does in the playlist manager tree: selecting, dragging, picking, and saying where songs go.

#include <QApplication>
#include <QContextMenuEvent>
#include <QMouseEvent>

#include "views/menu_place.h"
#include "views/play_list_manager_tree_view.h"
#include "views/tree_node_delegate.h"
#include "views/under_pointer.h"

namespace brevant {

namespace {

constexpr int kSongLevel = 3;

}  // namespace

void TCPlayListManagerTreeView::SetPlacing(TCPlacing state) {
  placing = state;
  if (placing == TCPlacing::Waiting) ResetMouseState();
  ShowPointer(NodeUnder(QCursor::pos()));
}

void TCPlayListManagerTreeView::FollowCtrlDrag(QPoint globalPosition) {
  ctrlDrag = true;
  AimAt(globalPosition);
  // Nothing scrolls while the songs are elsewhere on their way.
  if (IsUnder(*viewport(), globalPosition)) {
    edgeScroll.Follow(globalPosition);
  } else {
    edgeScroll.Stop();
  }
  ShowPointer(NodeUnder(globalPosition));
}

void TCPlayListManagerTreeView::EndCtrlDrag() {
  ctrlDrag = false;
  edgeScroll.Stop();
  ShowPointer(NodeUnder(QCursor::pos()));
}

void TCPlayListManagerTreeView::AimAt(QPoint globalPosition) {
  const TCTreeNode under = NodeUnder(globalPosition);
  if (ctrlDrag) {
    ShowDropTarget(under);
  } else if (under != TCTreeNode::None) {
    SelectUnscrolled(under);
  }
}

void TCPlayListManagerTreeView::ResetMouseState() {
  buttonPressed = false;
  dragging = false;
  ctrlDrag = false;
  ForgetClick();
  edgeScroll.Stop();
  pressedNode = TCTreeNode::None;
  keyMoveSource = TCTreeNode::None;
  ShowPointer(NodeUnder(QCursor::pos()));
}

void TCPlayListManagerTreeView::mousePressEvent(QMouseEvent* event) {
  const bool isLeft = event->button() == Qt::LeftButton;
  if (isLeft) {
    const QPoint place = event->position().toPoint();
    const QModelIndex index = indexAt(place);
    pressPlaced = false;
    clickMayEdit = !focusCameByPress && selectionModel()->isSelected(index) && IsOnLabel(index, place);
    focusCameByPress = false;
  }
  QTreeView::mousePressEvent(event);
  if (event->button() == Qt::RightButton) Q_EMIT contextMenuWanted(event->globalPosition().toPoint());
  if (!isLeft) return;

  if (placing == TCPlacing::Waiting) {
    pressPlaced = true;
    Q_EMIT placeWanted(SelectedNode());
    return;
  }
  const TCTreeNode node = NodeUnder(event->globalPosition().toPoint());
  buttonPressed = true;
  pressedNode = node;
  pressPlace = event->position().toPoint();
  viewport()->setCursor(cursors.Of(node == TCTreeNode::None ? TCPointer::Arrow : TCPointer::Pressed));
  if (node != TCTreeNode::None) Q_EMIT nodePressed(node);
}

void TCPlayListManagerTreeView::mouseMoveEvent(QMouseEvent* event) {
  // With the button down the toolkit would select by itself.
  if (event->buttons() == Qt::NoButton) QTreeView::mouseMoveEvent(event);
  const TCTreeNode under = NodeUnder(event->globalPosition().toPoint());
  if (placing == TCPlacing::Waiting) ShowDropTarget(under);
  if (!event->buttons().testFlag(Qt::LeftButton)) {
    ShowPointer(under);
  } else if (buttonPressed) {
    DragWithin(*event);
  }
}

void TCPlayListManagerTreeView::DragWithin(const QMouseEvent& event) {
  const TCTreeNode under = NodeUnder(event.globalPosition().toPoint());
  if (dragging) {
    ShowPointer(under);
  } else {
    const int way = (event.position().toPoint() - pressPlace).manhattanLength();
    const bool isClick = under == pressedNode && way < QApplication::startDragDistance();
    if (pressedNode == TCTreeNode::None || isClick) return;
    dragging = true;
    ForgetClick();
    viewport()->setCursor(cursors.Of(TCPointer::Pressed));
  }
  AimAt(event.globalPosition().toPoint());
  edgeScroll.Follow(event.globalPosition().toPoint());
}

void TCPlayListManagerTreeView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    QTreeView::mouseReleaseEvent(event);
    return;
  }
  // The end of a drag, or of a click that placed songs, is not the end of a click on a label.
  if (dragging || pressPlaced) {
    setState(NoState);
  } else {
    QTreeView::mouseReleaseEvent(event);
  }
  const TCTreeNode target = NodeUnder(event->globalPosition().toPoint());
  const TCTreeNode source = pressedNode;
  const bool moves = dragging && buttonPressed && nodes->HasNode(source) && target != source;
  dragging = false;
  buttonPressed = false;
  pressedNode = TCTreeNode::None;
  edgeScroll.Stop();
  ShowPointer(target);
  if (moves && target != TCTreeNode::None) Q_EMIT nodeMoved(source, target);
}

void TCPlayListManagerTreeView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (placing == TCPlacing::Waiting || pressPlaced) {
    event->accept();
    return;
  }
  // Asked before the node opens, which moves those below it.
  const QPoint place = event->position().toPoint();
  const QModelIndex index = indexAt(place);
  const TCTreeNode node = nodes->NodeAt(index);
  const bool picks =
      event->button() == Qt::LeftButton && (IsOnPicture(index, place) || IsOnLabel(index, place));
  clickMayEdit = false;
  QTreeView::mouseDoubleClickEvent(event);
  clickMayEdit = false;
  if (picks) Q_EMIT nodePicked(node);
}

void TCPlayListManagerTreeView::contextMenuEvent(QContextMenuEvent* event) {
  // The mouse's was asked for when the button went down.
  event->accept();
  if (event->reason() == QContextMenuEvent::Mouse) return;
  Q_EMIT contextMenuWanted(MenuPlace(*viewport(), visualRect(currentIndex())));
}

void TCPlayListManagerTreeView::ShowDropTarget(TCTreeNode node) {
  const TCTreeNode target = nodes->LevelOf(node) == kSongLevel ? ParentOf(node) : node;
  if (target == TCTreeNode::None) return;
  SelectUnscrolled(target);
  expand(nodes->IndexOf(target));
}

void TCPlayListManagerTreeView::ShowPointer(TCTreeNode under) {
  TCPointer pointer = TCPointer::Arrow;
  if (placing == TCPlacing::Waiting || ctrlDrag) {
    pointer = TCPointer::Busy;
  } else if (under != TCTreeNode::None) {
    pointer = dragging ? TCPointer::Drag : TCPointer::Row;
  }
  viewport()->setCursor(cursors.Of(pointer));
}

TCTreeNode TCPlayListManagerTreeView::NodeUnder(QPoint globalPosition) const {
  if (!IsUnder(*viewport(), globalPosition)) return TCTreeNode::None;
  return nodes->NodeAt(indexAt(viewport()->mapFromGlobal(globalPosition)));
}

bool TCPlayListManagerTreeView::IsOnPicture(const QModelIndex& index, QPoint place) const {
  return index.isValid() && delegate->PictureRect(OptionFor(index), index).contains(place);
}

bool TCPlayListManagerTreeView::IsOnLabel(const QModelIndex& index, QPoint place) const {
  return index.isValid() && delegate->LabelRect(OptionFor(index), index).contains(place);
}

}  // namespace brevant
