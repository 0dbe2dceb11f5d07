#include "app/libraries.h"

#include <QtGlobal>

namespace brevant {

QStringList LibraryNames() {
  return {QStringLiteral("Qt ") + QString::fromLatin1(qVersion())};
}

}  // namespace brevant
