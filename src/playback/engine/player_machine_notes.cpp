// What the machine makes of the notes from files and pipelines.
#include <algorithm>

#include "playback/engine/player_machine.h"

namespace brevant {

namespace {

using Kind = TCPlayerAction::Kind;

}  // namespace

TCPlayerMachine::Actions TCPlayerMachine::OnNote(const TCPlayerNote& note, double now) {
  Actions actions;
  switch (note.kind) {
    case TCPlayerNote::Kind::FileOpened:
    case TCPlayerNote::Kind::FileUnreadable:
    case TCPlayerNote::Kind::NoSoundfont:
    case TCPlayerNote::Kind::LengthMeasured:
      if (note.number == loadNumber) OnFileNote(note, now, actions);
      return actions;
    default:
      break;
  }
  if (note.number != buildNumber) return actions;
  switch (note.kind) {
    case TCPlayerNote::Kind::PipelineReady:
    case TCPlayerNote::Kind::SeekRefused:
      if (file == File::Probing) {
        OnProbed(note, now, actions);
      } else {
        OnPipelineReady(note, now, actions);
      }
      break;
    case TCPlayerNote::Kind::EndOfStream:
      // While a seek is under way this is the end that the song was called back from.
      if (HasPipeline() && !seeking) OnEndOfStream(actions);
      break;
    case TCPlayerNote::Kind::SinkFailed:
      OnDeviceLost(note.detail, now, actions);
      break;
    case TCPlayerNote::Kind::SourceFailed:
      OnSourceFailed(note, actions);
      break;
    default:
      break;
  }
  return actions;
}

void TCPlayerMachine::OnFileNote(const TCPlayerNote& note, double now, Actions& actions) {
  if (note.kind == TCPlayerNote::Kind::LengthMeasured) {
    // Better late than a guess: the exact length replaces it even after the load time.
    if (file == File::Ready && (note.length || lengthPending))
      length = note.length ? note.length : roughLength;
    lengthPending = false;
    return;
  }
  // A second answer comes when a new worker had to ask again.
  if (file != File::Opening) return;
  if (note.kind == TCPlayerNote::Kind::NoSoundfont)
    return Fail(TCPlayerNotice::NoSoundfont, note.detail, actions);
  if (note.kind == TCPlayerNote::Kind::FileUnreadable || !note.playable) {
    return Fail(TCPlayerNotice::CannotPlay, note.detail, actions);
  }
  playable = note.playable;
  if (!playable->midi) return Probe(now, actions);
  file = File::Ready;
  length = static_cast<double>(playable->midi->nanoseconds) / 1e9;
  if (want == Want::Playing) Build(now, actions);
}

void TCPlayerMachine::OnProbed(const TCPlayerNote& note, double now, Actions& actions) {
  actions.push_back({Kind::Discard, buildNumber});
  ++buildNumber;
  file = File::Ready;
  if (note.lengthNeedsScan) {
    lengthPending = true;
    roughLength = note.length;
    actions.push_back({Kind::MeasureLength, loadNumber});
  } else {
    length = note.length;
  }
  if (want == Want::Playing) Build(now, actions);
}

void TCPlayerMachine::OnPipelineReady(const TCPlayerNote& note, double now, Actions& actions) {
  if (!HasPipeline()) return;
  waitingSince = now;
  movedAt = now;
  if (!ready) {
    ready = true;
    if (sound == Sound::Positioning) sound = Sound::Starting;
    if (resumeWhenThere || seekAgain) IssueSeek(now, actions);
    return;
  }
  if (!seeking) return;
  seeking = false;
  if (seekAgain && note.kind == TCPlayerNote::Kind::PipelineReady) return IssueSeek(now, actions);
  seekAgain = false;
  if (resumeWhenThere && want == Want::Playing) actions.push_back({Kind::Resume, buildNumber});
  resumeWhenThere = false;
}

void TCPlayerMachine::OnEndOfStream(Actions& actions) {
  if (want == Want::Paused) {
    endReached = true;
    return;
  }
  End(actions);
}

void TCPlayerMachine::End(Actions& actions) {
  DiscardPipeline(actions);
  Rest();
  ++ends;
}

void TCPlayerMachine::OnSourceFailed(const TCPlayerNote& note, Actions& actions) {
  if (!HasPipeline() || !begun) return Fail(TCPlayerNotice::CannotPlay, note.detail, actions);
  notice = TCPlayerNotice::FileBrokeOff;
  detail = note.detail;
  // What was read so far has sounded or is lost with the buffers: there is nothing to go on with.
  OnEndOfStream(actions);
}

void TCPlayerMachine::OnDeviceLost(const std::string& words, double now, Actions& actions) {
  if (sound == Sound::None) return;
  DiscardPipeline(actions);
  notice = TCPlayerNotice::NoSoundDevice;
  detail = words;
  if (want != Want::Playing) return;
  sound = Sound::Lost;
  retryDelay = retryDelay == 0.0 ? limits.firstRetry : std::min(retryDelay * 2.0, limits.longestRetry);
  retryAt = now + retryDelay;
}

void TCPlayerMachine::Fail(TCPlayerNotice why, const std::string& words, Actions& actions) {
  DiscardPipeline(actions);
  Rest();
  file = File::Failed;
  length.reset();
  lengthPending = false;
  notice = why;
  detail = words;
}

}  // namespace brevant
