#include "app/close_guard.h"

#include <QEvent>

namespace brevant {
namespace {

std::u16string DocumentPath(const TCSetListStore& store) {
  return store.documentFolder + store.documentFileName;
}

}  // namespace

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
  frame.SaveLayout(layout);
  layout.sync();
  settingsFile.SaveSettings(record);
}

bool TCCloseGuard::eventFilter(QObject* /*receiver*/, QEvent* event) {
  if (event->type() != QEvent::Close || MayClose()) return false;
  event->ignore();
  return true;
}

bool TCCloseGuard::MayClose() {
  WriteSettings();
  const std::u16string writtenPath = DocumentPath(record.setLists);
  if (!doc.SaveModified()) return false;
  // Saved under another name while it closed: the next start is to open that one.
  if (DocumentPath(record.setLists) != writtenPath) settingsFile.SaveSettings(record);
  return true;
}

}  // namespace brevant
