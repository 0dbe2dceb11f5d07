#include "app/commands/key_filter.h"

#include <QApplication>
#include <QMenuBar>
#include <QWhatsThis>
#include <algorithm>
#include <utility>

#include "app/bars/key_field.h"
#include "app/part_of.h"
#include "views/keyboard_focus.h"

namespace brevant {
namespace {

bool IsModifier(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_Meta ||
         key == Qt::Key_AltGr;
}

}  // namespace

TCKeyFocus FocusKind(const QWidget* focus) {
  if (qobject_cast<const QMenuBar*>(focus) != nullptr) return TCKeyFocus::Menu;
  if (qobject_cast<const TCKeyField*>(focus) != nullptr) return TCKeyFocus::Asking;

  return TakesText(focus) ? TCKeyFocus::Typing : TCKeyFocus::Ordinary;
}

TCKeyFilter::TCKeyFilter(const TCCommandActions& commandActions, QWidget& window)
    : actions(commandActions), mainWindow(window) {
  qApp->installEventFilter(this);
}

void TCKeyFilter::PerformIn(QWidget& window) {
  std::erase(besideMain, nullptr);
  besideMain.emplace_back(&window);
}

bool TCKeyFilter::IsBesideMain(const QWidget& window) const {
  return std::ranges::any_of(besideMain, [&window](const QPointer<QWidget>& one) { return one == &window; });
}

void TCKeyFilter::LetKeep(QWidget& widget, TCKeepsKey keeps) {
  keepers.emplace_back(&widget, std::move(keeps));
}

TCKeyVerdict TCKeyFilter::VerdictOn(const QKeyEvent& event, const QWidget* focus) const {
  return DecideKey(PressOf(event, focus));
}

TCKeyPress TCKeyFilter::PressOf(const QKeyEvent& event, const QWidget* focus) const {
  const TCCommandActions::TCBoundCommand bound = actions.CommandOfKey(event.key(), event.modifiers());
  TCKeyPress press;
  press.key = event.key();
  press.modifiers = event.modifiers();
  press.focus = FocusKind(focus);
  press.widgetKeepsIt = WidgetKeeps(focus, event);
  press.bound = bound.command != TCCommandId::None;
  press.held = heldKeys.IsHeld(event.key(), event.timestamp(), event.isAutoRepeat());
  press.heldFromElsewhere = press.held && focus != nullptr && !PressedInWindowOf(*focus, event.key());
  press.commandRepeats = bound.repeats;
  return press;
}

void TCKeyFilter::NotePlaceOf(const QWidget& receiver, const QKeyEvent& event) {
  if (heldKeys.IsHeld(event.key(), event.timestamp(), event.isAutoRepeat())) return;
  pressedIn[event.key()] = WindowOf(receiver);
}

bool TCKeyFilter::PressedInWindowOf(const QWidget& receiver, int key) const {
  const auto pressed = pressedIn.find(key);
  // The window may be gone by now.
  return pressed != pressedIn.end() && pressed->second == WindowOf(receiver);
}

// The main window and its floating panes count as one.
const QWidget* TCKeyFilter::WindowOf(const QWidget& widget) const {
  const QWidget* window = widget.window();
  const bool floats = window->windowType() == Qt::Tool && IsPartOf(mainWindow, window);
  return floats ? &mainWindow : window;
}

TCKeyFilter::TCKeyPlace TCKeyFilter::PlaceOf(const QWidget& widget) const {
  const QWidget* window = widget.window();
  if (IsBesideMain(*window)) return TCKeyPlace::Dialog;
  const bool belongsToMain = IsPartOf(mainWindow, window);
  if (belongsToMain && window->windowType() == Qt::Dialog) return TCKeyPlace::Dialog;
  // A pane that floats is a tool window of the main window. A menu is a window of another kind.
  if (window != &mainWindow && !(belongsToMain && window->windowType() == Qt::Tool)) {
    return TCKeyPlace::Elsewhere;
  }
  // A dialog that has just been opened gets the keyboard only after a moment.
  return QApplication::activeModalWidget() == nullptr ? TCKeyPlace::MainWindow : TCKeyPlace::BehindDialog;
}

bool TCKeyFilter::WidgetKeeps(const QWidget* widget, const QKeyEvent& event) const {
  for (const auto& [keeper, keeps] : keepers) {
    if (widget != nullptr && keeper == widget) return keeps(event.key(), event.modifiers());
  }
  return false;
}

bool TCKeyFilter::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() == QEvent::KeyRelease) {
    const auto* release = static_cast<QKeyEvent*>(event);
    heldKeys.Released(release->key(), release->timestamp());
    return false;
  }
  if (event->type() != QEvent::ShortcutOverride && event->type() != QEvent::KeyPress) return false;
  const auto* widget = qobject_cast<const QWidget*>(receiver);
  if (widget == nullptr) return false;

  auto& key = *static_cast<QKeyEvent*>(event);
  const int swallowed = std::exchange(swallowedKey, 0);
  if (event->type() == QEvent::KeyPress) return key.key() == swallowed;
  NotePlaceOf(*widget, key);
  if (key.key() == Qt::Key_Escape && QWhatsThis::inWhatsThisMode()) {
    key.accept();  // it ends the asking, and cancels nothing else
    return true;
  }
  if (widget->inherits("QWhatsThat")) return FilterOverAnswer(*static_cast<QWidget*>(receiver), key);
  switch (PlaceOf(*widget)) {
    case TCKeyPlace::Elsewhere:
      return false;
    case TCKeyPlace::MainWindow:
      return FilterOverride(*widget, key);
    case TCKeyPlace::BehindDialog:
      return Swallow(key);
    case TCKeyPlace::Dialog:
      return FilterInDialog(*widget, key);
  }
  return false;
}

bool TCKeyFilter::Swallow(QKeyEvent& event) {
  swallowedKey = event.key();
  event.accept();
  return true;
}

// The event climbs from the focused widget to its window until somebody accepts it, so the same answer is
// given at every step.
bool TCKeyFilter::FilterOverride(const QWidget& receiver, QKeyEvent& event) {
  const QWidget* focus = receiver.window()->focusWidget();
  const TCKeyVerdict verdict = VerdictOn(event, focus != nullptr ? focus : &receiver);
  switch (verdict) {
    case TCKeyVerdict::Untouched:
      return false;
    case TCKeyVerdict::Table:
      event.ignore();
      return true;
    case TCKeyVerdict::Widget:
      event.accept();
      return true;
    case TCKeyVerdict::Swallow:
      return Swallow(event);
  }
  return false;
}

// The answer to "what is this?" goes with any key, and a key of the show performs all the same.
bool TCKeyFilter::FilterOverAnswer(QWidget& answer, QKeyEvent& event) {
  if (IsModifier(event.key())) return false;
  answer.close();
  const QWidget* below = QApplication::activeWindow();
  if (below == nullptr || event.key() == Qt::Key_Escape) return Swallow(event);
  if (PlaceOf(*below) == TCKeyPlace::Dialog) return FilterInDialog(*below, event) || Swallow(event);
  if (PlaceOf(*below) == TCKeyPlace::MainWindow &&
      VerdictOn(event, below->focusWidget()) == TCKeyVerdict::Table) {
    Trigger(event);
  }
  return Swallow(event);
}

bool TCKeyFilter::Trigger(const QKeyEvent& event) {
  QAction* action = actions.ActionOf(actions.CommandOfKey(event.key(), event.modifiers()).command);
  if (action == nullptr) return false;
  action->trigger();
  return true;
}

// The main window's shortcuts do not act in front of it, so what is the table's is fired from here.
bool TCKeyFilter::FilterInDialog(const QWidget& receiver, QKeyEvent& event) {
  const QWidget* focus = receiver.window()->focusWidget();
  TCKeyPress press = PressOf(event, focus != nullptr ? focus : &receiver);
  // Its buttons belong to the entry of a text as much as its field.
  if (press.focus != TCKeyFocus::Asking) press.focus = TCKeyFocus::Typing;
  switch (DecideKey(press)) {
    case TCKeyVerdict::Untouched:
    case TCKeyVerdict::Widget:
      return false;
    case TCKeyVerdict::Table:
      return Trigger(event) && Swallow(event);
    case TCKeyVerdict::Swallow:
      return Swallow(event);
  }
  return false;
}

}  // namespace brevant
