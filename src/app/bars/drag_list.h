// A list out of which one entry at a time is dragged with the mouse, to wherever its owner says: the mouse
// stays with the list until the button is released, so that it can also be let go of over a window that a
// dialog blocks. Esc gives the drag up. Used by the customise sheet.
#pragma once

#include <QListWidget>
#include <QPoint>

namespace brevant {

class TCDragList final : public QListWidget {
  Q_OBJECT

 public:
  explicit TCDragList(QWidget* parent = nullptr);

  // In front of which row something that is let go of here would go; the count of rows for behind all. -1
  // when `globalPosition` is outside.
  [[nodiscard]] int RowGapAt(QPoint globalPosition) const;
  // Where that gap is, in the viewport.
  [[nodiscard]] QRect GapRect(int row) const;

 Q_SIGNALS:
  void dragMoved(int row, QPoint globalPosition);
  void dragged(int row, QPoint globalPosition);
  // In any case, and before `dragged`.
  void dragEnded();

 protected:
  void mousePressEvent(QMouseEvent* event) override;
  void mouseMoveEvent(QMouseEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void keyPressEvent(QKeyEvent* event) override;
  void focusOutEvent(QFocusEvent* event) override;

 private:
  bool EndDrag();

  QPoint pressedAt;
  int pressedRow = -1;
  bool dragging = false;
};

}  // namespace brevant
