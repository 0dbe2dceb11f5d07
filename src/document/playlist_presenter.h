// Shows the set lists' current playlist in the playlist view: which rows, which texts, which colours. Stands
// between the transport and document, which say when, and the view, which draws. User-interface thread only.
#pragma once

#include <cstdint>
#include <functional>
#include <string_view>

#include "document/playlist_display.h"
#include "document/tree_display.h"
#include "model/app_record.h"
#include "playback/set_list_display.h"

namespace brevant {

class TCPlaylistPresenter final : public TCSetListDisplay {
 public:
  // `somethingShown` is told after the shown playlist, the current song or the total became another.
  TCPlaylistPresenter(
      TCAppRecord& appRecord, TCPlaylistDisplay& playlistView, TCTreeDisplay& treeView,
      std::function<void()> somethingShown = [] {});

  void ShowPlaylist(std::int32_t group, std::int32_t playlist) override;
  void HighlightCurrentSong() override;
  void RefreshSongRow(std::int32_t row, const TCPlayListItem& song) override;
  void SetSongTime(std::int32_t row, std::u16string_view time) override;
  void RefreshPlaylistTotal() override;
  void FocusPlaylist() override;
  void FocusPlaylistUnlessTyping() override;

  // Sets the play marks after the current song and redraws the colours. Nothing when no song is current.
  void Recolour();
  // Redraws the colours after an option changed them, also when no song is current.
  void ShowColours();
  void Clear();
  // Draws the playlist that stands on the screen anew, which while an empty one is current is the one before.
  void ShowAgain();
  // As ShowPlaylist; if this playlist stands there already, its songs are not at the rows where they were.
  void ShowEditedPlaylist(TCPlaylistPosition position);

  // The row of the current song at the last recolouring; -1 before the first.
  [[nodiscard]] std::int32_t RowToMove() const { return rowToMove; }

 private:
  [[nodiscard]] TCRowColours ColoursOf(const TCPlayListItem& song) const;
  [[nodiscard]] static TCRowTexts TextsOf(std::int32_t row, const TCPlayListItem& song);
  void ShowHeader(const TCPlayList& playlist);
  void Show(TCPlaylistPosition position, TCShowRows whenShownAlready);

  TCAppRecord& record;
  TCPlaylistDisplay& view;
  TCTreeDisplay& tree;
  std::function<void()> tellShown;
  std::int32_t rowToMove = -1;
};

}  // namespace brevant
