#include "playback/engine/player_desk.h"

#include <gtest/gtest.h>

#include <atomic>
#include <thread>

namespace brevant {
namespace {

using Kind = TCPlayerCommand::Kind;
using Say = TCPlayerNote::Kind;

// The desk with a worker that does only what the test says, and a clock set by hand.
class PlayerDesk : public testing::Test {
 protected:
  // Takes and decides everything that lies on the desk. The actions are the test's own business.
  void Work() {
    TCPlayerDesk::Item item;
    while (desk.WaitForItem(ticket, 0.0, item) == TCPlayerDesk::Wake::Item) {
      if (const auto* command = std::get_if<TCPlayerCommand>(&item)) {
        Remember(machine.OnCommand(*command, now));
      } else {
        Remember(machine.OnNote(std::get<TCPlayerNote>(item), now));
      }
      desk.Publish(ticket, machine);
    }
  }
  void Say(Say kind, std::uint64_t number, std::optional<double> length = {}) {
    TCPlayerNote note;
    note.kind = kind;
    note.number = number;
    note.length = length;
    if (kind == Say::FileOpened) note.playable = std::make_shared<TCPlayable>();
    desk.Post(note);
  }
  void Sound(double position) {
    now += 0.04;
    Remember(machine.OnTick({.position = position}, now));
    desk.Publish(ticket, machine);
  }
  void Open() {
    desk.Load(u"\\a.wav");
    Work();
    Say(Say::FileOpened, machine.LoadNumber());
    Work();
    Say(Say::PipelineReady, build, 100.0);
    Work();
  }
  void OpenAndPlay() {
    Open();
    desk.Play();
    Work();
    Say(Say::PipelineReady, build);
    Work();
  }
  void Remember(const TCPlayerMachine::Actions& actions) {
    for (const TCPlayerAction& action : actions) {
      if (action.kind != TCPlayerAction::Kind::OpenFile) build = std::max(build, action.number);
    }
  }
  TCPlayerPhase Phase() const { return desk.Snapshot().phase; }

  double now = 50.0;
  TCPlayerDesk desk{[this] { return now; }};
  TCPlayerMachine machine;
  TCPlayerDesk::Ticket ticket = desk.FirstTicket();
  std::uint64_t build = 0;
};

TEST_F(PlayerDesk, ALoadShowsAtOnceWhateverTheWorkerDoes) {
  OpenAndPlay();
  Sound(10.0);
  desk.SetVolume(30);
  desk.Load(u"\\b.wav");
  EXPECT_EQ(desk.Position(), 0.0);
  EXPECT_EQ(desk.Url(), u"\\b.wav");
  EXPECT_EQ(desk.DurationSeconds(), 0);
  EXPECT_EQ(Phase(), TCPlayerPhase::Loading);
  EXPECT_EQ(desk.Volume(), 30);
  // The worker has not got there yet and still tells of the song before.
  Sound(10.1);
  EXPECT_EQ(desk.Position(), 0.0);
  EXPECT_EQ(desk.Url(), u"\\b.wav");
  EXPECT_EQ(desk.DurationSeconds(), 0);
}

TEST_F(PlayerDesk, AStopReads0EvenWhileTheWorkerStillTellsOfTheSong) {
  OpenAndPlay();
  Sound(10.0);
  EXPECT_EQ(desk.Position(), 10.0);
  desk.Stop();
  EXPECT_EQ(desk.Position(), 0.0);
  Sound(10.1);
  EXPECT_EQ(desk.Position(), 0.0);
  EXPECT_EQ(Phase(), TCPlayerPhase::Stopped);
  Work();
  EXPECT_EQ(desk.Position(), 0.0);
  EXPECT_EQ(desk.DurationSeconds(), 100);
}

TEST_F(PlayerDesk, ASeekShowsAtOnceClampedAndNeverAsZero) {
  OpenAndPlay();
  Sound(10.0);
  desk.Seek(1e9);
  EXPECT_EQ(desk.Position(), 100.0);
  Sound(10.1);
  EXPECT_EQ(desk.Position(), 100.0);
  desk.Seek(-1.0);
  EXPECT_EQ(desk.Position(), kPositionJustBegun);
}

TEST_F(PlayerDesk, ASeekBeforeTheSoundLeavesTheZero) {
  OpenAndPlay();
  desk.Seek(20.0);
  EXPECT_EQ(desk.Position(), 0.0);
}

TEST_F(PlayerDesk, AnEndThatWasSeenComingIsShownAtOnce) {
  OpenAndPlay();
  Sound(99.0);
  EXPECT_EQ(desk.Position(), 99.0);
  Say(Say::EndOfStream, build);
  Work();
  EXPECT_EQ(desk.Position(), 0.0);
  EXPECT_EQ(Phase(), TCPlayerPhase::Stopped);
}

TEST_F(PlayerDesk, AnEndNobodySawComingIsHeldForOnePosition) {
  OpenAndPlay();
  Sound(0.05);
  Say(Say::EndOfStream, build);
  Work();
  EXPECT_EQ(Phase(), TCPlayerPhase::Playing);
  EXPECT_EQ(desk.Position(), 0.05);
  EXPECT_EQ(desk.Position(), 0.0);
  EXPECT_EQ(Phase(), TCPlayerPhase::Stopped);
}

TEST_F(PlayerDesk, AnEndBeforeAnyPositionIsHeldAsTheSmallestOne) {
  OpenAndPlay();
  Say(Say::EndOfStream, build);
  Work();
  EXPECT_EQ(desk.Position(), kPositionJustBegun);
  EXPECT_EQ(desk.Position(), 0.0);
}

TEST_F(PlayerDesk, AHeldEndIsGivenUpAfterAWhileOrByACommand) {
  OpenAndPlay();
  Say(Say::EndOfStream, build);
  Work();
  now += 1.1;
  EXPECT_EQ(Phase(), TCPlayerPhase::Stopped);
  EXPECT_EQ(desk.Position(), 0.0);
  OpenAndPlay();
  Say(Say::EndOfStream, build);
  Work();
  desk.Stop();
  EXPECT_EQ(desk.Position(), 0.0);
  OpenAndPlay();
  Say(Say::EndOfStream, build);
  Work();
  desk.Play();
  EXPECT_EQ(desk.Position(), 0.0);
}

TEST_F(PlayerDesk, AnEndThatAStopOvertookIsNotHeld) {
  OpenAndPlay();
  Sound(0.05);
  Say(Say::EndOfStream, build);
  desk.Stop();
  Work();
  EXPECT_EQ(desk.Position(), 0.0);
  EXPECT_EQ(Phase(), TCPlayerPhase::Stopped);
}

TEST_F(PlayerDesk, EachPlayingMustBeSeenAnew) {
  OpenAndPlay();
  Sound(1.0);
  EXPECT_EQ(desk.Position(), 1.0);
  Say(Say::EndOfStream, build);
  Work();
  EXPECT_EQ(desk.Position(), 0.0);
  desk.Play();
  Work();
  Say(Say::EndOfStream, build);
  Work();
  EXPECT_GT(desk.Position(), 0.0);
}

TEST_F(PlayerDesk, PlayWithoutASongIsRefused) {
  EXPECT_FALSE(desk.Play());
  desk.Load(u"\\a.wav");
  EXPECT_TRUE(desk.Play());
}

TEST_F(PlayerDesk, TheVolumeIsKeptWithinItsBounds) {
  desk.SetVolume(130);
  EXPECT_EQ(desk.Volume(), 100);
  desk.SetVolume(-4);
  EXPECT_EQ(desk.Snapshot().volume, 0);
}

TEST_F(PlayerDesk, AWorkerIsReplacedOnlyWhenItIsLongAtOneItem) {
  TCPlayerDesk::Item item;
  EXPECT_FALSE(desk.ReplaceWorkerIfStuck(1.0)) << "it has not even begun";
  desk.Load(u"\\a.wav");
  EXPECT_EQ(desk.WaitForItem(ticket, {}, item), TCPlayerDesk::Wake::Item);
  now += 0.9;
  EXPECT_FALSE(desk.ReplaceWorkerIfStuck(1.0));
  now += 0.2;
  const auto handover = desk.ReplaceWorkerIfStuck(1.0);
  ASSERT_TRUE(handover);
  EXPECT_NE(handover->ticket, ticket);
  EXPECT_EQ(desk.StuckWorkers(), 1);
  EXPECT_FALSE(desk.ReplaceWorkerIfStuck(1.0)) << "the new one has done nothing yet";
}

TEST_F(PlayerDesk, AReplacedWorkerIsNotHeardAnyMoreAndLeaves) {
  OpenAndPlay();
  Sound(10.0);
  TCPlayerDesk::Item item;
  EXPECT_EQ(desk.WaitForItem(ticket, 0.0, item), TCPlayerDesk::Wake::Tick);
  now += 2.0;
  auto handover = desk.ReplaceWorkerIfStuck(1.0);
  ASSERT_TRUE(handover);
  EXPECT_EQ(handover->machine.View().positionSeconds, 10.0);
  EXPECT_FALSE(desk.Publish(ticket, TCPlayerMachine()));
  EXPECT_EQ(desk.Position(), 10.0);
  EXPECT_EQ(desk.WaitForItem(ticket, {}, item), TCPlayerDesk::Wake::Leave);
  desk.LeaveWork(ticket);
  EXPECT_EQ(desk.StuckWorkers(), 0);
  EXPECT_TRUE(desk.Publish(handover->ticket, handover->machine));
}

TEST_F(PlayerDesk, AWorkerAfterOneThatWasOnlySlowGetsMoreTimeUntilASongSounds) {
  OpenAndPlay();
  TCPlayerDesk::Item item;
  double patience = 1.0;
  for (const double next : {2.0, 4.0, 4.0}) {
    EXPECT_EQ(desk.WaitForItem(ticket, 0.0, item), TCPlayerDesk::Wake::Tick);
    now += patience - 0.1;
    EXPECT_FALSE(desk.ReplaceWorkerIfStuck(1.0)) << patience;
    now += 0.2;
    const auto handover = desk.ReplaceWorkerIfStuck(1.0);
    ASSERT_TRUE(handover) << patience;
    desk.LeaveWork(ticket);
    ticket = handover->ticket;
    patience = next;
  }
  Sound(10.0);
  EXPECT_EQ(desk.WaitForItem(ticket, 0.0, item), TCPlayerDesk::Wake::Tick);
  now += 1.1;
  EXPECT_TRUE(desk.ReplaceWorkerIfStuck(1.0));
}

TEST_F(PlayerDesk, CommandsGivenWhileAWorkerIsStuckReachTheNext) {
  TCPlayerDesk::Item item;
  desk.Load(u"\\a.wav");
  EXPECT_EQ(desk.WaitForItem(ticket, {}, item), TCPlayerDesk::Wake::Item);
  desk.Load(u"\\b.wav");
  now += 2.0;
  const auto handover = desk.ReplaceWorkerIfStuck(1.0);
  ASSERT_TRUE(handover);
  for (const std::u16string_view url : {u"\\a.wav", u"\\b.wav"}) {  // the one in hand first
    ASSERT_EQ(desk.WaitForItem(handover->ticket, {}, item), TCPlayerDesk::Wake::Item);
    EXPECT_EQ(std::get<TCPlayerCommand>(item).url, url);
  }
}

TEST_F(PlayerDesk, WhatAWorkerHasDecidedIsNotDecidedAgainByTheNext) {
  TCPlayerDesk::Item item;
  desk.Load(u"\\a.wav");
  EXPECT_EQ(desk.WaitForItem(ticket, {}, item), TCPlayerDesk::Wake::Item);
  EXPECT_TRUE(desk.Publish(ticket, machine));
  now += 2.0;  // stuck in carrying it out
  const auto handover = desk.ReplaceWorkerIfStuck(1.0);
  ASSERT_TRUE(handover);
  EXPECT_EQ(desk.WaitForItem(handover->ticket, 0.0, item), TCPlayerDesk::Wake::Tick);
}

TEST_F(PlayerDesk, ClosingWakesTheWorkerAndRefusesTheRest) {
  std::atomic<bool> left = false;
  std::thread worker([&] {
    TCPlayerDesk::Item item;
    left = desk.WaitForItem(ticket, {}, item) == TCPlayerDesk::Wake::Leave;
  });
  desk.Close();
  worker.join();
  EXPECT_TRUE(left);
  EXPECT_FALSE(desk.Publish(ticket, machine));
  desk.Load(u"\\a.wav");
  EXPECT_FALSE(desk.Play());
}

TEST_F(PlayerDesk, AllThreadsMayUseItAtOnce) {
  std::atomic<bool> done = false;
  std::thread worker([&] {
    TCPlayerMachine own;
    TCPlayerDesk::Item item;
    for (;;) {
      const auto wake = desk.WaitForItem(ticket, 0.001, item);
      if (wake == TCPlayerDesk::Wake::Leave) break;
      if (wake == TCPlayerDesk::Wake::Item && std::holds_alternative<TCPlayerCommand>(item)) {
        EXPECT_FALSE(own.OnCommand(std::get<TCPlayerCommand>(item), 1.0).size() > 2);
      }
      desk.Publish(ticket, own);
    }
    done = true;
  });
  std::thread pipeline([&] {
    for (std::uint64_t note = 0; note < 2000; ++note) Say(Say::EndOfStream, note);
  });
  for (int round = 0; round < 2000; ++round) {
    desk.Load(u"\\a.wav");
    desk.Play();
    EXPECT_EQ(desk.Position(), 0.0);
    desk.Seek(round);
    desk.Stop();
    EXPECT_EQ(desk.Position(), 0.0);
  }
  pipeline.join();
  desk.Close();
  worker.join();
  EXPECT_TRUE(done);
}

}  // namespace
}  // namespace brevant
