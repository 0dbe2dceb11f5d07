// Sees every key before it becomes a shortcut and says who has it: see key_rules.h. One for the application,
// for the main window and its floating panes. A dialog keeps its keys to itself, but the function and media
// keys still perform the show, unless a field asks for a key, and nothing of the key that opened it reaches
// it; the window behind it has no keys at all. A window beside the main one, the guide, is like a dialog that
// stands before nothing.
#pragma once

#include <QKeyEvent>
#include <QObject>
#include <QPointer>
#include <QWidget>
#include <functional>
#include <map>
#include <utility>
#include <vector>

#include "app/commands/command_actions.h"
#include "app/commands/key_rules.h"

namespace brevant {

class TCKeyFilter : public QObject {
 public:
  // Installs itself on the application.
  TCKeyFilter(const TCCommandActions& commandActions, QWidget& window);

  // `window` is one beside the main window, and the keys act in it as they do in a dialog.
  void PerformIn(QWidget& window);

  using TCKeepsKey = std::function<bool(int key, Qt::KeyboardModifiers modifiers)>;
  // While `widget` has the focus, the keys that `keeps` says yes to are its own and fire no command.
  void LetKeep(QWidget& widget, TCKeepsKey keeps);

  [[nodiscard]] TCKeyVerdict VerdictOn(const QKeyEvent& event, const QWidget* focus) const;

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  enum class TCKeyPlace { Elsewhere, MainWindow, BehindDialog, Dialog };
  [[nodiscard]] bool IsBesideMain(const QWidget& window) const;
  [[nodiscard]] TCKeyPlace PlaceOf(const QWidget& widget) const;
  [[nodiscard]] bool WidgetKeeps(const QWidget* widget, const QKeyEvent& event) const;
  [[nodiscard]] TCKeyPress PressOf(const QKeyEvent& event, const QWidget* focus) const;
  void NotePlaceOf(const QWidget& receiver, const QKeyEvent& event);
  [[nodiscard]] bool PressedInWindowOf(const QWidget& receiver, int key) const;
  [[nodiscard]] const QWidget* WindowOf(const QWidget& widget) const;
  bool FilterOverride(const QWidget& receiver, QKeyEvent& event);
  bool FilterInDialog(const QWidget& receiver, QKeyEvent& event);
  bool FilterOverAnswer(QWidget& answer, QKeyEvent& event);
  // False when the key is no command's.
  bool Trigger(const QKeyEvent& event);
  bool Swallow(QKeyEvent& event);

  const TCCommandActions& actions;
  QWidget& mainWindow;
  std::vector<std::pair<QPointer<QWidget>, TCKeepsKey>> keepers;
  std::vector<QPointer<QWidget>> besideMain;  // null once one is gone
  TCHeldKeys heldKeys;
  std::map<int, QPointer<const QWidget>> pressedIn;  // the window in which each key went down last
  int swallowedKey = 0;  // its press, if one follows the swallowed shortcut, goes the same way
};

// What the keyboard is used for while `focus` has it; null is ordinary.
[[nodiscard]] TCKeyFocus FocusKind(const QWidget* focus);

}  // namespace brevant
