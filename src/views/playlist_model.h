// The rows that the playlist view shows, as a table for Qt. Holds what it was given and knows nothing of
// songs. User-interface thread only.
#pragma once

#include <QAbstractTableModel>
#include <QIcon>
#include <QString>
#include <vector>

#include "document/playlist_display.h"
#include "views/column_widths.h"

namespace brevant {

class TCPlaylistModel final : public QAbstractTableModel {
  Q_OBJECT

 public:
  explicit TCPlaylistModel(QObject* parent = nullptr);

  // Afresh resets the table, so a view forgets selection and place. KeepPlace changes rows where they stand
  // and adds or removes at the end.
  void ShowRows(std::vector<TCPlaylistRow> newRows, TCShowRows mode);
  // Rows beyond the last colour keep theirs; colours beyond the last row are dropped.
  void SetColours(const std::vector<TCRowColours>& colours);
  // Rows that are not there are ignored.
  void SetTexts(int row, const TCRowTexts& texts);
  void SetTime(int row, std::u16string_view time);
  // Of the last column.
  void SetNameHeader(const QString& text);
  void SetRowPicture(const QIcon& rowPicture);

  [[nodiscard]] const std::vector<TCPlaylistRow>& Rows() const { return rows; }
  [[nodiscard]] bool HasRow(int row) const;
  [[nodiscard]] static const std::u16string& TextIn(const TCPlaylistRow& row, TCPlaylistColumn column);

  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation, int role) const override;

 private:
  void Redraw(int firstRow, int lastRow);

  std::vector<TCPlaylistRow> rows;
  QString nameHeader;
  QIcon picture;
};

}  // namespace brevant
