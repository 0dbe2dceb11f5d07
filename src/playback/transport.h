// The transport: plays, stops and pauses the current song, steps through songs and playlists and, asked every
// 300 ms, notices the end of a song and goes on. Part of the document; user-interface thread only.
#pragma once

#include <cstdint>
#include <future>
#include <optional>
#include <string>
#include <string_view>

#include "model/app_record.h"
#include "model/message_display.h"
#include "playback/length_probe.h"
#include "playback/lyric_display.h"
#include "playback/player.h"
#include "playback/repeat_range.h"
#include "playback/set_list_display.h"
#include "playback/time_run.h"
#include "playback/transport_rules.h"
#include "text/file_system.h"

namespace brevant {

struct TCTransportState {
  bool playing = false;              // started by Play, not stopped and not seen to end
  bool started = false;              // since the last Play the position has been seen non-zero once
  bool paused = false;               // Pause/Continue last paused; no other command changes it
  std::int32_t lastLyricIndex = -1;  // the lyric line last shown
  bool refreshSongTime = false;      // the current song's time is to be taken from the player
};

// Whether making a song current may start it at once; the "ImmediatePlay" option has the last word.
enum class TCSelect { MayPlay, Silently };

// What the transport works with. All of it outlives the transport.
struct TCTransportParts {
  TCAppRecord& record;
  TCFileSystem& files;
  TCSetListDisplay& display;
  TCMessageDisplay& messages;
  TCPlayer* player = nullptr;              // null: what needs it is without effect and without error
  TCLengthProbe* lengthProbe = nullptr;    // null: no song times are measured
  TCRepeatFields* repeatFields = nullptr;  // null: there is no repeat range
};

class TCTransport {
 public:
  explicit TCTransport(const TCTransportParts& transportParts);

  // Starts the current song from its beginning, the first of the playlist when there is none. Waits a moment
  // for the disk to tell whether the song's file is there: a missing one is reported and not started. Without
  // an answer the song is left to the player, and the answer counts when it comes.
  void Play();
  // Takes the song's time before. What stops here has not ended: nothing follows it.
  void Stop();
  // Goes on when it paused last, else pauses. After a Stop going on starts the song again.
  void PauseContinue();
  // Make the song behind or before the current one current. Neither wraps nor starts playback.
  void NextSong();
  void PriorSong();
  // Make the neighbouring playlist current, show it and take the focus to it; the current song's number
  // stays. False, with nothing but the focus changed, behind the last playlist of all.
  bool NextPlaylist();
  void PriorPlaylist();
  // Makes a playlist current and shows it; the current song's number stays. A playlist that is not there
  // does nothing.
  void SelectPlaylist(std::int32_t group, std::int32_t playlist);
  // An index that names no song of the current playlist does nothing.
  void SelectSong(std::int32_t index, TCSelect select);

  // Takes the current song's time from the player; what it does not know is stored as "00:00".
  void RefreshCurrentSongTime();

  // Measures the songs' times, one a tick, until the run is done or cancelled. A song that plays is left
  // alone.
  void StartTimeRun(TCTimeScope scope);
  [[nodiscard]] const TCTimeRun& TimeRun() const { return timeRun; }

  // The lyric lines are drawn anew at the next tick.
  void RedrawLyrics() { state.lastLyricIndex = -1; }

  // The transport's half of "Cancel current command action"; no sound is touched.
  void CancelPending();

  // The set lists were cleared: what sounds on belongs to them no more, and its end starts nothing.
  void ForgetSong();

  // The tick, every 300 ms. True when a time run ended with it and changed a song's time.
  bool OnPlayTimerTick();

  [[nodiscard]] const TCTransportState& State() const { return state; }

 private:
  // The answer about a song's file that had not come when Play was done with waiting.
  struct TCAwaitedFile {
    TCTreeNode song = TCTreeNode::None;  // edits may move it meanwhile
    std::u16string path;
    std::future<bool> found;
  };

  // Starts what the player has loaded, the current song.
  void StartSong(std::u16string_view path);
  // The song's place in the current playlist; -1 when it is not there any more or has another path.
  [[nodiscard]] std::int32_t IndexOf(const TCAwaitedFile& file) const;
  // An index that names no song changes no status.
  void TakeStatus(std::int32_t index, std::u16string_view path, TCSongStatus status);
  // As if it had come at once: a song that is not there was never started.
  void TakeLateAnswer();
  bool AdvanceAfterSong();
  bool StepTimeRun();
  void FollowSong();
  void RefreshSongTimeAfterPlay();
  // The text as stored; empty when there is no current song to store it in.
  std::u16string SetCurrentSongTime(std::int32_t seconds);
  void MakeCurrent(std::int32_t song);
  void StepSong(std::int32_t song);
  bool StepPlaylist(const TCPlaylistStep& step);

  TCAppRecord& record;
  TCSetListStore& store;
  TCFileSystem& files;
  TCSetListDisplay& display;
  TCMessageDisplay& messages;
  TCPlayer* player = nullptr;
  TCRepeatFields* repeatFields = nullptr;
  TCTimeRun timeRun;
  TCLyricDisplay lyricDisplay;
  std::optional<TCAwaitedFile> awaitedFile;
  TCTransportState state;
};

}  // namespace brevant
