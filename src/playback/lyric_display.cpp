#include "playback/lyric_display.h"

#include <algorithm>
#include <vector>

#include "lyrics/current_lines.h"

namespace brevant {

namespace {

constexpr std::int64_t kLeadMs = 500;  // a line appears just before it is sung
// More than any pane shows. The message display forgets its oldest lines, and the first of these is the one
// that is sung now.
constexpr std::int32_t kMostLines = 500;

TCLineRole RoleOf(std::int32_t singer) {
  switch (singer) {
    case kSingerM:
      return TCLineRole::SingerM;
    case kSingerF:
      return TCLineRole::SingerF;
    case kSingerD:
      return TCLineRole::SingerD;
    default:
      return TCLineRole::Normal;
  }
}

}  // namespace

TCLyricDisplay::TCLyricDisplay(const TCAppRecord& appRecord, TCMessageDisplay& messageDisplay)
    : record(appRecord), messages(messageDisplay) {}

std::int32_t TCLyricDisplay::ShowLyricsAt(std::int32_t seconds, std::u16string_view url,
                                          std::int32_t lastIndex) {
  const TCPlayListItem* song = record.setLists.FindSongByPath(url);
  if (song == nullptr) return lastIndex;
  const std::int64_t timeMs = std::int64_t{seconds} * 1000 + kLeadMs;
  std::vector<TCLyric> lines;
  const std::int32_t index = FindLyricLines(
      song->lyrics, lines, static_cast<std::int32_t>(std::min<std::int64_t>(timeMs, kEndOfLyrics)),
      std::min(record.settings.numberLyricLines, kMostLines));
  if (lines.empty() || index == lastIndex) return lastIndex;

  messages.Clear();
  for (const TCLyric& line : lines) {
    messages.SetLineRole(RoleOf(line.singer));
    messages.Append(u"\r\n");
    messages.Append(u"\t" + line.text);
  }
  messages.SetLineRole(TCLineRole::Normal);
  messages.KeepFirstInView();  // the one that is sung now
  return index;
}

}  // namespace brevant
