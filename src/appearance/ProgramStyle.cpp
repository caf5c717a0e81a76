#include "appearance/ProgramStyle.h"

#include "appearance/Icons.h"

#include <QLabel>
#include <QPainter>
#include <QStyleOption>

#include <algorithm>

namespace hooptab {

namespace {

constexpr double kDotShare = 0.22; // of a chosen radio button, its radius

enum class Box { Square, Round };

void drawBox(QPainter& painter, const QStyleOption& option, Box shape) {
  const bool isEnabled = option.state.testFlag(QStyle::State_Enabled);
  const QPalette::ColorGroup group = isEnabled ? QPalette::Active : QPalette::Disabled;
  const QColor sign = option.palette.color(group, QPalette::Text);
  const bool isPointedAt = isEnabled && option.state.testFlag(QStyle::State_MouseOver);
  const QColor frame =
      isPointedAt ? sign : option.palette.color(isEnabled ? QPalette::PlaceholderText : QPalette::Mid);

  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  const double side = std::min(option.rect.width(), option.rect.height()) - 1;
  QRectF box(0, 0, side, side);
  box.moveCenter(QRectF(option.rect).center());
  painter.setPen(frame);
  painter.setBrush(option.palette.color(group, QPalette::Base));
  if (shape == Box::Round) {
    painter.drawEllipse(box);
    painter.setBrush(sign);
    painter.setPen(Qt::NoPen);
    if (option.state.testFlag(QStyle::State_On))
      painter.drawEllipse(box.center(), side * kDotShare, side * kDotShare);
    painter.restore();
    return;
  }
  painter.drawRoundedRect(box, 2, 2);
  painter.setPen(QPen(sign, side * 0.15, Qt::SolidLine, Qt::RoundCap, Qt::RoundJoin));
  const auto inBox = [&box](double x, double y) {
    return box.topLeft() + QPointF(x * box.width(), y * box.height());
  };
  if (option.state.testFlag(QStyle::State_On))
    painter.drawPolyline(QPolygonF({inBox(0.24, 0.52), inBox(0.43, 0.72), inBox(0.77, 0.28)}));
  else if (option.state.testFlag(QStyle::State_NoChange)) // some of several
    painter.drawLine(inBox(0.28, 0.5), inBox(0.72, 0.5));
  painter.restore();
}

} // namespace

void ProgramStyle::polish(QWidget* widget) {
  QProxyStyle::polish(widget);
  // Qt's own class for them, made and polished before it has its text.
  if (auto* label = qobject_cast<QLabel*>(widget); label != nullptr && widget->inherits("QTipLabel"))
    label->setTextFormat(Qt::PlainText);
}

void ProgramStyle::drawPrimitive(PrimitiveElement element, const QStyleOption* option, QPainter* painter,
                                 const QWidget* widget) const {
  if (element == PE_IndicatorCheckBox || element == PE_IndicatorItemViewItemCheck)
    drawBox(*painter, *option, Box::Square);
  else if (element == PE_IndicatorRadioButton)
    drawBox(*painter, *option, Box::Round);
  else
    QProxyStyle::drawPrimitive(element, option, painter, widget);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  const auto* const titleBar = qstyleoption_cast<const QStyleOptionTitleBar*>(option);
  if (control != CC_TitleBar || titleBar == nullptr) {
    QProxyStyle::drawComplexControl(control, option, painter, widget);
    return;
  }
  QStyleOptionTitleBar readable = *titleBar;
  readable.palette.setColor(QPalette::Highlight, m_title);
  QProxyStyle::drawComplexControl(control, &readable, painter, widget);
}

QIcon ProgramStyle::standardIcon(StandardPixmap which, const QStyleOption* option,
                                 const QWidget* widget) const {
  switch (which) {
  case SP_ToolBarHorizontalExtensionButton:
  case SP_ToolBarVerticalExtensionButton: return icon(QStringLiteral("more"));
  case SP_TitleBarMinButton: return icon(QStringLiteral("windowminimize"));
  case SP_TitleBarNormalButton: return icon(QStringLiteral("windowrestore"));
  case SP_TitleBarCloseButton: return icon(QStringLiteral("windowclose"));
  default: return QProxyStyle::standardIcon(which, option, widget);
  }
}

} // namespace hooptab
