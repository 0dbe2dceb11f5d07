// Files that are dropped anywhere on the main window. While a dialog is open nothing can be dropped.
// User-interface thread only.
#pragma once

#include <QByteArray>
#include <QList>
#include <QObject>
#include <QWidget>

class QMimeData;

namespace brevant {

class TCFileDrops final : public QObject {
  Q_OBJECT

 public:
  // `window` outlives this.
  explicit TCFileDrops(QWidget& window);

  // From here on drops on the window are taken.
  void Accept();

 Q_SIGNALS:
  // Native names in the order in which they lay in the drop. Sent when the drop is over, so that whoever
  // hears it may ask the user something.
  void filesDropped(const QList<QByteArray>& nativeNames);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // Of what a drag carries; what is no file of this machine is left out.
  [[nodiscard]] static QList<QByteArray> FilesIn(const QMimeData& data);

  QWidget& window;
  QList<QByteArray> names;  // of the drag that is over the window, or was last
};

}  // namespace brevant
