#include "playback/engine/player_machine.h"

#include <algorithm>
#include <cmath>

namespace brevant {

namespace {

// How often the position is read while something moves, and while its first move is awaited.
constexpr double kTick = 0.04;
constexpr double kStartTick = 0.01;
// After a pause the position settles within this time.
constexpr double kPauseSettles = 0.3;
// A stuck worker is asked about this often.
constexpr double kStuckTick = 0.25;

using Kind = TCPlayerAction::Kind;

}  // namespace

TCPlayerMachine::TCPlayerMachine(TCPlayerLimits chosen) : limits(chosen) {}

TCPlayerMachine::Actions TCPlayerMachine::OnCommand(const TCPlayerCommand& command, double now) {
  Actions actions;
  barrier = std::max(barrier, command.barrier);
  switch (command.kind) {
    case TCPlayerCommand::Kind::Load:
      Load(command, now, actions);
      break;
    case TCPlayerCommand::Kind::Play:
      Play(now, actions);
      break;
    case TCPlayerCommand::Kind::Pause:
      Pause(now, actions);
      break;
    case TCPlayerCommand::Kind::Stop:
      Stop(actions);
      break;
    case TCPlayerCommand::Kind::Seek:
      SeekTo(command.seconds, now, actions);
      break;
    case TCPlayerCommand::Kind::SetVolume:
      volume = command.volume;
      if (HasPipeline()) actions.push_back({Kind::SetVolume, buildNumber, 0.0, volume});
      break;
  }
  return actions;
}

void TCPlayerMachine::Load(const TCPlayerCommand& command, double now, Actions& actions) {
  DiscardPipeline(actions);
  Rest();
  ++loadNumber;
  url = command.url;
  file = File::Opening;
  loadDeadline = now + limits.load;
  playable.reset();
  length.reset();
  roughLength.reset();
  lengthPending = false;
  notice = TCPlayerNotice::None;
  detail.clear();
  actions.push_back({Kind::OpenFile, loadNumber});
}

void TCPlayerMachine::Play(double now, Actions& actions) {
  if (file == File::None || file == File::Failed) return;
  const bool wasPaused = want == Want::Paused;
  want = Want::Playing;
  if (file != File::Ready) return;
  if (sound == Sound::None || sound == Sound::Lost) {
    retryDelay = 0.0;
    if (sound == Sound::None) {
      notice = TCPlayerNotice::None;
      detail.clear();
    }
    Build(now, actions);
  } else if (wasPaused && endReached) {
    End(actions);
  } else if (wasPaused) {
    movedAt = now;
    waitingSince = now;
    actions.push_back({Kind::Resume, buildNumber});
  }
}

void TCPlayerMachine::Pause(double now, Actions& actions) {
  if (want != Want::Playing) return;
  want = Want::Paused;
  pausedAt = now;
  if (sound == Sound::Running) {
    actions.push_back({Kind::Pause, buildNumber});
    return;
  }
  // A pipeline that waits in PAUSED before it ever sounded starts late by all the time it waited, so one that
  // has not begun is built again on Play.
  DropSound(actions);
}

void TCPlayerMachine::Stop(Actions& actions) {
  DropSound(actions);
  Rest();
  if (file == File::Failed) return;
  notice = TCPlayerNotice::None;
  detail.clear();
}

void TCPlayerMachine::SeekTo(double seconds, double now, Actions& actions) {
  if (want == Want::Stopped) return;
  position = std::isnan(seconds) ? 0.0 : std::max(seconds, 0.0);
  if (length) position = std::min(position, *length);
  endReached = false;
  if (sound == Sound::None || sound == Sound::Lost || sound == Sound::Positioning) return;
  if (!ready || seeking) {
    seekAgain = true;
  } else {
    IssueSeek(now, actions);
  }
}

TCPlayerMachine::Actions TCPlayerMachine::OnTakeover(double now) {
  Actions actions;
  if (file == File::Opening || file == File::Probing) {
    file = File::Opening;
    ++buildNumber;
    actions.push_back({Kind::OpenFile, loadNumber});
  }
  if (sound != Sound::None) {
    OnDeviceLost("The sound system does not answer.", now, actions);
    // The pipeline went with the old worker.
    std::erase_if(actions, [](const TCPlayerAction& action) { return action.kind == Kind::Discard; });
  }
  if (lengthPending) actions.push_back({Kind::MeasureLength, loadNumber});
  return actions;
}

TCPlayerMachine::Actions TCPlayerMachine::OnTick(const TCPipelineReading& reading, double now) {
  Actions actions;
  TakeReading(reading, now);
  WatchDeadlines(reading, now, actions);
  return actions;
}

void TCPlayerMachine::TakeReading(const TCPipelineReading& reading, double now) {
  const bool sounds = sound == Sound::Starting || sound == Sound::Running;
  if (!sounds || !ready || seeking || resumeWhenThere || !reading.position) return;
  const double read = *reading.position;
  if (want == Want::Paused) {
    // Only what settles after the pause is believed: a device that goes away meanwhile may say anything.
    if (read >= position && read < position + kPauseSettles) position = read;
    return;
  }
  if (!length && !lengthPending && reading.length) length = reading.length;
  if (read == lastReading) return;
  // Where the pipeline was sent to before it sounds, the first reading is only that place again.
  const bool echo = sound == Sound::Starting && lastReading < 0.0 && position > 0.0;
  lastReading = read;
  if (read <= 0.0) return;
  position = length ? std::min(read, *length) : read;
  movedAt = now;
  if (echo) return;
  sound = Sound::Running;
  begun = true;
  retryDelay = 0.0;
  if (notice == TCPlayerNotice::NoSoundDevice) {
    notice = TCPlayerNotice::None;
    detail.clear();
  }
}

void TCPlayerMachine::WatchDeadlines(const TCPipelineReading& reading, double now, Actions& actions) {
  if ((file == File::Opening || file == File::Probing) && now >= loadDeadline) {
    Fail(TCPlayerNotice::LoadTimedOut, "The file did not open in time.", actions);
    return;
  }
  if (file == File::Ready && lengthPending && now >= loadDeadline) {
    lengthPending = false;
    length = roughLength;
  }
  if (sound == Sound::Lost) {
    if (now >= retryAt && !reading.soundSystemStuck) Build(now, actions);
    return;
  }
  if (want != Want::Playing || sound == Sound::None) return;
  const bool waits = !ready || seeking || resumeWhenThere;
  if (waits ? now - waitingSince >= limits.start : now - movedAt >= limits.standstill) {
    OnDeviceLost("The sound stands still.", now, actions);
  }
}

std::optional<double> TCPlayerMachine::TickDueIn(double now) const {
  std::optional<double> due;
  const auto at = [&due, now](double time) {
    const double in = std::max(time - now, 0.0);
    due = due ? std::min(*due, in) : in;
  };
  if (file == File::Opening || file == File::Probing || (file == File::Ready && lengthPending))
    at(loadDeadline);
  if (sound == Sound::Lost) at(std::max(retryAt, now + kStuckTick / 2));
  if (HasPipeline() && want == Want::Playing) at(now + (sound == Sound::Running ? kTick : kStartTick));
  if (HasPipeline() && want == Want::Paused && now < pausedAt + kPauseSettles) at(now + kTick);
  return due;
}

bool TCPlayerMachine::HasPipeline() const {
  return sound != Sound::None && sound != Sound::Lost;
}

void TCPlayerMachine::Probe(double now, Actions& actions) {
  file = File::Probing;
  waitingSince = now;
  actions.push_back({Kind::Probe, ++buildNumber});
}

void TCPlayerMachine::Build(double now, Actions& actions) {
  sound = position > 0.0 ? Sound::Positioning : Sound::Starting;
  ready = false;
  seeking = false;
  seekAgain = false;
  resumeWhenThere = sound == Sound::Positioning;
  endReached = false;
  waitingSince = now;
  movedAt = now;
  lastReading = -1.0;
  const Kind kind = sound == Sound::Positioning ? Kind::BuildPaused : Kind::BuildPlaying;
  actions.push_back({kind, ++buildNumber, 0.0, volume});
}

void TCPlayerMachine::IssueSeek(double now, Actions& actions) {
  seeking = true;
  seekAgain = false;
  waitingSince = now;
  lastReading = -1.0;
  actions.push_back({Kind::Seek, buildNumber, position});
}

void TCPlayerMachine::DiscardPipeline(Actions& actions) {
  if (HasPipeline() || file == File::Probing) actions.push_back({Kind::Discard, buildNumber});
  // Raised so that what the discarded one still has to say is no longer news.
  ++buildNumber;
  sound = Sound::None;
  ready = false;
  seeking = false;
  seekAgain = false;
  resumeWhenThere = false;
  endReached = false;
}

void TCPlayerMachine::DropSound(Actions& actions) {
  if (sound != Sound::None) DiscardPipeline(actions);
}

void TCPlayerMachine::Rest() {
  want = Want::Stopped;
  position = 0.0;
  begun = false;
  retryDelay = 0.0;
}

TCPlayerSnapshot TCPlayerMachine::View() const {
  TCPlayerSnapshot view;
  switch (file) {
    case File::None:
      view.phase = TCPlayerPhase::Empty;
      break;
    case File::Opening:
    case File::Probing:
      view.phase = TCPlayerPhase::Loading;
      break;
    case File::Failed:
      view.phase = TCPlayerPhase::Failed;
      break;
    case File::Ready:
      view.phase = want == Want::Stopped   ? TCPlayerPhase::Stopped
                   : want == Want::Playing ? TCPlayerPhase::Playing
                                           : TCPlayerPhase::Paused;
      break;
  }
  view.url = url;
  if (want != Want::Stopped && begun) view.positionSeconds = std::max(position, kPositionJustBegun);
  view.durationSeconds = length.value_or(0.0);
  view.notice = notice;
  view.detail = detail;
  return view;
}

int TCPlayerMachine::DurationSeconds() const {
  if (file == File::None || file == File::Failed) return -1;
  if (length) return std::max(1, static_cast<int>(std::min(*length, 1e9)));
  return file == File::Ready && !lengthPending ? -1 : 0;
}

}  // namespace brevant
