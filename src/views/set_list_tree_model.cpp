#include "views/set_list_tree_model.h"

#include <algorithm>
#include <utility>

#include "views/one_line_text.h"
#include "views/text_conversion.h"

namespace brevant {

namespace {

constexpr int kDeepestLevel = 3;
constexpr int kGenerationBits = 32;

std::ptrdiff_t Offset(std::size_t place) {
  return static_cast<std::ptrdiff_t>(place);
}

}  // namespace

TCSetListTreeModel::TCSetListTreeModel(QObject* parent) : QAbstractItemModel(parent), nodes(1) {}

void TCSetListTreeModel::SetPictures(TCPictures treePictures) {
  pictures = std::move(treePictures);
}

std::vector<TCTreeNode> TCSetListTreeModel::AddNodes(TCTreeNode parentNode, std::size_t index,
                                                     const std::vector<std::u16string>& texts) {
  const TCSlot parentSlot = SlotOf(parentNode);
  if (parentSlot == kRoot && parentNode != TCTreeNode::None) return {};
  if (nodes[parentSlot].level >= kDeepestLevel || texts.empty()) return {};

  const std::size_t first = std::min(index, nodes[parentSlot].children.size());
  const std::size_t end = first + texts.size();
  beginInsertRows(IndexOfSlot(parentSlot), static_cast<int>(first), static_cast<int>(end) - 1);
  std::vector<TCSlot> slots;
  slots.reserve(texts.size());
  for (const std::u16string& text : texts) slots.push_back(TakeSlot(parentSlot, ToQString(text)));
  std::vector<TCSlot>& children = nodes[parentSlot].children;
  children.insert(children.begin() + Offset(first), slots.begin(), slots.end());
  Renumber(parentSlot, first, children.size());
  endInsertRows();

  std::vector<TCTreeNode> added;
  added.reserve(slots.size());
  for (const TCSlot slot : slots) added.push_back(HandleOf(slot));
  return added;
}

void TCSetListTreeModel::DeleteNodes(TCTreeNode firstNode, std::size_t count) {
  const TCSlot firstSlot = SlotOf(firstNode);
  if (firstSlot == kRoot || count == 0) return;
  const TCSlot parentSlot = nodes[firstSlot].parent;
  std::vector<TCSlot>& siblings = nodes[parentSlot].children;
  const auto first = static_cast<std::size_t>(nodes[firstSlot].row);
  const std::size_t end = first + std::min(count, siblings.size() - first);
  beginRemoveRows(IndexOfSlot(parentSlot), static_cast<int>(first), static_cast<int>(end) - 1);
  for (std::size_t place = first; place < end; ++place) FreeSlot(siblings[place]);
  siblings.erase(siblings.begin() + Offset(first), siblings.begin() + Offset(end));
  Renumber(parentSlot, first, siblings.size());
  endRemoveRows();
}

void TCSetListTreeModel::MoveNode(TCTreeNode node, TCTreeNode parentNode, std::size_t index) {
  const TCSlot slot = SlotOf(node);
  const TCSlot target = SlotOf(parentNode);
  if (slot == kRoot || (target == kRoot && parentNode != TCTreeNode::None)) return;
  const TCSlot source = nodes[slot].parent;
  if (nodes[source].level != nodes[target].level) return;

  const auto from = static_cast<std::size_t>(nodes[slot].row);
  const std::size_t others = nodes[target].children.size() - (source == target ? 1 : 0);
  const std::size_t to = std::min(index, others);
  if (source == target && from == to) return;
  // Qt names the child that the node is to stand before, with the node still in its old place.
  const std::size_t before = source == target && to > from ? to + 1 : to;
  beginMoveRows(IndexOfSlot(source), static_cast<int>(from), static_cast<int>(from), IndexOfSlot(target),
                static_cast<int>(before));
  std::vector<TCSlot>& oldSiblings = nodes[source].children;
  std::vector<TCSlot>& newSiblings = nodes[target].children;
  oldSiblings.erase(oldSiblings.begin() + Offset(from));
  newSiblings.insert(newSiblings.begin() + Offset(to), slot);
  nodes[slot].parent = target;
  if (source == target) {
    Renumber(source, std::min(from, to), std::max(from, to) + 1);
  } else {
    Renumber(source, from, oldSiblings.size());
    Renumber(target, to, newSiblings.size());
  }
  endMoveRows();
}

void TCSetListTreeModel::ClearNodes() {
  beginResetModel();
  nodes.assign(1, TCNode());
  freeSlots.clear();
  endResetModel();
}

void TCSetListTreeModel::SetText(TCTreeNode node, const QString& text) {
  const TCSlot slot = SlotOf(node);
  if (slot == kRoot || nodes[slot].text == text) return;
  nodes[slot].text = text;
  const QModelIndex changed = IndexOfSlot(slot);
  Q_EMIT dataChanged(changed, changed);
}

TCTreeNode TCSetListTreeModel::ParentOf(TCTreeNode node) const {
  const TCSlot slot = SlotOf(node);
  return slot == kRoot ? TCTreeNode::None : HandleOf(nodes[slot].parent);
}

std::size_t TCSetListTreeModel::PlaceOf(TCTreeNode node) const {
  return static_cast<std::size_t>(nodes[SlotOf(node)].row);
}

QString TCSetListTreeModel::TextOf(TCTreeNode node) const {
  return nodes[SlotOf(node)].text;
}

bool TCSetListTreeModel::HasNode(TCTreeNode node) const {
  return SlotOf(node) != kRoot;
}

int TCSetListTreeModel::LevelOf(TCTreeNode node) const {
  return nodes[SlotOf(node)].level;
}

QModelIndex TCSetListTreeModel::IndexOf(TCTreeNode node) const {
  return IndexOfSlot(SlotOf(node));
}

TCTreeNode TCSetListTreeModel::NodeAt(const QModelIndex& index) const {
  return HandleOf(SlotOf(index));
}

QModelIndex TCSetListTreeModel::index(int row, int column, const QModelIndex& parentIndex) const {
  if (!hasIndex(row, column, parentIndex)) return {};
  return createIndex(row, column, nodes[SlotOf(parentIndex)].children[static_cast<std::size_t>(row)]);
}

QModelIndex TCSetListTreeModel::parent(const QModelIndex& child) const {
  return child.isValid() ? IndexOfSlot(nodes[SlotOf(child)].parent) : QModelIndex();
}

int TCSetListTreeModel::rowCount(const QModelIndex& parentIndex) const {
  return static_cast<int>(nodes[SlotOf(parentIndex)].children.size());
}

int TCSetListTreeModel::columnCount(const QModelIndex& /*parent*/) const {
  return 1;
}

bool TCSetListTreeModel::hasChildren(const QModelIndex& parentIndex) const {
  return !nodes[SlotOf(parentIndex)].children.empty();
}

QVariant TCSetListTreeModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  const TCNode& node = nodes[SlotOf(index)];
  const auto picture = static_cast<std::size_t>(node.level - 1) * 2;
  switch (role) {
    case Qt::DisplayRole:
      return OneLineText(node.text);
    case Qt::EditRole:
      return node.text;
    case Qt::DecorationRole:
      return pictures[picture];
    case kSelectedPictureRole:
      return pictures[picture + 1];
    default:
      return {};
  }
}

Qt::ItemFlags TCSetListTreeModel::flags(const QModelIndex& index) const {
  if (!index.isValid()) return Qt::NoItemFlags;
  const Qt::ItemFlags node = Qt::ItemIsEnabled | Qt::ItemIsSelectable | Qt::ItemIsEditable;
  return nodes[SlotOf(index)].level < kDeepestLevel ? node : node | Qt::ItemNeverHasChildren;
}

TCSetListTreeModel::TCSlot TCSetListTreeModel::SlotOf(const QModelIndex& index) {
  return index.isValid() ? static_cast<TCSlot>(index.internalId()) : kRoot;
}

TCSetListTreeModel::TCSlot TCSetListTreeModel::SlotOf(TCTreeNode node) const {
  const auto handle = static_cast<std::uint64_t>(node);
  const auto slot = static_cast<TCSlot>(handle);
  const auto generation = static_cast<std::uint32_t>(handle >> kGenerationBits);
  const bool there = generation != 0 && slot < nodes.size() && nodes[slot].generation == generation;
  return there ? slot : kRoot;
}

TCTreeNode TCSetListTreeModel::HandleOf(TCSlot slot) const {
  if (slot == kRoot) return TCTreeNode::None;
  const std::uint64_t generation = nodes[slot].generation;
  return static_cast<TCTreeNode>(generation << kGenerationBits | slot);
}

QModelIndex TCSetListTreeModel::IndexOfSlot(TCSlot slot) const {
  return slot == kRoot ? QModelIndex() : createIndex(nodes[slot].row, 0, slot);
}

TCSetListTreeModel::TCSlot TCSetListTreeModel::TakeSlot(TCSlot parentSlot, const QString& text) {
  TCSlot slot = static_cast<TCSlot>(nodes.size());
  if (freeSlots.empty()) {
    nodes.emplace_back();
  } else {
    slot = freeSlots.back();
    freeSlots.pop_back();
  }
  if (++lastGeneration == 0) lastGeneration = 1;
  TCNode& node = nodes[slot];
  node.text = text;
  node.parent = parentSlot;
  node.generation = lastGeneration;
  node.level = nodes[parentSlot].level + 1;
  return slot;
}

void TCSetListTreeModel::FreeSlot(TCSlot slot) {
  for (const TCSlot child : nodes[slot].children) FreeSlot(child);
  nodes[slot] = TCNode();
  freeSlots.push_back(slot);
}

void TCSetListTreeModel::Renumber(TCSlot parentSlot, std::size_t first, std::size_t last) {
  const std::vector<TCSlot>& children = nodes[parentSlot].children;
  for (std::size_t place = first; place < last; ++place) {
    nodes[children[place]].row = static_cast<int>(place);
  }
}

}  // namespace brevant
