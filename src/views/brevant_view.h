// The playlist view: the songs of the current playlist in large type, every row in its own colours. Shows
// what the document gives it and passes on what the mouse asks for; also holds the timer that drives the
// document's tick. User-interface thread only.
#pragma once

#include <QColor>
#include <QIcon>
#include <QItemSelectionModel>
#include <QPoint>
#include <QSettings>
#include <QTableView>
#include <QTimer>
#include <vector>

#include "document/frame_display.h"
#include "document/playlist_display.h"
#include "views/column_fitter.h"
#include "views/edge_scroll.h"
#include "views/row_drag.h"
#include "views/stage_cursors.h"

namespace brevant {

class TCBrevantView final : public QTableView, public TCPlaylistDisplay {
  Q_OBJECT

 public:
  explicit TCBrevantView(QWidget* parent = nullptr);

  // In the first column of every row.
  void SetRowPicture(const QIcon& picture);
  // Of the header and of what no row covers. The background follows the rows' own from then on.
  void SetBackground(const QColor& text, const QColor& background);

  void SetCursors(const TCStageCursors& stageCursors);
  // While placing waits the busy cursor shows, whatever the mouse does.
  void SetPlacing(TCPlacing state);

  // Widths that the user dragged; the other columns follow the font.
  void SaveColumnWidths(QSettings& settings) const;
  void LoadColumnWidths(const QSettings& settings);

  void ShowRows(std::vector<TCPlaylistRow> rows, TCShowRows mode) override;
  void SetRowColours(std::vector<TCRowColours> colours) override;
  void SetRowTexts(std::int32_t row, const TCRowTexts& texts) override;
  void SetRowTime(std::int32_t row, std::u16string_view time) override;
  void SetPlaylistHeader(std::u16string_view text) override;
  void ClearRows() override;

  [[nodiscard]] std::int32_t SelectedRow() const override;
  [[nodiscard]] std::vector<std::int32_t> SelectedRows() const override;
  void SelectRow(std::int32_t row) override;
  void ScrollToRow(std::int32_t row) override;
  void TakeFocus() override;
  void TakeFocusUnlessTyping() override;
  void SetDisplayFont(std::u16string_view face, std::int32_t points) override;
  void ResetMouseState() override;

  void scrollTo(const QModelIndex& index, ScrollHint hint = EnsureVisible) override;

 Q_SIGNALS:
  // Every 300 ms for as long as the view lives: time for the document's tick.
  void pollDue();
  // A double-click: the selected row, or -1 when none is.
  void rowPicked(int row);
  // The song of one row was dragged onto another.
  void rowMoved(int from, int to);
  // The selected songs are dragged with Ctrl, wherever the mouse goes, to be copied where they are dropped.
  void ctrlDragMoved(QPoint globalPosition);
  // That is over, dropped or given up; before ctrlDragReleased.
  void ctrlDragEnded();
  void ctrlDragReleased(QPoint globalPosition);
  // A press of the right button, or the keyboard's menu key.
  void contextMenuWanted(QPoint globalPosition);

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void mouseDoubleClickEvent(QMouseEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  [[nodiscard]] QItemSelectionModel::SelectionFlags selectionCommand(
      const QModelIndex& index, const QEvent* event = nullptr) const override;

 private:
  void MoveDrag(const QMouseEvent& event);
  void ReleaseDrag(const QMouseEvent& event);
  void ShowPointer(TCPointer pointer);
  void SelectUnderDrag(int row);
  [[nodiscard]] int RowUnder(QPoint globalPosition) const;
  void CountPollTick();
  void FollowBackgroundOf(const TCRowColours& colours);
  [[nodiscard]] bool IsInView(std::int32_t row, int viewHeight) const;

  void FitToFont();

  TCPlaylistModel* playlistModel = nullptr;  // a child, as the next one
  TCPlaylistHeader* columnHeader = nullptr;
  TCColumnFitter columns;
  QTimer pollTimer{this};
  int pollTicks = 0;                // 0 to 2
  std::int32_t rowKeptInView = -1;  // stays in view while window or font changes, unless scrolled away
  TCRowDrag drag;
  TCEdgeScroll edgeScroll;
  QPoint pressPlace;
  TCStageCursors cursors;
  TCPlacing placing = TCPlacing::Nothing;
};

}  // namespace brevant
