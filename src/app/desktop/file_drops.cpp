#include "app/desktop/file_drops.h"

#include <QApplication>
#include <QDropEvent>
#include <QMetaObject>
#include <QMimeData>
#include <QUrl>
#include <string>

#include "app/desktop/file_address.h"

namespace brevant {

TCFileDrops::TCFileDrops(QWidget& mainWindow) : QObject(&mainWindow), window(mainWindow) {}

void TCFileDrops::Accept() {
  window.setAcceptDrops(true);
  window.installEventFilter(this);
}

QList<QByteArray> TCFileDrops::FilesIn(const QMimeData& data) {
  QList<QByteArray> names;
  for (const QUrl& url : data.urls()) {
    const std::string name = FileNameOf(QString::fromLatin1(url.toEncoded()));
    if (!name.empty()) names.append(QByteArray::fromStdString(name));
  }
  return names;
}

bool TCFileDrops::eventFilter(QObject* watched, QEvent* event) {
  const bool isDrag = event->type() == QEvent::DragEnter || event->type() == QEvent::DragMove;
  if (!isDrag && event->type() != QEvent::Drop) return QObject::eventFilter(watched, event);

  auto& drop = *static_cast<QDropEvent*>(event);
  // Not at every step of the mouse: each look fetches the whole list from the other program.
  if (event->type() != QEvent::DragMove) names = FilesIn(*drop.mimeData());
  if (names.isEmpty() || QApplication::activeModalWidget() != nullptr) {
    drop.ignore();
    return true;
  }
  drop.setDropAction(Qt::CopyAction);  // the files stay where they are, whatever the file manager offers
  drop.accept();
  if (!isDrag) {
    window.activateWindow();
    QMetaObject::invokeMethod(
        this,
        [this, dropped = names] {
          // A key that came with the drop may have opened a dialog, which no drop may edit behind.
          if (QApplication::activeModalWidget() == nullptr) Q_EMIT filesDropped(dropped);
        },
        Qt::QueuedConnection);
  }
  return true;
}

}  // namespace brevant
