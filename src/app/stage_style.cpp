#include "app/stage_style.h"

#include <QPainter>

#include "app/picture_icon.h"
#include "resources/icons/icon_names.h"

namespace brevant {
namespace {

constexpr int kHalfBright = 128;

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < kHalfBright;
}

// The toolkit's own edges are darker than the window, on any window.
void DrawEdge(const QStyleOption& option, QPainter& painter) {
  painter.save();
  painter.setPen(option.palette.color(QPalette::Mid));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
  painter.restore();
}

}  // namespace

TCStageStyle::TCStageStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

int TCStageStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* returnData) const {
  // A tap on Alt would take the stage keys to the menu bar: the next Space would open a menu and pause no
  // song. Alt with a menu's letter opens that menu all the same.
  if (hint == SH_MenuBar_AltKeyNavigation) return 0;
  // The desktop's pictures for "OK" and "Cancel" are made for light buttons.
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  // A list to choose from opens below its field and is scrolled; as a menu it would be as tall as the screen.
  if (hint == SH_ComboBox_Popup) return 0;
  return QProxyStyle::styleHint(hint, option, widget, returnData);
}

void TCStageStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
  if (element == PE_PanelLineEdit) {
    const auto* field = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (field != nullptr) return DrawField(*field, painter, widget);
  }
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_IndicatorCheckBox && IsDark(option->palette)) DrawEdge(*option, *painter);
}

void TCStageStyle::DrawField(const QStyleOptionFrame& field, QPainter* painter, const QWidget* widget) const {
  QStyleOptionFrame shown(field);
  // A field that takes no typing does not look as if it did.
  if (field.state.testFlag(State_ReadOnly)) {
    shown.palette.setBrush(QPalette::Base, field.palette.brush(QPalette::Window));
  }
  QProxyStyle::drawPrimitive(PE_PanelLineEdit, &shown, painter, widget);
  const bool hasFrame = field.lineWidth > 0;
  if (hasFrame && !field.state.testFlag(State_HasFocus) && IsDark(field.palette)) DrawEdge(field, *painter);
}

QIcon TCStageStyle::standardIcon(StandardPixmap picture, const QStyleOption* option,
                                 const QWidget* widget) const {
  // Every bar asks for this one when it is made. The toolkit's is black on every palette, and reading its
  // files loads the readers of all picture formats: several milliseconds before the first window is seen.
  if (picture == SP_ToolBarHorizontalExtensionButton) return PictureIcon(kBarMoreIcon);
  return QProxyStyle::standardIcon(picture, option, widget);
}

}  // namespace brevant
