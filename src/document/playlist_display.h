// What the playlist view can do for the document: rows, colours, header, selection. The view shows and
// decides nothing; TCPlaylistPresenter tells it what to show. User-interface thread only.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

#include "model/settings.h"

namespace brevant {

struct TCRowTexts {
  std::u16string number;  // "1" for the first song
  std::u16string status;
  std::u16string time;
  std::u16string name;
};

struct TCRowColours {
  TCRgb background = kBlack;
  TCRgb text = kWhite;
};

struct TCPlaylistRow {
  TCRowTexts texts;
  TCRowColours colours;
};

// How the rows that are shown stand to those before: another playlist, the same one with its songs at their
// rows, or the same one with other songs at some rows.
enum class TCShowRows { Afresh, KeepPlace, Edited };

class TCPlaylistDisplay {
 public:
  virtual ~TCPlaylistDisplay() = default;

  // Replaces all rows. Afresh: nothing selected, scrolled to the top. KeepPlace: selection and scroll stay
  // where they were. Edited: the scroll stays and nothing is selected, for a selected row would stand for
  // another song. A drag that is under way goes on only with KeepPlace.
  virtual void ShowRows(std::vector<TCPlaylistRow> rows, TCShowRows mode) = 0;
  // One record a row, first to last; everything is redrawn. A row without a record takes the window's
  // colours.
  virtual void SetRowColours(std::vector<TCRowColours> colours) = 0;
  // A row that is not there is ignored.
  virtual void SetRowTexts(std::int32_t row, const TCRowTexts& texts) = 0;
  virtual void SetRowTime(std::int32_t row, std::u16string_view time) = 0;
  // Of the last column.
  virtual void SetPlaylistHeader(std::u16string_view text) = 0;
  virtual void ClearRows() = 0;

  // The first selected row, or -1.
  [[nodiscard]] virtual std::int32_t SelectedRow() const = 0;
  [[nodiscard]] virtual std::vector<std::int32_t> SelectedRows() const = 0;  // ascending
  // Deselects the first selected row and selects this one; a row that is not there selects nothing.
  virtual void SelectRow(std::int32_t row) = 0;
  virtual void ScrollToRow(std::int32_t row) = 0;
  virtual void TakeFocus() = 0;
  // Not out of a text that somebody types.
  virtual void TakeFocusUnlessTyping() = 0;
  // Of the rows and the header. `points` may be any value; what is drawn stays usable.
  virtual void SetDisplayFont(std::u16string_view face, std::int32_t points) = 0;
  // Drops a mouse drag that is under way.
  virtual void ResetMouseState() = 0;
};

}  // namespace brevant
