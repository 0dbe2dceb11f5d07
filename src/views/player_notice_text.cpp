#include "views/player_notice_text.h"

namespace brevant {

QString NoticeText(TCPlayerNotice notice) {
  switch (notice) {
    case TCPlayerNotice::None:
      return {};
    case TCPlayerNotice::NoSoundDevice:
      return QStringLiteral("No sound device. The song goes on when there is one again.");
    case TCPlayerNotice::NoSoundfont:
      return QStringLiteral("No soundfont on this machine: MIDI songs stay silent.");
    case TCPlayerNotice::CannotPlay:
      return QStringLiteral("This file cannot be played.");
    case TCPlayerNotice::FileBrokeOff:
      return QStringLiteral("The file is damaged: the song ended early.");
    case TCPlayerNotice::LoadTimedOut:
      return QStringLiteral("The file did not open in time.");
  }
  return {};
}

QString PhaseText(TCPlayerPhase phase) {
  switch (phase) {
    case TCPlayerPhase::Empty:
      return {};
    case TCPlayerPhase::Loading:
      return QStringLiteral("Loading");
    case TCPlayerPhase::Stopped:
      return QStringLiteral("Stopped");
    case TCPlayerPhase::Playing:
      return QStringLiteral("Playing");
    case TCPlayerPhase::Paused:
      return QStringLiteral("Paused");
    case TCPlayerPhase::Failed:
      return QStringLiteral("Cannot play");
  }
  return {};
}

}  // namespace brevant
