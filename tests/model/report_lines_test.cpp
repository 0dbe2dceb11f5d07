#include "model/report_lines.h"

#include <gtest/gtest.h>

#include "text/numbers.h"

namespace brevant {
namespace {

// Oldest first.
std::u16string AllOf(const TCReportLines& lines) {
  std::u16string text;
  for (const TCReportLine& line : lines.Lines()) text += line.text;
  return text;
}

TEST(ReportLines, BeforeItIsEnabledAppendsAndClearsDoNothing) {
  TCReportLines lines;
  lines.Append(u"lost", TCLineRole::Normal);
  lines.Clear();
  EXPECT_EQ(AllOf(lines), u"");
  lines.Enable(4);
  EXPECT_EQ(AllOf(lines), u"");
}

TEST(ReportLines, LinesStandOldestFirstEachWithItsLineEnd) {
  TCReportLines lines;
  lines.Enable(4);
  lines.Append(u"one", TCLineRole::Normal);
  lines.Append(u"two", TCLineRole::SingerF);
  EXPECT_EQ(AllOf(lines), u"one\r\ntwo\r\n");
  EXPECT_EQ(lines.Lines()[1].role, TCLineRole::SingerF);
}

TEST(ReportLines, TheThousandAndTwentyFifthLinePushesOutTheFirst) {
  TCReportLines lines;
  lines.Enable(1024);
  for (int i = 1; i <= 1025; ++i) lines.Append(FormatDecimal(i), TCLineRole::Normal);
  const std::vector<TCReportLine> shown = lines.Lines();
  ASSERT_EQ(shown.size(), 1024u);
  EXPECT_EQ(shown.front().text, u"2\r\n");
  EXPECT_EQ(shown.back().text, u"1025\r\n");
  for (std::size_t i = 0; i < shown.size(); ++i) {
    ASSERT_EQ(shown[i].text, FormatDecimal(static_cast<std::int64_t>(i) + 2) + u"\r\n");
  }
}

TEST(ReportLines, TheOldestGoWhileNewOnesCome) {
  TCReportLines lines;
  lines.Enable(3);
  for (int i = 1; i <= 10; ++i) lines.Append(FormatDecimal(i), TCLineRole::Normal);
  EXPECT_EQ(AllOf(lines), u"8\r\n9\r\n10\r\n");
}

TEST(ReportLines, AfterAClearOneAppendShowsExactlyThatLine) {
  TCReportLines lines;
  lines.Enable(3);
  for (int i = 0; i < 5; ++i) lines.Append(u"old", TCLineRole::Normal);
  lines.Clear();
  EXPECT_EQ(lines.Count(), 0);
  lines.Append(u"new", TCLineRole::Normal);
  EXPECT_EQ(AllOf(lines), u"new\r\n");
}

}  // namespace
}  // namespace brevant
