#include "live/RepeatedPress.h"

#include "court/CourtGeometry.h"
#include "events/MiniCourt.h"
#include "events/StatButton.h"

#include <QApplication>
#include <QLineF>
#include <QMouseEvent>

namespace hooptab {

namespace {

std::unique_ptr<QMouseEvent> copyOf(const QMouseEvent& event) {
  return std::unique_ptr<QMouseEvent>(event.clone());
}

// In court units; on a button every spot is the same.
double distance(const QWidget& pressed, const QMouseEvent& left, const QMouseEvent& right) {
  const auto* court = qobject_cast<const MiniCourt*>(&pressed);
  return court == nullptr ? 0 : QLineF(left.position(), right.position()).length() / court->pixelsOfUnit();
}

} // namespace

RepeatedPress::RepeatedPress(QWidget& window) : QObject(&window), m_window(window) {
  qApp->installEventFilter(this);
}

RepeatedPress::~RepeatedPress() {
  qApp->removeEventFilter(this);
}

void RepeatedPress::noteRecorded() {
  m_hasRecorded = true;
}

bool RepeatedPress::isRepeat(const QWidget& pressed, const QMouseEvent& event) const {
  return m_hasRecorded && m_press && m_pressed == &pressed && m_press->button() == event.button() &&
         event.timestamp() - m_press->timestamp() < kWithin &&
         distance(pressed, *m_press, event) <= kSameSpot;
}

bool RepeatedPress::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() != QEvent::MouseButtonPress && event->type() != QEvent::MouseButtonDblClick)
    return false;
  auto* const widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr || !m_window.isAncestorOf(widget))
    return false;
  const auto& press = static_cast<const QMouseEvent&>(*event);
  if (isRepeat(*widget, press)) {
    m_heldBackOn = widget;
    m_heldBack = copyOf(press);
    emit heldBack();
    return true;
  }
  const auto* button = qobject_cast<const StatButton*>(widget);
  const bool isShot =
      qobject_cast<const MiniCourt*>(widget) != nullptr || (button != nullptr && button->countsOnce());
  m_hasRecorded = false;
  m_pressed = isShot ? widget : nullptr;
  m_press = isShot ? copyOf(press) : nullptr;
  return false;
}

// As the first press of another moment, which this filter lets pass.
void RepeatedPress::carryOut() {
  if (m_heldBackOn == nullptr || !m_heldBack)
    return;
  const std::unique_ptr<QMouseEvent> press = std::move(m_heldBack);
  m_hasRecorded = false;
  QApplication::sendEvent(m_heldBackOn, press.get());
}

} // namespace hooptab
