#include "document/set_list_editor.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/set_list_edit.h"
#include "resources/string_table.h"
#include "support/edit_rig.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SetListEditor : public testing::Test {
 protected:
  SetListEditor() {
    rig.AddGroup(u"Sets", {{u"One", {u"a.mp3", u"b.mp3", u"c.mp3"}}, {u"Two", {u"d.mp3"}}});
    rig.AddGroup(u"Club", {{u"Late", {u"e.mp3"}}});
    rig.Show();
  }

  // The tree and the model agree, and this is what they hold.
  [[nodiscard]] std::vector<std::u16string> Lines() const {
    EXPECT_EQ(rig.tree.Lines(), rig.ModelLines());
    return rig.ModelLines();
  }

  TCEditRig rig;
  TCSetListEditor& editor = rig.editor;
};

TEST_F(SetListEditor, WithoutASelectionAGroupIsAppended) {
  EXPECT_TRUE(editor.CreateGroup(u"New"));
  EXPECT_EQ(Lines().back(), u"New");
  EXPECT_EQ(rig.tree.SelectedText(), u"New");
  EXPECT_EQ(rig.modified, 1);
}

TEST_F(SetListEditor, AGroupStandsRightBehindTheSelectedNodesGroup) {
  for (const std::u16string_view selected : {u"Sets", u"Two", u"b.mp3"}) {
    rig.Select(selected);
    EXPECT_TRUE(editor.CreateGroup(u"New"));
    EXPECT_EQ(Lines()[7], u"New");
    EXPECT_EQ(Lines()[8], u"Club");
    EXPECT_TRUE(editor.Rename(rig.tree.selected, u"Old"));
    ASSERT_TRUE(RemoveGroup(rig.store, 1));
    rig.Show();
  }
}

TEST_F(SetListEditor, ASelectedNodeOfNoGroupCreatesNothing) {
  rig.tree.selected = rig.tree.AddNodes(TCTreeNode::None, 9, {u"stray"}).front();
  EXPECT_FALSE(editor.CreateGroup(u"New"));
  EXPECT_FALSE(editor.CreatePlaylist(u"New"));
  EXPECT_FALSE(editor.AskForPlaylist());
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(SetListEditor, TwoGroupsMayHaveOneName) {
  EXPECT_TRUE(editor.CreateGroup(u"New Group Folder"));
  EXPECT_TRUE(editor.CreateGroup(u"New Group Folder"));
  const std::vector<std::u16string> lines = Lines();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), u"New Group Folder"), 2);
}

TEST_F(SetListEditor, APlaylistNeedsASelectedNode) {
  EXPECT_FALSE(editor.CreatePlaylist(u"New"));
  EXPECT_FALSE(editor.AskForPlaylist());  // and nobody is asked for a name in vain
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(SetListEditor, APlaylistIsAppendedToASelectedGroup) {
  rig.Select(u"Sets");
  EXPECT_TRUE(editor.CreatePlaylist(u"New"));
  EXPECT_EQ(Lines()[7], u"  New");
  EXPECT_EQ(rig.tree.SelectedText(), u"New");
  EXPECT_EQ(rig.modified, 1);
}

TEST_F(SetListEditor, APlaylistStandsRightBehindTheSelectedOneOrTheSelectedSongsOwn) {
  rig.Select(u"One");
  EXPECT_TRUE(editor.CreatePlaylist(u"New"));
  rig.Select(u"c.mp3");
  EXPECT_TRUE(editor.CreatePlaylist(u"Newer"));
  EXPECT_THAT(Lines(), ElementsAre(u"Sets", u"  One", u"    a.mp3", u"    b.mp3", u"    c.mp3", u"  Newer",
                                   u"  New", u"  Two", u"    d.mp3", u"Club", u"  Late", u"    e.mp3"));
}

TEST_F(SetListEditor, TheCurrentPlaylistStaysCurrentBehindANewOne) {
  rig.store.currentPlaylist = 1;
  rig.Select(u"One");
  EXPECT_TRUE(editor.CreatePlaylist(u"New"));
  EXPECT_EQ(rig.store.CurrentPlaylist()->name, u"Two");
}

TEST_F(SetListEditor, NamesAreAskedForWithTheirExamples) {
  rig.prompts.texts = {u"  Mariner Sets ", u"\tFirst "};
  EXPECT_TRUE(editor.AskForGroup());
  EXPECT_EQ(rig.prompts.lastPrompt, u"Enter the name of the group of play lists");
  EXPECT_EQ(rig.prompts.lastExample, u"e.g. \"Mariner Sets\"");
  EXPECT_EQ(rig.prompts.lastMode, TCTextPromptMode::CreateGroup);
  EXPECT_EQ(rig.prompts.lastText, u"");
  EXPECT_TRUE(editor.AskForPlaylist());
  EXPECT_EQ(rig.prompts.lastPrompt, u"Enter the name of the song play list");
  EXPECT_EQ(rig.prompts.lastExample, u"e.g. \"Mariner Set 1\"");
  EXPECT_EQ(rig.prompts.lastMode, TCTextPromptMode::CreateSetList);
  EXPECT_EQ(Lines()[10], u"Mariner Sets");
  EXPECT_EQ(Lines()[11], u"  First");
}

TEST_F(SetListEditor, ACancelledOrBlankNameCreatesNothing) {
  rig.Select(u"Sets");
  rig.prompts.texts = {std::nullopt, u" \t", std::nullopt, u"\"\""};
  EXPECT_FALSE(editor.AskForGroup());
  EXPECT_FALSE(editor.AskForGroup());
  EXPECT_FALSE(editor.AskForPlaylist());
  EXPECT_FALSE(editor.AskForPlaylist());
  EXPECT_EQ(rig.modified, 0);
  EXPECT_EQ(Lines().size(), 10u);
}

TEST_F(SetListEditor, DoubleQuotesAreDroppedFromANameAndItsEndsAreTrimmed) {
  EXPECT_EQ(CleanName(u" \"Mariner\" Sets\" "), u"Mariner Sets");
  EXPECT_EQ(CleanName(u"\" x \""), u"x");
  EXPECT_EQ(CleanName(u"\t \""), u"");
}

TEST_F(SetListEditor, APastedLineBreakBecomesABlank) {
  EXPECT_EQ(CleanName(u"\r\nMariner\nSets\r2\n"), u"Mariner Sets 2");
}

TEST_F(SetListEditor, EveryKindOfEntryIsRenamed) {
  EXPECT_TRUE(editor.Rename(rig.tree.NodeNamed(u"Club"), u" Clubs "));
  EXPECT_TRUE(editor.Rename(rig.tree.NodeNamed(u"Two"), u"Second"));
  EXPECT_TRUE(editor.Rename(rig.tree.NodeNamed(u"b.mp3"), u"bee.wav"));
  EXPECT_THAT(Lines(), ElementsAre(u"Sets", u"  One", u"    a.mp3", u"    bee.wav", u"    c.mp3", u"  Second",
                                   u"    d.mp3", u"Clubs", u"  Late", u"    e.mp3"));
  EXPECT_EQ(rig.modified, 3);
}

TEST_F(SetListEditor, ARenamedSongIsCheckedAgainWithItsLyrics) {
  rig.files.Put(u"C:\\bee.wav");
  rig.files.Put(u"C:\\bee.lrc", "[00:01.0]Hello");
  TCPlayListItem& song = rig.store.groups[0].playlists[0].items[1];
  EXPECT_TRUE(editor.Rename(song.treeNode, u"bee.wav"));
  EXPECT_EQ(song.extension, u"wav");
  EXPECT_EQ(song.status, TCSongStatus::Found);
  EXPECT_EQ(rig.view.rows[1].texts.name, u"bee.wav");
  EXPECT_EQ(rig.view.rows[1].texts.status, u"Found\\Lyrics");
  EXPECT_TRUE(editor.Rename(song.treeNode, u"gone"));
  EXPECT_EQ(song.extension, u"");
  EXPECT_EQ(rig.view.rows[1].texts.status, u"Not found");
}

TEST_F(SetListEditor, ARenamedSongElsewhereLeavesTheRowsAlone) {
  EXPECT_TRUE(editor.Rename(rig.tree.NodeNamed(u"d.mp3"), u"dee.mp3"));
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"b.mp3", u"c.mp3"));
}

TEST_F(SetListEditor, TheCurrentPlaylistsNewNameStandsInTheHeader) {
  EXPECT_TRUE(editor.Rename(rig.tree.NodeNamed(u"One"), u"Opener"));
  EXPECT_EQ(rig.view.header, u"Opener - Total Playlist Time: 03:30");
}

TEST_F(SetListEditor, WhileAnEmptyPlaylistIsCurrentNewNamesStandInTheRowsAndHeaderOnTheScreen) {
  rig.store.groups[0].playlists[1].items.clear();
  rig.store.currentPlaylist = 1;
  rig.Show();
  ASSERT_EQ(rig.store.shown, (TCPlaylistPosition{0, 0}));
  EXPECT_TRUE(editor.Rename(rig.tree.NodeNamed(u"b.mp3"), u"bee.mp3"));
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"bee.mp3", u"c.mp3"));
  EXPECT_TRUE(editor.Rename(rig.tree.NodeNamed(u"Two"), u"Second"));
  EXPECT_TRUE(editor.Rename(rig.tree.NodeNamed(u"One"), u"Opener"));
  EXPECT_EQ(rig.view.header, u"Opener - Total Playlist Time: 03:30");
}

TEST_F(SetListEditor, RenamingToBlanksOrANodeOfNothingChangesNothing) {
  EXPECT_FALSE(editor.Rename(rig.tree.NodeNamed(u"One"), u"  "));
  EXPECT_FALSE(editor.Rename(TCTreeNode::None, u"x"));
  EXPECT_EQ(rig.modified, 0);
  EXPECT_EQ(Lines()[1], u"  One");
}

TEST_F(SetListEditor, TheSelectedNodesNewNameIsAskedFor) {
  rig.Select(u"Two");
  rig.prompts.texts = {u"Second", std::nullopt, u" "};
  editor.AskForNewName();
  EXPECT_EQ(rig.prompts.lastPrompt, u"Enter the new folder name");
  EXPECT_EQ(rig.prompts.lastExample, u"");
  EXPECT_EQ(rig.prompts.lastMode, TCTextPromptMode::Property);
  EXPECT_EQ(rig.prompts.lastText, u"");
  editor.AskForNewName();
  editor.AskForNewName();
  EXPECT_EQ(Lines()[5], u"  Second");
  EXPECT_EQ(rig.modified, 1);
  rig.tree.selected = TCTreeNode::None;
  editor.AskForNewName();  // without a node nobody is asked
}

TEST_F(SetListEditor, SelectedRowsAreRemovedUnaskedWithTheirNodes) {
  rig.view.selected = {0, 2};
  rig.store.currentSong = 1;
  editor.RemoveSelectedRows();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"b.mp3"));
  EXPECT_EQ(Lines()[2], u"    b.mp3");
  EXPECT_EQ(rig.view.header, u"One - Total Playlist Time: 01:00");
  EXPECT_EQ(rig.store.currentSong, 0);
  EXPECT_EQ(rig.view.mouseResets, 1);
  EXPECT_EQ(rig.modified, 1);
}

TEST_F(SetListEditor, NothingIsSelectedAfterARemovalSoThatASecondOneRemovesNothing) {
  rig.view.selected = {0};
  editor.RemoveSelectedRows();
  editor.RemoveSelectedRows();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"b.mp3", u"c.mp3"));
  rig.view.selected = {1};
  rig.record.settings.confirmFileRemove = false;
  rig.Select(u"b.mp3");
  editor.RemoveSelectedNode();
  EXPECT_EQ(rig.view.SelectedRow(), -1);  // row 1 is another song now
}

TEST_F(SetListEditor, WhatWasSelectedWhenTheUserAskedCountsWhateverTheTreeFollowsMeanwhile) {
  const auto selectMeanwhile = [this](std::u16string_view followed, std::u16string_view answer) {
    return [this, followed, answer](const TCTextPrompt&) {
      rig.Select(followed);
      return std::optional<std::u16string>(answer);
    };
  };
  rig.Select(u"Club");
  rig.prompts.textAnswers = {selectMeanwhile(u"a.mp3", u"P"), selectMeanwhile(u"a.mp3", u"G"),
                             selectMeanwhile(u"a.mp3", u"R")};
  EXPECT_TRUE(editor.AskForPlaylist());
  EXPECT_EQ(Lines().back(), u"  P");
  rig.Select(u"Club");
  EXPECT_TRUE(editor.AskForGroup());
  EXPECT_EQ(Lines().back(), u"G");
  rig.Select(u"G");
  editor.AskForNewName();
  EXPECT_EQ(Lines().back(), u"R");
}

TEST_F(SetListEditor, TheShownGroupsNewNameIsSuggestedNext) {
  EXPECT_TRUE(editor.Rename(rig.tree.NodeNamed(u"Sets"), u"Tour"));
  EXPECT_EQ(rig.store.lastGroupListName, u"Tour");
}

TEST_F(SetListEditor, ANameWithABackslashIsKeptAsASavedDocumentReadsIt) {
  EXPECT_TRUE(editor.Rename(rig.tree.NodeNamed(u"b.mp3"), u"live\\bee.mp3"));
  const TCPlayListItem& song = rig.store.groups[0].playlists[0].items[1];
  EXPECT_EQ(song.FullPath(), u"C:\\live\\bee.mp3");
  EXPECT_EQ(song.fileName, u"bee.mp3");
  EXPECT_EQ(Lines()[3], u"    bee.mp3");
}

TEST_F(SetListEditor, AnEmptiedPlaylistStaysOnTheScreen) {
  rig.view.selected = {0, 1, 2};
  editor.RemoveSelectedRows();
  EXPECT_EQ(rig.Rows().size(), 3u);
  EXPECT_EQ(Lines()[1], u"  One");
  EXPECT_EQ(Lines()[2], u"  Two");
  editor.RemoveSelectedRows();  // those rows stand for nothing any more
  EXPECT_EQ(rig.modified, 1);
}

TEST_F(SetListEditor, NoSelectedRowRemovesNothing) {
  editor.RemoveSelectedRows();
  EXPECT_EQ(rig.Rows().size(), 3u);
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(SetListEditor, TheQuestionNamesWhatWouldGoAndNoLeavesEverything) {
  rig.Select(u"Two");
  rig.prompts.removeAnswers = {false};
  editor.RemoveSelectedNode();
  EXPECT_EQ(rig.prompts.lastRemoveQuestion, u"Are you sure you want to remove file: Two");
  EXPECT_EQ(Lines().size(), 10u);
  EXPECT_EQ(rig.modified, 0);
  rig.prompts.removeAnswers = {true};
  editor.RemoveSelectedNode();
  EXPECT_EQ(Lines()[5], u"Club");
  EXPECT_EQ(rig.modified, 1);
}

TEST_F(SetListEditor, WithoutConfirmFileRemoveNobodyIsAsked) {
  rig.record.settings.confirmFileRemove = false;
  rig.Select(u"a.mp3");
  editor.RemoveSelectedNode();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"b.mp3", u"c.mp3"));
  rig.tree.selected = TCTreeNode::None;
  editor.RemoveSelectedNode();
  EXPECT_EQ(rig.modified, 1);
}

TEST_F(SetListEditor, WhatWasAskedAboutIsRemovedWhereverItIsByThen) {
  rig.prompts.removeAnswers = {true};
  rig.prompts.whileRemoveIsAsked = [this] {
    rig.mover.Move(rig.tree.NodeNamed(u"c.mp3"), rig.tree.NodeNamed(u"a.mp3"));
    rig.Select(u"d.mp3");
  };
  rig.Select(u"c.mp3");
  editor.RemoveSelectedNode();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"b.mp3"));
  EXPECT_EQ(Lines().size(), 9u);
}

TEST_F(SetListEditor, DisableEditingStopsNoCreatingRenamingOrRemoving) {
  rig.record.settings.disableEditing = 1;
  rig.record.settings.confirmFileRemove = false;
  rig.Select(u"Club");
  EXPECT_TRUE(editor.CreateGroup(u"New"));
  EXPECT_TRUE(editor.CreatePlaylist(u"First"));
  EXPECT_TRUE(editor.Rename(rig.tree.NodeNamed(u"d.mp3"), u"x.mp3"));
  rig.view.selected = {0};
  editor.RemoveSelectedRows();
  rig.Select(u"Late");
  editor.RemoveSelectedNode();
  EXPECT_THAT(Lines(), ElementsAre(u"Sets", u"  One", u"    b.mp3", u"    c.mp3", u"  Two", u"    x.mp3",
                                   u"Club", u"New", u"  First"));
}

TEST_F(SetListEditor, BehindARemovedCurrentPlaylistTheNextOneIsShown) {
  rig.record.settings.confirmFileRemove = false;
  rig.Select(u"One");
  editor.RemoveSelectedNode();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"d.mp3"));
  rig.Select(u"Sets");
  editor.RemoveSelectedNode();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"e.mp3"));
  rig.Select(u"Club");
  editor.RemoveSelectedNode();
  EXPECT_THAT(Lines(), IsEmpty());
  EXPECT_THAT(rig.Rows(), ElementsAre(u"e.mp3"));  // nothing else is there to be shown
}

TEST_F(SetListEditor, RemovingElsewhereLeavesTheShownRowsAndTheirSelection) {
  rig.record.settings.confirmFileRemove = false;
  const int shows = rig.view.shows;
  rig.Select(u"e.mp3");
  editor.RemoveSelectedNode();
  rig.Select(u"Club");
  editor.RemoveSelectedNode();
  EXPECT_EQ(rig.view.shows, shows);
}

}  // namespace
}  // namespace brevant
