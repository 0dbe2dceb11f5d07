// Keeps the playlist's columns as wide as their texts need in the present font, except where the user dragged
// one. Part of the playlist view; user-interface thread only.
#pragma once

#include <QHash>
#include <QObject>
#include <QSettings>
#include <QString>
#include <QTableView>

#include "views/column_widths.h"
#include "views/playlist_header.h"
#include "views/playlist_model.h"

namespace brevant {

// Measuring and fitting are apart, so that a whole playlist is measured before columns move once.
class TCColumnFitter : public QObject {
 public:
  // All three outlive it.
  TCColumnFitter(QTableView& playlistTable, TCPlaylistHeader& header, const TCPlaylistModel& model);

  // From now on a column that is dragged keeps its width, and a double-click on its edge releases it. To be
  // called once the table has its header.
  void FollowUser();

  // Everything anew, after the table and its header took another font. `pictureWidth`: of the first column.
  void MeasureInFont(int pictureWidth);
  // The headers and all rows; nothing is left of the rows before.
  void MeasureAfresh();
  // More rows, or rows with other texts: columns only grow.
  void MeasureRows();
  void MeasureRow(int row);
  void MeasureHeaders();

  // Gives the columns their widths; the names take what is left of the table. It can be scrolled to the side
  // only where a name is cut off.
  void Fit();

  // Only the user's widths.
  void Save(QSettings& settings) const { widths.Save(settings); }
  void Load(const QSettings& settings);

 private:
  void MakeRoomFor(TCPlaylistColumn column, const QString& text);
  [[nodiscard]] QString HeaderOf(TCPlaylistColumn column) const;
  [[nodiscard]] int CellWidthOf(const QString& text);
  [[nodiscard]] bool NamesAreCutOff();

  QTableView& table;
  TCPlaylistHeader& columnHeader;
  const TCPlaylistModel& playlist;
  TCColumnWidths widths;
  QHash<QString, int>
      measuredTexts;  // pixels of a cell in the present font; every digit counts as the widest
  QChar widestDigit = QLatin1Char('0');
  bool fitting = false;  // columns change width by our doing, not the user's
};

}  // namespace brevant
