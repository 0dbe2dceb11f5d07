#include "app/look/picture_icon.h"

#include <QFile>
#include <QGuiApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPalette>
#include <QPixmap>
#include <QPixmapCache>
#include <QSvgRenderer>
#include <string>

#include "resources/icons/icon_names.h"

namespace brevant {
namespace {

QByteArray ReadPicture(std::string_view name) {
  QFile file(QString::fromStdString(IconResource(name)));
  return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

// A colour for each mode that an action is shown in. A button that is on is drawn on the highlight.
QColor ColourOf(QIcon::Mode mode, QIcon::State state) {
  const QPalette palette = QGuiApplication::palette();
  if (state == QIcon::On && mode != QIcon::Disabled) return palette.color(QPalette::HighlightedText);
  switch (mode) {
    case QIcon::Disabled:
      return palette.color(QPalette::Disabled, QPalette::ButtonText);
    case QIcon::Selected:
      return palette.color(QPalette::HighlightedText);
    default:
      return palette.color(QPalette::ButtonText);
  }
}

class TCPictureEngine final : public QIconEngine {
 public:
  explicit TCPictureEngine(std::string_view pictureName) : name(pictureName), svg(ReadPicture(pictureName)) {}

  void paint(QPainter* painter, const QRect& area, QIcon::Mode mode, QIcon::State state) override {
    QByteArray coloured = svg;
    coloured.replace(QByteArray(kIconColour.data(), static_cast<qsizetype>(kIconColour.size())),
                     ColourOf(mode, state).name().toLatin1());
    QSvgRenderer renderer(coloured);
    renderer.render(painter, area);
  }

  // Drawn once: a bar asks for all of its pictures whenever a part of it is painted, and panes share theirs.
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override {
    const QString key = QStringLiteral("brevant/%1/%2x%3/%4")
                            .arg(QString::fromStdString(name))
                            .arg(size.width())
                            .arg(size.height())
                            .arg(ColourOf(mode, state).name());
    QPixmap picture;
    if (QPixmapCache::find(key, &picture)) return picture;
    picture = QPixmap(size);
    picture.fill(Qt::transparent);
    QPainter painter(&picture);
    paint(&painter, picture.rect(), mode, state);
    painter.end();
    QPixmapCache::insert(key, picture);
    return picture;
  }

  [[nodiscard]] QIconEngine* clone() const override { return new TCPictureEngine(*this); }
  [[nodiscard]] bool isNull() override { return svg.isEmpty(); }

 private:
  std::string name;
  QByteArray svg;
};

}  // namespace

QIcon PictureIcon(std::string_view name) {
  return name.empty() ? QIcon() : QIcon(new TCPictureEngine(name));
}

QCursor PictureCursor(std::string_view name) {
  QSvgRenderer renderer(ReadPicture(name));
  // Sharp on a screen with small pixels too; the tip is counted in the picture's own.
  const qreal scale = qApp->devicePixelRatio();
  QPixmap picture((QSizeF(renderer.defaultSize()) * scale).toSize());
  picture.fill(Qt::transparent);
  QPainter painter(&picture);
  renderer.render(&painter);
  painter.end();
  picture.setDevicePixelRatio(scale);
  return QCursor(picture, kCursorTipX, kCursorTipY);
}

QIcon ProgramIcon() {
  return QIcon(QString::fromStdString(IconResource(kProgramIcon)));
}

}  // namespace brevant
