// The nodes that the playlist manager tree shows, three levels deep, as a model for Qt. Knows no songs: a
// node is a text in a place, and a handle that stays its own for as long as it is there. Built for documents
// of a hundred thousand songs: handles, rows and parents are found without a search. User-interface thread
// only.
#pragma once

#include <QAbstractItemModel>
#include <QIcon>
#include <QString>
#include <array>
#include <cstddef>
#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/set_list.h"

namespace brevant {

class TCSetListTreeModel final : public QAbstractItemModel {
  Q_OBJECT

 public:
  // The picture of a node while it is selected; Qt::DecorationRole has the plain one.
  static constexpr int kSelectedPictureRole = Qt::UserRole;

  // Group, playlist and song, each plain and then selected.
  using TCPictures = std::array<QIcon, 6>;

  explicit TCSetListTreeModel(QObject* parent = nullptr);

  void SetPictures(TCPictures treePictures);

  // As TCTreeDisplay has them.
  std::vector<TCTreeNode> AddNodes(TCTreeNode parent, std::size_t index,
                                   const std::vector<std::u16string>& texts);
  void DeleteNodes(TCTreeNode first, std::size_t count);
  void MoveNode(TCTreeNode node, TCTreeNode parent, std::size_t index);
  void ClearNodes();
  void SetText(TCTreeNode node, const QString& text);
  [[nodiscard]] TCTreeNode ParentOf(TCTreeNode node) const;
  [[nodiscard]] std::size_t PlaceOf(TCTreeNode node) const;

  // Whole, as it was given. Empty for a node that is not there.
  [[nodiscard]] QString TextOf(TCTreeNode node) const;
  [[nodiscard]] bool HasNode(TCTreeNode node) const;
  // 1 for the top level; 0 for a node that is not there.
  [[nodiscard]] int LevelOf(TCTreeNode node) const;
  // Invalid for a node that is not there.
  [[nodiscard]] QModelIndex IndexOf(TCTreeNode node) const;
  [[nodiscard]] TCTreeNode NodeAt(const QModelIndex& index) const;

  [[nodiscard]] QModelIndex index(int row, int column, const QModelIndex& parent = {}) const override;
  [[nodiscard]] QModelIndex parent(const QModelIndex& child) const override;
  using QObject::parent;
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] bool hasChildren(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;

 private:
  using TCSlot = std::uint32_t;
  static constexpr TCSlot kRoot = 0;

  struct TCNode {
    QString text;
    std::vector<TCSlot> children;
    TCSlot parent = kRoot;
    std::uint32_t generation = 0;  // 0 while the slot is free
    int row = 0;                   // among the parent's children
    int level = 0;                 // 0 for the root, 3 for a song
  };

  [[nodiscard]] static TCSlot SlotOf(const QModelIndex& index);
  // kRoot for None and for a node that is not there.
  [[nodiscard]] TCSlot SlotOf(TCTreeNode node) const;
  [[nodiscard]] TCTreeNode HandleOf(TCSlot slot) const;
  [[nodiscard]] QModelIndex IndexOfSlot(TCSlot slot) const;

  [[nodiscard]] TCSlot TakeSlot(TCSlot parent, const QString& text);
  void FreeSlot(TCSlot slot);
  // Of the children from `first` to before `last`.
  void Renumber(TCSlot parent, std::size_t first, std::size_t last);

  std::vector<TCNode> nodes;  // by slot; the root is always there
  std::vector<TCSlot> freeSlots;
  std::uint32_t lastGeneration = 0;  // no two nodes share one, so the handle of a node that went finds none
  TCPictures pictures;
};

}  // namespace brevant
