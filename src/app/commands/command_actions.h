// One action for every command that somebody carries out: its text, status line and check mark, taken from
// the command table, and the keys that the user has for it. Menus and bars show these; the keys act whether
// they are shown or not.
#pragma once

#include <QAction>
#include <QObject>
#include <map>
#include <memory>

#include "app/commands/command_target.h"
#include "resources/key_assignment.h"

namespace brevant {

class TCCommandActions : public QObject {
 public:
  // The actions live in `window`: their keys act wherever the focus is in it. At first they are the delivered
  // ones.
  TCCommandActions(TCCommandTarget& commandTarget, QWidget& window);

  // Null when nobody carries the command out.
  [[nodiscard]] QAction* ActionOf(TCCommandId command) const;

  struct TCBoundCommand {
    TCCommandId command = TCCommandId::None;
    bool repeats = false;
  };
  // The command that a key and its modifiers (not the keypad's) fire; none when it fires nothing.
  [[nodiscard]] TCBoundCommand CommandOfKey(int key, Qt::KeyboardModifiers modifiers) const;

  enum class TCTips { WithKeys, WithoutKeys };
  // From now on these keys fire the commands and no others, and tool tips say so or not.
  void Follow(const TCKeyAssignment& assignment, TCTips tips);

  // Shows every check mark as it stands now.
  void RefreshChecks();

 private:
  void AddActions(QWidget& window);
  void Queue(TCCommandId command);
  void Trigger(TCCommandId command);

  TCCommandTarget& target;
  std::map<TCCommandId, std::unique_ptr<QAction>> actions;
  std::map<int, TCBoundCommand> keys;  // by QKeyCombination::toCombined
  bool showingMarks = false;           // a mark that turns over is no command
};

}  // namespace brevant
