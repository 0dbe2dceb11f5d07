#include "app/commands/tool_tips.h"

#include <gtest/gtest.h>

#include "resources/key_assignment.h"

namespace brevant {
namespace {

std::u16string TipOf(TCCommandId command) {
  return ToolTipWithKeys(*CommandById(command), TCKeyAssignment().KeysOf(command));
}

TEST(ToolTips, NameTheKeysThatAct) {
  EXPECT_EQ(TipOf(TCCommandId::SetRepeatBegin), u"Set the auto repeat begin time (Z)");
  EXPECT_EQ(TipOf(TCCommandId::FileNew), u"New (Ctrl+N)");
  EXPECT_EQ(TipOf(TCCommandId::RefreshAllTimes), u"Refresh all song times (Alt+R)");
}

TEST(ToolTips, DoNotSayTheKeysTwice) {
  EXPECT_EQ(TipOf(TCCommandId::VolumeUp), u"Increase Volume, F9");
  EXPECT_EQ(TipOf(TCCommandId::Stop), u"Stop S, F6, 6");
}

TEST(ToolTips, SayAllKeysWhereTheTextMissesOne) {
  EXPECT_EQ(TipOf(TCCommandId::NextSong), u"Go to next song ^ arrow, d (Down, D)");
  EXPECT_EQ(TipOf(TCCommandId::SeekForward), u"Fast Foward Ctrl ^ arrow (Ctrl+Right)");
}

TEST(ToolTips, NameNoKeyThatAnotherCommandHas) {
  EXPECT_EQ(TipOf(TCCommandId::LoadLastFile), u"Load last loaded file on start");
  EXPECT_EQ(TipOf(TCCommandId::Play), u"Play Song ENTER, P, F5")
      << "Enter is the text's, not a key of its own";
}

TEST(ToolTips, ACommandWithoutKeysHasItsTextAlone) {
  EXPECT_EQ(TipOf(TCCommandId::RefreshSongTime), u"Refresh song time");
}

}  // namespace
}  // namespace brevant
