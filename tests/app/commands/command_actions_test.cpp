#include "app/commands/command_actions.h"

#include <gtest/gtest.h>

#include <QCoreApplication>
#include <QWidget>

#include "app/fake_target.h"
#include "resources/command_table.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

class CommandActions : public testing::Test {
 protected:
  TCFakeTarget target;
  QWidget window;
};

TEST_F(CommandActions, AreMadeForWhatIsCarriedOutAndNothingElse) {
  target.handled = {TCCommandId::Play, TCCommandId::LoadSong};
  const TCCommandActions actions(target, window);
  EXPECT_NE(actions.ActionOf(TCCommandId::Play), nullptr);
  EXPECT_NE(actions.ActionOf(TCCommandId::LoadSong), nullptr);
  EXPECT_EQ(actions.ActionOf(TCCommandId::Stop), nullptr);
  EXPECT_EQ(window.actions().size(), 2);
}

TEST_F(CommandActions, SayWhatTheTableSays) {
  for (const TCCommand& command : Commands()) target.handled.insert(command.id);
  const TCCommandActions actions(target, window);
  for (const TCCommand& command : Commands()) {
    const QAction* action = actions.ActionOf(command.id);
    ASSERT_NE(action, nullptr);
    const bool namedInAMenu = !command.menuText.empty();
    EXPECT_EQ(action->text(), ToQString(namedInAMenu ? std::u16string(command.menuText) : ToolTip(command)));
    EXPECT_EQ(action->statusTip(), ToQString(StatusLine(command)));
    EXPECT_EQ(action->isCheckable(), command.trait == TCCommandTrait::Checkable);
    EXPECT_EQ(action->shortcutContext(), Qt::WindowShortcut);
  }
}

TEST_F(CommandActions, TheToolTipIsTheStatusTextsSecondLineWithTheKeys) {
  target.handled = {TCCommandId::FileNew, TCCommandId::Stop};
  const TCCommandActions actions(target, window);
  EXPECT_EQ(actions.ActionOf(TCCommandId::FileNew)->toolTip(), QStringLiteral("New (Ctrl+N)"));
  EXPECT_EQ(actions.ActionOf(TCCommandId::FileNew)->statusTip(), QStringLiteral("Create a new document"));
  EXPECT_EQ(actions.ActionOf(TCCommandId::Stop)->toolTip(), QStringLiteral("Stop S, F6, 6"));
}

TEST_F(CommandActions, AToolButtonIsCalledByTheCommandsTitle) {
  target.handled = {TCCommandId::SeekForward, TCCommandId::PauseContinue, TCCommandId::NextSong,
                    TCCommandId::MediaVolumeUp};
  const TCCommandActions actions(target, window);
  EXPECT_EQ(actions.ActionOf(TCCommandId::SeekForward)->iconText(), QStringLiteral("Fast Foward"));
  EXPECT_EQ(actions.ActionOf(TCCommandId::PauseContinue)->iconText(), QStringLiteral("Pause - Continue"));
  EXPECT_EQ(actions.ActionOf(TCCommandId::NextSong)->iconText(), QStringLiteral("Next Song"));
  EXPECT_EQ(actions.ActionOf(TCCommandId::MediaVolumeUp)->iconText(),
            QStringLiteral("Increase Volume (volume key)"));
}

TEST_F(CommandActions, EnterIsBoundOnBothKeyboards) {
  target.handled = {TCCommandId::LoadSong, TCCommandId::Play};
  const TCCommandActions actions(target, window);
  const QList<QKeySequence> expected{QKeySequence(Qt::Key_Return), QKeySequence(Qt::Key_Enter)};
  EXPECT_EQ(actions.ActionOf(TCCommandId::LoadSong)->shortcuts(), expected);
}

TEST_F(CommandActions, AKeyThatAnEarlierCommandHasIsNeverBound) {
  // Ctrl+G and Enter stand twice in the table; whoever comes second does without, even alone.
  target.handled = {TCCommandId::LoadLastFile, TCCommandId::Play};
  const TCCommandActions actions(target, window);
  EXPECT_TRUE(actions.ActionOf(TCCommandId::LoadLastFile)->shortcuts().isEmpty());
  EXPECT_FALSE(actions.ActionOf(TCCommandId::Play)->shortcuts().contains(QKeySequence(Qt::Key_Return)));
}

TEST_F(CommandActions, NoTwoActionsShareAKey) {
  for (const TCCommand& command : Commands()) target.handled.insert(command.id);
  const TCCommandActions actions(target, window);
  QList<QKeySequence> seen;
  for (const QAction* action : window.actions()) {
    for (const QKeySequence& key : action->shortcuts()) {
      EXPECT_FALSE(seen.contains(key)) << key.toString().toStdString();
      seen.append(key);
    }
  }
  EXPECT_FALSE(seen.isEmpty());
}

TEST_F(CommandActions, HaveTheKeysThatTheUserGaveThemAndNoOthers) {
  target.handled = {TCCommandId::Play, TCCommandId::Stop};
  TCCommandActions actions(target, window);
  TCKeyAssignment keys;
  keys.Assign(TCKeyCode::P, TCCommandId::Stop);
  keys.Assign(TCKey(TCKeyCode::F12, TCKeyModifier::Ctrl | TCKeyModifier::Shift), TCCommandId::Stop);
  actions.Follow(keys, TCCommandActions::TCTips::WithKeys);
  EXPECT_EQ(actions.ActionOf(TCCommandId::Play)->shortcuts(), QList<QKeySequence>{QKeySequence(Qt::Key_F5)});
  EXPECT_TRUE(actions.ActionOf(TCCommandId::Stop)->shortcuts().contains(QKeySequence(Qt::Key_P)));
  EXPECT_EQ(actions.CommandOfKey(Qt::Key_P, Qt::NoModifier).command, TCCommandId::Stop);
  EXPECT_EQ(actions.CommandOfKey(Qt::Key_F12, Qt::ControlModifier | Qt::ShiftModifier).command,
            TCCommandId::Stop);
  EXPECT_EQ(actions.ActionOf(TCCommandId::Stop)->toolTip(),
            QStringLiteral("Stop S, F6, 6 (S, F6, P, Ctrl+Shift+F12)"));
  EXPECT_TRUE(actions.ActionOf(TCCommandId::Play)->whatsThis().contains(QStringLiteral("Keys: F5")));
  EXPECT_EQ(actions.ActionOf(TCCommandId::Play)->text(), QStringLiteral("&Play\tENTER, P, F5, 5"))
      << "the menu's hint is the table's";

  actions.Follow(TCKeyAssignment(), TCCommandActions::TCTips::WithKeys);
  EXPECT_EQ(actions.CommandOfKey(Qt::Key_P, Qt::NoModifier).command, TCCommandId::Play);
  EXPECT_EQ(actions.CommandOfKey(Qt::Key_F12, Qt::ControlModifier | Qt::ShiftModifier).command,
            TCCommandId::None);
}

TEST_F(CommandActions, ToolTipsCanDoWithoutKeys) {
  target.handled = {TCCommandId::FileNew};
  TCCommandActions actions(target, window);
  actions.Follow(TCKeyAssignment(), TCCommandActions::TCTips::WithoutKeys);
  EXPECT_EQ(actions.ActionOf(TCCommandId::FileNew)->toolTip(), QStringLiteral("New"));
  EXPECT_EQ(actions.ActionOf(TCCommandId::FileNew)->shortcuts().size(), 1);
}

TEST_F(CommandActions, TellTheCommandOfAKey) {
  target.handled = {TCCommandId::Play, TCCommandId::NextSong};
  const TCCommandActions actions(target, window);
  EXPECT_EQ(actions.CommandOfKey(Qt::Key_P, Qt::NoModifier).command, TCCommandId::Play);
  EXPECT_FALSE(actions.CommandOfKey(Qt::Key_P, Qt::NoModifier).repeats);
  EXPECT_EQ(actions.CommandOfKey(Qt::Key_P, Qt::ShiftModifier).command, TCCommandId::None);
  EXPECT_EQ(actions.CommandOfKey(Qt::Key_S, Qt::NoModifier).command, TCCommandId::None) << "not carried out";
  EXPECT_EQ(actions.CommandOfKey(Qt::Key_Down, Qt::KeypadModifier).command, TCCommandId::NextSong);
  EXPECT_TRUE(actions.CommandOfKey(Qt::Key_Down, Qt::NoModifier).repeats);
}

TEST_F(CommandActions, RunTheirCommandAfterTheEventThatCalledForIt) {
  target.handled = {TCCommandId::Stop};
  const TCCommandActions actions(target, window);
  actions.ActionOf(TCCommandId::Stop)->trigger();
  EXPECT_TRUE(target.ran.empty());
  QCoreApplication::sendPostedEvents();
  EXPECT_EQ(target.ran, std::vector{TCCommandId::Stop});
}

TEST_F(CommandActions, ACheckMarkShowsWhatCameOfTheCommand) {
  // The target refuses: the option stays off, though the toolkit has flipped the mark already.
  target.handled = {TCCommandId::WhiteOnBlack};
  TCCommandActions actions(target, window);
  QAction* action = actions.ActionOf(TCCommandId::WhiteOnBlack);
  action->trigger();
  QCoreApplication::sendPostedEvents();
  EXPECT_FALSE(action->isChecked());

  target.checked = {TCCommandId::WhiteOnBlack};
  actions.RefreshChecks();
  EXPECT_TRUE(action->isChecked());
}

}  // namespace
}  // namespace brevant
