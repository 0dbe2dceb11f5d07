// Leads a command to the one who carries it out: the frame, the playlist view, the help, the
// document or the application. Made by TCBrevantApp once all of them stand.
#pragma once

#include <QStringList>

#include "app/commands/command_target.h"
#include "app/help/help.h"
#include "app/main_frame.h"
#include "app/recent_files.h"
#include "document/brevant_doc.h"

namespace brevant {

class TCCommandRouter final : public TCCommandTarget {
 public:
  // `libraries` is what the About box lists.
  TCCommandRouter(TCMainFrame& mainFrame, TCBrevantDoc& document, TCHelp& helpCommands,
                  const TCRecentFiles& recentFiles, QStringList libraries);

  [[nodiscard]] bool Handles(TCCommandId command) const override;
  void OnCommand(TCCommandId command) override;
  [[nodiscard]] bool IsChecked(TCCommandId command) const override;

  // Opens the About box and returns at once.
  void OnAppAbout();

 private:
  void OpenNewestFile();

  TCMainFrame& frame;
  TCBrevantDoc& doc;
  TCHelp& help;
  const TCRecentFiles& recent;
  QStringList libraries;
};

}  // namespace brevant
