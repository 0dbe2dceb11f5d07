#include "playback/midi/smf_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <random>

#include "playback/midi/smf_bytes.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int64_t kSecond = 1'000'000'000;

std::vector<std::int64_t> Times(const TCMidiSong& song) {
  std::vector<std::int64_t> times;
  for (const TCMidiEvent& event : song.events) times.push_back(event.nanoseconds);
  return times;
}

std::vector<int> Keys(const TCMidiSong& song) {
  std::vector<int> keys;
  for (const TCMidiEvent& event : song.events) keys.push_back(event.data1);
  return keys;
}

TEST(SmfReader, ATempoOf120IsTakenWhenTheFileNamesNone) {
  const auto song = ReadMidi(MidiFile(0, 96, {NoteOn(96, 60) + NoteOff(96, 60) + TrackEnd(192)}));
  ASSERT_TRUE(song);
  EXPECT_THAT(Times(*song), ElementsAre(kSecond / 2, kSecond));
  EXPECT_EQ(song->nanoseconds, 2 * kSecond);
}

TEST(SmfReader, ATempoChangeHoldsFromItsOwnTickOnAndForAllTracks) {
  const std::string tempos = Tempo(0, 1'000'000) + Tempo(96, 250'000) + TrackEnd(0);
  const std::string notes = NoteOn(48, 60) + NoteOn(96, 62) + TrackEnd(48);
  const auto song = ReadMidi(MidiFile(1, 96, {tempos, notes}));
  ASSERT_TRUE(song);
  EXPECT_THAT(Times(*song), ElementsAre(kSecond / 2, kSecond + kSecond / 8));
  EXPECT_EQ(song->nanoseconds, kSecond + kSecond / 4);
}

TEST(SmfReader, ATempoOfZeroLeavesTheOldOne) {
  const auto song = ReadMidi(MidiFile(0, 96, {Tempo(0, 0) + NoteOn(96, 60) + TrackEnd(0)}));
  ASSERT_TRUE(song);
  EXPECT_THAT(Times(*song), ElementsAre(kSecond / 2));
}

TEST(SmfReader, EventsOfOneTickKeepTheOrderOfTheirTracks) {
  const auto song = ReadMidi(MidiFile(
      1, 96, {NoteOn(96, 1) + TrackEnd(0), NoteOn(0, 2) + NoteOn(96, 3) + TrackEnd(0), NoteOn(96, 4)}));
  ASSERT_TRUE(song);
  EXPECT_THAT(Keys(*song), ElementsAre(2, 1, 3, 4));
}

TEST(SmfReader, TheTracksOfFormat2PlayOneAfterAnother) {
  const std::string slow = Tempo(0, 1'000'000) + NoteOn(96, 1) + TrackEnd(96);
  const std::string plain = NoteOn(96, 2) + TrackEnd(0);
  const auto song = ReadMidi(MidiFile(2, 96, {slow, plain}));
  ASSERT_TRUE(song);
  EXPECT_THAT(Keys(*song), ElementsAre(1, 2));
  EXPECT_THAT(Times(*song), ElementsAre(kSecond, 2 * kSecond + kSecond / 2));
  EXPECT_EQ(song->nanoseconds, 2 * kSecond + kSecond / 2);
}

TEST(SmfReader, SmpteTimeCountsFramesAndIgnoresTheTempo) {
  const int frames25By40 = (0x100 - 25) << 8 | 40;
  const auto song = ReadMidi(MidiFile(0, frames25By40, {Tempo(0, 1'000) + NoteOn(1000, 60) + TrackEnd(500)}));
  ASSERT_TRUE(song);
  EXPECT_THAT(Times(*song), ElementsAre(kSecond));
  EXPECT_EQ(song->nanoseconds, kSecond + kSecond / 2);
}

TEST(SmfReader, Smpte29MeansDropFrameTelevision) {
  const int frames29By100 = (0x100 - 29) << 8 | 100;
  const auto song = ReadMidi(MidiFile(0, frames29By100, {NoteOn(3000, 60) + TrackEnd(0)}));
  ASSERT_TRUE(song);
  EXPECT_THAT(Times(*song), ElementsAre(kSecond + kSecond / 1000));
}

TEST(SmfReader, AFileWrappedInRiffReadsAsTheBareOne) {
  const std::string bare = MidiFile(0, 96, {NoteOn(96, 60) + TrackEnd(96)});
  const auto song = ReadMidi(RiffMidi(bare));
  ASSERT_TRUE(song);
  EXPECT_EQ(song->nanoseconds, kSecond);
  EXPECT_TRUE(LooksLikeMidi(RiffMidi(bare)));
  EXPECT_FALSE(LooksLikeMidi("RIFF....WAVE"));
  EXPECT_FALSE(LooksLikeMidi("RIFF....RMI"));
  EXPECT_FALSE(ReadMidi("RIFF....RMID"));
}

TEST(SmfReader, RunningStatusGoesOnAcrossMetaAndExclusiveEvents) {
  const std::string track = NoteOn(0, 60) + Delta(0) + Bytes({0xFF, 1, 2, 'h', 'i'}) + Delta(0) +
                            Bytes({62, 90}) + Delta(0) + Bytes({0xF0, 2, 0x7E, 0xF7}) + Delta(0) +
                            Bytes({64, 80});
  const auto song = ReadMidi(MidiFile(0, 96, {track + TrackEnd(0)}));
  ASSERT_TRUE(song);
  ASSERT_EQ(song->events.size(), 4U);
  EXPECT_EQ(song->events[1].status, 0x90);
  EXPECT_EQ(song->events[1].data1, 62);
  EXPECT_EQ(song->events[3].data2, 80);
}

TEST(SmfReader, AnExclusiveMessageIsKeptWithoutItsFrame) {
  const std::string reset = Bytes({0xF0, 5, 0x7E, 0x7F, 0x09, 0x01, 0xF7});
  const auto song = ReadMidi(MidiFile(0, 96, {Delta(96) + reset + TrackEnd(0)}));
  ASSERT_TRUE(song);
  ASSERT_EQ(song->events.size(), 1U);
  EXPECT_EQ(song->events[0].status, 0xF0);
  EXPECT_EQ(song->events[0].nanoseconds, kSecond / 2);
  EXPECT_EQ(song->SysexOf(song->events[0]), Bytes({0x7E, 0x7F, 0x09, 0x01}));
}

TEST(SmfReader, OneByteMessagesTakeOneByte) {
  const std::string track = Delta(0) + Bytes({0xC3, 40}) + Delta(0) + Bytes({0xD3, 50}) + NoteOn(0, 60);
  const auto song = ReadMidi(MidiFile(0, 96, {track + TrackEnd(0)}));
  ASSERT_TRUE(song);
  EXPECT_THAT(Keys(*song), ElementsAre(40, 50, 60));
  EXPECT_FALSE(song->events[0].IsNote());
  EXPECT_TRUE(song->events[2].IsNote());
}

TEST(SmfReader, UnknownChunksAndALongerHeaderAreSkipped) {
  std::string bytes = Chunk("MThd", Bytes({0, 0, 0, 1, 0, 96, 1, 2, 3, 4}));
  bytes += Chunk("XFIH", "whatever") + Chunk("MTrk", NoteOn(96, 60) + TrackEnd(0));
  const auto song = ReadMidi(bytes);
  ASSERT_TRUE(song);
  EXPECT_EQ(song->nanoseconds, kSecond / 2);
}

TEST(SmfReader, ATrackWithoutItsEndLastsToItsLastEvent) {
  const auto song = ReadMidi(MidiFile(0, 96, {NoteOn(96, 60) + NoteOff(96, 60)}));
  ASSERT_TRUE(song);
  EXPECT_EQ(song->nanoseconds, kSecond);
}

TEST(SmfReader, EventsAfterTheEndOfATrackAreNotRead) {
  const auto song = ReadMidi(MidiFile(0, 96, {NoteOn(0, 60) + TrackEnd(96) + NoteOn(96, 61)}));
  ASSERT_TRUE(song);
  EXPECT_THAT(Keys(*song), ElementsAre(60));
  EXPECT_EQ(song->nanoseconds, kSecond / 2);
}

TEST(SmfReader, EveryTruncationIsReadUpToTheCut) {
  const std::string whole =
      MidiFile(1, 96,
               {Tempo(0, 400'000) + TrackEnd(0),
                NoteOn(96, 60) + NoteOff(96, 60) + NoteOn(0, 62) + NoteOff(96, 62) + TrackEnd(0)});
  const auto all = ReadMidi(whole);
  ASSERT_TRUE(all);
  ASSERT_EQ(all->events.size(), 4U);
  std::size_t events = 0;
  for (std::size_t size = 0; size < whole.size(); ++size) {
    const auto song = ReadMidi(std::string_view(whole).substr(0, size));
    // Fourteen bytes of header and the eight that announce a track.
    ASSERT_EQ(song.has_value(), size >= 22) << size;
    if (!song) continue;
    ASSERT_GE(song->events.size(), events) << size;
    ASSERT_LE(song->nanoseconds, all->nanoseconds) << size;
    events = song->events.size();
  }
  EXPECT_EQ(events, 4U);
}

TEST(SmfReader, ADataByteWithoutAStatusEndsTheTrackThere) {
  const auto song = ReadMidi(MidiFile(1, 96, {Delta(0) + Bytes({60, 100}), NoteOn(0, 61) + TrackEnd(96)}));
  ASSERT_TRUE(song);
  EXPECT_THAT(Keys(*song), ElementsAre(61));
}

TEST(SmfReader, ALengthOfFiveBytesEndsTheTrack) {
  const auto song =
      ReadMidi(MidiFile(0, 96, {NoteOn(96, 60) + Bytes({0xFF, 0xFF, 0xFF, 0xFF, 0x7F, 0x90, 61, 1})}));
  ASSERT_TRUE(song);
  EXPECT_THAT(Keys(*song), ElementsAre(60));
  EXPECT_EQ(song->nanoseconds, kSecond / 2);
}

TEST(SmfReader, AMetaEventLongerThanItsTrackEndsIt) {
  const auto song = ReadMidi(MidiFile(0, 96, {NoteOn(96, 60) + Delta(96) + Bytes({0xFF, 1, 0x7F, 'x'})}));
  ASSERT_TRUE(song);
  EXPECT_EQ(song->nanoseconds, kSecond / 2);
}

TEST(SmfReader, RealTimeBytesAreSteppedOverAndSystemCommonOnesEndTheTrack) {
  const std::string realTime =
      Delta(0) + Bytes({0xF8}) + NoteOn(0, 60) + Delta(0) + Bytes({0xF2}) + NoteOn(0, 61);
  const auto song = ReadMidi(MidiFile(0, 96, {realTime}));
  ASSERT_TRUE(song);
  EXPECT_THAT(Keys(*song), ElementsAre(60));
}

TEST(SmfReader, ASongOfYearsIsCutAtADay) {
  std::string track = Tempo(0, 0xFFFFFF);
  for (int i = 0; i < 100; ++i) track += NoteOn(0x0FFFFFFF, 60);
  const auto song = ReadMidi(MidiFile(0, 1, {track}));
  ASSERT_TRUE(song);
  EXPECT_THAT(song->events, IsEmpty());
  EXPECT_EQ(song->nanoseconds, kMidiMaxNanoseconds);
}

TEST(SmfReader, WhatIsNoMidiFileIsRefused) {
  EXPECT_FALSE(ReadMidi(""));
  EXPECT_FALSE(ReadMidi("MThd"));
  EXPECT_FALSE(ReadMidi("ID3"));
  EXPECT_FALSE(ReadMidi(MidiFile(0, 96, {})));
  EXPECT_FALSE(ReadMidi(MidiFile(0, 0, {TrackEnd(0)}))) << "no ticks in a quarter";
  EXPECT_FALSE(ReadMidi(MidiFile(0, 0xE700, {TrackEnd(0)}))) << "no ticks in a frame";
  EXPECT_FALSE(ReadMidi(Chunk("MThd", Bytes({0, 0, 0})) + Chunk("MTrk", TrackEnd(0)) + "padding"));
  EXPECT_FALSE(ReadMidi(MidiFile(0, 96, {std::string(kMidiMaxBytes, '\0')})));
}

TEST(SmfReader, AnEmptyTrackIsASongOfNoLength) {
  const auto song = ReadMidi(MidiFile(0, 96, {""}));
  ASSERT_TRUE(song);
  EXPECT_EQ(song->nanoseconds, 0);
}

TEST(SmfReader, RandomDamageNeverBreaksTheOrderOfTimeOrTheBounds) {
  const std::string whole =
      MidiFile(1, 96,
               {Tempo(0, 400'000) + Tempo(480, 300'000) + TrackEnd(0),
                NoteOn(96, 60) + Delta(3) + Bytes({0xF0, 3, 1, 2, 0xF7}) + NoteOff(96, 60) + TrackEnd(0)});
  std::mt19937 random(20240229);
  for (int round = 0; round < 20'000; ++round) {
    std::string damaged = whole;
    for (int hit = 0; hit < 4; ++hit) damaged[random() % damaged.size()] = static_cast<char>(random() & 0xFF);
    const auto song = ReadMidi(damaged);
    if (!song) continue;
    std::int64_t last = 0;
    for (const TCMidiEvent& event : song->events) {
      ASSERT_GE(event.nanoseconds, last);
      last = event.nanoseconds;
      ASSERT_LE(event.sysexBegin + event.sysexSize, song->sysex.size());
    }
    ASSERT_GE(song->nanoseconds, last);
    ASSERT_LE(song->events.size(), damaged.size());
  }
}

}  // namespace
}  // namespace brevant
