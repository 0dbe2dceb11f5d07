#include "views/playlist_row_delegate.h"

#include <QPainter>
#include <QWidget>

#include "views/column_widths.h"
#include "views/row_colours.h"

namespace brevant {

namespace {

constexpr int kOutline = 2;  // pixels

// A picture is drawn in the window's colours and not in the row's: black on white, it would be lost on a dark
// selected row, where that of a selected entry is seen.
void ShowPictureOn(TCRgb background, QStyleOptionViewItem& option) {
  if (option.icon.isNull()) return;
  const auto contrastOf = [&](QPalette::ColorRole role) {
    return ContrastRatio(background, option.palette.color(QPalette::Normal, role).rgb() & 0xFFFFFFU);
  };
  if (contrastOf(QPalette::HighlightedText) <= contrastOf(QPalette::ButtonText)) return;
  const qreal scale = option.widget != nullptr ? option.widget->devicePixelRatioF() : 1;
  option.icon = QIcon(option.icon.pixmap(option.decorationSize, scale, QIcon::Selected));
}

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
    const TCRgb background = SelectedBackground(text.rgb() & 0xFFFFFFU);
    option->backgroundBrush = ToQColor(background);
    ShowPictureOn(background, *option);
  }
  // The style would lay its own highlight over the row's colours.
  option->state &= ~(QStyle::State_Selected | QStyle::State_MouseOver | QStyle::State_HasFocus);
}

}  // namespace brevant
