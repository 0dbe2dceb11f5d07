#include "playback/engine/player_machine.h"

#include "playback/engine/machine_driver.h"

namespace brevant {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

TEST_F(PlayerMachine, BeforeTheFirstLoadEveryCommandIsWithoutEffect) {
  EXPECT_THAT(Play(), IsEmpty());
  EXPECT_THAT(Pause(), IsEmpty());
  EXPECT_THAT(Seek(3.0), IsEmpty());
  Stop();
  EXPECT_EQ(Phase(), TCPlayerPhase::Empty);
  EXPECT_EQ(machine.DurationSeconds(), -1);
  EXPECT_FALSE(machine.TickDueIn(now));
}

TEST_F(PlayerMachine, ALoadOpensTheFileThenProbesItThenRests) {
  EXPECT_THAT(Load(), ElementsAre(Is(Act::OpenFile)));
  EXPECT_EQ(Phase(), TCPlayerPhase::Loading);
  EXPECT_EQ(machine.DurationSeconds(), 0);
  EXPECT_THAT(Note(Say::FileOpened), ElementsAre(Is(Act::Probe)));
  EXPECT_THAT(Note(Say::PipelineReady, 12.9), ElementsAre(Is(Act::Discard)));
  EXPECT_EQ(Phase(), TCPlayerPhase::Stopped);
  EXPECT_EQ(machine.DurationSeconds(), 12);
  EXPECT_FALSE(machine.TickDueIn(now));
}

TEST_F(PlayerMachine, AMidiSongNeedsNoProbe) {
  Load();
  TCPlayerNote note;
  note.kind = Say::FileOpened;
  note.number = machine.LoadNumber();
  auto song = std::make_shared<TCMidiSong>();
  song->nanoseconds = 7'500'000'000;
  auto playable = std::make_shared<TCPlayable>();
  playable->midi = song;
  note.playable = playable;
  EXPECT_THAT(machine.OnNote(note, now), IsEmpty());
  EXPECT_EQ(machine.DurationSeconds(), 7);
}

TEST_F(PlayerMachine, ABareMp3IsMeasuredWhileItMayAlreadyPlay) {
  bareMp3 = true;
  Load();
  Play();
  Note(Say::FileOpened);
  EXPECT_THAT(Note(Say::PipelineReady, 99.0),
              ElementsAre(Is(Act::Discard), Is(Act::MeasureLength), Is(Act::BuildPlaying)));
  EXPECT_EQ(machine.DurationSeconds(), 0);
  Note(Say::LengthMeasured, 30.5);
  EXPECT_EQ(machine.DurationSeconds(), 30);
}

TEST_F(PlayerMachine, AMeasureThatFailsLeavesThePipelinesGuessAndALateOneReplacesIt) {
  bareMp3 = true;
  Open(99.0);
  Note(Say::LengthMeasured);
  EXPECT_EQ(machine.DurationSeconds(), 99);
  Open(88.0);
  EXPECT_EQ(machine.DurationSeconds(), 0);
  Tick(4.0);
  EXPECT_EQ(machine.DurationSeconds(), 88);
  Note(Say::LengthMeasured);
  EXPECT_EQ(machine.DurationSeconds(), 88);
  Note(Say::LengthMeasured, 30.0);
  EXPECT_EQ(machine.DurationSeconds(), 30);
}

TEST_F(PlayerMachine, AMeasureOfAnOlderSongIsNoNews) {
  bareMp3 = true;
  Open();
  const std::uint64_t old = machine.LoadNumber();
  Open();
  NoteOf(old, Say::LengthMeasured, 5.0);
  EXPECT_EQ(machine.DurationSeconds(), 0);
}

TEST_F(PlayerMachine, ALengthBelowOneSecondIsOne) {
  Open(0.4);
  EXPECT_EQ(machine.DurationSeconds(), 1);
  Open(0.0);
  EXPECT_EQ(machine.DurationSeconds(), 1);
}

TEST_F(PlayerMachine, ASongOfUnknownLengthTakesItFromTheRunningPipeline) {
  Load();
  Note(Say::FileOpened);
  Note(Say::PipelineReady);
  EXPECT_EQ(machine.DurationSeconds(), -1);
  Play();
  Note(Say::PipelineReady);
  now += 0.04;
  EXPECT_THAT(machine.OnTick({.position = 0.1, .length = 20.0}, now), IsEmpty());
  EXPECT_EQ(machine.DurationSeconds(), 20);
}

TEST_F(PlayerMachine, AFileThatDoesNotOpenInTimeFails) {
  Load();
  Tick(3.9);
  EXPECT_EQ(machine.DurationSeconds(), 0);
  EXPECT_THAT(Tick(0.1), IsEmpty());
  EXPECT_EQ(machine.DurationSeconds(), -1);
  EXPECT_EQ(Notice(), TCPlayerNotice::LoadTimedOut);
  // It opens after all: too late.
  EXPECT_THAT(Note(Say::FileOpened), IsEmpty());
  EXPECT_EQ(Phase(), TCPlayerPhase::Failed);
}

TEST_F(PlayerMachine, AProbeThatSaysNothingFailsWithinTheLoadTimeAndIsDiscarded) {
  Load();
  Note(Say::FileOpened);
  EXPECT_THAT(Tick(4.0), ElementsAre(Is(Act::Discard)));
  EXPECT_EQ(Notice(), TCPlayerNotice::LoadTimedOut);
  EXPECT_THAT(Note(Say::PipelineReady, 10.0), IsEmpty());
  EXPECT_EQ(machine.DurationSeconds(), -1);
}

TEST_F(PlayerMachine, WhatCannotBeOpenedOrDecodedFailsWithTheBackEndsWords) {
  Load();
  Note(Say::FileUnreadable);
  EXPECT_EQ(Notice(), TCPlayerNotice::CannotPlay);
  EXPECT_EQ(machine.View().detail, "words");
  Load();
  EXPECT_EQ(Notice(), TCPlayerNotice::None);
  Note(Say::NoSoundfont);
  EXPECT_EQ(Notice(), TCPlayerNotice::NoSoundfont);
  Load();
  Note(Say::FileOpened);
  EXPECT_THAT(Note(Say::SourceFailed), ElementsAre(Is(Act::Discard)));
  EXPECT_EQ(Notice(), TCPlayerNotice::CannotPlay);
  EXPECT_EQ(machine.DurationSeconds(), -1);
  EXPECT_THAT(Play(), IsEmpty());
  Stop();
  EXPECT_EQ(Notice(), TCPlayerNotice::CannotPlay);
}

TEST_F(PlayerMachine, ErrorsComeInPairsAndTheSecondIsNoNews) {
  Load();
  Note(Say::FileOpened);
  Note(Say::SourceFailed);
  Load();
  EXPECT_THAT(Note(Say::SourceFailed), IsEmpty());
  EXPECT_EQ(Phase(), TCPlayerPhase::Loading);
}

TEST_F(PlayerMachine, AStoppedSongIsBuiltColdAndReadsZeroUntilItsPositionMoves) {
  Open();
  SetVolume(40);
  EXPECT_THAT(Play(), ElementsAre(AllOf(Is(Act::BuildPlaying), Field(&TCPlayerAction::volume, 40))));
  EXPECT_EQ(Phase(), TCPlayerPhase::Playing);
  Note(Say::PipelineReady);
  Tick(0.04, 0.0);
  EXPECT_EQ(Position(), 0.0);
  Tick(0.04, 0.02);
  EXPECT_EQ(Position(), 0.02);
}

TEST_F(PlayerMachine, OnceBegunAPositionOfZeroIsTheSmallestThereIs) {
  OpenAndSound();
  Seek(0.0);
  EXPECT_EQ(Position(), kPositionJustBegun);
  Note(Say::PipelineReady);
  Tick(0.04, 0.0);
  EXPECT_EQ(Position(), kPositionJustBegun);
  Pause();
  EXPECT_EQ(Position(), kPositionJustBegun);
}

TEST_F(PlayerMachine, ThePositionNeverExceedsTheLength) {
  OpenAndSound();
  Tick(0.04, 103.0);
  EXPECT_EQ(Position(), 100.0);
}

TEST_F(PlayerMachine, TheEndOfTheStreamIsTheEndOfTheSong) {
  OpenAndSound();
  EXPECT_THAT(Note(Say::EndOfStream), ElementsAre(Is(Act::Discard)));
  EXPECT_EQ(Phase(), TCPlayerPhase::Stopped);
  EXPECT_EQ(Position(), 0.0);
  EXPECT_EQ(machine.Ends(), 1U);
  EXPECT_THAT(Play(), ElementsAre(Is(Act::BuildPlaying)));
}

TEST_F(PlayerMachine, AnEndThatASeekCalledTheSongBackFromIsNone) {
  OpenAndSound(99.9);
  Seek(5.0);
  EXPECT_THAT(Note(Say::EndOfStream), IsEmpty());
  Note(Say::PipelineReady);
  Tick(0.04, 5.1);
  EXPECT_EQ(Position(), 5.1);
  Note(Say::EndOfStream);
  EXPECT_EQ(machine.Ends(), 1U);
}

TEST_F(PlayerMachine, AnEndInTheMomentOfThePauseWaitsForThePlay) {
  OpenAndSound(99.9);
  Pause();
  EXPECT_THAT(Note(Say::EndOfStream), IsEmpty());
  EXPECT_GT(Position(), 0.0);
  EXPECT_THAT(Play(), ElementsAre(Is(Act::Discard)));
  EXPECT_EQ(Position(), 0.0);
  EXPECT_EQ(machine.Ends(), 1U);
}

TEST_F(PlayerMachine, ASeekTakesBackAnEndThatWaitsForThePlay) {
  OpenAndSound(99.9);
  Pause();
  Note(Say::EndOfStream);
  EXPECT_THAT(Seek(50.0), ElementsAre(Is(Act::Seek)));
  Note(Say::PipelineReady);
  EXPECT_THAT(Play(), ElementsAre(Is(Act::Resume)));
  EXPECT_EQ(machine.Ends(), 0U);
}

TEST_F(PlayerMachine, APauseBeforeAnythingSoundedLetsThePipelineGo) {
  Open();
  Play();
  EXPECT_THAT(Pause(), ElementsAre(Is(Act::Discard)));
  EXPECT_EQ(Phase(), TCPlayerPhase::Paused);
  EXPECT_EQ(Position(), 0.0);
  EXPECT_THAT(Play(), ElementsAre(Is(Act::BuildPlaying)));
}

TEST_F(PlayerMachine, APauseDuringTheOpeningHoldsThePlayBack) {
  Load();
  Play();
  Pause();
  Note(Say::FileOpened);
  EXPECT_THAT(Note(Say::PipelineReady, 100.0), ElementsAre(Is(Act::Discard)));
  EXPECT_THAT(Play(), ElementsAre(Is(Act::BuildPlaying)));
}

TEST_F(PlayerMachine, AStopWhileTheFileIsProbedLeavesTheSongPlayable) {
  Load();
  Play();
  Note(Say::FileOpened);
  EXPECT_THAT(Stop(), IsEmpty());
  Note(Say::PipelineReady, 100.0);
  Tick(5.0);
  EXPECT_EQ(machine.View().phase, TCPlayerPhase::Stopped);
  EXPECT_EQ(machine.DurationSeconds(), 100);
  EXPECT_THAT(Play(), ElementsAre(Is(Act::BuildPlaying)));
}

TEST_F(PlayerMachine, APauseWhileTheFileIsProbedLeavesTheSongPlayable) {
  Load();
  Play();
  Note(Say::FileOpened);
  EXPECT_THAT(Pause(), IsEmpty());
  Note(Say::PipelineReady, 100.0);
  Tick(5.0);
  EXPECT_EQ(machine.View().phase, TCPlayerPhase::Paused);
  EXPECT_EQ(machine.DurationSeconds(), 100);
  EXPECT_THAT(Play(), ElementsAre(Is(Act::BuildPlaying)));
}

TEST_F(PlayerMachine, AfterAPauseOnlyAPositionCloseByIsBelieved) {
  OpenAndSound(10.0);
  Pause();
  Tick(0.04, 10.02);
  EXPECT_EQ(Position(), 10.02);
  Tick(0.04, 0.0);
  Tick(0.04, 55.0);
  EXPECT_EQ(Position(), 10.02);
}

TEST_F(PlayerMachine, PlayAndPauseOfWhatPlaysOrRestsAlreadyDoNothing) {
  OpenAndSound();
  EXPECT_THAT(Play(), IsEmpty());
  EXPECT_THAT(Pause(), ElementsAre(Is(Act::Pause)));
  EXPECT_THAT(Pause(), IsEmpty());
  EXPECT_THAT(Play(), ElementsAre(Is(Act::Resume)));
  Stop();
  EXPECT_THAT(Pause(), IsEmpty());
}

TEST_F(PlayerMachine, SeeksAreClampedAndCollectedWhileOneIsUnderWay) {
  OpenAndSound();
  EXPECT_THAT(Seek(1e9), ElementsAre(AllOf(Is(Act::Seek), Field(&TCPlayerAction::seconds, 100.0))));
  EXPECT_THAT(Seek(20.0), IsEmpty());
  EXPECT_THAT(Seek(30.0), IsEmpty());
  EXPECT_EQ(Position(), 30.0);
  EXPECT_THAT(Note(Say::PipelineReady),
              ElementsAre(AllOf(Is(Act::Seek), Field(&TCPlayerAction::seconds, 30.0))));
  EXPECT_THAT(Note(Say::PipelineReady), IsEmpty());
  EXPECT_THAT(Seek(-5.0), ElementsAre(AllOf(Is(Act::Seek), Field(&TCPlayerAction::seconds, 0.0))));
}

TEST_F(PlayerMachine, WhatThePipelineSaysDuringASeekIsNotShown) {
  OpenAndSound(10.0);
  Seek(50.0);
  Tick(0.04, 10.3);
  EXPECT_EQ(Position(), 50.0);
}

TEST_F(PlayerMachine, ARefusedSeekGoesOnWhereTheSongIs) {
  OpenAndSound(10.0);
  Seek(50.0);
  EXPECT_THAT(Note(Say::SeekRefused), IsEmpty());
  Tick(0.04, 10.3);
  EXPECT_EQ(Position(), 10.3);
}

TEST_F(PlayerMachine, ASeekBeforeTheSoundBeginsIsWhereItBegins) {
  Load();
  Play();
  Seek(20.0);
  EXPECT_EQ(Position(), 0.0);
  Note(Say::FileOpened);
  EXPECT_THAT(Note(Say::PipelineReady, 100.0), ElementsAre(Is(Act::Discard), Is(Act::BuildPaused)));
  EXPECT_THAT(Note(Say::PipelineReady),
              ElementsAre(AllOf(Is(Act::Seek), Field(&TCPlayerAction::seconds, 20.0))));
  EXPECT_THAT(Note(Say::PipelineReady), ElementsAre(Is(Act::Resume)));
  Tick(0.04, 20.0);
  EXPECT_EQ(Position(), 0.0) << "it stands there, but has not moved yet";
  Tick(0.04, 20.02);
  EXPECT_EQ(Position(), 20.02);
}

TEST_F(PlayerMachine, AStopOrALoadDuringASeekWins) {
  OpenAndSound();
  Seek(50.0);
  EXPECT_THAT(Stop(), ElementsAre(Is(Act::Discard)));
  EXPECT_THAT(Note(Say::PipelineReady), IsEmpty());
  EXPECT_EQ(Position(), 0.0);
  OpenAndSound();
  Seek(50.0);
  EXPECT_THAT(Load(), ElementsAre(Is(Act::Discard), Is(Act::OpenFile)));
  EXPECT_EQ(Position(), 0.0);
}

TEST_F(PlayerMachine, AFileThatVanishesBeforeItSoundsCannotBePlayed) {
  Open();
  Play();
  EXPECT_THAT(Note(Say::SourceFailed), ElementsAre(Is(Act::Discard)));
  EXPECT_EQ(machine.DurationSeconds(), -1);
  EXPECT_EQ(Position(), 0.0);
  EXPECT_EQ(machine.Ends(), 0U);
}

TEST_F(PlayerMachine, AFileThatBreaksOffEndsTheSongAndSaysSo) {
  OpenAndSound();
  Note(Say::SourceFailed);
  EXPECT_EQ(Position(), 0.0);
  EXPECT_EQ(machine.Ends(), 1U);
  EXPECT_EQ(Notice(), TCPlayerNotice::FileBrokeOff);
  EXPECT_EQ(machine.DurationSeconds(), 100);
  Play();
  EXPECT_EQ(Notice(), TCPlayerNotice::None);
}

TEST_F(PlayerMachine, AFileThatBreaksOffDuringAPauseEndsOnPlay) {
  OpenAndSound();
  Pause();
  Note(Say::SourceFailed);
  EXPECT_GT(Position(), 0.0);
  Play();
  EXPECT_EQ(Position(), 0.0);
  EXPECT_EQ(Notice(), TCPlayerNotice::FileBrokeOff);
}

TEST_F(PlayerMachine, TheVolumeReachesThePipelineThatSounds) {
  EXPECT_THAT(SetVolume(30), IsEmpty());
  OpenAndSound();
  EXPECT_THAT(SetVolume(60), ElementsAre(AllOf(Is(Act::SetVolume), Field(&TCPlayerAction::volume, 60))));
}

TEST_F(PlayerMachine, NothingTicksWhileNothingMoves) {
  Open();
  EXPECT_FALSE(machine.TickDueIn(now));
  Play();
  EXPECT_LE(machine.TickDueIn(now).value(), 0.05);
  Note(Say::PipelineReady);
  Tick(0.04, 1.0);
  Pause();
  EXPECT_TRUE(machine.TickDueIn(now));
  now += 1.0;
  EXPECT_FALSE(machine.TickDueIn(now));
}

// Whatever happens in whatever order, what is shown keeps the player's promises.
TEST_F(PlayerMachine, NoOrderOfEventsBreaksThePromises) {
  std::uint32_t random = 12345;
  const auto next = [&random](std::uint32_t limit) {
    random = random * 1664525u + 1013904223u;
    return (random >> 8) % limit;
  };
  bool begun = false;
  for (int step = 0; step < 200'000; ++step) {
    bareMp3 = next(8) == 0;
    stuck = next(8) == 0;
    switch (next(20)) {
      case 0:
        Load();
        break;
      case 1:
        Stop();
        break;
      case 2:
      case 3:
        Play();
        break;
      case 4:
        Pause();
        break;
      case 5:
        Seek(static_cast<double>(next(120)) - 10.0);
        break;
      case 6:
      case 7:
        Note(Say::FileOpened);
        break;
      case 8:
      case 9:
      case 10:
        Note(Say::PipelineReady, 100.0);
        break;
      case 11:
        Note(Say::EndOfStream);
        break;
      case 12:
        Note(Say::SinkFailed);
        break;
      case 13:
        next(4) == 0 ? Note(Say::SourceFailed) : Note(Say::LengthMeasured, 90.0);
        break;
      case 14:
        Keep(machine.OnTakeover(now));
        break;
      default:
        Tick(next(30) * 0.02, next(3) == 0 ? std::nullopt : std::optional(next(110) * 1.0));
        break;
    }
    const TCPlayerSnapshot view = machine.View();
    const bool active = view.phase == TCPlayerPhase::Playing || view.phase == TCPlayerPhase::Paused;
    ASSERT_GE(view.positionSeconds, 0.0);
    ASSERT_LE(view.positionSeconds, 110.0);
    if (!active) {
      ASSERT_EQ(view.positionSeconds, 0.0) << step;
    }
    begun = active && (begun || view.positionSeconds > 0.0);
    ASSERT_EQ(begun, view.positionSeconds > 0.0) << step;
    const int duration = machine.DurationSeconds();
    if (view.phase == TCPlayerPhase::Loading) {
      ASSERT_EQ(duration, 0);
    }
    if (duration == 0) {
      ASSERT_TRUE(machine.TickDueIn(now)) << "an unknown length is always being worked on";
    }
    if (view.phase == TCPlayerPhase::Failed || view.phase == TCPlayerPhase::Empty) {
      ASSERT_EQ(duration, -1);
    }
  }
}

}  // namespace
}  // namespace brevant
