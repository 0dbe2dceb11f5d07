#include "document/entry_mover.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/edit_rig.h"

namespace brevant {
namespace {

using testing::ElementsAre;

class EntryMover : public testing::Test {
 protected:
  EntryMover() {
    rig.AddGroup(u"Sets", {{u"One", {u"a.mp3", u"b.mp3", u"c.mp3"}}, {u"Two", {u"d.mp3"}}});
    rig.AddGroup(u"Club", {{u"Late", {u"e.mp3"}}});
    rig.Show();
  }

  void Move(std::u16string_view source, std::u16string_view target) {
    mover.Move(rig.tree.NodeNamed(source), rig.tree.NodeNamed(target));
  }

  // The tree and the model agree, and this is what they hold.
  [[nodiscard]] std::vector<std::u16string> Lines() const {
    EXPECT_EQ(rig.tree.Lines(), rig.ModelLines());
    return rig.ModelLines();
  }

  TCEditRig rig;
  TCEntryMover& mover = rig.mover;
};

TEST_F(EntryMover, ASongMovesToItsTargetsPlaceAndStaysSelected) {
  Move(u"a.mp3", u"c.mp3");
  EXPECT_THAT(rig.Rows(), ElementsAre(u"b.mp3", u"c.mp3", u"a.mp3"));
  EXPECT_EQ(Lines()[4], u"    a.mp3");
  EXPECT_EQ(rig.tree.SelectedText(), u"a.mp3");
  EXPECT_EQ(rig.view.lastMode, TCShowRows::Edited);
  EXPECT_EQ(rig.modified, 1);
}

TEST_F(EntryMover, ADraggedRowIsSelectedWhereItWasDropped) {
  rig.view.selected = {2};
  mover.MoveRow(0, 2);
  EXPECT_THAT(rig.Rows(), ElementsAre(u"b.mp3", u"c.mp3", u"a.mp3"));
  EXPECT_THAT(rig.view.selected, ElementsAre(2));
}

TEST_F(EntryMover, AWalkThatWouldLeaveTheListStaysWithWhatItWalkedAlong) {
  rig.Select(u"Two");  // the key has moved the selection from the song above already
  Move(u"c.mp3", u"Two");
  EXPECT_EQ(rig.tree.SelectedText(), u"c.mp3");
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(EntryMover, ASongMovesIntoAPlaylistOfAnotherGroup) {
  Move(u"b.mp3", u"e.mp3");
  EXPECT_THAT(Lines(), ElementsAre(u"Sets", u"  One", u"    a.mp3", u"    c.mp3", u"  Two", u"    d.mp3",
                                   u"Club", u"  Late", u"    b.mp3", u"    e.mp3"));
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"c.mp3"));
  EXPECT_EQ(rig.store.groups[1].playlists[0].totalTime, u"02:15");
  EXPECT_EQ(rig.view.header, u"One - Total Playlist Time: 02:15");
}

TEST_F(EntryMover, ASongThatComesFromElsewhereShowsInTheCurrentPlaylist) {
  Move(u"e.mp3", u"a.mp3");
  EXPECT_THAT(rig.Rows(), ElementsAre(u"e.mp3", u"a.mp3", u"b.mp3", u"c.mp3"));
}

TEST_F(EntryMover, WhileAnEmptyPlaylistIsCurrentTheRowsOnTheScreenFollowTheirOwn) {
  rig.store.groups[0].playlists[1].items.clear();
  rig.store.currentPlaylist = 1;
  rig.Show();
  ASSERT_EQ(rig.store.shown, (TCPlaylistPosition{0, 0}));
  Move(u"a.mp3", u"c.mp3");
  EXPECT_THAT(rig.Rows(), ElementsAre(u"b.mp3", u"c.mp3", u"a.mp3"));
}

TEST_F(EntryMover, APlaylistMovesAcrossGroupsAndStaysOnTheScreen) {
  Move(u"One", u"Late");
  EXPECT_THAT(Lines(), ElementsAre(u"Sets", u"  Two", u"    d.mp3", u"Club", u"  One", u"    a.mp3",
                                   u"    b.mp3", u"    c.mp3", u"  Late", u"    e.mp3"));
  EXPECT_EQ(rig.store.CurrentPlaylist()->name, u"One");
  EXPECT_EQ(rig.store.lastGroupListName, u"Club");
  EXPECT_EQ(rig.view.lastMode, TCShowRows::KeepPlace);
  EXPECT_EQ(rig.tree.SelectedText(), u"One");
  EXPECT_EQ(rig.modified, 1);
}

TEST_F(EntryMover, AGroupThatMovesIsFollowedOnlyWhenItIsTheCurrentOne) {
  Move(u"Sets", u"Club");
  EXPECT_EQ(Lines()[0], u"Club");
  EXPECT_EQ(rig.store.currentGroup, 1);
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"b.mp3", u"c.mp3"));
  Move(u"Club", u"Sets");
  EXPECT_EQ(Lines()[0], u"Sets");
  EXPECT_EQ(rig.store.currentGroup, 1);            // keeps its number, which names the neighbour now
  EXPECT_THAT(rig.Rows(), ElementsAre(u"e.mp3"));  // and the screen shows what would be played
  EXPECT_EQ(rig.modified, 2);
}

TEST_F(EntryMover, OnlyEntriesOfOneKindChangePlaces) {
  Move(u"One", u"a.mp3");
  Move(u"a.mp3", u"Two");
  Move(u"One", u"Club");
  Move(u"Club", u"Late");
  EXPECT_EQ(rig.modified, 0);
  EXPECT_EQ(Lines().size(), 10u);
}

TEST_F(EntryMover, AnEntryMovedOntoItselfOrOntoNothingStays) {
  Move(u"a.mp3", u"a.mp3");
  Move(u"Sets", u"Sets");
  Move(u"a.mp3", u"no such node");
  mover.Move(TCTreeNode::None, TCTreeNode::None);
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(EntryMover, DisableEditingStopsEveryMove) {
  rig.record.settings.disableEditing = 1;
  Move(u"a.mp3", u"c.mp3");
  Move(u"One", u"Late");
  Move(u"Sets", u"Club");
  mover.MoveRow(0, 2);
  EXPECT_EQ(rig.modified, 0);
  EXPECT_EQ(Lines()[2], u"    a.mp3");
}

TEST_F(EntryMover, TheSelectedRowsSongMovesUpAndDownWithItsSelection) {
  rig.view.selected = {1};
  mover.MoveSongUp();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"b.mp3", u"a.mp3", u"c.mp3"));
  EXPECT_THAT(rig.view.selected, ElementsAre(0));
  mover.MoveSongDown();
  mover.MoveSongDown();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"c.mp3", u"b.mp3"));
  EXPECT_THAT(rig.view.selected, ElementsAre(2));
}

TEST_F(EntryMover, TheFirstRowMovesNotUpAndTheLastNotDown) {
  rig.view.selected = {0};
  mover.MoveSongUp();
  EXPECT_THAT(rig.view.selected, ElementsAre(0));
  rig.view.selected = {2};
  mover.MoveSongDown();
  EXPECT_THAT(rig.view.selected, ElementsAre(2));
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(EntryMover, WithoutASelectedRowUpDoesNothingAndDownSelectsTheFirst) {
  mover.MoveSongUp();
  EXPECT_EQ(rig.view.SelectedRow(), -1);
  mover.MoveSongDown();
  EXPECT_EQ(rig.view.SelectedRow(), 0);
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(EntryMover, WithDisableEditingTheSelectionStillMoves) {
  rig.record.settings.disableEditing = 1;
  rig.view.selected = {1};
  mover.MoveSongUp();
  EXPECT_THAT(rig.view.selected, ElementsAre(0));
  mover.MoveSongDown();
  mover.MoveSongDown();
  EXPECT_THAT(rig.view.selected, ElementsAre(2));
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"b.mp3", u"c.mp3"));
}

TEST_F(EntryMover, OnTheRowsOfAnEmptiedPlaylistOnlyTheSelectionMovesAndOnlyUp) {
  rig.view.selected = {0, 1, 2};
  rig.editor.RemoveSelectedRows();
  ASSERT_EQ(rig.view.rows.size(), 3u);
  rig.view.selected = {1};
  mover.MoveSongDown();
  EXPECT_THAT(rig.view.selected, ElementsAre(1));
  mover.MoveSongUp();
  EXPECT_THAT(rig.view.selected, ElementsAre(0));
  rig.Select(u"Late");
  mover.CopySelectedRowsToNode();
  EXPECT_EQ(Lines().size(), 7u);
}

TEST_F(EntryMover, TheCurrentSongsRowIsSelectedToBeMoved) {
  rig.store.currentSong = 2;
  rig.presenter.HighlightCurrentSong();
  rig.view.scrolledTo = -1;  // the user looked elsewhere since
  mover.SelectSongToMove();
  EXPECT_THAT(rig.view.selected, ElementsAre(2));
  EXPECT_EQ(rig.view.scrolledTo, 2);
}

TEST_F(EntryMover, TheSongToMoveIsTheOneThatWasCurrentWhenTheRowsWereColouredLast) {
  rig.store.currentSong = 1;
  rig.presenter.HighlightCurrentSong();
  rig.store.currentSong = 2;
  mover.SelectSongToMove();
  EXPECT_THAT(rig.view.selected, ElementsAre(1));
}

TEST_F(EntryMover, DisableEditingStopsNoDuplicate) {
  rig.record.settings.disableEditing = 1;
  rig.Select(u"d.mp3");
  mover.Duplicate();
  EXPECT_EQ(rig.store.groups[0].playlists[1].items.size(), 2u);
}

TEST_F(EntryMover, ADuplicatedSongStandsAtTheEndOfItsPlaylist) {
  TCPlayListItem& song = rig.store.groups[0].playlists[0].items[0];
  song.option1 = TCSharedText(u"7");
  rig.Select(u"a.mp3");
  mover.Duplicate();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"b.mp3", u"c.mp3", u"a.mp3"));
  const TCPlayListItem& copy = rig.store.groups[0].playlists[0].items[3];
  EXPECT_EQ(std::u16string_view(copy.option1), u"7");
  EXPECT_NE(copy.treeNode, rig.store.groups[0].playlists[0].items[0].treeNode);
  EXPECT_EQ(rig.tree.selected, copy.treeNode);
  EXPECT_EQ(rig.view.header, u"One - Total Playlist Time: 04:45");
  EXPECT_EQ(Lines()[5], u"    a.mp3");
  EXPECT_EQ(rig.modified, 1);
}

TEST_F(EntryMover, ADuplicatedPlaylistOrGroupStandsRightBehindWithAllUnderIt) {
  rig.Select(u"One");
  mover.Duplicate();
  EXPECT_THAT(Lines(), ElementsAre(u"Sets", u"  One", u"    a.mp3", u"    b.mp3", u"    c.mp3", u"  One",
                                   u"    a.mp3", u"    b.mp3", u"    c.mp3", u"  Two", u"    d.mp3", u"Club",
                                   u"  Late", u"    e.mp3"));
  EXPECT_EQ(rig.tree.selected, rig.store.groups[0].playlists[1].treeNode);
  rig.Select(u"Sets");
  mover.Duplicate();
  EXPECT_EQ(Lines()[11], u"Sets");
  EXPECT_EQ(rig.store.CurrentPlaylist()->name, u"One");
  EXPECT_EQ(rig.modified, 2);
}

TEST_F(EntryMover, NothingSelectedDuplicatesNothing) {
  mover.Duplicate();
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(EntryMover, DraggedRowsAreCopiedToTheEndOfTheTargetInTheirOrder) {
  rig.view.selected = {0, 2};
  rig.Select(u"e.mp3");  // a song stands for its playlist
  mover.CopySelectedRowsToNode();
  EXPECT_THAT(Lines(),
              ElementsAre(u"Sets", u"  One", u"    a.mp3", u"    b.mp3", u"    c.mp3", u"  Two", u"    d.mp3",
                          u"Club", u"  Late", u"    e.mp3", u"    a.mp3", u"    c.mp3"));
  EXPECT_EQ(rig.tree.selected, rig.store.groups[1].playlists[0].items[1].treeNode);
  EXPECT_EQ(rig.store.groups[1].playlists[0].totalTime, u"03:30");
  EXPECT_EQ(rig.modified, 1);
}

TEST_F(EntryMover, RowsDraggedIntoTheirOwnPlaylistShowThere) {
  rig.view.selected = {1};
  rig.Select(u"One");
  mover.CopySelectedRowsToNode();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"b.mp3", u"c.mp3", u"b.mp3"));
}

TEST_F(EntryMover, NoRowNoPlaylistOrDisableEditingCopiesNothing) {
  rig.Select(u"Late");
  mover.CopySelectedRowsToNode();
  rig.view.selected = {0};
  rig.Select(u"Club");
  mover.CopySelectedRowsToNode();
  rig.tree.selected = TCTreeNode::None;
  mover.CopySelectedRowsToNode();
  rig.record.settings.disableEditing = 1;
  rig.Select(u"Late");
  mover.CopySelectedRowsToNode();
  EXPECT_EQ(rig.modified, 0);
  EXPECT_EQ(Lines().size(), 10u);
}

}  // namespace
}  // namespace brevant
