#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QContextMenuEvent>
#include <QScrollBar>

#include "support/timer_tick.h"
#include "views/tree_rig.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TreeMouse : public TCTreeRig {
 protected:
  void SetUp() override {
    TCTreeRig::SetUp();
    OpenAll();
    tree.TakeFocus();
  }
};

TEST_F(TreeMouse, APressSelectsTheNodeAndTellsOfIt) {
  mouse.Press(Label(first[1]));
  EXPECT_EQ(tree.SelectedNode(), first[1]);
  EXPECT_THAT(NodesOf(presses), ElementsAre(first[1]));
  mouse.Release(Label(first[1]));
  mouse.Click(BelowAllNodes());
  EXPECT_THAT(NodesOf(presses), ElementsAre(first[1]));
  EXPECT_EQ(tree.SelectedNode(), first[1]);
  EXPECT_THAT(Moves(), IsEmpty());
  EXPECT_EQ(places.count(), 0);
}

TEST_F(TreeMouse, ANodeIsDraggedToTheNodeItIsReleasedOn) {
  mouse.Press(Label(first[0]));
  mouse.Drag(Label(first[1]));
  mouse.Drag(Label(first[2]));
  EXPECT_THAT(Moves(), IsEmpty());
  mouse.Release(Label(first[2]));
  EXPECT_THAT(Moves(), ElementsAre(TCMove(first[0], first[2])));
}

TEST_F(TreeMouse, AnotherButtonDoesNotEndADrag) {
  mouse.Press(Label(first[0]));
  mouse.Drag(Label(first[2]));
  QTest::mouseRelease(tree.viewport(), Qt::RightButton, {}, Label(first[2]));
  EXPECT_THAT(Moves(), IsEmpty());
  mouse.Release(Label(first[1]));
  EXPECT_THAT(Moves(), ElementsAre(TCMove(first[0], first[1])));
}

TEST_F(TreeMouse, ANodeThatAWindowCoversIsNoTarget) {
  QWidget cover(&window, Qt::Tool | Qt::FramelessWindowHint);
  cover.setGeometry(QRect(tree.viewport()->mapToGlobal(RowOf(first[2]).topLeft()), RowOf(first[2]).size()));
  mouse.Press(Label(first[0]));
  mouse.Drag(Label(first[1]));
  cover.show();
  ASSERT_TRUE(QTest::qWaitForWindowExposed(&cover));
  mouse.Drag(Label(first[2]));
  EXPECT_EQ(tree.SelectedNode(), first[1]);
  mouse.Release(Label(first[2]));
  EXPECT_THAT(Moves(), IsEmpty());
}

TEST_F(TreeMouse, WhatKindsOfNodesMeetIsForTheDocumentToJudge) {
  mouse.Press(Label(setTwo));
  mouse.Drag(Label(first[1]));
  mouse.Release(Label(first[1]));
  EXPECT_THAT(Moves(), ElementsAre(TCMove(setTwo, first[1])));
}

TEST_F(TreeMouse, TheNodeUnderADragIsSelected) {
  mouse.Press(Label(first[0]));
  for (const TCTreeNode under : {first[1], setTwo, rehearsals}) {
    mouse.Drag(Label(under));
    EXPECT_EQ(tree.SelectedNode(), under);
  }
  mouse.Drag(BelowAllNodes());
  EXPECT_EQ(tree.SelectedNode(), rehearsals);
}

TEST_F(TreeMouse, DroppedOnItselfBesideAllNodesOrOutsideANodeStays) {
  for (const QPoint place : {Label(first[0]), BelowAllNodes(), OutsideOfTheTree(), QPoint(60, 5000)}) {
    mouse.Press(Label(first[0]));
    mouse.Drag(Label(first[2]));
    mouse.Drag(place);
    mouse.Release(place);
    EXPECT_THAT(Moves(), IsEmpty());
  }
}

TEST_F(TreeMouse, AnUnsteadyClickIsAClick) {
  mouse.Press(Label(first[0]));
  mouse.Drag(Label(first[0]) + QPoint(2, 1));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Pressed));
  mouse.Release(Label(first[1]));
  EXPECT_THAT(Moves(), IsEmpty());
}

TEST_F(TreeMouse, WhenTheFocusIsLostADragEndsInNothing) {
  mouse.Press(Label(first[0]));
  mouse.Drag(Label(first[1]));
  other.setFocus();
  mouse.Release(Label(first[2]));
  EXPECT_THAT(Moves(), IsEmpty());

  tree.TakeFocus();
  mouse.Press(Label(first[0]));
  other.setFocus();
  mouse.Drag(Label(first[1]));
  mouse.Release(Label(first[2]));
  EXPECT_THAT(Moves(), IsEmpty());
}

TEST_F(TreeMouse, ACancelledDragEndsInNothingAndTheNextOneMoves) {
  mouse.Press(Label(first[0]));
  mouse.Drag(Label(first[1]));
  tree.ResetMouseState();
  mouse.Drag(Label(setTwo));
  EXPECT_EQ(tree.SelectedNode(), first[1]);
  mouse.Release(Label(first[2]));
  EXPECT_THAT(Moves(), IsEmpty());
  mouse.Press(Label(first[0]));
  mouse.Drag(Label(first[2]));
  mouse.Release(Label(first[2]));
  EXPECT_THAT(Moves(), ElementsAre(TCMove(first[0], first[2])));
}

TEST_F(TreeMouse, AtTheEdgeOfTheTreeADragScrolls) {
  const std::vector<TCTreeNode> songs = tree.AddNodes(setTwo, 0, std::vector<std::u16string>(300, u"S.mp3"));
  OpenAll();
  QTimer* timer = TimerOf(tree, "edgeScroll");
  ASSERT_NE(timer, nullptr);
  mouse.Press(Label(first[0]));
  mouse.Drag(Label(first[2]));
  EXPECT_FALSE(timer->isActive());
  mouse.Drag(QPoint(60, tree.viewport()->height() - 3));
  EXPECT_TRUE(timer->isActive());
  const int before = tree.verticalScrollBar()->value();
  for (int i = 0; i < 5; ++i) Tick(*timer);
  EXPECT_GT(tree.verticalScrollBar()->value(), before + 2);
  const QPoint edge(60, tree.viewport()->height() - 3);
  EXPECT_EQ(tree.currentIndex(), tree.indexAt(edge)) << "the target follows what scrolls by";
  mouse.Drag(QPoint(60, -30));
  for (int i = 0; i < 20; ++i) Tick(*timer);
  EXPECT_EQ(tree.verticalScrollBar()->value(), 0) << "above the tree it scrolls up";
  mouse.Release(Label(first[2]));
  EXPECT_FALSE(timer->isActive());
  EXPECT_THAT(Moves(), ElementsAre(TCMove(first[0], first[2])));
}

TEST_F(TreeMouse, SongsDraggedToTheEdgeOfTheTreeScrollItAndElsewhereTheyDoNot) {
  tree.AddNodes(setTwo, 0, std::vector<std::u16string>(300, u"S.mp3"));
  OpenAll();
  QTimer* timer = TimerOf(tree, "edgeScroll");
  ASSERT_NE(timer, nullptr);
  tree.FollowCtrlDrag(tree.viewport()->mapToGlobal(QPoint(60, tree.viewport()->height() - 3)));
  EXPECT_TRUE(timer->isActive());
  Tick(*timer);
  EXPECT_GT(tree.verticalScrollBar()->value(), 0);
  tree.FollowCtrlDrag(tree.viewport()->mapToGlobal(QPoint(60, tree.viewport()->height() + 30)));
  EXPECT_FALSE(timer->isActive());
  tree.FollowCtrlDrag(tree.viewport()->mapToGlobal(QPoint(60, 3)));
  EXPECT_TRUE(timer->isActive());
  tree.EndCtrlDrag();
  EXPECT_FALSE(timer->isActive());
}

TEST_F(TreeMouse, ADragWhoseNodeHasGoneEndsInNothing) {
  mouse.Press(Label(first[0]));
  mouse.Drag(Label(first[1]));
  tree.DeleteNode(first[0]);
  mouse.Release(Label(first[2]));
  EXPECT_THAT(Moves(), IsEmpty());
}

TEST_F(TreeMouse, APressBesideAllNodesDragsNothing) {
  tree.SelectNode(setTwo);
  mouse.Press(BelowAllNodes());
  mouse.Drag(Label(first[0]));
  mouse.Drag(Label(first[1]));
  EXPECT_EQ(tree.SelectedNode(), setTwo);
  mouse.Release(Label(first[1]));
  EXPECT_THAT(Moves(), IsEmpty());
}

TEST_F(TreeMouse, ADoubleClickPicksOnPictureOrLabelAlone) {
  for (const QPoint place : {Picture(first[1]), Label(first[1])}) {
    picks.clear();
    mouse.DoubleClick(place);
    EXPECT_THAT(NodesOf(picks), ElementsAre(first[1]));
  }
  picks.clear();
  mouse.DoubleClick(BesideLabel(first[1]));
  mouse.DoubleClick(BelowAllNodes());
  mouse.DoubleClick(QPoint(RowOf(setOne).left() - 8, RowOf(setOne).center().y()));
  EXPECT_EQ(picks.count(), 0);
  EXPECT_EQ(Editor(), nullptr);
}

TEST_F(TreeMouse, ADoubleClickOpensAndClosesAsTreesDo) {
  mouse.DoubleClick(Label(gigs));
  EXPECT_FALSE(tree.isExpanded(IndexOf(gigs)));
  EXPECT_THAT(NodesOf(picks), ElementsAre(gigs));
  mouse.DoubleClick(Label(gigs));
  EXPECT_TRUE(tree.isExpanded(IndexOf(gigs)));
}

TEST_F(TreeMouse, ADoubleClickWithTheRightButtonPicksNothing) {
  QTest::mouseDClick(tree.viewport(), Qt::RightButton, {}, Label(first[1]));
  EXPECT_EQ(picks.count(), 0);
}

TEST_F(TreeMouse, TheRightButtonSelectsTheNodeAndAsksForTheMenu) {
  const QPoint place = Label(first[1]);
  QTest::mousePress(tree.viewport(), Qt::RightButton, {}, place);
  ASSERT_EQ(menus.count(), 1);
  EXPECT_EQ(menus.at(0).at(0).toPoint(), tree.viewport()->mapToGlobal(place));
  EXPECT_EQ(tree.SelectedNode(), first[1]);
  EXPECT_EQ(presses.count(), 0);
  QContextMenuEvent announced(QContextMenuEvent::Mouse, place, tree.viewport()->mapToGlobal(place));
  QCoreApplication::sendEvent(tree.viewport(), &announced);
  EXPECT_EQ(menus.count(), 1);
  EXPECT_TRUE(announced.isAccepted());
}

TEST_F(TreeMouse, TheMenuKeyAsksForTheMenuAtTheSelectedNode) {
  tree.SelectNode(first[1]);
  QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QCoreApplication::sendEvent(&tree, &key);
  ASSERT_EQ(menus.count(), 1);
  const QPoint place = tree.viewport()->mapFromGlobal(menus.at(0).at(0).toPoint());
  EXPECT_EQ(tree.indexAt(place), IndexOf(first[1]));
}

TEST_F(TreeMouse, TheMenuOfANodeThatIsOutOfSightOpensInsideTheTree) {
  tree.resize(200, 60);
  tree.SelectNode(first[0]);
  tree.verticalScrollBar()->setValue(tree.verticalScrollBar()->maximum());
  ASSERT_FALSE(tree.viewport()->rect().intersects(tree.visualRect(IndexOf(first[0]))));
  QContextMenuEvent key(QContextMenuEvent::Keyboard, QPoint(), QPoint());
  QCoreApplication::sendEvent(&tree, &key);
  ASSERT_EQ(menus.count(), 1);
  const QPoint place = tree.viewport()->mapFromGlobal(menus.at(0).at(0).toPoint());
  EXPECT_TRUE(tree.viewport()->rect().contains(place)) << place.x() << " " << place.y();
}

TEST_F(TreeMouse, ThePointerSaysWhatTheMouseIsAbout) {
  mouse.Hover(Label(first[0]));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Row));
  mouse.Hover(BelowAllNodes());
  EXPECT_EQ(Pointer(), Qt::ArrowCursor);
  mouse.Press(Label(first[0]));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Pressed));
  mouse.Drag(Label(first[1]));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Pressed)) << "where the drag begins";
  mouse.Drag(Label(first[2]));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Drag));
  mouse.Drag(BelowAllNodes());
  EXPECT_EQ(Pointer(), Qt::ArrowCursor);
  mouse.Release(Label(first[2]));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Row));
}

TEST_F(TreeMouse, WhilePlacingWaitsThePlaylistUnderTheMouseIsSelectedAndOpened) {
  tree.collapseAll();
  tree.SetPlacing(TCPlacing::Waiting);
  mouse.Hover(Label(gigs));
  EXPECT_EQ(tree.SelectedNode(), gigs);
  EXPECT_TRUE(tree.isExpanded(IndexOf(gigs)));
  mouse.Hover(Label(setOne));
  EXPECT_EQ(tree.SelectedNode(), setOne);
  EXPECT_TRUE(tree.isExpanded(IndexOf(setOne)));
  mouse.Hover(Label(setTwo));
  mouse.Hover(Label(first[2]));
  EXPECT_EQ(tree.SelectedNode(), setOne) << "of a song its playlist";
  mouse.Hover(BelowAllNodes());
  EXPECT_EQ(tree.SelectedNode(), setOne);
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Busy));
}

TEST_F(TreeMouse, APlaylistScrolledAwayStaysSoWhileTheMouseIsOverItsSongs) {
  const std::vector<TCTreeNode> songs = tree.AddNodes(setTwo, 0, std::vector<std::u16string>(300, u"S.mp3"));
  OpenAll();
  tree.scrollTo(IndexOf(songs[200]));
  tree.SetPlacing(TCPlacing::Waiting);
  const int scroll = tree.verticalScrollBar()->value();
  mouse.Hover(Label(songs[200]));
  EXPECT_EQ(tree.SelectedNode(), setTwo);
  EXPECT_EQ(tree.verticalScrollBar()->value(), scroll);
}

TEST_F(TreeMouse, WhilePlacingWaitsAClickSaysWhereAndNothingElse) {
  tree.SetPlacing(TCPlacing::Waiting);
  mouse.Hover(Label(first[1]));
  mouse.Click(Label(first[1]));
  EXPECT_EQ(places.count(), 1);
  EXPECT_EQ(tree.SelectedNode(), first[1]) << "behind this song";
  EXPECT_EQ(presses.count(), 0);
  mouse.Press(Label(first[0]));
  mouse.Drag(Label(first[2]));
  mouse.Release(Label(first[2]));
  EXPECT_THAT(Moves(), IsEmpty());
  EXPECT_THAT(NodesOf(places), ElementsAre(first[1], first[0]));
  EXPECT_EQ(tree.SelectedNode(), setOne) << "the mouse is on its way to the next place";
  mouse.DoubleClick(Label(setTwo));
  EXPECT_EQ(picks.count(), 0);
  EXPECT_EQ(places.count(), 3);
}

TEST_F(TreeMouse, ADoubleClickThatBeganByPlacingPicksNothing) {
  tree.SetPlacing(TCPlacing::Waiting);
  QObject::connect(&tree, &TCPlayListManagerTreeView::placeWanted, &tree,
                   [this] { tree.SetPlacing(TCPlacing::Nothing); });
  mouse.DoubleClick(Label(setTwo));
  EXPECT_EQ(places.count(), 1);
  EXPECT_EQ(picks.count(), 0);
  EXPECT_TRUE(tree.isExpanded(IndexOf(gigs)));
  mouse.DoubleClick(Label(setTwo));
  EXPECT_THAT(NodesOf(picks), ElementsAre(setTwo));
}

TEST_F(TreeMouse, WhenPlacingNoLongerWaitsThePointerIsOrdinaryAgain) {
  tree.SetPlacing(TCPlacing::Waiting);
  tree.SetPlacing(TCPlacing::Nothing);
  mouse.Hover(Label(first[0]));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Row));
  tree.SelectNode(setTwo);
  mouse.Hover(Label(first[0]));
  EXPECT_EQ(tree.SelectedNode(), setTwo);
}

TEST_F(TreeMouse, SongsDraggedOutOfThePlaylistFindTheirTargetUnderTheMouse) {
  tree.SelectNode(gigs);
  tree.collapse(IndexOf(setOne));
  tree.FollowCtrlDrag(Global(setOne));
  EXPECT_EQ(tree.SelectedNode(), setOne);
  EXPECT_TRUE(tree.isExpanded(IndexOf(setOne)));
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Busy));
  tree.FollowCtrlDrag(Global(rehearsals));
  EXPECT_EQ(tree.SelectedNode(), rehearsals);
  tree.FollowCtrlDrag(Global(first[2]));
  EXPECT_EQ(tree.SelectedNode(), setOne);
  tree.FollowCtrlDrag(tree.viewport()->mapToGlobal(OutsideOfTheTree()));
  EXPECT_EQ(tree.SelectedNode(), setOne);
  tree.EndCtrlDrag();
  mouse.Hover(Label(rehearsals));
  EXPECT_EQ(tree.SelectedNode(), setOne);
  EXPECT_EQ(Pointer(), ShapeOf(TCPointer::Row));
}

}  // namespace
}  // namespace brevant
