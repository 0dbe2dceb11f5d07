#include "views/play_list_manager_tree_view.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QAccessible>
#include <QDockWidget>
#include <QImage>
#include <QLineEdit>
#include <QMainWindow>
#include <QPixmap>
#include <QTest>
#include <QToolTip>

#include "views/tree_rig.h"

namespace brevant {
namespace {

using testing::IsEmpty;
using testing::SizeIs;

class Tree : public TCTreeRig {};

TEST_F(Tree, ShowsWhatItIsGivenThreeLevelsDeepAndNothingSelectedOrOpened) {
  EXPECT_EQ(Text(gigs), QStringLiteral("Gigs"));
  EXPECT_EQ(tree.ParentOf(first[1]), setOne);
  EXPECT_EQ(tree.ParentOf(setOne), gigs);
  EXPECT_EQ(tree.ParentOf(gigs), TCTreeNode::None);
  EXPECT_EQ(tree.SelectedNode(), TCTreeNode::None);
  EXPECT_EQ(tree.SelectedKind(), TCNodeKind::None);
  EXPECT_FALSE(tree.isExpanded(IndexOf(gigs)));
}

TEST_F(Tree, SelectingANodeOpensTheWayToItAndBringsItIntoView) {
  std::vector<std::u16string> many(300, u"Song.mp3");
  const std::vector<TCTreeNode> songs = tree.AddNodes(setTwo, 0, many);
  tree.SelectNode(songs[250]);
  EXPECT_EQ(tree.SelectedNode(), songs[250]);
  EXPECT_EQ(tree.SelectedKind(), TCNodeKind::Song);
  EXPECT_TRUE(tree.isExpanded(IndexOf(gigs)));
  EXPECT_TRUE(tree.isExpanded(IndexOf(setTwo)));
  EXPECT_TRUE(tree.viewport()->rect().contains(RowOf(songs[250])));
}

TEST_F(Tree, OneNodeIsSelectedWhateverKeysAreHeld) {
  OpenAll();
  for (const Qt::KeyboardModifiers held :
       {Qt::KeyboardModifiers(), Qt::KeyboardModifiers(Qt::ControlModifier),
        Qt::KeyboardModifiers(Qt::ShiftModifier), Qt::KeyboardModifiers(Qt::ControlModifier)}) {
    mouse.Click(Label(first[1]), held);
    EXPECT_EQ(tree.SelectedNode(), first[1]);
    mouse.Click(Label(setTwo), held);
    EXPECT_EQ(tree.SelectedNode(), setTwo);
    mouse.Click(Label(setTwo), held);
    EXPECT_EQ(tree.SelectedNode(), setTwo) << "a second click takes nothing back";
    EXPECT_THAT(tree.selectionModel()->selectedIndexes(), SizeIs(1));
    EndEditing();
  }
}

TEST_F(Tree, ANodeThatIsNotThereIsIgnored) {
  tree.SelectNode(setOne);
  tree.DeleteNode(first[0]);
  for (const TCTreeNode gone : {TCTreeNode::None, first[0], static_cast<TCTreeNode>(~0ULL)}) {
    tree.SelectNode(gone);
    tree.ExpandNode(gone);
    tree.DeleteNode(gone);
    tree.MoveNode(gone, setTwo, 0);
    tree.SetNodeText(gone, u"X");
    EXPECT_EQ(tree.ParentOf(gone), TCTreeNode::None);
    EXPECT_EQ(tree.SelectedNode(), setOne);
  }
  EXPECT_THAT(tree.AddNodes(first[0], 0, {u"X"}), IsEmpty());
}

TEST_F(Tree, ExpandingANodeShowsItsChildren) {
  tree.ExpandNode(setOne);
  EXPECT_TRUE(tree.isExpanded(IndexOf(gigs)));
  EXPECT_TRUE(tree.isExpanded(IndexOf(setOne)));
  EXPECT_TRUE(RowOf(first[0]).isValid());
}

TEST_F(Tree, AMovedNodeStaysOpenAndSelected) {
  OpenAll();
  tree.SelectNode(setOne);
  tree.MoveNode(setOne, rehearsals, 0);
  EXPECT_EQ(tree.ParentOf(setOne), rehearsals);
  EXPECT_TRUE(tree.isExpanded(IndexOf(setOne)));
  EXPECT_EQ(tree.SelectedNode(), setOne);
  tree.SelectNode(first[2]);
  tree.MoveNode(rehearsals, TCTreeNode::None, 0);
  EXPECT_EQ(tree.SelectedNode(), first[2]);
  EXPECT_TRUE(tree.isExpanded(IndexOf(setOne)));
  EXPECT_EQ(IndexOf(rehearsals).row(), 0);
}

TEST_F(Tree, WhenTheSelectedNodeGoesANeighbourIsSelected) {
  tree.SelectNode(first[1]);
  tree.DeleteNode(first[1]);
  EXPECT_EQ(tree.SelectedNode(), first[2]) << "the next one";
  tree.DeleteNode(first[2]);
  EXPECT_EQ(tree.SelectedNode(), first[0]) << "of the last one the one before";
  tree.DeleteNode(first[0]);
  EXPECT_EQ(tree.SelectedNode(), setOne) << "of the only one the one it lay in";
}

TEST_F(Tree, WhenTheSelectedNodeGoesWithItsNeighboursTheOneBehindThemAllIsSelected) {
  const std::vector<TCTreeNode> more = tree.AddNodes(setOne, 3, {u"D.mp3", u"E.mp3"});
  tree.SelectNode(first[1]);
  tree.DeleteNodes(first[0], 3);
  EXPECT_EQ(tree.SelectedNode(), more[0]);
  tree.SelectNode(more[1]);
  tree.DeleteNodes(more[1], 7);
  EXPECT_EQ(tree.SelectedNode(), more[0]);
  tree.SelectNode(setTwo);
  tree.DeleteNodes(more[0], 1);
  EXPECT_EQ(tree.SelectedNode(), setTwo);
}

TEST_F(Tree, WhenANodeGoesThatTheSelectedOneLiesInItsNeighbourIsSelected) {
  tree.SelectNode(first[1]);
  tree.DeleteNode(gigs);
  EXPECT_EQ(tree.SelectedNode(), rehearsals);
  tree.DeleteNode(rehearsals);
  EXPECT_EQ(tree.SelectedNode(), TCTreeNode::None);
}

TEST_F(Tree, WhenAnotherNodeGoesTheSelectedOneStays) {
  tree.SelectNode(first[1]);
  tree.DeleteNode(first[0]);
  tree.DeleteNode(setTwo);
  tree.DeleteNode(rehearsals);
  EXPECT_EQ(tree.SelectedNode(), first[1]);
}

TEST_F(Tree, ClearingTakesAllNodes) {
  tree.SelectNode(first[1]);
  tree.ClearNodes();
  EXPECT_EQ(tree.SelectedNode(), TCTreeNode::None);
  EXPECT_EQ(tree.model()->rowCount(), 0);
  tree.SelectNode(first[1]);
  EXPECT_EQ(tree.SelectedNode(), TCTreeNode::None);
}

TEST_F(Tree, ClearingEndsADrag) {
  OpenAll();
  mouse.Press(Label(first[0]));
  mouse.Drag(Label(first[1]));
  tree.ClearNodes();
  other.setFocus();
  const TCTreeNode added = tree.AddNodes(TCTreeNode::None, 0, {u"New"}).front();
  tree.FollowNode(added);
  EXPECT_EQ(tree.SelectedNode(), added) << "the user no longer drags";
}

TEST_F(Tree, FollowsASongOnlyWhileTheUserWorksElsewhere) {
  other.setFocus();
  tree.FollowNode(first[0]);
  EXPECT_EQ(tree.SelectedNode(), first[0]);
  tree.TakeFocus();
  ASSERT_TRUE(tree.HasFocus());
  tree.FollowNode(first[1]);
  EXPECT_EQ(tree.SelectedNode(), first[0]);
  other.setFocus();
  tree.FollowNode(first[1]);
  EXPECT_EQ(tree.SelectedNode(), first[1]);
}

TEST_F(Tree, FollowsNoSongWhileANodeOrSongsAreDraggedOrPlacingWaits) {
  OpenAll();
  other.setFocus();
  tree.SetPlacing(TCPlacing::Waiting);
  tree.FollowNode(first[0]);
  EXPECT_EQ(tree.SelectedNode(), TCTreeNode::None);
  tree.SetPlacing(TCPlacing::Nothing);

  tree.FollowCtrlDrag(Global(setTwo));
  tree.FollowNode(first[0]);
  EXPECT_EQ(tree.SelectedNode(), setTwo);
  tree.EndCtrlDrag();

  mouse.Press(Label(first[1]));
  mouse.Drag(Label(first[2]));
  other.setFocus();
  tree.FollowNode(first[0]);
  EXPECT_EQ(tree.SelectedNode(), first[2]);
  mouse.Release(Label(first[2]));
  tree.FollowNode(first[0]);
  EXPECT_EQ(tree.SelectedNode(), first[0]);
}

TEST_F(Tree, FollowsNoSongBehindADialogThatWasCalledFromIt) {
  tree.TakeFocus();
  tree.SelectNode(setTwo);
  QDialog dialog(&window);
  dialog.open();
  dialog.activateWindow();
  ASSERT_TRUE(QTest::qWaitFor([&dialog] { return QApplication::activeWindow() == &dialog; }));
  tree.FollowNode(first[0]);
  EXPECT_EQ(tree.SelectedNode(), setTwo);
}

TEST_F(Tree, TakesTheFocusButNotIntoAPaneThatIsClosed) {
  other.setFocus();
  tree.TakeFocus();
  EXPECT_TRUE(tree.HasFocus());
  other.setFocus();
  tree.hide();
  tree.TakeFocus();
  EXPECT_TRUE(other.hasFocus());
  tree.show();
  EXPECT_TRUE(other.hasFocus());
}

// In two panes of one place, as the user may lay them.
class TreeBehindATab : public testing::Test {
 protected:
  TreeBehindATab() {
    pane->setWidget(tree);
    front->setWidget(new QLineEdit);
    main.addDockWidget(Qt::LeftDockWidgetArea, pane);
    main.tabifyDockWidget(pane, front);
    main.setCentralWidget(playlist);
    main.resize(600, 400);
    main.show();
    QCoreApplication::processEvents();
    front->raise();
    main.activateWindow();
    playlist->setFocus();
    QCoreApplication::processEvents();
  }

  QMainWindow main;
  QDockWidget* pane = new QDockWidget(&main);
  QDockWidget* front = new QDockWidget(&main);
  TCPlayListManagerTreeView* tree = new TCPlayListManagerTreeView(nullptr);
  QLineEdit* playlist = new QLineEdit;
};

TEST_F(TreeBehindATab, ComesToTheFrontForTheKeys) {
  ASSERT_TRUE(tree->viewport()->visibleRegion().isEmpty());
  tree->TakeFocus();
  EXPECT_TRUE(QTest::qWaitFor([this] { return !tree->viewport()->visibleRegion().isEmpty(); }));
  EXPECT_TRUE(tree->hasFocus());
}

TEST_F(TreeBehindATab, TakesNoKeysIntoAPaneThatFloatsAndIsClosed) {
  pane->setFloating(true);
  pane->hide();
  playlist->setFocus();
  tree->TakeFocus();
  EXPECT_TRUE(playlist->hasFocus());
  EXPECT_EQ(pane->focusWidget(), nullptr) << "nor when it is opened again";
}

TEST_F(Tree, EveryLevelHasItsPictureAndTheSelectedNodeAnother) {
  TCSetListTreeModel::TCPictures pictures;
  for (int i = 0; i < 6; ++i) {
    QPixmap picture(23, 19);
    picture.fill(QColor(200, 10 + i * 40, 0));
    QIcon& icon = pictures[static_cast<std::size_t>(i)];
    QPixmap ofAPressedButton(23, 19);
    ofAPressedButton.fill(Qt::white);
    for (const QIcon::Mode mode : {QIcon::Normal, QIcon::Selected}) {
      icon.addPixmap(picture, mode);
      icon.addPixmap(ofAPressedButton, mode, QIcon::On);
    }
  }
  tree.SetPictures(pictures);
  OpenAll();
  const auto green = [this](TCTreeNode node) {
    return tree.viewport()->grab().toImage().pixelColor(Picture(node)).green();
  };
  other.setFocus();
  const TCTreeNode nodes[] = {gigs, setOne, first[0]};
  for (int level = 0; level < 3; ++level) {
    tree.SelectNode(rehearsals);
    EXPECT_EQ(green(nodes[level]), 10 + level * 80);
    tree.SelectNode(nodes[level]);
    EXPECT_EQ(green(nodes[level]), 10 + level * 80 + 40);
  }
}

TEST_F(Tree, PicturesHaveTheirSizeAndLinesJoinTheNodesInFrontOfThem) {
  EXPECT_EQ(tree.iconSize(), QSize(23, 19));
  QPalette colours = tree.palette();
  colours.setColor(QPalette::Base, Qt::black);
  for (const QPalette::ColorRole role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    colours.setColor(role, Qt::white);
  colours.setColor(QPalette::Mid, QColor(1, 2, 250));
  tree.setPalette(colours);
  OpenAll();
  tree.SelectNode(rehearsals);
  const QImage picture = tree.viewport()->grab().toImage();
  const auto inFrontOf = [&](TCTreeNode node, const auto& drawn) {
    const QRect row = RowOf(node);
    int count = 0;
    for (int x = row.left() - tree.indentation(); x < row.left(); ++x) {
      for (int y = row.top(); y <= row.bottom(); ++y) count += drawn(picture.pixelColor(x, y)) ? 1 : 0;
    }
    return count;
  };
  const auto line = [](const QColor& colour) { return colour == QColor(1, 2, 250); };
  const auto arrow = [&line](const QColor& colour) { return colour != QColor(Qt::black) && !line(colour); };
  for (const TCTreeNode node : {gigs, setOne, setTwo, first[0], first[2]}) {
    EXPECT_GT(inFrontOf(node, line), 0) << Text(node).toStdString();
    EXPECT_EQ(inFrontOf(node, arrow) > 0, node == gigs || node == setOne) << Text(node).toStdString();
  }
}

TEST_F(Tree, OnlyACutOffLabelHasAToolTip) {
  OpenAll();
  const auto tipAt = [this](TCTreeNode node) {
    QHelpEvent help(QEvent::ToolTip, Label(node), Global(node));
    QCoreApplication::sendEvent(tree.viewport(), &help);
    return QToolTip::text();
  };
  EXPECT_EQ(tipAt(first[0]), QString());
  EXPECT_EQ(tipAt(gigs), QString());
  tree.SetNodeText(first[0], u"A <b>very</b> long name " + std::u16string(200, u'x') + u".mp3");
  EXPECT_TRUE(tipAt(first[0]).contains(QStringLiteral("A &lt;b&gt;very&lt;/b&gt; long name xxx")));
}

TEST_F(Tree, NodesCanBeReadByAssistiveTechnology) {
  OpenAll();
  EXPECT_EQ(tree.accessibleName(), QStringLiteral("Play List Manager"));
  QAccessibleInterface* accessible = QAccessible::queryAccessibleInterface(&tree);
  ASSERT_NE(accessible, nullptr);
  ASSERT_NE(accessible->tableInterface(), nullptr);
  EXPECT_EQ(accessible->tableInterface()->rowCount(), 7);
  EXPECT_EQ(accessible->tableInterface()->cellAt(2, 0)->text(QAccessible::Name), QStringLiteral("A.mp3"));
}

}  // namespace
}  // namespace brevant
