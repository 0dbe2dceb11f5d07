#include "app/commands/command_actions.h"

#include <QApplication>
#include <QScopedValueRollback>
#include <QWidget>

#include "app/commands/qt_keys.h"
#include "app/commands/tool_tips.h"
#include "app/help/whats_this.h"
#include "app/look/picture_icon.h"
#include "resources/command_table.h"
#include "resources/icons/icon_names.h"
#include "views/text_conversion.h"

namespace brevant {

namespace {

// What a dialog shows would not be there any more, or not be what it was.
bool ChangesTheDocument(TCCommandId id) {
  const TCCommand* command = CommandById(id);
  if (command == nullptr || id == TCCommandId::Exit) return false;
  return command->menu == TCMenuPlace::File || command->menu == TCMenuPlace::Edit;
}

}  // namespace

TCCommandActions::TCCommandActions(TCCommandTarget& commandTarget, QWidget& window) : target(commandTarget) {
  AddActions(window);
  Follow(TCKeyAssignment(), TCTips::WithKeys);
  RefreshChecks();
}

void TCCommandActions::AddActions(QWidget& window) {
  for (const TCCommand& command : Commands()) {
    if (!target.Handles(command.id)) continue;
    auto action = std::make_unique<QAction>(ToQString(command.menuText));
    action->setObjectName(ActionName(command.id));
    // What a tool button is called, by a screen reader too.
    action->setIconText(ToQString(CommandTitle(command)));
    action->setStatusTip(ToQString(StatusLine(command)));
    action->setCheckable(command.trait == TCCommandTrait::Checkable);
    // In a menu a picture would take the place of the tick.
    action->setIconVisibleInMenu(!action->isCheckable());
    action->setIcon(PictureIcon(IconName(command.id)));
    // An application-wide shortcut would fire behind an open menu or dialog.
    action->setShortcutContext(Qt::WindowShortcut);
    action->setAutoRepeat(command.trait == TCCommandTrait::Repeats);
    if (action->isCheckable()) {
      // A screen reader turns a checkable button over and its action with it, without a word of triggering.
      connect(action.get(), &QAction::toggled, this, [this, id = command.id] {
        if (!showingMarks) Queue(id);
      });
    } else {
      connect(action.get(), &QAction::triggered, this, [this, id = command.id] { Queue(id); });
    }
    // A key of an action that stands in a menu alone is dead while the menu bar is hidden.
    window.addAction(action.get());
    actions.emplace(command.id, std::move(action));
  }
}

void TCCommandActions::Follow(const TCKeyAssignment& assignment, TCTips tips) {
  keys.clear();
  for (const auto& [id, action] : actions) {
    const TCCommand& command = *CommandById(id);
    const std::vector<TCKey> bound = assignment.KeysOf(id);
    QList<QKeySequence> shortcuts;
    for (const TCKey& key : bound) {
      for (const QKeySequence& sequence : ToQtKeys(key)) {
        shortcuts.append(sequence);
        keys[sequence[0].toCombined()] = {id, command.trait == TCCommandTrait::Repeats};
      }
    }
    if (action->shortcuts() != shortcuts) action->setShortcuts(shortcuts);
    action->setWhatsThis(WhatsThisText(command, bound));
    const bool withKeys = tips == TCTips::WithKeys;
    action->setToolTip(ToQString(withKeys ? ToolTipWithKeys(command, bound) : ToolTip(command)));
  }
}

QAction* TCCommandActions::ActionOf(TCCommandId command) const {
  const auto action = actions.find(command);
  return action == actions.end() ? nullptr : action->second.get();
}

TCCommandActions::TCBoundCommand TCCommandActions::CommandOfKey(int key,
                                                                Qt::KeyboardModifiers modifiers) const {
  const Qt::KeyboardModifiers plain = modifiers & ~Qt::KeypadModifier;
  const auto bound = keys.find(QKeyCombination(plain, static_cast<Qt::Key>(key)).toCombined());
  return bound == keys.end() ? TCBoundCommand() : bound->second;
}

void TCCommandActions::RefreshChecks() {
  const QScopedValueRollback<bool> now(showingMarks, true);
  for (const auto& [command, action] : actions) {
    if (action->isCheckable()) action->setChecked(target.IsChecked(command));
  }
}

// Queued, so that a command that asks the user something never runs inside the event that called for it:
// whoever sent that event, a screen reader for one, would wait until the question is answered.
void TCCommandActions::Queue(TCCommandId command) {
  QMetaObject::invokeMethod(
      this, [this, command] { Trigger(command); }, Qt::QueuedConnection);
}

void TCCommandActions::Trigger(TCCommandId command) {
  // The key was pressed, or a screen reader asked, before the dialog opened or in spite of it.
  if (QApplication::activeModalWidget() != nullptr && ChangesTheDocument(command)) return;
  target.OnCommand(command);
  // A checkable action has flipped its mark by itself; what counts is what came of the command.
  RefreshChecks();
}

}  // namespace brevant
