#include "document/song_placement.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/set_list_edit.h"
#include "support/edit_rig.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class SongPlacement : public testing::Test {
 protected:
  SongPlacement() {
    rig.AddGroup(u"Sets", {{u"One", {u"a.mp3", u"b.mp3", u"c.mp3"}}, {u"Two", {u"d.mp3"}}});
    rig.Show();
  }

  void Drop(std::vector<std::u16string> paths) { placement.SetPendingFiles(std::move(paths)); }

  // The songs of a playlist of the first group; the tree and the model agree.
  [[nodiscard]] std::vector<std::u16string> Songs(std::size_t playlist) const {
    EXPECT_EQ(rig.tree.Lines(), rig.ModelLines());
    std::vector<std::u16string> names;
    for (const TCPlayListItem& song : rig.store.groups[0].playlists[playlist].items)
      names.push_back(song.fileName);
    return names;
  }

  TCEditRig rig;
  TCSongPlacement& placement = rig.placement;
};

TEST_F(SongPlacement, CopiedRowsAreQuotedOneDirectlyBehindTheOther) {
  rig.view.selected = {0, 1, 2};
  placement.CopySelectedRows();
  EXPECT_EQ(placement.CopyText(), u"\"C:\\a.mp3\"\"C:\\b.mp3\"\"C:\\c.mp3\"");
  rig.view.selected = {1};
  placement.CopySelectedRows();
  EXPECT_EQ(placement.CopyText(), u"\"C:\\b.mp3\"");
  rig.view.selected = {};
  placement.CopySelectedRows();
  EXPECT_EQ(placement.CopyText(), u"\"C:\\b.mp3\"");
}

TEST_F(SongPlacement, RowsThatStandForNoSongAnyMoreLeaveNothingCopied) {
  rig.view.selected = {0};
  placement.CopySelectedRows();
  rig.store.groups[0].playlists[0].items.clear();
  ASSERT_EQ(rig.view.rows.size(), 3u) << "an emptied playlist stays on the screen";
  rig.view.selected = {0, 2};
  placement.CopySelectedRows();
  EXPECT_EQ(placement.CopyText(), u"");
}

TEST_F(SongPlacement, OfTheTreeOnlyASongIsCopied) {
  rig.Select(u"d.mp3");
  placement.CopySelectedNode();
  EXPECT_EQ(placement.CopyText(), u"\"C:\\d.mp3\"");
  rig.Select(u"One");
  placement.CopySelectedNode();
  rig.Select(u"Sets");
  placement.CopySelectedNode();
  EXPECT_EQ(placement.CopyText(), u"\"C:\\d.mp3\"");
}

TEST_F(SongPlacement, ASongWithoutANameIsNotCopiedFromTheTree) {
  rig.Select(u"d.mp3");
  placement.CopySelectedNode();
  rig.store.groups[0].playlists[0].items[0].SetPath(u"");
  rig.Select(u"a.mp3");
  placement.CopySelectedNode();
  EXPECT_EQ(placement.CopyText(), u"\"C:\\d.mp3\"");
}

TEST_F(SongPlacement, PasteAloneHasNothingToPlaceAndWaitsUntilCancelled) {
  rig.view.selected = {0};
  placement.CopySelectedRows();
  placement.Paste();
  EXPECT_EQ(rig.frame.placing, TCPlacing::Waiting);
  EXPECT_EQ(rig.frame.placingHint, u"No dropped files to place, Esc to cancel");
  rig.Select(u"Two");
  placement.PlacePendingFiles();
  EXPECT_TRUE(placement.Pending());
  EXPECT_EQ(rig.frame.placing, TCPlacing::Waiting);
  EXPECT_THAT(Songs(1), ElementsAre(u"d.mp3"));
  placement.Cancel();
  EXPECT_FALSE(placement.Pending());
  EXPECT_EQ(rig.frame.placing, TCPlacing::Nothing);
}

TEST_F(SongPlacement, DroppedFilesArePlacedInOrderAtTheClickedPlaylistsEnd) {
  rig.files.Put(u"D:\\x y.mp3");
  rig.files.Put(u"D:\\x y.lrc", "[00:01.0]Hello");
  Drop({u"D:\\x y.mp3", u"D:\\gone.wav"});
  EXPECT_EQ(rig.frame.placingHint,
            u"Click a playlist in the Play List Manager to place 2 files, Esc to cancel");
  rig.Select(u"One");
  placement.PlacePendingFiles();
  EXPECT_THAT(Songs(0), ElementsAre(u"a.mp3", u"b.mp3", u"c.mp3", u"x y.mp3", u"gone.wav"));
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"b.mp3", u"c.mp3", u"x y.mp3", u"gone.wav"));
  EXPECT_EQ(rig.view.rows[3].texts.status, u"Found\\Lyrics");
  EXPECT_EQ(rig.view.rows[4].texts.status, u"Not found");
  EXPECT_EQ(rig.view.rows[4].texts.time, u"00:00");
  const TCPlayListItem& song = rig.store.groups[0].playlists[0].items[4];
  EXPECT_EQ(std::u16string_view(song.folder), u"D:\\");
  EXPECT_EQ(std::u16string_view(song.extension), u"wav");
  EXPECT_EQ(rig.tree.SelectedText(), u"gone.wav");
  EXPECT_EQ(rig.view.header, u"One - Total Playlist Time: 04:00");
  EXPECT_EQ(rig.frame.placing, TCPlacing::Nothing);
  EXPECT_EQ(rig.modified, 1) << "once for all files";
}

TEST_F(SongPlacement, FilesPlacedAtASongStandRightBehindItInOrder) {
  Drop({u"D:\\x.mp3", u"D:\\y.mp3"});
  rig.Select(u"a.mp3");
  placement.PlacePendingFiles();
  EXPECT_THAT(Songs(0), ElementsAre(u"a.mp3", u"x.mp3", u"y.mp3", u"b.mp3", u"c.mp3"));
}

TEST_F(SongPlacement, OneDroppedFileIsAskedForInTheSingular) {
  Drop({u"D:\\x.mp3"});
  EXPECT_EQ(rig.frame.placingHint,
            u"Click a playlist in the Play List Manager to place 1 file, Esc to cancel");
}

TEST_F(SongPlacement, TheFirstWrongTypeIsReportedAndEndsTheRun) {
  Drop({u"D:\\x.MP3", u"D:\\notes.txt", u"D:\\y.mp3"});
  rig.Select(u"Two");
  placement.PlacePendingFiles();
  EXPECT_THAT(Songs(1), ElementsAre(u"d.mp3", u"x.MP3"));
  EXPECT_THAT(rig.messages.lines, ElementsAre(u"Invalid media file type (.xxx) for file: D:\\notes.txt"));
  EXPECT_FALSE(placement.Pending());
}

TEST_F(SongPlacement, AfterAPlacementPasteAndAClickPlaceTheSameFilesAgain) {
  Drop({u"D:\\x.mp3"});
  rig.Select(u"Two");
  placement.PlacePendingFiles();
  placement.Paste();
  EXPECT_EQ(rig.frame.placingHint,
            u"Click a playlist in the Play List Manager to place 1 file, Esc to cancel");
  placement.PlacePendingFiles();
  EXPECT_THAT(Songs(1), ElementsAre(u"d.mp3", u"x.mp3", u"x.mp3"));
}

TEST_F(SongPlacement, CancelForgetsTheDroppedFiles) {
  Drop({u"D:\\x.mp3"});
  placement.Cancel();
  placement.Paste();
  rig.Select(u"Two");
  placement.PlacePendingFiles();
  EXPECT_THAT(Songs(1), ElementsAre(u"d.mp3"));
  EXPECT_TRUE(placement.Pending());
}

TEST_F(SongPlacement, ASecondDropReplacesTheFilesOfTheFirst) {
  Drop({u"D:\\x.mp3", u"D:\\y.mp3"});
  Drop({u"D:\\z.mp3"});
  rig.Select(u"Two");
  placement.PlacePendingFiles();
  EXPECT_THAT(Songs(1), ElementsAre(u"d.mp3", u"z.mp3"));
}

TEST_F(SongPlacement, ADropWhileANameIsAskedForWaitsForItsOwnClick) {
  Drop({u"D:\\x.mp3", u"D:\\y.mp3"});
  rig.Select(u"Sets");
  rig.prompts.textAnswers = {[this](const TCTextPrompt&) {
    EXPECT_EQ(rig.frame.placing, TCPlacing::Nothing);
    Drop({u"D:\\z.mp3"});
    return std::optional<std::u16string>(u"New");
  }};
  placement.PlacePendingFiles();
  EXPECT_THAT(Songs(2), ElementsAre(u"x.mp3", u"y.mp3"));
  EXPECT_TRUE(placement.Pending());
  EXPECT_EQ(rig.frame.placing, TCPlacing::Waiting);
  rig.Select(u"Two");
  placement.PlacePendingFiles();
  EXPECT_THAT(Songs(1), ElementsAre(u"d.mp3", u"z.mp3"));
}

TEST_F(SongPlacement, TheCurrentPlaylistIsShownAgainWhateverTheClickPlaced) {
  Drop({u"D:\\notes.txt"});
  rig.Select(u"Two");
  const int shows = rig.view.shows;
  placement.PlacePendingFiles();
  EXPECT_EQ(rig.view.shows, shows + 1);
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"b.mp3", u"c.mp3"));
}

TEST_F(SongPlacement, DisableEditingStopsNoPlacing) {
  rig.record.settings.disableEditing = 1;
  Drop({u"D:\\x.mp3"});
  rig.Select(u"Two");
  placement.PlacePendingFiles();
  EXPECT_THAT(Songs(1), ElementsAre(u"d.mp3", u"x.mp3"));
}

TEST_F(SongPlacement, AClickWithoutPendingFilesPlacesNothing) {
  Drop({u"D:\\x.mp3"});
  rig.Select(u"Two");
  placement.PlacePendingFiles();
  placement.PlacePendingFiles();
  EXPECT_EQ(Songs(1).size(), 2u);
}

TEST_F(SongPlacement, WithoutASelectedNodeNothingIsPlacedAndNoTypeIsBlamed) {
  Drop({u"D:\\x.txt"});
  placement.PlacePendingFiles();
  Drop({u"D:\\x.mp3"});
  placement.PlacePendingFiles();
  EXPECT_THAT(rig.messages.lines, IsEmpty());
  EXPECT_EQ(rig.modified, 0);
  EXPECT_FALSE(placement.Pending());
}

TEST_F(SongPlacement, AtAGroupAPlaylistIsAskedForAndTakesAllFiles) {
  Drop({u"D:\\x.mp3", u"D:\\y.mp3"});
  rig.Select(u"Sets");
  rig.prompts.texts = {u"New"};
  placement.PlacePendingFiles();
  EXPECT_EQ(rig.store.groups[0].playlists[2].name, u"New");
  EXPECT_THAT(Songs(2), ElementsAre(u"x.mp3", u"y.mp3"));
}

TEST_F(SongPlacement, AWrongTypeAtAGroupAsksForNoPlaylist) {
  Drop({u"D:\\notes.txt"});
  rig.Select(u"Sets");
  placement.PlacePendingFiles();
  EXPECT_THAT(rig.messages.lines, ElementsAre(u"Invalid media file type (.xxx) for file: D:\\notes.txt"));
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(SongPlacement, ACancelledPlaylistPromptPlacesNothing) {
  Drop({u"D:\\x.mp3"});
  rig.Select(u"Sets");
  rig.prompts.texts = {std::nullopt};
  placement.PlacePendingFiles();
  EXPECT_EQ(rig.modified, 0);
  EXPECT_FALSE(placement.Pending());
}

TEST_F(SongPlacement, AnEmptyDocumentAsksForGroupAndPlaylistFirst) {
  rig.store.ClearSetLists();
  rig.treePresenter.BuildAll();
  Drop({u"D:\\x.mp3"});
  rig.prompts.texts = {u"Mariner Sets", u"Mariner Set 1"};
  placement.PlacePendingFiles();
  EXPECT_THAT(rig.tree.Lines(), ElementsAre(u"Mariner Sets", u"  Mariner Set 1", u"    x.mp3"));
  EXPECT_THAT(rig.Rows(), ElementsAre(u"x.mp3"));
}

TEST_F(SongPlacement, AnEmptyDocumentStaysEmptyWhenAPromptIsCancelled) {
  rig.store.ClearSetLists();
  rig.treePresenter.BuildAll();
  Drop({u"D:\\x.mp3"});
  rig.prompts.texts = {std::nullopt};
  placement.PlacePendingFiles();
  EXPECT_THAT(rig.tree.Lines(), IsEmpty());
  Drop({u"D:\\x.mp3"});
  rig.prompts.texts = {u"Mariner Sets", std::nullopt};
  placement.PlacePendingFiles();
  EXPECT_THAT(rig.tree.Lines(), ElementsAre(u"Mariner Sets"));
}

TEST_F(SongPlacement, AFirstGroupWithoutPlaylistsHasOneAskedForEvenWhenAnotherGroupHasSome) {
  InsertGroup(rig.store, 0, {});
  rig.treePresenter.BuildAll();
  Drop({u"D:\\x.mp3"});
  rig.Select(u"Two");
  rig.prompts.texts = {u"New"};
  placement.PlacePendingFiles();
  EXPECT_EQ(rig.store.groups[1].playlists[2].name, u"New");
  EXPECT_EQ(rig.store.groups[1].playlists[2].items.size(), 1u);
}

TEST_F(SongPlacement, TypedWordsArePlacedWithTheirSlashesTurned) {
  rig.Select(u"Two");
  placement.PlaceText(u" \"C:/My Music/x.mp3\" D:\\y.wav \"/home/me/z.mid\"");
  EXPECT_THAT(Songs(1), ElementsAre(u"d.mp3", u"x.mp3", u"y.wav", u"z.mid"));
  EXPECT_EQ(std::u16string_view(rig.store.groups[0].playlists[1].items[1].folder), u"C:\\My Music\\");
  EXPECT_EQ(std::u16string_view(rig.store.groups[0].playlists[1].items[3].folder), u"\\home\\me\\");
}

TEST_F(SongPlacement, NoWordPlacesNothingAndAsksNobody) {
  rig.store.ClearSetLists();
  rig.treePresenter.BuildAll();
  placement.PlaceText(u"  \t ");
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(SongPlacement, DroppedNamesAreNeverSplitAgain) {
  Drop({u"D:\\My Songs\\x > y.mp3"});
  rig.Select(u"Two");
  placement.PlacePendingFiles();
  EXPECT_EQ(rig.store.groups[0].playlists[1].items[1].FullPath(), u"D:\\My Songs\\x > y.mp3");
}

TEST_F(SongPlacement, TwoHundredFilesArePlacedInOrder) {
  std::vector<std::u16string> paths;
  std::vector<std::u16string> names = {u"d.mp3"};
  for (int i = 0; i < 200; ++i) {
    names.push_back(u"song " + std::u16string(1, static_cast<char16_t>(0x4E00 + i)) + u".mp3");
    paths.push_back(u"D:\\" + names.back());
  }
  Drop(paths);
  rig.Select(u"Two");
  placement.PlacePendingFiles();
  EXPECT_EQ(Songs(1), names);
}

}  // namespace
}  // namespace brevant
