// The look of the program's controls: drawn by the toolkit alone, the same on every desktop, so that one
// palette colours all of it. Set by main() for the whole application.
#pragma once

#include <QIcon>
#include <QProxyStyle>
#include <QStyleOptionFrame>

namespace brevant {

class TCStageStyle : public QProxyStyle {
 public:
  TCStageStyle();

  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returnData) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  QIcon standardIcon(StandardPixmap picture, const QStyleOption* option,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;

 private:
  void DrawField(const QStyleOptionFrame& field, QPainter* painter, const QWidget* widget) const;
};

}  // namespace brevant
