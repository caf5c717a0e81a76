#include "review/StretchChip.h"

#include "appearance/Theme.h"

#include <QPainter>

namespace hooptab {

namespace {

constexpr int kMargin = 10;
constexpr int kCross = 8; // the arms of the sign that ends it
constexpr int kGap = 8;
constexpr int kLeastText = 40;
constexpr int kRounding = 2; // a text is cut where it is wider than its room by a part of a pixel

QFont chipFont() {
  return Theme::font(Type::Body, QFont::DemiBold);
}

} // namespace

StretchChip::StretchChip(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
  setSizePolicy(QSizePolicy::Maximum, QSizePolicy::Fixed);
}

QSize StretchChip::sizeHint() const {
  return {QFontMetrics(chipFont()).horizontalAdvance(text()) + kRounding + 2 * kMargin + kGap + kCross,
          Theme::measure()(26, 33)};
}

QSize StretchChip::minimumSizeHint() const {
  return {kLeastText + 2 * kMargin + kGap + kCross, sizeHint().height()};
}

void StretchChip::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double radius = Theme::measure()(10);
  const QRectF shape = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.setBrush(look.soft);
  painter.setPen(hasFocus() ? QPen(look.accent, 2) : underMouse() ? QPen(look.accent, 1) : QPen(Qt::NoPen));
  painter.drawRoundedRect(shape, radius, radius);
  const QRect room = rect().adjusted(kMargin, 0, -kMargin - kCross - kGap, 0);
  painter.setFont(chipFont());
  painter.setPen(look.ink);
  painter.drawText(room, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextSingleLine,
                   painter.fontMetrics().elidedText(text(), Qt::ElideRight, room.width()));
  const QPointF centre(width() - kMargin - kCross / 2.0, height() / 2.0);
  painter.setPen(QPen(look.ink, 1.6, Qt::SolidLine, Qt::RoundCap));
  const double arm = kCross / 2.0;
  painter.drawLine(centre + QPointF(-arm, -arm), centre + QPointF(arm, arm));
  painter.drawLine(centre + QPointF(-arm, arm), centre + QPointF(arm, -arm));
}

} // namespace hooptab
