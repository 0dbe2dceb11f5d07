#include "text/quoted_words.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(QuotedWords, AreSeparatedByBlanksAndTabs) {
  EXPECT_THAT(SplitQuotedWords(u"mid mp3\twav  \t wma "), ElementsAre(u"mid", u"mp3", u"wav", u"wma"));
}

TEST(QuotedWords, MayHoldBlanksInsideQuotes) {
  EXPECT_THAT(SplitQuotedWords(u"\"mp3\" wav"), ElementsAre(u"mp3", u"wav"));
  EXPECT_THAT(SplitQuotedWords(u"\"Open Road.mp3\"\"b c\"d"), ElementsAre(u"Open Road.mp3", u"b c", u"d"));
}

TEST(QuotedWords, AnEmptyPairOfQuotesIsAnEmptyWord) {
  EXPECT_THAT(SplitQuotedWords(u"a \"\" b"), ElementsAre(u"a", u"", u"b"));
}

TEST(QuotedWords, AQuoteThatIsNotClosedRunsToTheEnd) {
  EXPECT_THAT(SplitQuotedWords(u"a \"b c "), ElementsAre(u"a", u"b c "));
  EXPECT_THAT(SplitQuotedWords(u"a \""), ElementsAre(u"a", u""));
}

TEST(QuotedWords, AQuoteInsideAWordBelongsToIt) {
  EXPECT_THAT(SplitQuotedWords(u"a\"b c\""), ElementsAre(u"a\"b", u"c\""));
}

TEST(QuotedWords, AllWhiteSpaceIsSkippedInFrontButOnlyBlankAndTabEndAWord) {
  EXPECT_THAT(SplitQuotedWords(u"\r\n a\nb c"), ElementsAre(u"a\nb", u"c"));
}

TEST(QuotedWords, OfNothingAreNone) {
  EXPECT_THAT(SplitQuotedWords(u""), IsEmpty());
  EXPECT_THAT(SplitQuotedWords(u" \t\r\n"), IsEmpty());
}

TEST(QuotedWords, AQuotedWordIsSplitOffAsItWas) {
  EXPECT_EQ(QuotedWord(u"C:\\My Songs\\a b.mp3"), u"\"C:\\My Songs\\a b.mp3\"");
  EXPECT_THAT(SplitQuotedWords(QuotedWord(u" a b ") + QuotedWord(u"")), ElementsAre(u" a b ", u""));
}

}  // namespace
}  // namespace brevant
