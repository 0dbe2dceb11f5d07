// The recent files in the File menu, in place of the entry "Recent File", which stands there disabled while
// there are none. TCBrevantApp makes one once the menus are filled. User-interface thread only.
#pragma once

#include <QAction>
#include <QMenuBar>
#include <QObject>
#include <QStringList>
#include <string>
#include <vector>

#include "app/recent_files.h"

namespace brevant {

// One menu text for each path: its number, which opens it in the open menu, and its name; the folder too,
// the front of a long one left out, where another entry has the same name.
[[nodiscard]] QStringList RecentFileTexts(const std::vector<std::u16string>& paths);

class TCRecentFileMenu final : public QObject {
  Q_OBJECT

 public:
  // `command` is the action of "Recent File": the newest file becomes its text, and whoever carries the
  // command out opens it. The others follow it in whichever menu of `bar` has it.
  TCRecentFileMenu(QAction& command, QMenuBar& bar, const TCRecentFiles& recentFiles);

 Q_SIGNALS:
  // An entry behind the newest was chosen. Not sent while a dialog is open.
  void openWanted(const std::u16string& path);

 private:
  void AddEntries(QMenuBar& bar);
  void ShowEntries();
  void Choose(std::size_t place);

  QAction& newest;
  const TCRecentFiles& files;
  const QString emptyText;
  QList<QAction*> entries;  // `newest` first; the menu owns the others
};

}  // namespace brevant
