#include "app/look/stage_style.h"

#include <QPainter>
#include <QStyleOption>
#include <QTabBar>
#include <QToolBar>

#include "app/look/picture_icon.h"
#include "resources/icons/icon_names.h"

namespace brevant {
namespace {

constexpr int kHalfBright = 128;

// An upright bar has to show all options of the table beside the playlist of a 1280 x 720 screen: its gaps
// are this wide, and its buttons that much less tall than the toolkit has them.
constexpr int kUprightGap = 6;
constexpr int kUprightTrim = 2;

// A pane that floats over the window, as dark as the window is. A line of one would be lost on a screen that
// shows one and a half pixels for it.
constexpr int kPaneFrame = 2;

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Window).lightness() < kHalfBright;
}

// Seen from the other end of a stage, on black and on white: the toolkit's own is one shade from a button
// that is off. The picture on it is drawn in the highlight's text colour.
void DrawButtonThatIsOn(const QStyleOption& option, QPainter& painter) {
  constexpr qreal kCorner = 3.0;
  constexpr int kHover = 120;
  const bool enabled = option.state.testFlag(QStyle::State_Enabled);
  QColor fill = option.palette.color(enabled ? QPalette::Highlight : QPalette::Mid);
  if (option.state.testFlag(QStyle::State_Sunken)) {
    fill = fill.darker(kHover);
  } else if (option.state.testFlag(QStyle::State_MouseOver)) {
    fill = fill.lighter(kHover);
  }
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(Qt::NoPen);
  painter.setBrush(fill);
  painter.drawRoundedRect(QRectF(option.rect).adjusted(1, 1, -1, -1), kCorner, kCorner);
  painter.restore();
}

// Between two groups of buttons, a line that is seen on black as well.
void DrawGap(const QStyleOption& option, QPainter& painter) {
  constexpr int kInset = 5;
  const QRect& place = option.rect;
  const QPoint middle = place.center();
  painter.save();
  painter.setPen(option.palette.color(QPalette::Mid));
  if (option.state.testFlag(QStyle::State_Horizontal)) {
    painter.drawLine(middle.x(), place.top() + kInset, middle.x(), place.bottom() - kInset);
  } else {
    painter.drawLine(place.left() + kInset, middle.y(), place.right() - kInset, middle.y());
  }
  painter.restore();
}

// The toolkit's own edges are darker than the window, on any window.
void DrawEdge(const QStyleOption& option, QPainter& painter) {
  painter.save();
  painter.setPen(option.palette.color(QPalette::Mid));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(option.rect.adjusted(0, 0, -1, -1));
  painter.restore();
}

// Between two groups of a menu's entries.
void DrawMenuGap(const QStyleOptionMenuItem& option, QPainter& painter) {
  constexpr int kInset = 5;
  painter.save();
  painter.fillRect(option.rect, option.palette.base());
  painter.setPen(option.palette.color(QPalette::Mid));
  const int middle = option.rect.center().y();
  painter.drawLine(option.rect.left() + kInset, middle, option.rect.right() - kInset, middle);
  painter.restore();
}

// Which tab is shown has to be seen on black as well: a line along its outer edge.
void DrawTabThatIsShown(const QStyleOptionTab& option, QPainter& painter) {
  constexpr int kThick = 2;
  const bool below = option.shape == QTabBar::RoundedSouth || option.shape == QTabBar::TriangularSouth;
  const QRect& tab = option.rect;
  const int top = below ? tab.bottom() + 1 - kThick : tab.top();
  painter.fillRect(tab.left() + 1, top, tab.width() - 2, kThick, option.palette.color(QPalette::Highlight));
}

void DrawFrameOfPane(const QStyleOption& option, QPainter& painter) {
  const QRegion frame =
      QRegion(option.rect) - option.rect.adjusted(kPaneFrame, kPaneFrame, -kPaneFrame, -kPaneFrame);
  for (const QRect& side : frame) painter.fillRect(side, option.palette.color(QPalette::Mid));
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

void TCStageStyle::drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                               const QWidget* widget) const {
  if (element == CE_MenuItem) {
    const auto* entry = qstyleoption_cast<const QStyleOptionMenuItem*>(option);
    if (entry != nullptr && entry->menuItemType == QStyleOptionMenuItem::Separator && entry->text.isEmpty()) {
      return DrawMenuGap(*entry, *painter);
    }
  }
  QProxyStyle::drawControl(element, option, painter, widget);
  if (element == CE_TabBarTabShape && option->state.testFlag(State_Selected)) {
    const auto* tab = qstyleoption_cast<const QStyleOptionTab*>(option);
    if (tab != nullptr) DrawTabThatIsShown(*tab, *painter);
  }
}

void TCStageStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
  if (element == PE_PanelLineEdit) {
    const auto* field = qstyleoption_cast<const QStyleOptionFrame*>(option);
    if (field != nullptr) return DrawField(*field, painter, widget);
  }
  if (element == PE_IndicatorToolBarSeparator) return DrawGap(*option, *painter);
  if (element == PE_PanelButtonTool && option->state.testFlag(State_On)) {
    return DrawButtonThatIsOn(*option, *painter);
  }
  if (element == PE_FrameDockWidget) return DrawFrameOfPane(*option, *painter);
  QProxyStyle::drawPrimitive(element, option, painter, widget);
  if (element == PE_IndicatorCheckBox && IsDark(option->palette)) DrawEdge(*option, *painter);
}

int TCStageStyle::pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const {
  const bool upright = option != nullptr && !option->state.testFlag(State_Horizontal);
  if (metric == PM_ToolBarSeparatorExtent && upright) return kUprightGap;
  if (metric == PM_DockWidgetFrameWidth) return kPaneFrame;
  return QProxyStyle::pixelMetric(metric, option, widget);
}

QSize TCStageStyle::sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                                     const QWidget* widget) const {
  QSize size = QProxyStyle::sizeFromContents(type, option, contents, widget);
  if (type == CT_ToolButton && widget != nullptr) {
    const auto* bar = qobject_cast<const QToolBar*>(widget->parentWidget());
    if (bar != nullptr && bar->orientation() == Qt::Vertical) size.rheight() -= kUprightTrim;
  }
  return size;
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
  // Every bar and every pane asks for these when it is made. The toolkit's are of one colour on every palette
  // and blurred on many a screen, and reading their files takes milliseconds before the first window is seen.
  if (picture == SP_ToolBarHorizontalExtensionButton) return PictureIcon(kBarMoreIcon);
  if (picture == SP_TitleBarNormalButton) return PictureIcon(kPaneFloatIcon);
  if (picture == SP_TitleBarCloseButton) return PictureIcon(kPaneCloseIcon);
  return QProxyStyle::standardIcon(picture, option, widget);
}

}  // namespace brevant
