// The player on GStreamer, and FluidSynth for MIDI. All calls come from the user-interface thread; each takes
// a mutex for a moment, whatever the disk and the sound server do, and the work is done on threads of its
// own. A worker that got stuck is noticed and replaced by whichever call comes next.
#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>

#include "playback/engine/player_desk.h"
#include "playback/gst/gst_player_options.h"
#include "playback/player.h"
#include "playback/player_monitor.h"
#include "text/native_path.h"

namespace brevant {

struct TCGstShared;

class TCGstPlayer final : public TCPlayer, public TCPlayerMonitor {
 public:
  explicit TCGstPlayer(TCNativePaths paths, const TCGstPlayerOptions& options = {});
  // Returns within the options' close limit, with or without its threads.
  ~TCGstPlayer() override;

  TCGstPlayer(const TCGstPlayer&) = delete;
  TCGstPlayer& operator=(const TCGstPlayer&) = delete;

  bool LoadUrl(std::u16string_view path) override;
  [[nodiscard]] std::u16string GetUrl() const override;
  [[nodiscard]] int GetDurationSeconds() const override;
  bool Play() override;
  void Stop() override;
  void Pause() override;
  [[nodiscard]] std::optional<double> GetPosition() const override;
  void SetPosition(double seconds) override;
  [[nodiscard]] int GetVolume() const override;
  void SetVolume(int volume) override;

  [[nodiscard]] TCPlayerSnapshot Snapshot() const override;

 private:
  void KeepWorkerAlive() const;
  void StartWorker() const;

  std::shared_ptr<TCGstShared> shared;
  // Work for a worker that is still to be started: the system may be out of threads for a moment.
  mutable std::optional<TCPlayerDesk::Handover> waitingWork;
};

}  // namespace brevant
