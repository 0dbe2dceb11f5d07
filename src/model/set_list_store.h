// The set lists of the open document and the current position in them. One instance for the process, owned by
// the application record; read and changed on the user-interface thread only. Every index is checked: a wrong
// one answers -1, false or none and changes nothing.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/set_list.h"
#include "resources/string_table.h"

namespace brevant {

// -1, -1 is none.
struct TCPlaylistPosition {
  std::int32_t group = -1;
  std::int32_t playlist = -1;

  [[nodiscard]] bool operator==(const TCPlaylistPosition&) const = default;
};

struct TCSongPosition {
  std::int32_t group = -1;
  std::int32_t playlist = -1;
  std::int32_t song = -1;

  [[nodiscard]] TCPlaylistPosition Playlist() const { return {group, playlist}; }
  [[nodiscard]] bool operator==(const TCSongPosition&) const = default;
};

struct TCSetListStore {
  std::vector<TCPlayGroups> groups;  // in display order

  // Index `groups`, the current group's playlists and the current playlist's items. Values outside those
  // lists are legal. No file keeps them.
  std::int32_t currentGroup = 0;
  std::int32_t currentPlaylist = 0;
  std::int32_t currentSong = 0;

  // The playlist whose songs stand in the view: not the current one while that has no songs. None before the
  // first and when it was removed.
  TCPlaylistPosition shown;
  // The playlist whose songs' times are being measured.
  TCPlaylistPosition measured;

  // The path of the document last opened or saved, in three parts; the type is lower-cased by a save.
  std::u16string documentFileName;
  std::u16string documentFolder;
  std::u16string documentExtension;

  // What was shown or made current last.
  std::u16string lastGroupListName;
  std::u16string lastPlayListName;
  std::u16string lastSongName;

  // Without dots, separated by blanks.
  std::u16string validMediaExtensions{TextOf(TCTextId::DefaultMediaExtensions)};
  std::int32_t songLatencySeconds = 15;  // the nominal gap between two songs of a set

  [[nodiscard]] std::u16string DocumentPath() const { return documentFolder + documentFileName; }

  // Drops all groups and sets the current position to 0, 0, 0; none is shown.
  void ClearSetLists();

  // Index of the first one whose name is equal but for upper and lower case; -1 when there is none.
  [[nodiscard]] std::int32_t FindGroupByName(std::u16string_view name) const;
  [[nodiscard]] static std::int32_t FindPlaylistByName(const TCPlayGroups& group, std::u16string_view name);

  [[nodiscard]] TCPlaylistPosition CurrentPosition() const { return {currentGroup, currentPlaylist}; }

  [[nodiscard]] bool IsValidGroup(std::int32_t group) const;
  // `group` and `playlist` name an existing playlist.
  [[nodiscard]] bool IsValidPlaylist(std::int32_t group, std::int32_t playlist) const;
  // Within the current group.
  [[nodiscard]] bool IsValidPlaylistIndex(std::int32_t playlist) const;
  // Within the current playlist.
  [[nodiscard]] bool IsValidSongIndex(std::int32_t song) const;

  // None (null) when an index is wrong. The pointers hold until a list they come from changes its size.
  [[nodiscard]] TCPlayGroups* GroupAt(std::int32_t group);
  [[nodiscard]] TCPlayList* PlaylistAt(TCPlaylistPosition at);
  [[nodiscard]] TCPlayListItem* SongAt(TCSongPosition at);
  [[nodiscard]] TCPlayList* CurrentPlaylist();
  [[nodiscard]] TCPlayListItem* SongInCurrentPlaylist(std::int32_t song);

  // The first song of all, in model order, whose folder and file name make exactly this path, wherever the
  // two meet in it; null without one.
  [[nodiscard]] const TCPlayListItem* FindSongByPath(std::u16string_view path) const;

  [[nodiscard]] TCTreeNode GetSongTreeNode(std::int32_t song) const;

  // Name and folder from `path`, type from the parent's name rather than from `path`: from the document's for
  // a group, from the group's name for a playlist. The loaders overwrite them when the file could be read.
  void SetGroupFileInfo(std::int32_t group, std::u16string_view path);
  static void SetPlaylistFileInfo(TCPlayGroups& group, std::int32_t playlist, std::u16string_view path);

  // Songs' times plus one latency between each two, into `totalTime`; a playlist without songs keeps what it
  // has. The sum wraps at 32 bits.
  void RecalcPlaylistTotalTime(TCPlayList& playlist) const;
  void RecalcAllTotalTimes();

  // Records the names of the current group, playlist and song; an index that names nothing leaves its name.
  void RecordLastShownNames();

  void BuildGroupNamesLists(std::vector<TCGroupNamesLists>& list) const;
};

}  // namespace brevant
