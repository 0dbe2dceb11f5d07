#include "document/song_check.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "document/song_properties.h"
#include "support/edit_rig.h"

namespace brevant {
namespace {

using testing::ElementsAre;

class SongCheck : public testing::Test {
 protected:
  SongCheck() {
    rig.AddGroup(u"Sets", {{u"One", {u"a.mp3", u"b.mp3"}}, {u"Two", {u"c.mp3"}}});
    rig.Show();
    rig.files.Put(u"D:\\x.mp3");
    rig.files.Put(u"D:\\x.lrc", "[00:01.0]Hello");
  }

  void Place(std::u16string_view node, std::u16string_view text) {
    rig.Select(node);
    rig.placement.PlaceText(text);
  }
  void Wake() {
    rig.files.Wake();
    rig.check.TakeLateAnswers();
  }
  [[nodiscard]] TCPlayListItem& Song(std::size_t playlist, std::size_t song) {
    return rig.store.groups[0].playlists[playlist].items[song];
  }
  [[nodiscard]] std::vector<std::u16string> StatusColumn() const {
    std::vector<std::u16string> column;
    for (const TCPlaylistRow& row : rig.view.rows) column.push_back(row.texts.status);
    return column;
  }

  TCEditRig rig;
};

TEST_F(SongCheck, StatusAndLyricsOfAllSongsAreThereAtOnce) {
  rig.files.Put(u"C:\\b.mp3");
  rig.check.CheckSongFiles({0, 0, 0}, 2);
  EXPECT_EQ(Song(0, 0).status, TCSongStatus::NotFound);
  EXPECT_EQ(Song(0, 1).status, TCSongStatus::Found);
}

TEST_F(SongCheck, SongsThatAreNotThereAreNotLookedFor) {
  rig.check.CheckSongFiles({0, 0, 1}, 2);
  rig.check.CheckSongFiles({0, 7, 0}, 1);
  EXPECT_EQ(Song(0, 0).status, TCSongStatus::Pending);
  EXPECT_EQ(rig.files.existenceAsked.size(), 0u);
}

TEST_F(SongCheck, SongsPlacedOnADiskThatHangsArePendingUntilItAnswers) {
  rig.files.hangs = true;
  Place(u"One", u"D:\\x.mp3 D:\\gone.mp3");
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mp3", u"b.mp3", u"x.mp3", u"gone.mp3"));
  EXPECT_THAT(StatusColumn(), ElementsAre(u"Pending", u"Pending", u"Pending", u"Pending"));
  const int modified = rig.modified;
  rig.check.TakeLateAnswers();
  EXPECT_EQ(Song(0, 2).status, TCSongStatus::Pending);
  Wake();
  EXPECT_THAT(StatusColumn(), ElementsAre(u"Pending", u"Pending", u"Found\\Lyrics", u"Not found"));
  EXPECT_EQ(rig.modified, modified) << "no document keeps what the disk says";
}

TEST_F(SongCheck, ARenameOnADiskThatHangsLeavesNothingOfTheOldFile) {
  rig.check.CheckSongFiles({0, 0, 0}, 1);
  Song(0, 0).SetPath(u"D:\\x.mp3");
  rig.check.CheckSongFiles({0, 0, 0}, 1);
  ASSERT_FALSE(Song(0, 0).lyrics.Empty());
  rig.files.hangs = true;
  rig.editor.Rename(Song(0, 0).treeNode, u"y.mp3");
  EXPECT_EQ(rig.view.rows[0].texts.name, u"y.mp3");
  EXPECT_EQ(rig.view.rows[0].texts.status, u"Pending");
  Wake();
  EXPECT_EQ(rig.view.rows[0].texts.status, u"Not found");
}

TEST_F(SongCheck, ARepairOnADiskThatHangsReachesTheWholePlaylistLater) {
  rig.files.Put(u"E:\\b.mp3");
  rig.files.hangs = true;
  TCSongPropertiesForm form(rig.parts, {0, 0, 0});
  form.songPath = u"E:\\";
  form.pathForAll = true;
  form.Apply();
  EXPECT_THAT(StatusColumn(), ElementsAre(u"Pending", u"Pending"));
  Wake();
  EXPECT_THAT(StatusColumn(), ElementsAre(u"Not found", u"Found"));
}

TEST_F(SongCheck, ALateAnswerFindsItsSongWhereItWasMoved) {
  rig.files.hangs = true;
  Place(u"One", u"D:\\x.mp3");
  rig.mover.Move(Song(0, 2).treeNode, Song(1, 0).treeNode);
  Wake();
  ASSERT_EQ(Song(1, 0).fileName, u"x.mp3");
  EXPECT_EQ(Song(1, 0).status, TCSongStatus::Found);
  EXPECT_THAT(StatusColumn(), ElementsAre(u"Pending", u"Pending")) << "the rows of the other playlist";
}

TEST_F(SongCheck, ALateAnswerAboutAnotherFileIsPassedOver) {
  rig.files.hangs = true;
  Place(u"One", u"D:\\x.mp3");
  rig.editor.Rename(Song(0, 2).treeNode, u"gone.mp3");
  Wake();
  EXPECT_EQ(Song(0, 2).status, TCSongStatus::NotFound);
  EXPECT_TRUE(Song(0, 2).lyrics.Empty());
}

TEST_F(SongCheck, ALateAnswerAboutASongThatWasRemovedIsPassedOver) {
  rig.files.hangs = true;
  Place(u"One", u"D:\\x.mp3");
  rig.view.selected = {2};
  rig.editor.RemoveSelectedRows();
  Wake();
  EXPECT_THAT(StatusColumn(), ElementsAre(u"Pending", u"Pending"));
}

}  // namespace
}  // namespace brevant
