#include "views/play_list_manager_tree_view.h"

#include <QApplication>
#include <QDockWidget>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QPainter>
#include <QToolTip>
#include <algorithm>
#include <utility>

#include "views/keyboard_focus.h"
#include "views/text_conversion.h"
#include "views/tree_lines.h"
#include "views/tree_node_delegate.h"

namespace brevant {

namespace {

constexpr QSize kPictureSize(23, 19);

// Null when the widget is in none.
QDockWidget* PaneAround(QWidget& widget) {
  QWidget* around = widget.parentWidget();
  while (around != nullptr && qobject_cast<QDockWidget*>(around) == nullptr) around = around->parentWidget();
  return static_cast<QDockWidget*>(around);
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
                     "playlist or a song to the playlist window; entries are renamed, dragged to another "
                     "place and removed here."));
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

std::size_t TCPlayListManagerTreeView::PlaceOf(TCTreeNode node) const {
  return nodes->PlaceOf(node);
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
  // In a pane that is closed, or behind another tab, it would be nowhere, and the keys with it.
  QDockWidget* pane = PaneAround(*this);
  if (pane != nullptr && pane->isHidden()) return;
  if (pane != nullptr) pane->raise();
  if (window()->isVisible() && !isVisible()) return;
  GiveKeyboardTo(*this);
}

bool TCPlayListManagerTreeView::HasFocus() const {
  return KeysGoHere();
}

// To the tree or the field of a label; behind a menu, a dialog or another program this is where they will go.
bool TCPlayListManagerTreeView::KeysGoHere() const {
  const QWidget* focus = window()->focusWidget();
  if (focus != this && !isAncestorOf(focus)) return false;
  const QWidget* active = QApplication::activeWindow();
  const bool taken = QApplication::focusWidget() != nullptr;  // not by a bar that floats and was clicked
  return active == window() || active == nullptr || QApplication::activeModalWidget() != nullptr || !taken;
}

void TCPlayListManagerTreeView::focusInEvent(QFocusEvent* event) {
  focusCameByPress = event->reason() == Qt::MouseFocusReason;
  QTreeView::focusInEvent(event);
}

void TCPlayListManagerTreeView::focusOutEvent(QFocusEvent* event) {
  buttonPressed = false;
  enterDown = 0;
  keyMoveSource = TCTreeNode::None;
  ForgetClick();
  QTreeView::focusOutEvent(event);
}

void TCPlayListManagerTreeView::SelectUnscrolled(TCTreeNode node) {
  // What is under the mouse must not slide away: neither a node at the edge, seen in part, nor the songs of a
  // playlist that is itself scrolled away.
  setAutoScroll(false);
  setCurrentIndex(nodes->IndexOf(node));
  setAutoScroll(true);
}

QStyleOptionViewItem TCPlayListManagerTreeView::OptionFor(const QModelIndex& index) const {
  QStyleOptionViewItem option;
  initViewItemOption(&option);
  option.rect = visualRect(index);
  return option;
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
  painter->save();
  painter->setPen(palette().color(QPalette::Mid));
  DrawTreeLines(*painter, rect, index, indentation());
  painter->restore();
  QTreeView::drawBranches(painter, rect, index);  // the style draws the arrows alone
}

}  // namespace brevant
