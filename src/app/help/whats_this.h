// "What is this?": the pointer turns into a question, and the next click on a button, a menu entry, a pane or
// a field says what it is. The commands' texts are made from the command table.
#pragma once

#include <QAction>
#include <QString>
#include <span>

#include "resources/command_table.h"

namespace brevant {

// Rich text: the command's name, what it does and the keys that act, which are `bound`.
[[nodiscard]] QString WhatsThisText(const TCCommand& command, std::span<const TCKey> bound);

// The command that an action stands for, by its object name; none for any other action.
[[nodiscard]] TCCommandId CommandOf(const QAction& action);

// The object name of a command's actions.
[[nodiscard]] QString ActionName(TCCommandId command);

// Asks for the click. Asked again while it waits, it tells of the control that has the keys instead, for
// those who work without a mouse.
void AskWhatThisIs();

}  // namespace brevant
