#include "views/row_drag.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

using Moved = TCRowDrag::TCMoved;
using Released = TCRowDrag::TCReleased;

constexpr Qt::KeyboardModifiers kNothing = Qt::NoModifier;
constexpr Qt::KeyboardModifiers kCtrl = Qt::ControlModifier;

TEST(RowDrag, ARowReleasedOnAnotherMovesThere) {
  TCRowDrag drag;
  drag.Press(4, kNothing, false);
  EXPECT_EQ(drag.Move(2, kNothing), Moved::SelectsRow);
  const TCRowDrag::TCRelease release = drag.Release(2, kNothing);
  EXPECT_EQ(release.what, Released::MovesRow);
  EXPECT_EQ(release.from, 4);
  EXPECT_EQ(release.to, 2);
}

TEST(RowDrag, ARowReleasedWhereItWasPressedOrBesideAllRowsStays) {
  for (const int row : {4, -1}) {
    TCRowDrag drag;
    drag.Press(4, kNothing, false);
    EXPECT_EQ(drag.Move(2, kNothing), Moved::SelectsRow);
    EXPECT_EQ(drag.Release(row, kNothing).what, Released::Nothing) << row;
  }
}

TEST(RowDrag, APressBesideAllRowsMovesNothing) {
  TCRowDrag drag;
  drag.Press(-1, kNothing, false);
  EXPECT_EQ(drag.Move(2, kNothing), Moved::SelectsRow);
  EXPECT_EQ(drag.Release(2, kNothing).what, Released::Nothing);
}

TEST(RowDrag, CtrlAtTheReleaseMovesNothing) {
  TCRowDrag drag;
  drag.Press(4, kNothing, false);
  EXPECT_EQ(drag.Move(2, kCtrl), Moved::SelectsRow);
  EXPECT_EQ(drag.Release(2, kCtrl).what, Released::Nothing);
}

TEST(RowDrag, WithCtrlFromThePressOnCopiesAreDroppedAndNothingIsSelectedOnTheWay) {
  TCRowDrag drag;
  drag.Press(4, kCtrl, false);
  EXPECT_EQ(drag.Move(3, kCtrl), Moved::CopyDrags);
  EXPECT_EQ(drag.Move(-1, kCtrl), Moved::CopyDrags);
  EXPECT_EQ(drag.Move(2, kCtrl), Moved::CopyDrags);
  EXPECT_EQ(drag.Release(2, kCtrl).what, Released::DropsCopies);
}

TEST(RowDrag, CtrlLetGoBeforeTheButtonStillDropsCopiesAndMovesNothing) {
  TCRowDrag drag;
  drag.Press(4, kCtrl, false);
  EXPECT_EQ(drag.Move(3, kCtrl), Moved::CopyDrags);
  EXPECT_EQ(drag.Move(2, kNothing), Moved::CopyDrags);
  EXPECT_EQ(drag.Release(2, kNothing).what, Released::DropsCopies);
}

TEST(RowDrag, CtrlLetGoBeforeTheMouseMovesMakesItAMove) {
  TCRowDrag drag;
  drag.Press(4, kCtrl, false);
  EXPECT_EQ(drag.Move(2, kNothing), Moved::SelectsRow);
  EXPECT_EQ(drag.Release(2, kNothing).what, Released::MovesRow);
}

TEST(RowDrag, ACtrlClickDropsAndMovesNothing) {
  TCRowDrag drag;
  drag.Press(4, kCtrl, false);
  EXPECT_EQ(drag.Release(4, kCtrl).what, Released::Nothing);
}

TEST(RowDrag, BothCtrlMarksAreGoneAfterEveryRelease) {
  TCRowDrag drag;
  drag.Press(4, kCtrl, false);
  EXPECT_EQ(drag.Move(3, kCtrl), Moved::CopyDrags);
  EXPECT_EQ(drag.Release(3, kCtrl).what, Released::DropsCopies);
  EXPECT_FALSE(drag.IsCopyDrag());
  EXPECT_EQ(drag.Move(2, kCtrl), Moved::SelectsRow) << "no press came before it";
  EXPECT_EQ(drag.Release(2, kCtrl).what, Released::Nothing);

  drag.Press(4, kCtrl, false);
  EXPECT_EQ(drag.Release(4, kCtrl).what, Released::Nothing);
  EXPECT_EQ(drag.Move(2, kCtrl), Moved::SelectsRow);
}

TEST(RowDrag, ACtrlPressBesideAllRowsCopiesNothing) {
  TCRowDrag drag;
  drag.Press(-1, kCtrl, false);
  EXPECT_EQ(drag.Move(2, kCtrl), Moved::SelectsRow);
  EXPECT_EQ(drag.Release(2, kCtrl).what, Released::Nothing);
}

TEST(RowDrag, ACtrlClickTogglesASelectedRowOnlyAtTheReleaseAndOnlyWithoutADrag) {
  TCRowDrag drag;
  drag.Press(4, kCtrl, true);
  const TCRowDrag::TCRelease click = drag.Release(4, kCtrl);
  EXPECT_EQ(click.what, Released::TogglesRow);
  EXPECT_EQ(click.to, 4);

  drag.Press(4, kCtrl, true);
  EXPECT_EQ(drag.Move(4, kCtrl), Moved::CopyDrags);
  EXPECT_EQ(drag.Release(4, kCtrl).what, Released::DropsCopies);
}

TEST(RowDrag, NothingComesOfACancelledOneUntilTheNextPress) {
  for (const Qt::KeyboardModifiers held : {kNothing, kCtrl}) {
    TCRowDrag drag;
    drag.Press(4, held, false);
    EXPECT_NE(drag.Move(3, held), Moved::Nothing);
    drag.Cancel();
    EXPECT_FALSE(drag.IsDragging());
    EXPECT_EQ(drag.Move(2, held), Moved::Nothing);
    EXPECT_EQ(drag.Release(2, held).what, Released::Nothing);
    drag.Press(4, kNothing, false);
    EXPECT_EQ(drag.Release(2, kNothing).what, Released::MovesRow);
  }
}

TEST(RowDrag, ThePointerSaysWhatTheMouseIsAbout) {
  TCRowDrag drag;
  EXPECT_EQ(drag.PointerOver(-1), TCPointer::Arrow);
  EXPECT_EQ(drag.PointerOver(0), TCPointer::Row);
  drag.Press(0, kNothing, false);
  EXPECT_EQ(drag.Move(1, kNothing), Moved::SelectsRow);
  EXPECT_EQ(drag.PointerOver(1), TCPointer::Drag);
  EXPECT_EQ(drag.PointerOver(-1), TCPointer::Arrow);
  drag.Press(0, kCtrl, false);
  EXPECT_EQ(drag.Move(1, kCtrl), Moved::CopyDrags);
  EXPECT_EQ(drag.PointerOver(1), TCPointer::Pressed);
  EXPECT_EQ(drag.PointerOver(-1), TCPointer::Arrow);
}

}  // namespace
}  // namespace brevant
