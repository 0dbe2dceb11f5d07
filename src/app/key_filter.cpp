#include "app/key_filter.h"

#include <QAbstractSpinBox>
#include <QApplication>
#include <QComboBox>
#include <QLineEdit>
#include <QMenuBar>
#include <QPlainTextEdit>
#include <QTextEdit>

namespace brevant {

TCKeyFocus FocusKind(const QWidget* focus) {
  if (qobject_cast<const QMenuBar*>(focus) != nullptr) return TCKeyFocus::Menu;

  bool typing = false;
  if (const auto* line = qobject_cast<const QLineEdit*>(focus)) {
    typing = !line->isReadOnly();
  } else if (const auto* spin = qobject_cast<const QAbstractSpinBox*>(focus)) {  // time fields too
    typing = !spin->isReadOnly();
  } else if (const auto* combo = qobject_cast<const QComboBox*>(focus)) {
    typing = combo->isEditable();
  } else if (const auto* plain = qobject_cast<const QPlainTextEdit*>(focus)) {
    typing = !plain->isReadOnly();
  } else if (const auto* rich = qobject_cast<const QTextEdit*>(focus)) {
    typing = !rich->isReadOnly();
  }
  return typing ? TCKeyFocus::Typing : TCKeyFocus::Ordinary;
}

TCKeyFilter::TCKeyFilter(const TCCommandActions& commandActions, QWidget& window)
    : actions(commandActions), mainWindow(window) {
  qApp->installEventFilter(this);
}

void TCKeyFilter::LetKeep(QWidget& widget, TCKeepsKey keeps) {
  keepers.emplace_back(&widget, std::move(keeps));
}

TCKeyVerdict TCKeyFilter::VerdictOn(const QKeyEvent& event, const QWidget* focus) const {
  const TCCommandActions::TCBoundCommand bound = actions.CommandOfKey(event.key(), event.modifiers());
  TCKeyPress press;
  press.key = event.key();
  press.modifiers = event.modifiers();
  press.focus = FocusKind(focus);
  press.widgetKeepsIt = WidgetKeeps(focus, event);
  press.bound = bound.command != TCCommandId::None;
  press.held = heldKeys.IsHeld(event.key(), event.timestamp(), event.isAutoRepeat());
  press.commandRepeats = bound.repeats;
  return DecideKey(press);
}

bool TCKeyFilter::IsOurs(const QWidget& widget) const {
  const QWidget* window = widget.window();
  // A pane that floats is a tool window of the main window. Menus and dialogs are windows of other kinds.
  return window == &mainWindow || (window->windowType() == Qt::Tool && mainWindow.isAncestorOf(window));
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
  if (widget == nullptr || !IsOurs(*widget)) return false;

  auto& key = *static_cast<QKeyEvent*>(event);
  if (event->type() == QEvent::ShortcutOverride) return FilterOverride(*widget, key);
  if (key.key() != swallowedKey) return false;
  swallowedKey = 0;
  return true;
}

// The event climbs from the focused widget to its window until somebody accepts it, so the same answer is
// given at every step.
bool TCKeyFilter::FilterOverride(const QWidget& receiver, QKeyEvent& event) {
  const QWidget* focus = receiver.window()->focusWidget();
  const TCKeyVerdict verdict = VerdictOn(event, focus != nullptr ? focus : &receiver);
  swallowedKey = verdict == TCKeyVerdict::Swallow ? event.key() : 0;
  switch (verdict) {
    case TCKeyVerdict::Untouched:
      return false;
    case TCKeyVerdict::Table:
      event.ignore();
      return true;
    case TCKeyVerdict::Widget:
    case TCKeyVerdict::Swallow:
      event.accept();
      return true;
  }
  return false;
}

}  // namespace brevant
