// What closing the main window does before it may close: layout and settings are written, then unsaved
// changes are asked about. The frame's way out and the session's.
#pragma once

#include <QObject>
#include <QSettings>

#include "app/main_frame.h"
#include "document/brevant_doc.h"
#include "model/settings_file.h"

namespace brevant {

class TCCloseGuard : public QObject {
 public:
  // Watches over the frame's closing. Nothing is written before the start is over: what the last run left
  // would be lost with a start that was broken off.
  TCCloseGuard(TCMainFrame& mainFrame, QSettings& layoutStore, const TCSettingsFile& file,
               const TCAppRecord& appRecord, TCBrevantDoc& document);

  // The first document is open, and the window stands as it is to stand.
  void StartIsOver() { started = true; }

  // Nobody can be asked any more, because the session ends: settings are written, and unsaved changes go to
  // the recovery folder.
  void EndSession();

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;

 private:
  // False when the user holds on to unsaved changes: the frame stays.
  [[nodiscard]] bool OnClose();
  void WriteSettings();
  void KeepLayout();

  TCMainFrame& frame;
  QSettings& layout;
  const TCSettingsFile& settingsFile;
  const TCAppRecord& record;
  TCBrevantDoc& doc;
  bool started = false;
};

}  // namespace brevant
