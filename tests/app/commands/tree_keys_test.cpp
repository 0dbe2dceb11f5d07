#include "app/commands/tree_keys.h"

#include <gtest/gtest.h>

#include <QApplication>
#include <QLineEdit>
#include <QMainWindow>
#include <QSignalSpy>
#include <QTest>

#include "app/commands/key_filter.h"
#include "app/fake_target.h"
#include "app/timed_key.h"
#include "views/play_list_manager_tree_view.h"

namespace brevant {
namespace {

constexpr TCNodeKind kKinds[] = {TCNodeKind::None, TCNodeKind::Group, TCNodeKind::Playlist, TCNodeKind::Song};

TEST(TreeKeepsKey, EnterIsTheTreesOnPlaylistsAndSongsAlone) {
  for (const int enter : {Qt::Key_Return, Qt::Key_Enter}) {
    EXPECT_FALSE(TreeKeepsKey(enter, Qt::NoModifier, TCNodeKind::None));
    EXPECT_FALSE(TreeKeepsKey(enter, Qt::NoModifier, TCNodeKind::Group));
    EXPECT_TRUE(TreeKeepsKey(enter, Qt::NoModifier, TCNodeKind::Playlist));
    EXPECT_TRUE(TreeKeepsKey(enter, Qt::KeypadModifier, TCNodeKind::Song));
    EXPECT_FALSE(TreeKeepsKey(enter, Qt::AltModifier, TCNodeKind::Song));
  }
}

TEST(TreeKeepsKey, PlainArrowsAndShiftUpAndDownAreTheTreesWhateverIsSelected) {
  for (const TCNodeKind kind : kKinds) {
    for (const int arrow : {Qt::Key_Up, Qt::Key_Down, Qt::Key_Left, Qt::Key_Right}) {
      EXPECT_TRUE(TreeKeepsKey(arrow, Qt::NoModifier, kind));
      EXPECT_TRUE(TreeKeepsKey(arrow, Qt::KeypadModifier, kind));
      EXPECT_FALSE(TreeKeepsKey(arrow, Qt::ControlModifier, kind));
      EXPECT_EQ(TreeKeepsKey(arrow, Qt::ShiftModifier, kind), arrow == Qt::Key_Up || arrow == Qt::Key_Down);
    }
  }
}

TEST(TreeKeepsKey, EveryOtherKeyIsTheTables) {
  for (const int key : {Qt::Key_Space, Qt::Key_Delete, Qt::Key_Escape, Qt::Key_F2, Qt::Key_F5, Qt::Key_M,
                        Qt::Key_Home, Qt::Key_Q}) {
    EXPECT_FALSE(TreeKeepsKey(key, Qt::NoModifier, TCNodeKind::Song)) << key;
  }
}

// The tree and the key table in one window.
class TreeAndTable : public testing::Test {
 protected:
  void SetUp() override {
    target.handled = {TCCommandId::LoadSong,      TCCommandId::NextSong,  TCCommandId::NextPlaylist,
                      TCCommandId::PauseContinue, TCCommandId::Play,      TCCommandId::Cancel,
                      TCCommandId::Remove,        TCCommandId::MoveSongUp};
    actions.emplace(target, window);
    filter.emplace(*actions, window);
    filter->LetKeep(*tree, [this](int key, Qt::KeyboardModifiers modifiers) {
      return TreeKeepsKey(key, modifiers, tree->SelectedKind());
    });
    window.setCentralWidget(tree);
    group = tree->AddNodes(TCTreeNode::None, 0, {u"Gigs"}).front();
    playlists = tree->AddNodes(group, 0, {u"Set 1", u"Set 2"});
    window.show();
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    tree->TakeFocus();
    ASSERT_TRUE(tree->HasFocus());
  }
  std::vector<TCCommandId> Type(QWidget* widget, Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    target.ran.clear();
    QTest::keyClick(widget, key, modifiers);
    QCoreApplication::sendPostedEvents();
    return target.ran;
  }
  std::vector<TCCommandId> Type(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    return Type(tree, key, modifiers);
  }

  // Down, `repeats` times again, and up. Not all repeats come with the toolkit's mark.
  void Hold(Qt::Key key, int repeats, bool marked, unsigned long time) {
    SendKey(tree, QEvent::KeyPress, key, time, false);
    for (int i = 0; i < repeats; ++i) {
      time += 30;
      SendKey(tree, QEvent::KeyRelease, key, time, marked);
      SendKey(tree, QEvent::KeyPress, key, time, marked);
    }
    SendKey(tree, QEvent::KeyRelease, key, time + 30, false);
    QCoreApplication::sendPostedEvents();
  }

  TCFakeTarget target;
  QMainWindow window;
  TCPlayListManagerTreeView* tree = new TCPlayListManagerTreeView;
  std::optional<TCCommandActions> actions;
  std::optional<TCKeyFilter> filter;
  TCTreeNode group = TCTreeNode::None;
  std::vector<TCTreeNode> playlists;
};

using Ran = std::vector<TCCommandId>;

TEST_F(TreeAndTable, TheTreeHasItsArrowsAndTheTableAllElse) {
  tree->SelectNode(playlists[0]);
  EXPECT_EQ(Type(Qt::Key_Down), Ran{});
  EXPECT_EQ(tree->SelectedNode(), playlists[1]);
  EXPECT_EQ(Type(Qt::Key_Left), Ran{});
  EXPECT_EQ(tree->SelectedNode(), group);
  EXPECT_EQ(Type(Qt::Key_Space), Ran{TCCommandId::PauseContinue});
  EXPECT_EQ(Type(Qt::Key_P), Ran{TCCommandId::Play});
  EXPECT_EQ(Type(Qt::Key_Escape), Ran{TCCommandId::Cancel});
  EXPECT_EQ(Type(Qt::Key_Delete), Ran{TCCommandId::Remove});
  EXPECT_EQ(Type(Qt::Key_M, Qt::ShiftModifier), Ran{TCCommandId::MoveSongUp});
}

TEST_F(TreeAndTable, EnterIsTheTreesOnAPlaylistAndTheTablesOnAGroup) {
  const QSignalSpy enters(tree, &TCPlayListManagerTreeView::enterPressed);
  tree->SelectNode(playlists[0]);
  EXPECT_EQ(Type(Qt::Key_Return), Ran{});
  EXPECT_EQ(enters.count(), 2);
  tree->SelectNode(group);
  EXPECT_EQ(Type(Qt::Key_Return), Ran{TCCommandId::LoadSong});
  EXPECT_EQ(enters.count(), 2);
}

TEST_F(TreeAndTable, AHeldEnterActsOnceForItsPressAndOnceForItsRelease) {
  QSignalSpy enters(tree, &TCPlayListManagerTreeView::enterPressed);
  tree->SelectNode(playlists[0]);
  for (const bool marked : {true, false}) {
    for (const Qt::Key enter : {Qt::Key_Return, Qt::Key_Enter}) {
      enters.clear();
      Hold(enter, 5, marked, marked ? 10000 : 20000);
      EXPECT_EQ(enters.count(), 2) << marked;
      EXPECT_EQ(target.ran, Ran{});
    }
  }
}

TEST_F(TreeAndTable, TwoQuickEntersAreTwo) {
  const QSignalSpy enters(tree, &TCPlayListManagerTreeView::enterPressed);
  tree->SelectNode(playlists[0]);
  Hold(Qt::Key_Return, 0, false, 1000);
  Hold(Qt::Key_Return, 0, false, 1040);
  EXPECT_EQ(enters.count(), 4);
}

TEST_F(TreeAndTable, AHeldArrowGoesOnAndOn) {
  tree->AddNodes(group, 2, {u"Set 3", u"Set 4", u"Set 5"});
  tree->SelectNode(group);
  tree->expandAll();
  for (const bool marked : {true, false}) {
    tree->SelectNode(group);
    Hold(Qt::Key_Down, 3, marked, marked ? 10000 : 20000);
    EXPECT_EQ(tree->currentIndex().row(), 3) << marked;
  }
  EXPECT_EQ(target.ran, Ran{});
}

TEST_F(TreeAndTable, ShiftWithAnArrowMovesANode) {
  const QSignalSpy moves(tree, &TCPlayListManagerTreeView::nodeMoved);
  tree->SelectNode(playlists[0]);
  EXPECT_EQ(Type(Qt::Key_Down, Qt::ShiftModifier), Ran{});
  EXPECT_EQ(moves.count(), 1);
}

TEST_F(TreeAndTable, WhileALabelIsEditedTheTableKeepsOnlyItsFunctionKeys) {
  tree->SelectNode(playlists[0]);
  static_cast<QAbstractItemView*>(tree)->edit(tree->currentIndex());
  auto* field = tree->findChild<QLineEdit*>();
  ASSERT_NE(field, nullptr);
  ASSERT_EQ(QApplication::focusWidget(), field);
  for (const Qt::Key key : {Qt::Key_P, Qt::Key_Space, Qt::Key_Delete, Qt::Key_Down, Qt::Key_Left}) {
    EXPECT_EQ(Type(field, key), Ran{}) << key;
  }
  EXPECT_EQ(Type(field, Qt::Key_F5), Ran{TCCommandId::Play});
  EXPECT_EQ(Type(field, Qt::Key_Escape), Ran{}) << "Esc ends the editing and nothing else";
  QTest::qWait(0);
  EXPECT_TRUE(tree->HasFocus());
}

}  // namespace
}  // namespace brevant
