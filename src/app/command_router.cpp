#include "app/command_router.h"

#include <utility>

#include "app/about_box.h"

namespace brevant {
namespace {

// The playlist view's. The last two do nothing: they keep the keys of a list's own "select all" and "open"
// away from it.
bool IsViewCommand(TCCommandId command) {
  return command == TCCommandId::FocusPlaylist || command == TCCommandId::SelectAll ||
         command == TCCommandId::SwallowF4;
}

}  // namespace

TCCommandRouter::TCCommandRouter(TCMainFrame& mainFrame, TCBrevantDoc& document, TCHelp& helpCommands,
                                 QStringList libraryNames)
    : frame(mainFrame), doc(document), help(helpCommands), libraries(std::move(libraryNames)) {}

bool TCCommandRouter::Handles(TCCommandId command) const {
  return command == TCCommandId::About || IsViewCommand(command) || TCHelp::Handles(command) ||
         TCMainFrame::Handles(command) || TCBrevantDoc::Handles(command);
}

void TCCommandRouter::OnCommand(TCCommandId command) {
  if (command == TCCommandId::About) {
    TCAboutBox::Open(libraries, frame);
  } else if (command == TCCommandId::FocusPlaylist) {
    frame.PlaylistView().TakeFocus();
  } else if (!help.OnCommand(command) && !frame.OnCommand(command)) {
    doc.OnCommand(command);
  }
}

bool TCCommandRouter::IsChecked(TCCommandId command) const {
  return TCMainFrame::Handles(command) ? frame.IsChecked(command) : doc.IsChecked(command);
}

}  // namespace brevant
