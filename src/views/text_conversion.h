// Between the core's UTF-16 text and Qt's. Nothing is dropped or added on the way, a byte order mark
// included, which QString::fromUtf16 would swallow.
#pragma once

#include <QString>
#include <QStringView>
#include <string>
#include <string_view>

namespace brevant {

[[nodiscard]] inline QString ToQString(std::u16string_view text) {
  return QStringView(text.data(), static_cast<qsizetype>(text.size())).toString();
}

[[nodiscard]] inline std::u16string FromQString(const QString& text) {
  return text.toStdU16String();
}

}  // namespace brevant
