#include "app/kept_state.h"

namespace brevant {
namespace {

QString CheckName(const QString& name) {
  return name + QStringLiteral("Check");
}

}  // namespace

void KeepState(QSettings& layout, const QString& name, const QByteArray& state) {
  layout.setValue(name, state);
  layout.setValue(CheckName(name), qChecksum(state));
}

QByteArray KeptState(const QSettings& layout, const QString& name) {
  const QByteArray state = layout.value(name).toByteArray();
  bool given = false;
  const uint check = layout.value(CheckName(name)).toUInt(&given);
  return given && check == qChecksum(state) ? state : QByteArray();
}

}  // namespace brevant
