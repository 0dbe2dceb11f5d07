#include "resources/command_table.h"

#include <algorithm>
#include <iterator>

#include "resources/menu_text.h"

namespace brevant {
namespace {

using Id = TCCommandId;
using Menu = TCMenuPlace;
using Key = TCKeyCode;
using Owner = TCCommandOwner;
using Trait = TCCommandTrait;

// The order is that of the menus, and it decides which command has a key that two of them list. Texts are the
// system's own, misspellings and wrong key hints included.
// clang-format off
constexpr TCCommand kCommands[] = {
    {Id::FileNew, Menu::File, u"&New\tCtrl+N", {Ctrl(Key::N)},
     u"Create a new document\nNew", Owner::Application},
    {Id::FileOpen, Menu::File, u"&Open...\tCtrl+O", {Ctrl(Key::O)},
     u"Open an existing document\nOpen", Owner::Application},
    {Id::FileSave, Menu::File, u"&Save\tCtrl+S", {Ctrl(Key::S)},
     u"Save the active document\nSave", Owner::Framework},
    {Id::FileSaveAs, Menu::File, u"Save &As...", {},
     u"Save the active document with a new name\nSave As", Owner::Framework},
    {Id::RecentFile, Menu::File, u"Recent File", {},
     u"Open this document", Owner::Application},
    {Id::Exit, Menu::File, u"E&xit", {},
     u"Quit the application; prompts to save documents\nExit", Owner::Framework},

    {Id::Copy, Menu::Edit, u"&Copy Song\tCtrl+C", {Ctrl(Key::C)},
     u"Copy the selection and put it on the Clipboard\nCopy", Owner::View | Owner::Tree},
    {Id::Cut, Menu::None, u"", {Ctrl(Key::X)},
     u"Cut the selection and put it on the Clipboard\nCut", Owner::None},
    {Id::Paste, Menu::Edit, u"&Paste\tCtrl+V", {Ctrl(Key::V), Shift(Key::Insert)},
     u"Insert Clipboard contents\nPaste", Owner::Document | Owner::Tree},
    {Id::Undo, Menu::None, u"", {Alt(Key::Backspace)},
     u"Undo the last action\nUndo", Owner::None},
    {Id::Duplicate, Menu::Edit, u"Dublicate\tCtrl-D", {Ctrl(Key::D)},
     u"Dublicate selected item", Owner::Document | Owner::Tree},
    {Id::Remove, Menu::Edit, u"&Remove\tDEL", {Key::Delete},
     u"", Owner::View | Owner::Tree},
    {Id::Rename, Menu::Edit, u"Rename\tCtrl+R", {Ctrl(Key::R)},
     u"", Owner::Document | Owner::Tree},
    {Id::SelectSongToMove, Menu::Edit, u"Select Song To Move\tM", {Key::M},
     u"Select the song to be moved", Owner::View},
    {Id::MoveSongUp, Menu::Edit, u"Move Song Up\tAlt+M", {Shift(Key::M)},
     u"Move the selected song up the playlist", Owner::View},
    {Id::MoveSongDown, Menu::Edit, u"Move Song Down\tShift+M", {Ctrl(Key::M)},
     u"Move the song down the play list", Owner::View},
    {Id::NewGroupFolder, Menu::Edit, u"New Grouplist Folder\tCtrl+G", {Ctrl(Key::G)},
     u"", Owner::Document | Owner::Tree},
    {Id::NewPlaylistFolder, Menu::Edit, u"New Playlist Folder\tAlt+L", {Alt(Key::L)},
     u"", Owner::Document | Owner::Tree},
    {Id::CreateGroupList, Menu::Edit, u"Create &Group List\tG", {Key::G},
     u"Add a group of playlists e.g. \"Mariner Sets\"", Owner::Document | Owner::Tree},
    {Id::CreatePlaylist, Menu::Edit, u"Create Play&list\tCtrl+L", {Ctrl(Key::L)},
     u"Add a song playlist e.g.\" Mariner Set 1\"", Owner::Document | Owner::Tree},
    {Id::AddSongs, Menu::Edit, u"Add &Song(s)\tA", {Key::A},
     u"Add a new song(s) to a playlist e.g. \"Open Road.mp3\"", Owner::Document | Owner::Tree},
    {Id::SongProperties, Menu::Edit, u"Properties\tQ", {Key::Q},
     u"Display and change properties of the selected song", Owner::Document | Owner::View | Owner::Tree},
    {Id::Cancel, Menu::Edit, u"Cance&l\tESC", {Key::Escape},
     u"Cancel current command action", Owner::Document | Owner::Tree},
    {Id::SelectAll, Menu::None, u"", {Ctrl(Key::A)},
     u"", Owner::View},

    {Id::LoadSong, Menu::None, u"", {Key::Enter},
     u"Load the song into the player", Owner::Document},
    {Id::Play, Menu::Play, u"&Play\tENTER, P, F5, 5", {Key::Enter, Key::P, Key::F5},
     u"Play Song ENTER, P, F5", Owner::Document},
    {Id::Stop, Menu::Play, u"&Stop\tS, F6, 6", {Key::S, Key::F6},
     u"Stop S, F6, 6", Owner::Document},
    {Id::PauseContinue, Menu::Play, u"Pause - Continue\t Spacebar", {Key::Space},
     u"Pause Continue Spacebar", Owner::Document},
    {Id::SeekForward, Menu::Play, u"Fast &Foward\tCtrl+Right Arrow", {Ctrl(Key::Right)},
     u"Fast Foward Ctrl ^ arrow", Owner::Document, Trait::Repeats},
    {Id::SeekBack, Menu::Play, u"Fast &Reverse\tCtrl+Left Arrow", {Ctrl(Key::Left)},
     u"Fast Reverse Ctrl+ v arrow", Owner::Document, Trait::Repeats},
    {Id::NextSong, Menu::Play, u"Next Song\t&Down Arrow", {Key::Down, Key::D},
     u"Go to next song ^ arrow, d", Owner::Document, Trait::Repeats},
    {Id::PriorSong, Menu::Play, u"Prior Song\t&Up Arrow", {Key::Up, Key::U},
     u"Go to prior song v arrow, u", Owner::Document, Trait::Repeats},
    {Id::PriorPlaylist, Menu::Play, u"Prior Playlist\t<-, &Left", {Key::Left, Key::L},
     u"Load prior playlist <- F7, L(eft)", Owner::Document, Trait::Repeats},
    {Id::NextPlaylist, Menu::Play, u"Next PlayList\t->, &Right", {Key::Right, Key::R},
     u"Load next playlist -> F8, R(ight)", Owner::Document, Trait::Repeats},
    {Id::VolumeUp, Menu::Play, u"Increase Volume\tF9", {Key::F9},
     u"Increase Volume, F9", Owner::Document, Trait::Repeats},
    {Id::VolumeDown, Menu::Play, u"Reduce Volume \tF8", {Key::F8},
     u"Reduce Volume, F8", Owner::Document, Trait::Repeats},
    {Id::MediaVolumeUp, Menu::None, u"", {Key::VolumeUp},
     u"", Owner::Document, Trait::Repeats},
    {Id::MediaVolumeDown, Menu::None, u"", {Key::VolumeDown},
     u"", Owner::Document, Trait::Repeats},
    {Id::SetRepeatBegin, Menu::Play, u"Set Repeat Start Time\tZ", {Key::Z},
     u"Set the auto repeat begin time", Owner::Document},
    {Id::SetRepeatEnd, Menu::Play, u"Set Repeat Stop Time\tX", {Key::X},
     u"Set the auto repeat end time", Owner::Document},

    {Id::RefreshPlaylistTimes, Menu::Commands, u"Refresh &Playlist Song Times\tT", {Key::T},
     u"Refresh playlist song times", Owner::Document},
    {Id::RefreshAllTimes, Menu::Commands, u"Refresh All Song &Times\tAlt-R", {Alt(Key::R)},
     u"Refresh all song times", Owner::Document},
    {Id::RefreshSongTime, Menu::None, u"Refresh &Song Time", {},
     u"Refresh song time", Owner::Document},
    {Id::PlaylistFontSize, Menu::Commands, u"Set Playlist Font Size\tF", {Key::F},
     u"Playlist Font Size", Owner::Document},
    {Id::LyricsFontSize, Menu::Commands, u"Set &Lyrics Font Size\tL", {},
     u"", Owner::Document},
    {Id::LyricLines, Menu::Commands, u"Set Number Lyric Lines\tN", {},
     u"", Owner::Document},
    {Id::ClearInformation, Menu::Commands, u"Clear &Information\tI", {Key::I},
     u"Clear information messages", Owner::Document},
    {Id::Reset, Menu::Commands, u"Reset Brevant", {},
     u"Reset Brevant to its original state on next program start", Owner::Document, Trait::Checkable},

    {Id::AutoSongAdvance, Menu::Options, u"&Auto Song Advance\tK", {Ctrl(Key::K)},
     u"Auto advance to next song in the list", Owner::Document, Trait::Checkable},
    {Id::AutoPlayPlayList, Menu::Options, u"Auto Play\tU", {Ctrl(Key::U)},
     u"Play through the playlist automatically", Owner::Document, Trait::Checkable},
    {Id::AutoRecycle, Menu::Options, u"Auto Recycle\tF", {Ctrl(Key::F)},
     u"Auto play through all play lists", Owner::Document, Trait::Checkable},
    {Id::WhiteOnBlack, Menu::Options, u"&White On Black\tW", {Key::W},
     u"White on black text", Owner::Document, Trait::Checkable},
    {Id::DynamicPlayColours, Menu::Options, u"Dynamic Colours\tC", {Key::C},
     u"Set colours based on current song playing", Owner::Document, Trait::Checkable},
    {Id::LiveViewMode, Menu::Options, u"Live View Mode\tHOME", {Key::Home},
     u"Set display to live view mode", Owner::Frame, Trait::Checkable},
    {Id::ImmediatePlay, Menu::Options, u"Playlist Immediate Play\tE", {Ctrl(Key::E)},
     u"Immediate playing on enter", Owner::Document, Trait::Checkable},
    {Id::PlaylistManagerImmediatePlay, Menu::Options, u"Playlist Manager Immediate Play\tM", {},
     u"Playlist manager immediate play", Owner::Document, Trait::Checkable},
    {Id::SongLatency, Menu::Options, u"Song Latency Time...\tN", {Key::N},
     u"Song Latency", Owner::Document},
    {Id::SeekStep, Menu::Options, u"FF FR Time Step...\tO", {Key::O},
     u"Fast Foward Fast Reverse time step size", Owner::Document},
    {Id::VolumeStep, Menu::Options, u"Volume Step\tV", {Key::V},
     u"sets the rate at which the volme increases or decreases", Owner::Document},
    {Id::ConfirmFileRemove, Menu::Options, u"Confirm File Remove\tB", {Ctrl(Key::B)},
     u"Confirm file delete", Owner::Document, Trait::Checkable},
    {Id::FoldersSaveFormat, Menu::None, u"", {Ctrl(Key::H)},
     u"Save files in a hierarchical format", Owner::Document, Trait::Checkable},
    {Id::DisableEditing, Menu::Options, u"&Disable Editing\tD", {},
     u"Disable Editing", Owner::Document, Trait::Checkable},
    {Id::MediaFileTypes, Menu::Options, u"Media File Types...\tY", {Ctrl(Key::Y)},
     u"Allowed Media File Types", Owner::Document},
    {Id::LoadLastFile, Menu::Options, u"Load Last File On Start\tG", {Ctrl(Key::G)},
     u"Load last loaded file on start", Owner::Document, Trait::Checkable},
    {Id::LoadLastWindowState, Menu::Options, u"Load Last Window State\tJ", {Ctrl(Key::J)},
     u"Load last window state on start", Owner::Document, Trait::Checkable},

    {Id::ToolbarVisible, Menu::ViewToolbars, u"&Toolbar", {},
     u"Show or hide the toolbar\nToggle ToolBar", Owner::Framework, Trait::Checkable},
    {Id::Customize, Menu::ViewToolbars, u"&Customize...", {},
     u"", Owner::Frame},
    {Id::StatusBarVisible, Menu::View, u"&Status Bar", {},
     u"Show or hide the status bar\nToggle StatusBar", Owner::Framework, Trait::Checkable},
    {Id::PlaylistManagerPane, Menu::View, u"&Playlist Manager", {},
     u"", Owner::Frame, Trait::Checkable},
    {Id::PlayerPane, Menu::View, u"Song &Player", {},
     u"", Owner::Frame, Trait::Checkable},
    {Id::MessagePane, Menu::View, u"&Message Display", {},
     u"", Owner::Frame, Trait::Checkable},
    {Id::PropertiesPane, Menu::View, u"Properties", {},
     u"", Owner::Frame, Trait::Checkable},
    {Id::FocusPlaylistManager, Menu::View, u"Focus Playlist Manager\tF2/2", {Key::F2, Key::Digit2},
     u"Send keyboad input to the Playlist manager window", Owner::View | Owner::Tree},
    {Id::FocusPlaylist, Menu::View, u"Focus Playlist\tF3/3", {Key::F3, Key::Digit3},
     u"Send keyboard input to the playlist window", Owner::View | Owner::Tree},
    {Id::SwallowF4, Menu::None, u"", {Key::F4},
     u"", Owner::View | Owner::Tree},
    {Id::ShowTreeSelection, Menu::None, u"", {},
     u"Copy playlist into the playlist window", Owner::Document},

    {Id::HelpTopics, Menu::Help, u"&Help Topics", {},
     u"List Help topics\nHelp Topics", Owner::Frame},
    {Id::Help, Menu::None, u"", {Key::F1},
     u"Display help for current task or command\nHelp", Owner::Frame},
    {Id::ContextHelp, Menu::None, u"", {Shift(Key::F1)},
     u"Display help for clicked on buttons, menus and windows\nHelp", Owner::Frame},
    {Id::About, Menu::Help, u"&About Brevant...", {},
     u"Show what this program is and its version\nAbout", Owner::Application},
};
// clang-format on

constexpr TCMenuPlace kMainMenus[] = {Menu::File,    Menu::Edit, Menu::Play, Menu::Commands,
                                      Menu::Options, Menu::View, Menu::Help};

// What a menu opens with begins no group: nothing is above it. Inside View the tool bars' menu is above.
// clang-format off
constexpr Id kGroupBeginnings[] = {
    Id::RecentFile, Id::Exit,                                                                      // File
    Id::SelectSongToMove, Id::NewGroupFolder, Id::SongProperties, Id::Cancel,                      // Edit
    Id::SeekForward, Id::NextSong, Id::VolumeUp, Id::SetRepeatBegin,                               // Play
    Id::PlaylistFontSize, Id::ClearInformation, Id::Reset,                                         // Commands
    Id::WhiteOnBlack, Id::ImmediatePlay, Id::SongLatency, Id::ConfirmFileRemove, Id::LoadLastFile, // Options
    Id::Customize,                                                                                 // Toolbars
    Id::PlaylistManagerPane, Id::FocusPlaylistManager,                                             // View
    Id::About,                                                                                     // Help
};
// clang-format on

// A context menu's entry; an empty text stands for the main menu's.
constexpr TCMenuItem kSeparator = {};

constexpr TCMenuItem kTreeMenu[] = {
    {Id::Copy, u""},
    {Id::Paste, u""},
    {Id::Duplicate, u"Dublicate\tD"},
    {Id::Remove, u""},
    {Id::Rename, u""},
    {Id::NewGroupFolder, u""},
    {Id::NewPlaylistFolder, u"New Playlist Folder\tCtrl+L"},
    {Id::CreateGroupList, u""},
    {Id::CreatePlaylist, u"Create Play&list\tL"},
    {Id::AddSongs, u""},
    {Id::SongProperties, u""},
    {Id::Cancel, u""},
    kSeparator,
    {Id::RefreshPlaylistTimes, u""},
    {Id::RefreshAllTimes, u""},
    {Id::RefreshSongTime, u""},
    {Id::ClearInformation, u""},
};

constexpr TCMenuItem kPlaylistMenu[] = {
    {Id::Copy, u"&Copy Song(s)\tCtrl+C"},
    {Id::Paste, u""},
    {Id::Remove, u""},
    {Id::CreateGroupList, u""},
    {Id::CreatePlaylist, u""},
    {Id::AddSongs, u""},
    {Id::SongProperties, u""},
    {Id::Cancel, u""},
    kSeparator,
    {Id::RefreshPlaylistTimes, u""},
    {Id::RefreshAllTimes, u""},
    {Id::RefreshSongTime, u""},
    {Id::ClearInformation, u""},
};

// All of a text that has none: npos + 1 is 0.
std::u16string BehindLineBreak(std::u16string_view text) {
  return std::u16string(text.substr(text.find(u'\n') + 1));
}

}  // namespace

std::span<const TCCommand> Commands() {
  return kCommands;
}

const TCCommand* CommandById(TCCommandId id) {
  const auto found = std::ranges::find(kCommands, id, &TCCommand::id);
  return found == std::end(kCommands) ? nullptr : found;
}

TCCommandId WordedTwin(TCCommandId id) {
  switch (id) {
    case Id::MediaVolumeUp:
      return Id::VolumeUp;
    case Id::MediaVolumeDown:
      return Id::VolumeDown;
    default:
      return id;
  }
}

std::u16string CommandTitle(const TCCommand& command) {
  const TCCommandId twin = WordedTwin(command.id);
  if (twin != command.id) return CommandTitle(*CommandById(twin)) + u" (volume key)";
  if (command.menuText.empty()) return BehindLineBreak(command.statusText);
  std::u16string name = WithoutMnemonic(MenuTextWithoutHint(command.menuText));
  name.erase(name.find_last_not_of(u' ') + 1);
  return name;
}

std::u16string_view StatusLine(const TCCommand& command) {
  return command.statusText.substr(0, command.statusText.find(u'\n'));
}

std::u16string ToolTip(const TCCommand& command) {
  return command.statusText.empty() ? CommandTitle(command) : BehindLineBreak(command.statusText);
}

std::span<const TCMenuPlace> MainMenus() {
  return kMainMenus;
}

std::u16string_view MenuTitle(TCMenuPlace place) {
  switch (place) {
    case Menu::None:
      return u"";
    case Menu::File:
      return u"&File";
    case Menu::Edit:
      return u"&Edit";
    case Menu::Play:
      return u"&Play";
    case Menu::Commands:
      return u"&Commands";
    case Menu::Options:
      return u"&Options";
    case Menu::View:
      return u"&View";
    case Menu::ViewToolbars:
      return u"&Toolbars";
    case Menu::Help:
      return u"&Help";
  }
  return u"";
}

std::vector<const TCCommand*> CommandsInMenu(TCMenuPlace place) {
  std::vector<const TCCommand*> entries;
  if (place == Menu::None) return entries;
  for (const TCCommand& command : kCommands) {
    if (command.menu == place) entries.push_back(&command);
  }
  return entries;
}

bool BeginsMenuGroup(TCCommandId id) {
  return std::ranges::find(kGroupBeginnings, id) != std::end(kGroupBeginnings);
}

std::vector<TCMenuItem> ContextMenu(TCContextMenu menu) {
  const auto items =
      menu == TCContextMenu::Tree ? std::span<const TCMenuItem>(kTreeMenu) : std::span(kPlaylistMenu);
  std::vector<TCMenuItem> entries(items.begin(), items.end());
  for (TCMenuItem& entry : entries) {
    const TCCommand* const command = CommandById(entry.id);
    if (command && entry.text.empty()) entry.text = command->menuText;
  }
  return entries;
}

std::vector<TCKeyBinding> EffectiveBindings() {
  std::vector<TCKeyBinding> bindings;
  for (const TCCommand& command : kCommands) {
    for (const TCKey& key : command.keys) {
      if (std::ranges::find(bindings, key, &TCKeyBinding::key) == bindings.end()) {
        bindings.push_back({key, command.id});
      }
    }
  }
  return bindings;
}

}  // namespace brevant
