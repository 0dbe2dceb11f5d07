// A window of another program that files can be dragged out of, for the flows: brevant_drag_source X Y
// FILE...
#include <QApplication>
#include <QDrag>
#include <QLabel>
#include <QMimeData>
#include <QMouseEvent>
#include <QUrl>

namespace {

class FilesToDrag : public QLabel {
 public:
  explicit FilesToDrag(const QStringList& files) : QLabel(QStringLiteral("Drag me")) {
    for (const QString& file : files) urls.append(QUrl::fromLocalFile(file));
    setWindowTitle(QStringLiteral("Files to drag"));
    setAlignment(Qt::AlignCenter);
    setWindowFlag(Qt::WindowStaysOnTopHint);
    setAttribute(Qt::WA_ShowWithoutActivating);
  }

 protected:
  void mousePressEvent(QMouseEvent* /*event*/) override {}  // so that the moves come here

  void mouseMoveEvent(QMouseEvent* /*event*/) override {
    auto* dragged = new QMimeData;
    dragged->setUrls(urls);
    auto& drag = *new QDrag(this);  // the toolkit takes it away when it is over
    drag.setMimeData(dragged);
    connect(&drag, &QDrag::actionChanged, this, [this](Qt::DropAction action) {
      setText(action == Qt::CopyAction ? QStringLiteral("Taken") : QStringLiteral("Not taken"));
    });
    setText(drag.exec(Qt::CopyAction) == Qt::CopyAction ? QStringLiteral("Dropped")
                                                        : QStringLiteral("Not dropped"));
  }

 private:
  QList<QUrl> urls;
};

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  const QStringList arguments = QApplication::arguments();
  FilesToDrag window(arguments.mid(3));
  window.setGeometry(arguments.at(1).toInt(), arguments.at(2).toInt(), 160, 80);
  window.show();
  return QApplication::exec();
}
