// Runs the player's rules over the fake and, for each media type, over the real back end with a sink that has
// a clock but no device.
#include "support/player_contract.h"

#include <vector>

#include "playback/gst/gst_player.h"
#include "playback/gst/song_files.h"
#include "support/fake_player.h"

namespace brevant {
namespace {

class TCFakeRig final : public TCPlayerRig {
 public:
  TCFakeRig() {
    player.SetSong(u"\\tone.wav", {.length = 2.0});
    player.SetSong(u"\\other.wav", {.length = 30.0});
    player.SetSong(u"\\short.wav", {.length = 0.4});
    player.SetSong(u"\\blink.wav", {.length = 0.05});
    player.SetSong(u"\\broken.wav", {.playable = false});
  }
  TCPlayer& Player() override { return player; }
  TCPlayerMonitor& Monitor() override { return player; }
  std::u16string Url(TCContractSong song) override {
    switch (song) {
      case TCContractSong::Tone:
        return u"\\tone.wav";
      case TCContractSong::Other:
        return u"\\other.wav";
      case TCContractSong::Short:
        return u"\\short.wav";
      case TCContractSong::Blink:
        return u"\\blink.wav";
      case TCContractSong::Broken:
        return u"\\broken.wav";
    }
    return {};
  }
  bool Await(const std::function<bool()>& condition, double seconds) override {
    constexpr double kStep = 0.01;
    for (double passed = 0.0; passed < seconds; passed += kStep) {
      if (condition()) return true;
      player.Advance(kStep);
    }
    return condition();
  }

 private:
  TCFakePlayer player;
};

struct TCSongNames {
  std::string tone;
  std::string other;
};

class TCGstRig final : public TCPlayerRig {
 public:
  explicit TCGstRig(TCSongNames songNames) : names(std::move(songNames)) {}
  TCPlayer& Player() override { return player; }
  TCPlayerMonitor& Monitor() override { return player; }
  std::u16string Url(TCContractSong song) override {
    switch (song) {
      case TCContractSong::Tone:
        return SongUrl(names.tone);
      case TCContractSong::Other:
        return SongUrl(names.other);
      case TCContractSong::Short:
        return SongUrl("short.wav");
      case TCContractSong::Blink:
        return SongUrl("blink.wav");
      case TCContractSong::Broken:
        return SongUrl("text.mp3");
    }
    return {};
  }
  bool Await(const std::function<bool()>& condition, double seconds) override {
    return AwaitReally(condition, seconds);
  }

 private:
  TCSongNames names;
  TCGstPlayer player{TCNativePaths(), {.audioSink = "fakesink sync=true"}};
};

std::vector<TCContractRun> Runs() {
  std::vector<TCContractRun> runs;
  runs.push_back({"Fake", [] { return std::make_unique<TCFakeRig>(); }});
  const auto add = [&runs](const std::string& name, const TCSongNames& songs) {
    runs.push_back({name, [songs] { return std::make_unique<TCGstRig>(songs); }});
  };
  add("Wav", {"tone.wav", "mark.wav"});
  add("Mp3", {"tone.mp3", "mark.mp3"});
  add("Mp3WithoutIndex", {"tone_vbr.mp3", "mark_vbr.mp3"});
  add("Wma", {"tone.wma", "mark.wma"});
  add("Midi", {"tone.mid", "mark.mid"});
  return runs;
}

}  // namespace

INSTANTIATE_TEST_SUITE_P(Rigs, PlayerContract, testing::ValuesIn(Runs()), NameOfContractRun);

}  // namespace brevant
