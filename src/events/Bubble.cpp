#include "events/Bubble.h"

#include "appearance/Theme.h"

#include <QLayout>
#include <QPainter>
#include <QPainterPath>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kMargin = 9;
constexpr double kRadius = 8;
constexpr int kArrow = 10;     // length
constexpr int kArrowFoot = 10; // half of it
constexpr int kBetween = 5;    // two panels
constexpr int kFlash = 400;    // milliseconds

} // namespace

Bubble::Bubble(QWidget* parent) : QWidget(parent) {
  m_flash.setSingleShot(true);
  m_flash.setInterval(kFlash);
  connect(&m_flash, &QTimer::timeout, this, qOverload<>(&Bubble::update));
  // A click between the buttons is no click on what lies below.
  setAttribute(Qt::WA_NoMousePropagation);
}

int Bubble::widthFor(int panel) const {
  return (panel > 0 ? panel : Theme::measure()(210, 294)) - 2 * kMargin;
}

void Bubble::placeBeside(const QRect& panel, const QRect& room) {
  const QRect inner(parentWidget()->mapFromGlobal(room.topLeft()), room.size());
  const QRect beside(parentWidget()->mapFromGlobal(panel.topLeft()), panel.size());
  const bool fitsRight =
      beside.right() + kBetween + widthFor(panel.width()) + 2 * kMargin <= inner.right() + 1;
  m_points = panel.isEmpty() ? Points::Nowhere : fitsRight ? Points::Left : Points::Right;
  layout()->setContentsMargins(kMargin + (m_points == Points::Left ? kArrow : 0), kMargin,
                               kMargin + (m_points == Points::Right ? kArrow : 0), kMargin);
  adjustSize();
  QPoint corner = inner.center() - rect().center();
  if (!panel.isEmpty())
    corner = {fitsRight ? beside.right() + 1 + kBetween - kArrow
                        : beside.left() - kBetween + kArrow - width(),
              beside.center().y() - height() / 2};
  const QSize free = parentWidget()->size() - size();
  move(std::clamp(corner.x(), 0, std::max(free.width(), 0)),
       std::clamp(corner.y(), 0, std::max(free.height(), 0)));
  m_pointsAt = beside.center().y();
}

void Bubble::keepInParent() {
  adjustSize();
  move(x(), std::clamp(y(), 0, std::max(parentWidget()->height() - height(), 0)));
}

void Bubble::flash() {
  m_flash.start();
  update();
}

void Bubble::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const double width = m_flash.isActive() ? 4 : 2;
  painter.setPen(QPen(m_flash.isActive() ? look.missed : look.accent, width));
  painter.setBrush(look.surface);
  const double left = m_points == Points::Left ? kArrow : width / 2;
  const double right = m_points == Points::Right ? kArrow : width / 2;
  const QRectF body = QRectF(rect()).adjusted(left, width / 2, -right, -width / 2);
  QPainterPath shape;
  shape.addRoundedRect(body, kRadius, kRadius);
  if (m_points != Points::Nowhere) {
    const double foot = m_points == Points::Left ? body.left() : body.right();
    const double tip = m_points == Points::Left ? foot - kArrow + width : foot + kArrow - width;
    const double middle = std::clamp<double>(m_pointsAt - y(), kRadius + kArrow, height() - kRadius - kArrow);
    QPainterPath arrow;
    arrow.addPolygon(QPolygonF({{foot, middle - kArrowFoot},
                                {tip, middle},
                                {foot, middle + kArrowFoot},
                                {foot, middle - kArrowFoot}}));
    shape = shape.united(arrow);
  }
  painter.drawPath(shape);
}

} // namespace hooptab
