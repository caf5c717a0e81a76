#include "scoreboard/LeagueButtons.h"

#include "appearance/Theme.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace hooptab {

namespace {

constexpr double kRadius = 5;
constexpr int kMostDots = 4; // more are a number

} // namespace

LeagueButton::LeagueButton(QWidget* parent) : QAbstractButton(parent) {
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
}

void LeagueButton::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton)
    emit pressed();
  event->accept();
}

void LeagueButton::paintGround(QPainter& painter) const {
  painter.setRenderHint(QPainter::Antialiasing);
  const Look& look = Theme::look();
  if (!isEnabled())
    return;
  painter.setPen(underMouse() || hasFocus() ? look.accent : look.line);
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
}

void TimeOutButton::setLook(const Look& look) {
  if (look == m_look)
    return;
  m_look = look;
  update();
}

void TimeOutButton::paintEvent(QPaintEvent*) {
  const hooptab::Look& look = Theme::look();
  QPainter painter(this);
  paintGround(painter);
  const int margin = Theme::measure()(4, 6);
  const QRect room = rect().adjusted(margin, 0, -margin, 0);
  painter.setFont(Theme::font(Type::Small, m_look.isEmphasized ? QFont::Bold : QFont::Normal));
  painter.setPen(m_look.isEmphasized ? look.accent : look.ink);
  const int all = m_look.left + m_look.taken;
  int dotsWidth = 0;
  if (all > kMostDots) {
    const QString number = QString::number(m_look.left);
    painter.drawText(room, Qt::AlignRight | Qt::AlignVCenter, number);
    dotsWidth = painter.fontMetrics().horizontalAdvance(number);
  } else if (all > 0) {
    const int dot = Theme::measure()(8, 11);
    const int step = dot + Theme::measure()(3);
    dotsWidth = all * step;
    for (int place = 0; place < all; ++place) {
      const QRectF circle(room.right() - dotsWidth + place * step + 2.5, room.center().y() - dot / 2.0 + 0.5,
                          dot, dot);
      painter.setPen(look.ink);
      painter.setBrush(place < m_look.left ? QBrush(look.ink) : QBrush(Qt::NoBrush));
      painter.drawEllipse(circle);
    }
  }
  painter.setPen(m_look.isEmphasized ? look.accent : look.ink);
  const QRect words = room.adjusted(0, 0, -dotsWidth - 2, 0);
  const bool isNarrow = painter.fontMetrics().horizontalAdvance(m_look.caption) > words.width();
  painter.drawText(words, Qt::AlignLeft | Qt::AlignVCenter,
                   painter.fontMetrics().elidedText(isNarrow ? m_look.shortCaption : m_look.caption,
                                                    Qt::ElideRight, words.width()));
}

void ArrowButton::setLook(bool isOn, bool pointsRight) {
  if (isOn == m_isOn && pointsRight == m_pointsRight)
    return;
  m_isOn = isOn;
  m_pointsRight = pointsRight;
  update();
}

void ArrowButton::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  paintGround(painter);
  const double half = Theme::measure()(5, 7);
  const QPointF middle = QRectF(rect()).center();
  const double tip = m_pointsRight ? half : -half;
  painter.setPen(QPen(m_isOn ? look.ink : look.muted, 1.2));
  painter.setBrush(m_isOn ? QBrush(look.ink) : QBrush(Qt::NoBrush));
  painter.drawPolygon(
      QPolygonF({middle + QPointF(tip, 0), middle + QPointF(-tip, -half), middle + QPointF(-tip, half)}));
}

} // namespace hooptab
