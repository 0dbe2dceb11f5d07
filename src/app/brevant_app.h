// The program, put together: every part is a member, made in this order and wired in one constructor. main()
// makes one and hands it what belongs to the machine; tests hand it fakes.
#pragma once

#include <QObject>
#include <QSettings>
#include <QStringList>
#include <optional>
#include <string>

#include "app/close_guard.h"
#include "app/commands/command_actions.h"
#include "app/commands/command_router.h"
#include "app/commands/key_filter.h"
#include "app/desktop/file_drops.h"
#include "app/desktop/program_door.h"
#include "app/dialogs/qt_prompts.h"
#include "app/first_paint.h"
#include "app/help/help.h"
#include "app/main_frame.h"
#include "app/recent_file_menu.h"
#include "app/recent_files.h"
#include "document/brevant_doc.h"
#include "model/app_record.h"
#include "model/program_folders.h"
#include "model/settings_file.h"
#include "playback/length_probe.h"
#include "playback/player.h"
#include "playback/player_monitor.h"
#include "text/file_system.h"
#include "text/native_path.h"

namespace brevant {

// The machine, as the program sees it. All of it outlives the program.
struct TCAppParts {
  TCFileSystem& files;
  TCPlayer& player;
  const TCPlayerMonitor& monitor;
  TCNativePaths paths;
  TCProgramFolders folders;
  QString layoutFile;                    // native; what the user arranged by hand is kept there
  QStringList libraries;                 // for the About box, one "Name version" each
  TCLengthProbe* lengthProbe = nullptr;  // null: no song times are measured
};

// The file named on the command line.
struct TCStartFile {
  bool named = false;
  std::string native;                       // as typed
  std::optional<std::u16string> modelPath;  // empty when the model cannot hold the name
};

class TCBrevantApp : public QObject, public TCProgramDoor {
 public:
  explicit TCBrevantApp(const TCAppParts& parts);

  // Shows the main window; once it can be seen, opens the first document, maximises the window and enters
  // live view as it was left, takes files that are dropped, and shows the About box.
  void InitInstance(const TCStartFile& startFile);

  // TCProgramDoor. A file that is wanted before the first document is opened is opened in its place.
  void ComeForward() override;
  bool OpenFromOutside(const std::string& nativeName) override;

  // The session ends and nobody can be asked.
  void EndSession();

  [[nodiscard]] TCMainFrame& Frame() { return frame; }
  [[nodiscard]] TCBrevantDoc& Document() { return document; }
  [[nodiscard]] const TCCommandActions& Actions() const { return actions; }
  [[nodiscard]] TCHelp& Help() { return help; }
  [[nodiscard]] TCAppRecord& Record() { return record; }

 private:
  void ConnectParts();
  void ConnectPlaylist();
  void ConnectTree();
  void ConnectProperties();
  void DropRowsAt(QPoint globalPosition);
  void OnDropFiles(const QList<QByteArray>& nativeNames);
  void OpenFirstDocument();
  void OpenNamed(const TCStartFile& file);
  [[nodiscard]] bool IsHeldByDialog(const std::string& nativeName);
  void LoadLastFile();
  void RestoreWindow();

  TCFileSystem& files;
  QSettings layout;
  TCRecentFiles recentFiles;
  TCSettingsFile settingsFile;
  TCAppRecord record;
  TCMainFrame frame;
  TCQtPrompts prompts;
  TCBrevantDoc document;
  TCHelp help;
  TCCommandRouter router;
  TCCommandActions actions;
  TCKeyFilter keyFilter;
  TCFileDrops fileDrops;
  TCCloseGuard closeGuard;
  std::optional<TCRecentFileMenu> recentFileMenu;  // once the menus are filled
  std::optional<TCFirstPaint> firstPaint;
  TCStartFile firstFile;
  bool firstDocumentOpened = false;
  QMenu* playlistMenu = nullptr;  // the frame owns it, and the next one
  QMenu* treeMenu = nullptr;
};

}  // namespace brevant
