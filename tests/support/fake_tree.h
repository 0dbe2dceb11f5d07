// A playlist manager tree without a window: keeps the nodes it is given, for tests of whoever fills it.
#pragma once

#include <algorithm>
#include <map>
#include <string>
#include <vector>

#include "document/tree_display.h"

namespace brevant {

class TCFakeTree final : public TCTreeDisplay {
 public:
  struct Node {
    TCTreeNode parent = TCTreeNode::None;
    std::u16string text;
    std::vector<TCTreeNode> children;
    bool expanded = false;
  };

  std::map<TCTreeNode, Node> nodes;
  std::vector<TCTreeNode> roots;
  TCTreeNode selected = TCTreeNode::None;
  TCTreeNode followed = TCTreeNode::None;
  bool focused = false;
  int focuses = 0;
  int mouseResets = 0;

  // Every node's text from top to bottom, two blanks deeper a level.
  [[nodiscard]] std::vector<std::u16string> Lines() const {
    std::vector<std::u16string> lines;
    AddLines(roots, u"", lines);
    return lines;
  }
  // The first node of this text; None without one.
  [[nodiscard]] TCTreeNode NodeNamed(std::u16string_view text) const {
    for (const auto& [node, content] : nodes) {
      if (content.text == text) return node;
    }
    return TCTreeNode::None;
  }
  [[nodiscard]] std::u16string SelectedText() const {
    const auto found = nodes.find(selected);
    return found == nodes.end() ? std::u16string() : found->second.text;
  }

  std::vector<TCTreeNode> AddNodes(TCTreeNode parent, std::size_t index,
                                   std::vector<std::u16string> texts) override {
    std::vector<TCTreeNode> added;
    if (parent != TCTreeNode::None && nodes.count(parent) == 0) return added;
    std::vector<TCTreeNode>& siblings = ChildrenOf(parent);
    index = std::min(index, siblings.size());
    for (std::u16string& text : texts) {
      const auto node = static_cast<TCTreeNode>(++lastNode);
      nodes[node] = {parent, std::move(text), {}, false};
      added.push_back(node);
    }
    siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(index), added.begin(), added.end());
    return added;
  }
  void DeleteNodes(TCTreeNode first, std::size_t count) override {
    if (nodes.count(first) == 0) return;
    const std::vector<TCTreeNode>& siblings = ChildrenOf(nodes[first].parent);
    const auto begin = std::find(siblings.begin(), siblings.end(), first);
    const auto left = static_cast<std::size_t>(siblings.end() - begin);
    const auto end = begin + static_cast<std::ptrdiff_t>(std::min(count, left));
    for (const TCTreeNode node : std::vector(begin, end)) Delete(node);
  }
  void MoveNode(TCTreeNode node, TCTreeNode parent, std::size_t index) override {
    if (nodes.count(node) == 0) return;
    std::erase(ChildrenOf(nodes[node].parent), node);
    std::vector<TCTreeNode>& siblings = ChildrenOf(parent);
    index = std::min(index, siblings.size());
    siblings.insert(siblings.begin() + static_cast<std::ptrdiff_t>(index), node);
    nodes[node].parent = parent;
  }
  void ClearNodes() override {
    nodes.clear();
    roots.clear();
    selected = TCTreeNode::None;
  }
  void SetNodeText(TCTreeNode node, std::u16string_view text) override {
    if (nodes.count(node) != 0) nodes[node].text = text;
  }
  [[nodiscard]] TCTreeNode SelectedNode() const override { return selected; }
  [[nodiscard]] TCTreeNode ParentOf(TCTreeNode node) const override {
    const auto found = nodes.find(node);
    return found == nodes.end() ? TCTreeNode::None : found->second.parent;
  }
  [[nodiscard]] std::size_t PlaceOf(TCTreeNode node) const override {
    const auto found = nodes.find(node);
    if (found == nodes.end()) return 0;
    const TCTreeNode parent = found->second.parent;
    const std::vector<TCTreeNode>& siblings = parent == TCTreeNode::None ? roots : nodes.at(parent).children;
    return static_cast<std::size_t>(std::find(siblings.begin(), siblings.end(), node) - siblings.begin());
  }
  void SelectNode(TCTreeNode node) override {
    if (nodes.count(node) != 0) selected = node;
  }
  void FollowNode(TCTreeNode node) override { followed = node; }
  void ExpandNode(TCTreeNode node) override {
    if (nodes.count(node) != 0) nodes[node].expanded = true;
  }
  void TakeFocus() override { ++focuses; }
  [[nodiscard]] bool HasFocus() const override { return focused; }
  void ResetMouseState() override { ++mouseResets; }

 private:
  void Delete(TCTreeNode node) {
    for (const TCTreeNode child : std::vector(nodes[node].children)) Delete(child);
    std::erase(ChildrenOf(nodes[node].parent), node);
    nodes.erase(node);
    if (selected == node) selected = TCTreeNode::None;
  }
  [[nodiscard]] std::vector<TCTreeNode>& ChildrenOf(TCTreeNode node) {
    return node == TCTreeNode::None ? roots : nodes[node].children;
  }
  void AddLines(const std::vector<TCTreeNode>& list, const std::u16string& indent,
                std::vector<std::u16string>& lines) const {
    for (const TCTreeNode node : list) {
      const Node& content = nodes.at(node);
      lines.push_back(indent + content.text);
      AddLines(content.children, indent + u"  ", lines);
    }
  }

  std::uint64_t lastNode = 0;
};

}  // namespace brevant
