// The document's editing commands: whom they belong to, and what the tree and drops ask of the document.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "document/add_play_items.h"
#include "document/show_document.h"
#include "document/song_properties.h"

namespace brevant {
namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

using Id = TCCommandId;

class BrevantDocEditing : public TCShowDocument {
 protected:
  BrevantDocEditing() { document.OnOpenDocument(kShow); }
};

TEST_F(BrevantDocEditing, AnOpenedDocumentFillsTheTreeAndANewOneEmptiesIt) {
  EXPECT_THAT(tree.Lines(), ElementsAre(u"Sets", u"  One", u"    a.mp3", u"    b.mp3", u"  Two", u"    c.mp3",
                                        u"Club", u"  Late", u"    d.mp3"));
  document.OnNewDocument();
  EXPECT_THAT(tree.Lines(), IsEmpty());
}

TEST_F(BrevantDocEditing, AnEditMarksTheDocumentModified) {
  EXPECT_TRUE(document.OnCommand(Id::NewGroupFolder));
  EXPECT_EQ(tree.Lines().back(), u"New Group Folder");
  EXPECT_TRUE(document.IsModified());
  EXPECT_EQ(frame.mark, TCModifiedMark::Modified);
}

TEST_F(BrevantDocEditing, FoldersAreMadeUnaskedAndNamesAreAskedFor) {
  Select(u"Club");
  document.OnCommand(Id::NewPlaylistFolder);
  EXPECT_EQ(tree.Lines().back(), u"  New Playlist Folder");
  prompts.texts = {u"G", u"P", u"R"};
  document.OnCommand(Id::CreateGroupList);
  document.OnCommand(Id::CreatePlaylist);
  document.OnCommand(Id::Rename);
  EXPECT_EQ(tree.Lines()[10], u"G");
  EXPECT_EQ(tree.Lines()[11], u"  R");
}

TEST_F(BrevantDocEditing, TwoNewGroupFoldersHaveOneName) {
  tree.selected = TCTreeNode::None;
  document.OnCommand(Id::NewGroupFolder);
  document.OnCommand(Id::NewGroupFolder);
  ASSERT_EQ(record.setLists.groups.size(), 4u);
  EXPECT_EQ(record.setLists.groups[2].name, u"New Group Folder");
  EXPECT_EQ(record.setLists.groups[3].name, u"New Group Folder");
}

TEST_F(BrevantDocEditing, RemoveTakesTheSelectedRowsUnlessTheTreeHasTheFocus) {
  view.selected = {0};
  Select(u"d.mp3");
  document.OnCommand(Id::Remove);
  EXPECT_THAT(Rows(), ElementsAre(u"b.mp3"));
  view.selected = {0};
  tree.focused = true;
  prompts.removeAnswers = {true};
  document.OnCommand(Id::Remove);
  EXPECT_EQ(tree.Lines().back(), u"  Late");
  EXPECT_THAT(Rows(), ElementsAre(u"b.mp3"));
}

TEST_F(BrevantDocEditing, RemoveWithoutSelectedRowsTakesTheTreesNodeWithTheQuestion) {
  Select(u"Two");
  prompts.removeAnswers = {false};
  document.OnCommand(Id::Remove);
  EXPECT_EQ(prompts.lastRemoveQuestion, u"Are you sure you want to remove file: Two");
  EXPECT_FALSE(document.IsModified());
}

TEST_F(BrevantDocEditing, CopyBelongsToTheTreeWhileItHasTheFocus) {
  view.selected = {0, 1};
  Select(u"d.mp3");
  document.OnCommand(Id::Copy);
  EXPECT_EQ(document.Placement().CopyText(), u"\"C:\\a.mp3\"\"C:\\b.mp3\"");
  tree.focused = true;
  document.OnCommand(Id::Copy);
  EXPECT_EQ(document.Placement().CopyText(), u"\"C:\\d.mp3\"");
}

TEST_F(BrevantDocEditing, PropertiesAreTheSelectedRowsOrElseTheTreesSong) {
  std::vector<std::u16string> names;
  const auto look = [&names](TCSongPropertiesForm& form) {
    names.push_back(form.songName);
    return false;
  };
  prompts.songEdits = {look, look, look};
  Select(u"d.mp3");
  view.selected = {1};
  document.OnCommand(Id::SongProperties);
  tree.focused = true;
  document.OnCommand(Id::SongProperties);
  tree.focused = false;
  view.selected = {};
  document.OnCommand(Id::SongProperties);
  EXPECT_THAT(names, ElementsAre(u"b.mp3", u"d.mp3", u"d.mp3"));
  EXPECT_FALSE(document.IsModified());
}

TEST_F(BrevantDocEditing, OnlySongsHaveProperties) {
  for (const std::u16string_view node : {u"Sets", u"Two", u"no node"}) {
    Select(node);
    document.OnCommand(Id::SongProperties);  // nobody is asked
  }
  EXPECT_FALSE(document.IsModified());
}

TEST_F(BrevantDocEditing, PropertiesClosedWithOkAreApplied) {
  view.selected = {0};
  prompts.songEdits = {[](TCSongPropertiesForm& form) {
    form.songName = u"x.mp3";
    return true;
  }};
  document.OnCommand(Id::SongProperties);
  EXPECT_THAT(Rows(), ElementsAre(u"x.mp3", u"b.mp3"));
  EXPECT_TRUE(document.IsModified());
}

TEST_F(BrevantDocEditing, AddSongsSuggestsWhatWasShownLastAndCancelKeepsTheSuggestion) {
  prompts.setListEdits = {[](TCAddPlayItems& form) {
                            EXPECT_EQ(form.Group(), 0);
                            EXPECT_EQ(form.Playlist(), 0);
                            form.ChooseGroup(1);
                            return false;
                          },
                          [](TCAddPlayItems& form) {
                            EXPECT_EQ(form.Group(), 0);
                            form.ChooseGroup(1);
                            return true;
                          }};
  document.OnCommand(Id::AddSongs);
  EXPECT_FALSE(document.IsModified());
  document.OnCommand(Id::AddSongs);
  EXPECT_EQ(record.setLists.lastGroupListName, u"Club");
  EXPECT_TRUE(document.IsModified());
}

TEST_F(BrevantDocEditing, WhatTheDialogPlacedIsAChangeEvenWhenItIsCancelledThen) {
  prompts.setListEdits = {[](TCAddPlayItems& form) {
    form.songFiles = u"C:\\d.mp3";
    form.Create();
    return false;
  }};
  document.OnCommand(Id::AddSongs);
  EXPECT_THAT(Rows(), ElementsAre(u"a.mp3", u"b.mp3", u"d.mp3"));
  EXPECT_TRUE(document.IsModified());
}

TEST_F(BrevantDocEditing, MovesAndDuplicatesAreCommands) {
  view.selected = {1};
  document.OnCommand(Id::MoveSongUp);
  EXPECT_THAT(Rows(), ElementsAre(u"b.mp3", u"a.mp3"));
  document.OnCommand(Id::MoveSongDown);
  EXPECT_THAT(Rows(), ElementsAre(u"a.mp3", u"b.mp3"));
  Select(u"a.mp3");
  document.OnCommand(Id::Duplicate);
  EXPECT_THAT(Rows(), ElementsAre(u"a.mp3", u"b.mp3", u"a.mp3"));
  document.OnCommand(Id::SelectSongToMove);
  EXPECT_EQ(view.SelectedRow(), 0);
  document.MoveRow(0, 2);
  EXPECT_THAT(Rows(), ElementsAre(u"b.mp3", u"a.mp3", u"a.mp3"));
  document.MoveNode(tree.NodeNamed(u"Sets"), tree.NodeNamed(u"Club"));
  EXPECT_EQ(tree.Lines()[0], u"Club");
}

TEST_F(BrevantDocEditing, APickedPlaylistBecomesCurrentAndTheSongsNumberStays) {
  record.setLists.currentSong = 1;
  document.PickNode(tree.NodeNamed(u"Late"));
  EXPECT_THAT(Rows(), ElementsAre(u"d.mp3"));
  EXPECT_EQ(record.setLists.currentSong, 1);
  document.PickNode(tree.NodeNamed(u"Sets"));
  EXPECT_THAT(Rows(), ElementsAre(u"d.mp3"));
  EXPECT_THAT(player.Calls(), IsEmpty());
}

TEST_F(BrevantDocEditing, APickedSongBecomesCurrentAndPlaysOnlyWhenBothOptionsAreOn) {
  document.PickNode(tree.NodeNamed(u"b.mp3"));
  EXPECT_EQ(record.setLists.currentSong, 1);
  EXPECT_EQ(record.setLists.lastSongName, u"b.mp3");
  EXPECT_FALSE(document.Transport().State().playing);
  record.settings.playlistManagerImmediatePlay = true;
  record.settings.immediatePlay = false;
  document.PickNode(tree.NodeNamed(u"d.mp3"));
  EXPECT_THAT(Rows(), ElementsAre(u"d.mp3"));
  EXPECT_FALSE(document.Transport().State().playing);
  record.settings.immediatePlay = true;
  document.PickNode(tree.NodeNamed(u"c.mp3"));
  EXPECT_TRUE(document.Transport().State().playing);
  EXPECT_EQ(player.GetUrl(), u"C:\\c.mp3");
}

TEST_F(BrevantDocEditing, EnterPicksTheSelectedNodeAndOpensItsPlaylist) {
  Select(u"d.mp3");
  document.EnterOnNode();
  EXPECT_THAT(Rows(), ElementsAre(u"d.mp3"));
  EXPECT_TRUE(tree.nodes[tree.NodeNamed(u"Late")].expanded);
  Select(u"Two");
  document.EnterOnNode();
  EXPECT_THAT(Rows(), ElementsAre(u"c.mp3"));
  EXPECT_TRUE(tree.nodes[tree.NodeNamed(u"Two")].expanded);
  Select(u"Club");
  document.EnterOnNode();
  EXPECT_FALSE(tree.nodes[tree.NodeNamed(u"Club")].expanded);
  EXPECT_THAT(Rows(), ElementsAre(u"c.mp3"));
}

TEST_F(BrevantDocEditing, EnterOnASongPlaysItOnlyWhenBothOptionsAreOn) {
  for (const bool inTheTree : {false, true}) {
    for (const bool immediate : {false, true}) {
      document.OnOpenDocument(kShow);
      document.OnCommand(Id::Stop);
      record.settings.playlistManagerImmediatePlay = inTheTree;
      record.settings.immediatePlay = immediate;
      Select(u"d.mp3");
      document.EnterOnNode();
      EXPECT_THAT(Rows(), ElementsAre(u"d.mp3"));
      EXPECT_EQ(document.Transport().State().playing, inTheTree && immediate);
    }
  }
}

TEST_F(BrevantDocEditing, TheSelectedNodesPlaylistIsCopiedIntoThePlaylistWindow) {
  Select(u"d.mp3");
  document.OnCommand(Id::ShowTreeSelection);
  EXPECT_THAT(Rows(), ElementsAre(u"d.mp3"));
  EXPECT_EQ(tree.SelectedText(), u"Late");
  Select(u"Sets");
  document.OnCommand(Id::ShowTreeSelection);
  EXPECT_THAT(Rows(), ElementsAre(u"d.mp3"));
}

TEST_F(BrevantDocEditing, TheTreeFollowsTheCurrentSong) {
  document.OnCommand(Id::NextSong);
  EXPECT_EQ(tree.nodes.at(tree.followed).text, u"b.mp3");
}

TEST_F(BrevantDocEditing, RowsDroppedOnThePlaylistAreCopiedIntoItself) {
  Select(u"Late");
  view.selected = {0};
  document.DropRowsOnPlaylist();
  EXPECT_THAT(Rows(), ElementsAre(u"a.mp3", u"b.mp3", u"a.mp3"));
  Select(u"Late");
  view.selected = {0};
  document.DropRowsOnTree();
  EXPECT_EQ(tree.Lines().back(), u"    a.mp3");
}

TEST_F(BrevantDocEditing, DroppedSongsWaitForTheClickThatPlacesThem) {
  document.DropFiles({u"D:\\x.mp3", u"D:\\y.mp3"});
  EXPECT_EQ(frame.placing, TCPlacing::Waiting);
  EXPECT_FALSE(document.IsModified());
  Select(u"One");
  document.PlacePendingFiles();
  EXPECT_THAT(Rows(), ElementsAre(u"a.mp3", u"b.mp3", u"x.mp3", u"y.mp3"));
  EXPECT_TRUE(document.IsModified());
}

TEST_F(BrevantDocEditing, ADroppedDocumentIsOpenedAndTheFilesBesideItAreNotPlaced) {
  files.PutUtf16(u"D:\\other.BRV", u"\"X\" \"Y\" \"C:\\a.mp3\" 03:00\r\n");
  document.DropFiles({u"D:\\x.mp3", u"D:\\other.BRV", u"D:\\y.mp3"});
  EXPECT_EQ(document.GetPathName(), u"D:\\other.BRV");
  EXPECT_EQ(frame.placing, TCPlacing::Nothing);
}

TEST_F(BrevantDocEditing, ADroppedDocumentAsksAboutUnsavedChangesFirst) {
  document.SetModified();
  prompts.saveAnswers = {TCSaveAnswer::Cancel};
  document.DropFiles({u"D:\\other.brv"});
  EXPECT_EQ(document.GetPathName(), kShow);
  EXPECT_EQ(tree.Lines().size(), 9u);
}

TEST_F(BrevantDocEditing, ADropOfNothingWaitsForNothing) {
  document.DropFiles({});
  EXPECT_EQ(frame.placing, TCPlacing::Nothing);
}

TEST_F(BrevantDocEditing, CancelEndsAPendingPlacementAndEveryDrag) {
  view.selected = {0};
  document.OnCommand(Id::Copy);
  document.OnCommand(Id::Paste);
  EXPECT_EQ(frame.placing, TCPlacing::Waiting);
  document.OnCommand(Id::Cancel);
  EXPECT_EQ(frame.placing, TCPlacing::Nothing);
  EXPECT_EQ(tree.mouseResets, 1);
  EXPECT_EQ(view.mouseResets, 1);
  EXPECT_THAT(messages.lines.back(), u"Command canceled");
}

TEST_F(BrevantDocEditing, ANodeIsRenamedInPlace) {
  EXPECT_TRUE(document.RenameNode(tree.NodeNamed(u"Late"), u" Later "));
  EXPECT_EQ(tree.Lines()[7], u"  Later");
  EXPECT_FALSE(document.RenameNode(tree.NodeNamed(u"Later"), u"  "));
}

TEST_F(BrevantDocEditing, TheTreeTakesTheFocus) {
  document.OnCommand(Id::FocusPlaylistManager);
  EXPECT_EQ(tree.focuses, 1);
}

TEST_F(BrevantDocEditing, EditingOptionsAreToggled) {
  EXPECT_TRUE(document.IsChecked(Id::ConfirmFileRemove));
  document.OnCommand(Id::ConfirmFileRemove);
  EXPECT_FALSE(record.settings.confirmFileRemove);
  document.OnCommand(Id::DisableEditing);
  EXPECT_EQ(record.settings.disableEditing, 1);
  EXPECT_TRUE(document.IsChecked(Id::DisableEditing));
  document.OnCommand(Id::DisableEditing);
  EXPECT_EQ(record.settings.disableEditing, 0);
}

TEST_F(BrevantDocEditing, RemovingOrMovingTheSoundingSongLeavesTheSound) {
  document.OnCommand(Id::Play);
  view.selected = {0};
  document.OnCommand(Id::Remove);
  document.MoveNode(tree.NodeNamed(u"b.mp3"), tree.NodeNamed(u"d.mp3"));
  document.OnPlayTimerTick();
  EXPECT_TRUE(document.Transport().State().playing);
  EXPECT_EQ(player.GetUrl(), u"C:\\a.mp3");
  EXPECT_THAT(player.Calls(), Not(Contains("Stop")));
}

TEST_F(BrevantDocEditing, MeasuredTimesAreShownInTheRowsThatStandThereWhileAnEmptyPlaylistIsCurrent) {
  record.settings.confirmFileRemove = false;
  tree.focused = true;
  Select(u"c.mp3");
  document.OnCommand(Id::Remove);
  document.PickNode(tree.NodeNamed(u"Two"));
  ASSERT_EQ(record.setLists.currentPlaylist, 1);
  ASSERT_EQ(view.rows[1].texts.time, u"04:00");
  probe.defaultLength = 90;
  document.OnCommand(Id::RefreshAllTimes);
  Poll(20);
  EXPECT_EQ(view.rows[1].texts.time, u"01:30");
  EXPECT_EQ(view.header, u"One - Total Playlist Time: 03:15");
}

TEST_F(BrevantDocEditing, ATickTakesOverWhatAHangingDiskSaysOfPlacedSongs) {
  files.Put(u"E:\\x.mp3");
  files.hangs = true;
  document.DropFiles({u"E:\\x.mp3"});
  Select(u"One");
  document.PlacePendingFiles();
  ASSERT_EQ(view.rows.size(), 3u);
  EXPECT_EQ(view.rows[2].texts.status, u"Pending");
  document.OnPlayTimerTick();
  EXPECT_EQ(view.rows[2].texts.status, u"Pending");
  files.Wake();
  document.OnPlayTimerTick();
  EXPECT_EQ(view.rows[2].texts.status, u"Found");
}

}  // namespace
}  // namespace brevant
