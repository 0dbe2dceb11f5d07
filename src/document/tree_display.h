// What the playlist manager tree can do for the document: nodes three levels deep, one of them selected. The
// tree shows and decides nothing, and it knows no songs; TCTreePresenter tells it what to show. A node that
// is not there (any more) is ignored. User-interface thread only.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "model/set_list.h"

namespace brevant {

class TCTreeDisplay {
 public:
  virtual ~TCTreeDisplay() = default;

  // Adds one child a text to `parent` (None: the top level), in order, the first of them at place `index`
  // (past the end: last). The new nodes, in the same order; nothing is selected or opened by it. Empty, and
  // nothing added, below the third level or when `parent` is not there.
  virtual std::vector<TCTreeNode> AddNodes(TCTreeNode parent, std::size_t index,
                                           std::vector<std::u16string> texts) = 0;
  // `first` and the siblings behind it, `count` nodes or as many as there are, with everything under them.
  // When the selected node goes, the tree selects a neighbour.
  virtual void DeleteNodes(TCTreeNode first, std::size_t count) = 0;
  void DeleteNode(TCTreeNode node) { DeleteNodes(node, 1); }
  // Puts a node, and all under it, at place `index` of `parent` (None: the top level), counted without the
  // node itself. It keeps its handle, and stays open and selected if it was. Never between levels.
  virtual void MoveNode(TCTreeNode node, TCTreeNode parent, std::size_t index) = 0;
  virtual void ClearNodes() = 0;
  virtual void SetNodeText(TCTreeNode node, std::u16string_view text) = 0;

  // None when nothing is selected.
  [[nodiscard]] virtual TCTreeNode SelectedNode() const = 0;
  // None for a node of the top level.
  [[nodiscard]] virtual TCTreeNode ParentOf(TCTreeNode node) const = 0;
  // Among the nodes of its parent; 0 for a node that is not there. Asked for each of a hundred thousand songs
  // at once, so it takes no search.
  [[nodiscard]] virtual std::size_t PlaceOf(TCTreeNode node) const = 0;

  // Selects the node alone and brings it into view, opening what it lies in.
  virtual void SelectNode(TCTreeNode node) = 0;
  // The same for a song that became current by itself: not while the user works in the tree, whose selection
  // says what the next command is for.
  virtual void FollowNode(TCTreeNode node) = 0;
  // Opens the node, so that its children show.
  virtual void ExpandNode(TCTreeNode node) = 0;

  virtual void TakeFocus() = 0;
  [[nodiscard]] virtual bool HasFocus() const = 0;
  // Drops a drag and a move by keys that are under way.
  virtual void ResetMouseState() = 0;
};

}  // namespace brevant
