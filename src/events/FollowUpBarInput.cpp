// What is typed and pressed while a question is open.
#include "events/FollowUpBar.h"

#include <QKeyEvent>
#include <QMouseEvent>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kSamePlace = 12; // pixels
constexpr int kHabit = 1000;   // milliseconds

bool isDigit(const QKeyEvent& event) {
  return event.key() >= Qt::Key_0 && event.key() <= Qt::Key_9;
}

bool isModifier(int key) {
  switch (key) {
  case Qt::Key_Shift:
  case Qt::Key_Control:
  case Qt::Key_Alt:
  case Qt::Key_AltGr:
  case Qt::Key_Meta:
  case Qt::Key_CapsLock:
  case Qt::Key_NumLock:
  case Qt::Key_ScrollLock: return true;
  default: return false;
  }
}

} // namespace

// Enter is the question's, whatever it is bound to; the clock's keys stay the clock's. Backspace takes back
// what was typed on the main keyboard: no keypad of 17 keys has one, and those that have use it to confirm.
FollowUpKey FollowUpBar::meaningOf(const QKeyEvent& event) const {
  using Kind = FollowUpKey::Kind;
  const bool isPlain = (event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) == Qt::NoModifier;
  if (event.key() == Qt::Key_Backspace && isPlain && !m_question.typed().empty() && !m_isTypedOnKeypad)
    return {Kind::TakeBack};
  const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (isEnter && isPlain && !event.modifiers().testFlag(Qt::KeypadModifier))
    return {Kind::Take};
  if (const auto chip = chipOf(event); chip && isPlain)
    return {.kind = Kind::Chip, .chip = *chip};
  if (m_readKey) {
    if (const auto bound = m_readKey(event)) {
      const bool isFree = bound->kind != Kind::Action || m_question.typed().empty();
      return bound->kind == Kind::Action && (!isFree || !takesAction(bound->code)) ? FollowUpKey() : *bound;
    }
  }
  if (!isPlain)
    return {};
  if (isEnter)
    return {Kind::Take};
  if (event.key() == Qt::Key_Space && event.modifiers() == Qt::NoModifier)
    return {Kind::Clock};
  if (event.key() == Qt::Key_Escape)
    return {Kind::Clear};
  return isDigit(event) ? FollowUpKey{Kind::Digit, event.key() - Qt::Key_0} : FollowUpKey{};
}

// By the letter that is its caption, while no number is typed.
std::optional<std::size_t> FollowUpBar::chipOf(const QKeyEvent& event) const {
  const auto& chips = m_chips->chips();
  const auto found = std::ranges::find_if(chips, [&](const DetailChip& chip) {
    return chip.caption.size() == 1 && event.key() == chip.caption[0].unicode();
  });
  return found == chips.end() || !m_question.typed().empty()
             ? std::nullopt
             : std::optional(static_cast<std::size_t>(found - chips.begin()));
}

bool FollowUpBar::takesAction(EventCode code) const {
  return (code == EventCode::SBS && m_question.canAskBlock()) || teamMeantBy(code).has_value();
}

// The key of a rebound or turnover without a number: the team's.
std::optional<FollowUpQuestion::Answer> FollowUpBar::teamMeantBy(EventCode code) const {
  const bool isRebound = m_question.isRebound();
  if (isRebound && (code == EventCode::SOR || code == EventCode::SDR))
    return m_question.teamOf(code == EventCode::SOR ? m_question.shooterTeam()
                                                    : otherSide(m_question.shooterTeam()));
  return !isRebound && code == EventCode::STO ? m_question.teamOf(m_question.shooterTeam()) : std::nullopt;
}

bool FollowUpBar::ownsKey(const QKeyEvent& event) const {
  switch (meaningOf(event).kind) {
  case FollowUpKey::Kind::Digit:
  case FollowUpKey::Kind::Take:
  case FollowUpKey::Kind::TakeBack:
  case FollowUpKey::Kind::Action:
  case FollowUpKey::Kind::Chip:
  case FollowUpKey::Kind::Clear: return true;
  case FollowUpKey::Kind::Clock: return false;
  case FollowUpKey::Kind::GoOn: break;
  }
  if (m_readKey && m_readKey(event))
    return false;
  return (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right) && event.modifiers() == Qt::NoModifier;
}

void FollowUpBar::takeKey(const QKeyEvent& event) {
  const FollowUpKey meaning = meaningOf(event);
  const bool isHabit = m_sinceBlock.isValid() && !m_sinceBlock.hasExpired(kHabit);
  m_sinceBlock.invalidate();
  m_ownRefusal = Text::None;
  m_goingOn.stop();
  m_whole.reset(); // Enter takes it by its mark, all other keys have another mind
  switch (meaning.kind) {
  case FollowUpKey::Kind::Digit:
    m_isTypedOnKeypad = event.modifiers().testFlag(Qt::KeypadModifier);
    m_whole = m_question.type(meaning.digit);
    if (m_whole)
      m_goingOn.start();
    return showTyped();
  case FollowUpKey::Kind::Take:
    // By habit behind a number that its last digit has taken: no answer to what is asked now.
    if (m_question.typed().empty() && isHabit)
      return;
    if (m_question.typed().empty() && !m_question.marked())
      return dismiss();
    return answer(m_question.enter(meaning.team));
  case FollowUpKey::Kind::TakeBack: m_question.takeBackDigit(); return showTyped();
  case FollowUpKey::Kind::Clear:
    if (event.key() == Qt::Key_Escape || m_question.typed().empty())
      return dismiss();
    m_question.clearTyped();
    return showTyped();
  case FollowUpKey::Kind::Chip: return m_chips->press(meaning.chip);
  case FollowUpKey::Kind::Action:
    if (const auto team = teamMeantBy(meaning.code))
      return answer(team);
    m_question.askBlock(!m_question.isAskingBlock());
    return showTyped();
  case FollowUpKey::Kind::Clock:
  case FollowUpKey::Kind::GoOn: break;
  }
  m_question.moveMark(event.key() == Qt::Key_Left ? -1 : 1);
  showTyped();
}

// What is pressed elsewhere closes it; true for a press that goes no further.
bool FollowUpBar::takePress(QWidget& widget, const QMouseEvent& event) {
  const bool isInside = &widget == this || isAncestorOf(&widget);
  const QPoint at = event.globalPosition().toPoint();
  const bool isSecond = m_sinceAnswer.isValid() && !m_sinceAnswer.hasExpired(kSecondPress) &&
                        (at - m_answeredAt).manhattanLength() < kSamePlace && widget.window() == window();
  m_sinceAnswer.invalidate();
  if (isSecond)
    emit pressIgnored();
  if (isSecond || !m_isOpen)
    return isSecond;
  if (!isInside && m_findPlayer && m_question.codeFor({}) == EventCode::Unknown) {
    const auto player = m_findPlayer(widget);
    const auto choice = std::ranges::find_if(m_question.choices(), [&](const auto& offered) {
      return player && offered.team() == player->team && offered.player == player->player;
    });
    if (choice != m_question.choices().end()) {
      ignoreSecondPress(at);
      answer(player);
      return true;
    }
  }
  if (!isInside) {
    dismiss();
    return false;
  }
  if (!m_sinceOpened.hasExpired(kDeafFor)) {
    refuse(Text::TooSoon);
    return true;
  }
  ignoreSecondPress(at);
  return false;
}

void FollowUpBar::ignoreSecondPress(const QPoint& globalPlace) {
  m_sinceAnswer.start();
  m_answeredAt = globalPlace;
}

// Sees every event of the program. Only its own keys stay here.
bool FollowUpBar::eventFilter(QObject* watched, QEvent* event) {
  auto* const widget = qobject_cast<QWidget*>(watched);
  // What is typed or pressed in the window in front is no answer to a question that lies behind it.
  if (widget == nullptr || (m_isOpen && !isVisible()))
    return false;
  const QEvent::Type type = event->type();
  if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick)
    return takePress(*widget, static_cast<const QMouseEvent&>(*event));
  if (!m_isOpen || (type != QEvent::KeyPress && type != QEvent::ShortcutOverride))
    return false;
  auto& key = static_cast<QKeyEvent&>(*event);
  const bool isOwn = ownsKey(key) && widget->window() == window();
  if (!isOwn) {
    if (!isModifier(key.key()) && !key.isAutoRepeat() && meaningOf(key).kind != FollowUpKey::Kind::Clock)
      dismiss();
    return false;
  }
  // Otherwise a shortcut of the same key would come first.
  if (type == QEvent::ShortcutOverride)
    event->accept();
  else if (!key.isAutoRepeat() || key.key() == Qt::Key_Backspace)
    takeKey(key);
  return true;
}

} // namespace hooptab
