// The session manager of the desktop ends the session. The toolkit would close the windows then, and so ask
// about unsaved changes when the user is on the way out.
#pragma once

#include <QCoreApplication>
#include <QObject>

namespace brevant {

class TCSessionEnd : public QObject {
  Q_OBJECT

 public:
  // Instead of the toolkit. `toolkit` outlives this.
  explicit TCSessionEnd(QCoreApplication& toolkit);

 Q_SIGNALS:
  void endWanted();

 protected:
  bool eventFilter(QObject* receiver, QEvent* event) override;
};

}  // namespace brevant
