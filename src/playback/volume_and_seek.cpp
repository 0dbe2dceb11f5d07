#include "playback/volume_and_seek.h"

#include <algorithm>
#include <limits>

#include "playback/seek_rules.h"

namespace brevant {

TCVolumeAndSeek::TCVolumeAndSeek(const TCSettings& options, TCPlayer* soundPlayer,
                                 TCRepeatFields* repeatFields)
    : settings(options), player(soundPlayer), fields(repeatFields) {}

void TCVolumeAndSeek::VolumeUp() {
  ChangeVolume(settings.volumeStep);
}

void TCVolumeAndSeek::VolumeDown() {
  ChangeVolume(-std::int64_t{settings.volumeStep});
}

void TCVolumeAndSeek::ChangeVolume(std::int64_t difference) {
  if (player == nullptr) return;
  // A step may be any number; what does not fit is as loud or as soft as it gets.
  const std::int64_t wanted = player->GetVolume() + difference;
  player->SetVolume(static_cast<int>(
      std::clamp<std::int64_t>(wanted, std::numeric_limits<int>::min(), std::numeric_limits<int>::max())));
}

void TCVolumeAndSeek::SeekForward() {
  if (player == nullptr) return;
  if (const std::optional<double> position = player->GetPosition()) {
    player->SetPosition(SeekForwardTarget(*position, settings.seekStepSeconds, player->GetDurationSeconds()));
  }
}

void TCVolumeAndSeek::SeekBack() {
  if (player == nullptr) return;
  if (const std::optional<double> position = player->GetPosition()) {
    player->SetPosition(SeekBackTarget(*position, settings.seekStepSeconds));
  }
}

void TCVolumeAndSeek::SetRepeatBegin() {
  if (player != nullptr && fields != nullptr) fields->SetRepeatBegin(WholeSeconds());
}

void TCVolumeAndSeek::SetRepeatEnd() {
  if (player != nullptr && fields != nullptr) fields->SetRepeatEnd(WholeSeconds());
}

std::int32_t TCVolumeAndSeek::WholeSeconds() const {
  return static_cast<std::int32_t>(player->GetPosition().value_or(0.0));
}

}  // namespace brevant
