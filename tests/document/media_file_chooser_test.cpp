#include "document/media_file_chooser.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/fake_prompts.h"

namespace brevant {
namespace {

using testing::ElementsAre;

class MediaFileChooser : public testing::Test {
 protected:
  TCAppRecord record;
  TCFakePrompts prompts;
  TCMediaFileChooser chooser{record, prompts};
};

TEST_F(MediaFileChooser, SeveralSongsAreQuotedWithBlanksBetweenAndTheFirstIsRemembered) {
  prompts.mediaAnswers = {TCFakePrompts::TCPaths{u"C:\\My Music\\a.Wav", u"C:\\b.mp3"}};
  EXPECT_EQ(chooser.ChooseSongs(), u"\"C:\\My Music\\a.Wav\" \"C:\\b.mp3\"");
  EXPECT_EQ(record.settings.lastMediaFileName, u"C:\\My Music\\a.Wav");
  EXPECT_EQ(record.settings.lastMediaFileExtSpec, u"Wav");
  EXPECT_EQ(prompts.lastMediaQuestion.count, TCChooseFiles::Several);
}

TEST_F(MediaFileChooser, TheChooserBeginsWithTheLastFileAndTheAllowedTypes) {
  record.setLists.validMediaExtensions = u"MP3 \"wav\"";
  record.settings.lastMediaFileName = u"C:\\a.mp3";
  record.settings.lastMediaFileExtSpec = u"mp3";
  prompts.mediaAnswers = {std::nullopt};
  EXPECT_EQ(chooser.ChooseSongs(), u"");
  EXPECT_THAT(prompts.lastMediaQuestion.types, ElementsAre(u"mp3", u"wav"));
  EXPECT_EQ(record.setLists.validMediaExtensions, u"mp3 \"wav\"");
  EXPECT_EQ(prompts.lastMediaQuestion.initialPath, u"C:\\a.mp3");
  EXPECT_EQ(prompts.lastMediaQuestion.defaultType, u"mp3");
}

TEST_F(MediaFileChooser, BeforeTheFirstChoiceTheDefaultTypeIsThatOfTheFileSpec) {
  record.settings.lastMediaFileExtSpec = u"*.mp3";
  prompts.mediaAnswers = {std::nullopt};
  EXPECT_EQ(chooser.ChooseSongs(), u"");
  EXPECT_EQ(prompts.lastMediaQuestion.defaultType, u"mp3");
}

TEST_F(MediaFileChooser, CancellingForgetsTheLastFileSoThatTheNextChooserHasNone) {
  record.settings.lastMediaFileName = u"C:\\a.mp3";
  record.settings.lastMediaFileExtSpec = u"mp3";
  prompts.mediaAnswers = {std::nullopt, std::nullopt};
  EXPECT_EQ(chooser.ChooseSongs(), u"");
  EXPECT_EQ(record.settings.lastMediaFileName, u"");
  EXPECT_EQ(record.settings.lastMediaFileExtSpec, u"mp3");
  record.settings.lastMediaFileName = u"C:\\a.mp3";
  EXPECT_FALSE(chooser.ChooseSong().has_value());
  EXPECT_EQ(record.settings.lastMediaFileName, u"");
}

TEST_F(MediaFileChooser, AChoiceOfWhichNothingCanBeUsedKeepsTheLastFile) {
  record.settings.lastMediaFileName = u"C:\\a.mp3";
  record.settings.lastMediaFileExtSpec = u"mp3";
  prompts.mediaAnswers = {TCFakePrompts::TCPaths(), TCFakePrompts::TCPaths()};
  EXPECT_EQ(chooser.ChooseSongs(), u"");
  EXPECT_FALSE(chooser.ChooseSong().has_value());
  EXPECT_EQ(record.settings.lastMediaFileName, u"C:\\a.mp3");
  EXPECT_EQ(record.settings.lastMediaFileExtSpec, u"mp3");
}

TEST_F(MediaFileChooser, OfOneSongOnlyTheTypeIsRemembered) {
  prompts.mediaAnswers = {TCFakePrompts::TCPaths{u"D:\\Backup\\a.mid"}};
  EXPECT_EQ(chooser.ChooseSong(), u"D:\\Backup\\a.mid");
  EXPECT_EQ(prompts.lastMediaQuestion.count, TCChooseFiles::One);
  EXPECT_EQ(record.settings.lastMediaFileExtSpec, u"mid");
  EXPECT_EQ(record.settings.lastMediaFileName, u"");
}

}  // namespace
}  // namespace brevant
