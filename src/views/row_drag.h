// What the left mouse button makes of the playlist's rows: a click, a song dragged to another place, or a
// drag with Ctrl that copies the selected songs. Decides only; the playlist view carries it out.
#pragma once

#include <Qt>

#include "views/stage_cursors.h"

namespace brevant {

class TCRowDrag {
 public:
  // Rows are zero-based; -1 is no row.
  void Press(int row, Qt::KeyboardModifiers held, bool rowIsSelected);

  enum class TCMoved {
    Nothing,
    SelectsRow,  // the row under the mouse is to be the only one selected: the song would go there
    CopyDrags,   // the selected songs are on their way to somewhere
  };
  // The mouse moved with its button down, far enough for a drag.
  [[nodiscard]] TCMoved Move(int row, Qt::KeyboardModifiers held);

  enum class TCReleased { Nothing, MovesRow, DropsCopies, TogglesRow };
  struct TCRelease {
    TCReleased what = TCReleased::Nothing;
    int from = -1;  // the row that was pressed
    int to = -1;    // the row it was released on
  };
  // Ends the drag, whatever comes of it.
  [[nodiscard]] TCRelease Release(int row, Qt::KeyboardModifiers held);

  // Nothing comes of the button that is down, until it is pressed anew.
  void Cancel();

  [[nodiscard]] int PressedRow() const { return pressedRow; }
  [[nodiscard]] bool IsDragging() const { return dragMoved || ctrlDrag; }
  [[nodiscard]] bool IsCopyDrag() const { return ctrlDrag; }
  [[nodiscard]] TCPointer PointerOver(int row) const;

 private:
  int pressedRow = -1;
  bool ctrlAtPress = false;
  bool ctrlDrag = false;
  bool dragMoved = false;
  bool togglesOnRelease = false;
  bool cancelled = false;
};

}  // namespace brevant
