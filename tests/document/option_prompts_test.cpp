#include "document/option_prompts.h"

#include <gtest/gtest.h>

#include "support/fake_prompts.h"

namespace brevant {
namespace {

class OptionPrompts : public testing::Test {
 protected:
  bool Ask(TCCommandId command, std::optional<std::u16string> answer) {
    prompts.texts = {std::move(answer)};
    return AskForOption(command, record, prompts);
  }

  TCAppRecord record;
  TCFakePrompts prompts;
};

TEST_F(OptionPrompts, EachPromptShowsItsWordsAndTheValueAsItStands) {
  struct Case {
    TCCommandId command;
    TCTextPromptMode mode;
    std::u16string_view prompt;
    std::u16string_view example;
    std::u16string_view text;
  };
  for (const Case& c : {
           Case{TCCommandId::SongLatency, TCTextPromptMode::SongLatency,
                u"Enter the nominal time between songs in seconds",
                u"Song latency is the nominal time between stoping and starting songs", u"15"},
           Case{TCCommandId::VolumeStep, TCTextPromptMode::Property,
                u"Enter the value for the volume step size e.g. 5 (max= 100)",
                u"The volume stepsize is unit amount by which the volume changes on each key press", u"5"},
           Case{TCCommandId::SeekStep, TCTextPromptMode::Property,
                u"Enter the Fast Foward/Fast Reverse time step",
                u"The time step is the time amount that the song moves on FF/FR", u"2"},
           Case{TCCommandId::PlaylistFontSize, TCTextPromptMode::Property,
                u"Enter the font size of the Playlist display e.g. 18", u"", u"14"},
           Case{TCCommandId::LyricsFontSize, TCTextPromptMode::Property,
                u"Enter the font size of the Lyrics display e.g. 18", u"", u"18"},
           Case{TCCommandId::LyricLines, TCTextPromptMode::Property,
                u"Enter the number of Lyric lines to display e.g. 3", u"", u"2"},
           Case{TCCommandId::MediaFileTypes, TCTextPromptMode::Property,
                u"Set the list of valid media file types (.xxx) ",
                u"This list is to prevent Brevant from processing non WMP recognised files",
                u"mid mp3 wav wma"},
       }) {
    EXPECT_TRUE(IsOptionPrompt(c.command));
    EXPECT_FALSE(Ask(c.command, std::nullopt));
    EXPECT_EQ(prompts.lastMode, c.mode);
    EXPECT_EQ(prompts.lastPrompt, c.prompt);
    EXPECT_EQ(prompts.lastExample, c.example);
    EXPECT_EQ(prompts.lastText, c.text);
  }
}

TEST_F(OptionPrompts, ANumberIsTakenWithWhiteSpaceRoundItAndWithoutARange) {
  EXPECT_TRUE(Ask(TCCommandId::PlaylistFontSize, u"  40\t"));
  EXPECT_EQ(record.settings.playListFontSize, 40);
  EXPECT_TRUE(Ask(TCCommandId::PlaylistFontSize, u"-5"));
  EXPECT_EQ(record.settings.playListFontSize, -5);
  EXPECT_TRUE(Ask(TCCommandId::VolumeStep, u"900 loud"));
  EXPECT_EQ(record.settings.volumeStep, 900);
  EXPECT_TRUE(Ask(TCCommandId::SongLatency, u"0"));
  EXPECT_EQ(record.setLists.songLatencySeconds, 0);
  EXPECT_TRUE(Ask(TCCommandId::SeekStep, u"+7"));
  EXPECT_EQ(record.settings.seekStepSeconds, 7);
  EXPECT_TRUE(Ask(TCCommandId::LyricsFontSize, u"30"));
  EXPECT_EQ(record.settings.lyricsFontSize, 30);
  EXPECT_TRUE(Ask(TCCommandId::LyricLines, u"4"));
  EXPECT_EQ(record.settings.numberLyricLines, 4);
}

TEST_F(OptionPrompts, WhatIsNoNumberLeavesTheValue) {
  for (const std::u16string_view answer : {u"abc", u"", u"   ", u"99999999999", u"-"}) {
    EXPECT_FALSE(Ask(TCCommandId::PlaylistFontSize, std::u16string(answer)));
    EXPECT_EQ(record.settings.playListFontSize, 14);
  }
}

TEST_F(OptionPrompts, TheMediaTypesAreTakenTrimmedUnlessEmpty) {
  EXPECT_FALSE(Ask(TCCommandId::MediaFileTypes, u"   "));
  EXPECT_EQ(record.setLists.validMediaExtensions, u"mid mp3 wav wma");
  EXPECT_TRUE(Ask(TCCommandId::MediaFileTypes, u"  MP3 Wav "));
  EXPECT_EQ(record.setLists.validMediaExtensions, u"MP3 Wav");
}

TEST_F(OptionPrompts, OtherCommandsAskNothing) {
  EXPECT_FALSE(IsOptionPrompt(TCCommandId::Play));
  EXPECT_FALSE(AskForOption(TCCommandId::Play, record, prompts));
}

}  // namespace
}  // namespace brevant
