#include "resources/customised_bars.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

using Id = TCCommandId;

constexpr TCTextId kCreate = TCTextId::CreateToolbar;
constexpr TCTextId kPlay = TCTextId::PlayControlsToolbar;
constexpr TCTextId kStandard = TCTextId::StandardToolbar;

std::vector<Id> CommandsOf(const TCCustomisedBars& bars, TCTextId bar) {
  std::vector<Id> commands;
  for (const TCBarItem& item : bars.ItemsOf(bar)) commands.push_back(item.command);
  return commands;
}

TEST(CustomisedBars, BeginAsTheBarTableDelivers) {
  const TCCustomisedBars bars;
  for (const TCCommandBar& plan : CommandBars()) {
    EXPECT_EQ(CommandsOf(bars, plan.name), (std::vector<Id>{plan.items.begin(), plan.items.end()}));
  }
  EXPECT_TRUE(bars.changedBars.empty());
  EXPECT_EQ(bars.ItemsOf(kPlay)[1], CommandItem(Id::PriorSong));
  EXPECT_EQ(bars.ItemsOf(kPlay)[2], TCBarItem()) << "a separator";
}

TEST(CustomisedBars, AnItemGoesInFrontOfTheOneAtItsPlaceOrBehindAll) {
  TCCustomisedBars bars;
  bars.Insert(kStandard, 1, CommandItem(Id::Stop));
  bars.Insert(kStandard, 99, CommandItem(Id::Play));
  EXPECT_EQ(CommandsOf(bars, kStandard),
            (std::vector<Id>{Id::FileNew, Id::Stop, Id::FileOpen, Id::FileSave, Id::Play}));
}

TEST(CustomisedBars, WhatIsOnTheBarAlreadyMoves) {
  TCCustomisedBars bars;
  bars.Insert(kStandard, 3, CommandItem(Id::FileNew));
  EXPECT_EQ(CommandsOf(bars, kStandard), (std::vector<Id>{Id::FileOpen, Id::FileSave, Id::FileNew}));
  bars.Insert(kStandard, 0, CommandItem(Id::FileNew));
  EXPECT_EQ(bars, TCCustomisedBars()) << "as delivered again";
}

TEST(CustomisedBars, ACommandCanBeOnTwoBarsButATimeFieldOnOne) {
  TCCustomisedBars bars;
  bars.Insert(kCreate, 0, CommandItem(Id::Stop));
  EXPECT_EQ(bars.ItemsOf(kPlay), DeliveredItems(kPlay));
  bars.Insert(kCreate, 0, CommandItem(Id::RepeatBeginField));
  EXPECT_EQ(CommandsOf(bars, kCreate).front(), Id::RepeatBeginField);
  const std::vector<Id> left = CommandsOf(bars, kPlay);
  EXPECT_EQ(std::count(left.begin(), left.end(), Id::RepeatBeginField), 0);
  EXPECT_EQ(std::count(left.begin(), left.end(), Id::RepeatEndField), 1);
}

TEST(CustomisedBars, ATimeFieldMovesOnItsOwnBarAsAnyCommandDoes) {
  TCCustomisedBars bars;
  std::vector<Id> expected = CommandsOf(bars, kPlay);
  const auto field = std::find(expected.begin(), expected.end(), Id::RepeatBeginField);
  const auto end = std::find(expected.begin(), expected.end(), Id::SetRepeatEnd);
  bars.Insert(kPlay, static_cast<std::size_t>(end - expected.begin()), CommandItem(Id::RepeatBeginField));
  std::rotate(field, field + 1, end);
  EXPECT_EQ(CommandsOf(bars, kPlay), expected) << "in front of that";
}

TEST(CustomisedBars, SeparatorsAndMenusOfTheUsersOwnMayStandTwice) {
  TCCustomisedBars bars;
  for (int i = 0; i < 2; ++i) {
    bars.Insert(kStandard, 0, TCBarItem());
    bars.Insert(kStandard, 0, NewMenuItem(u"Mine"));
    bars.Insert(kStandard, 0, MenuItem(TCMenuPlace::Play));
  }
  EXPECT_EQ(bars.ItemsOf(kStandard).size(), 3u + 2 + 2 + 1);
  bars.Insert(kStandard, 0, MenuItem(TCMenuPlace::Help));
  EXPECT_EQ(bars.ItemsOf(kStandard).size(), 3u + 2 + 2 + 2) << "another menu";
}

TEST(CustomisedBars, EveryItemIsKeptAsATextAndReadBack) {
  TCBarItem menu = NewMenuItem(u"Intro, & outro");
  menu.entries = {Id::Play, Id::Stop};
  for (const TCBarItem& item : {CommandItem(Id::Play), CommandItem(Id::RepeatEndField), TCBarItem(),
                                MenuItem(TCMenuPlace::Help), NewMenuItem(u""), menu}) {
    const std::optional<TCBarItem> read = ItemOfText(ItemText(item));
    ASSERT_TRUE(read.has_value());
    EXPECT_EQ(*read, item);
  }
  EXPECT_EQ(ItemText(CommandItem(Id::Play)), u"32772");
  EXPECT_EQ(ItemText(menu), u"new 32772,32773 Intro, & outro");
}

TEST(CustomisedBars, AMenuOfTheUsersOwnHasEachCommandOnce) {
  const std::optional<TCBarItem> menu = ItemOfText(u"new 32773,32772,32773 Mine");
  ASSERT_TRUE(menu.has_value());
  EXPECT_EQ(menu->entries, (std::vector<Id>{Id::Stop, Id::Play}));
}

TEST(CustomisedBars, ATextThatIsNoItemIsNone) {
  for (const std::u16string_view text :
       {u"", u"0", u"1", u"99999999999999", u"-32772", u"32772 ", u"32772a", u"menu", u"menu &Song", u"new",
        u"new 1 Mine", u"new 32772,,32773 Mine", u"new 32933 A field", u"--", u"\xFF13"}) {
    EXPECT_FALSE(ItemOfText(text).has_value()) << std::string(text.begin(), text.end());
  }
}

}  // namespace
}  // namespace brevant
