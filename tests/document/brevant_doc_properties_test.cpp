// When the document refreshes the properties pane.

#include <gtest/gtest.h>

#include <functional>

#include "document/show_document.h"
#include "document/song_properties.h"

namespace brevant {
namespace {

using Id = TCCommandId;
using P = TCProperty;

constexpr std::u16string_view kTyped = u"typed by the user";

class BrevantDocProperties : public TCShowDocument {
 protected:
  BrevantDocProperties() { document.OnOpenDocument(kShow); }

  // A refresh shows the song's own title again.
  [[nodiscard]] bool Refreshes(const std::function<void()>& act) {
    pane.shown[P::Title] = kTyped;
    act();
    return pane.Text(P::Title) != kTyped;
  }
  [[nodiscard]] bool Refreshes(Id command) {
    return Refreshes([this, command] { document.OnCommand(command); });
  }
};

TEST_F(BrevantDocProperties, AnOpenedDocumentIsShownWithItsFirstSong) {
  EXPECT_EQ(pane.Text(P::BrvFileName), u"show.brv");
  EXPECT_EQ(pane.Text(P::BrvFilePath), u"D:\\Docs\\");
  EXPECT_EQ(pane.Text(P::GroupName), u"Sets");
  EXPECT_EQ(pane.Text(P::PlaylistName), u"One");
  EXPECT_EQ(pane.Text(P::SongFileName), u"a.mp3");
  EXPECT_EQ(pane.Text(P::ProgramPath), u"\\opt\\");
  EXPECT_EQ(pane.Text(P::ProgramDataPath), u"\\conf\\");
}

TEST_F(BrevantDocProperties, ANewDocumentHasNoFileAndASavedOneItsOwn) {
  document.OnNewDocument();
  EXPECT_EQ(pane.Text(P::BrvFileName), u"");
  EXPECT_EQ(pane.Text(P::BrvFilePath), u"");
  EXPECT_EQ(pane.Text(P::SongFileName), u"a.mp3") << "there is no other song to show";
  prompts.saveAsAnswers = {u"E:\\Live\\gig.brv"};
  document.OnCommand(Id::FileSave);
  EXPECT_EQ(pane.Text(P::BrvFileName), u"gig.brv");
  EXPECT_EQ(pane.Text(P::BrvFilePath), u"E:\\Live\\");
}

TEST_F(BrevantDocProperties, AnEditIsShown) {
  EXPECT_TRUE(Refreshes(Id::NewGroupFolder));
  document.RenameNode(tree.NodeNamed(u"One"), u"First");
  EXPECT_EQ(pane.Text(P::PlaylistName), u"First");
  document.RenameNode(tree.NodeNamed(u"Sets"), u"Gigs");
  EXPECT_EQ(pane.Text(P::GroupName), u"Gigs");
  view.selected = {0};
  document.OnCommand(Id::Remove);
  EXPECT_EQ(pane.Text(P::SongFileName), u"b.mp3");
}

TEST_F(BrevantDocProperties, LyricTagsThatASlowDiskGivesLaterAreShown) {
  files.Put(u"C:\\x.lrc", "[ti:Harbour]");
  files.hangs = true;
  document.RenameNode(tree.NodeNamed(u"a.mp3"), u"x.mp3");
  EXPECT_EQ(pane.Text(P::Title), u"");
  files.Wake();
  document.OnPlayTimerTick();
  EXPECT_EQ(pane.Text(P::Title), u"Harbour");
}

TEST_F(BrevantDocProperties, SongPropertiesClosedWithOkAreShown) {
  prompts.songEdits = {[](TCSongPropertiesForm& form) {
    form.songName = u"x.mp3";
    form.songPath = u"E:\\";
    return true;
  }};
  view.selected = {0};
  document.OnCommand(Id::SongProperties);
  EXPECT_EQ(pane.Text(P::SongFileName), u"x.mp3");
  EXPECT_EQ(pane.Text(P::SongFilePath), u"E:\\");
}

TEST_F(BrevantDocProperties, TypedOptionsAreShown) {
  prompts.texts = {u"21", u"22", u"23", u"24"};
  for (const Id option : {Id::SongLatency, Id::VolumeStep, Id::SeekStep, Id::PlaylistFontSize}) {
    EXPECT_TRUE(document.OnCommand(option));
  }
  EXPECT_EQ(pane.Text(P::SongLatency), u"21");
  EXPECT_EQ(pane.Text(P::VolumeStep), u"22");
  EXPECT_EQ(pane.Text(P::SeekStep), u"23");
  EXPECT_EQ(pane.Text(P::FontSize), u"24");
}

TEST_F(BrevantDocProperties, AnOptionThatIsTurnedRefreshes) {
  EXPECT_TRUE(Refreshes(Id::AutoSongAdvance));
  EXPECT_TRUE(Refreshes(Id::WhiteOnBlack));
}

TEST_F(BrevantDocProperties, TheSongThatBecomesCurrentIsShown) {
  document.OnCommand(Id::NextSong);
  EXPECT_EQ(pane.Text(P::SongFileName), u"b.mp3");
  document.PickRow(0);
  EXPECT_EQ(pane.Text(P::SongFileName), u"a.mp3");
  document.OnCommand(Id::NextPlaylist);
  EXPECT_EQ(pane.Text(P::PlaylistName), u"Two");
  EXPECT_EQ(pane.Text(P::SongFileName), u"c.mp3");
  document.PickNode(tree.NodeNamed(u"b.mp3"));
  EXPECT_EQ(pane.Text(P::SongFileName), u"b.mp3");
}

TEST_F(BrevantDocProperties, AnotherSelectedRowIsShownWhenTheDocumentIsTold) {
  view.selected = {1};
  document.RefreshProperties();
  EXPECT_EQ(pane.Text(P::SongFileName), u"b.mp3");
}

TEST_F(BrevantDocProperties, ATotalThatChangedRefreshes) {
  player.SetDefaultSong({.length = 65.0, .opensAfter = 0.0});
  document.OnCommand(Id::Play);
  EXPECT_TRUE(Refreshes([this] { Poll(1); }));
  EXPECT_EQ(record.setLists.SongInCurrentPlaylist(0)->time, u"01:05");
  EXPECT_FALSE(Refreshes([this] { Poll(1); })) << "a poll that changes nothing shows nothing";
}

TEST_F(BrevantDocProperties, ATimeRunRefreshesAtItsEnd) {
  probe.defaultLength = 65;
  document.OnCommand(Id::RefreshPlaylistTimes);
  EXPECT_FALSE(Refreshes([this] { Poll(1); }));
  EXPECT_TRUE(Refreshes([this] { Poll(3); }));
}

TEST_F(BrevantDocProperties, APressedSongNodeIsShownAndNothingElseHappens) {
  document.PressNode(tree.NodeNamed(u"c.mp3"));
  EXPECT_EQ(pane.Text(P::PlaylistName), u"Two");
  EXPECT_EQ(pane.Text(P::SongFileName), u"c.mp3");
  EXPECT_EQ(record.setLists.currentPlaylist, 0);
  EXPECT_TRUE(player.Calls().empty());
  EXPECT_FALSE(document.IsModified());
}

TEST_F(BrevantDocProperties, APressedGroupOrPlaylistLeavesTheSongThatIsShown) {
  const auto before = pane.shown;
  for (const std::u16string_view name : {u"Sets", u"Two", u"no such node"}) {
    document.PressNode(tree.NodeNamed(name));
    EXPECT_EQ(pane.shown, before);
  }
}

TEST_F(BrevantDocProperties, BeforeThePaneIsShownNothingIsRefreshed) {
  pane.built = false;
  const int before = pane.shows;
  document.OnOpenDocument(kShow);
  document.OnCommand(Id::NextSong);
  document.OnCommand(Id::AutoSongAdvance);
  document.PressNode(tree.NodeNamed(u"c.mp3"));
  document.SetModified();
  EXPECT_EQ(pane.shows, before);
  pane.built = true;
  document.RefreshProperties();
  EXPECT_EQ(pane.Text(P::SongFileName), u"b.mp3");
}

}  // namespace
}  // namespace brevant
