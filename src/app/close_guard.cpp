#include "app/close_guard.h"

#include <QEvent>

namespace brevant {

TCCloseGuard::TCCloseGuard(TCMainFrame& mainFrame, QSettings& layoutStore, const TCSettingsFile& file,
                           const TCAppRecord& appRecord, TCBrevantDoc& document)
    : frame(mainFrame), layout(layoutStore), settingsFile(file), record(appRecord), doc(document) {
  mainFrame.installEventFilter(this);
}

void TCCloseGuard::EndSession() {
  WriteSettings();
  doc.KeepUnsavedChanges();
}

void TCCloseGuard::WriteSettings() {
  if (!started) return;
  KeepLayout();
  frame.SavePlacement(layout);
  layout.sync();
  settingsFile.SaveSettings(record);
}

// What is kept is the full layout with all four panes, never that of live view. The question that follows may
// be cancelled, so the window is at once as it was, and nothing of it is seen.
void TCCloseGuard::KeepLayout() {
  if (!record.settings.liveViewMode) return frame.SaveLayout(layout);
  const TCPaneSet::TCArrangement inLiveView = frame.Panes().Arrangement();
  frame.setUpdatesEnabled(false);
  frame.LeaveLiveView();
  frame.SaveLayout(layout);
  frame.Panes().Arrange(inLiveView);
  frame.setUpdatesEnabled(true);
}

bool TCCloseGuard::eventFilter(QObject* /*receiver*/, QEvent* event) {
  if (event->type() != QEvent::Close || OnClose()) return false;
  event->ignore();
  return true;
}

bool TCCloseGuard::OnClose() {
  WriteSettings();
  const std::u16string writtenPath = record.setLists.DocumentPath();
  if (!doc.SaveModified()) return false;
  // Saved under another name while it closed: the next start is to open that one.
  if (record.setLists.DocumentPath() != writtenPath) settingsFile.SaveSettings(record);
  return true;
}

}  // namespace brevant
