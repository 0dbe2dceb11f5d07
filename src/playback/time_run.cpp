#include "playback/time_run.h"

#include <unordered_map>

#include "text/path_parts.h"
#include "text/time_text.h"

namespace brevant {

TCTimeRun::TCTimeRun(TCAppRecord& appRecord, TCLengthProbe* lengthProbe, TCMessageDisplay& messageDisplay)
    : record(appRecord), probe(lengthProbe), messages(messageDisplay) {}

void TCTimeRun::Start(TCTimeScope timeScope) {
  Cancel();
  scope = timeScope;
  record.setLists.measured = record.setLists.CurrentPosition();
  paths.clear();
  times.clear();
  index = 0;
  for (const TCPlayList* playlist : PlaylistsOfScope()) {
    for (const TCPlayListItem& song : playlist->items) paths.push_back(song.FullPath());
  }
  loadNext = true;
  timesPending = probe != nullptr && !paths.empty();
}

TCTimeRunStep TCTimeRun::Step() {
  if (loadNext) probe->Open(paths[index]);
  const int duration = probe->GetDurationSeconds();
  if (duration == 0) {
    loadNext = false;  // not known yet: the next tick asks again
    return TCTimeRunStep::Measuring;
  }
  loadNext = true;
  probe->Close();
  Record(duration);
  ++index;
  if (index < paths.size()) {
    probe->Open(paths[index]);  // so that its length is known by the next tick
    return TCTimeRunStep::Measuring;
  }
  timesPending = false;
  return StoreTimes() ? TCTimeRunStep::FinishedWithChanges : TCTimeRunStep::Finished;
}

void TCTimeRun::Record(std::int32_t seconds) {
  times.push_back(FormatTime(seconds));
  std::u16string line(TextOf(TCTextId::CalculatingTimes));
  line += u" \"" + FileNamePart(paths[index]) + u"\": " + times.back();
  messages.Append(line);
}

void TCTimeRun::Cancel() {
  if (!timesPending) return;
  timesPending = false;
  probe->Close();
}

bool TCTimeRun::StoreTimes() {
  std::unordered_map<std::u16string_view, const std::u16string*> timeOfPath;
  for (std::size_t i = 0; i < paths.size(); ++i) timeOfPath.emplace(paths[i], &times[i]);
  bool changed = false;
  for (TCPlayList* playlist : PlaylistsOfScope()) {
    for (TCPlayListItem& song : playlist->items) {
      const auto measured = timeOfPath.find(song.FullPath());
      if (measured == timeOfPath.end() || song.time == *measured->second) continue;
      song.time = *measured->second;
      changed = true;
    }
    record.setLists.RecalcPlaylistTotalTime(*playlist);
  }
  return changed;
}

std::vector<TCPlayList*> TCTimeRun::PlaylistsOfScope() {
  std::vector<TCPlayList*> playlists;
  if (scope == TCTimeScope::CurrentPlaylist) {
    TCSetListStore& store = record.setLists;
    if (TCPlayList* playlist = store.PlaylistAt(store.measured)) playlists.push_back(playlist);
    return playlists;
  }
  for (TCPlayGroups& group : record.setLists.groups) {
    for (TCPlayList& playlist : group.playlists) playlists.push_back(&playlist);
  }
  return playlists;
}

}  // namespace brevant
