// Drives a player's machine as a worker would, with a clock and pipelines that do what the test says.
#pragma once

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <optional>

#include "playback/engine/player_machine.h"

namespace brevant {

MATCHER_P(Is, kind, "") {
  return arg.kind == kind;
}

class PlayerMachine : public testing::Test {
 protected:
  using Act = TCPlayerAction::Kind;
  using Say = TCPlayerNote::Kind;
  using Actions = TCPlayerMachine::Actions;

  Actions Load(const char16_t* url = u"\\a.wav") {
    return Keep(machine.OnCommand({.kind = TCPlayerCommand::Kind::Load, .url = url}, now));
  }
  Actions Play() { return Keep(machine.OnCommand({.kind = TCPlayerCommand::Kind::Play}, now)); }
  Actions Pause() { return Keep(machine.OnCommand({.kind = TCPlayerCommand::Kind::Pause}, now)); }
  Actions Stop() { return Keep(machine.OnCommand({.kind = TCPlayerCommand::Kind::Stop}, now)); }
  Actions Seek(double seconds) {
    return Keep(machine.OnCommand({.kind = TCPlayerCommand::Kind::Seek, .seconds = seconds}, now));
  }
  Actions SetVolume(int volume) {
    return Keep(machine.OnCommand({.kind = TCPlayerCommand::Kind::SetVolume, .volume = volume}, now));
  }

  // A note of the newest load or pipeline.
  Actions Note(Say kind, std::optional<double> length = {}) {
    const bool ofFile = kind == Say::FileOpened || kind == Say::FileUnreadable || kind == Say::NoSoundfont ||
                        kind == Say::LengthMeasured;
    return NoteOf(ofFile ? machine.LoadNumber() : build, kind, length);
  }
  Actions NoteOf(std::uint64_t number, Say kind, std::optional<double> length = {}) {
    TCPlayerNote note;
    note.kind = kind;
    note.number = number;
    note.length = length;
    note.lengthNeedsScan = bareMp3;
    note.detail = "words";
    if (kind == Say::FileOpened) note.playable = std::make_shared<TCPlayable>();
    return Keep(machine.OnNote(note, now));
  }

  // Time passes, and the pipeline says it stands at `position`.
  Actions Tick(double seconds, std::optional<double> position = {}) {
    now += seconds;
    return Keep(machine.OnTick({.position = position, .soundSystemStuck = stuck}, now));
  }

  void Open(double length = 100.0) {
    Load();
    Note(Say::FileOpened);
    Note(Say::PipelineReady, length);
    ASSERT_EQ(Phase(), TCPlayerPhase::Stopped);
  }
  void OpenAndSound(double position = 10.0) {
    Open();
    Play();
    Note(Say::PipelineReady);
    Tick(0.04, position);
    ASSERT_EQ(Position(), position);
  }

  double Position() const { return machine.View().positionSeconds; }
  TCPlayerPhase Phase() const { return machine.View().phase; }
  TCPlayerNotice Notice() const { return machine.View().notice; }

  // Remembers the number of the pipeline built last.
  Actions Keep(Actions actions) {
    for (const TCPlayerAction& action : actions) {
      if (action.kind == Act::Probe || action.kind == Act::BuildPlaying || action.kind == Act::BuildPaused) {
        build = action.number;
      }
    }
    return actions;
  }

  TCPlayerMachine machine;
  double now = 1000.0;
  std::uint64_t build = 0;
  bool bareMp3 = false;
  bool stuck = false;
};

}  // namespace brevant
