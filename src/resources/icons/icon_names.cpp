#include "resources/icons/icon_names.h"

#include <algorithm>
#include <iterator>

namespace brevant {
namespace {

using Id = TCCommandId;

struct TCCommandIcon {
  TCCommandId id = TCCommandId::None;
  std::string_view name;
};

constexpr TCCommandIcon kCommandIcons[] = {
    {Id::FileNew, "file_new"},
    {Id::FileOpen, "file_open"},
    {Id::FileSave, "file_save"},
    {Id::FileSaveAs, "file_save_as"},

    {Id::PriorPlaylist, "prior_playlist"},
    {Id::PriorSong, "prior_song"},
    {Id::SeekBack, "seek_back"},
    {Id::Play, "play"},
    {Id::PauseContinue, "pause_continue"},
    {Id::Stop, "stop"},
    {Id::SeekForward, "seek_forward"},
    {Id::NextSong, "next_song"},
    {Id::NextPlaylist, "next_playlist"},
    {Id::VolumeDown, "volume_down"},
    {Id::VolumeUp, "volume_up"},
    {Id::SetRepeatBegin, "repeat_begin"},
    {Id::SetRepeatEnd, "repeat_end"},

    {Id::CreateGroupList, "create_group"},
    {Id::CreatePlaylist, "create_playlist"},
    {Id::AddSongs, "add_songs"},
    {Id::Copy, "copy"},
    {Id::Paste, "paste"},
    {Id::Duplicate, "duplicate"},
    {Id::Remove, "remove"},
    {Id::Rename, "rename"},
    {Id::MoveSongUp, "move_song_up"},
    {Id::MoveSongDown, "move_song_down"},
    {Id::SongProperties, "song_properties"},
    {Id::Cancel, "cancel"},

    {Id::RefreshAllTimes, "refresh_all_times"},
    {Id::RefreshPlaylistTimes, "refresh_playlist_times"},
    {Id::RefreshSongTime, "refresh_song_time"},
    {Id::SongLatency, "song_latency"},
    {Id::PlaylistFontSize, "playlist_font_size"},
    {Id::LyricsFontSize, "lyrics_font_size"},
    {Id::LyricLines, "lyric_lines"},
    {Id::ClearInformation, "clear_information"},
    {Id::Reset, "reset"},

    {Id::AutoSongAdvance, "auto_song_advance"},
    {Id::AutoPlayPlayList, "auto_play"},
    {Id::AutoRecycle, "auto_recycle"},
    {Id::LiveViewMode, "live_view"},
    {Id::WhiteOnBlack, "white_on_black"},
    {Id::DynamicPlayColours, "dynamic_colours"},
    {Id::ImmediatePlay, "immediate_play"},
    {Id::PlaylistManagerImmediatePlay, "manager_immediate_play"},
    {Id::ConfirmFileRemove, "confirm_remove"},
    {Id::FoldersSaveFormat, "folders_save_format"},
    {Id::LoadLastFile, "load_last_file"},
    {Id::LoadLastWindowState, "load_last_window_state"},
    {Id::MediaFileTypes, "media_file_types"},
    {Id::SeekStep, "seek_step"},
    {Id::VolumeStep, "volume_step"},
    {Id::DisableEditing, "disable_editing"},

    {Id::HelpTopics, "help"},
    {Id::About, "about"},
};

}  // namespace

std::string_view IconName(TCCommandId id) {
  const auto found = std::ranges::find(kCommandIcons, id, &TCCommandIcon::id);
  return found == std::end(kCommandIcons) ? std::string_view() : found->name;
}

std::string IconResource(std::string_view name) {
  return ":/icons/" + std::string(name) + ".svg";
}

}  // namespace brevant
