// How wide the playlist's columns are: their initial widths, more where the texts need more, and what the
// user dragged instead. Kept by the playlist view, user-interface thread only.
#pragma once

#include <QSettings>
#include <array>
#include <optional>

namespace brevant {

enum class TCPlaylistColumn : int { Picture = 0, Number = 1, Status = 2, Time = 3, Name = 4 };
inline constexpr int kPlaylistColumns = 5;

class TCColumnWidths {
 public:
  // Pixels. The initial width is the least that is given.
  void SetNeeded(TCPlaylistColumn column, int width);
  // One more text in the column: where the initial width holds it nothing changes, else the column becomes
  // wide enough for it and a gap to the next one.
  void MakeRoomFor(TCPlaylistColumn column, int textWidth, int gap);

  // The user's width stands, whatever the texts need, until it is released.
  void SetByUser(TCPlaylistColumn column, int width);
  void Release(TCPlaylistColumn column);

  [[nodiscard]] int Of(TCPlaylistColumn column) const;

  // Only the user's widths are kept: the others follow the font. A store that holds anything but five
  // sensible numbers changes nothing.
  void Save(QSettings& settings) const;
  void Load(const QSettings& settings);

 private:
  struct TCWidth {
    int needed = 0;
    std::optional<int> byUser;
  };
  std::array<TCWidth, kPlaylistColumns> widths;
};

}  // namespace brevant
