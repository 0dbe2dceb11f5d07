#include "playback/gst/midi_renderer.h"

#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "playback/gst/soundfont_search.h"
#include "playback/midi/smf_bytes.h"

namespace brevant {
namespace {

constexpr std::int64_t kSecond = 1'000'000'000;
constexpr int kTicks = 480;  // a quarter; half a second at the tempo that goes without saying

class MidiRenderer : public testing::Test {
 protected:
  static void SetUpTestSuite() { synth = TCMidiSynth::Load(FindSoundfonts({kSystemSoundfont}, {})); }
  static void TearDownTestSuite() { synth.reset(); }
  void SetUp() override { ASSERT_TRUE(synth) << "the tests need the system's soundfont"; }

  static std::shared_ptr<const TCMidiSong> Song(const std::string& track) {
    const auto song = ReadMidi(MidiFile(0, kTicks, {track}));
    return song ? std::make_shared<const TCMidiSong>(*song) : nullptr;
  }

  // Everything from where the renderer stands to the end, one value a frame.
  static std::vector<float> Rest(TCMidiRenderer& renderer, std::size_t atATime = 1000) {
    std::vector<float> all;
    std::vector<float> piece(atATime * TCMidiRenderer::kChannels);
    while (const std::size_t frames = renderer.Render(piece.data(), atATime)) {
      for (std::size_t frame = 0; frame < frames; ++frame) {
        all.push_back(std::abs(piece[2 * frame]) + std::abs(piece[2 * frame + 1]));
      }
    }
    return all;
  }
  static float Loudest(const std::vector<float>& sound, double from, double to) {
    float loudest = 0.0F;
    const auto frame = [](double seconds) { return static_cast<std::size_t>(seconds * TCMidiSynth::kRate); };
    for (std::size_t i = frame(from); i < std::min(sound.size(), frame(to)); ++i)
      loudest = std::max(loudest, sound[i]);
    return loudest;
  }

  static std::shared_ptr<TCMidiSynth> synth;
};

std::shared_ptr<TCMidiSynth> MidiRenderer::synth;

constexpr float kAudible = 0.005F;

TEST_F(MidiRenderer, ANoteSoundsAtItsTimeAndTheSongRingsOutAfterItsEnd) {
  TCMidiRenderer renderer(synth, Song(NoteOn(2 * kTicks, 69) + NoteOff(kTicks, 69) + TrackEnd(kTicks)));
  const std::vector<float> sound = Rest(renderer);
  EXPECT_LT(Loudest(sound, 0.0, 0.99), kAudible);
  EXPECT_GT(Loudest(sound, 1.0, 1.1), kAudible);
  const double seconds = static_cast<double>(sound.size()) / TCMidiSynth::kRate;
  EXPECT_GE(seconds, 2.4);
  EXPECT_LE(seconds, 4.0);
}

TEST_F(MidiRenderer, TheSizeOfThePiecesChangesNothingButRounding) {
  const auto song = Song(NoteOn(kTicks, 69) + NoteOff(kTicks, 69) + TrackEnd(kTicks));
  TCMidiRenderer large(synth, song);
  const std::size_t frames = Rest(large, 4096).size();
  TCMidiRenderer small(synth, song);
  EXPECT_NEAR(static_cast<double>(Rest(small, 64).size()), static_cast<double>(frames), 4096.0);
}

TEST_F(MidiRenderer, ASeekKeepsTheControllersAndLeavesOutTheNotesBefore) {
  const std::string quiet = Delta(0) + Bytes({0xB0, 7, 0});
  const std::string loud = Delta(0) + Bytes({0xB0, 7, 127});
  const std::string notes =
      NoteOn(0, 60) + NoteOff(2 * kTicks, 60) + NoteOn(2 * kTicks, 64) + NoteOff(kTicks, 64);
  TCMidiRenderer muted(synth, Song(quiet + notes + TrackEnd(0)));
  muted.Seek(kSecond / 2);
  EXPECT_LT(Loudest(Rest(muted), 0.0, 9.0), kAudible);
  TCMidiRenderer heard(synth, Song(loud + notes + TrackEnd(0)));
  heard.Seek(kSecond / 2);
  EXPECT_EQ(heard.Frame(), TCMidiSynth::kRate / 2);
  const std::vector<float> sound = Rest(heard);
  EXPECT_LT(Loudest(sound, 0.0, 1.4), kAudible) << "the first note was over before";
  EXPECT_GT(Loudest(sound, 1.5, 1.7), kAudible);
}

TEST_F(MidiRenderer, ASongPlaysAgainAfterItsEnd) {
  TCMidiRenderer renderer(synth, Song(NoteOn(0, 69) + NoteOff(kTicks, 69) + TrackEnd(0)));
  EXPECT_GT(Loudest(Rest(renderer), 0.0, 0.5), kAudible);
  EXPECT_TRUE(Rest(renderer).empty());
  renderer.Seek(0);
  EXPECT_GT(Loudest(Rest(renderer), 0.0, 0.5), kAudible);
}

TEST_F(MidiRenderer, ANoteLeftHangingUnderThePedalEndsWithTheSong) {
  TCMidiRenderer renderer(synth, Song(Delta(0) + Bytes({0xC0, 19}) + Delta(0) + Bytes({0xB0, 64, 127}) +
                                      NoteOn(0, 60) + TrackEnd(kTicks)));
  const std::vector<float> sound = Rest(renderer);
  EXPECT_GT(Loudest(sound, 0.2, 0.5), kAudible);
  EXPECT_LE(sound.size(), static_cast<std::size_t>(TCMidiSynth::kRate * 5 / 2));
}

TEST_F(MidiRenderer, ASeekPastTheEndOnlyRingsOut) {
  TCMidiRenderer renderer(synth, Song(NoteOn(0, 60) + NoteOff(kTicks, 60) + TrackEnd(0)));
  renderer.Seek(100 * kSecond);
  EXPECT_EQ(renderer.Frame(), TCMidiSynth::kRate / 2);
  EXPECT_LE(Rest(renderer).size(), static_cast<std::size_t>(TCMidiSynth::kRate));
}

TEST_F(MidiRenderer, TheNewerSongTakesTheSynthFromTheOlder) {
  const auto song = Song(NoteOn(0, 60) + NoteOff(kTicks, 60) + TrackEnd(0));
  TCMidiRenderer older(synth, song);
  TCMidiRenderer newer(synth, song);
  EXPECT_TRUE(Rest(older).empty());
  EXPECT_FALSE(Rest(newer).empty());
}

TEST_F(MidiRenderer, ASongOfNothingIsOverAtOnce) {
  TCMidiRenderer renderer(synth, Song(TrackEnd(0)));
  EXPECT_LE(Rest(renderer).size(), static_cast<std::size_t>(TCMidiSynth::kRate));
}

TEST_F(MidiRenderer, EveryKindOfMessageIsTakenWhateverItsValues) {
  std::string track;
  for (int status = 0x80; status < 0xF0; ++status) track += Delta(1) + Bytes({status, 127, 127});
  track += Delta(1) + Bytes({0xF0, 5, 0x7E, 0x7F, 9, 1, 0xF7}) + Delta(1) + Bytes({0xF0, 1, 0x7E});
  TCMidiRenderer renderer(synth, Song(track + TrackEnd(kTicks)));
  EXPECT_FALSE(Rest(renderer).empty());
}

}  // namespace
}  // namespace brevant
