#include "app/help/help.h"

#include <QAction>
#include <QApplication>
#include <QKeyEvent>
#include <QMenu>
#include <QWhatsThis>

#include "app/help/guide_pages.h"
#include "app/help/whats_this.h"

namespace brevant {
namespace {

// Where the keys go, or would go.
const QWidget* PlaceOfUser() {
  if (const QWidget* focus = QApplication::focusWidget()) return focus;
  if (const QWidget* dialog = QApplication::activeModalWidget()) return dialog;
  return QApplication::activeWindow();
}

void CloseMenus() {
  // Each one that closes leaves the one it came out of.
  while (QWidget* popup = QApplication::activePopupWidget()) {
    if (!popup->close()) break;
  }
}

}  // namespace

TCHelp::TCHelp() {
  qApp->installEventFilter(this);
}

TCHelp::~TCHelp() {
  delete window;
}

bool TCHelp::Handles(TCCommandId command) {
  return command == TCCommandId::HelpTopics || command == TCCommandId::Help ||
         command == TCCommandId::ContextHelp;
}

bool TCHelp::OnCommand(TCCommandId command) {
  switch (command) {
    case TCCommandId::HelpTopics:
      ShowPage(QString::fromLatin1(kContentsPage));
      return true;
    case TCCommandId::Help:
      ShowPage(GuidePageOf(PlaceOfUser()));
      return true;
    case TCCommandId::ContextHelp:
      AskWhatThisIs();
      return true;
    default:
      return false;
  }
}

void TCHelp::ShowPage(const QString& page) {
  if (window == nullptr) {
    window = new TCHelpWindow;
    Q_EMIT windowMade(*window);
  }
  window->ShowPage(page);
}

bool TCHelp::eventFilter(QObject* receiver, QEvent* event) {
  if (event->type() != QEvent::KeyPress) return false;
  const auto& key = *static_cast<QKeyEvent*>(event);
  const auto* menu = qobject_cast<QMenu*>(receiver);
  if (menu == nullptr || key.key() != Qt::Key_F1 || key.modifiers() != Qt::NoModifier) return false;
  const QAction* entry = menu->activeAction();
  const QString page = GuidePageOf(entry != nullptr ? CommandOf(*entry) : TCCommandId::HelpTopics);
  CloseMenus();
  ShowPage(page);
  return true;
}

}  // namespace brevant
