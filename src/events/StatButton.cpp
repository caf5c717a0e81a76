#include "events/StatButton.h"

#include "appearance/Theme.h"
#include "events/CountBox.h"

#include <QMouseEvent>
#include <QPainter>

#include <chrono>

namespace hooptab {

namespace {

constexpr std::chrono::milliseconds kFeedback{120};

} // namespace

StatButton::StatButton(Records records, const QString& caption, const QStringList& countNames,
                       QWidget* parent)
    : QAbstractButton(parent), m_records(records),
      m_counts(new CountBox(CountBox::Place::OnButton, caption, countNames, this)) {
  m_counts->setAttribute(Qt::WA_TransparentForMouseEvents);
  setFocusPolicy(Qt::TabFocus);
  setAttribute(Qt::WA_Hover);
  m_feedback.setSingleShot(true);
  m_feedback.setInterval(kFeedback);
  connect(&m_feedback, &QTimer::timeout, this, qOverload<>(&StatButton::update));
  connect(this, &QAbstractButton::clicked, this, [this] { record(true); }); // by key or screen reader
}

void StatButton::setColour(const QColor& colour) {
  m_colour = colour;
  applyFace();
}

void StatButton::setState(State state) {
  if (state == m_state)
    return;
  m_state = state;
  applyFace();
}

void StatButton::applyFace() {
  const Face usual = face(false);
  m_counts->setColours(usual.text, usual.zeros);
  update();
}

// The settings' colour is worn thin, so that counts are read on it and team colours stay the only large ones.
StatButton::Face StatButton::face(bool isPressed) const {
  const Look& look = Theme::look();
  const bool isPointedAt = underMouse() && isEnabled();
  if (m_state == State::Warned)
    return {mix(look.warningText, look.warningGround,
                isPressed     ? 0.2
                : isPointedAt ? 0.1
                              : 0),
            look.warningBar, look.warningText, look.warningText};
  if (m_state == State::Reached) {
    const QColor text = textOn(look.missed);
    return {mix(text, look.missed, isPressed ? 0.2 : isPointedAt ? 0.1 : 0), look.missed, text, text};
  }
  if (!isEnabled())
    return {mix(m_colour, look.surface, look.buttonFace / 2), look.line, look.edge, look.edge};
  const double share = isPressed ? look.buttonPressed : isPointedAt ? look.buttonHover : look.buttonFace;
  const QColor fill = mix(m_colour, look.surface, share);
  const QColor text = contrast(look.ink, fill) >= kReadable ? look.ink : textOn(fill);
  return {fill, isPressed ? look.ink : mix(m_colour, look.surface, look.buttonBorder), text,
          contrast(look.faint, fill) >= kReadable   ? look.faint
          : contrast(look.muted, fill) >= kReadable ? look.muted
                                                    : text};
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

void StatButton::changeEvent(QEvent* event) {
  QAbstractButton::changeEvent(event);
  if (event->type() == QEvent::EnabledChange)
    applyFace();
}

void StatButton::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  constexpr double kRadius = 5;
  const bool isPressed = m_feedback.isActive() || isDown();
  const Face shown = face(isPressed);
  painter.setBrush(shown.fill);
  painter.setPen(shown.border);
  painter.drawRoundedRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5), kRadius, kRadius);
  painter.setBrush(Qt::NoBrush);
  if (isPressed) {
    const QColor meaning = m_records == Records::Action ? shown.text
                           : m_wasMade                  ? Theme::made()
                                                        : Theme::missed();
    painter.setPen(QPen(meaning, 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRadius, kRadius);
  }
  if (hasFocus()) {
    painter.setPen(QPen(lineOn(Theme::accent(), shown.fill, kRecognisable), 2));
    painter.drawRoundedRect(QRectF(rect()).adjusted(1, 1, -1, -1), kRadius, kRadius);
  }
}

} // namespace hooptab
