// The playlist manager tree: groups, their playlists and the playlists' songs. Shows the nodes that the
// document gives it, and passes on what mouse and keys ask for: picking, renaming in place, dragging a node
// to another place, and where songs are to be put down. Mouse, keys and labels have a source file each.
// User-interface thread only.
#pragma once

#include <QPoint>
#include <QString>
#include <QTreeView>
#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "document/frame_display.h"
#include "document/tree_display.h"
#include "document/tree_presenter.h"
#include "views/edge_scroll.h"
#include "views/set_list_tree_model.h"
#include "views/stage_cursors.h"
#include "views/tree_node_stream.h"

namespace brevant {

class TCTreeNodeDelegate;

class TCPlayListManagerTreeView final : public QTreeView, public TCTreeDisplay {
  Q_OBJECT

 public:
  explicit TCPlayListManagerTreeView(QWidget* parent = nullptr);

  void SetPictures(TCSetListTreeModel::TCPictures pictures);
  void SetCursors(const TCStageCursors& stageCursors);
  // Asked when a label was given another text (trimmed, never empty): true when the node's entry has that
  // name now. Until somebody answers, no entry is renamed.
  using TCRename = std::function<bool(TCTreeNode node, const QString& name)>;
  void SetRename(TCRename answer) { rename = std::move(answer); }
  // While placing waits, the group or playlist under the mouse is selected and opened, and a click says
  // where.
  void SetPlacing(TCPlacing state);

  // Songs are dragged out of the playlist: the same while the mouse is over the tree.
  void FollowCtrlDrag(QPoint globalPosition);
  void EndCtrlDrag();

  // None when nothing is selected.
  [[nodiscard]] TCNodeKind SelectedKind() const;
  // The label, which is the entry's name unless it was edited to blanks.
  [[nodiscard]] QString NodeText(TCTreeNode node) const { return nodes->TextOf(node); }

  std::vector<TCTreeNode> AddNodes(TCTreeNode parent, std::size_t index,
                                   std::vector<std::u16string> texts) override;
  void DeleteNodes(TCTreeNode first, std::size_t count) override;
  void MoveNode(TCTreeNode node, TCTreeNode parent, std::size_t index) override;
  void ClearNodes() override;
  void SetNodeText(TCTreeNode node, std::u16string_view text) override;

  [[nodiscard]] TCTreeNode SelectedNode() const override;
  [[nodiscard]] TCTreeNode ParentOf(TCTreeNode node) const override;
  [[nodiscard]] std::size_t PlaceOf(TCTreeNode node) const override;
  void SelectNode(TCTreeNode node) override;
  void FollowNode(TCTreeNode node) override;
  void ExpandNode(TCTreeNode node) override;

  void TakeFocus() override;
  [[nodiscard]] bool HasFocus() const override;
  void ResetMouseState() override;

 Q_SIGNALS:
  // The left button went down on a node. Nothing is to be played by it.
  void nodePressed(TCTreeNode node);
  // A double-click on a node's picture or label.
  void nodePicked(TCTreeNode node);
  // Enter, once for its press and once for its release, with a playlist or song selected.
  void enterPressed();
  // By mouse or keys: `source` is to go where `target`, another node, stands. They may be of different
  // levels.
  void nodeMoved(TCTreeNode source, TCTreeNode target);
  // A click while placing waits: at the node that is selected then. None when none is.
  void placeWanted(TCTreeNode at);
  // A press of the right button, or the keyboard's menu key.
  void contextMenuWanted(QPoint globalPosition);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void keyReleaseEvent(QKeyEvent* event) override;
  void focusInEvent(QFocusEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;
  bool viewportEvent(QEvent* event) override;
  bool edit(const QModelIndex& index, EditTrigger trigger, QEvent* event) override;
  void drawBranches(QPainter* painter, const QRect& rect, const QModelIndex& index) const override;
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(
      const QModelIndex& index, const QEvent* event = nullptr) const override;

 private:
  void RenameFromLabel(const QModelIndex& index, const QString& typed);
  void ForgetClick();
  [[nodiscard]] bool EnterActs() const;
  void DragWithin(const QMouseEvent& event);
  // What the mouse is over now is the target of the drag of the moment.
  void AimAt(QPoint globalPosition);
  void ShowDropTarget(TCTreeNode node);
  void ShowPointer(TCTreeNode under);
  void SelectUnscrolled(TCTreeNode node);
  void OpenWayTo(TCTreeNode node);

  // None beside all nodes, outside of the tree, and where another window lies above it.
  [[nodiscard]] TCTreeNode NodeUnder(QPoint globalPosition) const;
  [[nodiscard]] bool IsOnPicture(const QModelIndex& index, QPoint place) const;
  [[nodiscard]] bool IsOnLabel(const QModelIndex& index, QPoint place) const;
  [[nodiscard]] QStyleOptionViewItem OptionFor(const QModelIndex& index) const;
  [[nodiscard]] bool UserWorksHere() const;
  [[nodiscard]] bool KeysGoHere() const;
  [[nodiscard]] bool ShowToolTip(const QPoint& place, const QPoint& globalPosition);

  TCSetListTreeModel* nodes = nullptr;  // a child, as the next one
  TCTreeNodeDelegate* delegate = nullptr;
  TCEdgeScroll edgeScroll;
  TCRename rename = [](TCTreeNode /*node*/, const QString& /*name*/) { return false; };
  TCStageCursors cursors;
  TCPlacing placing = TCPlacing::Nothing;

  bool buttonPressed = false;  // the left button, in the tree, and what it may do is not yet over
  bool dragging = false;
  bool ctrlDrag = false;          // of songs out of the playlist
  bool pressPlaced = false;       // the last press said where songs go; the rest of that click means nothing
  bool focusCameByPress = false;  // the press that gives the tree the focus is no second click on a label
  bool clickMayEdit = false;      // the press was on the label of the node already selected
  TCTreeNode pressedNode = TCTreeNode::None;    // the source of a drag
  TCTreeNode keyMoveSource = TCTreeNode::None;  // selected when Shift+Up or Shift+Down went down
  QPoint pressPlace;
  int enterDown = 0;  // the Enter key that went down here; a release without it belongs to something else
};

}  // namespace brevant
