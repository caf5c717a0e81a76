// How the program's controls look, after Fusion: flat surfaces with one border, one accent for focus and for
// what is switched on, tables with hairlines and no zebra. Takes all colours from the palette and the look.
#pragma once

#include <QIcon>
#include <QProxyStyle>

class QStyleOptionToolButton;

namespace hooptab {

class ProgramStyle : public QProxyStyle {
 public:
  ProgramStyle() : QProxyStyle(QStringLiteral("Fusion")) {}

  using QProxyStyle::polish;
  // Tool tips are text: names stand in them.
  void polish(QWidget* widget) override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawControl(ControlElement element, const QStyleOption* option, QPainter* painter,
                   const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  QRect subControlRect(ComplexControl control, const QStyleOptionComplex* option, SubControl part,
                       const QWidget* widget) const override;
  QRect subElementRect(SubElement element, const QStyleOption* option, const QWidget* widget) const override;
  int pixelMetric(PixelMetric metric, const QStyleOption* option, const QWidget* widget) const override;
  int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                QStyleHintReturn* returned) const override;
  QSize sizeFromContents(ContentsType type, const QStyleOption* option, const QSize& contents,
                         const QWidget* widget) const override;
  // Our own icons for the sign of a tool-bar with more to show, which is a picture file in the style, for
  // which every start would load all plug-ins for pictures; and for the controls of a maximised child window,
  // which are black in every theme.
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override;

 private:
  void drawToolButtonWhole(const QStyleOptionToolButton& button, QPainter* painter,
                           const QWidget* widget) const;
};

} // namespace hooptab
