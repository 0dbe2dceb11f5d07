// One action for every command that somebody carries out: its text, keys, status line and check mark, taken
// from the command table. Menus and bars show these; the keys act whether they are shown or not.
#pragma once

#include <QAction>
#include <QObject>
#include <map>
#include <memory>

#include "app/command_target.h"

namespace brevant {

class TCCommandActions : public QObject {
 public:
  // The actions live in `window`: their keys act wherever the focus is in it.
  TCCommandActions(TCCommandTarget& commandTarget, QWidget& window);

  // Null when nobody carries the command out.
  [[nodiscard]] QAction* ActionOf(TCCommandId command) const;

  struct TCBoundCommand {
    TCCommandId command = TCCommandId::None;
    bool repeats = false;
  };
  // The command that a key and its modifiers (not the keypad's) fire; none when it fires nothing.
  [[nodiscard]] TCBoundCommand CommandOfKey(int key, Qt::KeyboardModifiers modifiers) const;

  // Shows every check mark as it stands now.
  void RefreshChecks();

 private:
  void AddActions(QWidget& window);
  void BindKeys();
  void Queue(TCCommandId command);
  void Trigger(TCCommandId command);

  TCCommandTarget& target;
  std::map<TCCommandId, std::unique_ptr<QAction>> actions;
  std::map<int, TCBoundCommand> keys;  // by QKeyCombination::toCombined
  bool showingMarks = false;           // a mark that turns over is no command
};

}  // namespace brevant
