// The texts of the command table, letter by letter: users search for them as they have always stood, and the
// spellings and key hints that look like slips are theirs too.
#include <gtest/gtest.h>

#include <iterator>
#include <string>
#include <string_view>

#include "resources/command_table.h"

namespace brevant {
namespace {

struct TCTexts {
  int number;
  std::u16string_view menuText;
  std::u16string_view statusText;
};

// clang-format off
constexpr TCTexts kTexts[] = {
    {57600, u"&New\tCtrl+N", u"Create a new document\nNew"},
    {57601, u"&Open...\tCtrl+O", u"Open an existing document\nOpen"},
    {57603, u"&Save\tCtrl+S", u"Save the active document\nSave"},
    {57604, u"Save &As...", u"Save the active document with a new name\nSave As"},
    {57616, u"Recent File", u"Open this document"},
    {57665, u"E&xit", u"Quit the application; prompts to save documents\nExit"},
    {57634, u"&Copy Song\tCtrl+C", u"Copy the selection and put it on the Clipboard\nCopy"},
    {57635, u"", u"Cut the selection and put it on the Clipboard\nCut"},
    {57637, u"&Paste\tCtrl+V", u"Insert Clipboard contents\nPaste"},
    {57643, u"", u"Undo the last action\nUndo"},
    {32862, u"Dublicate\tCtrl-D", u"Dublicate selected item"},
    {32799, u"&Remove\tDEL", u""},
    {32920, u"Rename\tCtrl+R", u""},
    {32949, u"Select Song To Move\tM", u"Select the song to be moved"},
    {32946, u"Move Song Up\tAlt+M", u"Move the selected song up the playlist"},
    {32947, u"Move Song Down\tShift+M", u"Move the song down the play list"},
    {32904, u"New Grouplist Folder\tCtrl+G", u""},
    {32905, u"New Playlist Folder\tAlt+L", u""},
    {32796, u"Create &Group List\tG", u"Add a group of playlists e.g. \"Mariner Sets\""},
    {32797, u"Create Play&list\tCtrl+L", u"Add a song playlist e.g.\" Mariner Set 1\""},
    {32798, u"Add &Song(s)\tA", u"Add a new song(s) to a playlist e.g. \"Open Road.mp3\""},
    {32861, u"Properties\tQ", u"Display and change properties of the selected song"},
    {32793, u"Cance&l\tESC", u"Cancel current command action"},
    {32901, u"", u""},
    {32790, u"", u"Load the song into the player"},
    {32772, u"&Play\tENTER, P, F5, 5", u"Play Song ENTER, P, F5"},
    {32773, u"&Stop\tS, F6, 6", u"Stop S, F6, 6"},
    {32774, u"Pause - Continue\t Spacebar", u"Pause Continue Spacebar"},
    {32776, u"Fast &Foward\tCtrl+Right Arrow", u"Fast Foward Ctrl ^ arrow"},
    {32779, u"Fast &Reverse\tCtrl+Left Arrow", u"Fast Reverse Ctrl+ v arrow"},
    {32852, u"Next Song\t&Down Arrow", u"Go to next song ^ arrow, d"},
    {32853, u"Prior Song\t&Up Arrow", u"Go to prior song v arrow, u"},
    {32831, u"Prior Playlist\t<-, &Left", u"Load prior playlist <- F7, L(eft)"},
    {32832, u"Next PlayList\t->, &Right", u"Load next playlist -> F8, R(ight)"},
    {32913, u"Increase Volume\tF9", u"Increase Volume, F9"},
    {32912, u"Reduce Volume \tF8", u"Reduce Volume, F8"},
    {32915, u"", u""},
    {32914, u"", u""},
    {32935, u"Set Repeat Start Time\tZ", u"Set the auto repeat begin time"},
    {32936, u"Set Repeat Stop Time\tX", u"Set the auto repeat end time"},
    {32829, u"Refresh &Playlist Song Times\tT", u"Refresh playlist song times"},
    {32826, u"Refresh All Song &Times\tAlt-R", u"Refresh all song times"},
    {32825, u"Refresh &Song Time", u"Refresh song time"},
    {32877, u"Set Playlist Font Size\tF", u"Playlist Font Size"},
    {32960, u"Set &Lyrics Font Size\tL", u""},
    {32961, u"Set Number Lyric Lines\tN", u""},
    {32827, u"Clear &Information\tI", u"Clear information messages"},
    {32921, u"Reset Brevant", u"Reset Brevant to its original state on next program start"},
    {32838, u"&Auto Song Advance\tK", u"Auto advance to next song in the list"},
    {32870, u"Auto Play\tU", u"Play through the playlist automatically"},
    {32954, u"Auto Recycle\tF", u"Auto play through all play lists"},
    {32847, u"&White On Black\tW", u"White on black text"},
    {32841, u"Dynamic Colours\tC", u"Set colours based on current song playing"},
    {32878, u"Live View Mode\tHOME", u"Set display to live view mode"},
    {32844, u"Playlist Immediate Play\tE", u"Immediate playing on enter"},
    {32851, u"Playlist Manager Immediate Play\tM", u"Playlist manager immediate play"},
    {32868, u"Song Latency Time...\tN", u"Song Latency"},
    {32906, u"FF FR Time Step...\tO", u"Fast Foward Fast Reverse time step size"},
    {32922, u"Volume Step\tV", u"sets the rate at which the volme increases or decreases"},
    {32843, u"Confirm File Remove\tB", u"Confirm file delete"},
    {32845, u"", u"Save files in a hierarchical format"},
    {32959, u"&Disable Editing\tD", u"Disable Editing"},
    {32880, u"Media File Types...\tY", u"Allowed Media File Types"},
    {32842, u"Load Last File On Start\tG", u"Load last loaded file on start"},
    {32846, u"Load Last Window State\tJ", u"Load last window state on start"},
    {59392, u"&Toolbar", u"Show or hide the toolbar\nToggle ToolBar"},
    {35001, u"&Customize...", u""},
    {59393, u"&Status Bar", u"Show or hide the status bar\nToggle StatusBar"},
    {4002, u"&Playlist Manager", u""},
    {4000, u"Song &Player", u""},
    {4003, u"&Message Display", u""},
    {4004, u"Properties", u""},
    {32907, u"Focus Playlist Manager\tF2/2", u"Send keyboad input to the Playlist manager window"},
    {32908, u"Focus Playlist\tF3/3", u"Send keyboard input to the playlist window"},
    {32909, u"", u""},
    {32911, u"", u"Copy playlist into the playlist window"},
    {57667, u"&Help Topics", u"List Help topics\nHelp Topics"},
    {57670, u"", u"Display help for current task or command\nHelp"},
    {57669, u"", u"Display help for clicked on buttons, menus and windows\nHelp"},
    {57664, u"&About Brevant...", u"Show what this program is and its version\nAbout"},
};
// clang-format on

std::string Shown(std::u16string_view text) {
  return {text.begin(), text.end()};
}

TEST(CommandTexts, StandAsTheyAlwaysDid) {
  ASSERT_EQ(Commands().size(), std::size(kTexts));
  for (std::size_t i = 0; i < std::size(kTexts); ++i) {
    const TCCommand& command = Commands()[i];
    EXPECT_EQ(static_cast<int>(command.id), kTexts[i].number);
    EXPECT_EQ(Shown(command.menuText), Shown(kTexts[i].menuText)) << kTexts[i].number;
    EXPECT_EQ(Shown(command.statusText), Shown(kTexts[i].statusText)) << kTexts[i].number;
  }
}

}  // namespace
}  // namespace brevant
