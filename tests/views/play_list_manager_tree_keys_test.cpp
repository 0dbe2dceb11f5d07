#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "views/tree_rig.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TreeKeys : public TCTreeRig {};

TEST_F(TreeKeys, EnterActsOnceForItsPressAndOnceForItsReleaseOnPlaylistsAndSongsAlone) {
  tree.TakeFocus();
  for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
    for (const TCTreeNode node : {setOne, first[0]}) {
      enters.clear();
      tree.SelectNode(node);
      QTest::keyPress(&tree, enter);
      EXPECT_EQ(enters.count(), 1);
      QTest::keyRelease(&tree, enter);
      EXPECT_EQ(enters.count(), 2);
    }
    enters.clear();
    tree.SelectNode(gigs);
    QTest::keyClick(&tree, enter);
    EXPECT_EQ(enters.count(), 0);
  }
}

TEST_F(TreeKeys, EnterOnAGroupOrWithoutANodeIsLeftToTheFrame) {
  tree.TakeFocus();
  window.keys = 0;
  QTest::keyClick(&tree, Qt::Key_Return);
  EXPECT_EQ(window.keys, 1);
  tree.SelectNode(gigs);
  QTest::keyClick(&tree, Qt::Key_Return);
  EXPECT_EQ(window.keys, 2);
  tree.SelectNode(setOne);
  QTest::keyClick(&tree, Qt::Key_Return);
  EXPECT_EQ(window.keys, 2);
}

TEST_F(TreeKeys, AHeldEnterActsNoMoreThanAShortOne) {
  tree.TakeFocus();
  tree.SelectNode(setOne);
  const auto send = [this](QEvent::Type type, bool repeat) {
    QKeyEvent event(type, Qt::Key_Return, {}, QString(), repeat);
    QCoreApplication::sendEvent(&tree, &event);
  };
  send(QEvent::KeyPress, false);
  for (int i = 0; i < 5; ++i) {
    send(QEvent::KeyRelease, true);
    send(QEvent::KeyPress, true);
    EXPECT_EQ(enters.count(), 1) << "it has not come up yet";
  }
  send(QEvent::KeyRelease, false);
  EXPECT_EQ(enters.count(), 2);
}

TEST_F(TreeKeys, TheReleaseOfAnEnterThatWentDownElsewhereIsNoEnter) {
  tree.SelectNode(setOne);
  tree.TakeFocus();
  QTest::keyRelease(&tree, Qt::Key_Return);
  EXPECT_EQ(enters.count(), 0);
  QTest::keyPress(&tree, Qt::Key_Return);
  other.setFocus();
  tree.TakeFocus();
  QTest::keyRelease(&tree, Qt::Key_Return);
  EXPECT_EQ(enters.count(), 1);
}

TEST_F(TreeKeys, PlainArrowsMoveTheSelectionAndOpenAndCloseNodes) {
  tree.TakeFocus();
  tree.SelectNode(gigs);
  QTest::keyClick(&tree, Qt::Key_Right);
  EXPECT_TRUE(tree.isExpanded(IndexOf(gigs)));
  QTest::keyClick(&tree, Qt::Key_Down);
  EXPECT_EQ(tree.SelectedNode(), setOne);
  QTest::keyClick(&tree, Qt::Key_Down);
  EXPECT_EQ(tree.SelectedNode(), setTwo);
  QTest::keyClick(&tree, Qt::Key_Up);
  EXPECT_EQ(tree.SelectedNode(), setOne);
  QTest::keyClick(&tree, Qt::Key_Left);
  QTest::keyClick(&tree, Qt::Key_Left);
  EXPECT_FALSE(tree.isExpanded(IndexOf(gigs)));
  EXPECT_THAT(Moves(), IsEmpty());
}

TEST_F(TreeKeys, TheFirstArrowSelectsTheFirstGroupWhenNothingIsSelected) {
  for (const Qt::Key arrow : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Left, Qt::Key_Right}) {
    tree.clearSelection();
    tree.TakeFocus();
    ASSERT_EQ(tree.SelectedNode(), TCTreeNode::None);
    QTest::keyClick(&tree, arrow);
    EXPECT_EQ(tree.SelectedNode(), gigs);
    EXPECT_FALSE(tree.isExpanded(IndexOf(gigs)));
  }
  tree.clearSelection();
  QTest::keyClick(&tree, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(tree.SelectedNode(), gigs);
  EXPECT_THAT(Moves(), IsEmpty());
  tree.ClearNodes();
  QTest::keyClick(&tree, Qt::Key_Down);
  EXPECT_EQ(tree.SelectedNode(), TCTreeNode::None);
}

TEST_F(TreeKeys, ShiftWithAnArrowMovesTheNodeWhenTheKeyComesUp) {
  OpenAll();
  tree.TakeFocus();
  tree.SelectNode(first[0]);
  QTest::keyPress(&tree, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_THAT(Moves(), IsEmpty());
  EXPECT_EQ(tree.SelectedNode(), first[1]);
  QTest::keyRelease(&tree, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_THAT(Moves(), ElementsAre(TCMove(first[0], first[1])));
  QTest::keyRelease(&tree, Qt::Key_Down, Qt::ShiftModifier);  // of a press that went elsewhere
  EXPECT_THAT(Moves(), ElementsAre(TCMove(first[0], first[1])));
}

TEST_F(TreeKeys, AShiftArrowWhoseReleaseWentElsewhereMovesNothing) {
  OpenAll();
  tree.TakeFocus();
  tree.SelectNode(first[0]);
  QTest::keyPress(&tree, Qt::Key_Down, Qt::ShiftModifier);
  other.setFocus();
  tree.TakeFocus();
  QTest::keyRelease(&tree, Qt::Key_Down);
  EXPECT_THAT(Moves(), IsEmpty());
}

TEST_F(TreeKeys, ShiftHeldWalksANodeAlongAsTheDocumentMovesIt) {
  OpenAll();
  tree.TakeFocus();
  tree.SelectNode(first[0]);
  LetTheDocumentMove();
  QTest::keyClick(&tree, Qt::Key_Down, Qt::ShiftModifier);
  QTest::keyClick(&tree, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_EQ(IndexOf(first[0]).row(), 2);
  EXPECT_EQ(tree.SelectedNode(), first[0]);
  QTest::keyClick(&tree, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_EQ(IndexOf(first[0]).row(), 1);
}

TEST_F(TreeKeys, AHeldShiftArrowMovesOnceARepeat) {
  OpenAll();
  tree.TakeFocus();
  tree.SelectNode(first[0]);
  LetTheDocumentMove();
  const auto send = [this](QEvent::Type type, bool repeat) {
    QKeyEvent event(type, Qt::Key_Down, Qt::ShiftModifier, QString(), repeat);
    QCoreApplication::sendEvent(&tree, &event);
  };
  send(QEvent::KeyPress, false);
  send(QEvent::KeyRelease, true);
  send(QEvent::KeyPress, true);
  send(QEvent::KeyRelease, false);
  EXPECT_EQ(IndexOf(first[0]).row(), 2);
}

TEST_F(TreeKeys, ShiftDownOnTheLastNodeMovesNothing) {
  tree.TakeFocus();
  tree.SelectNode(rehearsals);
  QTest::keyClick(&tree, Qt::Key_Down, Qt::ShiftModifier);
  tree.SelectNode(gigs);
  QTest::keyClick(&tree, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_THAT(Moves(), IsEmpty());
}

TEST_F(TreeKeys, AShiftArrowThatWasGivenUpMovesNothing) {
  OpenAll();
  tree.TakeFocus();
  tree.SelectNode(first[0]);
  QTest::keyPress(&tree, Qt::Key_Down, Qt::ShiftModifier);
  tree.ResetMouseState();
  QTest::keyRelease(&tree, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_THAT(Moves(), IsEmpty());

  QTest::keyPress(&tree, Qt::Key_Up, Qt::ShiftModifier);
  other.setFocus();  // the release goes there
  tree.TakeFocus();
  QTest::keyClick(&tree, Qt::Key_Up);
  EXPECT_THAT(Moves(), IsEmpty());
}

TEST_F(TreeKeys, AShiftArrowWhoseNodeHasGoneMovesNothing) {
  OpenAll();
  tree.TakeFocus();
  tree.SelectNode(first[0]);
  QTest::keyPress(&tree, Qt::Key_Down, Qt::ShiftModifier);
  tree.DeleteNode(first[0]);
  QTest::keyRelease(&tree, Qt::Key_Down, Qt::ShiftModifier);
  EXPECT_THAT(Moves(), IsEmpty());
}

}  // namespace
}  // namespace brevant
