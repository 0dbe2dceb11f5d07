// What Enter and the arrows do in the playlist manager tree; every other key is the key table's.

#include <QKeyEvent>
#include <utility>

#include "views/play_list_manager_tree_view.h"

namespace brevant {

namespace {

bool IsEnter(const QKeyEvent& event) {
  return event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
}

bool IsUpOrDown(const QKeyEvent& event) {
  return event.key() == Qt::Key_Up || event.key() == Qt::Key_Down;
}

bool IsArrow(const QKeyEvent& event) {
  return IsUpOrDown(event) || event.key() == Qt::Key_Left || event.key() == Qt::Key_Right;
}

}  // namespace

void TCPlayListManagerTreeView::keyPressEvent(QKeyEvent* event) {
  // What a label's field leaves over, Enter and arrows among it, is meant for the field alone.
  if (state() == EditingState) return;
  if (IsEnter(*event)) {
    if (!EnterActs()) {
      event->ignore();
    } else if (!event->isAutoRepeat()) {
      enterDown = event->key();
      Q_EMIT enterPressed();
    }
    return;
  }
  if (IsArrow(*event) && SelectedNode() == TCTreeNode::None) {
    // The toolkit stands on a node that it does not show as selected, and would go on from there: in a
    // document just opened the first group would be passed over, or never be selected when it is the only
    // one.
    const QModelIndex current = currentIndex();
    SelectNode(nodes->NodeAt(current.isValid() ? current : nodes->index(0, 0, {})));
    return;
  }
  if (IsUpOrDown(*event)) {
    // Before the tree moves the selection.
    const bool movesNode = event->modifiers().testFlag(Qt::ShiftModifier);
    keyMoveSource = movesNode ? SelectedNode() : TCTreeNode::None;
  }
  QTreeView::keyPressEvent(event);
}

void TCPlayListManagerTreeView::keyReleaseEvent(QKeyEvent* event) {
  if (IsEnter(*event)) {
    if (event->isAutoRepeat() || enterDown != event->key()) return;
    enterDown = 0;
    if (EnterActs()) Q_EMIT enterPressed();
    return;
  }
  QTreeView::keyReleaseEvent(event);
  if (!IsUpOrDown(*event)) return;
  const TCTreeNode source = std::exchange(keyMoveSource, TCTreeNode::None);
  const TCTreeNode target = SelectedNode();
  if (nodes->HasNode(source) && target != TCTreeNode::None && source != target) {
    Q_EMIT nodeMoved(source, target);
  }
}

bool TCPlayListManagerTreeView::EnterActs() const {
  const TCNodeKind kind = SelectedKind();
  return kind == TCNodeKind::Playlist || kind == TCNodeKind::Song;
}

}  // namespace brevant
