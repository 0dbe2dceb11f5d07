#include "views/brevant_view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QPalette>
#include <QResizeEvent>
#include <QScrollBar>
#include <algorithm>
#include <utility>

#include "views/display_font.h"
#include "views/keyboard_focus.h"
#include "views/menu_place.h"
#include "views/playlist_header.h"
#include "views/playlist_model.h"
#include "views/playlist_row_delegate.h"
#include "views/row_colours.h"
#include "views/text_conversion.h"
#include "views/under_pointer.h"

namespace brevant {

namespace {

constexpr int kTimerPeriod = 100;  // milliseconds
constexpr int kTicksAPoll = 3;     // so the document's tick comes every 300 ms
constexpr int kSmallPicture = 16;  // pixels
constexpr int kLargestPicture = 48;
constexpr int kPictureMargins = 10;

}  // namespace

TCBrevantView::TCBrevantView(QWidget* parent)
    : QTableView(parent),
      playlistModel(new TCPlaylistModel(this)),
      columnHeader(new TCPlaylistHeader(this)),
      columns(*this, *columnHeader, *playlistModel),
      edgeScroll(*this, [this](QPoint place) { SelectUnderDrag(RowUnder(place)); }) {
  setObjectName(QStringLiteral("playlistView"));
  setAccessibleName(QStringLiteral("Playlist"));
  setWhatsThis(QStringLiteral(
      "The playlist, one song a row. The green song is the current one, and Enter plays it; a double-click "
      "plays the row under the pointer. The header says how long the whole playlist takes."));
  setModel(playlistModel);
  setHorizontalHeader(columnHeader);
  setItemDelegate(new TCPlaylistRowDelegate(this));

  setSelectionBehavior(SelectRows);
  setSelectionMode(ExtendedSelection);
  setEditTriggers(NoEditTriggers);
  setDragDropMode(NoDragDrop);
  setTabKeyNavigation(false);
  setHorizontalScrollMode(ScrollPerPixel);
  setTextElideMode(Qt::ElideRight);
  setWordWrap(false);
  setShowGrid(false);
  setFrameShape(NoFrame);
  setCornerButtonEnabled(false);
  viewport()->setMouseTracking(true);

  // Rows are never measured one by one: with large playlists that takes seconds.
  verticalHeader()->setSectionResizeMode(QHeaderView::Fixed);
  verticalHeader()->hide();

  columns.FollowUser();
  // The last header is cut where the window ends, which is another place after a scroll.
  connect(horizontalScrollBar(), &QScrollBar::valueChanged, columnHeader->viewport(),
          qOverload<>(&QWidget::update));

  const TCSettings defaults;
  SetBackground(ToQColor(defaults.textColour), ToQColor(defaults.backgroundColour));
  SetDisplayFont(defaults.playListFontTypeName, defaults.playListFontSize);

  pollTimer.setObjectName(QStringLiteral("timer 1"));
  pollTimer.setTimerType(Qt::PreciseTimer);
  connect(&pollTimer, &QTimer::timeout, this, &TCBrevantView::CountPollTick);
  pollTimer.start(kTimerPeriod);
}

void TCBrevantView::SetRowPicture(const QIcon& picture) {
  playlistModel->SetRowPicture(picture);
}

void TCBrevantView::SetBackground(const QColor& text, const QColor& background) {
  QPalette colours = palette();
  if (colours.color(QPalette::Base) == background && colours.color(QPalette::Text) == text) return;
  colours.setColor(QPalette::Base, background);
  colours.setColor(QPalette::AlternateBase, background);
  colours.setColor(QPalette::Text, text);
  setPalette(colours);
}

void TCBrevantView::SetCursors(const TCStageCursors& stageCursors) {
  cursors = stageCursors;
}

void TCBrevantView::SetPlacing(TCPlacing state) {
  placing = state;
  ShowPointer(TCPointer::Arrow);
}

void TCBrevantView::SaveColumnWidths(QSettings& settings) const {
  columns.Save(settings);
}

void TCBrevantView::LoadColumnWidths(const QSettings& settings) {
  columns.Load(settings);
}

void TCBrevantView::ShowRows(std::vector<TCPlaylistRow> rows, TCShowRows mode) {
  if (mode != TCShowRows::KeepPlace && drag.PressedRow() >= 0) ResetMouseState();
  if (mode == TCShowRows::Edited) clearSelection();
  playlistModel->ShowRows(std::move(rows), mode);
  if (!playlistModel->Rows().empty()) FollowBackgroundOf(playlistModel->Rows().front().colours);
  if (mode == TCShowRows::Afresh) {
    rowKeptInView = -1;
    scrollToTop();
    columns.MeasureAfresh();
  } else {
    columns.MeasureRows();
  }
  columns.Fit();
}

void TCBrevantView::SetRowColours(std::vector<TCRowColours> colours) {
  playlistModel->SetColours(colours);
  if (!colours.empty()) FollowBackgroundOf(colours.front());
}

void TCBrevantView::SetRowTexts(std::int32_t row, const TCRowTexts& texts) {
  playlistModel->SetTexts(row, texts);
  if (!playlistModel->HasRow(row)) return;
  columns.MeasureRow(row);
  columns.Fit();
}

void TCBrevantView::SetRowTime(std::int32_t row, std::u16string_view time) {
  if (!playlistModel->HasRow(row)) return;
  playlistModel->SetTime(row, time);
  columns.MeasureRow(row);
  columns.Fit();
}

void TCBrevantView::SetPlaylistHeader(std::u16string_view text) {
  playlistModel->SetNameHeader(ToQString(text));
  columns.MeasureHeaders();
  columns.Fit();
}

void TCBrevantView::ClearRows() {
  ShowRows({}, TCShowRows::Afresh);
}

std::int32_t TCBrevantView::SelectedRow() const {
  std::int32_t first = -1;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    if (range.isValid() && (first < 0 || range.top() < first)) first = range.top();
  }
  return first;
}

std::vector<std::int32_t> TCBrevantView::SelectedRows() const {
  std::vector<std::int32_t> selected;
  for (const QItemSelectionRange& range : selectionModel()->selection()) {
    for (int row = range.top(); range.isValid() && row <= range.bottom(); ++row) selected.push_back(row);
  }
  std::sort(selected.begin(), selected.end());
  selected.erase(std::unique(selected.begin(), selected.end()), selected.end());
  return selected;
}

void TCBrevantView::SelectRow(std::int32_t row) {
  const std::int32_t selected = SelectedRow();
  if (selected >= 0) {
    selectionModel()->select(playlistModel->index(selected, 0),
                             QItemSelectionModel::Deselect | QItemSelectionModel::Rows);
  }
  if (!playlistModel->HasRow(row)) return;
  const QModelIndex index = playlistModel->index(row, 0);
  selectionModel()->select(index, QItemSelectionModel::Select | QItemSelectionModel::Rows);
  // Where the keyboard goes on from, and where a press with Shift extends the selection from.
  selectionModel()->setCurrentIndex(index, QItemSelectionModel::NoUpdate);
}

void TCBrevantView::ScrollToRow(std::int32_t row) {
  if (!playlistModel->HasRow(row)) return;
  rowKeptInView = row;
  if (drag.IsDragging()) return;  // the row that the mouse aims at stays under it
  scrollTo(playlistModel->index(row, 0));
}

void TCBrevantView::TakeFocus() {
  GiveKeyboardTo(*this);
}

void TCBrevantView::TakeFocusUnlessTyping() {
  if (!IsSomebodyTyping()) TakeFocus();
}

void TCBrevantView::SetDisplayFont(std::u16string_view face, std::int32_t points) {
  const QFont wanted = DisplayFont(face, points, *this);
  const bool keepRow = IsInView(rowKeptInView, viewport()->height());
  setFont(wanted);
  columnHeader->setFont(wanted);
  FitToFont();
  if (keepRow) scrollTo(playlistModel->index(rowKeptInView, 0));
}

void TCBrevantView::ResetMouseState() {
  const bool wasCopyDrag = drag.IsCopyDrag();
  drag.Cancel();
  edgeScroll.Stop();
  setState(NoState);
  ShowPointer(TCPointer::Arrow);
  if (wasCopyDrag) Q_EMIT ctrlDragEnded();
}

void TCBrevantView::scrollTo(const QModelIndex& index, ScrollHint hint) {
  // Until rows that were just shown are laid out, the scroll bar's range is still that of the rows before.
  executeDelayedItemsLayout();
  // A row is wider than most windows: going to it must not slide its first columns out of sight.
  const int place = horizontalScrollBar()->value();
  QTableView::scrollTo(index, hint);
  horizontalScrollBar()->setValue(place);
}

QItemSelectionModel::SelectionFlags TCBrevantView::selectionCommand(const QModelIndex& index,
                                                                    const QEvent* event) const {
  if (event == nullptr || event->type() != QEvent::MouseButtonPress) {
    return QTableView::selectionCommand(index, event);
  }
  // A press with Ctrl on a selected row may begin to drag the selection away, so it stays for now.
  const auto* press = static_cast<const QMouseEvent*>(event);
  const bool mayDrag = press->button() == Qt::LeftButton && press->modifiers() == Qt::ControlModifier;
  return mayDrag && selectionModel()->isSelected(index) ? QItemSelectionModel::NoUpdate
                                                        : QTableView::selectionCommand(index, event);
}

void TCBrevantView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) {
    const QModelIndex index = indexAt(event->position().toPoint());
    drag.Press(index.row(), event->modifiers(), selectionModel()->isSelected(index));
    pressPlace = event->position().toPoint();
  }
  QTableView::mousePressEvent(event);
  if (event->button() == Qt::LeftButton) {
    ShowPointer(drag.PressedRow() >= 0 ? TCPointer::Pressed : TCPointer::Arrow);
  }
  if (event->button() == Qt::RightButton) Q_EMIT contextMenuWanted(event->globalPosition().toPoint());
}

void TCBrevantView::mouseMoveEvent(QMouseEvent* event) {
  // With a button down the toolkit would select all rows on the way.
  if (event->buttons() == Qt::NoButton) QTableView::mouseMoveEvent(event);
  if (event->buttons().testFlag(Qt::LeftButton)) {
    MoveDrag(*event);
  } else {
    ShowPointer(drag.PointerOver(RowUnder(event->globalPosition().toPoint())));
  }
}

void TCBrevantView::MoveDrag(const QMouseEvent& event) {
  const int row = RowUnder(event.globalPosition().toPoint());
  const QPoint way = event.position().toPoint() - pressPlace;
  // A click with an unsteady hand copies and moves nothing.
  const bool isClick = row == drag.PressedRow() && way.manhattanLength() < QApplication::startDragDistance();
  if (isClick && !drag.IsDragging()) return;
  switch (drag.Move(row, event.modifiers())) {
    case TCRowDrag::TCMoved::Nothing:
      break;
    case TCRowDrag::TCMoved::SelectsRow:
      SelectUnderDrag(row);
      break;
    case TCRowDrag::TCMoved::CopyDrags:
      Q_EMIT ctrlDragMoved(event.globalPosition().toPoint());
      break;
  }
  // The songs of a copying drag go to the tree, and no row of the playlist is their target.
  if (drag.IsDragging() && !drag.IsCopyDrag()) edgeScroll.Follow(event.globalPosition().toPoint());
  const bool overOtherPane = drag.IsCopyDrag() && !IsUnder(*viewport(), event.globalPosition().toPoint());
  ShowPointer(overOtherPane ? TCPointer::Busy : drag.PointerOver(row));
}

void TCBrevantView::mouseReleaseEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    QTableView::mouseReleaseEvent(event);
    return;
  }
  // After a drag the toolkit would still take it for the end of a click.
  if (drag.IsDragging()) {
    setState(NoState);
  } else {
    QTableView::mouseReleaseEvent(event);
  }
  ReleaseDrag(*event);
}

void TCBrevantView::ReleaseDrag(const QMouseEvent& event) {
  const int row = RowUnder(event.globalPosition().toPoint());
  edgeScroll.Stop();
  const TCRowDrag::TCRelease release = drag.Release(row, event.modifiers());
  ShowPointer(drag.PointerOver(row));
  switch (release.what) {
    case TCRowDrag::TCReleased::Nothing:
      break;
    case TCRowDrag::TCReleased::MovesRow:
      Q_EMIT rowMoved(release.from, release.to);
      break;
    case TCRowDrag::TCReleased::DropsCopies:
      Q_EMIT ctrlDragEnded();
      Q_EMIT ctrlDragReleased(event.globalPosition().toPoint());
      break;
    case TCRowDrag::TCReleased::TogglesRow:
      selectionModel()->select(playlistModel->index(row, 0),
                               QItemSelectionModel::Toggle | QItemSelectionModel::Rows);
      break;
  }
}

void TCBrevantView::SelectUnderDrag(int row) {
  if (row < 0) return;
  // A row at the edge, seen in part, stays under the mouse: what is shown is where the song would go.
  setAutoScroll(false);
  clearSelection();
  SelectRow(row);
  setAutoScroll(true);
}

int TCBrevantView::RowUnder(QPoint globalPosition) const {
  // While a button is down, positions outside of the view come in too.
  if (!IsUnder(*viewport(), globalPosition)) return -1;
  return indexAt(viewport()->mapFromGlobal(globalPosition)).row();
}

void TCBrevantView::ShowPointer(TCPointer pointer) {
  viewport()->setCursor(cursors.Of(placing == TCPlacing::Waiting ? TCPointer::Busy : pointer));
}

void TCBrevantView::mouseDoubleClickEvent(QMouseEvent* event) {
  QTableView::mouseDoubleClickEvent(event);
  if (event->button() != Qt::LeftButton) return;
  drag.Cancel();
  const std::int32_t row = SelectedRow();
  SelectRow(row);
  Q_EMIT rowPicked(row);
  activateWindow();
  setFocus(Qt::MouseFocusReason);
}

void TCBrevantView::contextMenuEvent(QContextMenuEvent* event) {
  // The mouse's was asked for when the button went down.
  event->accept();
  if (event->reason() == QContextMenuEvent::Mouse) return;
  const QModelIndex selected = playlistModel->index(SelectedRow(), 0);
  Q_EMIT contextMenuWanted(MenuPlace(*viewport(), visualRect(selected)));
}

void TCBrevantView::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
    case Qt::Key_Home:
    case Qt::Key_End:
      QTableView::keyPressEvent(event);
      return;
    case Qt::Key_F4:
      event->accept();
      return;
    case Qt::Key_A:
      // Selecting all by a slip of the hand is a way to lose a set list.
      event->setAccepted(event->modifiers() == Qt::ControlModifier);
      return;
    default:
      // No search by letters, no copying of cell texts: every other key is the frame's.
      event->ignore();
  }
}

void TCBrevantView::resizeEvent(QResizeEvent* event) {
  const bool keepRow = !event->oldSize().isValid() || IsInView(rowKeptInView, event->oldSize().height());
  QTableView::resizeEvent(event);
  columns.Fit();
  if (keepRow && playlistModel->HasRow(rowKeptInView)) scrollTo(playlistModel->index(rowKeptInView, 0));
}

void TCBrevantView::CountPollTick() {
  if (++pollTicks < kTicksAPoll) return;
  pollTicks = 0;
  Q_EMIT pollDue();
}

void TCBrevantView::FollowBackgroundOf(const TCRowColours& colours) {
  const QColor background = ToQColor(colours.background);
  if (palette().color(QPalette::Base) == background) return;
  const bool whiteReadsBetter =
      ContrastRatio(colours.background, kWhite) > ContrastRatio(colours.background, kBlack);
  SetBackground(ToQColor(whiteReadsBetter ? kWhite : kBlack), background);
}

bool TCBrevantView::IsInView(std::int32_t row, int viewHeight) const {
  if (!playlistModel->HasRow(row)) return false;
  const int top = rowViewportPosition(row);
  return top < viewHeight && top + rowHeight(row) > 0;
}

void TCBrevantView::FitToFont() {
  const int line = QFontMetrics(font(), this).height();
  const int picture = std::clamp(line * 3 / 4, kSmallPicture, kLargestPicture);
  setIconSize({picture, picture});
  verticalHeader()->setMinimumSectionSize(1);
  verticalHeader()->setDefaultSectionSize(std::max(line + std::max(4, line / 6), picture + 2));
  columns.MeasureInFont(picture + kPictureMargins);
  updateGeometries();
  columns.Fit();
}

}  // namespace brevant
