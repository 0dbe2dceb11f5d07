// The help commands: the guide's contents, the page for where the user is, and "what is this?". Part of the
// program's parts list; TCCommandRouter leads the commands here. User-interface thread.
#pragma once

#include <QObject>
#include <QPointer>

#include "app/help/help_window.h"
#include "resources/command_id.h"

namespace brevant {

class TCHelp : public QObject {
  Q_OBJECT

 public:
  // Installs itself on the application, for F1 on the entry of an open menu.
  TCHelp();
  ~TCHelp() override;

  [[nodiscard]] static bool Handles(TCCommandId command);
  // False for a command that is not its own.
  bool OnCommand(TCCommandId command);

  // Null while the guide is closed.
  [[nodiscard]] TCHelpWindow* Window() { return window; }

 Q_SIGNALS:
  // The guide has been opened in a new window.
  void windowMade(QWidget& window);

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  void ShowPage(const QString& page);

  QPointer<TCHelpWindow> window;
};

}  // namespace brevant
