#include "live/LiveKeys.h"

#include "appearance/relabel.h"
#include "keypad/KeyCodes.h"
#include "keypad/KeySheet.h"
#include "keypad/KeypadDisplay.h"
#include "keypad/QtKeys.h"
#include "settings/Settings.h"

#include <QApplication>
#include <QKeyEvent>

namespace hooptab {

LiveKeys::LiveKeys(GameSession& session, const Settings& settings, const Texts& texts, FollowUpBar& followUp,
                   QWidget& displayPlace, QWidget& window)
    : QObject(&window), m_session(session), m_game(session.game()), m_settings(settings), m_texts(texts),
      m_window(window) {
  m_display = new KeypadDisplay(&displayPlace);
  m_sheet = new KeySheet(texts, &window);
  followUp.setKeyReader([this](const QKeyEvent& event) { return followUpKey(event); });
  connect(&followUp, &FollowUpBar::numberTyped, this, [this](bool onKeypad) {
    if (!onKeypad)
      m_sinceAnswer.start();
  });
  qApp->installEventFilter(this);
  qApp->installEventFilter(&followUp); // an open question sees its keys first
}

LiveKeys::~LiveKeys() {
  qApp->removeEventFilter(this);
}

void LiveKeys::setSetup(const KeypadSetup& setup) {
  m_input.setSetup(setup);
  m_display->clear();
  relabelKeys();
}

void LiveKeys::forget() {
  m_input.clear();
  m_display->clear();
}

void LiveKeys::relabelKeys() {
  m_display->clear();
  if (!m_sheet->isHidden())
    m_sheet->showSetup(m_input.setup(), m_settings.keypadIsActive);
}

// The focus may stand on the frame around the window, but nowhere else in the program.
bool LiveKeys::isInFront() const {
  if (!m_window.isVisible() || !m_window.window()->isActiveWindow() ||
      QApplication::activeModalWidget() != nullptr || QApplication::activePopupWidget() != nullptr)
    return false;
  const QWidget* focus = QApplication::focusWidget();
  return focus != nullptr &&
         (focus == &m_window || focus == m_window.parentWidget() || m_window.isAncestorOf(focus)) &&
         !isTextField(focus);
}

bool LiveKeys::owns(const KeyPress& press) {
  m_input.setHasBoundKeys(m_settings.keypadIsActive);
  return press.code != 0 && m_input.owns(press);
}

std::optional<FollowUpKey> LiveKeys::followUpKey(const QKeyEvent& event) {
  const KeyPress press = keyPressOf(event);
  if (!owns(press))
    return std::nullopt;
  switch (m_input.meaningOf(press)) {
  case KeypadInput::Meaning::Digit: return FollowUpKey{FollowUpKey::Kind::Digit, *m_input.digitOf(press)};
  case KeypadInput::Meaning::Confirm:
    return FollowUpKey{FollowUpKey::Kind::Take, 0, m_input.teamOf(press, m_game.game())};
  case KeypadInput::Meaning::Clear: return FollowUpKey{FollowUpKey::Kind::Clear};
  case KeypadInput::Meaning::Clock:
    return FollowUpKey{press.code == keys::kEnter ? FollowUpKey::Kind::Take : FollowUpKey::Kind::Clock};
  case KeypadInput::Meaning::Other: {
    const EventCode code = m_input.recordedBy(press);
    return code == EventCode::Unknown ? FollowUpKey{FollowUpKey::Kind::GoOn}
                                      : FollowUpKey{.kind = FollowUpKey::Kind::Action, .code = code};
  }
  case KeypadInput::Meaning::None: break;
  }
  return std::nullopt;
}

// Sees every event of the program. A shortcut of the same key would come before the press: it is overridden.
bool LiveKeys::eventFilter(QObject* watched, QEvent* event) {
  const QEvent::Type type = event->type();
  if ((type != QEvent::KeyPress && type != QEvent::ShortcutOverride) || !watched->isWidgetType() ||
      !isInFront())
    return false;
  auto& key = static_cast<QKeyEvent&>(*event);
  const bool isPress = type == QEvent::KeyPress;
  if (takeSheetKey(key, isPress)) {
    key.accept();
    return true;
  }
  const KeyPress press = keyPressOf(key);
  const bool isEnd = endsAnswer(press, isPress);
  if (!isEnd && !owns(press))
    return false;
  key.accept();
  if (!isEnd && isPress && !key.isAutoRepeat())
    take(press);
  return true;
}

// On the main keyboard a line ends with Enter. Behind a number that was taken with its last digit already, it
// comes by habit, and is not meant for the clock or whatever has the focus.
bool LiveKeys::endsAnswer(const KeyPress& press, bool isPress) {
  constexpr qint64 kHabit = 1000; // ms
  const bool isEnd = m_sinceAnswer.isValid() && !m_sinceAnswer.hasExpired(kHabit) &&
                     press.code == keys::kEnter && !press.isKeypad;
  if (isPress && press.code != 0)
    m_sinceAnswer.invalidate();
  return isEnd;
}

bool LiveKeys::takeSheetKey(const QKeyEvent& event, bool isPress) {
  const bool isSheetKey = event.key() == Qt::Key_F1 && event.modifiers() == Qt::NoModifier;
  if (!isSheetKey && (event.key() != Qt::Key_Escape || m_sheet->isHidden()))
    return false;
  if (!isPress || event.isAutoRepeat())
    return true;
  showSheet();
  return true;
}

void LiveKeys::showSheet() {
  if (m_sheet->isHidden())
    m_sheet->showSetup(m_input.setup(), m_settings.keypadIsActive);
  else
    m_sheet->hide();
}

void LiveKeys::take(const KeyPress& press) {
  switch (m_input.press(press, m_game)) {
  case KeypadInput::Outcome::NotMine: return;
  case KeypadInput::Outcome::Clock: emit clockPressed(); return;
  case KeypadInput::Outcome::Confirmed: carryOutOrder(); return;
  case KeypadInput::Outcome::Refused: refuse(m_input.reason()->words(m_texts)); return;
  case KeypadInput::Outcome::Typed:
  case KeypadInput::Outcome::Cleared: break;
  }
  if (m_input.isEmpty())
    m_display->clear();
  else
    m_display->show(toQt(m_input.typed()), toQt(m_input.preview(m_game.game(), m_texts)),
                    KeypadDisplay::Tone::Plain, false);
}

void LiveKeys::carryOutOrder() {
  const KeypadOrder order = m_input.order();
  const bool isOnCourt = order.player == 0 || m_game.slotOf(order.team, order.player).has_value();
  const bool isOfPlayer = order.kind == KeypadOrder::Kind::Shot || order.kind == KeypadOrder::Kind::Action;
  const bool isTaken = m_taker && m_taker(order);
  if (!isTaken && !carryOut(*m_session.change(), order))
    return refuse(std::string(m_texts.text(Text::NothingRecorded)));
  std::string words = "✓ " + KeypadInput::words(order, m_game.game(), m_texts);
  if (!isOnCourt && isOfPlayer)
    words.append(" (").append(m_texts.text(Text::NotOnCourt)).append(")");
  m_display->show({}, toQt(words), KeypadDisplay::Tone::Recorded, m_input.setup().flashes);
  if (!isTaken)
    emit recorded(order);
}

void LiveKeys::refuse(const std::string& why) {
  m_display->show(toQt(m_input.typed()), toQt(why), KeypadDisplay::Tone::Refused, m_input.setup().flashes);
  if (m_input.setup().sounds)
    QApplication::beep();
}

} // namespace hooptab
