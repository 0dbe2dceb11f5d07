#include "document/properties_presenter.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <limits>
#include <set>

#include "support/edit_rig.h"
#include "support/fake_properties.h"
#include "support/lyrics_of.h"

namespace brevant {
namespace {

using P = TCProperty;

constexpr P kTags[] = {P::Artist,      P::Album,  P::Title,   P::SongCreator, P::LyricLength,
                       P::LyricWriter, P::Editor, P::Version, P::LyricDelay};

TCSongLyrics Tagged() {
  return LyricsOf({}, {u"an artist", u"an album", u"a title", u"a creator", u"3:20", u"a writer",
                       u"an editor", u"a version", u"-250"});
}

class PropertiesPresenter : public testing::Test {
 protected:
  PropertiesPresenter() {
    rig.AddGroup(u"Band", {{u"Set 1", {u"one.mp3", u"two.mp3"}}, {u"Empty", {}}});
    rig.AddGroup(u"Duo", {{u"Late", {u"three.mid"}}});
    rig.Show();
  }

  [[nodiscard]] std::u16string Song() const { return pane.Text(P::SongFileName); }

  TCEditRig rig;
  TCProgramFolders folders{u"\\opt\\", u"\\conf\\", u"\\state\\"};
  TCFakeProperties pane;
  TCPropertiesPresenter presenter{rig.record, folders, rig.view, &pane};
};

TEST_F(PropertiesPresenter, ShowsWhereTheUserIs) {
  presenter.RefreshProperties(u"D:\\Docs\\show.brv");
  EXPECT_EQ(pane.Text(P::SongFileName), u"one.mp3");
  EXPECT_EQ(pane.Text(P::SongFilePath), u"C:\\");
  EXPECT_EQ(pane.Text(P::PlaylistName), u"Set 1");
  EXPECT_EQ(pane.Text(P::GroupName), u"Band");
  EXPECT_EQ(pane.Text(P::BrvFileName), u"show.brv");
  EXPECT_EQ(pane.Text(P::BrvFilePath), u"D:\\Docs\\");
}

TEST_F(PropertiesPresenter, ShowsHowTheProgramIsSet) {
  rig.store.songLatencySeconds = -3;
  rig.record.settings.volumeStep = 7;
  rig.record.settings.seekStepSeconds = std::numeric_limits<std::int32_t>::min();
  rig.record.settings.playListFontSize = 0;
  presenter.RefreshProperties(u"");
  EXPECT_EQ(pane.Text(P::SongLatency), u"-3");
  EXPECT_EQ(pane.Text(P::VolumeStep), u"7");
  EXPECT_EQ(pane.Text(P::SeekStep), u"-2147483648");
  EXPECT_EQ(pane.Text(P::FontSize), u"0");
  EXPECT_EQ(pane.Text(P::ProgramPath), u"\\opt\\");
  EXPECT_EQ(pane.Text(P::ProgramDataPath), u"\\conf\\");
}

TEST_F(PropertiesPresenter, ShowsTheTagsOfTheCurrentSongInTheirOrder) {
  rig.store.SongInCurrentPlaylist(0)->lyrics = Tagged();
  presenter.RefreshProperties(u"");
  std::vector<std::u16string> texts;
  for (const P tag : kTags) texts.push_back(pane.Text(tag));
  EXPECT_EQ(texts, (std::vector<std::u16string>{u"an artist", u"an album", u"a title", u"a creator", u"3:20",
                                                u"a writer", u"an editor", u"a version", u"-250"}));
}

TEST_F(PropertiesPresenter, ASongWithoutTagsEmptiesAllNine) {
  rig.store.SongInCurrentPlaylist(0)->lyrics = Tagged();
  presenter.RefreshProperties(u"");
  rig.store.currentSong = 1;
  presenter.RefreshLyricProperties();
  for (const P tag : kTags) EXPECT_EQ(pane.Text(tag), u"");
}

TEST_F(PropertiesPresenter, TheSongIsTheSelectedOneAndItsTagsAreTheCurrentOnes) {
  rig.store.SongInCurrentPlaylist(0)->lyrics = Tagged();
  rig.view.SelectRow(1);
  presenter.RefreshProperties(u"");
  EXPECT_EQ(Song(), u"two.mp3");
  EXPECT_EQ(pane.Text(P::Artist), u"an artist");
}

TEST_F(PropertiesPresenter, ARowOfThePlaylistThatOnlyStillStandsThereIsNoSelectedSong) {
  presenter.RefreshProperties(u"");
  rig.view.SelectRow(1);
  rig.store.currentPlaylist = 1;  // empty, so the rows are those of the one before
  presenter.RefreshProperties(u"");
  EXPECT_EQ(Song(), u"one.mp3");
  rig.store.currentGroup = 1;
  rig.store.currentPlaylist = 0;
  presenter.RefreshProperties(u"");
  EXPECT_EQ(Song(), u"three.mid");
}

TEST_F(PropertiesPresenter, WrongIndexesLeaveWhatIsShown) {
  presenter.RefreshProperties(u"");
  const auto before = pane.shown;
  constexpr std::int32_t kMost = std::numeric_limits<std::int32_t>::max();
  constexpr std::int32_t kLeast = std::numeric_limits<std::int32_t>::min();
  for (const std::int32_t wrong : {-1, 2, kMost, kLeast}) {
    presenter.RefreshSelectionProperties(wrong, 0, 0);
    presenter.RefreshSelectionProperties(0, wrong, 0);
    presenter.RefreshSelectionProperties(0, 0, wrong);
    rig.store.currentSong = wrong;
    presenter.RefreshLyricProperties();
  }
  presenter.RefreshSelectionProperties(1, 0, 1);  // right in another playlist
  EXPECT_EQ(pane.shown, before);
}

TEST_F(PropertiesPresenter, AnotherSongsSelectionLeavesOptionsAndTags) {
  rig.store.SongInCurrentPlaylist(0)->lyrics = Tagged();
  presenter.RefreshProperties(u"D:\\show.brv");
  presenter.RefreshSelectionProperties(1, 0, 0);
  EXPECT_EQ(pane.Text(P::GroupName), u"Duo");
  EXPECT_EQ(pane.Text(P::PlaylistName), u"Late");
  EXPECT_EQ(Song(), u"three.mid");
  EXPECT_EQ(pane.Text(P::Artist), u"an artist");
  EXPECT_EQ(pane.Text(P::BrvFileName), u"show.brv");
}

TEST_F(PropertiesPresenter, WithoutADocumentFileItsNameAndPathAreEmpty) {
  presenter.RefreshProperties(u"D:\\show.brv");
  presenter.RefreshProperties(u"");
  EXPECT_EQ(pane.Text(P::BrvFileName), u"");
  EXPECT_EQ(pane.Text(P::BrvFilePath), u"");
}

TEST_F(PropertiesPresenter, BeforeThePaneIsBuiltNothingHappens) {
  pane.built = false;
  TCPropertiesPresenter without{rig.record, folders, rig.view, nullptr};
  for (TCPropertiesPresenter* each : {&presenter, &without}) {
    each->RefreshProperties(u"D:\\show.brv");
    each->RefreshSelectionProperties(0, 0, 0);
    each->RefreshLyricProperties();
  }
  EXPECT_EQ(pane.shows, 0);
}

TEST_F(PropertiesPresenter, FillsEveryRow) {
  presenter.RefreshProperties(u"");
  EXPECT_EQ(pane.shown.size(), kPropertyRows.size());
  std::set<P> rows;
  for (const TCPropertyRow& row : kPropertyRows) rows.insert(row.property);
  EXPECT_EQ(rows.size(), kPropertyRows.size());
}

TEST(PropertyRows, StandInTheirOrder) {
  std::vector<std::u16string> lines;
  for (const TCPropertyRow& row : kPropertyRows) {
    const std::u16string category(TextOf(row.category));
    if (std::ranges::find(lines, category) == lines.end()) lines.push_back(category);
    lines.push_back(u"  " + std::u16string(TextOf(row.caption)));
  }
  EXPECT_EQ(lines, (std::vector<std::u16string>{u"Playlist Manager Information",
                                                u"  Song File Name",
                                                u"  Song File Path",
                                                u"  Playlist Name",
                                                u"  Group Name",
                                                u"  BRV File Name",
                                                u"  BRV File Path",
                                                u"Options Information",
                                                u"  Song play latency (secs)",
                                                u"  Volume increment/decrement size",
                                                u"  Fast Foward/Fast Rewind time step",
                                                u"  Font size",
                                                u"Lyrics Information",
                                                u"  Artist",
                                                u"  Album",
                                                u"  Title",
                                                u"  Song Creater",
                                                u"  Lyric Length",
                                                u"  Lyric Writer",
                                                u"  Editor",
                                                u"  Version",
                                                u"  Lyric Delay (ms)",
                                                u"Program Information",
                                                u"  Brevant program path",
                                                u"  Brevant program data path"}));
}

}  // namespace
}  // namespace brevant
