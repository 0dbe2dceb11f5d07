// Leads a command to the one who carries it out: the frame, the playlist view, the help, the
// document or the application. Made by TCBrevantApp once all of them stand.
#pragma once

#include <QStringList>

#include "app/command_target.h"
#include "app/help.h"
#include "app/main_frame.h"
#include "document/brevant_doc.h"

namespace brevant {

class TCCommandRouter final : public TCCommandTarget {
 public:
  // `libraries` is what the About box lists.
  TCCommandRouter(TCMainFrame& mainFrame, TCBrevantDoc& document, TCHelp& helpCommands,
                  QStringList libraries);

  [[nodiscard]] bool Handles(TCCommandId command) const override;
  void OnCommand(TCCommandId command) override;
  [[nodiscard]] bool IsChecked(TCCommandId command) const override;

 private:
  TCMainFrame& frame;
  TCBrevantDoc& doc;
  TCHelp& help;
  QStringList libraries;
};

}  // namespace brevant
