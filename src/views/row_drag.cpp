#include "views/row_drag.h"

namespace brevant {

void TCRowDrag::Press(int row, Qt::KeyboardModifiers held, bool rowIsSelected) {
  *this = TCRowDrag();
  pressedRow = row;
  ctrlAtPress = held.testFlag(Qt::ControlModifier);
  togglesOnRelease = ctrlAtPress && rowIsSelected;
}

TCRowDrag::TCMoved TCRowDrag::Move(int row, Qt::KeyboardModifiers held) {
  if (cancelled) return TCMoved::Nothing;
  if (ctrlAtPress && pressedRow >= 0 && !dragMoved && held.testFlag(Qt::ControlModifier)) ctrlDrag = true;
  // What is selected is what will be copied: it stays, wherever the mouse goes.
  if (ctrlDrag) return TCMoved::CopyDrags;
  dragMoved = true;
  return row < 0 ? TCMoved::Nothing : TCMoved::SelectsRow;
}

TCRowDrag::TCRelease TCRowDrag::Release(int row, Qt::KeyboardModifiers held) {
  const TCRowDrag drag = *this;
  *this = TCRowDrag();
  if (drag.cancelled) return {};
  if (drag.ctrlDrag) return {TCReleased::DropsCopies, drag.pressedRow, row};
  if (drag.togglesOnRelease && !drag.dragMoved && row == drag.pressedRow) {
    return {TCReleased::TogglesRow, drag.pressedRow, row};
  }
  const bool ctrlHeld = held.testFlag(Qt::ControlModifier);
  if (drag.pressedRow < 0 || row < 0 || row == drag.pressedRow || ctrlHeld) return {};
  return {TCReleased::MovesRow, drag.pressedRow, row};
}

void TCRowDrag::Cancel() {
  *this = TCRowDrag();
  cancelled = true;
}

TCPointer TCRowDrag::PointerOver(int row) const {
  if (row < 0) return TCPointer::Arrow;
  if (ctrlDrag) return TCPointer::Pressed;
  return dragMoved ? TCPointer::Drag : TCPointer::Row;
}

}  // namespace brevant
