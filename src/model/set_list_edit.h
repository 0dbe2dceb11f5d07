// Inserting, removing, moving and repairing in the set lists. The current position and the playlists that are
// shown and measured follow their entries: they go on naming the group, playlist and song that they named
// before. An entry that is removed leaves its number behind, which then names what took its place, or
// nothing. Each answers false and changes nothing when an index is wrong. Totals are left alone.
// User-interface thread only.
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

#include "model/set_list_store.h"

namespace brevant {

// At the place that `group` or `at` names; what stood there and behind it makes room. One past the last
// appends.
bool InsertGroup(TCSetListStore& store, std::int32_t group, TCPlayGroups entry);
bool InsertPlaylist(TCSetListStore& store, TCPlaylistPosition at, TCPlayList entry);
bool InsertSong(TCSetListStore& store, TCSongPosition at, TCPlayListItem entry);
// Several songs at once, the first of them at `at`.
bool InsertSongs(TCSetListStore& store, TCSongPosition at, std::vector<TCPlayListItem> entries);

bool RemoveGroup(TCSetListStore& store, std::int32_t group);
bool RemovePlaylist(TCSetListStore& store, TCPlaylistPosition at);
bool RemoveSong(TCSetListStore& store, TCSongPosition at);
// Several songs of one playlist at once. `songs` is ascending; an index that names no song is passed over.
// False when none was there.
bool RemoveSongs(TCSetListStore& store, TCPlaylistPosition at, const std::vector<std::int32_t>& songs);

// Takes the entry `from` out and puts it where the entry `to` stood before the move, across lists too. A
// playlist that is current stays so in its new group. A song that leaves the current playlist counts as
// removed from it.
// A group that moves takes the current group index along only when it is itself the current one: when it
// moves past the current group, the index keeps its number and names the neighbour from then on.
bool MoveGroup(TCSetListStore& store, std::int32_t from, std::int32_t to);
bool MovePlaylist(TCSetListStore& store, TCPlaylistPosition from, TCPlaylistPosition to);
bool MoveSong(TCSetListStore& store, TCSongPosition from, TCSongPosition to);

// How a playlist is repaired whose songs went to another folder (`folder` with its trailing backslash) or
// were converted to another type (the type of `fileName`). Every song is changed; whether its file is there
// has to be looked up again.
void SetFolderForAllSongs(TCPlayList& playlist, std::u16string_view folder);
void SetExtensionForAllSongs(TCPlayList& playlist, std::u16string_view fileName);

}  // namespace brevant
