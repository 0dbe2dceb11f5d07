#include "app/dialogs/media_file_filters.h"

#include "resources/string_table.h"
#include "views/text_conversion.h"

namespace brevant {
namespace {

bool IsPlain(char32_t unit) {
  return (unit >= U'a' && unit <= U'z') || (unit >= U'A' && unit <= U'Z') || (unit >= U'0' && unit <= U'9');
}

// The toolkit takes a filter whose patterns hold other characters for one long pattern that no file meets. A
// question mark meets any one of them.
QString PatternOf(const QString& type) {
  QString pattern = QStringLiteral("*.");
  for (const char32_t unit : type.toStdU32String()) {
    pattern += IsPlain(unit) ? QChar(static_cast<char16_t>(unit)) : QChar(u'?');
  }
  return pattern;
}

}  // namespace

QStringList MediaFileFilters(const std::vector<std::u16string>& types) {
  QStringList patterns;
  for (const std::u16string& type : types) {
    if (!type.empty()) patterns.append(PatternOf(ToQString(type)));
  }
  QStringList filters{QStringLiteral("All Files (*)")};
  if (!patterns.isEmpty()) {
    filters.prepend(QStringLiteral("%1 (%2)").arg(ToQString(TextOf(TCTextId::MediaFiles)),
                                                  patterns.join(QLatin1Char(' '))));
  }
  return filters;
}

}  // namespace brevant
