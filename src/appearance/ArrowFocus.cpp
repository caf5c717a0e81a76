#include "appearance/ArrowFocus.h"

#include <QKeyEvent>
#include <QWidget>

#include <algorithm>
#include <cstdlib>
#include <limits>

namespace hooptab {

namespace {

constexpr int kAside = 3; // how much more a step aside costs than one ahead

// How far ahead in the direction of the key, and how far aside; nothing ahead is no way.
int costOf(const QPoint& way, int key) {
  const bool isAcross = key == Qt::Key_Left || key == Qt::Key_Right;
  const int along = isAcross ? way.x() : way.y();
  const int ahead = key == Qt::Key_Left || key == Qt::Key_Up ? -along : along;
  const int aside = std::abs(isAcross ? way.y() : way.x());
  return ahead <= aside / kAside ? std::numeric_limits<int>::max() : ahead + kAside * aside;
}

} // namespace

ArrowFocus::ArrowFocus(std::vector<QWidget*> members, QWidget* parent)
    : QObject(parent), m_members(std::move(members)) {
  for (QWidget* member : m_members) {
    member->setFocusPolicy(Qt::NoFocus);
    member->installEventFilter(this);
  }
  if (!m_members.empty())
    makeStop(*m_members.front());
}

void ArrowFocus::makeStop(QWidget& member) {
  if (m_stop != nullptr)
    m_stop->setFocusPolicy(Qt::NoFocus);
  m_stop = &member;
  m_stop->setFocusPolicy(Qt::TabFocus);
}

// The stop is one that can have the focus.
void ArrowFocus::keepReachable() {
  const auto canFocus = [](const QWidget* member) { return !member->isHidden() && member->isEnabled(); };
  if (m_stop != nullptr && canFocus(m_stop))
    return;
  if (const auto other = std::ranges::find_if(m_members, canFocus); other != m_members.end())
    makeStop(**other);
}

QWidget* ArrowFocus::neighbour(const QWidget& from, int key) const {
  QWidget* nearest = nullptr;
  int least = std::numeric_limits<int>::max();
  for (QWidget* member : m_members) {
    if (member == &from || !member->isVisible() || !member->isEnabled())
      continue;
    const int cost = costOf(member->geometry().center() - from.geometry().center(), key);
    if (cost >= least)
      continue;
    least = cost;
    nearest = member;
  }
  return nearest;
}

bool ArrowFocus::eventFilter(QObject* watched, QEvent* event) {
  auto& member = static_cast<QWidget&>(*watched);
  if (event->type() == QEvent::FocusIn)
    makeStop(member);
  if (event->type() == QEvent::Hide || event->type() == QEvent::EnabledChange ||
      event->type() == QEvent::Show)
    keepReachable();
  if (event->type() != QEvent::KeyPress)
    return false;
  const auto& key = static_cast<const QKeyEvent&>(*event);
  const bool isArrow = key.key() == Qt::Key_Left || key.key() == Qt::Key_Right || key.key() == Qt::Key_Up ||
                       key.key() == Qt::Key_Down;
  if (!isArrow || (key.modifiers() & ~Qt::KeypadModifier) != Qt::NoModifier)
    return false;
  if (QWidget* next = neighbour(member, key.key()); next != nullptr) {
    makeStop(*next);
    next->setFocus(Qt::TabFocusReason);
  }
  return true;
}

} // namespace hooptab
