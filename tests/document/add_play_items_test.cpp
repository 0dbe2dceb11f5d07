#include "document/add_play_items.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/edit_rig.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class AddPlayItems : public testing::Test {
 protected:
  AddPlayItems() {
    rig.AddGroup(u"Sets", {{u"One", {u"a.mp3"}}, {u"Two", {u"b.mp3"}}});
    rig.AddGroup(u"Club", {{u"Early", {}}, {u"Late", {u"c.mp3"}}});
    rig.Show();
  }

  [[nodiscard]] TCAddPlayItems Open(std::u16string group, std::u16string playlist) {
    rig.store.lastGroupListName = std::move(group);
    rig.store.lastPlayListName = std::move(playlist);
    return {rig.parts, rig.editor, rig.placement};
  }

  TCEditRig rig;
};

TEST_F(AddPlayItems, ItOpensWithAllNamesAndTheGroupAndPlaylistShownLast) {
  const TCAddPlayItems form = Open(u"club", u"LATE");
  ASSERT_EQ(form.Lists().size(), 2u);
  EXPECT_EQ(form.Lists()[1].groupName, u"Club");
  EXPECT_THAT(form.Lists()[1].playlistNames, ElementsAre(u"Early", u"Late"));
  EXPECT_EQ(form.Group(), 1);
  EXPECT_EQ(form.Playlist(), 1);
  EXPECT_EQ(form.songFiles, u"");
}

TEST_F(AddPlayItems, OfTwoGroupsWithOneNameTheLaterIsChosen) {
  rig.AddGroup(u"Sets", {{u"Three", {}}});
  const TCAddPlayItems form = Open(u"Sets", u"Three");
  EXPECT_EQ(form.Group(), 2);
  EXPECT_EQ(form.Playlist(), 0);
}

TEST_F(AddPlayItems, UnknownNamesChooseTheFirstOnes) {
  EXPECT_EQ(Open(u"gone", u"Two").Group(), 0);
  EXPECT_EQ(Open(u"gone", u"Two").Playlist(), 1);
  EXPECT_EQ(Open(u"Club", u"gone").Playlist(), 0);
}

TEST_F(AddPlayItems, WithoutGroupsTheListsAreEmptyAndNothingIsChosen) {
  rig.store.ClearSetLists();
  rig.treePresenter.BuildAll();
  TCAddPlayItems form = Open(u"Sets", u"One");
  EXPECT_THAT(form.Lists(), IsEmpty());
  EXPECT_EQ(form.Group(), -1);
  EXPECT_EQ(form.Playlist(), -1);
  form.songFiles = u"\"C:\\x.mp3\"";
  form.Create();
  form.CreateSet();
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(AddPlayItems, AChosenGroupOffersItsFirstPlaylist) {
  TCAddPlayItems form = Open(u"Sets", u"Two");
  form.ChooseGroup(1);
  EXPECT_EQ(form.Playlist(), 0);
  form.ChoosePlaylist(1);
  EXPECT_EQ(form.Playlist(), 1);
  form.ChoosePlaylist(2);
  EXPECT_EQ(form.Playlist(), -1);
  form.ChooseGroup(2);
  EXPECT_EQ(form.Group(), -1);
  EXPECT_EQ(form.Playlist(), -1);
}

TEST_F(AddPlayItems, ACreatedGroupIsChosenAndHasNoPlaylistYet) {
  TCAddPlayItems form = Open(u"Sets", u"One");
  rig.prompts.texts = {u"New", std::nullopt};
  form.CreateGroup();
  EXPECT_EQ(form.Lists()[static_cast<std::size_t>(form.Group())].groupName, u"New");
  EXPECT_EQ(form.Playlist(), -1);
  EXPECT_EQ(rig.modified, 1);
  const std::int32_t chosen = form.Group();
  form.CreateGroup();
  EXPECT_EQ(form.Group(), chosen);
  EXPECT_EQ(rig.modified, 1);
}

TEST_F(AddPlayItems, ACreatedPlaylistGoesIntoTheChosenGroupWhateverTheTreeHasSelected) {
  TCAddPlayItems form = Open(u"Club", u"Late");
  rig.Select(u"a.mp3");
  rig.prompts.texts = {u"Encore", std::nullopt};
  form.CreateSet();
  EXPECT_EQ(rig.store.groups[1].playlists[2].name, u"Encore");
  EXPECT_EQ(form.Group(), 1);
  EXPECT_EQ(form.Playlist(), 2);
  EXPECT_THAT(form.Lists()[1].playlistNames, ElementsAre(u"Early", u"Late", u"Encore"));
  form.CreateSet();
  EXPECT_EQ(form.Playlist(), 2);
}

TEST_F(AddPlayItems, CreateMakesTheChosenPlaylistCurrentAndAddsTheSongsToIt) {
  TCAddPlayItems form = Open(u"Club", u"Late");
  rig.Select(u"a.mp3");
  form.songFiles = u"\"C:\\x y.mp3\" \"C:\\z.wav\"";
  form.Create();
  EXPECT_EQ(rig.store.CurrentPosition(), (TCPlaylistPosition{1, 1}));
  EXPECT_THAT(rig.Rows(), ElementsAre(u"c.mp3", u"x y.mp3", u"z.wav"));
  EXPECT_EQ(rig.tree.Lines(), rig.ModelLines());
  EXPECT_EQ(rig.store.lastGroupListName, u"Club");
  EXPECT_EQ(rig.store.lastPlayListName, u"Late");
  form.ChooseGroup(0);
  form.Create();  // a second batch, elsewhere
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"x y.mp3", u"z.wav"));
}

TEST_F(AddPlayItems, CreateWithoutSongsChangesOnlyTheCurrentPlaylist) {
  TCAddPlayItems form = Open(u"Club", u"Early");
  form.Create();
  EXPECT_EQ(rig.store.CurrentPosition(), (TCPlaylistPosition{1, 0}));
  EXPECT_EQ(rig.modified, 0);
  EXPECT_EQ(rig.tree.SelectedText(), u"Early");
  EXPECT_EQ(rig.store.lastGroupListName, u"Club");
  EXPECT_EQ(rig.store.lastPlayListName, u"Early") << "although no row of it can be shown";
  form.ChoosePlaylist(1);
  form.Create();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"c.mp3"));
}

TEST_F(AddPlayItems, CreateFillsAnEmptyPlaylist) {
  TCAddPlayItems form = Open(u"Club", u"Early");
  form.songFiles = u"C:\\x.mp3";
  form.Create();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"x.mp3"));
}

TEST_F(AddPlayItems, AChosenPlaylistThatIsNoneIsRefused) {
  TCAddPlayItems form = Open(u"Sets", u"Two");
  form.ChooseGroup(1);
  form.ChoosePlaylist(-1);
  form.songFiles = u"C:\\x.mp3";
  form.Create();
  EXPECT_EQ(rig.store.CurrentPosition(), (TCPlaylistPosition{0, 0}));
  EXPECT_EQ(rig.store.lastGroupListName, u"Club") << "the names are remembered first";
  EXPECT_EQ(rig.store.lastPlayListName, u"Two");
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(AddPlayItems, FoundSongsReplaceTheTextAndACancelledSearchLeavesIt) {
  TCAddPlayItems form = Open(u"Sets", u"One");
  form.songFiles = u"typed";
  rig.prompts.mediaAnswers = {std::nullopt, TCFakePrompts::TCPaths{u"C:\\x.mp3", u"C:\\y.mp3"}};
  form.FindSongs();
  EXPECT_EQ(form.songFiles, u"typed");
  form.FindSongs();
  EXPECT_EQ(form.songFiles, u"\"C:\\x.mp3\" \"C:\\y.mp3\"");
}

TEST_F(AddPlayItems, OkSuggestsTheChosenNamesNextTime) {
  TCAddPlayItems form = Open(u"Sets", u"One");
  form.ChooseGroup(1);
  form.ChoosePlaylist(1);
  form.Accept();
  EXPECT_EQ(rig.store.lastGroupListName, u"Club");
  EXPECT_EQ(rig.store.lastPlayListName, u"Late");
  EXPECT_EQ(rig.modified, 1);
}

}  // namespace
}  // namespace brevant
