#include "resources/command_bars.h"

namespace brevant {
namespace {

using Id = TCCommandId;

constexpr TCCommandId kSeparator = Id::None;

constexpr TCCommandId kStandardBar[] = {Id::FileNew, Id::FileOpen, Id::FileSave};

// clang-format off
constexpr TCCommandId kPlayBar[] = {
    Id::PriorPlaylist, Id::PriorSong, kSeparator,
    Id::SeekBack, Id::Play, Id::PauseContinue, Id::Stop, Id::SeekForward, kSeparator,
    Id::NextSong, Id::NextPlaylist, kSeparator,
    Id::VolumeDown, Id::VolumeUp, kSeparator,
    Id::SetRepeatBegin, Id::RepeatBeginField, kSeparator,
    Id::SetRepeatEnd, Id::RepeatEndField,
};

constexpr TCCommandId kCreateBar[] = {
    Id::CreateGroupList, Id::CreatePlaylist, Id::AddSongs, Id::Duplicate, Id::Remove, kSeparator,
    Id::MoveSongUp, Id::MoveSongDown,
};

constexpr TCCommandId kCommandsBar[] = {
    Id::RefreshAllTimes, Id::RefreshPlaylistTimes, Id::SongLatency, kSeparator,
    Id::PlaylistFontSize, Id::LyricsFontSize, kSeparator,
    Id::ClearInformation, Id::Reset,
};

constexpr TCCommandId kOptionsBar[] = {
    Id::AutoSongAdvance, Id::AutoPlayPlayList, Id::AutoRecycle, kSeparator,
    Id::LiveViewMode, Id::WhiteOnBlack, Id::DynamicPlayColours, kSeparator,
    Id::ImmediatePlay, Id::PlaylistManagerImmediatePlay, kSeparator,
    Id::ConfirmFileRemove, Id::FoldersSaveFormat, Id::LoadLastFile, Id::LoadLastWindowState, kSeparator,
    Id::MediaFileTypes, kSeparator,
    Id::SeekStep, Id::VolumeStep, Id::DisableEditing,
};
// clang-format on

constexpr TCCommandBar kBars[] = {
    {TCTextId::MainToolbar, TCBarDock::TopEdge, {}},
    {TCTextId::StandardToolbar, TCBarDock::TopEdge, kStandardBar},
    {TCTextId::PlayControlsToolbar, TCBarDock::RightOfPrevious, kPlayBar},
    {TCTextId::CreateToolbar, TCBarDock::RightOfPrevious, kCreateBar},
    {TCTextId::CommandsToolbar, TCBarDock::RightOfPrevious, kCommandsBar},
    {TCTextId::OptionsToolbar, TCBarDock::RightEdge, kOptionsBar},
};

}  // namespace

std::span<const TCCommandBar> CommandBars() {
  return kBars;
}

bool IsTimeField(TCCommandId id) {
  return id == Id::RepeatBeginField || id == Id::RepeatEndField;
}

}  // namespace brevant
