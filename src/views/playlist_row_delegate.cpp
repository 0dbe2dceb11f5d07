#include "views/playlist_row_delegate.h"

#include <QPainter>

#include "views/column_widths.h"
#include "views/row_colours.h"

namespace brevant {

namespace {

constexpr int kOutline = 2;  // pixels

}  // namespace

void TCPlaylistRowDelegate::paint(QPainter* painter, const QStyleOptionViewItem& option,
                                  const QModelIndex& index) const {
  QStyledItemDelegate::paint(painter, option, index);
  if (!option.state.testFlag(QStyle::State_Selected)) return;
  // One frame around the whole row: every cell draws its share.
  const QColor outline = ToQColor(kSelectionOutline);
  const QRect& cell = option.rect;
  painter->fillRect(cell.left(), cell.top(), cell.width(), kOutline, outline);
  painter->fillRect(cell.left(), cell.bottom() + 1 - kOutline, cell.width(), kOutline, outline);
  if (index.column() == 0) painter->fillRect(cell.left(), cell.top(), kOutline, cell.height(), outline);
  if (index.column() == kPlaylistColumns - 1) {
    painter->fillRect(cell.right() + 1 - kOutline, cell.top(), kOutline, cell.height(), outline);
  }
}

void TCPlaylistRowDelegate::initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const {
  QStyledItemDelegate::initStyleOption(option, index);
  if (option->state.testFlag(QStyle::State_Selected)) {
    const QColor text = option->palette.color(QPalette::Normal, QPalette::Text);
    option->backgroundBrush = ToQColor(SelectedBackground(text.rgb() & 0xFFFFFFU));
  }
  // The style would lay its own highlight over the row's colours.
  option->state &= ~(QStyle::State_Selected | QStyle::State_MouseOver | QStyle::State_HasFocus);
}

}  // namespace brevant
