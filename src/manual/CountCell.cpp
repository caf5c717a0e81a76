#include "manual/CountCell.h"

#include "appearance/Theme.h"

#include <QPainter>

namespace hooptab {

namespace {

constexpr int kAir = 10; // beside and above the digits together, in pixels

} // namespace

CountCell::CountCell(const QString& name, QWidget* parent) : PlainLabel(parent) {
  setObjectName(name);
  Theme::setType(*this, Type::Body);
  setMaximumHeight(kLargestHeight);
}

void CountCell::setLook(Look look) {
  if (look == m_look)
    return;
  m_look = look;
  Theme::setType(*this, Type::Body,
                 look == Look::Typing || look == Look::Total ? QFont::Bold : QFont::Normal);
  update();
}

QSize CountCell::sizeHint() const {
  return {fontMetrics().horizontalAdvance(QStringLiteral("999")) + kAir, fontMetrics().height() + kAir / 2};
}

void CountCell::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  const bool isInRow = m_look == Look::InRow || m_look == Look::Current;
  const QPalette::ColorRole ground = m_look == Look::Typing || m_look == Look::Even ? QPalette::Base
                                     : m_look == Look::Total                        ? QPalette::Button
                                     : isInRow                                      ? QPalette::Highlight
                                                                                    : QPalette::AlternateBase;
  painter.fillRect(rect(), palette().color(ground));
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawLine(rect().bottomLeft(), rect().bottomRight());
  painter.drawLine(rect().topRight(), rect().bottomRight());
  if (m_look == Look::Current || m_look == Look::Typing) {
    constexpr int kFrame = 2;
    painter.setPen(QPen(Theme::accent(), kFrame, Qt::SolidLine, Qt::SquareCap, Qt::MiterJoin));
    painter.drawRect(rect().adjusted(kFrame / 2, kFrame / 2, -kFrame, -kFrame));
  }
  painter.setPen(palette().color(isInRow ? QPalette::HighlightedText : QPalette::Text));
  painter.drawText(rect(), Qt::AlignCenter, text());
}

} // namespace hooptab
