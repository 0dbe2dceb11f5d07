#include "resources/bar_target.h"

#include <gtest/gtest.h>

namespace brevant {
namespace {

using Id = TCCommandId;

constexpr TCBarTarget kStandard{TCTextId::StandardToolbar, {}};
constexpr TCBarTarget kMenu{TCTextId::StandardToolbar, 1};

std::vector<Id> CommandsIn(const TCCustomisedBars& bars, const TCBarTarget& target) {
  std::vector<Id> commands;
  for (const TCBarItem& item : ItemsIn(bars, target)) commands.push_back(item.command);
  return commands;
}

TCCustomisedBars WithMenu() {
  TCCustomisedBars bars;
  bars.Insert(TCTextId::StandardToolbar, 1, NewMenuItem(u"Mine"));
  for (const Id command : {Id::Play, Id::Stop, Id::NextSong}) {
    InsertInto(bars, kMenu, 99, CommandItem(command));
  }
  return bars;
}

TEST(BarTarget, AreTheBarsAndTheMenusOfTheUsersOwnOnThem) {
  EXPECT_EQ(BarTargets({}).size(), 5u);
  const std::vector<TCBarTarget> targets = BarTargets(WithMenu());
  ASSERT_EQ(targets.size(), 6u);
  EXPECT_EQ(targets[0], kStandard);
  EXPECT_EQ(targets[1], kMenu);
  EXPECT_EQ(targets[2], (TCBarTarget{TCTextId::PlayControlsToolbar, {}}));
}

TEST(BarTarget, AMenuHoldsWhatIsPutIntoIt) {
  TCCustomisedBars bars = WithMenu();
  EXPECT_EQ(CommandsIn(bars, kMenu), (std::vector<Id>{Id::Play, Id::Stop, Id::NextSong}));
  InsertInto(bars, kMenu, 1, CommandItem(Id::FileNew));
  EXPECT_EQ(CommandsIn(bars, kMenu), (std::vector<Id>{Id::Play, Id::FileNew, Id::Stop, Id::NextSong}));
  InsertInto(bars, kMenu, 0, CommandItem(Id::NextSong));
  EXPECT_EQ(CommandsIn(bars, kMenu), (std::vector<Id>{Id::NextSong, Id::Play, Id::FileNew, Id::Stop}))
      << "what is in the menu already moves";
  RemoveFrom(bars, kMenu, 2);
  EXPECT_EQ(CommandsIn(bars, kMenu), (std::vector<Id>{Id::NextSong, Id::Play, Id::Stop}));
  RemoveFrom(bars, kMenu, 3);
  EXPECT_EQ(ItemsIn(bars, kMenu).size(), 3u);
  EXPECT_EQ(bars.ItemsOf(kMenu.bar).size(), 4u);
}

TEST(BarTarget, AnItemIsRemovedByItsPlace) {
  TCCustomisedBars bars;
  RemoveFrom(bars, kStandard, 1);
  EXPECT_EQ(CommandsIn(bars, kStandard), (std::vector<Id>{Id::FileNew, Id::FileSave}));
  RemoveFrom(bars, kStandard, 2);
  EXPECT_EQ(ItemsIn(bars, kStandard).size(), 2u) << "there is no such place";
  RemoveFrom(bars, kStandard, 0);
  RemoveFrom(bars, kStandard, 0);
  EXPECT_TRUE(ItemsIn(bars, kStandard).empty()) << "an empty bar is not a delivered one";
}

TEST(BarTarget, AMenuTakesCommandsAlone) {
  TCCustomisedBars bars = WithMenu();
  for (const TCBarItem& item : {TCBarItem(), MenuItem(TCMenuPlace::Play), NewMenuItem(u"Another"),
                                CommandItem(Id::RepeatBeginField)}) {
    EXPECT_FALSE(Takes(kMenu, item));
    EXPECT_TRUE(Takes(kStandard, item));
    InsertInto(bars, kMenu, 0, item);
  }
  EXPECT_EQ(bars, WithMenu());
}

TEST(BarTarget, AMenuIsRenamedAndABarIsNot) {
  TCCustomisedBars bars = WithMenu();
  RenameMenu(bars, kMenu, u"Finale");
  EXPECT_EQ(bars.ItemsOf(kMenu.bar)[1].title, u"Finale");
  const TCCustomisedBars renamed = bars;
  RenameMenu(bars, kStandard, u"Another");
  RenameMenu(bars, {TCTextId::StandardToolbar, 0}, u"A button");
  RenameMenu(bars, {TCTextId::StandardToolbar, 50}, u"Nothing");
  EXPECT_EQ(bars, renamed);
}

TEST(BarTarget, AnItemMovesToWhereItIsPut) {
  struct TCCase {
    std::size_t from;
    std::size_t to;
    std::vector<Id> expected;
  };
  const TCCase cases[] = {
      {0, 2, {Id::FileOpen, Id::FileNew, Id::FileSave}}, {0, 3, {Id::FileOpen, Id::FileSave, Id::FileNew}},
      {2, 0, {Id::FileSave, Id::FileNew, Id::FileOpen}}, {1, 1, {Id::FileNew, Id::FileOpen, Id::FileSave}},
      {1, 2, {Id::FileNew, Id::FileOpen, Id::FileSave}}, {0, 99, {Id::FileOpen, Id::FileSave, Id::FileNew}},
      {3, 0, {Id::FileNew, Id::FileOpen, Id::FileSave}},
  };
  for (const TCCase& each : cases) {
    TCCustomisedBars bars;
    MoveWithin(bars, kStandard, each.from, each.to);
    EXPECT_EQ(CommandsIn(bars, kStandard), each.expected) << each.from << " to " << each.to;
  }
  TCCustomisedBars bars = WithMenu();
  MoveWithin(bars, kMenu, 2, 0);
  EXPECT_EQ(CommandsIn(bars, kMenu), (std::vector<Id>{Id::NextSong, Id::Play, Id::Stop}));
}

TEST(BarTarget, OfTwoSeparatorsTheOneThatIsMovedMoves) {
  TCCustomisedBars bars;
  bars.SetItems(kStandard.bar, {TCBarItem(), CommandItem(Id::Play), TCBarItem(), CommandItem(Id::Stop)});
  MoveWithin(bars, kStandard, 2, 4);
  EXPECT_EQ(CommandsIn(bars, kStandard), (std::vector<Id>{Id::None, Id::Play, Id::Stop, Id::None}));
}

TEST(BarTarget, AMenuThatIsNotThereHoldsNothingAndTakesNothing) {
  TCCustomisedBars bars;
  EXPECT_TRUE(ItemsIn(bars, kMenu).empty());
  InsertInto(bars, kMenu, 0, CommandItem(Id::Play));
  RemoveFrom(bars, kMenu, 0);
  MoveWithin(bars, kMenu, 0, 1);
  EXPECT_EQ(bars, TCCustomisedBars());
}

}  // namespace
}  // namespace brevant
