// Draws the nodes of the playlist manager tree, each with its picture, and hands on what was typed into a
// label. Part of the tree; user-interface thread only.
#pragma once

#include <QPointer>
#include <QStyledItemDelegate>
#include <QWidget>

namespace brevant {

class TCTreeNodeDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  // Where the label's text and its picture are drawn inside `option.rect`, which is the node's whole row.
  [[nodiscard]] QRect LabelRect(const QStyleOptionViewItem& option, const QModelIndex& index) const;
  [[nodiscard]] QRect PictureRect(const QStyleOptionViewItem& option, const QModelIndex& index) const;
  // The label's text does not fit in its row.
  [[nodiscard]] bool IsCutOff(const QStyleOptionViewItem& option, const QModelIndex& index) const;

  // The field that a label is edited in, while one is.
  [[nodiscard]] QWidget* Editor() const { return labelEditor; }

  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;
  void setModelData(QWidget* editor, QAbstractItemModel* model, const QModelIndex& index) const override;

 Q_SIGNALS:
  // Editing has ended and left another text than it began with.
  void labelTyped(const QModelIndex& index, const QString& text) const;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;

 private:
  [[nodiscard]] QRect PartOf(const QStyleOptionViewItem& option, const QModelIndex& index,
                             QStyle::SubElement part) const;

  mutable QPointer<QWidget> labelEditor;  // Qt makes it in a const function
};

}  // namespace brevant
