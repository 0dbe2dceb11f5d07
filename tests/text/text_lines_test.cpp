#include "text/text_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/memory_files.h"
#include "support/utf16.h"

namespace brevant {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TextLines Split(std::u16string_view text) {
  return SplitUtf16Lines(Utf16Bytes(text));
}

TEST(TextLines, AMarkBeforeTheFirstCharacterIsDropped) {
  EXPECT_THAT(Split(u"\uFEFFa.mp3*03:00\r\nb.mp3*04:00\r\n"), ElementsAre(u"a.mp3*03:00", u"b.mp3*04:00"));
  EXPECT_THAT(Split(u"\uFEFF\uFEFFa\r\n"), ElementsAre(u"a"));
}

TEST(TextLines, EmptyLinesDoNotEndTheTimeForMarks) {
  EXPECT_THAT(Split(u"\r\n\uFEFF\r\n\uFEFFa\uFEFF\r\n\uFEFFb\r\n"),
              ElementsAre(u"", u"", u"a\uFEFF", u"\uFEFFb"));
}

TEST(TextLines, AnUnfinishedLastLineIsDroppedWhenThereIsAnother) {
  EXPECT_THAT(Split(u"\uFEFFa.mp3*03:00\r\nb.mp3*04:00"), ElementsAre(u"a.mp3*03:00"));
  EXPECT_THAT(Split(u"\r\nb"), ElementsAre(u""));
}

TEST(TextLines, AnUnfinishedLineIsKeptWhenItIsTheOnlyOne) {
  EXPECT_THAT(Split(u"a.mp3*03:00"), ElementsAre(u"a.mp3*03:00"));
}

TEST(TextLines, ALoneLineFeedIsText) {
  EXPECT_THAT(Split(u"a\nb\nc\n"), ElementsAre(u"a\nb\nc\n"));
  EXPECT_THAT(Split(u"\na\r\n"), ElementsAre(u"\na"));
}

TEST(TextLines, ACarriageReturnSwallowsTheUnitAfterItWhateverItIs) {
  EXPECT_THAT(Split(u"a\rxb\r\n"), ElementsAre(u"a", u"b"));
  EXPECT_THAT(Split(u"a\r\r\nb\r\n"), ElementsAre(u"a", u"\nb"));
  EXPECT_THAT(Split(u"a\r\uFEFFb\r\n"), ElementsAre(u"a", u"b"));
  EXPECT_THAT(Split(u"a\r"), ElementsAre(u"a"));
}

TEST(TextLines, BlankLinesAreLines) {
  EXPECT_THAT(Split(u"\r\n\r\n"), ElementsAre(u"", u""));
}

TEST(TextLines, OfNothingAreNone) {
  EXPECT_THAT(SplitUtf16Lines(""), IsEmpty());
  EXPECT_THAT(SplitUtf16Lines("a"), IsEmpty());
  EXPECT_THAT(Split(u"\uFEFF"), IsEmpty());
  EXPECT_THAT(SplitAnsiLines(""), IsEmpty());
}

TEST(TextLines, AnOddLastByteIsIgnored) {
  EXPECT_THAT(SplitUtf16Lines(Utf16Bytes(u"a\r\n") + "b"), ElementsAre(u"a"));
  EXPECT_THAT(SplitUtf16Lines(Utf16Bytes(u"a\r\n").substr(0, 5)), ElementsAre(u"a"));
}

TEST(TextLines, OfAnEightBitFileReadAsUtf16AreOneLine) {
  const TextLines lines = SplitUtf16Lines("a.mp3*03:00\r\nb.mp3*04:00\r\n!");
  ASSERT_EQ(lines.size(), 1U);
  EXPECT_EQ(lines[0].size(), 13U);
}

TEST(TextLines, OfBinaryDataKeepEveryUnit) {
  std::u16string text;
  for (char16_t unit = 0; unit < 0xFFFF; ++unit) {
    if (unit != u'\r') text.push_back(unit);
  }
  EXPECT_THAT(Split(text + u"\r\n"), ElementsAre(text));
}

TEST(TextLines, AnEnormousLineIsOneLine) {
  const std::u16string line(5'000'000, u'x');
  EXPECT_THAT(Split(line + u"\r\n"), ElementsAre(line));
}

TEST(TextLines, EightBitTextFollowsTheSameRules) {
  EXPECT_THAT(SplitAnsiLines("a\r\nb\nc\rxd\r\ne"), ElementsAre(u"a", u"b\nc", u"d"));
  EXPECT_THAT(SplitAnsiLines("only"), ElementsAre(u"only"));
}

TEST(TextLines, EightBitTextKeepsItsMark) {
  EXPECT_THAT(SplitAnsiLines("\xEF\xBB\xBF[ti:a]\r\n"), ElementsAre(u"\uFEFF[ti:a]"));
}

TEST(TextLines, EightBitTextIsDecodedAsAWhole) {
  EXPECT_THAT(SplitAnsiLines("caf\xC3\xA9\r\n\xE2\x82\xAC\r\n"), ElementsAre(u"caf\u00E9", u"\u20AC"));
  EXPECT_THAT(SplitAnsiLines("caf\xC3\xA9\r\ncaf\xE9\r\n"), ElementsAre(u"caf\u00C3\u00A9", u"caf\u00E9"));
}

TEST(TextLines, AreVisitedAsTheyAreSplit) {
  for (const std::string& bytes : {std::string(), std::string("a"), Utf16Bytes(u"\uFEFFa\r\n\r\nb\r"),
                                   Utf16Bytes(u"one"), std::string("a\r\ncaf\xC3\xA9\r\nlost")}) {
    TextLines visited;
    const LineVisitor keep = [&visited](std::u16string_view line) { visited.emplace_back(line); };
    VisitUtf16Lines(bytes, keep);
    EXPECT_EQ(visited, SplitUtf16Lines(bytes));
    visited.clear();
    VisitAnsiLines(bytes, keep);
    EXPECT_EQ(visited, SplitAnsiLines(bytes));
  }
}

TEST(TextLines, AreWrittenWithoutAMarkAndWithAnEndAfterEveryLine) {
  EXPECT_EQ(JoinUtf16Lines({u"a", u"", u"\u20AC"}), Utf16Bytes(u"a\r\n\r\n\u20AC\r\n"));
  EXPECT_EQ(JoinUtf16Lines({}), "");
}

TEST(TextLines, AreReadIntoAnEmptiedArray) {
  TCMemoryFiles files;
  files.PutUtf16(u"a.brv", u"one\r\ntwo\r\n");
  TextLines lines = {u"old"};
  EXPECT_TRUE(ReadTextLines(files, u"a.brv", lines));
  EXPECT_THAT(lines, ElementsAre(u"one", u"two"));

  files.Put(u"a.lrc", "one\r\ntwo\r\n");
  lines = {u"old"};
  EXPECT_TRUE(ReadAnsiTextLines(files, u"a.lrc", lines));
  EXPECT_THAT(lines, ElementsAre(u"one", u"two"));
}

TEST(TextLines, AnEmptyFileReadsAsNoLines) {
  TCMemoryFiles files;
  files.Put(u"a.brv");
  TextLines lines = {u"old"};
  EXPECT_TRUE(ReadTextLines(files, u"a.brv", lines));
  EXPECT_THAT(lines, IsEmpty());
}

TEST(TextLines, AFileThatCannotBeReadIsRefused) {
  TCMemoryFiles files;
  TextLines lines;
  EXPECT_FALSE(ReadTextLines(files, u"missing.brv", lines));
  EXPECT_FALSE(ReadAnsiTextLines(files, u"missing.lrc", lines));

  files.PutUtf16(u"a.brv", u"one\r\n");
  files.MakeUnreadable(u"a.brv");
  EXPECT_FALSE(ReadTextLines(files, u"a.brv", lines));
}

TEST(TextLines, TheFirstCanBeHadAlone) {
  for (const std::u16string_view text :
       {u"", u"\r", u"\r\n", u"a", u"a\r", u"a\rb", u"a\r\nb\r\n", u"\r\na\r\n", u"\uFEFFa\r\nb",
        u"\u0D00\u000Aa\r\n", u"\uFEFF", u"\uFEFF\r\na\r\n"}) {
    const TextLines lines = Split(text);
    const auto first = FirstUtf16Line(Utf16Bytes(text));
    EXPECT_EQ(first, lines.empty() ? std::nullopt : std::optional(lines.front()))
        << testing::PrintToString(text);
  }
}

TEST(TextLines, AsBytesAreTheSameLinesWhereThatMakesNoDifference) {
  const auto visit = [](std::string_view bytes, std::vector<std::string>& lines) {
    return VisitUtf8Lines(bytes, [&lines](std::string_view line) { lines.emplace_back(line); });
  };
  std::vector<std::string> lines;
  EXPECT_TRUE(
      visit("\xEF\xBB\xBF"
            "caf\xC3\xA9\r\nb\nb\rxc\r\nd",
            lines));
  EXPECT_THAT(lines, ElementsAre("\xEF\xBB\xBF"
                                 "caf\xC3\xA9",
                                 "b\nb", "c"));
  lines.clear();
  EXPECT_TRUE(visit("one", lines));
  EXPECT_THAT(lines, ElementsAre("one"));

  lines.clear();
  EXPECT_FALSE(visit("caf\xE9\r\n", lines));              // Windows-1252
  EXPECT_FALSE(visit("a\r\xF0\x9F\x8E\xB5\r\n", lines));  // half of a surrogate pair is swallowed
  EXPECT_THAT(lines, IsEmpty());
}

TEST(TextLines, AFilePastTheGreatestSizeIsRefused) {
  class TCHugeFiles final : public TCFileSystem {
   public:
    bool FileExists(std::u16string_view /*path*/) override { return true; }
    std::optional<std::string> ReadFile(std::u16string_view /*path*/, std::size_t maxBytes) override {
      asked = maxBytes;
      return std::nullopt;
    }
    bool ReplaceFile(std::u16string_view /*path*/, std::string_view /*bytes*/) override { return false; }
    bool CopyFile(std::u16string_view /*from*/, std::u16string_view /*to*/) override { return false; }
    bool MakeFolder(std::u16string_view /*path*/) override { return false; }
    bool DeleteFile(std::u16string_view /*path*/) override { return false; }

    std::size_t asked = 0;
  } files;
  TextLines lines;
  EXPECT_FALSE(ReadTextLines(files, u"huge.brv", lines));
  EXPECT_EQ(files.asked, kMaxTextFileBytes);
  files.asked = 0;
  EXPECT_FALSE(ReadAnsiTextLines(files, u"huge.lrc", lines));
  EXPECT_EQ(files.asked, kMaxTextFileBytes);
}

TEST(TextLines, AreWrittenAndReadBack) {
  TCMemoryFiles files;
  EXPECT_TRUE(WriteTextLines(files, u"a.brv", {u"one", u"", u"\u20AC"}));
  EXPECT_EQ(files.BytesOf(u"a.brv"), Utf16Bytes(u"one\r\n\r\n\u20AC\r\n"));
  TextLines lines;
  EXPECT_TRUE(ReadTextLines(files, u"a.brv", lines));
  EXPECT_THAT(lines, ElementsAre(u"one", u"", u"\u20AC"));
}

TEST(TextLines, WritingNoLinesLeavesAnEmptyFileAndReportsFalse) {
  TCMemoryFiles files;
  files.Put(u"a.brv", "old");
  EXPECT_FALSE(WriteTextLines(files, u"a.brv", {}));
  EXPECT_EQ(files.BytesOf(u"a.brv"), "");
}

TEST(TextLines, AFailedWriteIsReported) {
  TCMemoryFiles files;
  files.Put(u"a.brv", "old");
  files.failWrites = true;
  EXPECT_FALSE(WriteTextLines(files, u"a.brv", {u"new"}));
  EXPECT_EQ(files.BytesOf(u"a.brv"), "old");
}

}  // namespace
}  // namespace brevant
