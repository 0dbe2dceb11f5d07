#include "document/tree_presenter.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/set_list_edit.h"
#include "support/edit_rig.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class TreePresenter : public testing::Test {
 protected:
  TreePresenter() {
    rig.AddGroup(u"Sets", {{u"One", {u"a.mp3", u"b.mp3"}}, {u"Two", {}}});
    rig.AddGroup(u"Club", {{u"Late", {u"c.mp3"}}});
    tree.BuildAll();
  }

  TCEditRig rig;
  TCTreePresenter& tree = rig.treePresenter;
  TCFakeTree& shown = rig.tree;
};

TEST_F(TreePresenter, EveryEntryHasItsNodeInModelOrder) {
  EXPECT_THAT(shown.Lines(), ElementsAre(u"Sets", u"  One", u"    a.mp3", u"    b.mp3", u"  Two", u"Club",
                                         u"  Late", u"    c.mp3"));
  const TCPlayListItem& song = rig.store.groups[0].playlists[0].items[1];
  EXPECT_EQ(shown.nodes.at(song.treeNode).text, u"b.mp3");
}

TEST_F(TreePresenter, BuildingAgainReplacesEveryNode) {
  tree.BuildAll();
  EXPECT_EQ(shown.Lines(), rig.ModelLines());
  EXPECT_EQ(shown.roots.size(), 2u);
}

TEST_F(TreePresenter, TheKindOfANodeFollowsFromItsDepth) {
  EXPECT_EQ(tree.KindOf(shown.NodeNamed(u"Sets")), TCNodeKind::Group);
  EXPECT_EQ(tree.KindOf(shown.NodeNamed(u"Two")), TCNodeKind::Playlist);
  EXPECT_EQ(tree.KindOf(shown.NodeNamed(u"b.mp3")), TCNodeKind::Song);
  EXPECT_EQ(tree.KindOf(TCTreeNode::None), TCNodeKind::None);
}

TEST_F(TreePresenter, ANodeIsLedBackToItsEntry) {
  const TCNodeEntry song = tree.EntryOf(shown.NodeNamed(u"c.mp3"));
  EXPECT_EQ(song.kind, TCNodeKind::Song);
  EXPECT_EQ(song.Song(), (TCSongPosition{1, 0, 0}));
  const TCNodeEntry playlist = tree.EntryOf(shown.NodeNamed(u"Two"));
  EXPECT_EQ(playlist.kind, TCNodeKind::Playlist);
  EXPECT_EQ(playlist.Playlist(), (TCPlaylistPosition{0, 1}));
  EXPECT_EQ(playlist.song, -1);
  EXPECT_EQ(tree.EntryOf(shown.NodeNamed(u"Club")).group, 1);
}

TEST_F(TreePresenter, ANodeThatNoEntryHasStandsForNothing) {
  const TCTreeNode stray = shown.AddNodes(shown.NodeNamed(u"One"), 0, {u"stray"}).front();
  EXPECT_EQ(tree.KindOf(stray), TCNodeKind::Song);
  EXPECT_EQ(tree.EntryOf(stray).kind, TCNodeKind::None);
  EXPECT_EQ(tree.EntryOf(TCTreeNode::None).kind, TCNodeKind::None);
  rig.store.groups.pop_back();
  EXPECT_EQ(tree.EntryOf(shown.NodeNamed(u"c.mp3")).kind, TCNodeKind::None);
}

TEST_F(TreePresenter, ANewNodeStandsAtItsEntrysPlaceWithAllUnderItAndIsSelected) {
  TCPlayGroups group;
  group.name = u"New";
  group.playlists.resize(1);
  group.playlists[0].name = u"Fresh";
  ASSERT_TRUE(InsertGroup(rig.store, 1, group));
  EXPECT_TRUE(tree.AddGroupNode(1));
  EXPECT_EQ(shown.Lines(), rig.ModelLines());
  EXPECT_EQ(shown.SelectedText(), u"New");

  TCPlayList playlist;
  playlist.name = u"First";
  playlist.items.resize(2);
  ASSERT_TRUE(InsertPlaylist(rig.store, {0, 0}, playlist));
  EXPECT_TRUE(tree.AddPlaylistNode({0, 0}));
  EXPECT_EQ(shown.Lines(), rig.ModelLines());
  EXPECT_EQ(shown.SelectedText(), u"First");

  TCPlayListItem song;
  song.fileName = u"x.mp3";
  ASSERT_TRUE(InsertSong(rig.store, {0, 1, 1}, song));
  EXPECT_TRUE(tree.AddSongNodes({0, 1, 1}, 1));
  EXPECT_EQ(shown.Lines(), rig.ModelLines());
  EXPECT_EQ(shown.SelectedText(), u"x.mp3");
}

TEST_F(TreePresenter, NoNodeIsAddedForAnEntryThatIsNotThere) {
  EXPECT_FALSE(tree.AddGroupNode(2));
  EXPECT_FALSE(tree.AddGroupNode(-1));
  EXPECT_FALSE(tree.AddPlaylistNode({0, 2}));
  EXPECT_FALSE(tree.AddSongNodes({0, 0, 2}, 1));
  EXPECT_FALSE(tree.AddSongNodes({0, 0, 1}, 2));
  EXPECT_FALSE(tree.AddSongNodes({0, 0, 0}, 0));
  EXPECT_EQ(shown.Lines(), rig.ModelLines());
}

TEST_F(TreePresenter, AMovedEntrysNodeFollowsAndIsSelected) {
  const TCTreeNode song = shown.NodeNamed(u"a.mp3");
  ASSERT_TRUE(MoveSong(rig.store, {0, 0, 0}, {1, 0, 0}));
  tree.MoveSongNode({1, 0, 0});
  EXPECT_EQ(shown.Lines(), rig.ModelLines());
  EXPECT_EQ(shown.selected, song);

  ASSERT_TRUE(MovePlaylist(rig.store, {0, 0}, {1, 0}));
  tree.MovePlaylistNode({1, 0});
  EXPECT_EQ(shown.Lines(), rig.ModelLines());
  EXPECT_EQ(shown.SelectedText(), u"One");

  ASSERT_TRUE(MoveGroup(rig.store, 1, 0));
  tree.MoveGroupNode(0);
  EXPECT_EQ(shown.Lines(), rig.ModelLines());
  EXPECT_EQ(shown.SelectedText(), u"Club");
}

TEST_F(TreePresenter, AClearedTreeHasNoNodes) {
  tree.Clear();
  EXPECT_THAT(shown.Lines(), IsEmpty());
}

}  // namespace
}  // namespace brevant
