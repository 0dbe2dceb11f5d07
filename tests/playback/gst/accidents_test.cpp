// What can go wrong on a stage, each by its name, over a sink that has a clock but no device.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <random>

#include "playback/gst/gst_player.h"
#include "playback/gst/song_files.h"
#include "support/temp_folder.h"

namespace brevant {
namespace {

constexpr double kSoon = 10.0;

class Accident : public testing::Test {
 protected:
  static TCGstPlayerOptions Options() { return {.audioSink = "fakesink sync=true"}; }

  void Restart(const TCGstPlayerOptions& options) {
    player = std::make_unique<TCGstPlayer>(TCNativePaths(), options);
  }
  double Position() { return player->GetPosition().value_or(-1.0); }
  TCPlayerNotice Notice() { return player->Snapshot().notice; }
  bool Await(const std::function<bool()>& condition) { return AwaitReally(condition, kSoon); }
  bool Holds(const std::function<bool()>& condition, double seconds) {
    return !AwaitReally([&] { return !condition(); }, seconds);
  }
  void Load(const std::filesystem::path& file) { ASSERT_TRUE(player->LoadUrl(UrlOf(file))); }
  void LoadAndPlay(const std::filesystem::path& file) {
    Load(file);
    ASSERT_TRUE(player->Play());
  }
  bool Opened() {
    return Await([this] { return player->GetDurationSeconds() != 0; });
  }
  // Plays the song that came after the accident.
  void ExpectToPlayOn() {
    LoadAndPlay(SongFile("tone.wav"));
    EXPECT_TRUE(Await([this] { return Position() > 0.0; }));
    EXPECT_EQ(player->GetDurationSeconds(), 2);
    EXPECT_EQ(Notice(), TCPlayerNotice::None);
  }
  void ExpectUnplayable(const std::filesystem::path& file) {
    LoadAndPlay(file);
    ASSERT_TRUE(Opened());
    EXPECT_EQ(player->GetDurationSeconds(), -1);
    EXPECT_EQ(Notice(), TCPlayerNotice::CannotPlay);
    EXPECT_FALSE(player->Snapshot().detail.empty());
    EXPECT_EQ(Position(), 0.0);
    ExpectToPlayOn();
  }

  TCTempFolder folder;
  std::unique_ptr<TCGstPlayer> player = std::make_unique<TCGstPlayer>(TCNativePaths(), Options());
};

TEST_F(Accident, TheFileIsNotThere) {
  ExpectUnplayable(folder.Native("nothing.mp3"));
}

TEST_F(Accident, TheFileIsEmpty) {
  ExpectUnplayable(SongFile("empty.mp3"));
}

TEST_F(Accident, ATextIsNamedLikeASong) {
  ExpectUnplayable(SongFile("text.mp3"));
}

TEST_F(Accident, TheFileIsAFolder) {
  folder.MakeFolder("song.mp3");
  ExpectUnplayable(folder.Native("song.mp3"));
}

TEST_F(Accident, TheFileIsAPipeNobodyWritesTo) {
  ASSERT_EQ(mkfifo(folder.Native("pipe.wav").c_str(), 0600), 0);
  ExpectUnplayable(folder.Native("pipe.wav"));
}

TEST_F(Accident, TheMidiFileHasNoTracks) {
  ExpectUnplayable(folder.Write("a.mid", BytesOf(SongFile("tone.mid")).substr(0, 14)));
}

TEST_F(Accident, NoSoundfontIsOnTheMachine) {
  TCGstPlayerOptions options = Options();
  options.systemSoundfont = folder.Native("nothing.sf2");
  options.dataFolders = {folder.Native("")};
  Restart(options);
  LoadAndPlay(SongFile("tone.mid"));
  ASSERT_TRUE(Opened());
  EXPECT_EQ(player->GetDurationSeconds(), -1);
  EXPECT_EQ(Notice(), TCPlayerNotice::NoSoundfont);
  ExpectToPlayOn();
}

TEST_F(Accident, TheFirstSoundfontIsDamagedAndTheNextIsTaken) {
  TCGstPlayerOptions options = Options();
  options.soundfont = folder.Write("damaged.sf2", "RIFF....sfbk");
  Restart(options);
  LoadAndPlay(SongFile("tone.mid"));
  EXPECT_TRUE(Await([this] { return Position() > 0.0; }));
}

TEST_F(Accident, TheFileVanishesBetweenLoadAndPlay) {
  const auto file = folder.Write("song.wav", BytesOf(SongFile("tone.wav")));
  Load(file);
  ASSERT_TRUE(Opened());
  EXPECT_EQ(player->GetDurationSeconds(), 2);
  std::filesystem::remove(file);
  player->Play();
  EXPECT_TRUE(Await([this] { return player->GetDurationSeconds() == -1; }));
  EXPECT_EQ(Notice(), TCPlayerNotice::CannotPlay);
  EXPECT_EQ(Position(), 0.0);
  ExpectToPlayOn();
}

TEST_F(Accident, TheFileVanishesWhileItPlays) {
  const auto file = folder.Write("song.mp3", BytesOf(SongFile("tone.mp3")));
  LoadAndPlay(file);
  ASSERT_TRUE(Await([this] { return Position() > 0.1; }));
  std::filesystem::remove(file);
  EXPECT_TRUE(Await([this] { return Position() == 0.0; }));
  ExpectToPlayOn();
}

TEST_F(Accident, TheFileIsCutShort) {
  for (const char* name : {"tone.wav", "tone.mp3", "tone_vbr.mp3", "tone.wma", "tone.mid"}) {
    SCOPED_TRACE(name);
    const std::string bytes = BytesOf(SongFile(name));
    LoadAndPlay(folder.Write(name, bytes.substr(0, bytes.size() * 2 / 3)));
    ASSERT_TRUE(Opened());
    ASSERT_GE(player->GetDurationSeconds(), 1);
    EXPECT_TRUE(Await([this] { return Position() > 0.0; }));
    EXPECT_TRUE(Await([this] { return Position() == 0.0; }));
    EXPECT_EQ(player->Snapshot().phase, TCPlayerPhase::Stopped);
  }
}

TEST_F(Accident, ASeekGoesBehindTheCut) {
  const std::string bytes = BytesOf(SongFile("mark.wav"));
  LoadAndPlay(folder.Write("cut.wav", bytes.substr(0, bytes.size() / 2)));
  ASSERT_TRUE(Await([this] { return Position() > 0.0; }));
  player->SetPosition(25.0);
  EXPECT_TRUE(Await([this] { return Position() == 0.0; }));
  ExpectToPlayOn();
}

TEST_F(Accident, ASongWithoutASampleEndsAtOnceAndIsSeenToHave) {
  Load(SongFile("silent.wav"));
  ASSERT_TRUE(Opened());
  player->Play();
  // Either it cannot be played, or it ends; nothing waits for it.
  EXPECT_TRUE(Await([this] { return player->GetDurationSeconds() == -1 || Position() > 0.0; }));
  EXPECT_TRUE(Await([this] { return Position() == 0.0; }));
  ExpectToPlayOn();
}

TEST_F(Accident, TheWmaHeaderIsDamaged) {
  const std::string whole = BytesOf(SongFile("tone.wma"));
  TCGstPlayerOptions options = Options();
  options.limits.load = 0.5;
  Restart(options);
  std::mt19937 random(7);
  int unplayable = 0;
  for (int round = 0; round < 30; ++round) {
    std::string damaged = whole;
    for (int hit = 0; hit < 40; ++hit) damaged[30 + random() % 600] = static_cast<char>(random() & 0xFF);
    const auto begin = std::chrono::steady_clock::now();
    Load(folder.Write("damaged.wma", damaged));
    ASSERT_TRUE(Opened()) << round;
    EXPECT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(3)) << round;
    unplayable += player->GetDurationSeconds() == -1 ? 1 : 0;
  }
  EXPECT_GT(unplayable, 0);
  Restart(Options());
  ExpectToPlayOn();
}

TEST_F(Accident, TheMp3IsFullOfNoise) {
  std::string damaged = BytesOf(SongFile("tone.mp3"));
  std::mt19937 random(11);
  for (int hit = 0; hit < 2000; ++hit)
    damaged[random() % damaged.size()] = static_cast<char>(random() & 0xFF);
  LoadAndPlay(folder.Write("noise.mp3", damaged));
  ASSERT_TRUE(Opened());
  if (player->GetDurationSeconds() > 0) {
    EXPECT_TRUE(Await([this] { return Position() > 0.0; }));
    EXPECT_TRUE(Await([this] { return Position() == 0.0; }));
  }
  ExpectToPlayOn();
}

TEST_F(Accident, TheSongEndsDuringASeek) {
  LoadAndPlay(SongFile("tone.wav"));
  ASSERT_TRUE(Await([this] { return Position() > 0.0; }));
  for (int round = 0; round < 40; ++round) {
    player->SetPosition(1.99);
    std::this_thread::sleep_for(std::chrono::milliseconds(round * 2));
    player->SetPosition(0.5);
    // It ended before it was called back, or it was called back and plays: never anything between.
    ASSERT_TRUE(Await([this] { return Position() == 0.0 || (Position() > 0.5 && Position() < 1.5); }));
    if (Position() == 0.0) {
      player->Play();
      ASSERT_TRUE(Await([this] { return Position() > 0.0; }));
    }
  }
}

TEST_F(Accident, ThePauseComesInTheMomentOfTheEnd) {
  Load(SongFile("short.wav"));
  ASSERT_TRUE(Opened());
  for (int round = 0; round < 20; ++round) {
    player->Play();
    ASSERT_TRUE(Await([this] { return Position() > 0.0; }));
    std::this_thread::sleep_for(std::chrono::milliseconds(350 + 5 * round));
    player->Pause();
    ASSERT_TRUE(Await([this] { return player->Snapshot().phase != TCPlayerPhase::Playing; }));
    if (player->Snapshot().phase == TCPlayerPhase::Paused) {
      EXPECT_GT(Position(), 0.0);
      player->Play();
    }
    ASSERT_TRUE(Await([this] { return Position() == 0.0; })) << round;
  }
}

TEST_F(Accident, ThousandPollsRightAfterEachOfManyStopsAllReadZero) {
  for (int round = 0; round < 30; ++round) {
    LoadAndPlay(SongFile(round % 2 == 0 ? "tone.wav" : "tone.mid"));
    ASSERT_TRUE(Await([this] { return Position() > 0.0; }));
    player->Stop();
    for (int poll = 0; poll < 1000; ++poll) ASSERT_EQ(Position(), 0.0) << round << ", " << poll;
  }
}

int Threads() {
  int threads = 0;
  for ([[maybe_unused]] const auto& task : std::filesystem::directory_iterator("/proc/self/task")) ++threads;
  return threads;
}

TEST_F(Accident, TwoHundredSongsLeaveNoThreadBehind) {
  const char* const names[] = {"tone.wav", "tone.mp3", "tone.wma", "tone.mid", "text.mp3"};
  const auto play = [&](int count) {
    for (int song = 0; song < count; ++song) {
      LoadAndPlay(SongFile(names[song % 5]));
      ASSERT_TRUE(Await([this] { return Position() > 0.0 || player->GetDurationSeconds() == -1; })) << song;
      player->Stop();
    }
  };
  play(20);
  int before = 0;
  ASSERT_TRUE(Await([&] { return (before = Threads()) < 12; }));
  play(200);
  // GStreamer keeps a few idle threads of its own for a while.
  EXPECT_TRUE(Await([&] { return Threads() <= before + 2; })) << Threads() << " after " << before;
}

TEST_F(Accident, ThePlayerGoesInTheMiddleOfAnything) {
  for (int round = 0; round < 60; ++round) {
    LoadAndPlay(SongFile(round % 3 == 0 ? "tone.mp3" : round % 3 == 1 ? "tone.mid" : "tone.wma"));
    std::this_thread::sleep_for(std::chrono::milliseconds(round));
    if (round % 4 == 1) player->SetPosition(1.0);
    if (round % 4 == 2) player->Pause();
    const auto begin = std::chrono::steady_clock::now();
    Restart(Options());
    ASSERT_LT(std::chrono::steady_clock::now() - begin, std::chrono::seconds(3)) << round;
  }
  ExpectToPlayOn();
}

TEST_F(Accident, KeysArePressedAtRandom) {
  const char* const names[] = {"mark.wav", "mark_vbr.mp3", "tone.wma", "mark.mid", "text.mp3", "short.wav"};
  std::mt19937 random(3);
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(8);
  while (std::chrono::steady_clock::now() < deadline) {
    switch (random() % 8) {
      case 0:
        Load(SongFile(names[random() % 6]));
        break;
      case 1:
        player->Stop();
        ASSERT_EQ(Position(), 0.0);
        break;
      case 2:
        player->Pause();
        break;
      case 3:
      case 4:
        player->SetPosition(static_cast<double>(random() % 40) - 5.0);
        break;
      case 5:
        player->SetVolume(static_cast<int>(random() % 120));
        break;
      default:
        player->Play();
        break;
    }
    ASSERT_GE(Position(), 0.0);
    if (random() % 3 == 0) std::this_thread::sleep_for(std::chrono::milliseconds(random() % 30));
  }
  ExpectToPlayOn();
}

TEST_F(Accident, TheNameHasSignsThatMeanSomethingInAnAddress) {
  const auto file = folder.Write("100% #1 ?\xC3\xA4\xE2\x82\xAC'&.wav", BytesOf(SongFile("tone.wav")));
  LoadAndPlay(file);
  EXPECT_TRUE(Await([this] { return Position() > 0.0; }));
}

TEST_F(Accident, TheNameWasWrittenInOtherUpperAndLowerCase) {
  folder.Write("Song.WAV", BytesOf(SongFile("tone.wav")));
  LoadAndPlay(folder.Native("SONG.wav"));
  EXPECT_TRUE(Await([this] { return Position() > 0.0; }));
}

TEST_F(Accident, ASinkThatDoesNotExistIsAMissingDevice) {
  Restart({.audioSink = "nosuchsink"});
  LoadAndPlay(SongFile("tone.wav"));
  EXPECT_TRUE(Await([this] { return Notice() == TCPlayerNotice::NoSoundDevice; }));
  EXPECT_TRUE(Holds([this] { return Position() == 0.0; }, 0.5));
  EXPECT_EQ(player->GetDurationSeconds(), 2);
}

}  // namespace
}  // namespace brevant
