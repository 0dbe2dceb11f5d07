// What mouse and keys do to the set lists in the whole program: the two views' wishes reach the document, and
// the keys of the editing commands go to whoever has the focus.
#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QDialog>
#include <QLineEdit>
#include <QTest>

#include "app/dialog_answer.h"
#include "app/whole_program.h"
#include "views/stage_mouse.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

class Arrange : public TCWholeProgram {
 protected:
  void SetUp() override {
    TCWholeProgram::SetUp();
    Start(kShow);
    Tree().expandAll();
  }

  [[nodiscard]] TCPlayListManagerTreeView& Tree() { return Frame().Tree(); }
  [[nodiscard]] QModelIndex Node(int playlist, int song = -1) {
    const QAbstractItemModel& model = *Tree().model();
    const QModelIndex node = model.index(playlist, 0, model.index(0, 0));
    return song < 0 ? node : model.index(song, 0, node);
  }
  // On its label.
  [[nodiscard]] QPoint PlaceOf(const QModelIndex& node) {
    const QRect row = Tree().visualRect(node);
    return {row.left() + 40, row.center().y()};
  }
  [[nodiscard]] QPoint OnScreen(const QModelIndex& node) {
    return Tree().viewport()->mapToGlobal(PlaceOf(node));
  }
  [[nodiscard]] QPoint PlaceOfRow(int row) {
    TCBrevantView& view = Frame().PlaylistView();
    return view.visualRect(view.model()->index(row, 1)).center();
  }
  // Selects both rows, one by one, and drags them with Ctrl to a place on the screen.
  void CtrlDragBothRowsTo(QPoint globalPlace) {
    TCBrevantView& view = Frame().PlaylistView();
    TCStageMouse mouse(*view.viewport());
    view.clearSelection();
    for (const int row : {1, 0}) mouse.Click(PlaceOfRow(row), Qt::ControlModifier);
    ASSERT_EQ(view.SelectedRows().size(), 2u);
    mouse.Press(PlaceOfRow(1), Qt::ControlModifier);
    mouse.Drag(view.viewport()->mapFromGlobal(globalPlace) - QPoint(0, 3), Qt::ControlModifier);
    mouse.Drag(view.viewport()->mapFromGlobal(globalPlace), Qt::ControlModifier);
    mouse.Release(view.viewport()->mapFromGlobal(globalPlace), Qt::ControlModifier);
    QCoreApplication::sendPostedEvents();
  }
  [[nodiscard]] QStringList Songs(std::size_t playlist) {
    QStringList names;
    for (const TCPlayListItem& song : app->Record().setLists.groups[0].playlists[playlist].items)
      names.append(ToQString(song.fileName));
    return names;
  }
  [[nodiscard]] QStringList Rows() {
    QStringList names;
    for (int row = 0; row < Frame().PlaylistView().model()->rowCount(); ++row) names.append(CellText(row, 4));
    return names;
  }
  [[nodiscard]] QString CurrentName() {
    return ToQString(
        app->Record().setLists.SongInCurrentPlaylist(app->Record().setLists.currentSong)->fileName);
  }
  void SelectNode(const QModelIndex& node) {
    Tree().setFocus();
    Tree().setCurrentIndex(node);
  }
};

TEST_F(Arrange, ADoubleClickInTheTreeShowsThePlaylist) {
  QTest::mouseDClick(Tree().viewport(), Qt::LeftButton, {}, PlaceOf(Node(1)));
  EXPECT_EQ(Rows(), QStringList{QStringLiteral("three.mp3")});
}

TEST_F(Arrange, ADoubleClickOnAGroupOpensOrClosesItAndLoadsNothing) {
  const QModelIndex group = Node(0).parent();
  TCStageMouse mouse(*Tree().viewport());
  for (const bool open : {false, true}) {
    mouse.DoubleClick(PlaceOf(group));
    EXPECT_EQ(Tree().isExpanded(group), open);
  }
  EXPECT_EQ(Rows(), (QStringList{QStringLiteral("one.mp3"), QStringLiteral("two.mp3")}));
  EXPECT_TRUE(player.GetUrl().empty());
}

TEST_F(Arrange, EnterOnASongMakesItCurrentAndPlaysOnlyWithBothOptionsOn) {
  SelectNode(Node(0, 1));
  Press(Qt::Key_Return);
  EXPECT_EQ(CurrentName(), QStringLiteral("two.mp3"));
  EXPECT_TRUE(player.GetUrl().empty());
  Settings().playlistManagerImmediatePlay = true;
  Settings().immediatePlay = false;
  Press(Qt::Key_Return);
  EXPECT_TRUE(player.GetUrl().empty());
  Settings().immediatePlay = true;
  Press(Qt::Key_Return);
  EXPECT_EQ(player.GetUrl(), u"\\m\\two.mp3");
}

TEST_F(Arrange, ShiftDownWalksASongAlongAndStopsAtItsListsEnd) {
  SelectNode(Node(0, 0));
  Press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Rows(), (QStringList{QStringLiteral("two.mp3"), QStringLiteral("one.mp3")}));
  for (int i = 0; i < 3; ++i) Press(Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(Rows(), (QStringList{QStringLiteral("two.mp3"), QStringLiteral("one.mp3")}));
  EXPECT_EQ(Tree().currentIndex().data().toString(), QStringLiteral("one.mp3"));
  EXPECT_EQ(Node(1).data().toString(), QStringLiteral("Set 2"));
}

TEST_F(Arrange, ALabelTypedInTheTreeRenamesThePlaylist) {
  SelectNode(Node(0));
  static_cast<QAbstractItemView&>(Tree()).edit(Node(0));
  auto* field = Tree().findChild<QLineEdit*>();
  ASSERT_NE(field, nullptr);
  field->selectAll();
  QTest::keyClicks(field, QStringLiteral(" Opener "));
  QTest::keyClick(field, Qt::Key_Return);
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(app->Record().setLists.groups[0].playlists[0].name, u"Opener");
  EXPECT_EQ(Node(0).data().toString(), QStringLiteral("Opener"));
}

TEST_F(Arrange, DeleteInTheTreeAsksAndLeavesTheSelectedRowsAlone) {
  Frame().PlaylistView().SelectRow(0);
  SelectNode(Node(1));
  const TCDialogAnswer<QDialog> answer([](QDialog& dialog) { dialog.reject(); });
  Press(Qt::Key_Delete);
  EXPECT_EQ(Rows().size(), 2);
  EXPECT_EQ(Node(1).data().toString(), QStringLiteral("Set 2"));
}

TEST_F(Arrange, RemoveFromTheMenuWhileALabelIsTypedIsForTheTree) {
  Frame().PlaylistView().SelectRow(0);
  SelectNode(Node(1));
  static_cast<QAbstractItemView&>(Tree()).edit(Node(1));
  const TCDialogAnswer<QDialog> answer([](QDialog& dialog) { dialog.reject(); });
  app->Actions().ActionOf(TCCommandId::Remove)->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(Rows().size(), 2);
}

TEST_F(Arrange, DeleteTwiceInThePlaylistRemovesOneSong) {
  Frame().PlaylistView().SelectRow(0);
  Frame().PlaylistView().TakeFocus();
  Tree().setCurrentIndex({});
  Press(Qt::Key_Delete);
  Press(Qt::Key_Delete);
  EXPECT_EQ(Rows(), QStringList{QStringLiteral("two.mp3")});
}

TEST_F(Arrange, ARowDraggedOntoAnotherTakesItsPlace) {
  QWidget& viewport = *Frame().PlaylistView().viewport();
  const auto place = [this](int row) {
    TCBrevantView& view = Frame().PlaylistView();
    return view.visualRect(view.model()->index(row, 1)).center();
  };
  QTest::mousePress(&viewport, Qt::LeftButton, {}, place(0));
  QTest::mouseMove(&viewport, place(1));
  QTest::mouseRelease(&viewport, Qt::LeftButton, {}, place(1));
  EXPECT_EQ(Rows(), (QStringList{QStringLiteral("two.mp3"), QStringLiteral("one.mp3")}));
  EXPECT_EQ(Frame().PlaylistView().SelectedRow(), 1);
}

TEST_F(Arrange, RowsDraggedWithCtrlOntoAPlaylistOfTheTreeAreAppendedThereInOrder) {
  CtrlDragBothRowsTo(OnScreen(Node(1)));
  EXPECT_EQ(Songs(1),
            (QStringList{QStringLiteral("three.mp3"), QStringLiteral("one.mp3"), QStringLiteral("two.mp3")}));
  EXPECT_EQ(Songs(0), (QStringList{QStringLiteral("one.mp3"), QStringLiteral("two.mp3")}));
  EXPECT_EQ(Tree().currentIndex(), Node(1, 1)) << "the first of the copies is selected";
  EXPECT_EQ(Rows(), Songs(0)) << "the playlist that was dragged from still stands there";
  EXPECT_TRUE(app->Document().IsModified());
}

TEST_F(Arrange, RowsDraggedWithCtrlOntoASongGoToItsPlaylistsEnd) {
  CtrlDragBothRowsTo(OnScreen(Node(1, 0)));
  EXPECT_EQ(Songs(1),
            (QStringList{QStringLiteral("three.mp3"), QStringLiteral("one.mp3"), QStringLiteral("two.mp3")}));
}

TEST_F(Arrange, RowsDraggedWithCtrlWithinThePlaylistAreCopiedToItsOwnEnd) {
  SelectNode(Node(1));
  CtrlDragBothRowsTo(Frame().PlaylistView().viewport()->mapToGlobal(PlaceOfRow(0)));
  EXPECT_EQ(Rows(), (QStringList{QStringLiteral("one.mp3"), QStringLiteral("two.mp3"),
                                 QStringLiteral("one.mp3"), QStringLiteral("two.mp3")}));
  EXPECT_EQ(Tree().currentIndex(), Node(0, 2));
}

TEST_F(Arrange, WithEditingDisabledNothingThatIsDraggedArrives) {
  Settings().disableEditing = 1;
  CtrlDragBothRowsTo(OnScreen(Node(1)));
  EXPECT_EQ(Songs(1), QStringList{QStringLiteral("three.mp3")});
  EXPECT_FALSE(app->Document().IsModified());
}

TEST_F(Arrange, RowsDraggedWithCtrlOntoAGroupGoNowhere) {
  CtrlDragBothRowsTo(OnScreen(Node(0).parent()));
  EXPECT_EQ(Songs(0).size() + Songs(1).size(), 3);
  EXPECT_FALSE(app->Document().IsModified());
}

TEST_F(Arrange, BehindAnOpenPromptNoCommandReplacesTheDocument) {
  SelectNode(Node(0));
  const TCDialogAnswer<QDialog> answer([this](QDialog& dialog) {
    app->Actions().ActionOf(TCCommandId::FileNew)->trigger();
    app->Actions().ActionOf(TCCommandId::Duplicate)->trigger();
    QCoreApplication::sendPostedEvents();
    EXPECT_EQ(app->Record().setLists.groups.size(), 1u);
    EXPECT_EQ(app->Record().setLists.groups[0].playlists.size(), 2u);
    dialog.reject();
  });
  Press(Qt::Key_R, Qt::ControlModifier);
  EXPECT_FALSE(app->Document().IsModified());
}

}  // namespace
}  // namespace brevant
