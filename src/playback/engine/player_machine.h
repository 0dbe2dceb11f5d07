// Decides what the back end does: takes commands, notes and the time, keeps the state of the one loaded song,
// and answers with actions for the worker. Pure: it touches no thread, clock, disk or pipeline, and a copy of
// it is all that a new worker needs to go on where a stuck one left off.
#pragma once

#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <vector>

#include "playback/engine/player_events.h"
#include "playback/player_monitor.h"

namespace brevant {

// What is answered in place of 0.0 while a song whose sound has begun plays or is paused.
inline constexpr double kPositionJustBegun = 0.001;

// All in seconds.
struct TCPlayerLimits {
  double load = 4.0;        // until a file must be open
  double start = 4.0;       // until a pipeline must be ready, or a seek be done
  double standstill = 1.5;  // a playing position that does not move for so long has lost its device
  double firstRetry = 0.1;
  double longestRetry = 1.0;
};

class TCPlayerMachine {
 public:
  using Actions = std::vector<TCPlayerAction>;

  explicit TCPlayerMachine(TCPlayerLimits limits = {});

  // `now`: seconds of a clock that never goes back.
  [[nodiscard]] Actions OnCommand(const TCPlayerCommand& command, double now);
  [[nodiscard]] Actions OnNote(const TCPlayerNote& note, double now);
  [[nodiscard]] Actions OnTick(const TCPipelineReading& reading, double now);

  // A new worker begins: the pipeline of the old one is lost, its jobs perhaps as well.
  [[nodiscard]] Actions OnTakeover(double now);

  // Seconds until OnTick is due even if nothing arrives; none when nothing is going on.
  [[nodiscard]] std::optional<double> TickDueIn(double now) const;

  // Without the volume, which whoever asks for it keeps.
  [[nodiscard]] TCPlayerSnapshot View() const;
  // -1, 0 or whole seconds, as TCPlayer answers.
  [[nodiscard]] int DurationSeconds() const;
  [[nodiscard]] std::uint64_t Barrier() const { return barrier; }
  // How many songs have come to their end so far.
  [[nodiscard]] std::uint64_t Ends() const { return ends; }
  [[nodiscard]] bool IsProbing(std::uint64_t build) const {
    return file == File::Probing && build == buildNumber;
  }
  [[nodiscard]] std::uint64_t LoadNumber() const { return loadNumber; }
  [[nodiscard]] const std::u16string& Url() const { return url; }
  [[nodiscard]] const std::shared_ptr<const TCPlayable>& Playable() const { return playable; }

 private:
  enum class File { None, Opening, Probing, Ready, Failed };
  enum class Want { Stopped, Playing, Paused };
  enum class Sound {
    None,
    Positioning,  // prerolling, to be sent to `position` before it sounds
    Starting,     // told to play; its position has not moved yet
    Running,
    Lost,  // the device is gone; to be built again at `position`
  };

  void Load(const TCPlayerCommand& command, double now, Actions& actions);
  void Play(double now, Actions& actions);
  void Pause(double now, Actions& actions);
  void Stop(Actions& actions);
  void SeekTo(double seconds, double now, Actions& actions);

  void OnFileNote(const TCPlayerNote& note, double now, Actions& actions);
  void OnPipelineReady(const TCPlayerNote& note, double now, Actions& actions);
  void OnProbed(const TCPlayerNote& note, double now, Actions& actions);
  void OnEndOfStream(Actions& actions);
  void OnSourceFailed(const TCPlayerNote& note, Actions& actions);
  void OnDeviceLost(const std::string& detail, double now, Actions& actions);

  void TakeReading(const TCPipelineReading& reading, double now);
  void WatchDeadlines(const TCPipelineReading& reading, double now, Actions& actions);

  void Probe(double now, Actions& actions);
  void Build(double now, Actions& actions);
  void IssueSeek(double now, Actions& actions);
  void DiscardPipeline(Actions& actions);
  // The same for a song's sound alone: a file that is still being probed is probed on.
  void DropSound(Actions& actions);
  void Fail(TCPlayerNotice why, const std::string& words, Actions& actions);
  void End(Actions& actions);
  void Rest();
  [[nodiscard]] bool HasPipeline() const;

  TCPlayerLimits limits;
  std::uint64_t barrier = 0;
  std::uint64_t ends = 0;

  // The song.
  std::uint64_t loadNumber = 0;
  std::u16string url;
  File file = File::None;
  double loadDeadline = 0.0;
  std::shared_ptr<const TCPlayable> playable;
  std::optional<double> length;       // seconds, once it is known
  std::optional<double> roughLength;  // what the pipeline said while the exact one is measured
  bool lengthPending = false;

  // Its sound.
  Want want = Want::Stopped;
  Sound sound = Sound::None;
  std::uint64_t buildNumber = 0;
  double position = 0.0;
  bool begun = false;      // sounded since it was started
  bool ready = false;      // the pipeline has prerolled
  bool seeking = false;    // a seek is under way
  bool seekAgain = false;  // to `position`, when that one is done
  bool resumeWhenThere = false;
  bool endReached = false;  // came to its end in the moment it was paused
  double waitingSince = 0.0;
  double movedAt = 0.0;
  double pausedAt = 0.0;
  double lastReading = -1.0;
  double retryAt = 0.0;
  double retryDelay = 0.0;

  int volume = 100;
  TCPlayerNotice notice = TCPlayerNotice::None;
  std::string detail;
};

}  // namespace brevant
