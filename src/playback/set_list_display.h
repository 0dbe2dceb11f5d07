// What the transport shows of its doings: the playlist on the screen and the current song in it. Implemented
// over the playlist view (and the tree); called on the user-interface thread.
#pragma once

#include <cstdint>
#include <string_view>

#include "model/set_list.h"

namespace brevant {

class TCSetListDisplay {
 public:
  virtual ~TCSetListDisplay() = default;

  // Fills the view. An unknown or empty playlist leaves what stands there.
  virtual void ShowPlaylist(std::int32_t group, std::int32_t playlist) = 0;
  // Recolours the rows after the current song, brings its row into view and lets the tree follow. Selects no
  // row: what the user selected stays.
  virtual void HighlightCurrentSong() = 0;
  // Rewrites one row of the current playlist.
  virtual void RefreshSongRow(std::int32_t row, const TCPlayListItem& song) = 0;
  // The time column of one row; an empty text is ignored.
  virtual void SetSongTime(std::int32_t row, std::u16string_view time) = 0;
  // The total in the header, after a song's time changed.
  virtual void RefreshPlaylistTotal() = 0;
  virtual void FocusPlaylist() = 0;
  // For what nobody pressed a key for: a text that is being typed keeps the keyboard.
  virtual void FocusPlaylistUnlessTyping() = 0;
};

}  // namespace brevant
