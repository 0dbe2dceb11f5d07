#include "app/commands/command_router.h"

#include <utility>

#include "app/dialogs/about_box.h"

namespace brevant {
namespace {

// These do nothing but keep their keys away from what would take them: a list its "select all" and "open". No
// edit can be cut or undone.
bool IsKeyAlone(TCCommandId command) {
  return command == TCCommandId::SelectAll || command == TCCommandId::SwallowF4 ||
         command == TCCommandId::Cut || command == TCCommandId::Undo;
}

}  // namespace

TCCommandRouter::TCCommandRouter(TCMainFrame& mainFrame, TCBrevantDoc& document, TCHelp& helpCommands,
                                 const TCRecentFiles& recentFiles, QStringList libraryNames)
    : frame(mainFrame),
      doc(document),
      help(helpCommands),
      recent(recentFiles),
      libraries(std::move(libraryNames)) {}

bool TCCommandRouter::Handles(TCCommandId command) const {
  return command == TCCommandId::About || command == TCCommandId::FocusPlaylist ||
         command == TCCommandId::RecentFile || IsKeyAlone(command) || TCHelp::Handles(command) ||
         TCMainFrame::Handles(command) || TCBrevantDoc::Handles(command);
}

void TCCommandRouter::OnCommand(TCCommandId command) {
  if (command == TCCommandId::About) {
    OnAppAbout();
  } else if (command == TCCommandId::FocusPlaylist) {
    frame.PlaylistView().TakeFocus();
  } else if (command == TCCommandId::RecentFile) {
    OpenNewestFile();
  } else if (!help.OnCommand(command) && !frame.OnCommand(command)) {
    doc.OnCommand(command);
  }
}

void TCCommandRouter::OnAppAbout() {
  TCAboutBox::Open(libraries, frame);
}

void TCCommandRouter::OpenNewestFile() {
  if (recent.Paths().empty()) return;
  const std::u16string path = recent.Paths().front();  // a save from the question may move it
  doc.OpenDocumentFile(path);
}

bool TCCommandRouter::IsChecked(TCCommandId command) const {
  return TCMainFrame::Handles(command) ? frame.IsChecked(command) : doc.IsChecked(command);
}

}  // namespace brevant
