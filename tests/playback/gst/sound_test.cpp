// The player on a real sound server whose output is recorded: that sound comes out, at the right pitch, from
// the right place, and what happens when the server goes away, freezes or comes back.
#include <gtest/gtest.h>

#include <chrono>
#include <cstdlib>
#include <span>

#include "playback/gst/gst_player.h"
#include "playback/gst/song_files.h"
#include "support/pitch.h"
#include "support/pulse_server.h"

namespace brevant {
namespace {

constexpr double kSoon = 15.0;
constexpr double kRate = TCPulseServer::kRate;
constexpr double kA4 = 440.0;
constexpr double kA5 = 880.0;

class Sound : public testing::Test {
 protected:
  void SetUp() override {
    // The player's own choice of a device is what is tested, so the server is found as any program finds it.
    ASSERT_EQ(setenv("PULSE_SERVER", server.Address().c_str(), 1), 0);
  }

  double Position() { return player->GetPosition().value_or(-1.0); }
  TCPlayerNotice Notice() { return player->Snapshot().notice; }
  bool Await(const std::function<bool()>& condition) { return AwaitReally(condition, kSoon); }
  bool Holds(const std::function<bool()>& condition, double seconds) {
    return !AwaitReally([&] { return !condition(); }, seconds);
  }
  void LoadAndPlay(const std::string& name) {
    ASSERT_TRUE(player->LoadUrl(SongUrl(name)));
    ASSERT_TRUE(player->Play());
  }
  std::vector<double> Recorded() {
    server.StopRecording();
    return server.Recording();
  }

  TCPulseServer server;
  std::unique_ptr<TCGstPlayer> player = std::make_unique<TCGstPlayer>(TCNativePaths());
};

class SoundOfType : public Sound, public testing::WithParamInterface<const char*> {};

TEST_P(SoundOfType, TheSongsPitchComesOutForAsLongAsTheSong) {
  ASSERT_TRUE(server.Start());
  ASSERT_TRUE(server.Record());
  LoadAndPlay(std::string("tone") + GetParam());
  ASSERT_TRUE(Await([this] { return Position() > 0.0; }));
  ASSERT_TRUE(Await([this] { return Position() == 0.0; }));
  const std::vector<double> heard = Recorded();
  const auto begin = FirstHeard(heard, kA4, kRate, 0.02);
  ASSERT_TRUE(begin);
  const auto offset = static_cast<std::size_t>((*begin + 0.1) * kRate);
  ASSERT_GT(heard.size(), offset + static_cast<std::size_t>(1.7 * kRate));
  const auto song = std::span(heard).subspan(offset, static_cast<std::size_t>(1.7 * kRate));
  const double pitch = Amplitude(song, kA4, kRate);
  EXPECT_GT(pitch, 0.008);  // an ocarina with vibrato, at a synth's modest gain
  for (const double semitone : {-2.0, -1.0, -0.5, 0.5, 1.0, 2.0}) {
    EXPECT_GT(pitch, 4.0 * Amplitude(song, kA4 * std::exp2(semitone / 12.0), kRate)) << semitone;
  }
}

TEST_P(SoundOfType, ASeekLandsOnTheVeryPlace) {
  ASSERT_TRUE(server.Start());
  ASSERT_TRUE(server.Record());
  const std::string name = std::string("mark") + GetParam();
  ASSERT_TRUE(player->LoadUrl(SongUrl(name)));
  ASSERT_TRUE(Await([this] { return player->GetDurationSeconds() == 30; }));
  ASSERT_TRUE(player->Play());
  // Before anything has sounded, so that the recording begins with what was sought.
  player->SetPosition(19.0);
  ASSERT_TRUE(Await([this] { return Position() > 20.5; }));
  player->Stop();
  const std::vector<double> heard = Recorded();
  const auto begin = FirstHeard(heard, kA4, kRate, 0.02);
  ASSERT_TRUE(begin);
  const auto mark = FirstHeard(heard, kA5, kRate, 0.05, *begin + 0.2);
  ASSERT_TRUE(mark);
  RecordProperty("millisecondsOff", std::to_string((*mark - *begin - 1.0) * 1000.0));
  std::printf("%s: %+.0f ms\n", name.c_str(), (*mark - *begin - 1.0) * 1000.0);
  EXPECT_NEAR(*mark - *begin, 1.0, 0.12);
}

INSTANTIATE_TEST_SUITE_P(Types, SoundOfType, testing::Values(".wav", ".mp3", "_vbr.mp3", ".wma", ".mid"),
                         [](const auto& type) {
                           std::string name = type.param;
                           std::erase_if(name, [](char letter) { return letter == '.' || letter == '_'; });
                           return name;
                         });

TEST_F(Sound, StopSilencesAtOnce) {
  ASSERT_TRUE(server.Start());
  ASSERT_TRUE(server.Record());
  LoadAndPlay("mark.wav");
  ASSERT_TRUE(Await([this] { return Position() > 0.5; }));
  player->Stop();
  const double stoppedAt = static_cast<double>(server.Recording().size()) / kRate;
  ASSERT_TRUE(
      Await([&] { return static_cast<double>(server.Recording().size()) / kRate > stoppedAt + 1.0; }));
  const std::vector<double> heard = Recorded();
  const auto later = std::span(heard).subspan(static_cast<std::size_t>((stoppedAt + 0.5) * kRate));
  EXPECT_EQ(Loudness(later), 0.0);
}

TEST_F(Sound, HalfTheVolumeIs18DecibelsLessAndFollowsTheSliderWhilePlaying) {
  ASSERT_TRUE(server.Start());
  ASSERT_TRUE(server.Record());
  LoadAndPlay("mark.wav");
  ASSERT_TRUE(Await([this] { return Position() > 1.0; }));
  player->SetVolume(50);
  ASSERT_TRUE(Await([this] { return Position() > 2.5; }));
  player->Stop();
  const std::vector<double> heard = Recorded();
  const double begin = FirstHeard(heard, kA4, kRate, 0.2).value_or(-1.0);
  ASSERT_GE(begin, 0.0);
  const auto stretch = [&](double from) {
    return Loudness(std::span(heard).subspan(static_cast<std::size_t>((begin + from) * kRate), 13230));
  };
  EXPECT_NEAR(stretch(0.5), 0.5 / std::sqrt(2.0), 0.02);
  EXPECT_NEAR(20.0 * std::log10(stretch(2.0) / stretch(0.5)), -18.06, 0.5);
}

TEST_F(Sound, WithoutADeviceThereIsANoticeAndThePositionStays0UntilThereIsOne) {
  LoadAndPlay("mark.wav");
  ASSERT_TRUE(Await([this] { return Notice() == TCPlayerNotice::NoSoundDevice; }));
  EXPECT_EQ(player->GetDurationSeconds(), 30);
  EXPECT_TRUE(Holds([this] { return Position() == 0.0 && Notice() == TCPlayerNotice::NoSoundDevice; }, 1.0));
  EXPECT_FALSE(player->Snapshot().detail.empty());
  ASSERT_TRUE(server.Start());
  ASSERT_TRUE(player->Play());
  EXPECT_TRUE(Await([this] { return Position() > 0.2; }));
  EXPECT_EQ(Notice(), TCPlayerNotice::None);
}

TEST_F(Sound, APlayWithoutADeviceIsTakenBackByAStop) {
  LoadAndPlay("mark.wav");
  ASSERT_TRUE(Await([this] { return Notice() == TCPlayerNotice::NoSoundDevice; }));
  player->Stop();
  EXPECT_TRUE(Await([this] { return Notice() == TCPlayerNotice::None; }));
  ASSERT_TRUE(server.Start());
  EXPECT_TRUE(Holds([this] { return Position() == 0.0; }, 1.5));
}

TEST_F(Sound, WhenTheServerDiesThePositionIsHeldAndTheSongGoesOnWhenItReturns) {
  ASSERT_TRUE(server.Start());
  LoadAndPlay("mark.wav");
  ASSERT_TRUE(Await([this] { return Position() > 0.5; }));
  server.Kill();
  ASSERT_TRUE(Await([this] { return Notice() == TCPlayerNotice::NoSoundDevice; }));
  const double held = Position();
  EXPECT_GE(held, 0.5);
  EXPECT_TRUE(Holds([&] { return Position() == held; }, 1.0));
  ASSERT_TRUE(server.Start());
  ASSERT_TRUE(server.Record());
  EXPECT_TRUE(Await([&] { return Position() > held + 1.5; }));
  EXPECT_LT(Position(), held + 8.0);
  EXPECT_EQ(Notice(), TCPlayerNotice::None);
  EXPECT_TRUE(FirstHeard(Recorded(), kA4, kRate, 0.2));
}

TEST_F(Sound, WhenTheServerDiesDuringAPauseTheSongGoesOnFromThereAfterwards) {
  ASSERT_TRUE(server.Start());
  LoadAndPlay("mark.wav");
  ASSERT_TRUE(Await([this] { return Position() > 0.5; }));
  player->Pause();
  ASSERT_TRUE(Await([this] { return player->Snapshot().phase == TCPlayerPhase::Paused; }));
  player->SetPosition(12.0);
  server.Kill();
  EXPECT_TRUE(Holds([this] { return std::abs(Position() - 12.0) < 0.5; }, 1.0));
  ASSERT_TRUE(server.Start());
  player->Play();
  EXPECT_TRUE(Await([this] { return Position() > 12.5; }));
  EXPECT_LT(Position(), 18.0);
}

TEST_F(Sound, StopWhileTheServerIsGoneReads0AndThereIsNoWayBack) {
  ASSERT_TRUE(server.Start());
  LoadAndPlay("mark.wav");
  ASSERT_TRUE(Await([this] { return Position() > 0.5; }));
  server.Kill();
  ASSERT_TRUE(Await([this] { return Notice() == TCPlayerNotice::NoSoundDevice; }));
  player->Stop();
  for (int poll = 0; poll < 1000; ++poll) ASSERT_EQ(Position(), 0.0);
  ASSERT_TRUE(server.Start());
  EXPECT_TRUE(Holds([this] { return Position() == 0.0; }, 1.5));
}

// How long the longest of the calls took, in seconds.
class TCSlowest {
 public:
  template <class TCall>
  void Time(const char* name, TCall call) {
    const auto begin = std::chrono::steady_clock::now();
    call();
    const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
    if (took > worst) {
      worst = took;
      worstName = name;
    }
  }
  double worst = 0.0;
  const char* worstName = "";
};

TEST_F(Sound, NoCallWaitsForAFrozenServerAndTheSongGoesOnWhenItThaws) {
  ASSERT_TRUE(server.Start());
  LoadAndPlay("mark.wav");
  ASSERT_TRUE(Await([this] { return Position() > 0.5; }));
  server.Freeze();
  TCSlowest slowest;
  const auto deadline = std::chrono::steady_clock::now() + std::chrono::seconds(6);
  for (int round = 0; std::chrono::steady_clock::now() < deadline; ++round) {
    slowest.Time("GetPosition", [&] { EXPECT_GE(Position(), 0.0); });
    slowest.Time("Snapshot", [&] { EXPECT_EQ(player->Snapshot().volume, player->GetVolume()); });
    slowest.Time("GetDurationSeconds", [&] { EXPECT_LE(player->GetDurationSeconds(), 30); });
    if (round % 20 == 3) slowest.Time("SetPosition", [&] { player->SetPosition(5.0); });
    if (round % 20 == 6) slowest.Time("Pause", [&] { player->Pause(); });
    if (round % 20 == 9) slowest.Time("Play", [&] { player->Play(); });
    if (round % 20 == 12) slowest.Time("SetVolume", [&] { player->SetVolume(80); });
    if (round % 60 == 45) slowest.Time("Stop", [&] { player->Stop(); });
    if (round % 60 == 50) slowest.Time("LoadUrl", [&] { player->LoadUrl(SongUrl("mark.mid")); });
    if (round % 60 == 55) slowest.Time("Play", [&] { player->Play(); });
    std::this_thread::sleep_for(std::chrono::milliseconds(20));
  }
  std::printf("slowest call with a frozen sound server: %s %.2f ms\n", slowest.worstName,
              slowest.worst * 1000.0);
  EXPECT_LT(slowest.worst, 0.25) << slowest.worstName;
  server.Thaw();
  player->LoadUrl(SongUrl("mark.wav"));
  player->Play();
  EXPECT_TRUE(Await([this] { return Position() > 1.0; }));
  EXPECT_EQ(Notice(), TCPlayerNotice::None);
}

TEST_F(Sound, ASongThatPlaysWhenTheServerFreezesIsHeldAndGoesOnByItself) {
  ASSERT_TRUE(server.Start());
  LoadAndPlay("mark.wav");
  ASSERT_TRUE(Await([this] { return Position() > 0.5; }));
  server.Freeze();
  ASSERT_TRUE(Await([this] { return Notice() == TCPlayerNotice::NoSoundDevice; }));
  const double held = Position();
  EXPECT_GT(held, 0.0);
  EXPECT_TRUE(Holds([&] { return Position() > 0.0; }, 2.0));
  server.Thaw();
  EXPECT_TRUE(Await([&] { return Position() > held + 0.5; }));
  EXPECT_EQ(Notice(), TCPlayerNotice::None);
}

TEST_F(Sound, TheEndOfTheProgramDoesNotWaitForAFrozenServer) {
  ASSERT_TRUE(server.Start());
  LoadAndPlay("mark.wav");
  ASSERT_TRUE(Await([this] { return Position() > 0.5; }));
  server.Freeze();
  player->Stop();
  player->Play();
  const auto begin = std::chrono::steady_clock::now();
  player.reset();
  const double took = std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
  std::printf("destroyed in %.2f s\n", took);
  EXPECT_LT(took, 3.0);
  server.Thaw();
}

TEST_F(Sound, FiftySongsOneAfterAnotherAllSound) {
  ASSERT_TRUE(server.Start());
  for (int song = 0; song < 50; ++song) {
    LoadAndPlay(song % 3 == 0 ? "tone.wav" : song % 3 == 1 ? "tone.mp3" : "tone.mid");
    ASSERT_TRUE(Await([this] { return Position() > 0.0; })) << song;
  }
}

}  // namespace
}  // namespace brevant
