#include "events/JerseyButton.h"

#include "appearance/Theme.h"

#include <QApplication>
#include <QDrag>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace hooptab {

namespace {

constexpr double kRadius = 5;
constexpr int kHatchGap = 10; // of the hatch over one who goes out
constexpr int kWarningBar = 3;
constexpr int kMargin = 6;

} // namespace

QString shortenedName(const QString& name, const QFontMetrics& metrics, int width) {
  const qsizetype blank = name.indexOf(QLatin1Char(' '));
  const QString whole = metrics.elidedText(name, Qt::ElideRight, width);
  if (whole == name || blank < 1)
    return whole;
  return metrics.elidedText(name.left(1) + QLatin1Char('.') + name.mid(blank), Qt::ElideRight, width);
}

QString jerseyButtonName(int index) {
  return QStringLiteral("cmdJERSEY(%1)").arg(index);
}

JerseyButton::JerseyButton(const QString& name, QSize size, QWidget* parent) : QAbstractButton(parent) {
  setObjectName(name);
  if (!size.isEmpty())
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

QString playerMimeType() {
  return QStringLiteral("application/x-hooptab-player-%1").arg(QCoreApplication::applicationPid());
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
  player->setData(playerMimeType(), m_dragText.toUtf8());
  auto* drag = new QDrag(this);
  drag->setMimeData(player);
  drag->setPixmap(grab());
  drag->setHotSpot(m_pressedAt);
  drag->exec(Qt::CopyAction);
}

void JerseyButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF body = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  drawBody(painter, body);
  drawText(painter, body);
  painter.setBrush(Qt::NoBrush);
  if (m_look.isSelected || hasFocus()) {
    painter.setPen(
        QPen(lineOn(Theme::accent(), ground(), kRecognisable), hasFocus() && m_look.isSelected ? 3 : 2));
    painter.drawRoundedRect(body.adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  }
}

// One who goes out is still where he was, one who comes in is not yet there.
bool JerseyButton::isInColour() const {
  return m_look.move == Move::Leaves || (m_look.isFilled && m_look.move != Move::Comes);
}

QColor JerseyButton::ground() const {
  const auto& look = Theme::look();
  if (isInColour())
    return m_look.colour;
  if (m_look.isFouledOut)
    return look.raised;
  return underMouse() && isEnabled() ? look.raised : look.surface;
}

void JerseyButton::drawBody(QPainter& painter, const QRectF& body) const {
  const auto& look = Theme::look();
  const QColor fill = ground();
  const bool isPointedAt = underMouse() && isEnabled();
  QColor border = isInColour() ? outlineOf(fill, look.surface) : m_look.isFouledOut ? look.line : look.edge;
  if (isPointedAt)
    border = look.ink;
  painter.setBrush(fill);
  painter.setPen(QPen(border, 1));
  painter.drawRoundedRect(body, kRadius, kRadius);
  if (m_look.isWarned && !m_look.isFouledOut) {
    painter.save();
    painter.setClipRect(QRectF(body.left(), body.bottom() - kWarningBar, body.width(), kWarningBar + 1));
    painter.setPen(Qt::NoPen);
    painter.setBrush(look.warningBar);
    painter.drawRoundedRect(body, kRadius, kRadius);
    painter.restore();
  }
  if (m_look.move == Move::None)
    return;
  painter.save();
  if (m_look.move == Move::Comes) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(lineOn(m_look.colour, fill, kRecognisable), 2, Qt::DashLine));
    painter.drawRoundedRect(body.adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  } else {
    painter.setClipRect(body.adjusted(1, 1, -1, -1));
    painter.setPen(QPen(mix(look.surface, fill, 0.4), 3));
    for (double x = body.left() - body.height(); x < body.right(); x += kHatchGap)
      painter.drawLine(QPointF(x, body.bottom()), QPointF(x + body.height(), body.top()));
  }
  painter.restore();
}

void JerseyButton::drawNumber(QPainter& painter, const QRectF& room, const QColor& text,
                              Qt::Alignment alignment) const {
  painter.setPen(text);
  QRectF drawn;
  painter.drawText(room, static_cast<int>(alignment | Qt::AlignVCenter), m_look.jersey, &drawn);
  if (!m_look.isFouledOut)
    return;
  painter.setPen(QPen(text, 1.6));
  painter.drawLine(QPointF(drawn.left() - 2, drawn.center().y()),
                   QPointF(drawn.right() + 2, drawn.center().y()));
}

void JerseyButton::drawText(QPainter& painter, const QRectF& body) const {
  const auto& look = Theme::look();
  const Measure& measure = Theme::measure();
  const QColor fill = ground();
  const QColor text = !isEnabled()         ? lineOn(look.edge, fill, kRecognisable)
                      : isInColour()       ? textOn(fill)
                      : m_look.isFouledOut ? look.muted
                                           : look.ink;
  const bool hasLines = !isInColour() && (!m_look.lines[0].isEmpty() || !m_look.lines[1].isEmpty());
  painter.setFont(Theme::font(Type::Count, QFont::Bold));
  if (m_look.name.isEmpty() && !hasLines)
    return drawNumber(painter, body, text, Qt::AlignHCenter);
  const double numberWidth = painter.fontMetrics().horizontalAdvance(QStringLiteral("00"));
  const double left = body.left() + measure(kMargin);
  const double needed = std::max<double>(painter.fontMetrics().horizontalAdvance(m_look.jersey), numberWidth);
  drawNumber(painter, QRectF(left, body.top(), needed, body.height()), text, Qt::AlignRight);
  const QRectF rest(left + needed + measure(4), body.top(), body.right() - left - needed - measure(5),
                    body.height());
  if (!m_look.name.isEmpty()) {
    painter.setPen(text);
    painter.setFont(Theme::font(Type::Small));
    painter.drawText(rest, Qt::AlignLeft | Qt::AlignVCenter,
                     shortenedName(m_look.name, painter.fontMetrics(), static_cast<int>(rest.width())));
    return;
  }
  if (m_look.lines[1].isEmpty()) {
    painter.setPen(look.muted);
    painter.drawText(rest, Qt::AlignLeft | Qt::AlignVCenter, m_look.lines[0]);
    return;
  }
  const double half = rest.height() / 2;
  painter.setFont(Theme::font(Type::Dense, QFont::DemiBold));
  painter.setPen(m_look.isFouledOut ? look.missed : text);
  painter.drawText(rest.adjusted(0, 1, 0, -half + 1), Qt::AlignLeft | Qt::AlignVCenter, m_look.lines[0]);
  painter.setFont(Theme::font(Type::Dense));
  painter.setPen(m_look.isWarned ? look.warningText : look.muted);
  painter.drawText(rest.adjusted(0, half - 1, 0, -1), Qt::AlignLeft | Qt::AlignVCenter, m_look.lines[1]);
}

} // namespace hooptab
