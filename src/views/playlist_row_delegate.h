// Draws the playlist's cells: every row in its own two colours, selected or not.
#pragma once

#include <QStyledItemDelegate>

namespace brevant {

class TCPlaylistRowDelegate final : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;

  void paint(QPainter* painter, const QStyleOptionViewItem& option, const QModelIndex& index) const override;

 protected:
  void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override;
};

}  // namespace brevant
