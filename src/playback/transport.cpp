#include "playback/transport.h"

#include <algorithm>
#include <chrono>
#include <utility>
#include <vector>

#include "text/disk_question.h"
#include "text/time_text.h"

namespace brevant {

namespace {

TCSongStatus StatusOf(std::future<bool>& found) {
  return found.get() ? TCSongStatus::Found : TCSongStatus::NotFound;
}

}  // namespace

TCTransport::TCTransport(const TCTransportParts& parts)
    : record(parts.record),
      store(parts.record.setLists),
      files(parts.files),
      display(parts.display),
      messages(parts.messages),
      player(parts.player),
      repeatFields(parts.repeatFields),
      timeRun(record, parts.lengthProbe, messages),
      lyricDisplay(record, messages) {}

void TCTransport::Play() {
  if (player == nullptr) return;
  TCPlayListItem* song = store.SongInCurrentPlaylist(store.currentSong);
  if (song == nullptr) {
    // After a change to a shorter playlist no row is current; one key press starts the set from its top.
    MakeCurrent(0);
    song = store.SongInCurrentPlaylist(0);
    if (song == nullptr) return;
  }
  const std::u16string path = song->FullPath();
  if (!path.empty()) player->LoadUrl(path);
  StartSong(path);
}

void TCTransport::StartSong(std::u16string_view path) {
  awaitedFile.reset();
  std::future<bool> found =
      AskDisk(files, [asked = std::u16string(path)](TCFileSystem& disk) { return disk.FileExists(asked); });
  if (HasCome(found, kDiskPatience)) {
    const TCSongStatus status = StatusOf(found);
    TakeStatus(store.currentSong, path, status);
    if (status == TCSongStatus::NotFound) return;
  } else {
    // The player tries its own way meanwhile.
    awaitedFile = {store.GetSongTreeNode(store.currentSong), std::u16string(path), std::move(found)};
  }
  const bool accepted = player->Play();
  state.playing = true;
  state.started = false;
  state.lastLyricIndex = -1;
  state.refreshSongTime = true;
  if (accepted) messages.Clear();
}

void TCTransport::TakeStatus(std::int32_t index, std::u16string_view path, TCSongStatus status) {
  if (TCPlayListItem* song = store.SongInCurrentPlaylist(index)) {
    song->status = status;
    display.RefreshSongRow(index, *song);
  }
  if (status == TCSongStatus::NotFound) messages.AppendMessage(TCTextId::UnableToPlayMissingFile, path);
}

std::int32_t TCTransport::IndexOf(const TCAwaitedFile& file) const {
  const TCPlayList* playlist = store.CurrentPlaylist();
  if (playlist == nullptr) return -1;
  const std::vector<TCPlayListItem>& songs = playlist->items;
  const auto found = std::find_if(songs.begin(), songs.end(), [&file](const TCPlayListItem& song) {
    return song.treeNode == file.song && song.FullPath() == file.path;
  });
  return found == songs.end() ? -1 : static_cast<std::int32_t>(found - songs.begin());
}

void TCTransport::TakeLateAnswer() {
  if (!HasCome(awaitedFile->found, std::chrono::milliseconds(0))) return;
  TCAwaitedFile file = *std::exchange(awaitedFile, std::nullopt);
  const TCSongStatus status = StatusOf(file.found);
  TakeStatus(IndexOf(file), file.path, status);
  if (status == TCSongStatus::Found) return;
  state.playing = false;
  state.refreshSongTime = false;
}

void TCTransport::Stop() {
  if (player == nullptr) return;
  RefreshCurrentSongTime();
  player->Stop();
  state.playing = false;
  state.lastLyricIndex = -1;
  // `paused` and `started` stay: the first Pause/Continue after stopping a paused song starts it again.
}

void TCTransport::PauseContinue() {
  if (player == nullptr) return;
  if (state.paused) {
    player->Play();
    if (!state.playing) state.started = false;  // the moment before the sound is no end of the song
    state.playing = true;
  } else {
    player->Pause();
  }
  state.paused = !state.paused;
}

void TCTransport::NextSong() {
  StepSong(store.currentSong + 1);
}

void TCTransport::PriorSong() {
  StepSong(store.currentSong - 1);
}

void TCTransport::StepSong(std::int32_t song) {
  if (store.IsValidSongIndex(song)) MakeCurrent(song);
}

void TCTransport::MakeCurrent(std::int32_t song) {
  store.currentSong = song;
  display.HighlightCurrentSong();
}

bool TCTransport::NextPlaylist() {
  display.FocusPlaylist();
  return StepPlaylist(StepToNextPlaylist(store));
}

void TCTransport::PriorPlaylist() {
  display.FocusPlaylist();
  StepPlaylist(StepToPriorPlaylist(store));
}

bool TCTransport::StepPlaylist(const TCPlaylistStep& step) {
  if (!step.moves) return false;
  store.currentGroup = step.group;
  store.currentPlaylist = step.playlist;
  display.ShowPlaylist(step.group, step.playlist);
  return true;
}

void TCTransport::SelectPlaylist(std::int32_t group, std::int32_t playlist) {
  StepPlaylist({store.IsValidPlaylist(group, playlist), group, playlist});
}

void TCTransport::SelectSong(std::int32_t index, TCSelect select) {
  if (!store.IsValidSongIndex(index)) return;
  store.currentSong = index;
  store.RecordLastShownNames();
  display.HighlightCurrentSong();
  if (record.settings.immediatePlay && select == TCSelect::MayPlay) Play();
  display.ShowPlaylist(store.currentGroup, store.currentPlaylist);
}

void TCTransport::CancelPending() {
  state.refreshSongTime = false;
  timeRun.Cancel();
}

void TCTransport::ForgetSong() {
  state.playing = false;
  state.started = false;
  state.refreshSongTime = false;
  awaitedFile.reset();
  timeRun.Cancel();
}

void TCTransport::StartTimeRun(TCTimeScope scope) {
  timeRun.Start(scope);
}

bool TCTransport::StepTimeRun() {
  const TCTimeRunStep step = timeRun.Step();
  if (step == TCTimeRunStep::Measuring) return false;
  display.ShowPlaylist(store.currentGroup, store.currentPlaylist);
  return step == TCTimeRunStep::FinishedWithChanges;
}

bool TCTransport::OnPlayTimerTick() {
  const bool timesChanged = timeRun.Pending() && StepTimeRun();
  if (awaitedFile) TakeLateAnswer();
  if (state.refreshSongTime) RefreshSongTimeAfterPlay();
  if (state.playing) FollowSong();
  return timesChanged;
}

void TCTransport::FollowSong() {
  const double position = player->GetPosition().value_or(0.0);
  state.lastLyricIndex =
      lyricDisplay.ShowLyricsAt(static_cast<std::int32_t>(position), player->GetUrl(), state.lastLyricIndex);
  const std::int32_t repeatEnd = repeatFields == nullptr ? 0 : repeatFields->RepeatEnd();
  switch (DecideTick({state.started, position, record.settings.autoPlayPlayList, repeatEnd})) {
    case TCTickAction::Wait:
      break;
    case TCTickAction::MarkStarted:
      state.started = true;
      break;
    case TCTickAction::JumpToRepeatBegin:
      player->SetPosition(repeatFields->RepeatBegin());
      break;
    case TCTickAction::EndSong:
      state.playing = false;
      state.started = false;
      if (AdvanceAfterSong() && record.settings.autoPlayPlayList) Play();
      break;
  }
}

bool TCTransport::AdvanceAfterSong() {
  const std::int32_t next = store.currentSong + 1;
  const TCAdvanceInput input{record.settings.autoSongAdvance, record.settings.autoRecycle,
                             store.IsValidSongIndex(next)};
  switch (DecideAdvance(input)) {
    case TCAdvance::Rest:
      return false;
    case TCAdvance::NextSong:
      MakeCurrent(next);
      return true;
    case TCAdvance::NextPlaylist:
      break;
  }
  store.currentSong = 0;
  display.FocusPlaylistUnlessTyping();
  if (!StepPlaylist(StepToNextPlaylist(store))) StepPlaylist({true, 0, 0});  // it all starts again
  return true;
}

void TCTransport::RefreshCurrentSongTime() {
  if (player == nullptr) return;
  const std::u16string time = SetCurrentSongTime(player->GetDurationSeconds());
  display.SetSongTime(store.currentSong, time);
}

void TCTransport::RefreshSongTimeAfterPlay() {
  const int duration = player->GetDurationSeconds();
  if (duration == 0) return;  // not known yet: the next tick asks again
  const std::u16string time = SetCurrentSongTime(duration);
  if (store.currentSong < 0) return;
  display.SetSongTime(store.currentSong, time);
  state.refreshSongTime = false;
}

std::u16string TCTransport::SetCurrentSongTime(std::int32_t seconds) {
  TCPlayListItem* song = store.SongInCurrentPlaylist(store.currentSong);
  if (song == nullptr) return {};
  std::u16string time = FormatTime(seconds);
  if (song->time != time) {
    song->time = time;
    store.RecalcPlaylistTotalTime(*store.CurrentPlaylist());
    display.RefreshPlaylistTotal();
  }
  return time;
}

}  // namespace brevant
