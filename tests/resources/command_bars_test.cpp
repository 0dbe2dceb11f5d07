#include "resources/command_bars.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <vector>

#include "resources/command_table.h"

namespace brevant {
namespace {

using ::testing::ElementsAre;

constexpr int kSeparator = 0;

std::vector<int> NumbersOf(const TCCommandBar& bar) {
  std::vector<int> numbers;
  for (const TCCommandId id : bar.items) numbers.push_back(static_cast<int>(id));
  return numbers;
}

TEST(CommandBars, StandInTheOrderInWhichTheyAreDocked) {
  std::vector<std::u16string_view> names;
  std::vector<TCBarDock> docks;
  for (const TCCommandBar& bar : CommandBars()) {
    names.push_back(TextOf(bar.name));
    docks.push_back(bar.dock);
  }
  EXPECT_THAT(names, ElementsAre(u"Main toolbar", u"Standard toolbar", u"Play controls", u"Create",
                                 u"Commands", u"Options"));
  EXPECT_THAT(docks,
              ElementsAre(TCBarDock::TopEdge, TCBarDock::TopEdge, TCBarDock::RightOfPrevious,
                          TCBarDock::RightOfPrevious, TCBarDock::RightOfPrevious, TCBarDock::RightEdge));
}

TEST(CommandBars, HoldTheirButtonsInOrder) {
  ASSERT_EQ(CommandBars().size(), 6U);
  EXPECT_THAT(NumbersOf(CommandBars()[0]), ElementsAre());
  EXPECT_THAT(NumbersOf(CommandBars()[1]), ElementsAre(57600, 57601, 57603));
  EXPECT_THAT(
      NumbersOf(CommandBars()[2]),
      ElementsAre(32831, 32853, kSeparator, 32779, 32772, 32774, 32773, 32776, kSeparator, 32852, 32832,
                  kSeparator, 32912, 32913, kSeparator, 32935, 32933, kSeparator, 32936, 32934));
  EXPECT_THAT(NumbersOf(CommandBars()[3]),
              ElementsAre(32796, 32797, 32798, 32862, 32799, kSeparator, 32946, 32947));
  EXPECT_THAT(NumbersOf(CommandBars()[4]),
              ElementsAre(32826, 32829, 32868, kSeparator, 32877, 32960, kSeparator, 32827, 32921));
  EXPECT_THAT(
      NumbersOf(CommandBars()[5]),
      ElementsAre(32838, 32870, 32954, kSeparator, 32878, 32847, 32841, kSeparator, 32844, 32851, kSeparator,
                  32843, 32845, 32842, 32846, kSeparator, 32880, kSeparator, 32906, 32922, 32959));
}

TEST(CommandBars, HoldOnlyCommandsOfTheTableAndTheTwoTimeFields) {
  std::set<TCCommandId> fields;
  for (const TCCommandBar& bar : CommandBars()) {
    for (const TCCommandId id : bar.items) {
      if (IsTimeField(id)) {
        fields.insert(id);
      } else if (id != TCCommandId::None) {
        EXPECT_NE(CommandById(id), nullptr) << static_cast<int>(id);
      }
    }
  }
  EXPECT_EQ(fields, (std::set{TCCommandId::RepeatBeginField, TCCommandId::RepeatEndField}));
}

TEST(CommandBars, HoldNoButtonTwice) {
  std::set<TCCommandId> seen;
  for (const TCCommandBar& bar : CommandBars()) {
    for (const TCCommandId id : bar.items) {
      if (id != TCCommandId::None) {
        EXPECT_TRUE(seen.insert(id).second) << static_cast<int>(id);
      }
    }
  }
}

TEST(CommandBars, NeitherStartNorEndWithASeparatorNorShowTwoInARow) {
  for (const TCCommandBar& bar : CommandBars()) {
    bool afterButton = false;
    for (const TCCommandId id : bar.items) {
      if (id == TCCommandId::None) {
        EXPECT_TRUE(afterButton) << static_cast<int>(bar.name);
      }
      afterButton = id != TCCommandId::None;
    }
    EXPECT_TRUE(afterButton || bar.items.empty()) << static_cast<int>(bar.name);
  }
}

TEST(CommandBars, TakeTheTwoTimeFieldsForFieldsAndNothingElse) {
  EXPECT_TRUE(IsTimeField(static_cast<TCCommandId>(32933)));
  EXPECT_TRUE(IsTimeField(static_cast<TCCommandId>(32934)));
  for (const TCCommand& command : Commands()) EXPECT_FALSE(IsTimeField(command.id));
}

}  // namespace
}  // namespace brevant
