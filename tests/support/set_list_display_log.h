// Records what the transport asks the screen to show.
#pragma once

#include <string>
#include <vector>

#include "playback/set_list_display.h"

namespace brevant {

class TCSetListDisplayLog final : public TCSetListDisplay {
 public:
  std::vector<std::string>
      calls;  // "ShowPlaylist 0 1", "Highlight", "Row 2", "Time 2", "Total", "Focus" and so on

  void ShowPlaylist(std::int32_t group, std::int32_t playlist) override {
    calls.push_back("ShowPlaylist " + std::to_string(group) + " " + std::to_string(playlist));
  }
  void HighlightCurrentSong() override { calls.emplace_back("Highlight"); }
  void RefreshSongRow(std::int32_t row, const TCPlayListItem&) override {
    calls.push_back("Row " + std::to_string(row));
  }
  void SetSongTime(std::int32_t row, std::u16string_view time) override {
    calls.push_back("Time " + std::to_string(row) + " " + std::string(time.begin(), time.end()));
  }
  void RefreshPlaylistTotal() override { calls.emplace_back("Total"); }
  void FocusPlaylist() override { calls.emplace_back("Focus"); }
  void FocusPlaylistUnlessTyping() override { calls.emplace_back("Focus unless typing"); }
};

}  // namespace brevant
