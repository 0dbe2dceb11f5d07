#include "playback/gst/gst_length_probe.h"

#include <gtest/gtest.h>
#include <sys/stat.h>

#include <chrono>
#include <memory>

#include "playback/gst/song_files.h"
#include "support/hanging_disk.h"
#include "support/temp_folder.h"

namespace brevant {
namespace {

constexpr double kSoon = 10.0;

double SecondsSince(std::chrono::steady_clock::time_point begin) {
  return std::chrono::duration<double>(std::chrono::steady_clock::now() - begin).count();
}

class GstLengthProbe : public testing::Test {
 protected:
  void Restart(const TCGstPlayerOptions& options) {
    probe = std::make_unique<TCGstLengthProbe>(TCNativePaths(), options);
  }
  // 0 when it does not get known.
  int Answer() {
    AwaitReally([this] { return probe->GetDurationSeconds() != 0; }, kSoon);
    return probe->GetDurationSeconds();
  }
  int LengthOf(const std::u16string& url) {
    probe->Open(url);
    return Answer();
  }
  int LengthOf(const std::string& song) { return LengthOf(SongUrl(song)); }

  static int PlayersLengthOf(const std::u16string& url) {
    TCGstPlayer player(TCNativePaths(), {.audioSink = "fakesink"});
    player.LoadUrl(url);
    EXPECT_TRUE(AwaitReally([&player] { return player.GetDurationSeconds() != 0; }, kSoon));
    return player.GetDurationSeconds();
  }

  TCTempFolder folder;
  std::unique_ptr<TCGstLengthProbe> probe = std::make_unique<TCGstLengthProbe>(TCNativePaths());
};

TEST_F(GstLengthProbe, SongsHaveTheirTrueLengths) {
  EXPECT_EQ(LengthOf("tone.wav"), 2);
  EXPECT_EQ(LengthOf("mark.wav"), 30);
  EXPECT_EQ(LengthOf("tone.mp3"), 2);
  EXPECT_EQ(LengthOf("mark.mp3"), 30);
  EXPECT_EQ(LengthOf("tone.wma"), 2);
  EXPECT_EQ(LengthOf("mark.wma"), 30);
}

TEST_F(GstLengthProbe, AnMp3OfVariableBitRateWithoutAnIndexIsMeasuredFrameByFrame) {
  EXPECT_EQ(LengthOf("tone_vbr.mp3"), 2);
  EXPECT_EQ(LengthOf("mark_vbr.mp3"), 30);
}

TEST_F(GstLengthProbe, AMidiSongIsAsLongAsItsTemposMakeIt) {
  EXPECT_EQ(LengthOf("tone.mid"), 2);
  EXPECT_EQ(LengthOf("mark.mid"), 30);
}

TEST_F(GstLengthProbe, AMidiSongHasALengthWithoutASoundfont) {
  Restart({.systemSoundfont = folder.Native("nothing.sf2"), .dataFolders = {folder.Native("")}});
  EXPECT_EQ(LengthOf("mark.mid"), 30);
}

TEST_F(GstLengthProbe, ASongShorterThanASecondLastsOne) {
  EXPECT_EQ(LengthOf("short.wav"), 1);
  EXPECT_EQ(LengthOf("blink.wav"), 1);
}

TEST_F(GstLengthProbe, WhatIsNoSongHasNoLength) {
  folder.MakeFolder("song.mp3");
  folder.Write("no_tracks.mid", BytesOf(SongFile("tone.mid")).substr(0, 14));
  folder.Write("headless.wma", BytesOf(SongFile("tone.wma")).substr(100));
  EXPECT_EQ(LengthOf("text.mp3"), -1);
  EXPECT_EQ(LengthOf("empty.mp3"), -1);
  EXPECT_EQ(LengthOf(folder.Model("nothing.wav")), -1);
  EXPECT_EQ(LengthOf(folder.Model("song.mp3")), -1);
  EXPECT_EQ(LengthOf(folder.Model("no_tracks.mid")), -1);
  EXPECT_EQ(LengthOf(folder.Model("headless.wma")), -1);
  EXPECT_EQ(LengthOf(u""), -1);
}

TEST_F(GstLengthProbe, ASongCutShortLastsAsLongAsThePlayerSays) {
  for (const char* name : {"mark.wav", "mark.mp3", "mark_vbr.mp3", "mark.wma", "mark.mid"}) {
    SCOPED_TRACE(name);
    const std::string bytes = BytesOf(SongFile(name));
    folder.Write(name, bytes.substr(0, bytes.size() / 2));
    const int length = LengthOf(folder.Model(name));
    EXPECT_GE(length, 1);
    EXPECT_EQ(length, PlayersLengthOf(folder.Model(name)));
  }
}

TEST_F(GstLengthProbe, ASongWithoutASampleLastsAsLongAsThePlayerSays) {
  EXPECT_EQ(LengthOf("silent.wav"), PlayersLengthOf(SongUrl("silent.wav")));
}

TEST_F(GstLengthProbe, ANameInOtherUpperAndLowerCaseIsFound) {
  folder.Write("Song.WAV", BytesOf(SongFile("tone.wav")));
  EXPECT_EQ(LengthOf(folder.Model("SONG.wav")), 2);
}

TEST_F(GstLengthProbe, NothingIsOpenBeforeTheFirstSongAndAfterClose) {
  EXPECT_EQ(probe->GetDurationSeconds(), -1);
  probe->Close();
  EXPECT_EQ(probe->GetDurationSeconds(), -1);
  EXPECT_EQ(LengthOf("tone.wav"), 2);
  probe->Close();
  EXPECT_EQ(probe->GetDurationSeconds(), -1);
}

TEST_F(GstLengthProbe, ASongClosedWhileItIsReadNeverAnswers) {
  probe->Open(SongUrl("mark.wav"));
  probe->Close();
  EXPECT_FALSE(AwaitReally([this] { return probe->GetDurationSeconds() != -1; }, 0.3));
  EXPECT_EQ(LengthOf("tone.wav"), 2);
}

TEST_F(GstLengthProbe, OpeningTheSameSongAgainKeepsWhatIsKnown) {
  ASSERT_EQ(LengthOf("mark.mp3"), 30);
  probe->Open(SongUrl("mark.mp3"));
  EXPECT_EQ(probe->GetDurationSeconds(), 30);
  ASSERT_EQ(LengthOf("text.mp3"), -1);
  probe->Open(SongUrl("text.mp3"));
  EXPECT_EQ(probe->GetDurationSeconds(), -1);
}

TEST_F(GstLengthProbe, AClosedSongIsReadAfreshWhenItIsOpenedAgain) {
  folder.Write("song.wav", BytesOf(SongFile("tone.wav")));
  ASSERT_EQ(LengthOf(folder.Model("song.wav")), 2);
  probe->Close();
  folder.Write("song.wav", BytesOf(SongFile("mark.wav")));
  EXPECT_EQ(LengthOf(folder.Model("song.wav")), 30);
}

TEST_F(GstLengthProbe, NoAnswerEverBelongsToAnEarlierSong) {
  struct {
    const char* song;
    int length;
  } const songs[] = {{"tone.wav", 2},  {"mark.mp3", 30}, {"short.wav", 1},    {"mark.mid", 30},
                     {"text.mp3", -1}, {"tone.wma", 2},  {"mark_vbr.mp3", 30}};
  for (int round = 0; round < 70; ++round) {
    // Up to six songs are given up at different points of their reading.
    for (int hasty = 0; hasty < round % 7; ++hasty) {
      probe->Open(SongUrl(songs[(round + hasty) % 7].song));
      const int early = probe->GetDurationSeconds();
      ASSERT_TRUE(early == 0 || early == songs[(round + hasty) % 7].length) << round << ", " << hasty;
      std::this_thread::sleep_for(std::chrono::milliseconds(round % 5 * hasty));
    }
    const auto& last = songs[(round + 6) % 7];
    ASSERT_EQ(LengthOf(last.song), last.length) << round;
  }
}

TEST_F(GstLengthProbe, TheSoundDeviceIsLeftAlone) {
  const std::string sound = folder.Native("sound.raw");
  const TCGstPlayerOptions options{.audioSink = "filesink location=" + sound};
  Restart(options);
  for (const char* song : {"tone.wav", "tone.mp3", "tone_vbr.mp3", "tone.wma", "tone.mid"}) {
    EXPECT_EQ(LengthOf(song), 2) << song;
  }
  EXPECT_FALSE(std::filesystem::exists(sound));

  // The same device, had anything been played.
  TCGstPlayer player(TCNativePaths(), options);
  player.LoadUrl(SongUrl("tone.wav"));
  player.Play();
  EXPECT_TRUE(AwaitReally([&sound] { return std::filesystem::exists(sound); }, kSoon));
}

TEST_F(GstLengthProbe, APipeNobodyWritesToIsNoSong) {
  ASSERT_EQ(mkfifo(folder.Native("pipe.wav").c_str(), 0600), 0);
  const auto begin = std::chrono::steady_clock::now();
  probe->Open(folder.Model("pipe.wav"));
  EXPECT_EQ(Answer(), -1);
  EXPECT_LT(SecondsSince(begin), TCPlayerLimits().load);
  EXPECT_EQ(LengthOf("tone.wav"), 2);
}

TEST_F(GstLengthProbe, ItGoesInTheMiddleOfAnything) {
  const char* const names[] = {"mark.mp3", "mark_vbr.mp3", "mark.wma", "mark.mid", "mark.wav", "text.mp3"};
  for (int round = 0; round < 60; ++round) {
    probe->Open(SongUrl(names[round % 6]));
    std::this_thread::sleep_for(std::chrono::milliseconds(round / 2));
    if (round % 4 == 3) probe->Close();
    const auto begin = std::chrono::steady_clock::now();
    Restart({});
    ASSERT_LT(SecondsSince(begin), 3.0) << round;
  }
  EXPECT_EQ(LengthOf("tone.wav"), 2);
}

enum class TCWhere { LookedInto, Decoded, Counted };  // the file's first open, its second and its last

class GstLengthProbeOnAHangingDisk : public GstLengthProbe, public testing::WithParamInterface<TCWhere> {
 protected:
  GstLengthProbeOnAHangingDisk() {
    Restart({.workerLimit = 0.5, .closeLimit = 0.2});
    folder.Write("song.mp3", BytesOf(SongFile("mark_vbr.mp3")));
  }
  int GoodOpens() {
    switch (GetParam()) {
      case TCWhere::LookedInto:
        return 0;
      case TCWhere::Decoded:
        return 1;
      case TCWhere::Counted:
        break;
    }
    const TCHangingDisk sound(folder.Native("song.mp3"), 1000);
    EXPECT_EQ(LengthOf(folder.Model("song.mp3")), 30);
    probe->Close();
    EXPECT_GT(sound.GoodOpens(), 2);
    return sound.GoodOpens() - 1;
  }
  void StartToRead() {
    disk = std::make_unique<TCHangingDisk>(folder.Native("song.mp3"), GoodOpens());
    probe->Open(folder.Model("song.mp3"));
    ASSERT_TRUE(AwaitReally([this] { return disk->Waiting() > 0; }, kSoon));
  }

  std::unique_ptr<TCHangingDisk> disk;
};

TEST_P(GstLengthProbeOnAHangingDisk, TheAnswerComesWithinTheLoadTime) {
  StartToRead();
  EXPECT_EQ(Answer(), -1);
  EXPECT_GT(disk->Waiting(), 0);
}

TEST_P(GstLengthProbeOnAHangingDisk, AnotherSongIsReadMeanwhile) {
  StartToRead();
  EXPECT_EQ(LengthOf("tone.wav"), 2);
  EXPECT_GT(disk->Waiting(), 0);
}

TEST_P(GstLengthProbeOnAHangingDisk, ItsEndIsNotHeldUp) {
  StartToRead();
  const auto begin = std::chrono::steady_clock::now();
  probe.reset();
  EXPECT_LT(SecondsSince(begin), 3.0);
  EXPECT_GT(disk->Waiting(), 0);
}

INSTANTIATE_TEST_SUITE_P(Opens, GstLengthProbeOnAHangingDisk,
                         testing::Values(TCWhere::LookedInto, TCWhere::Decoded, TCWhere::Counted),
                         [](const auto& run) {
                           return run.param == TCWhere::LookedInto ? "LookedInto"
                                  : run.param == TCWhere::Decoded  ? "Decoded"
                                                                   : "Counted";
                         });

}  // namespace
}  // namespace brevant
