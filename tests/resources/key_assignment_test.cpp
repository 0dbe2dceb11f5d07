#include "resources/key_assignment.h"

#include <gtest/gtest.h>

#include <random>
#include <set>

namespace brevant {
namespace {

using Id = TCCommandId;
using Keys = std::vector<TCKey>;

TEST(KeyAssignment, BeginsAsTheCommandTableDelivers) {
  const TCKeyAssignment keys;
  for (const TCKeyBinding& binding : EffectiveBindings()) {
    EXPECT_EQ(keys.CommandOf(binding.key), binding.command);
  }
  EXPECT_EQ(keys.KeysOf(Id::Play), (Keys{TCKeyCode::P, TCKeyCode::F5})) << "Enter is the first entry's";
  EXPECT_TRUE(keys.KeysOf(Id::FileSaveAs).empty());
  EXPECT_TRUE(keys.Changes().empty());
}

TEST(KeyAssignment, AFreeKeyIsAddedToTheOnesACommandHas) {
  TCKeyAssignment keys;
  keys.Assign(TCKeyCode::PageDown, Id::NextSong);
  EXPECT_EQ(keys.KeysOf(Id::NextSong), (Keys{TCKeyCode::Down, TCKeyCode::D, TCKeyCode::PageDown}));
  EXPECT_EQ(keys.CommandOf(TCKeyCode::PageDown), Id::NextSong);
}

TEST(KeyAssignment, AnAssignedKeyIsTakenAwayFromWhoeverHadIt) {
  TCKeyAssignment keys;
  keys.Assign(TCKeyCode::P, Id::Stop);
  EXPECT_EQ(keys.CommandOf(TCKeyCode::P), Id::Stop);
  EXPECT_EQ(keys.KeysOf(Id::Play), Keys{TCKeyCode::F5});
}

TEST(KeyAssignment, AKeyThatACommandHasStaysItsOnce) {
  TCKeyAssignment keys;
  keys.Assign(TCKeyCode::P, Id::Play);
  EXPECT_EQ(keys, TCKeyAssignment());
}

TEST(KeyAssignment, ARemovedKeyIsNobodysNotTheNextOfTheTables) {
  TCKeyAssignment keys;
  keys.Remove(Ctrl(TCKeyCode::G));
  EXPECT_EQ(keys.CommandOf(Ctrl(TCKeyCode::G)), Id::None);
  EXPECT_TRUE(keys.KeysOf(Id::NewGroupFolder).empty());
  EXPECT_TRUE(keys.KeysOf(Id::LoadLastFile).empty());
}

TEST(KeyAssignment, TheKeysOfTheMenusAreNobodys) {
  EXPECT_EQ(MenuOpenedBy(Alt(TCKeyCode::V)), TCMenuPlace::View);
  EXPECT_EQ(MenuOpenedBy(Alt(TCKeyCode::F)), TCMenuPlace::File);
  EXPECT_EQ(MenuOpenedBy(TCKeyCode::V), TCMenuPlace::None);
  EXPECT_EQ(MenuOpenedBy(TCKey(TCKeyCode::V, TCKeyModifier::Alt | TCKeyModifier::Ctrl)), TCMenuPlace::None);
  for (const TCKeyBinding& binding : EffectiveBindings()) {
    EXPECT_EQ(MenuOpenedBy(binding.key), TCMenuPlace::None) << "delivered and never acting";
  }
  TCKeyAssignment keys;
  keys.Assign(Alt(TCKeyCode::V), Id::Stop);
  EXPECT_EQ(keys, TCKeyAssignment());
  keys = TCKeyAssignment::WithChanges({{Id::Stop, {Alt(TCKeyCode::V), TCKeyCode::S}}});
  EXPECT_EQ(keys.KeysOf(Id::Stop), Keys{TCKeyCode::S});
}

TEST(KeyAssignment, SaysWhatAssigningWouldMean) {
  using Kind = TCKeyUse::Kind;
  const TCKeyAssignment keys;
  EXPECT_EQ(UseOf(keys, {}, Id::Stop).kind, Kind::NoKey);
  EXPECT_EQ(UseOf(keys, TCKeyCode::PageUp, Id::Stop).kind, Kind::Free);
  EXPECT_EQ(UseOf(keys, TCKeyCode::S, Id::Stop).kind, Kind::Own);
  const TCKeyUse taken = UseOf(keys, TCKeyCode::P, Id::Stop);
  EXPECT_EQ(taken.kind, Kind::Taken);
  EXPECT_EQ(taken.owner, Id::Play);
  const TCKeyUse menu = UseOf(keys, Alt(TCKeyCode::H), Id::Stop);
  EXPECT_EQ(menu.kind, Kind::OpensMenu);
  EXPECT_EQ(menu.menu, TCMenuPlace::Help);
}

TEST(KeyAssignment, IsItsChangesAndNothingElse) {
  TCKeyAssignment keys;
  keys.Assign(TCKeyCode::P, Id::Stop);
  keys.Remove(TCKeyCode::Space);
  const std::vector<TCKeyAssignment::TCChange> changes = keys.Changes();
  ASSERT_EQ(changes.size(), 3u);  // Play lost a key, Stop won it, Pause has none left
  EXPECT_EQ(TCKeyAssignment::WithChanges(changes), keys);
  EXPECT_EQ(TCKeyAssignment::WithChanges(changes).CommandOf(TCKeyCode::P), Id::Stop);
}

TEST(KeyAssignment, WhatTheUserHasChangedGoesBeforeWhatIsDelivered) {
  // As after an update that delivers Space with another command than before.
  const TCKeyAssignment keys = TCKeyAssignment::WithChanges({{Id::FileSaveAs, {TCKeyCode::Space}}});
  EXPECT_EQ(keys.CommandOf(TCKeyCode::Space), Id::FileSaveAs);
  EXPECT_TRUE(keys.KeysOf(Id::PauseContinue).empty());
}

TEST(KeyAssignment, OfTwoChangesThatNameOneKeyTheFirstHasIt) {
  const TCKeyAssignment keys =
      TCKeyAssignment::WithChanges({{Id::Stop, {TCKeyCode::Home}}, {Id::Play, {TCKeyCode::Home}}});
  EXPECT_EQ(keys.CommandOf(TCKeyCode::Home), Id::Stop);
  EXPECT_TRUE(keys.KeysOf(Id::Play).empty());
}

TEST(KeyAssignment, WhateverIsAssignedNoKeyIsTwosAndTheChangesTellAll) {
  std::mt19937 random(7);
  const auto below = [&random](std::size_t limit) { return random() % limit; };
  TCKeyAssignment keys;
  for (int step = 0; step < 2000; ++step) {
    const TCKey key(CharacterKey(static_cast<char16_t>(u'A' + below(26))),
                    static_cast<TCKeyModifier>(below(8)));
    if (below(3) == 0) {
      keys.Remove(key);
    } else {
      keys.Assign(key, Commands()[below(Commands().size())].id);
    }
    std::set<std::u16string> seen;
    for (const TCKeyBinding& binding : keys.Bindings()) {
      ASSERT_TRUE(seen.insert(KeyName(binding.key)).second);
      ASSERT_EQ(MenuOpenedBy(binding.key), TCMenuPlace::None);
    }
    if (step % 50 == 0) {
      ASSERT_EQ(TCKeyAssignment::WithChanges(keys.Changes()), keys);
    }
  }
  EXPECT_FALSE(keys.Changes().empty());
}

}  // namespace
}  // namespace brevant
