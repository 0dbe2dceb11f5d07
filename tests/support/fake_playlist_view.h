// A playlist view without a window: keeps the rows it is shown, for tests of the presenter and the document.
#pragma once

#include <algorithm>
#include <string>
#include <vector>

#include "document/playlist_display.h"

namespace brevant {

class TCFakePlaylistView final : public TCPlaylistDisplay {
 public:
  std::vector<TCPlaylistRow> rows;
  std::u16string header;
  std::vector<std::int32_t> selected;
  TCShowRows lastMode = TCShowRows::Afresh;
  std::int32_t scrolledTo = -1;
  int shows = 0;
  int focuses = 0;
  int focusesUnlessTyping = 0;
  int mouseResets = 0;

  void ShowRows(std::vector<TCPlaylistRow> newRows, TCShowRows mode) override {
    rows = std::move(newRows);
    lastMode = mode;
    if (mode != TCShowRows::KeepPlace) selected.clear();
    ++shows;
  }
  void SetRowColours(std::vector<TCRowColours> colours) override {
    for (std::size_t i = 0; i < rows.size() && i < colours.size(); ++i) rows[i].colours = colours[i];
  }
  void SetRowTexts(std::int32_t row, const TCRowTexts& texts) override {
    if (Has(row)) rows[static_cast<std::size_t>(row)].texts = texts;
  }
  void SetRowTime(std::int32_t row, std::u16string_view time) override {
    if (Has(row)) rows[static_cast<std::size_t>(row)].texts.time = time;
  }
  void SetPlaylistHeader(std::u16string_view text) override { header = text; }
  void ClearRows() override {
    rows.clear();
    selected.clear();
  }
  [[nodiscard]] std::int32_t SelectedRow() const override { return selected.empty() ? -1 : selected.front(); }
  [[nodiscard]] std::vector<std::int32_t> SelectedRows() const override { return selected; }
  void SelectRow(std::int32_t row) override {
    if (!selected.empty()) selected.erase(selected.begin());
    if (!Has(row) || std::find(selected.begin(), selected.end(), row) != selected.end()) return;
    selected.insert(std::lower_bound(selected.begin(), selected.end(), row), row);
  }
  void ScrollToRow(std::int32_t row) override { scrolledTo = row; }
  void TakeFocus() override { ++focuses; }
  void TakeFocusUnlessTyping() override { ++focusesUnlessTyping; }
  void SetDisplayFont(std::u16string_view, std::int32_t) override {}
  void ResetMouseState() override { ++mouseResets; }

 private:
  [[nodiscard]] bool Has(std::int32_t row) const {
    return row >= 0 && static_cast<std::size_t>(row) < rows.size();
  }
};

}  // namespace brevant
