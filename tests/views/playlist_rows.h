// Rows for the tests of the playlist view.
#pragma once

#include <string>
#include <vector>

#include "document/playlist_display.h"
#include "text/numbers.h"

namespace brevant {

inline TCPlaylistRow RowNamed(std::u16string_view name, TCRgb text = kWhite, TCRgb background = kBlack) {
  TCPlaylistRow row;
  row.texts = {u"1", u"Found", u"03:45", std::u16string(name)};
  row.colours = {background, text};
  return row;
}

// Songs 1 to `count`, white on black.
inline std::vector<TCPlaylistRow> Rows(int count) {
  std::vector<TCPlaylistRow> rows;
  for (int song = 1; song <= count; ++song) {
    TCPlaylistRow row = RowNamed(u"Song " + FormatDecimal(song) + u".mp3");
    row.texts.number = FormatDecimal(song);
    rows.push_back(row);
  }
  return rows;
}

}  // namespace brevant
