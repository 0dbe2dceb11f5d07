#include "app/stage_style.h"

namespace brevant {

TCStageStyle::TCStageStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int TCStageStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returnData) const {
  // The desktop's pictures for "OK" and "Cancel" are made for light buttons.
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returnData);
}

}  // namespace brevant
