#include "views/one_line_text.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

TEST(OneLineText, HasABlankForEveryLineBreakAndControlCharacter) {
  EXPECT_EQ(OneLineText(QStringLiteral("a\nb\r\tc\u2028d\u2029e")), QStringLiteral("a b  c d e"));
}

TEST(OneLineText, LeavesEverythingElse) {
  EXPECT_EQ(OneLineText(QStringLiteral(" Für  Elise ♪ ")), QStringLiteral(" Für  Elise ♪ "));
  EXPECT_EQ(OneLineText({}), QString());
}

TEST(OneLineText, IsCutWhereNoWindowWouldShowMore) {
  EXPECT_EQ(OneLineText(QString(1000, QLatin1Char('x'))).size(), 1000);
  EXPECT_EQ(OneLineText(QString(1000000, QLatin1Char('x'))).size(), 1000);
}

}  // namespace
}  // namespace brevant
