#include "views/playlist_model.h"

#include <QBrush>
#include <algorithm>
#include <utility>

#include "resources/string_table.h"
#include "views/one_line_text.h"
#include "views/row_colours.h"
#include "views/text_conversion.h"

namespace brevant {

namespace {

QString CellText(std::u16string_view text) {
  return OneLineText(QStringView(text.data(), static_cast<qsizetype>(text.size())));
}

}  // namespace

TCPlaylistModel::TCPlaylistModel(QObject* parent)
    : QAbstractTableModel(parent), nameHeader(ToQString(TextOf(TCTextId::PlayListColumn))) {}

void TCPlaylistModel::ShowRows(std::vector<TCPlaylistRow> newRows, TCShowRows mode) {
  if (mode == TCShowRows::Afresh) {
    beginResetModel();
    rows = std::move(newRows);
    endResetModel();
    return;
  }
  const int before = rowCount();
  const int after = static_cast<int>(newRows.size());
  if (after < before) {
    beginRemoveRows({}, after, before - 1);
    rows = std::move(newRows);
    endRemoveRows();
  } else if (after > before) {
    beginInsertRows({}, before, after - 1);
    rows = std::move(newRows);
    endInsertRows();
  } else {
    rows = std::move(newRows);
  }
  Redraw(0, std::min(before, after) - 1);
}

void TCPlaylistModel::SetColours(const std::vector<TCRowColours>& colours) {
  const std::size_t coloured = std::min(colours.size(), rows.size());
  for (std::size_t row = 0; row < coloured; ++row) rows[row].colours = colours[row];
  Redraw(0, static_cast<int>(coloured) - 1);
}

void TCPlaylistModel::SetTexts(int row, const TCRowTexts& texts) {
  if (!HasRow(row)) return;
  rows[static_cast<std::size_t>(row)].texts = texts;
  Redraw(row, row);
}

void TCPlaylistModel::SetTime(int row, std::u16string_view time) {
  if (!HasRow(row)) return;
  rows[static_cast<std::size_t>(row)].texts.time = time;
  Redraw(row, row);
}

void TCPlaylistModel::SetNameHeader(const QString& text) {
  if (text == nameHeader) return;
  nameHeader = text;
  const int section = static_cast<int>(TCPlaylistColumn::Name);
  Q_EMIT headerDataChanged(Qt::Horizontal, section, section);
}

void TCPlaylistModel::SetRowPicture(const QIcon& rowPicture) {
  picture = rowPicture;
  Redraw(0, rowCount() - 1);
}

bool TCPlaylistModel::HasRow(int row) const {
  return row >= 0 && row < rowCount();
}

const std::u16string& TCPlaylistModel::TextIn(const TCPlaylistRow& row, TCPlaylistColumn column) {
  static const std::u16string none;
  switch (column) {
    case TCPlaylistColumn::Number:
      return row.texts.number;
    case TCPlaylistColumn::Status:
      return row.texts.status;
    case TCPlaylistColumn::Time:
      return row.texts.time;
    case TCPlaylistColumn::Name:
      return row.texts.name;
    case TCPlaylistColumn::Picture:
      break;
  }
  return none;
}

int TCPlaylistModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : static_cast<int>(rows.size());
}

int TCPlaylistModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : kPlaylistColumns;
}

QVariant TCPlaylistModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid() || !HasRow(index.row()) || index.column() >= kPlaylistColumns) return {};
  const TCPlaylistRow& row = rows[static_cast<std::size_t>(index.row())];
  const auto column = static_cast<TCPlaylistColumn>(index.column());
  switch (role) {
    case Qt::DisplayRole:
      if (column == TCPlaylistColumn::Picture) return {};
      return CellText(TextIn(row, column));
    case Qt::DecorationRole:
      if (column != TCPlaylistColumn::Picture || picture.isNull()) return {};
      return picture;
    case Qt::ForegroundRole:
      return QBrush(ToQColor(row.colours.text));
    case Qt::BackgroundRole:
      return QBrush(ToQColor(row.colours.background));
    default:
      return {};
  }
}

QVariant TCPlaylistModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole) return {};
  switch (static_cast<TCPlaylistColumn>(section)) {
    case TCPlaylistColumn::Picture:
      return ToQString(TextOf(TCTextId::PictureColumn));
    case TCPlaylistColumn::Number:
      return ToQString(TextOf(TCTextId::SongNumberColumn));
    case TCPlaylistColumn::Status:
      return ToQString(TextOf(TCTextId::StatusColumn));
    case TCPlaylistColumn::Time:
      return ToQString(TextOf(TCTextId::SongTimeColumn));
    case TCPlaylistColumn::Name:
      return nameHeader;
  }
  return {};
}

void TCPlaylistModel::Redraw(int firstRow, int lastRow) {
  if (lastRow < firstRow) return;
  Q_EMIT dataChanged(index(firstRow, 0), index(lastRow, kPlaylistColumns - 1));
}

}  // namespace brevant
