// The transport: plays, stops and pauses the current song, steps through songs and playlists and, asked every
// 300 ms, notices the end of a song and goes on. Part of the document; user-interface thread only.
#pragma once

#include <cstdint>

#include "model/app_record.h"
#include "model/message_display.h"
#include "playback/player.h"
#include "playback/set_list_display.h"
#include "text/file_system.h"

namespace brevant {

struct TCTransportState {
  bool playing = false;              // started by Play, not stopped and not seen to end
  bool started = false;              // since the last Play the position has been seen non-zero once
  bool paused = false;               // Pause/Continue last paused; no other command changes it
  std::int32_t lastLyricIndex = -1;  // the lyric line last shown
  bool refreshSongTime = false;      // the current song's time is to be taken from the player
  bool timesPending = false;         // a run that measures song times is in progress
};

// Whether making a song current may start it at once (the "ImmediatePlay" option has the last word).
enum class TCSelect { MayPlay, Silently };

class TCTransport {
 public:
  // `player` may be null: every command is then without effect and without error.
  TCTransport(TCAppRecord& appRecord, TCFileSystem& fileSystem, TCPlayer* soundPlayer,
              TCSetListDisplay& setListDisplay, TCMessageDisplay& messageDisplay);

  void Play();
  void Stop();
  void PauseContinue();
  void NextSong();
  void PriorSong();
  bool NextPlaylist();
  void PriorPlaylist();
  void SelectSong(std::int32_t index, TCSelect select);

  // The transport's half of "Cancel current command action": no sound is touched.
  void CancelPending();

  // The poll, every 300 ms.
  void OnPlayTimerTick();

  // The current song's time as the player knows it; a failure stores "00:00".
  void RefreshCurrentSongTime();

  // The set lists were cleared: nothing that plays on belongs to them any more. The sound is left alone.
  void ForgetSong();

  [[nodiscard]] const TCTransportState& State() const { return state; }

 private:
  bool AdvanceAfterSong();
  void RefreshSongTimeAfterPlay();
  std::u16string SetCurrentSongTime(std::int32_t seconds);
  void MakeSongCurrent(std::int32_t index);
  void ShowPlaylistAt(std::int32_t group, std::int32_t playlist);

  TCAppRecord& record;
  TCFileSystem& files;
  TCPlayer* player;
  TCSetListDisplay& display;
  TCMessageDisplay& messages;
  TCTransportState state;
};

}  // namespace brevant
