#include "views/column_widths.h"

#include <QStringList>
#include <QVariant>
#include <algorithm>

namespace brevant {

namespace {

constexpr std::array<int, kPlaylistColumns> kInitialWidths{64, 64, 96, 96, 1024};

// Wider than this helps nobody, and a damaged store or an endless text must not ask for more.
constexpr int kMostWidth = 16384;

// One key, below the view's own name, so that other views keep theirs beside it.
QString StoreKey() {
  return QStringLiteral("PlaylistView/ColumnWidths");
}

// In the store: the column follows the font.
constexpr int kAutomatic = 0;

std::size_t IndexOf(TCPlaylistColumn column) {
  return static_cast<std::size_t>(column);
}

}  // namespace

void TCColumnWidths::SetNeeded(TCPlaylistColumn column, int width) {
  widths[IndexOf(column)].needed = std::min(width, kMostWidth);
}

void TCColumnWidths::MakeRoomFor(TCPlaylistColumn column, int textWidth, int gap) {
  if (textWidth <= kInitialWidths[IndexOf(column)]) return;
  SetNeeded(column, std::max(textWidth + gap, widths[IndexOf(column)].needed));
}

void TCColumnWidths::SetByUser(TCPlaylistColumn column, int width) {
  widths[IndexOf(column)].byUser = std::clamp(width, 1, kMostWidth);
}

void TCColumnWidths::Release(TCPlaylistColumn column) {
  widths[IndexOf(column)].byUser.reset();
}

int TCColumnWidths::Of(TCPlaylistColumn column) const {
  const TCWidth& width = widths[IndexOf(column)];
  return width.byUser.value_or(std::max(kInitialWidths[IndexOf(column)], width.needed));
}

void TCColumnWidths::Save(QSettings& settings) const {
  QStringList stored;
  for (const TCWidth& width : widths) stored.append(QString::number(width.byUser.value_or(kAutomatic)));
  settings.setValue(StoreKey(), stored);
}

void TCColumnWidths::Load(const QSettings& settings) {
  const QStringList stored = settings.value(StoreKey()).toStringList();
  if (stored.size() != kPlaylistColumns) return;
  std::array<std::optional<int>, kPlaylistColumns> loaded;
  for (std::size_t column = 0; column < loaded.size(); ++column) {
    bool isNumber = false;
    const int width = stored[static_cast<qsizetype>(column)].trimmed().toInt(&isNumber);
    if (!isNumber || width < 0 || width > kMostWidth) return;
    if (width != kAutomatic) loaded[column] = width;
  }
  for (std::size_t column = 0; column < loaded.size(); ++column) widths[column].byUser = loaded[column];
}

}  // namespace brevant
