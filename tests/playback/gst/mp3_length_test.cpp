#include "playback/gst/mp3_length.h"

#include <gtest/gtest.h>

#include "playback/gst/song_files.h"
#include "support/temp_folder.h"

namespace brevant {
namespace {

// The encoder fills the first and the last frame up.
constexpr double kPadding = 0.08;

TEST(Mp3Length, IsThatOfAllFramesWhetherOrNotThereIsAnIndex) {
  EXPECT_NEAR(MeasureMp3Length(SongFile("mark.mp3")).value_or(-1.0), 30.1, kPadding);
  EXPECT_NEAR(MeasureMp3Length(SongFile("mark_vbr.mp3")).value_or(-1.0), 30.1, kPadding);
}

TEST(Mp3Length, OfAFileCutShortIsThatOfWhatIsLeft) {
  const TCTempFolder folder;
  const std::string bytes = BytesOf(SongFile("mark.mp3"));
  const auto file = folder.Write("cut.mp3", bytes.substr(0, bytes.size() / 2));
  EXPECT_NEAR(MeasureMp3Length(file).value_or(-1.0), 15.05, kPadding);
}

TEST(Mp3Length, IsFoundBehindALongTag) {
  const TCTempFolder folder;
  // A tag of 20,000 bytes: its size is written in groups of seven bits.
  std::string tag("ID3\x03\x00\x00\x00\x01\x1C\x20", 10);
  tag.append(20'000, '\0');
  const auto file = folder.Write("tag.mp3", tag + BytesOf(SongFile("mark_vbr.mp3")));
  EXPECT_NEAR(MeasureMp3Length(file).value_or(-1.0), 30.1, kPadding);
}

TEST(Mp3Length, OfWhatIsNoMp3IsNone) {
  EXPECT_FALSE(MeasureMp3Length(SongFile("text.mp3")));
  EXPECT_FALSE(MeasureMp3Length(SongFile("empty.mp3")));
  EXPECT_FALSE(MeasureMp3Length("/no such file"));
}

}  // namespace
}  // namespace brevant
