#include "app/desktop/command_line.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(CommandLine, NamesNoFileWhenEmpty) {
  const TCCommandLine line = ReadCommandLine({});
  EXPECT_EQ(line.wish, TCLaunchWish::Run);
  EXPECT_FALSE(line.file.has_value());
}

TEST(CommandLine, TakesTheFirstNameAndIgnoresTheOthers) {
  const TCCommandLine line = ReadCommandLine({"show.brv", "other.brv"});
  EXPECT_EQ(line.wish, TCLaunchWish::Run);
  EXPECT_EQ(line.file, "show.brv");
}

TEST(CommandLine, AnswersHelpAndVersionWhateverElseStandsThere) {
  EXPECT_EQ(ReadCommandLine({"show.brv", "--help"}).wish, TCLaunchWish::ShowHelp);
  EXPECT_EQ(ReadCommandLine({"--bogus", "-h"}).wish, TCLaunchWish::ShowHelp);
  EXPECT_EQ(ReadCommandLine({"--version"}).wish, TCLaunchWish::ShowVersion);
  EXPECT_EQ(ReadCommandLine({"-v"}).wish, TCLaunchWish::ShowVersion);
}

TEST(CommandLine, RefusesAnOptionItDoesNotKnow) {
  EXPECT_EQ(ReadCommandLine({"--bogus", "show.brv"}).wish, TCLaunchWish::Refuse);
}

TEST(CommandLine, TakesWhatFollowsTwoDashesForAName) {
  const TCCommandLine line = ReadCommandLine({"--", "--help"});
  EXPECT_EQ(line.wish, TCLaunchWish::Run);
  EXPECT_EQ(line.file, "--help");
}

TEST(CommandLine, AnEmptyNameIsNone) {
  EXPECT_FALSE(ReadCommandLine({""}).file.has_value());
}

TEST(CommandLine, SeesARelativeNameFromTheWorkingFolder) {
  EXPECT_EQ(ModelPathOf("show.brv", "/home/me"), u"\\home\\me\\show.brv");
  EXPECT_EQ(ModelPathOf("./a/./show.brv", "/home/me"), u"\\home\\me\\a\\show.brv");
  EXPECT_EQ(ModelPathOf("../show.brv", "/home/me"), u"\\home\\me\\..\\show.brv");
}

TEST(CommandLine, LeavesAnAbsoluteNameAsItIs) {
  EXPECT_EQ(ModelPathOf("/srv/b\xC3\xBChne.brv", "/home/me"), u"\\srv\\b\u00FChne.brv");
}

TEST(CommandLine, HasNoModelPathForANameThatTheModelCannotHold) {
  EXPECT_FALSE(ModelPathOf("a\\b.brv", "/home/me").has_value());
  EXPECT_FALSE(ModelPathOf("say \"hi\".brv", "/home/me").has_value());
  EXPECT_FALSE(ModelPathOf("two\nlines.brv", "/home/me").has_value());
  EXPECT_FALSE(ModelPathOf("\xFF.brv", "/home/me").has_value());
}

}  // namespace
}  // namespace brevant
