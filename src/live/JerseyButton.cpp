#include "live/JerseyButton.h"

#include "appearance/Theme.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace hooptab {

namespace {

constexpr double kFrame = 3; // around the body: selection and focus
constexpr double kRadius = 4;
constexpr double kOutline = 2.5;
constexpr double kSign = 11;
constexpr int kJerseySize = 10;
constexpr int kJerseySizeWithName = 12;
constexpr double kNameShare = 0.42; // of the height
constexpr double kNameFont = 0.82;  // of the usual size
constexpr int kNameMargin = 4;

// A disc that keeps the sign readable on any team colour.
void drawDisc(QPainter& painter, const QRectF& sign, const QPalette& palette) {
  painter.setPen(QPen(palette.color(QPalette::PlaceholderText), 0.75));
  painter.setBrush(palette.color(QPalette::Base));
  painter.drawEllipse(sign);
}

// Where there is no room for all of it the family name counts: "Cleo Carter", "C. Carter", "C. Cart...".
QString shortened(const QString& name, const QFontMetrics& metrics, int width) {
  const qsizetype blank = name.indexOf(QLatin1Char(' '));
  const QString whole = metrics.elidedText(name, Qt::ElideRight, width);
  if (whole == name || blank < 1)
    return whole;
  return metrics.elidedText(name.left(1) + QLatin1Char('.') + name.mid(blank), Qt::ElideRight, width);
}

} // namespace

QString jerseyButtonName(int index) {
  return QStringLiteral("cmdJERSEY(%1)").arg(index);
}

JerseyButton::JerseyButton(const QString& name, QSize size, QWidget* parent) : QAbstractButton(parent) {
  setObjectName(name);
  setFixedSize(size);
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
  QSizePolicy policy = sizePolicy();
  policy.setRetainSizeWhenHidden(true);
  setSizePolicy(policy);
  hide();
}

void JerseyButton::setLook(const Look& look) {
  if (m_look == look)
    return;
  m_look = look;
  setVisible(!look.jersey.isEmpty());
  setText(look.jersey);
  update();
}

void JerseyButton::mousePressEvent(QMouseEvent* event) {
  // Two buttons at once are no answer to anything.
  if (event->buttons() != Qt::LeftButton) {
    event->accept();
    return;
  }
  m_pressedAt = event->position().toPoint();
  QAbstractButton::mousePressEvent(event);
}

void JerseyButton::mouseMoveEvent(QMouseEvent* event) {
  const bool isFar =
      (event->position().toPoint() - m_pressedAt).manhattanLength() >= QApplication::startDragDistance();
  if (m_dragText.isEmpty() || event->buttons() != Qt::LeftButton || !isFar) {
    QAbstractButton::mouseMoveEvent(event);
    return;
  }
  setDown(false);
  auto* player = new QMimeData;
  player->setData(QLatin1String(kPlayerMimeType), m_dragText.toUtf8());
  auto* drag = new QDrag(this);
  drag->setMimeData(player);
  drag->setPixmap(grab());
  drag->setHotSpot(m_pressedAt);
  drag->exec(Qt::CopyAction);
}

void JerseyButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF body = QRectF(rect()).adjusted(kFrame, kFrame, -kFrame, -kFrame);
  if (m_look.isSelected || hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(m_look.isSelected ? QPen(Theme::accent(), 2.5)
                                     : QPen(palette().color(QPalette::WindowText), 1, Qt::DotLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1.25, 1.25, -1.25, -1.25), kRadius + 2, kRadius + 2);
  }
  drawBody(painter, body);
  drawText(painter, body);
  drawSigns(painter, body);
}

void JerseyButton::drawBody(QPainter& painter, const QRectF& body) const {
  // The hairline shows where a team's colour is that of the ground.
  const QColor hairline = palette().color(underMouse() ? QPalette::WindowText : QPalette::PlaceholderText);
  painter.setPen(QPen(hairline, 1));
  painter.setBrush(m_look.isFilled ? m_look.colour : palette().color(QPalette::Base));
  painter.drawRoundedRect(body.adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  if (m_look.isFilled)
    return;
  constexpr double kInset = 1 + kOutline / 2;
  painter.setPen(QPen(m_look.colour, kOutline));
  painter.setBrush(Qt::NoBrush);
  painter.drawRoundedRect(body.adjusted(kInset, kInset, -kInset, -kInset), kRadius - 1, kRadius - 1);
}

void JerseyButton::drawText(QPainter& painter, const QRectF& body) const {
  const bool hasName = !m_look.name.isEmpty();
  const double nameHeight = hasName ? body.height() * kNameShare : 0;
  painter.setPen(m_look.isFilled ? textOn(m_look.colour) : palette().color(QPalette::Text));
  painter.setFont(Theme::figures(hasName ? kJerseySizeWithName : kJerseySize, true));
  const QRectF number = body.adjusted(0, hasName ? 2 : 0, 0, -nameHeight);
  painter.drawText(number, Qt::AlignCenter, m_look.jersey);
  if (m_look.isFouledOut) {
    const double width = painter.fontMetrics().horizontalAdvance(m_look.jersey) / 2.0 + 3;
    const QPointF middle = number.center();
    painter.save();
    painter.setPen(QPen(painter.pen().color(), 2));
    painter.drawLine(middle - QPointF(width, 0), middle + QPointF(width, 0));
    painter.restore();
  }
  if (!hasName)
    return;
  QFont small = font();
  small.setPointSizeF(small.pointSizeF() * kNameFont);
  painter.setFont(small);
  const QRectF room = body.adjusted(kNameMargin, body.height() - nameHeight - 1, -kNameMargin, -2);
  painter.drawText(room, Qt::AlignCenter,
                   shortened(m_look.name, painter.fontMetrics(), static_cast<int>(room.width())));
}

void JerseyButton::drawSigns(QPainter& painter, const QRectF& body) const {
  if (m_look.isFouledOut) {
    const QRectF sign(body.right() - kSign - 1, body.top() + 1, kSign, kSign);
    drawDisc(painter, sign, palette());
    painter.setPen(QPen(Theme::missed(), 1.75));
    const QRectF cross = sign.adjusted(3, 3, -3, -3);
    painter.drawLine(cross.topLeft(), cross.bottomRight());
    painter.drawLine(cross.topRight(), cross.bottomLeft());
  }
  if (m_look.move != Move::None) {
    const QRectF sign(body.left() + 1, body.top() + 1, kSign + 2, kSign + 2);
    drawDisc(painter, sign, palette());
    const bool comes = m_look.move == Move::Comes;
    const QRectF arrow = sign.adjusted(3, 3.5, -3, -3.5);
    const double base = comes ? arrow.bottom() : arrow.top();
    painter.setPen(Qt::NoPen);
    painter.setBrush(comes ? Theme::made() : Theme::missed());
    painter.drawPolygon(QPolygonF({{arrow.left(), base},
                                   {arrow.right(), base},
                                   {arrow.center().x(), comes ? arrow.top() : arrow.bottom()}}));
  }
}

} // namespace hooptab
