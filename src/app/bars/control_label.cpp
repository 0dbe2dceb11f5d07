#include "app/bars/control_label.h"

namespace brevant {

QLabel* MakeLabel(const QString& text, QWidget& control) {
  auto* label = new QLabel(text);
  label->setBuddy(&control);
  control.setAccessibleName(QString(text).remove(QLatin1Char('&')).remove(QLatin1Char(':')));
  return label;
}

}  // namespace brevant
