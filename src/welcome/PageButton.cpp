#include "welcome/PageButton.h"

#include "appearance/Theme.h"

#include <QKeyEvent>
#include <QPainter>
#include <QStyleOption>

namespace hooptab {

namespace {

constexpr double kCardRadius = 8;
constexpr double kFocus = 2;

} // namespace

PageButton::PageButton(QWidget* parent) : QAbstractButton(parent) {
  setAttribute(Qt::WA_Hover);
  setFocusPolicy(Qt::TabFocus);
}

void PageButton::drawGround(QPainter& painter, Shape shape) {
  const Look& look = Theme::look();
  const bool isPointedAt = isEnabled() && underMouse();
  const QColor fill = isDown() ? look.line : isPointedAt ? look.raised : look.surface;
  const QRectF ground(rect());
  if (shape == Shape::Row) {
    painter.fillRect(ground.adjusted(1, 0, -1, 0), fill); // the card's border is beside it
  } else {
    painter.setBrush(fill);
    painter.setPen(isDown() || isPointedAt ? look.ink : look.line);
    painter.drawRoundedRect(ground.adjusted(0.5, 0.5, -0.5, -0.5), kCardRadius, kCardRadius);
  }
  QStyleOption option;
  option.initFrom(this);
  if (!option.state.testFlag(QStyle::State_HasFocus) ||
      !option.state.testFlag(QStyle::State_KeyboardFocusChange))
    return;
  painter.setBrush(Qt::NoBrush);
  painter.setPen(QPen(look.accent, kFocus));
  const double radius = shape == Shape::Card ? kCardRadius : kCardRadius / 2;
  painter.drawRoundedRect(ground.adjusted(1, 1, -1, -1), radius, radius);
}

void PageButton::keyPressEvent(QKeyEvent* event) {
  if (event->key() != Qt::Key_Return && event->key() != Qt::Key_Enter)
    return QAbstractButton::keyPressEvent(event);
  if (!event->isAutoRepeat())
    click();
}

void PageButton::changeEvent(QEvent* event) {
  QAbstractButton::changeEvent(event);
  if (event->type() == QEvent::FontChange) // the measure is another
    updateGeometry();
}

} // namespace hooptab
