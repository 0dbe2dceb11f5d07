#include "document/playlist_presenter.h"

#include <gtest/gtest.h>

#include "lyrics/lyrics.h"
#include "model/play_marks.h"
#include "support/fake_playlist_view.h"
#include "support/fake_tree.h"
#include "support/lyrics_of.h"

namespace brevant {
namespace {

class PlaylistPresenter : public testing::Test {
 protected:
  PlaylistPresenter() {
    TCPlayGroups& group = store.groups.emplace_back();
    group.name = u"Sets";
    group.playlists.resize(3);
    AddSongs(group.playlists[0], u"Opener", 3);
    AddSongs(group.playlists[1], u"Encore", 1);
    group.playlists[2].name = u"Empty";
    store.RecalcAllTotalTimes();
  }

  static void AddSongs(TCPlayList& playlist, std::u16string name, int count) {
    playlist.name = std::move(name);
    for (int i = 0; i < count; ++i) {
      TCPlayListItem& song = playlist.items.emplace_back();
      song.SetPath(std::u16string(u"C:\\") + static_cast<char16_t>(u'a' + i) + u".mp3");
      song.time = u"01:00";
      song.status = TCSongStatus::Found;
    }
  }

  std::vector<TCRgb> TextColours() const {
    std::vector<TCRgb> colours;
    for (const TCPlaylistRow& row : view.rows) colours.push_back(row.colours.text);
    return colours;
  }

  TCAppRecord record;
  TCSetListStore& store = record.setLists;
  TCFakePlaylistView view;
  TCFakeTree tree;
  TCPlaylistPresenter presenter{record, view, tree};
};

TEST_F(PlaylistPresenter, APlaylistIsShownWithItsRowsAndItsTotal) {
  presenter.ShowPlaylist(0, 0);
  ASSERT_EQ(view.rows.size(), 3u);
  EXPECT_EQ(view.rows[1].texts.number, u"2");
  EXPECT_EQ(view.rows[1].texts.status, u"Found");
  EXPECT_EQ(view.rows[1].texts.time, u"01:00");
  EXPECT_EQ(view.rows[1].texts.name, u"b.mp3");
  EXPECT_EQ(view.header, u"Opener - Total Playlist Time: 03:30");
  EXPECT_EQ(TextColours(), (std::vector<TCRgb>{kCurrentColour, kNextColour, kWhite}));
  EXPECT_EQ(view.rows[0].colours.background, kBlack);
  EXPECT_EQ(store.lastGroupListName, u"Sets");
  EXPECT_EQ(store.lastPlayListName, u"Opener");
  EXPECT_EQ(store.lastSongName, u"a.mp3");
  EXPECT_EQ(presenter.RowToMove(), 0);
}

TEST_F(PlaylistPresenter, ASongWithLyricLinesSaysSoBehindItsStatus) {
  store.groups[0].playlists[0].items[0].lyrics = LyricsOf({{u"Sing", 0, kEndOfLyrics, 0}});
  TCLyricHeaders titleAlone;
  titleAlone.title = u"Song";
  store.groups[0].playlists[0].items[1].lyrics = LyricsOf({}, titleAlone);
  presenter.ShowPlaylist(0, 0);
  EXPECT_EQ(view.rows[0].texts.status, u"Found\\Lyrics");
  EXPECT_EQ(view.rows[1].texts.status, u"Found");
}

TEST_F(PlaylistPresenter, AnEmptyPlaylistLeavesThePreviousRowsOnTheScreen) {
  presenter.ShowPlaylist(0, 0);
  store.currentPlaylist = 2;
  presenter.ShowPlaylist(0, 2);
  EXPECT_EQ(view.rows.size(), 3u);
  EXPECT_EQ(view.header, u"Opener - Total Playlist Time: 03:30");
  EXPECT_EQ(store.lastPlayListName, u"Opener");
}

TEST_F(PlaylistPresenter, IndicesOutsideTheModelShowNothing) {
  for (const std::int32_t wrong : {-1, 3, 99}) {
    presenter.ShowPlaylist(wrong, 0);
    presenter.ShowPlaylist(0, wrong);
  }
  EXPECT_EQ(view.shows, 0);
}

TEST_F(PlaylistPresenter, ShowingThePlaylistThatStandsThereKeepsItsPlace) {
  presenter.ShowPlaylist(0, 0);
  EXPECT_EQ(view.lastMode, TCShowRows::Afresh);
  presenter.ShowPlaylist(0, 0);
  EXPECT_EQ(view.lastMode, TCShowRows::KeepPlace);
  presenter.ShowPlaylist(0, 1);
  EXPECT_EQ(view.lastMode, TCShowRows::Afresh);
  presenter.Clear();
  presenter.ShowPlaylist(0, 1);
  EXPECT_EQ(view.lastMode, TCShowRows::Afresh);
}

TEST_F(PlaylistPresenter, AnOnlySongIsGreenAndNothingElse) {
  store.currentPlaylist = 1;
  presenter.ShowPlaylist(0, 1);
  EXPECT_EQ(TextColours(), (std::vector<TCRgb>{kCurrentColour}));
}

TEST_F(PlaylistPresenter, TheLastSongIsGreenBehindARedOne) {
  presenter.ShowPlaylist(0, 0);
  store.currentSong = 2;
  presenter.HighlightCurrentSong();
  EXPECT_EQ(TextColours(), (std::vector<TCRgb>{kWhite, kPreviousColour, kCurrentColour}));
  EXPECT_EQ(view.scrolledTo, 2);
  EXPECT_EQ(presenter.RowToMove(), 2);
}

TEST_F(PlaylistPresenter, WithoutDynamicColoursEveryRowHasTheTextColour) {
  record.settings.dynamicPlayColours = false;
  presenter.ShowPlaylist(0, 0);
  EXPECT_EQ(TextColours(), (std::vector<TCRgb>{kWhite, kWhite, kWhite}));
}

TEST_F(PlaylistPresenter, ASongThatNamesNothingRecoloursNothing) {
  presenter.ShowPlaylist(0, 0);
  const std::vector<TCRgb> before = TextColours();
  store.currentSong = 3;
  view.scrolledTo = -1;
  presenter.HighlightCurrentSong();
  EXPECT_EQ(TextColours(), before);
  EXPECT_EQ(view.scrolledTo, -1);
}

TEST_F(PlaylistPresenter, AnOptionRecoloursAlsoWhenNoSongIsCurrent) {
  presenter.ShowPlaylist(0, 0);
  store.currentSong = 99;
  record.settings.SetWhiteOnBlack(false);
  presenter.ShowColours();
  EXPECT_EQ(view.rows[2].colours.background, kWhite);
  EXPECT_EQ(view.rows[2].colours.text, kBlack);
}

TEST_F(PlaylistPresenter, AnOptionRecoloursTheRowsThatAnEmptyPlaylistLeft) {
  presenter.ShowPlaylist(0, 0);
  store.currentPlaylist = 2;
  presenter.ShowPlaylist(0, 2);
  record.settings.SetWhiteOnBlack(false);
  presenter.ShowColours();
  EXPECT_EQ(view.rows[0].colours.background, kWhite);
  EXPECT_EQ(view.rows[2].colours.text, kBlack);
}

TEST_F(PlaylistPresenter, AClearedViewNamesNoPlaylist) {
  presenter.ShowPlaylist(0, 0);
  presenter.Clear();
  EXPECT_TRUE(view.rows.empty());
  EXPECT_EQ(view.header, u"Play List");
  EXPECT_EQ(presenter.RowToMove(), -1);
}

TEST_F(PlaylistPresenter, ARowIsRewrittenInAllItsTextsAndKeepsItsColour) {
  presenter.ShowPlaylist(0, 0);
  TCPlayListItem song = store.groups[0].playlists[0].items[1];
  song.SetPath(u"C:\\other.wav");
  song.status = TCSongStatus::NotFound;
  song.time = u"05:05";
  presenter.RefreshSongRow(1, song);
  EXPECT_EQ(view.rows[1].texts.number, u"2");
  EXPECT_EQ(view.rows[1].texts.status, u"Not found");
  EXPECT_EQ(view.rows[1].texts.time, u"05:05");
  EXPECT_EQ(view.rows[1].texts.name, u"other.wav");
  EXPECT_EQ(TextColours(), (std::vector<TCRgb>{kCurrentColour, kNextColour, kWhite}));
}

TEST_F(PlaylistPresenter, AnEmptySongTimeIsIgnored) {
  presenter.ShowPlaylist(0, 0);
  presenter.SetSongTime(1, u"");
  EXPECT_EQ(view.rows[1].texts.time, u"01:00");
  presenter.SetSongTime(1, u"02:02");
  EXPECT_EQ(view.rows[1].texts.time, u"02:02");
}

TEST_F(PlaylistPresenter, ATotalThatChangedShowsInTheHeader) {
  presenter.ShowPlaylist(0, 0);
  store.groups[0].playlists[0].totalTime = u"09:09";
  presenter.RefreshPlaylistTotal();
  EXPECT_EQ(view.header, u"Opener - Total Playlist Time: 09:09");
}

}  // namespace
}  // namespace brevant
