// Fusion with plain tool tips, and with what it draws too faintly done anew: frames of check boxes and radio
// buttons, whose shade it takes from the window's colour, so that they are lost on dark tables; and titles of
// active windows, which it writes in white on the colour of selections, however light that is.
#pragma once

#include <QColor>
#include <QIcon>
#include <QProxyStyle>

namespace hooptab {

class ProgramStyle : public QProxyStyle {
 public:
  // `title` goes under the white title of the active window; all else is the palette's.
  explicit ProgramStyle(const QColor& title) : QProxyStyle(QStringLiteral("Fusion")), m_title(title) {}

  using QProxyStyle::polish;
  // Tool tips are text: names stand in them.
  void polish(QWidget* widget) override;
  void drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                     const QWidget* widget) const override;
  void drawComplexControl(ComplexControl control, const QStyleOptionComplex* option, QPainter* painter,
                          const QWidget* widget) const override;
  // Our own icons for the sign of a tool-bar with more to show, which is a picture file in the style, for
  // which every start would load all plug-ins for pictures; and for the controls of a maximised child window,
  // which are black in every theme.
  QIcon standardIcon(StandardPixmap which, const QStyleOption* option, const QWidget* widget) const override;

 private:
  QColor m_title;
};

} // namespace hooptab
