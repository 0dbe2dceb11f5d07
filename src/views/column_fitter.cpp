#include "views/column_fitter.h"

#include <QFontMetrics>
#include <QScopedValueRollback>
#include <QScrollBar>
#include <algorithm>
#include <array>

#include "views/text_conversion.h"

namespace brevant {

namespace {

// Texts that are measured and remembered; a damaged file may hold any number of different ones.
constexpr int kMostMeasuredTexts = 2000;
constexpr qsizetype kLongestMeasuredText = 100;

constexpr std::array kTextColumns{TCPlaylistColumn::Number, TCPlaylistColumn::Status, TCPlaylistColumn::Time};

}  // namespace

TCColumnFitter::TCColumnFitter(QTableView& playlistTable, TCPlaylistHeader& header,
                               const TCPlaylistModel& model)
    : table(playlistTable), columnHeader(header), playlist(model) {}

void TCColumnFitter::FollowUser() {
  // Qt's own answer to a double-click on a column's edge reads the rows in sight only.
  disconnect(&columnHeader, &QHeaderView::sectionHandleDoubleClicked, &table, nullptr);
  connect(&columnHeader, &QHeaderView::sectionHandleDoubleClicked, this, [this](int section) {
    widths.Release(static_cast<TCPlaylistColumn>(section));
    Fit();
  });
  connect(&columnHeader, &QHeaderView::sectionResized, this, [this](int section, int, int newSize) {
    if (fitting) return;
    widths.SetByUser(static_cast<TCPlaylistColumn>(section), newSize);
    Fit();
  });
}

void TCColumnFitter::MeasureInFont(int pictureWidth) {
  measuredTexts.clear();
  const QFontMetrics metrics(table.font(), &table);
  int widest = 0;
  for (char16_t digit = u'0'; digit <= u'9'; ++digit) {
    const int width = metrics.horizontalAdvance(QChar(digit));
    if (width > widest) widestDigit = QChar(digit);
    widest = std::max(widest, width);
  }
  widths.SetNeeded(TCPlaylistColumn::Picture, pictureWidth);
  {
    // Widens columns that are narrower, which is not the user's doing.
    const QScopedValueRollback<bool> guard(fitting, true);
    columnHeader.setMinimumSectionSize(std::max(pictureWidth, widest + columnHeader.TextMargins()));
  }
  MeasureAfresh();
}

void TCColumnFitter::MeasureAfresh() {
  for (const TCPlaylistColumn column : kTextColumns) widths.SetNeeded(column, 0);
  MeasureHeaders();
  MeasureRows();
}

void TCColumnFitter::MeasureRows() {
  for (int row = 0; row < playlist.rowCount(); ++row) MeasureRow(row);
}

void TCColumnFitter::MeasureRow(int row) {
  const TCPlaylistRow& texts = playlist.Rows()[static_cast<std::size_t>(row)];
  for (const TCPlaylistColumn column : kTextColumns) {
    MakeRoomFor(column, ToQString(TCPlaylistModel::TextIn(texts, column)));
  }
}

void TCColumnFitter::MeasureHeaders() {
  for (const TCPlaylistColumn column : kTextColumns) MakeRoomFor(column, HeaderOf(column));
}

void TCColumnFitter::MakeRoomFor(TCPlaylistColumn column, const QString& text) {
  widths.MakeRoomFor(column, CellWidthOf(text), columnHeader.GapBetweenTexts());
}

QString TCColumnFitter::HeaderOf(TCPlaylistColumn column) const {
  return playlist.headerData(static_cast<int>(column), Qt::Horizontal, Qt::DisplayRole).toString();
}

void TCColumnFitter::Fit() {
  if (fitting) return;
  const QScopedValueRollback<bool> guard(fitting, true);
  int others = 0;
  for (int column = 0; column < kPlaylistColumns - 1; ++column) {
    const int width = widths.Of(static_cast<TCPlaylistColumn>(column));
    if (columnHeader.sectionSize(column) != width) columnHeader.resizeSection(column, width);
    others += columnHeader.sectionSize(column);
  }
  // The names take what is left, and never less than the header above them.
  const int name = static_cast<int>(TCPlaylistColumn::Name);
  widths.SetNeeded(TCPlaylistColumn::Name, std::max(table.viewport()->width() - others,
                                                    CellWidthOf(HeaderOf(TCPlaylistColumn::Name))));
  const int nameWidth = widths.Of(TCPlaylistColumn::Name);
  if (columnHeader.sectionSize(name) != nameWidth) columnHeader.resizeSection(name, nameWidth);
  const bool cutOff = NamesAreCutOff();
  table.setHorizontalScrollBarPolicy(cutOff ? Qt::ScrollBarAsNeeded : Qt::ScrollBarAlwaysOff);
  // There would be no way back from where the table was scrolled to while it could be.
  if (!cutOff) table.horizontalScrollBar()->setValue(0);
}

bool TCColumnFitter::NamesAreCutOff() {
  const int name = static_cast<int>(TCPlaylistColumn::Name);
  const int seen = table.viewport()->width() - columnHeader.sectionPosition(name);
  if (columnHeader.sectionSize(name) <= seen) return false;
  const auto& rows = playlist.Rows();
  // Measuring every name of a long playlist would be felt. The one with the most letters speaks for all.
  const auto longest =
      std::max_element(rows.begin(), rows.end(), [](const TCPlaylistRow& a, const TCPlaylistRow& b) {
        return a.texts.name.size() < b.texts.name.size();
      });
  // The header above is cut in front of its total, so that nobody has to scroll for that.
  return longest != rows.end() && CellWidthOf(ToQString(longest->texts.name)) > seen;
}

void TCColumnFitter::Load(const QSettings& settings) {
  widths.Load(settings);
  Fit();
}

int TCColumnFitter::CellWidthOf(const QString& text) {
  QString shape = text.left(kLongestMeasuredText);
  for (QChar& character : shape) {
    if (character >= QLatin1Char('0') && character <= QLatin1Char('9')) character = widestDigit;
  }
  const auto known = measuredTexts.constFind(shape);
  if (known != measuredTexts.constEnd()) return *known;
  if (measuredTexts.size() >= kMostMeasuredTexts) measuredTexts.clear();
  const int width = QFontMetrics(table.font(), &table).horizontalAdvance(shape) + columnHeader.TextMargins();
  measuredTexts.insert(shape, width);
  return width;
}

}  // namespace brevant
