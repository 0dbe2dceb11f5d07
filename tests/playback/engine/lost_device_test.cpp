// What the player's machine does when the sound system goes away, hangs or returns.
#include "playback/engine/machine_driver.h"

namespace brevant {
namespace {

using testing::AllOf;
using testing::ElementsAre;
using testing::Field;
using testing::IsEmpty;

TEST_F(PlayerMachine, ALostDeviceHoldsThePositionAndIsTriedAgainEverMoreSlowly) {
  OpenAndSound(10.0);
  EXPECT_THAT(Note(Say::SinkFailed), ElementsAre(Is(Act::Discard)));
  EXPECT_EQ(Notice(), TCPlayerNotice::NoSoundDevice);
  EXPECT_EQ(Phase(), TCPlayerPhase::Playing);
  for (const double delay : {0.1, 0.2, 0.4, 0.8, 1.0, 1.0}) {
    EXPECT_THAT(Tick(delay - 0.01), IsEmpty()) << delay;
    EXPECT_THAT(Tick(0.02), ElementsAre(Is(Act::BuildPaused))) << delay;
    Note(Say::SinkFailed);
    EXPECT_EQ(Position(), 10.0);
  }
}

TEST_F(PlayerMachine, ADeviceThatReturnsTakesTheSongUpWhereItWas) {
  OpenAndSound(10.0);
  Note(Say::SinkFailed);
  Tick(0.1);
  EXPECT_THAT(Note(Say::PipelineReady),
              ElementsAre(AllOf(Is(Act::Seek), Field(&TCPlayerAction::seconds, 10.0))));
  EXPECT_THAT(Note(Say::PipelineReady), ElementsAre(Is(Act::Resume)));
  Tick(0.04, 10.0);
  EXPECT_EQ(Notice(), TCPlayerNotice::NoSoundDevice) << "nothing has moved yet";
  Tick(0.04, 10.1);
  EXPECT_EQ(Notice(), TCPlayerNotice::None);
  EXPECT_EQ(Position(), 10.1);
}

TEST_F(PlayerMachine, APlayWhileTheDeviceIsGoneTriesAtOnceAndAPauseNoMore) {
  OpenAndSound(10.0);
  Note(Say::SinkFailed);
  EXPECT_THAT(Play(), ElementsAre(Is(Act::BuildPaused)));
  Note(Say::SinkFailed);
  Pause();
  EXPECT_THAT(Tick(5.0), IsEmpty());
  EXPECT_EQ(Position(), 10.0);
  EXPECT_THAT(Play(), ElementsAre(Is(Act::BuildPaused)));
}

TEST_F(PlayerMachine, ASeekWhileTheDeviceIsGoneMovesWhereItWillGoOn) {
  OpenAndSound(10.0);
  Note(Say::SinkFailed);
  EXPECT_THAT(Seek(40.0), IsEmpty());
  EXPECT_EQ(Position(), 40.0);
  Tick(0.1);
  EXPECT_THAT(Note(Say::PipelineReady), ElementsAre(Field(&TCPlayerAction::seconds, 40.0)));
}

TEST_F(PlayerMachine, AStopWhileTheDeviceIsGoneEndsTheTrying) {
  OpenAndSound();
  Note(Say::SinkFailed);
  Stop();
  EXPECT_EQ(Position(), 0.0);
  EXPECT_EQ(Notice(), TCPlayerNotice::None);
  EXPECT_THAT(Tick(5.0), IsEmpty());
}

TEST_F(PlayerMachine, ASongThatStandsStillHasLostItsDevice) {
  OpenAndSound(10.0);
  EXPECT_THAT(Tick(1.4, 10.0), IsEmpty());
  EXPECT_THAT(Tick(0.2, 10.0), ElementsAre(Is(Act::Discard)));
  EXPECT_EQ(Notice(), TCPlayerNotice::NoSoundDevice);
  EXPECT_EQ(Position(), 10.0);
}

TEST_F(PlayerMachine, APausedSongMayStandStill) {
  OpenAndSound(10.0);
  Pause();
  EXPECT_THAT(Tick(60.0, 10.0), IsEmpty());
  Play();
  EXPECT_THAT(Tick(0.04, 10.0), IsEmpty());
}

TEST_F(PlayerMachine, APipelineThatNeverGetsReadyOrASeekThatNeverEndsIsALostDevice) {
  Open();
  Play();
  EXPECT_THAT(Tick(3.9), IsEmpty());
  EXPECT_THAT(Tick(0.2), ElementsAre(Is(Act::Discard)));
  Stop();
  OpenAndSound();
  Seek(50.0);
  EXPECT_THAT(Tick(4.1), ElementsAre(Is(Act::Discard)));
  EXPECT_EQ(Position(), 50.0);
}

TEST_F(PlayerMachine, ANewWorkerOpensAHalfOpenedFileAgainWithinTheSameTime) {
  Load();
  Play();
  Note(Say::FileOpened);
  now += 2.0;
  EXPECT_THAT(Keep(machine.OnTakeover(now)), ElementsAre(Is(Act::OpenFile)));
  EXPECT_THAT(Note(Say::FileOpened), ElementsAre(Is(Act::Probe)));
  EXPECT_THAT(Note(Say::PipelineReady, 100.0), ElementsAre(Is(Act::Discard), Is(Act::BuildPlaying)));
  Load();
  now += 2.0;
  Keep(machine.OnTakeover(now));
  Tick(2.0);
  EXPECT_EQ(machine.DurationSeconds(), -1);
}

TEST_F(PlayerMachine, ANewWorkerHoldsThePlayingSongAndWaitsForTheOldOneToComeBack) {
  OpenAndSound(10.0);
  EXPECT_THAT(Keep(machine.OnTakeover(now)), IsEmpty());
  EXPECT_EQ(Notice(), TCPlayerNotice::NoSoundDevice);
  EXPECT_EQ(Position(), 10.0);
  stuck = true;
  EXPECT_THAT(Tick(5.0), IsEmpty());
  stuck = false;
  EXPECT_THAT(Tick(0.1), ElementsAre(Is(Act::BuildPaused)));
}

TEST_F(PlayerMachine, ANewWorkerLeavesAPausedSongPausedAndAStoppedOneStopped) {
  OpenAndSound(10.0);
  Pause();
  EXPECT_THAT(Keep(machine.OnTakeover(now)), IsEmpty());
  EXPECT_EQ(Phase(), TCPlayerPhase::Paused);
  EXPECT_EQ(Position(), 10.0);
  EXPECT_THAT(Play(), ElementsAre(Is(Act::BuildPaused)));
  Stop();
  EXPECT_THAT(Keep(machine.OnTakeover(now)), IsEmpty());
  EXPECT_EQ(Phase(), TCPlayerPhase::Stopped);
  EXPECT_EQ(Notice(), TCPlayerNotice::None);
}

TEST_F(PlayerMachine, ANewWorkerMeasuresAgainWhatWasBeingMeasured) {
  bareMp3 = true;
  Open();
  EXPECT_THAT(machine.OnTakeover(now), ElementsAre(Is(Act::MeasureLength)));
}

}  // namespace
}  // namespace brevant
