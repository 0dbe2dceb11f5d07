// The rules that every TCPlayer keeps, written once and run over the fake and over the real back end. A rig
// brings the player, its songs and its idea of time. A binary that includes this instantiates PlayerContract
// with its rigs.
#pragma once

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <memory>
#include <string>

#include "playback/player.h"
#include "playback/player_monitor.h"

namespace brevant {

// What the songs of a rig are like; each is of the rig's own media type where that is possible.
enum class TCContractSong {
  Tone,    // 2 seconds
  Other,   // 30 seconds
  Short,   // 0.4 seconds
  Blink,   // over before anybody polls
  Broken,  // no media at all
};

class TCPlayerRig {
 public:
  virtual ~TCPlayerRig() = default;
  virtual TCPlayer& Player() = 0;
  virtual TCPlayerMonitor& Monitor() = 0;
  virtual std::u16string Url(TCContractSong song) = 0;
  // Lets time pass until `condition` holds; false when it does not within `seconds`.
  virtual bool Await(const std::function<bool()>& condition, double seconds) = 0;
};

struct TCContractRun {
  std::string name;
  std::function<std::unique_ptr<TCPlayerRig>()> makeRig;
};

inline std::string NameOfContractRun(const testing::TestParamInfo<TCContractRun>& run) {
  return run.param.name;
}
inline void PrintTo(const TCContractRun& run, std::ostream* out) {
  *out << run.name;
}

class PlayerContract : public testing::TestWithParam<TCContractRun> {
 protected:
  // Generous, because a loaded machine is slow; a rule that holds is seen to hold at once.
  static constexpr double kSoon = 10.0;

  void SetUp() override { rig = GetParam().makeRig(); }

  TCPlayer& Player() { return rig->Player(); }
  double Position() { return Player().GetPosition().value_or(-1.0); }
  TCPlayerPhase Phase() { return rig->Monitor().Snapshot().phase; }

  bool Await(const std::function<bool()>& condition) { return rig->Await(condition, kSoon); }
  // Whether `condition` holds all through the next `seconds`.
  bool Holds(const std::function<bool()>& condition, double seconds) {
    return !rig->Await([&] { return !condition(); }, seconds);
  }

  void LoadAndOpen(TCContractSong song) {
    ASSERT_TRUE(Player().LoadUrl(rig->Url(song)));
    ASSERT_TRUE(Await([this] { return Player().GetDurationSeconds() != 0; }));
  }

  void LoadAndPlay(TCContractSong song) {
    ASSERT_TRUE(Player().LoadUrl(rig->Url(song)));
    ASSERT_TRUE(Player().Play());
    ASSERT_TRUE(Await([this] { return Position() > 0.0; }));
  }

  std::unique_ptr<TCPlayerRig> rig;
};

TEST_P(PlayerContract, BeforeTheFirstLoadNothingIsThereAndNothingHappens) {
  EXPECT_EQ(Player().GetUrl(), u"");
  EXPECT_EQ(Player().GetDurationSeconds(), -1);
  EXPECT_FALSE(Player().Play());
  Player().Pause();
  Player().SetPosition(1.0);
  Player().Stop();
  EXPECT_TRUE(Holds([this] { return Position() == 0.0 && Phase() == TCPlayerPhase::Empty; }, 0.2));
}

TEST_P(PlayerContract, TheVeryTextThatWasLoadedIsTheUrl) {
  const std::u16string url = rig->Url(TCContractSong::Tone);
  Player().LoadUrl(url);
  EXPECT_EQ(Player().GetUrl(), url);
  Player().Play();
  EXPECT_TRUE(Await([this] { return Position() > 0.0; }));
  EXPECT_EQ(Player().GetUrl(), url);
  EXPECT_EQ(rig->Monitor().Snapshot().url, url);
  Player().LoadUrl(u"\\no such\\Song.MP3");
  EXPECT_EQ(Player().GetUrl(), u"\\no such\\Song.MP3");
}

TEST_P(PlayerContract, TheLengthIsUnknownAtFirstAndThenTrue) {
  Player().LoadUrl(rig->Url(TCContractSong::Tone));
  EXPECT_EQ(Player().GetDurationSeconds(), 0);
  EXPECT_TRUE(Await([this] { return Player().GetDurationSeconds() != 0; }));
  EXPECT_EQ(Player().GetDurationSeconds(), 2);
  EXPECT_NEAR(rig->Monitor().Snapshot().durationSeconds, 2.0, 0.15);
  LoadAndOpen(TCContractSong::Other);
  EXPECT_EQ(Player().GetDurationSeconds(), 30);
}

TEST_P(PlayerContract, AKnownLengthIsAtLeastOneSecond) {
  LoadAndOpen(TCContractSong::Short);
  EXPECT_EQ(Player().GetDurationSeconds(), 1);
}

TEST_P(PlayerContract, WhatCannotBePlayedHasTheLengthMinusOneAndStaysSilent) {
  Player().LoadUrl(rig->Url(TCContractSong::Broken));
  Player().Play();
  EXPECT_TRUE(Await([this] { return Player().GetDurationSeconds() == -1; }));
  EXPECT_TRUE(Holds([this] { return Position() == 0.0; }, 0.2));
  EXPECT_EQ(Phase(), TCPlayerPhase::Failed);
  EXPECT_EQ(rig->Monitor().Snapshot().notice, TCPlayerNotice::CannotPlay);
  LoadAndPlay(TCContractSong::Tone);
  EXPECT_EQ(rig->Monitor().Snapshot().notice, TCPlayerNotice::None);
}

TEST_P(PlayerContract, LoadingNeverStartsPlayback) {
  LoadAndOpen(TCContractSong::Tone);
  EXPECT_TRUE(Holds([this] { return Position() == 0.0; }, 0.3));
  EXPECT_EQ(Phase(), TCPlayerPhase::Stopped);
}

TEST_P(PlayerContract, LoadingStopsTheSongBeforeAtOnce) {
  LoadAndPlay(TCContractSong::Other);
  Player().LoadUrl(rig->Url(TCContractSong::Tone));
  EXPECT_TRUE(Holds([this] { return Position() == 0.0; }, 0.3));
  EXPECT_TRUE(Await([this] { return Phase() == TCPlayerPhase::Stopped; }));
}

TEST_P(PlayerContract, APlayBeforeTheFileIsOpenIsHonoured) {
  Player().LoadUrl(rig->Url(TCContractSong::Tone));
  EXPECT_TRUE(Player().Play());
  EXPECT_TRUE(Await([this] { return Position() > 0.2; }));
  EXPECT_EQ(Phase(), TCPlayerPhase::Playing);
}

TEST_P(PlayerContract, AStopBeforeTheFileIsOpenTakesThePlayBack) {
  Player().LoadUrl(rig->Url(TCContractSong::Tone));
  Player().Play();
  Player().Stop();
  EXPECT_TRUE(Await([this] { return Player().GetDurationSeconds() == 2; }));
  EXPECT_TRUE(Holds([this] { return Position() == 0.0; }, 0.3));
}

TEST_P(PlayerContract, OfTwoLoadsTheNewerCounts) {
  Player().LoadUrl(rig->Url(TCContractSong::Tone));
  Player().LoadUrl(rig->Url(TCContractSong::Other));
  EXPECT_TRUE(Await([this] { return Player().GetDurationSeconds() != 0; }));
  EXPECT_EQ(Player().GetDurationSeconds(), 30);
  Player().LoadUrl(rig->Url(TCContractSong::Broken));
  Player().LoadUrl(rig->Url(TCContractSong::Tone));
  EXPECT_TRUE(Await([this] { return Player().GetDurationSeconds() != 0; }));
  EXPECT_EQ(Player().GetDurationSeconds(), 2);
}

TEST_P(PlayerContract, ASongRunsToItsEndAndThenReadsExactlyZero) {
  LoadAndPlay(TCContractSong::Tone);
  double last = 0.0;
  EXPECT_TRUE(Await([&] {
    const double position = Position();
    EXPECT_TRUE(position == 0.0 || position >= last) << position << " after " << last;
    last = std::max(last, position);
    return position == 0.0;
  }));
  EXPECT_NEAR(last, 2.0, 0.2);
  EXPECT_TRUE(Holds([this] { return Position() == 0.0; }, 0.3));
  EXPECT_EQ(Phase(), TCPlayerPhase::Stopped);
  EXPECT_EQ(Player().GetDurationSeconds(), 2);
}

TEST_P(PlayerContract, AnEndedSongPlaysAgainFromItsBeginning) {
  LoadAndPlay(TCContractSong::Short);
  EXPECT_TRUE(Await([this] { return Position() == 0.0; }));
  EXPECT_TRUE(Player().Play());
  EXPECT_TRUE(Await([this] { return Position() > 0.0; }));
  EXPECT_LT(Position(), 0.4);
  EXPECT_TRUE(Await([this] { return Position() == 0.0; }));
}

TEST_P(PlayerContract, ASongShorterThanThePollsIsSeenToSoundBeforeItEnds) {
  LoadAndOpen(TCContractSong::Blink);
  Player().Play();
  EXPECT_FALSE(rig->Await([] { return false; }, 0.5));  // nobody asks meanwhile
  EXPECT_GT(Position(), 0.0);
  EXPECT_TRUE(Await([this] { return Position() == 0.0; }));
}

TEST_P(PlayerContract, AStoppedSongReadsZeroAtOnceAndEveryTime) {
  LoadAndPlay(TCContractSong::Tone);
  Player().Stop();
  for (int poll = 0; poll < 1000; ++poll) ASSERT_EQ(Position(), 0.0) << poll;
  EXPECT_TRUE(Holds([this] { return Position() == 0.0; }, 0.3));
  EXPECT_EQ(Phase(), TCPlayerPhase::Stopped);
  EXPECT_EQ(Player().GetDurationSeconds(), 2);
}

TEST_P(PlayerContract, AStoppedSongPlaysAgainFromItsBeginning) {
  LoadAndPlay(TCContractSong::Other);
  Player().SetPosition(20.0);
  EXPECT_TRUE(Await([this] { return Position() > 20.1; }));
  Player().Stop();
  Player().Play();
  EXPECT_TRUE(Await([this] { return Position() > 0.0; }));
  EXPECT_LT(Position(), 5.0);
}

TEST_P(PlayerContract, APausedSongKeepsItsPositionAndGoesOnFromThere) {
  LoadAndPlay(TCContractSong::Other);
  EXPECT_TRUE(Await([this] { return Position() > 0.5; }));
  Player().Pause();
  EXPECT_TRUE(Await([this] { return Phase() == TCPlayerPhase::Paused; }));
  const double paused = Position();
  EXPECT_TRUE(Holds([&] { return Position() >= paused && Position() < paused + 0.3; }, 0.5));
  Player().Play();
  EXPECT_TRUE(Await([&] { return Position() > paused + 0.5; }));
  EXPECT_LT(Position(), paused + 5.0);
}

TEST_P(PlayerContract, PauseHasNoEffectOnAStoppedSong) {
  LoadAndOpen(TCContractSong::Tone);
  Player().Pause();
  EXPECT_TRUE(Holds([this] { return Position() == 0.0 && Phase() == TCPlayerPhase::Stopped; }, 0.2));
  Player().Play();
  EXPECT_TRUE(Await([this] { return Position() > 0.0; }));
}

TEST_P(PlayerContract, TheSameCommandTwiceIsTheCommandOnce) {
  LoadAndPlay(TCContractSong::Other);
  EXPECT_TRUE(Await([this] { return Position() > 0.5; }));
  Player().Play();
  EXPECT_TRUE(Holds([this] { return Position() >= 0.5; }, 0.3));
  Player().Pause();
  Player().Pause();
  EXPECT_TRUE(Await([this] { return Phase() == TCPlayerPhase::Paused; }));
  EXPECT_GE(Position(), 0.5);
  Player().Play();
  Player().Play();
  EXPECT_TRUE(Await([this] { return Position() > 1.0; }));
  Player().Stop();
  Player().Stop();
  EXPECT_TRUE(Holds([this] { return Position() == 0.0; }, 0.3));
  EXPECT_EQ(Phase(), TCPlayerPhase::Stopped);
}

TEST_P(PlayerContract, ASeekIsShownAtOnceAndPlayedOnFrom) {
  LoadAndPlay(TCContractSong::Other);
  Player().SetPosition(20.0);
  EXPECT_NEAR(Position(), 20.0, 0.5);
  EXPECT_TRUE(Holds([this] { return Position() > 19.9; }, 0.3));
  EXPECT_TRUE(Await([this] { return Position() > 20.5; }));
  Player().SetPosition(5.0);
  EXPECT_TRUE(Await([this] { return Position() > 5.2; }));
  EXPECT_LT(Position(), 15.0);
}

TEST_P(PlayerContract, OfManySeeksTheLastCounts) {
  LoadAndPlay(TCContractSong::Other);
  for (int step = 1; step <= 20; ++step) Player().SetPosition(step);
  EXPECT_NEAR(Position(), 20.0, 0.5);
  EXPECT_TRUE(Await([this] { return Position() > 20.3; }));
  EXPECT_LT(Position(), 26.0);
}

TEST_P(PlayerContract, ASeekToTheStartNeverReadsZero) {
  LoadAndPlay(TCContractSong::Other);
  for (int round = 0; round < 5; ++round) {
    Player().SetPosition(round == 0 ? -3.0 : 0.0);
    EXPECT_TRUE(Holds([this] { return Position() > 0.0; }, 0.1));
  }
  Player().Pause();
  Player().SetPosition(0.0);
  EXPECT_TRUE(Holds([this] { return Position() > 0.0; }, 0.3));
  EXPECT_LT(Position(), 0.5);
}

TEST_P(PlayerContract, APausedSongIsSeekedAndStaysPaused) {
  LoadAndPlay(TCContractSong::Other);
  Player().Pause();
  Player().SetPosition(20.0);
  EXPECT_TRUE(Holds([this] { return std::abs(Position() - 20.0) < 0.3; }, 0.3));
  EXPECT_EQ(Phase(), TCPlayerPhase::Paused);
  Player().Play();
  EXPECT_TRUE(Await([this] { return Position() > 20.4; }));
  EXPECT_LT(Position(), 26.0);
}

TEST_P(PlayerContract, ASeekPastTheEndEndsThePlayingSong) {
  LoadAndPlay(TCContractSong::Tone);
  Player().SetPosition(10'000.0);
  EXPECT_LE(Position(), 2.2);
  EXPECT_TRUE(Await([this] { return Position() == 0.0; }));
  EXPECT_TRUE(Holds([this] { return Position() == 0.0; }, 0.2));
}

TEST_P(PlayerContract, APausedSongIsNeverTakenForAnEndedOneNotEvenAtItsEnd) {
  LoadAndPlay(TCContractSong::Tone);
  Player().Pause();
  Player().SetPosition(10'000.0);
  EXPECT_TRUE(Holds([this] { return Position() > 0.0; }, 0.5));
  Player().Play();
  EXPECT_TRUE(Await([this] { return Position() == 0.0; }));
}

TEST_P(PlayerContract, ASeekOnAStoppedSongHasNoEffect) {
  LoadAndOpen(TCContractSong::Other);
  Player().SetPosition(20.0);
  EXPECT_TRUE(Holds([this] { return Position() == 0.0; }, 0.2));
  Player().Play();
  EXPECT_TRUE(Await([this] { return Position() > 0.0; }));
  EXPECT_LT(Position(), 10.0);
}

TEST_P(PlayerContract, ASeekToNoNumberGoesToTheStart) {
  LoadAndPlay(TCContractSong::Other);
  Player().SetPosition(std::nan(""));
  EXPECT_TRUE(Holds([this] { return Position() > 0.0; }, 0.2));
  EXPECT_LT(Position(), 10.0);
}

TEST_P(PlayerContract, TheVolumeIsKeptWithin0And100AndAcrossSongs) {
  EXPECT_EQ(Player().GetVolume(), 100);
  Player().SetVolume(105);
  EXPECT_EQ(Player().GetVolume(), 100);
  Player().SetVolume(-2);
  EXPECT_EQ(Player().GetVolume(), 0);
  Player().SetVolume(35);
  LoadAndPlay(TCContractSong::Tone);
  EXPECT_EQ(Player().GetVolume(), 35);
  EXPECT_EQ(rig->Monitor().Snapshot().volume, 35);
  Player().Stop();
  EXPECT_EQ(Player().GetVolume(), 35);
}

}  // namespace brevant
