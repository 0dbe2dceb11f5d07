#include "model/flat_line.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(FlatLine, ALineIsWrittenInQuotesWithOneBlankBetween) {
  TCPlayListItem song;
  song.SetPath(u"C:\\Music\\Open Road.mp3");
  song.time = u"03:25";
  EXPECT_EQ(FormatFlatLine(u"Mariner Sets", u"Set 1", song),
            u"\"Mariner Sets\" \"Set 1\" \"C:\\Music\\Open Road.mp3\" 03:25");
}

TEST(FlatLine, ASongWithoutAFolderIsWrittenWithItsBareName) {
  TCPlayListItem song;
  song.SetPath(u"encore.mid");
  EXPECT_EQ(FormatFlatLine(u"A", u"B", song), u"\"A\" \"B\" \"encore.mid\" 00:00");
}

TEST(FlatLine, ADoubleQuoteInANameIsLeftOut) {
  TCPlayListItem song;
  song.SetPath(u"x.mp3");
  EXPECT_EQ(FormatFlatLine(u"The \"Best\"", u"P\"", song), u"\"The Best\" \"P\" \"x.mp3\" 00:00");
}

TEST(FlatLine, ACarriageReturnInATextIsLeftOutBecauseItWouldEndTheLine) {
  TCPlayListItem song;
  song.SetPath(u"C:\\x\r.mp3");
  EXPECT_EQ(FormatFlatLine(u"Mariner\r\nSets", u"\rP", song), u"\"Mariner\nSets\" \"P\" \"C:\\x.mp3\" 00:00");
}

TEST(FlatLine, TheFourTextsOfALineAreRead) {
  const TCFlatLine line = ParseFlatLine(u"\"Mariner Sets\" \"Set 1\" \"C:\\My Songs\\z.wav\" 03:25");
  EXPECT_EQ(line.group, u"Mariner Sets");
  EXPECT_EQ(line.playlist, u"Set 1");
  EXPECT_EQ(line.path, u"C:\\My Songs\\z.wav");
  EXPECT_EQ(line.time, u"03:25");
}

TEST(FlatLine, BlanksRoundQuotesAndBehindTheTimeAreSkipped) {
  const TCFlatLine line = ParseFlatLine(u"  \"A\"\t \"P\"\"x.mp3\"   \t01:02\tmore");
  EXPECT_EQ(line.group, u"A");
  EXPECT_EQ(line.playlist, u"P");
  EXPECT_EQ(line.path, u"x.mp3");
  EXPECT_EQ(line.time, u"01:02");
}

TEST(FlatLine, LeadingBlanksInsideTheQuotesAreSkippedAndTrailingOnesKept) {
  const TCFlatLine line = ParseFlatLine(u"\"  A \" \"\t P \" \"   \" 01:02");
  EXPECT_EQ(line.group, u"A ");
  EXPECT_EQ(line.playlist, u"P ");
  EXPECT_EQ(line.path, u"");
  EXPECT_EQ(line.time, u"01:02");
}

TEST(FlatLine, AMissingTimeIsEmpty) {
  EXPECT_EQ(ParseFlatLine(u"\"A\" \"P1\" \"C:\\My Songs\\z.wav\"").time, u"");
}

TEST(FlatLine, ATextWithoutItsClosingQuoteTakesTheWholeRest) {
  const TCFlatLine line = ParseFlatLine(u"\"A\" \"P and more");
  EXPECT_EQ(line.group, u"A");
  EXPECT_EQ(line.playlist, u"P and more");
  EXPECT_EQ(line.path, u"");
  EXPECT_EQ(line.time, u"");
}

TEST(FlatLine, ALineWithoutAQuoteGivesEmptyTexts) {
  for (const std::u16string_view text : {u"", u"garbage", u"   "}) {
    const TCFlatLine line = ParseFlatLine(text);
    EXPECT_EQ(line.group, u"");
    EXPECT_EQ(line.playlist, u"");
    EXPECT_EQ(line.path, u"");
    EXPECT_EQ(line.time, u"");
  }
}

TEST(FlatLine, ALineIsWholeWhenNothingBesideItsTextsStandsInIt) {
  EXPECT_TRUE(IsWholeFlatLine(u"\"A\" \"P\" \"x.mp3\" 01:02"));
  EXPECT_TRUE(IsWholeFlatLine(u" \"A\"  \"P\"  \"x.mp3\""));
  EXPECT_FALSE(IsWholeFlatLine(u"\"A\" \"P\" \"x.mp3\" 01:02 and more"));
  EXPECT_FALSE(IsWholeFlatLine(u"note \"A\" \"P\" \"x.mp3\" 01:02"));
  EXPECT_FALSE(IsWholeFlatLine(u"Dear diary"));
  EXPECT_FALSE(IsWholeFlatLine(u""));
}

}  // namespace
}  // namespace brevant
