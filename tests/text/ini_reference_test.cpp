// Holds TCIniText to the recorded answers of an independent implementation, row by row. Where we choose
// otherwise, the row stands in a list below with our own answer and the reason; a row that is neither fails.

#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "text/ini_text.h"

namespace brevant {
namespace {

struct Row {
  std::string label;
  std::vector<std::string> fields;  // what follows the label
};

std::vector<std::string> SplitFields(std::string_view line) {
  constexpr std::string_view kBar = " | ";
  std::vector<std::string> fields;
  while (true) {
    const std::size_t bar = line.find(kBar);
    fields.emplace_back(line.substr(0, bar));
    if (bar == std::string_view::npos) return fields;
    line.remove_prefix(bar + kBar.size());
  }
}

std::string WithoutPadding(std::string text) {
  text.erase(text.find_last_not_of(' ') + 1);
  return text;
}

// The rows under the heading "## A. ..." and so on.
std::vector<Row> RowsOfSection(char section) {
  std::ifstream file(BREVANT_TEST_DATA "/private_profile_reference.txt");
  EXPECT_TRUE(file.is_open());
  std::vector<Row> rows;
  bool inside = false;
  for (std::string line; std::getline(file, line);) {
    if (line.starts_with("## ")) {
      inside = line.size() > 3 && line[3] == section;
    } else if (inside && !line.empty()) {
      std::vector<std::string> fields = SplitFields(line);
      const std::string label = WithoutPadding(fields.front());
      fields.erase(fields.begin());
      rows.push_back({label, fields});
    }
  }
  return rows;
}

// What stands between `open` and the last `close`.
std::string Between(const std::string& text, std::string_view open, std::string_view close) {
  const std::size_t begin = text.find(open);
  const std::size_t end = text.rfind(close);
  if (begin == std::string::npos || end == std::string::npos || end < begin + open.size()) {
    ADD_FAILURE() << "no " << open << " ... " << close << " in: " << text;
    return {};
  }
  return text.substr(begin + open.size(), end - begin - open.size());
}

// "\xE9" is one byte, "\u00E9" one UTF-16 unit; the rest is the same in both.
template <class Text>
Text Unescape(std::string_view escaped) {
  Text text;
  using Unit = typename Text::value_type;
  for (std::size_t at = 0; at < escaped.size(); ++at) {
    if (escaped[at] != '\\') {
      text.push_back(static_cast<Unit>(escaped[at]));
      continue;
    }
    const char kind = escaped[++at];
    const std::map<char, char> plain = {{'n', '\n'}, {'r', '\r'}, {'t', '\t'}, {'0', '\0'}, {'\\', '\\'}};
    if (const auto found = plain.find(kind); found != plain.end()) {
      text.push_back(static_cast<Unit>(found->second));
      continue;
    }
    const std::size_t digits = kind == 'x' ? 2 : 4;
    text.push_back(static_cast<Unit>(std::stoul(std::string(escaped.substr(at + 1, digits)), nullptr, 16)));
    at += digits;
  }
  return text;
}

std::string Bytes(std::string_view escaped) {
  return Unescape<std::string>(escaped);
}
std::u16string Units(std::string_view escaped) {
  return Unescape<std::u16string>(escaped);
}

// The answer in "{value} n=5 err=0". The length is checked on the way: a wrongly read row fails here.
std::u16string Answer(const std::string& field) {
  const std::u16string value = Units(Between(field, "{", "} n="));
  EXPECT_EQ(std::stoul(field.substr(field.rfind("} n=") + 4)), value.size()) << field;
  return value;
}

// A row where we choose otherwise: our answer, as the file would write it.
using OwnAnswers = std::map<std::string, std::string>;

// The expected answer, ours if there is one; each of ours is taken out, so that none can stand there unused.
std::u16string Expected(const Row& row, const std::string& field, OwnAnswers& own) {
  const auto found = own.find(row.label);
  if (found == own.end()) return Answer(field);
  std::u16string answer = Units(found->second);
  EXPECT_NE(answer, Answer(field)) << row.label << " agrees after all";
  own.erase(found);
  return answer;
}

// A: one line in [S], asked as text (default DEF) and as a number (default -77). B: the same with numbers.
void CheckOneLineRows(const std::vector<Row>& rows, OwnAnswers own) {
  const std::map<std::string, std::u16string> otherKeys = {
      {"query '#k'", u"#k"},
      {"query ';k'", u";k"},
      {"query UPPER", u"K"},
      {"key with blank", u"Disable Editing"},
      {"key with blank, other case", u"disable editing"},
      {"key with 2 blanks, query 1", u"Disable Editing"},
      {"key w blank before =", u"Disable Editing"},
      {"query with lead/trail blanks", u" k "},
      {"query with blank only trail", u"k "},
      {"empty query key", u""},
      {"quoted key, quoted query", u"\"k\""},
      {"key non-ASCII cp1252 case", u"\u00E4K"},
  };
  for (const Row& row : rows) {
    SCOPED_TRACE(row.label + " | " + (row.fields.empty() ? "" : row.fields[0]));
    ASSERT_EQ(row.fields.size(), 3U);
    const auto otherKey = otherKeys.find(row.label);
    const std::u16string key = otherKey == otherKeys.end() ? u"k" : otherKey->second;
    const std::u16string expected = Expected(row, row.fields[1], own);
    ASSERT_TRUE(row.fields[2].starts_with("int ")) << row.fields[2];
    const bool ourAnswer = expected != Answer(row.fields[1]);
    const std::int32_t number = ourAnswer ? 0 : std::stoi(row.fields[2].substr(4));

    const auto ini = TCIniText::Parse("[S]\r\n" + Bytes(WithoutPadding(row.fields[0])) + "\r\n");
    EXPECT_EQ(ini.GetString(u"S", key, u"DEF"), expected);
    EXPECT_EQ(ini.GetInt(u"S", key, -77), number);
  }
  EXPECT_TRUE(own.empty());
}

TEST(IniReference, AnswersForOneLineAgree) {
  const std::vector<Row> rows = RowsOfSection('A');
  EXPECT_EQ(rows.size(), 56U);
  CheckOneLineRows(rows, {
                             // Names match without regard to case in every script, not in ASCII alone.
                             {"key non-ASCII cp1252 case", "abc"},
                         });
}

TEST(IniReference, AnswersForNumbersAgree) {
  std::vector<Row> rows = RowsOfSection('B');
  ASSERT_EQ(rows.size(), 55U);
  // The last line is a sentence of its own, held by IniText.AMissingOrEmptyNumberGivesTheFallback.
  EXPECT_TRUE(rows.back().label.starts_with("int default 5: empty value -> 5 ; missing -> 5"));
  rows.pop_back();
  CheckOneLineRows(rows, {});
}

// C, D and E: a whole file and one question; the default is DEF unless the label says otherwise.
void CheckFileRows(const std::vector<Row>& rows, std::size_t expectedRows, OwnAnswers own) {
  const std::map<std::string, std::u16string> otherDefaults = {
      {"default with trailing blanks", u"  d  "}, {"default quoted", u"\"d\""}, {"default NULL", u""}};
  std::size_t checked = 0;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.label);
    if (row.fields.size() != 2 || !row.fields[1].starts_with("s={")) continue;
    const std::string section = Between(row.fields[1], "s={", "} k=");
    const std::string key = Between(row.fields[1], "k={", "} -> ");
    const std::string answer = row.fields[1].substr(row.fields[1].find(" -> ") + 4);
    if (section == "NULL") continue;  // there is no call that lists sections

    const auto ini = TCIniText::Parse(Bytes(row.fields[0]));
    const auto otherDefault = otherDefaults.find(row.label);
    const std::u16string fallback = otherDefault == otherDefaults.end() ? u"DEF" : otherDefault->second;
    if (key == "NULL") {
      // The keys, each with a zero behind it but for the last; none at all gives the default.
      std::u16string keys;
      for (const std::u16string& name : ini.Keys(Units(section))) keys.append(name).push_back(u'\0');
      EXPECT_EQ(keys.empty() ? fallback : keys, Expected(row, answer, own));
    } else {
      EXPECT_EQ(ini.GetString(Units(section), Units(key), fallback), Expected(row, answer, own));
    }
    ++checked;
  }
  EXPECT_EQ(checked, expectedRows);
  EXPECT_TRUE(own.empty());
}

TEST(IniReference, AnswersForSectionsAgree) {
  const std::vector<Row> rows = RowsOfSection('C');
  // Two rows ask what we have no call for: the names of all sections, and a section's lines as a block.
  EXPECT_EQ(rows.size(), 24U);
  CheckFileRows(rows, 22, {});
}

TEST(IniReference, AnswersForDefaultsAgree) {
  const std::vector<Row> rows = RowsOfSection('D');
  // The other seven are about the caller's buffer; there is none here.
  EXPECT_EQ(rows.size(), 10U);
  CheckFileRows(rows, 3, {});
}

TEST(IniReference, AnswersForLineEndsAndEncodingsAgree) {
  const std::vector<Row> rows = RowsOfSection('E');
  EXPECT_EQ(rows.size(), 15U);
  CheckFileRows(rows, 15,
                {
                    // Valid UTF-8 is read as UTF-8 without a mark too: it is what we write.
                    {"UTF-8 no BOM", "caf\\u00E9 \\u20AC"},
                    // Names match without regard to case in every script.
                    {"UTF-16LE BOM key non-ASCII other case", "1"},
                    // Nobody writes big-endian settings; they read as 8-bit text.
                    {"UTF-16BE BOM", "DEF"},
                });
}

// G: the file before, the call, the file after, and what is read back from that.
TEST(IniReference, WritingAgrees) {
  // The file after the call where ours differs. Three reasons: blank lines are the user's and stay; we write
  // UTF-8 without a mark whatever was read, so that no character is lost; and we hand back the whole text
  // even when a value was set to what it already was.
  OwnAnswers ownFiles = {
      {"add key", "[S]\\r\\na=1\\r\\nk=v\\r\\n\\r\\n[T]\\r\\nb=2\\r\\n"},
      {"add key after comment", "[S]\\r\\na=1\\r\\n;c\\r\\nk=v\\r\\n\\r\\n\\r\\n[T]\\r\\n"},
      {"LF file", "[S]\\r\\na=1\\r\\n\\r\\nb=2\\r\\nk=v\\r\\n"},
      {"top comment kept", "; head\\r\\n\\r\\n[S]\\r\\na=1\\r\\nk=v\\r\\n"},
      {"latin1 into ANSI", "[S]\\r\\nk=caf\\xC3\\xA9\\r\\n"},
      {"CJK into ANSI", "[S]\\r\\nk=\\xE6\\x97\\xA5\\r\\n"},
      {"CJK into new file", "[S]\\r\\nk=\\xE6\\x97\\xA5\\r\\n"},
      {"CJK into UTF-16LE BOM", "[S]\\r\\nk=\\xE6\\x97\\xA5\\r\\n"},
      {"latin1 into UTF-8 BOM", "[S]\\r\\nk=\\xC3\\xA9\\r\\n"},
      {"latin1 into UTF-8 no BOM", "[S]\\r\\nj=caf\\xC3\\xA9\\r\\nk=\\xC3\\xA9\\r\\n"},
      {"same value (untouched?)", "[S]\\r\\nk = v\\r\\n"},
  };
  OwnAnswers ownReadbacks = {{"CJK into ANSI", "\\u65E5"}, {"CJK into new file", "\\u65E5"}};

  const std::vector<Row> rows = RowsOfSection('G');
  EXPECT_EQ(rows.size(), 33U);
  std::size_t checked = 0;
  for (const Row& row : rows) {
    SCOPED_TRACE(row.label);
    if (row.fields.size() != 4) continue;
    const std::string& call = row.fields[1];
    const std::u16string section = Units(Between(call, "s={", "} k="));
    const std::string key = Between(call, "k={", "} v=");
    const std::string value = Between(call, "v={", "} -> ");

    auto ini = TCIniText::Parse(row.fields[0] == "<none>" ? "" : Bytes(row.fields[0]));
    ini.SetString(section, Units(key), Units(value));

    const auto ownFile = ownFiles.find(row.label);
    EXPECT_EQ(ini.Serialize(), Bytes(ownFile == ownFiles.end() ? row.fields[2] : ownFile->second));
    if (ownFile != ownFiles.end()) {
      EXPECT_NE(ownFile->second, row.fields[2]) << "agrees after all";
      ownFiles.erase(ownFile);
    }
    const std::u16string readback = Expected(row, row.fields[3], ownReadbacks);
    EXPECT_EQ(TCIniText::Parse(ini.Serialize()).GetString(section, Units(key), u"DEF"), readback);
    EXPECT_EQ(ini.GetString(section, Units(key), u"DEF"), readback) << "before it is written";
    ++checked;
  }
  // The other three are sentences about file names and a file's attributes.
  EXPECT_EQ(checked, 30U);
  EXPECT_TRUE(ownFiles.empty());
  EXPECT_TRUE(ownReadbacks.empty());
}

}  // namespace
}  // namespace brevant
