#include "views/player_notice_text.h"

#include <gtest/gtest.h>

#include <set>

namespace brevant {
namespace {

TEST(PlayerNoticeText, EveryNoticeHasWordsOfItsOwnAndNoneHasNone) {
  std::set<QString> texts;
  for (const TCPlayerNotice notice :
       {TCPlayerNotice::NoSoundDevice, TCPlayerNotice::NoSoundfont, TCPlayerNotice::CannotPlay,
        TCPlayerNotice::FileBrokeOff, TCPlayerNotice::LoadTimedOut}) {
    EXPECT_FALSE(NoticeText(notice).isEmpty());
    texts.insert(NoticeText(notice));
  }
  EXPECT_EQ(texts.size(), 5U);
  EXPECT_TRUE(NoticeText(TCPlayerNotice::None).isEmpty());
}

TEST(PlayerNoticeText, EveryPhaseHasAWordOfItsOwnAndAnEmptyPlayerHasNone) {
  std::set<QString> texts;
  for (const TCPlayerPhase phase : {TCPlayerPhase::Loading, TCPlayerPhase::Stopped, TCPlayerPhase::Playing,
                                    TCPlayerPhase::Paused, TCPlayerPhase::Failed}) {
    EXPECT_FALSE(PhaseText(phase).isEmpty());
    texts.insert(PhaseText(phase));
  }
  EXPECT_EQ(texts.size(), 5U);
  EXPECT_TRUE(PhaseText(TCPlayerPhase::Empty).isEmpty());
}

}  // namespace
}  // namespace brevant
