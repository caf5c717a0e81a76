#include "review/SegmentButton.h"

#include "appearance/Theme.h"

#include <QPainter>

namespace hooptab {

namespace {

constexpr double kRadius = 6;
constexpr int kMargin = 11; // left and right of the text

} // namespace

SegmentButton::SegmentButton(Place place, QWidget* parent) : QAbstractButton(parent), m_place(place) {
  setCheckable(true);
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
  Theme::setType(*this, Type::Body);
}

void SegmentButton::setPlace(Place place) {
  m_place = place;
  update();
}

// As wide as the text is when it is bold, so that nothing moves.
QSize SegmentButton::sizeHint() const {
  const QFontMetrics metrics(Theme::font(Type::Body, QFont::DemiBold));
  return {metrics.horizontalAdvance(text()) + 2 * Theme::measure()(kMargin), Theme::measure()(26, 33)};
}

void SegmentButton::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  // Beyond the sides at which a neighbour stands, so that only the ends of the row are round.
  QRectF shape = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  if (m_place != Place::First)
    shape.setLeft(-2 * kRadius);
  if (m_place != Place::Last)
    shape.setRight(width() + 2 * kRadius);
  const QColor ground = isChecked()    ? look.accent
                        : !isEnabled() ? look.raised
                        : underMouse() ? look.raised
                                       : look.surface;
  painter.setBrush(ground);
  painter.setPen(isChecked() ? look.accent : look.edge);
  painter.drawRoundedRect(shape, kRadius, kRadius);
  if (m_place != Place::First && !isChecked())
    painter.fillRect(QRectF(0, 1, 1, height() - 2), look.line);
  painter.setFont(Theme::font(Type::Body, isChecked() ? QFont::DemiBold : QFont::Normal));
  painter.setPen(isChecked() ? look.onAccent : isEnabled() ? look.ink : look.edge);
  painter.drawText(rect(), Qt::AlignCenter | Qt::TextSingleLine, text());
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(isChecked() ? look.onAccent : look.accent, 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(3, 3, -3, -3), 3, 3);
  }
}

} // namespace hooptab
