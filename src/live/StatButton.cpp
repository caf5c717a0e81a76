#include "live/StatButton.h"

#include "appearance/Theme.h"
#include "live/CountBox.h"

#include <QMouseEvent>
#include <QPainter>

#include <chrono>

namespace hooptab {

namespace {

constexpr std::chrono::milliseconds kFeedback{150};

} // namespace

StatButton::StatButton(Records records, const QString& caption, const QStringList& countNames,
                       QWidget* parent)
    : QAbstractButton(parent), m_records(records), m_counts(new CountBox(caption, countNames, this)) {
  m_counts->setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
  m_feedback.setSingleShot(true);
  m_feedback.setInterval(kFeedback);
  connect(&m_feedback, &QTimer::timeout, this, qOverload<>(&StatButton::update));
  connect(this, &QAbstractButton::clicked, this, [this] { record(true); }); // by key or screen reader
}

void StatButton::setColour(const QColor& colour) {
  if (colour == m_colour)
    return;
  m_colour = colour;
  m_counts->setTextColour(textOn(colour));
  update();
}

void StatButton::record(bool isMade) {
  m_wasMade = isMade;
  m_feedback.start();
  update();
  emit recorded(isMade);
}

void StatButton::mousePressEvent(QMouseEvent* event) {
  if (event->buttons() != event->button()) // a second button while one is held
    return;
  const bool isLeft = event->button() == Qt::LeftButton;
  if (!isLeft && m_records == Records::Action)
    return;
  record(isLeft);
}

void StatButton::mouseDoubleClickEvent(QMouseEvent* event) {
  mousePressEvent(event); // two fast presses are two
}

// The press has done everything: what would make a click of it is not for the mouse.
void StatButton::mouseReleaseEvent(QMouseEvent* event) {
  event->accept();
}

void StatButton::mouseMoveEvent(QMouseEvent* event) {
  event->accept();
}

void StatButton::resizeEvent(QResizeEvent*) {
  m_counts->setGeometry(rect());
}

void StatButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  constexpr double kRadius = 4;
  const bool isPressed = m_feedback.isActive() || isDown();
  const QColor text = textOn(m_colour);
  const bool becomesDarker = text == QColor(Qt::white); // away from the text, so that it stays readable
  QColor fill = m_colour;
  if (!isEnabled())
    painter.setOpacity(0.5);
  else if (isPressed || underMouse())
    fill = becomesDarker ? fill.darker(isPressed ? 130 : 112) : fill.lighter(isPressed ? 130 : 112);
  painter.setBrush(fill);
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  if (isPressed) {
    const QColor meaning = m_records == Records::Action ? text : m_wasMade ? Theme::made() : Theme::missed();
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(meaning, 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRadius, kRadius);
  }
  if (hasFocus()) {
    painter.setBrush(Qt::NoBrush);
    painter.setPen(QPen(text, 1, Qt::DotLine));
    painter.drawRoundedRect(QRectF(rect()).adjusted(2.5, 2.5, -2.5, -2.5), kRadius, kRadius);
  }
}

} // namespace hooptab
