#include "document/song_properties.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "model/set_list_edit.h"
#include "support/edit_rig.h"

namespace brevant {
namespace {

using testing::ElementsAre;

class SongPropertiesForm : public testing::Test {
 protected:
  SongPropertiesForm() {
    rig.AddGroup(u"Sets", {{u"One", {u"a.mp3", u"b.wav"}}, {u"Two", {u"c.mp3"}}});
    rig.store.groups[0].folder = u"D:\\Lists\\";
    rig.store.groups[0].playlists[1].folder = u"D:\\Sub\\";
    rig.Show();
  }

  [[nodiscard]] const TCPlayListItem& Song(std::size_t playlist, std::size_t song) const {
    return rig.store.groups[0].playlists[playlist].items[song];
  }

  TCEditRig rig;
};

TEST_F(SongPropertiesForm, ItShowsTheSongItsPlaylistAndItsGroup) {
  const TCSongPropertiesForm form(rig.parts, {0, 1, 0});
  EXPECT_EQ(form.songPath, u"C:\\");
  EXPECT_EQ(form.songName, u"c.mp3");
  EXPECT_EQ(form.songTime, u"01:00");
  EXPECT_EQ(form.playlistName, u"D:\\Sub\\Two.brvpl");
  EXPECT_EQ(form.groupName, u"D:\\Lists\\Sets.brvgl");
  EXPECT_FALSE(form.pathForAll);
  EXPECT_FALSE(form.extensionForAll);
}

TEST_F(SongPropertiesForm, OkMovesTheOneSongAndChecksIt) {
  rig.files.Put(u"E:\\New\\x.wav");
  rig.files.Put(u"E:\\New\\x.lrc", "[00:01.0]Hello");
  TCSongPropertiesForm form(rig.parts, {0, 0, 0});
  form.songPath = u" E:/New ";
  form.songName = u" \"x.wav\" ";
  form.Apply();
  EXPECT_EQ(Song(0, 0).FullPath(), u"E:\\New\\x.wav");
  EXPECT_EQ(std::u16string_view(Song(0, 0).extension), u"wav");
  EXPECT_EQ(Song(0, 0).time, u"01:00");
  EXPECT_EQ(rig.view.rows[0].texts.name, u"x.wav");
  EXPECT_EQ(rig.view.rows[0].texts.status, u"Found\\Lyrics");
  EXPECT_EQ(Song(0, 1).FullPath(), u"C:\\b.wav");
  EXPECT_EQ(rig.tree.Lines(), rig.ModelLines());
  EXPECT_EQ(rig.modified, 1);
}

TEST_F(SongPropertiesForm, AMissingFileIsNotFoundAndItsOldLyricsGo) {
  rig.files.Put(u"C:\\a.lrc", "[ti:Old]\r\n[00:01.0]Hello\r\n");
  TCPlayListItem& song = rig.store.groups[0].playlists[0].items[0];
  rig.editor.Rename(song.treeNode, u"a.mp3");
  ASSERT_FALSE(song.lyrics.Empty());
  TCSongPropertiesForm form(rig.parts, {0, 0, 0});
  form.songPath = u"E:\\";
  form.Apply();
  EXPECT_EQ(rig.view.rows[0].texts.status, u"Not found");
  EXPECT_TRUE(song.lyrics.Empty());
  EXPECT_EQ(song.lyrics.Headers().title, u"");
}

TEST_F(SongPropertiesForm, AnEmptyNameLeavesTheSongsOwnAndAnEmptyFolderIsKept) {
  TCSongPropertiesForm form(rig.parts, {0, 0, 0});
  form.songPath = u"";
  form.songName = u"  ";
  form.Apply();
  EXPECT_EQ(Song(0, 0).FullPath(), u"a.mp3");
}

TEST_F(SongPropertiesForm, TheFolderIsAppliedToTheWholePlaylist) {
  rig.files.Put(u"E:\\Backup\\a.mp3");
  rig.files.Put(u"E:\\Backup\\a.lrcx");
  rig.store.groups[0].playlists[0].totalTime = u"99:99";
  TCSongPropertiesForm form(rig.parts, {0, 0, 1});
  form.songPath = u"E:\\Backup\\";
  form.pathForAll = true;
  form.Apply();
  EXPECT_EQ(Song(0, 0).FullPath(), u"E:\\Backup\\a.mp3");
  EXPECT_EQ(Song(0, 0).status, TCSongStatus::Found);
  EXPECT_EQ(Song(0, 1).FullPath(), u"E:\\Backup\\b.wav");
  EXPECT_EQ(Song(0, 1).status, TCSongStatus::NotFound);
  EXPECT_EQ(Song(1, 0).FullPath(), u"C:\\c.mp3");
  EXPECT_EQ(rig.view.header, u"One - Total Playlist Time: 02:15");
  EXPECT_EQ(rig.view.rows[0].texts.status, u"Found");
}

TEST_F(SongPropertiesForm, TheFileTypeIsAppliedToTheWholePlaylistAndToItsNodes) {
  TCSongPropertiesForm form(rig.parts, {0, 0, 0});
  form.songName = u"a.mid";
  form.extensionForAll = true;
  form.Apply();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a.mid", u"b.mid"));
  EXPECT_EQ(std::u16string_view(Song(0, 1).extension), u"mid");
  EXPECT_EQ(rig.tree.Lines(), rig.ModelLines());
}

TEST_F(SongPropertiesForm, TheFileTypeAloneLeavesTheFoldersOfTheOthers) {
  TCSongPropertiesForm form(rig.parts, {0, 0, 0});
  form.songPath = u"E:\\";
  form.songName = u"a.mid";
  form.extensionForAll = true;
  form.Apply();
  EXPECT_EQ(Song(0, 0).FullPath(), u"E:\\a.mid");
  EXPECT_EQ(Song(0, 1).FullPath(), u"C:\\b.mid");
}

TEST_F(SongPropertiesForm, ARepairReadsTheLyricsOfEverySongAgain) {
  rig.files.Put(u"E:\\b.lrc", "[00:01.0]Hello");
  TCSongPropertiesForm form(rig.parts, {0, 0, 0});
  form.songPath = u"E:\\";
  form.pathForAll = true;
  form.Apply();
  EXPECT_FALSE(Song(0, 1).lyrics.Empty());
  EXPECT_EQ(rig.view.rows[1].texts.status, u"Not found\\Lyrics");
}

TEST_F(SongPropertiesForm, ThePlaylistRemembersTheTwoBoxes) {
  TCSongPropertiesForm form(rig.parts, {0, 1, 0});
  form.pathForAll = true;
  form.Apply();
  const TCPlayList& playlist = rig.store.groups[0].playlists[1];
  EXPECT_EQ(playlist.state2, 1);
  EXPECT_EQ(playlist.state3, 0);
  TCSongPropertiesForm next(rig.parts, {0, 1, 0});
  EXPECT_TRUE(next.pathForAll);
  EXPECT_FALSE(next.extensionForAll);
  EXPECT_FALSE(TCSongPropertiesForm(rig.parts, {0, 0, 0}).pathForAll);
  next.pathForAll = false;
  next.extensionForAll = true;
  next.Apply();
  EXPECT_FALSE(TCSongPropertiesForm(rig.parts, {0, 1, 0}).pathForAll);
  EXPECT_TRUE(TCSongPropertiesForm(rig.parts, {0, 1, 0}).extensionForAll);
}

TEST_F(SongPropertiesForm, ASongOfAnotherPlaylistIsRepairedWithoutTouchingTheView) {
  const int shows = rig.view.shows;
  TCSongPropertiesForm form(rig.parts, {0, 1, 0});
  form.songName = u"x.mp3";
  form.pathForAll = true;
  form.Apply();
  EXPECT_EQ(Song(1, 0).fileName, u"x.mp3");
  EXPECT_EQ(rig.view.shows, shows);
}

TEST_F(SongPropertiesForm, SetDirTakesTheFolderOfAnySongAndLeavesTheRest) {
  TCSongPropertiesForm form(rig.parts, {0, 0, 0});
  rig.prompts.mediaAnswers = {TCFakePrompts::TCPaths{u"E:\\Backup\\other.mid"}, std::nullopt};
  form.SetDir();
  EXPECT_EQ(form.songPath, u"E:\\Backup\\");
  EXPECT_EQ(form.songName, u"a.mp3");
  form.SetDir();
  EXPECT_EQ(form.songPath, u"E:\\Backup\\");
}

TEST_F(SongPropertiesForm, TheSongIsTheSameWhenEntriesWereMovedMeanwhile) {
  TCSongPropertiesForm form(rig.parts, {0, 0, 0});
  ASSERT_TRUE(MoveSong(rig.store, {0, 0, 0}, {0, 0, 1}));
  rig.treePresenter.MoveSongNode({0, 0, 1});
  form.songName = u"x.mp3";
  form.Apply();
  EXPECT_EQ(Song(0, 0).fileName, u"b.wav");
  EXPECT_EQ(Song(0, 1).fileName, u"x.mp3");
}

TEST_F(SongPropertiesForm, ASongThatIsGoneChangesNothing) {
  TCSongPropertiesForm form(rig.parts, {0, 0, 0});
  rig.tree.DeleteNode(Song(0, 0).treeNode);
  ASSERT_TRUE(RemoveSong(rig.store, {0, 0, 0}));
  form.songName = u"x.mp3";
  form.Apply();
  EXPECT_EQ(Song(0, 0).fileName, u"b.wav");
  EXPECT_EQ(rig.modified, 0);
}

TEST_F(SongPropertiesForm, ANameWithoutATypeLeavesTheTypesOfTheOthers) {
  TCSongPropertiesForm form(rig.parts, {0, 0, 0});
  form.songName = u"a";
  form.extensionForAll = true;
  form.Apply();
  EXPECT_THAT(rig.Rows(), ElementsAre(u"a", u"b.wav"));
}

TEST_F(SongPropertiesForm, NothingIsChangedBeforeOk) {
  TCSongPropertiesForm form(rig.parts, {0, 0, 0});
  form.songPath = u"E:\\";
  form.pathForAll = true;
  EXPECT_EQ(Song(0, 0).FullPath(), u"C:\\a.mp3");
  EXPECT_EQ(rig.modified, 0);
}

}  // namespace
}  // namespace brevant
