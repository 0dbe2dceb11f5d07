#include "views/play_list_manager_tree_view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPainter>
#include <QScopedValueRollback>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "text/white_space.h"
#include "views/menu_place.h"
#include "views/text_conversion.h"
#include "views/tree_node_delegate.h"
#include "views/under_pointer.h"

namespace brevant {

namespace {

constexpr QSize kPictureSize(23, 19);
constexpr int kSongLevel = 3;
constexpr int kArrowRoom = 7;  // pixels that the lines leave free around the middle of an arrow

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

TCPlayListManagerTreeView::TCPlayListManagerTreeView(QWidget* parent)
    : QTreeView(parent),
      nodes(new TCSetListTreeModel(this)),
      delegate(new TCTreeNodeDelegate(this)),
      edgeScroll(*this, [this](QPoint place) { AimAt(place); }) {
  setObjectName(QStringLiteral("playListManagerTree"));
  setAccessibleName(QStringLiteral("Play List Manager"));
  setWhatsThis(
      QStringLiteral("All groups, playlists and songs of the document. A double-click, or Enter, takes a "
                     "playlist or a song to "
                     "the playlist window; entries are renamed, dragged to another place and removed here."));
  setModel(nodes);
  setItemDelegate(delegate);
  setIconSize(kPictureSize);
  setHeaderHidden(true);
  setFrameShape(NoFrame);
  setUniformRowHeights(true);
  setRootIsDecorated(true);
  setSelectionMode(SingleSelection);
  // By a second click on a label. No double-click, which picks a song, and no F2, which is a stage key.
  setEditTriggers(SelectedClicked);
  setDragDropMode(NoDragDrop);
  setTabKeyNavigation(false);
  viewport()->setMouseTracking(true);
  connect(delegate, &TCTreeNodeDelegate::labelTyped, this, &TCPlayListManagerTreeView::RenameFromLabel);
}

void TCPlayListManagerTreeView::SetPictures(TCSetListTreeModel::TCPictures pictures) {
  nodes->SetPictures(std::move(pictures));
  viewport()->update();
}

void TCPlayListManagerTreeView::SetCursors(const TCStageCursors& stageCursors) {
  cursors = stageCursors;
}

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

void TCPlayListManagerTreeView::AimAt(QPoint globalPosition) {
  const TCTreeNode under = NodeUnder(globalPosition);
  if (ctrlDrag) {
    ShowDropTarget(under);
  } else if (under != TCTreeNode::None) {
    SelectUnscrolled(under);
  }
}

void TCPlayListManagerTreeView::EndCtrlDrag() {
  ctrlDrag = false;
  edgeScroll.Stop();
  ShowPointer(NodeUnder(QCursor::pos()));
}

TCNodeKind TCPlayListManagerTreeView::SelectedKind() const {
  return static_cast<TCNodeKind>(nodes->LevelOf(SelectedNode()));
}

std::vector<TCTreeNode> TCPlayListManagerTreeView::AddNodes(TCTreeNode parent, std::size_t index,
                                                            std::vector<std::u16string> texts) {
  return nodes->AddNodes(parent, index, texts);
}

void TCPlayListManagerTreeView::DeleteNodes(TCTreeNode first, std::size_t count) {
  const QModelIndex index = nodes->IndexOf(first);
  if (!index.isValid() || count == 0) return;
  const int siblings = nodes->rowCount(index.parent());
  const int end = index.row() + static_cast<int>(std::min(count, static_cast<std::size_t>(siblings)));
  QModelIndex selected = nodes->IndexOf(SelectedNode());
  while (selected.isValid() && selected.parent() != index.parent()) selected = selected.parent();
  if (selected.isValid() && selected.row() >= index.row() && selected.row() < end) {
    // What was typed so far goes with the node.
    if (state() == EditingState) closeEditor(delegate->Editor(), QAbstractItemDelegate::NoHint);
    QModelIndex neighbour = index.parent();
    if (end < siblings) {
      neighbour = index.siblingAtRow(end);
    } else if (index.row() > 0) {
      neighbour = index.siblingAtRow(index.row() - 1);
    }
    SelectUnscrolled(nodes->NodeAt(neighbour));
  }
  nodes->DeleteNodes(first, count);
}

void TCPlayListManagerTreeView::MoveNode(TCTreeNode node, TCTreeNode parent, std::size_t index) {
  nodes->MoveNode(node, parent, index);
}

void TCPlayListManagerTreeView::ClearNodes() {
  ResetMouseState();
  nodes->ClearNodes();
}

void TCPlayListManagerTreeView::SetNodeText(TCTreeNode node, std::u16string_view text) {
  nodes->SetText(node, ToQString(text));
}

TCTreeNode TCPlayListManagerTreeView::SelectedNode() const {
  const QModelIndex current = currentIndex();
  return selectionModel()->isSelected(current) ? nodes->NodeAt(current) : TCTreeNode::None;
}

TCTreeNode TCPlayListManagerTreeView::ParentOf(TCTreeNode node) const {
  return nodes->ParentOf(node);
}

void TCPlayListManagerTreeView::SelectNode(TCTreeNode node) {
  const QModelIndex index = nodes->IndexOf(node);
  if (!index.isValid()) return;
  OpenWayTo(node);
  setCurrentIndex(index);
  scrollTo(index);
}

void TCPlayListManagerTreeView::FollowNode(TCTreeNode node) {
  if (UserWorksHere()) return;
  SelectNode(node);
}

bool TCPlayListManagerTreeView::UserWorksHere() const {
  return state() == EditingState || dragging || ctrlDrag || placing == TCPlacing::Waiting || KeysGoHere();
}

void TCPlayListManagerTreeView::ExpandNode(TCTreeNode node) {
  if (!nodes->HasNode(node)) return;
  OpenWayTo(node);
  expand(nodes->IndexOf(node));
}

void TCPlayListManagerTreeView::OpenWayTo(TCTreeNode node) {
  for (TCTreeNode above = ParentOf(node); above != TCTreeNode::None; above = ParentOf(above)) {
    expand(nodes->IndexOf(above));
  }
}

void TCPlayListManagerTreeView::TakeFocus() {
  // In a pane that is closed it would be nowhere, and the keys with it.
  if (window()->isVisible() && !isVisible()) return;
  const QWidget* active = QApplication::activeWindow();
  if (active != nullptr && active != window() && QApplication::activeModalWidget() == nullptr) {
    activateWindow();
  }
  setFocus(Qt::OtherFocusReason);
}

bool TCPlayListManagerTreeView::HasFocus() const {
  return KeysGoHere();
}

// To the tree or the field of a label; behind a menu, a dialog or another program this is where they will go.
bool TCPlayListManagerTreeView::KeysGoHere() const {
  const QWidget* focus = window()->focusWidget();
  if (focus != this && !isAncestorOf(focus)) return false;
  const QWidget* active = QApplication::activeWindow();
  return active == window() || active == nullptr || QApplication::activeModalWidget() != nullptr;
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

  const TCTreeNode node = NodeUnder(event->globalPosition().toPoint());
  if (placing == TCPlacing::Waiting) {
    pressPlaced = true;
    ShowPointer(node);
    Q_EMIT placeWanted();
    return;
  }
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

bool TCPlayListManagerTreeView::EnterActs() const {
  const TCNodeKind kind = SelectedKind();
  return kind == TCNodeKind::Playlist || kind == TCNodeKind::Song;
}

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

void TCPlayListManagerTreeView::focusInEvent(QFocusEvent* event) {
  focusCameByPress = event->reason() == Qt::MouseFocusReason;
  QTreeView::focusInEvent(event);
}

void TCPlayListManagerTreeView::focusOutEvent(QFocusEvent* event) {
  buttonPressed = false;
  enterDown = 0;
  ForgetClick();
  QTreeView::focusOutEvent(event);
}

bool TCPlayListManagerTreeView::edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) {
  return trigger == SelectedClicked && !clickMayEdit ? false : QTreeView::edit(index, trigger, event);
}

void TCPlayListManagerTreeView::ForgetClick() {
  clickMayEdit = false;
  // The toolkit waits whether the click becomes a double-click; a change of the current node ends that.
  QTreeView::edit(currentIndex(), CurrentChanged, nullptr);
}

void TCPlayListManagerTreeView::RenameFromLabel(const QModelIndex& index, const QString& typed) {
  const TCTreeNode node = nodes->NodeAt(index);
  const QString name = ToQString(Trim(FromQString(typed)));
  nodes->SetText(node, name.isEmpty() ? typed : name);
  if (!name.isEmpty() && !labelEdited(node, name)) nodes->SetText(node, typed);
}

void TCPlayListManagerTreeView::ShowDropTarget(TCTreeNode node) {
  const TCTreeNode target = nodes->LevelOf(node) == kSongLevel ? ParentOf(node) : node;
  if (target == TCTreeNode::None) return;
  SelectUnscrolled(target);
  expand(nodes->IndexOf(target));
}

void TCPlayListManagerTreeView::SelectUnscrolled(TCTreeNode node) {
  // What is under the mouse must not slide away: neither a node at the edge, seen in part, nor the songs of a
  // playlist that is itself scrolled away.
  setAutoScroll(false);
  setCurrentIndex(nodes->IndexOf(node));
  setAutoScroll(true);
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

QStyleOptionViewItem TCPlayListManagerTreeView::OptionFor(const QModelIndex& index) const {
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.rect = visualRect(index);
  return option;
}

bool TCPlayListManagerTreeView::IsOnPicture(const QModelIndex& index, QPoint place) const {
  return index.isValid() && delegate->PictureRect(OptionFor(index), index).contains(place);
}

bool TCPlayListManagerTreeView::IsOnLabel(const QModelIndex& index, QPoint place) const {
  return index.isValid() && delegate->LabelRect(OptionFor(index), index).contains(place);
}

bool TCPlayListManagerTreeView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto* help = static_cast<QHelpEvent*>(event);
    if (!ShowToolTip(help->pos(), help->globalPos())) QToolTip::hideText();
    return true;
  }
  return QTreeView::viewportEvent(event);
}

bool TCPlayListManagerTreeView::ShowToolTip(const QPoint& place, const QPoint& globalPosition) {
  const QModelIndex index = indexAt(place);
  if (!index.isValid() || !delegate->IsCutOff(OptionFor(index), index)) return false;
  // Escaped: a name that looks like markup is shown as it is.
  const QString text = index.data(Qt::DisplayRole).toString().toHtmlEscaped();
  QToolTip::showText(globalPosition, QStringLiteral("<span>%1</span>").arg(text), viewport(),
                     visualRect(index));
  return true;
}

QItemSelectionModel::SelectionFlags TCPlayListManagerTreeView::selectionCommand(
    const QModelIndex& index, const QEvent* /*event*/) const {
  // One node, whatever keys are held: nothing in a tree is taken out of the selection.
  return index.isValid() ? QItemSelectionModel::ClearAndSelect : QItemSelectionModel::NoUpdate;
}

void TCPlayListManagerTreeView::drawBranches(QPainter* painter, const QRect& rect,
                                             const QModelIndex& index) const {
  // Lines from each node to its parent; the style draws the arrows alone.
  painter->save();
  painter->setPen(palette().color(QPalette::Mid));
  QRect cell(rect.right() + 1 - indentation(), rect.top(), indentation(), rect.height());
  for (QModelIndex node = index; node.isValid(); node = node.parent()) {
    const QPoint middle = cell.center();
    const bool hasNext = node.row() + 1 < nodes->rowCount(node.parent());
    if (node == index) {
      const int gap = nodes->hasChildren(node) ? kArrowRoom : 0;
      const bool isFirst = node.row() == 0 && !node.parent().isValid();
      if (!isFirst) painter->drawLine(middle.x(), cell.top(), middle.x(), middle.y() - gap);
      if (hasNext) painter->drawLine(middle.x(), middle.y() + gap, middle.x(), cell.bottom());
      painter->drawLine(middle.x() + gap, middle.y(), cell.right(), middle.y());
    } else if (hasNext) {
      painter->drawLine(middle.x(), cell.top(), middle.x(), cell.bottom());
    }
    cell.translate(-indentation(), 0);
  }
  painter->restore();
  QTreeView::drawBranches(painter, rect, index);
}

}  // namespace brevant
