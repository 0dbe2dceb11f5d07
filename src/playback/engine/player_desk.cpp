#include "playback/engine/player_desk.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <utility>

namespace brevant {

namespace {

// Longer than the ticks of the transport are apart, so that it is sure to see an end that is held for it.
constexpr double kHoldEnd = 1.0;

bool Sounds(TCPlayerPhase phase) {
  return phase == TCPlayerPhase::Playing || phase == TCPlayerPhase::Paused;
}

}  // namespace

TCPlayerDesk::TCPlayerDesk(Clock chosen) : clock(std::move(chosen)) {}

TCPlayerDesk::Clock TCPlayerDesk::SteadyClock() {
  return [] {
    return std::chrono::duration<double>(std::chrono::steady_clock::now().time_since_epoch()).count();
  };
}

void TCPlayerDesk::Append(TCPlayerCommand command) {
  if (closed) return;
  command.barrier = barrier;
  queue.emplace_back(std::move(command));
  wake.notify_all();
}

void TCPlayerDesk::Load(std::u16string_view url) {
  const std::lock_guard lock(mutex);
  ++barrier;
  endHeld = false;
  soundSeen = false;
  const int volume = shown.volume;
  shown = {};
  shown.phase = TCPlayerPhase::Loading;
  shown.url = url;
  shown.volume = volume;
  shownDuration = 0;
  Append({.kind = TCPlayerCommand::Kind::Load, .url = shown.url});
}

bool TCPlayerDesk::Play() {
  const std::lock_guard lock(mutex);
  if (closed || shown.phase == TCPlayerPhase::Empty) return false;
  if (endHeld) ShowAtRest();
  Append({.kind = TCPlayerCommand::Kind::Play});
  return true;
}

void TCPlayerDesk::Pause() {
  const std::lock_guard lock(mutex);
  Append({.kind = TCPlayerCommand::Kind::Pause});
}

void TCPlayerDesk::Stop() {
  const std::lock_guard lock(mutex);
  ++barrier;
  ShowAtRest();
  Append({.kind = TCPlayerCommand::Kind::Stop});
}

void TCPlayerDesk::Seek(double seconds) {
  const std::lock_guard lock(mutex);
  if (Sounds(shown.phase) && shown.positionSeconds > 0.0 && !endHeld) {
    ++barrier;
    double target = std::isnan(seconds) ? 0.0 : seconds;
    if (shown.durationSeconds > 0.0) target = std::min(target, shown.durationSeconds);
    shown.positionSeconds = std::max(target, kPositionJustBegun);
  }
  Append({.kind = TCPlayerCommand::Kind::Seek, .seconds = seconds});
}

void TCPlayerDesk::SetVolume(int volume) {
  const std::lock_guard lock(mutex);
  shown.volume = std::clamp(volume, 0, 100);
  Append({.kind = TCPlayerCommand::Kind::SetVolume, .volume = shown.volume});
}

std::u16string TCPlayerDesk::Url() const {
  const std::lock_guard lock(mutex);
  return shown.url;
}

int TCPlayerDesk::DurationSeconds() const {
  const std::lock_guard lock(mutex);
  return shownDuration;
}

int TCPlayerDesk::Volume() const {
  const std::lock_guard lock(mutex);
  return shown.volume;
}

TCPlayerSnapshot TCPlayerDesk::Snapshot() const {
  const std::lock_guard lock(mutex);
  TCPlayerSnapshot snapshot = shown;
  if (endHeld && clock() >= endHeldUntil) {
    snapshot.phase = TCPlayerPhase::Stopped;
    snapshot.positionSeconds = 0.0;
  }
  return snapshot;
}

double TCPlayerDesk::Position() {
  const std::lock_guard lock(mutex);
  if (endHeld && clock() >= endHeldUntil) ShowAtRest();
  const double answer = shown.positionSeconds;
  if (answer > 0.0) soundSeen = true;
  if (endHeld) ShowAtRest();
  return answer;
}

std::optional<TCPlayerDesk::Handover> TCPlayerDesk::ReplaceWorkerIfStuck(double limit) {
  const std::lock_guard lock(mutex);
  const double patience = limit * std::exp2(std::min(slowWorkers, 2));
  if (closed || !busySince || clock() - *busySince < patience) return std::nullopt;
  busySince.reset();
  ++stuckWorkers;
  // What the old worker took and did not get to is the new one's first item.
  if (inHand) queue.push_front(std::move(*inHand));
  inHand.reset();
  return Handover{++worker, checkpoint};
}

void TCPlayerDesk::Close() {
  const std::lock_guard lock(mutex);
  closed = true;
  wake.notify_all();
}

void TCPlayerDesk::Post(TCPlayerNote note) {
  const std::lock_guard lock(mutex);
  if (closed) return;
  queue.emplace_back(std::move(note));
  wake.notify_all();
}

TCPlayerDesk::Wake TCPlayerDesk::WaitForItem(Ticket ticket, std::optional<double> seconds, Item& item) {
  std::unique_lock lock(mutex);
  const auto roused = [this, ticket] { return closed || ticket != worker || !queue.empty(); };
  if (ticket == worker) busySince.reset();
  if (seconds) {
    wake.wait_for(lock, std::chrono::duration<double>(*seconds), roused);
  } else {
    wake.wait(lock, roused);
  }
  if (closed || ticket != worker) return Wake::Leave;
  busySince = clock();
  if (queue.empty()) return Wake::Tick;
  item = std::move(queue.front());
  queue.pop_front();
  inHand = item;
  return Wake::Item;
}

bool TCPlayerDesk::Publish(Ticket ticket, const TCPlayerMachine& machine) {
  const std::lock_guard lock(mutex);
  if (closed || ticket != worker) return false;
  inHand.reset();
  checkpoint = machine;
  if (machine.Barrier() >= barrier) {
    Show(machine);
  } else {
    // An end that a command has overtaken is nobody's business any more.
    shownEnds = machine.Ends();
  }
  return true;
}

void TCPlayerDesk::LeaveWork(Ticket ticket) {
  const std::lock_guard lock(mutex);
  if (ticket != worker) {
    --stuckWorkers;
    ++slowWorkers;
  } else {
    busySince.reset();
  }
}

int TCPlayerDesk::StuckWorkers() const {
  const std::lock_guard lock(mutex);
  return stuckWorkers;
}

void TCPlayerDesk::Show(const TCPlayerMachine& machine) {
  TCPlayerSnapshot view = machine.View();
  if (view.positionSeconds > 0.0 && view.notice == TCPlayerNotice::None) slowWorkers = 0;
  view.volume = shown.volume;
  shownDuration = machine.DurationSeconds();
  const bool ended = machine.Ends() != shownEnds;
  shownEnds = machine.Ends();
  if (view.phase == TCPlayerPhase::Stopped && (endHeld || (ended && !soundSeen))) {
    if (!endHeld) endHeldUntil = clock() + kHoldEnd;
    endHeld = true;
    view.phase = TCPlayerPhase::Playing;
    view.positionSeconds = std::max(shown.positionSeconds, kPositionJustBegun);
  } else {
    endHeld = false;
    if (view.positionSeconds == 0.0) soundSeen = false;
  }
  shown = std::move(view);
}

void TCPlayerDesk::ShowAtRest() {
  endHeld = false;
  soundSeen = false;
  shown.positionSeconds = 0.0;
  if (Sounds(shown.phase)) shown.phase = TCPlayerPhase::Stopped;
}

}  // namespace brevant
