#include "playback/transport_rules.h"

namespace brevant {

TCTickAction DecideTick(const TCTickInput& input) {
  const bool sounding = input.position != 0.0;
  if (!input.started) return sounding ? TCTickAction::MarkStarted : TCTickAction::Wait;
  const bool rangeSet = input.autoPlayPlayList && input.repeatEnd != 0;
  if (rangeSet && input.position > input.repeatEnd) return TCTickAction::JumpToRepeatBegin;
  return sounding ? TCTickAction::Wait : TCTickAction::EndSong;
}

TCAdvance DecideAdvance(const TCAdvanceInput& input) {
  if (!input.autoSongAdvance) return TCAdvance::Rest;
  if (input.hasNextSong) return TCAdvance::NextSong;
  return input.autoRecycle ? TCAdvance::NextPlaylist : TCAdvance::Rest;
}

TCPlaylistStep StepToNextPlaylist(const TCSetListStore& store) {
  if (store.groups.empty()) return {};
  const std::int32_t nextInGroup = store.currentPlaylist + 1;
  if (store.IsValidPlaylist(store.currentGroup, nextInGroup)) return {true, store.currentGroup, nextInGroup};
  const std::int32_t nextGroup = store.currentGroup + 1;
  if (!store.IsValidGroup(nextGroup)) return {};
  return {true, nextGroup, 0};
}

TCPlaylistStep StepToPriorPlaylist(const TCSetListStore& store) {
  if (store.groups.empty()) return {};
  const std::int32_t priorInGroup = store.currentPlaylist - 1;
  if (priorInGroup >= 0) return {true, store.currentGroup, priorInGroup};
  const std::int32_t priorGroup = store.currentGroup - 1;
  if (priorGroup < 0) return {};
  return {true, priorGroup, 0};
}

}  // namespace brevant
