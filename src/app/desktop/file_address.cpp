#include "app/desktop/file_address.h"

#include <QByteArray>

namespace brevant {

QString FileAddress(const std::string& nativeName) {
  return QStringLiteral("file://") +
         QString::fromLatin1(QByteArray::fromStdString(nativeName).toPercentEncoding("/"));
}

std::string FileNameOf(const QString& address) {
  const QString scheme = QStringLiteral("file://");
  if (!address.startsWith(scheme, Qt::CaseInsensitive)) return {};
  const QString place = address.mid(scheme.size());
  const QString host = place.section(u'/', 0, 0);
  if (!host.isEmpty() && host != QStringLiteral("localhost")) return {};
  return QByteArray::fromPercentEncoding(place.mid(host.size()).toUtf8()).toStdString();
}

}  // namespace brevant
