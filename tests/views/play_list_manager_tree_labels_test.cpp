#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "views/tree_rig.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TreeLabel : public TCTreeRig {
 protected:
  void SetUp() override {
    TCTreeRig::SetUp();
    OpenAll();
    tree.TakeFocus();
    QApplication::setDoubleClickInterval(20);
    tree.SetRename([this](TCTreeNode node, const QString& name) {
      edited.emplace_back(node, name);
      return taken;
    });
  }
  void TearDown() override {
    QApplication::setDoubleClickInterval(usualInterval);
    TCTreeRig::TearDown();
  }
  // The label's field, its text ready to be typed over; null when none opens.
  QLineEdit* BeginEditing(TCTreeNode node) {
    tree.SelectNode(node);
    mouse.Click(Label(node));
    WaitForEditor();
    return Editor();
  }
  void Type(TCTreeNode node, const QString& text) {
    QLineEdit* field = BeginEditing(node);
    ASSERT_NE(field, nullptr);
    QTest::keyClicks(field, text);
    QTest::keyClick(field, Qt::Key_Return);
    QTest::qWait(0);
    EXPECT_EQ(Editor(), nullptr);
  }

  std::vector<std::pair<TCTreeNode, QString>> edited;
  bool taken = true;
  const int usualInterval = QApplication::doubleClickInterval();
};

TEST_F(TreeLabel, ASecondClickOnTheLabelOfTheSelectedNodeEditsIt) {
  mouse.Click(Label(first[1]));
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  EXPECT_EQ(Editor(), nullptr) << "the first click selects";
  mouse.Click(Label(first[1]));
  WaitForEditor();
  ASSERT_NE(Editor(), nullptr);
  EXPECT_EQ(Editor()->text(), QStringLiteral("B.mp3"));
  EXPECT_EQ(Editor()->selectedText(), QStringLiteral("B.mp3"));
  EXPECT_GE(Editor()->geometry().left(), RowOf(first[1]).left() + tree.iconSize().width())
      << "beside the picture";
}

TEST_F(TreeLabel, AClickBesideTheLabelOfTheSelectedNodeEditsNothing) {
  tree.SelectNode(first[1]);
  for (const QPoint place : {Picture(first[1]), BesideLabel(first[1]), BelowAllNodes()}) {
    mouse.Click(place);
    QTest::qWait(QApplication::doubleClickInterval() + 50);
    EXPECT_EQ(Editor(), nullptr) << place.x() << " " << place.y();
    EXPECT_EQ(tree.SelectedNode(), first[1]);
  }
}

TEST_F(TreeLabel, NeitherADoubleClickNorF2NorTheClickThatBringsTheFocusEdits) {
  tree.SelectNode(first[1]);
  mouse.DoubleClick(Label(first[1]));
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  EXPECT_EQ(Editor(), nullptr);
  QTest::keyClick(&tree, Qt::Key_F2);
  EXPECT_EQ(Editor(), nullptr);
  other.setFocus();
  QTest::mouseClick(tree.viewport(), Qt::LeftButton, {}, Label(first[1]));
  EXPECT_TRUE(tree.HasFocus());
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  EXPECT_EQ(Editor(), nullptr);
}

TEST_F(TreeLabel, AClickOnALabelEditsNothingOnceTheFocusIsElsewhereOrPlacingWaits) {
  tree.SelectNode(first[1]);
  mouse.Click(Label(first[1]));
  other.setFocus();
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  EXPECT_EQ(Editor(), nullptr);
  tree.TakeFocus();
  mouse.Click(Label(first[1]));
  tree.SetPlacing(TCPlacing::Waiting);
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  EXPECT_EQ(Editor(), nullptr);
}

TEST_F(TreeLabel, AClickThatADragFollowsEditsNothing) {
  tree.SelectNode(first[1]);
  mouse.Click(Label(first[1]));
  mouse.Press(Label(first[1]));
  mouse.Drag(Label(first[1]) + QPoint(2 * QApplication::startDragDistance(), 0));
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  EXPECT_EQ(Editor(), nullptr) << "while it is dragged";
  mouse.Release(Label(first[1]));
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  EXPECT_EQ(Editor(), nullptr) << "where it began";
}

TEST_F(TreeLabel, TheClickThatPlacesSongsEditsNothing) {
  tree.SelectNode(setTwo);
  tree.SetPlacing(TCPlacing::Waiting);
  QObject::connect(&tree, &TCPlayListManagerTreeView::placeWanted, &tree,
                   [this] { tree.SetPlacing(TCPlacing::Nothing); });
  mouse.Click(Label(setTwo));
  EXPECT_EQ(places.count(), 1);
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  EXPECT_EQ(Editor(), nullptr);
}

TEST_F(TreeLabel, WhileItIsEditedNoSongIsFollowed) {
  ASSERT_NE(BeginEditing(first[1]), nullptr);
  tree.FollowNode(first[0]);
  EXPECT_EQ(tree.SelectedNode(), first[1]);
  EXPECT_NE(Editor(), nullptr);
}

TEST_F(TreeLabel, NamesOfEveryKindOfNodeAreHandedOnTrimmed) {
  for (const TCTreeNode node : {gigs, setOne, first[0]}) {
    edited.clear();
    Type(node, QStringLiteral("  New name "));
    EXPECT_THAT(edited, ElementsAre(std::pair(node, QStringLiteral("New name"))));
    EXPECT_EQ(Text(node), QStringLiteral("New name"));
  }
}

TEST_F(TreeLabel, WhatTheDocumentMakesOfANameIsWhatShows) {
  tree.SetRename([this](TCTreeNode node, const QString& /*name*/) {
    tree.SetNodeText(node, u"Without quotes");
    return true;
  });
  Type(setOne, QStringLiteral("\"Without\" quotes"));
  EXPECT_EQ(Text(setOne), QStringLiteral("Without quotes"));
}

TEST_F(TreeLabel, ANameThatNobodyTakesStaysAsItWasTyped) {
  taken = false;
  Type(setOne, QStringLiteral(" Typed "));
  EXPECT_THAT(edited, ElementsAre(std::pair(setOne, QStringLiteral("Typed"))));
  EXPECT_EQ(Text(setOne), QStringLiteral(" Typed "));
}

TEST_F(TreeLabel, BlanksStayInTheLabelAndAreToldToNobody) {
  Type(setOne, QStringLiteral("   "));
  EXPECT_THAT(edited, IsEmpty());
  EXPECT_EQ(Text(setOne), QStringLiteral("   "));
}

TEST_F(TreeLabel, EscLeavesTheNameAsItWas) {
  QLineEdit* field = BeginEditing(setOne);
  ASSERT_NE(field, nullptr);
  QTest::keyClicks(field, QStringLiteral("Never"));
  QTest::keyClick(field, Qt::Key_Escape);
  QTest::qWait(0);
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_THAT(edited, IsEmpty());
  EXPECT_EQ(Text(setOne), QStringLiteral("Set 1"));
}

TEST_F(TreeLabel, AClickElsewhereKeepsWhatWasTyped) {
  QLineEdit* field = BeginEditing(setOne);
  ASSERT_NE(field, nullptr);
  QTest::keyClicks(field, QStringLiteral("Encores"));
  other.setFocus();
  QTest::qWait(0);
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_THAT(edited, ElementsAre(std::pair(setOne, QStringLiteral("Encores"))));
}

TEST_F(TreeLabel, AnUntouchedNameIsNotGivenAgain) {
  ASSERT_NE(BeginEditing(setOne), nullptr);
  QTest::keyClick(Editor(), Qt::Key_Return);
  QTest::qWait(0);
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_THAT(edited, IsEmpty());
}

TEST_F(TreeLabel, TheEnterThatEndsTheEditingPicksNothing) {
  QLineEdit* field = BeginEditing(setOne);
  ASSERT_NE(field, nullptr);
  QTest::keyClicks(field, QStringLiteral("Encores"));
  QTest::keyPress(field, Qt::Key_Return);
  QTest::qWait(0);
  ASSERT_TRUE(tree.HasFocus());
  QTest::keyRelease(&tree, Qt::Key_Return);
  EXPECT_EQ(enters.count(), 0);
}

TEST_F(TreeLabel, KeysThatTheFieldLeavesOverMoveNothingInTheTree) {
  QLineEdit* field = BeginEditing(first[1]);
  ASSERT_NE(field, nullptr);
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Down, Qt::Key_PageDown}) {
    QTest::keyClick(field, key);
    QTest::keyClick(field, key, Qt::ShiftModifier);
  }
  EXPECT_EQ(tree.SelectedNode(), first[1]);
  EXPECT_THAT(Moves(), IsEmpty());
  EXPECT_EQ(Editor(), field);
}

TEST_F(TreeLabel, OfANodeThatGoesIsNoLongerEdited) {
  QLineEdit* field = BeginEditing(first[1]);
  ASSERT_NE(field, nullptr);
  QTest::keyClicks(field, QStringLiteral("Gone"));
  tree.DeleteNode(first[1]);
  QTest::qWait(0);
  EXPECT_EQ(Editor(), nullptr);
  EXPECT_THAT(edited, IsEmpty());
}

TEST_F(TreeLabel, WithoutANodeNothingIsEdited) {
  tree.ClearNodes();
  mouse.Click(QPoint(40, 10));
  mouse.Click(QPoint(40, 10));
  QTest::qWait(QApplication::doubleClickInterval() + 50);
  EXPECT_EQ(Editor(), nullptr);
}

}  // namespace
}  // namespace brevant
