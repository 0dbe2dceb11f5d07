#include "model/play_marks.h"

namespace brevant {

TCPlayMark PlayMarkOf(std::int32_t row, std::int32_t current) {
  if (row == current) return TCPlayMark::Current;
  if (row == current - 1) return TCPlayMark::Previous;
  if (row == current + 1) return TCPlayMark::Next;
  return TCPlayMark::Ordinary;
}

TCRgb RowTextColour(TCPlayMark mark, const TCSettings& settings) {
  if (!settings.dynamicPlayColours) return settings.textColour;
  switch (mark) {
    case TCPlayMark::Next:
      return kNextColour;
    case TCPlayMark::Current:
      return kCurrentColour;
    case TCPlayMark::Previous:
      return kPreviousColour;
    case TCPlayMark::Ordinary:
      break;
  }
  return settings.textColour;
}

bool UpdatePlayMarks(TCSetListStore& store) {
  if (!store.IsValidSongIndex(store.currentSong)) return false;
  std::int32_t row = 0;
  for (TCPlayListItem& song : store.CurrentPlaylist()->items)
    song.flags = PlayMarkOf(row++, store.currentSong);
  return true;
}

}  // namespace brevant
