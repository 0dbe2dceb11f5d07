#include "playback/volume_and_seek.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_player.h"
#include "support/repeat_fields.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

class VolumeAndSeek : public testing::Test {
 protected:
  // Starts a song of `length` seconds and lets it play up to `position`.
  void PlayTo(double position, double length = 60.0) {
    player.SetDefaultSong({.length = length, .opensAfter = 0.0, .soundsAfter = 0.0});
    player.LoadUrl(u"\\a.mp3");
    player.Play();
    player.Advance(0.05);
    player.SetPosition(position);
    player.ForgetCalls();
  }

  TCSettings settings;
  TCFakePlayer player;
  TCFakeRepeatFields fields;
  TCVolumeAndSeek commands{settings, &player, &fields};
};

TEST_F(VolumeAndSeek, VolumeStepsAreAskedForUnclampedAndHeldByThePlayer) {
  commands.VolumeUp();
  EXPECT_THAT(player.Calls(), ElementsAre("SetVolume 105"));
  EXPECT_EQ(player.GetVolume(), 100);
  player.SetVolume(3);
  player.ForgetCalls();
  commands.VolumeDown();
  EXPECT_THAT(player.Calls(), ElementsAre("SetVolume -2"));
  EXPECT_EQ(player.GetVolume(), 0);
}

TEST_F(VolumeAndSeek, TheStepIsTheOptionsAndMayBeAnything) {
  settings.volumeStep = 20;
  commands.VolumeDown();
  EXPECT_EQ(player.GetVolume(), 80);
  settings.volumeStep = -2147483647 - 1;
  commands.VolumeUp();
  EXPECT_EQ(player.GetVolume(), 0);
  commands.VolumeDown();
  EXPECT_EQ(player.GetVolume(), 100);
}

TEST_F(VolumeAndSeek, SeekStepsMoveThePositionWithinTheSong) {
  PlayTo(10.0);
  commands.SeekForward();
  commands.SeekBack();
  commands.SeekBack();
  EXPECT_THAT(player.Calls(), ElementsAre("SetPosition 12", "SetPosition 10", "SetPosition 8"));
  PlayTo(59.0);
  commands.SeekForward();
  EXPECT_THAT(player.Calls(), ElementsAre("SetPosition 60"));
  PlayTo(1.0);
  commands.SeekBack();
  EXPECT_THAT(player.Calls(), ElementsAre("SetPosition 0"));
}

TEST_F(VolumeAndSeek, ASongOfUnknownLengthIsSoughtInUpToTenThousandSeconds) {
  settings.seekStepSeconds = 20'000;
  player.SetDefaultSong({.opensAfter = 100.0});
  player.LoadUrl(u"\\a.mp3");
  ASSERT_EQ(player.GetDurationSeconds(), 0);
  player.ForgetCalls();
  commands.SeekForward();
  EXPECT_THAT(player.Calls(), ElementsAre("SetPosition 10000"));

  player.SetDefaultSong({.opensAfter = 0.0, .playable = false});
  player.LoadUrl(u"\\b.mp3");
  ASSERT_EQ(player.GetDurationSeconds(), -1);
  player.ForgetCalls();
  commands.SeekForward();
  EXPECT_THAT(player.Calls(), ElementsAre("SetPosition 10000"));
}

TEST_F(VolumeAndSeek, WithoutControlsNothingIsSought) {
  PlayTo(10.0);
  player.ShowControls(false);
  commands.SeekForward();
  commands.SeekBack();
  EXPECT_THAT(player.Calls(), IsEmpty());
}

TEST_F(VolumeAndSeek, TheRepeatRangeTakesWholeSecondsOfThePosition) {
  PlayTo(30.9);
  commands.SetRepeatBegin();
  PlayTo(45.2);
  commands.SetRepeatEnd();
  EXPECT_EQ(fields.begin, 30);
  EXPECT_EQ(fields.end, 45);
}

TEST_F(VolumeAndSeek, ARepeatPointPastTheFirstHourWraps) {
  PlayTo(3610.0, 7200.0);
  commands.SetRepeatEnd();
  EXPECT_EQ(fields.end, 10);
}

TEST_F(VolumeAndSeek, WithoutControlsARepeatPointIsTheStart) {
  fields.begin = 12;
  player.ShowControls(false);
  commands.SetRepeatBegin();
  EXPECT_EQ(fields.begin, 0);
}

TEST_F(VolumeAndSeek, WithoutAPlayerOrFieldsEveryCommandDoesNothing) {
  fields.begin = 12;
  TCVolumeAndSeek mute(settings, nullptr, &fields);
  mute.VolumeUp();
  mute.VolumeDown();
  mute.SeekForward();
  mute.SeekBack();
  mute.SetRepeatBegin();
  mute.SetRepeatEnd();
  EXPECT_EQ(fields.begin, 12);
  TCVolumeAndSeek fieldless(settings, &player, nullptr);
  fieldless.SetRepeatBegin();
  fieldless.SetRepeatEnd();
  EXPECT_THAT(player.Calls(), IsEmpty());
}

}  // namespace
}  // namespace brevant
