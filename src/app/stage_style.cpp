#include "app/stage_style.h"

#include "app/picture_icon.h"
#include "resources/icons/icon_names.h"

namespace brevant {

TCStageStyle::TCStageStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int TCStageStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returnData) const {
  // A tap on Alt would take the stage keys to the menu bar: the next Space would open a menu and pause no
  // song. Alt with a menu's letter opens that menu all the same.
  if (hint == SH_MenuBar_AltKeyNavigation) return 0;
  // The desktop's pictures for "OK" and "Cancel" are made for light buttons.
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returnData);
}

QIcon TCStageStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                 const QWidget* widget) const {
  // Every bar asks for this one when it is made. The toolkit's is black on every palette, and reading its
  // files loads the readers of all picture formats: several milliseconds before the first window is seen.
  if (picture == SP_ToolBarHorizontalExtensionButton) return PictureIcon(kBarMoreIcon);
  return QProxyStyle::standardIcon(picture, option, widget);
}

}  // namespace brevant
