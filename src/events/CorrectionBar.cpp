#include "events/CorrectionBar.h"

#include "appearance/ElidedLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "keypad/QtKeys.h"

#include <QApplication>
#include <QBoxLayout>
#include <QKeyEvent>
#include <QToolButton>

#include <chrono>

namespace hooptab {

namespace {

using Outcome = EventCorrection::Outcome;
using Remedy = EventCorrection::Remedy;

constexpr std::chrono::seconds kShown{10};
constexpr int kGap = 8;

bool isModifier(int key) {
  return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr ||
         key == Qt::Key_Meta || key == Qt::Key_F11; // F11 begins with them
}

} // namespace

CorrectionBar::CorrectionBar(GameSession& session, const Texts& texts, QWidget* parent)
    : QFrame(parent), m_session(session), m_texts(texts), m_words(new ElidedLabel(this)) {
  setObjectName(QStringLiteral("picCORRECTION"));
  setAutoFillBackground(true);
  m_words->setObjectName(QStringLiteral("lblCORRECTION"));
  m_words->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(kGap, 0, kGap, 0);
  layout->setSpacing(4);
  layout->addWidget(m_words, 1);
  m_made = makeButton("cmdMADE", Text::MadeOrMissed);
  m_three = makeButton("cmdTHREE", Text::TwoOrThree);
  m_adapt = makeButton("cmdADAPT", Text::None);
  m_delete = makeButton("cmdDELETEIT", Text::DeleteIt);
  m_keep = makeButton("cmdLEAVEIT", Text::LeaveIt);
  m_enough = makeButton("cmdENOUGH", Text::EnoughFouls);
  connect(m_made, &QToolButton::pressed, this, &CorrectionBar::toggleMade);
  connect(m_three, &QToolButton::pressed, this, &CorrectionBar::toggleThree);
  connect(m_adapt, &QToolButton::pressed, this,
          [this] { step([this] { return m_correction.decide(Remedy::Adapt); }); });
  connect(m_delete, &QToolButton::pressed, this,
          [this] { step([this] { return m_correction.decide(Remedy::Delete); }); });
  connect(m_keep, &QToolButton::pressed, this,
          [this] { step([this] { return m_correction.decide(Remedy::Keep); }); });
  connect(m_enough, &QToolButton::pressed, this, &CorrectionBar::end);
  m_end.setSingleShot(true);
  m_end.setInterval(kShown);
  connect(&m_end, &QTimer::timeout, this, &CorrectionBar::end);
  relabel(*this, texts);
  qApp->installEventFilter(this);
  hide();
}

CorrectionBar::~CorrectionBar() {
  qApp->removeEventFilter(this);
}

QToolButton* CorrectionBar::makeButton(const char* name, Text text) {
  auto* button = new QToolButton(this);
  button->setObjectName(QLatin1String(name));
  button->setFocusPolicy(Qt::TabFocus);
  if (text != Text::None)
    setTextNumber(*button, text);
  layout()->addWidget(button);
  return button;
}

bool CorrectionBar::begin(const EventPlace& event) {
  if (!m_correction.begin(m_session, event))
    return false;
  showStep();
  return true;
}

void CorrectionBar::end() {
  m_end.stop();
  m_correction.end();
  if (isHidden())
    return;
  hide();
  emit closed();
}

bool CorrectionBar::takePlayer(Side team, int player) {
  if (!isActive() || player == 0)
    return false;
  step([&] { return m_correction.takePlayer({team, player}); });
  return true;
}

void CorrectionBar::toggleMade() {
  if (isActive())
    step([this] { return m_correction.toggleMade(); });
}

void CorrectionBar::toggleThree() {
  if (isActive())
    step([this] { return m_correction.toggleThree(); });
}

// A step that was taken shows what the event is now; the next one may follow.
void CorrectionBar::step(const std::function<Outcome()>& take) {
  {
    const auto change = m_session.change();
    (void)take();
  }
  showStep();
}

// Whose it is has been answered: the digits that follow are the next event's.
void CorrectionBar::number(const std::function<Outcome()>& take) {
  Outcome outcome{};
  step([&] { return outcome = take(); });
  if (outcome == Outcome::Changed || outcome == Outcome::Same)
    end();
}

void CorrectionBar::gameChanged() {
  if (!isHidden() && !isActive())
    end();
}

void CorrectionBar::showStep() {
  if (!isActive())
    return end();
  const Look& look = Theme::look();
  const bool isAsking = m_correction.isAsking();
  const std::string reason = m_correction.reason(m_texts);
  QString words = toQt(isAsking ? m_correction.followUpQuestion(m_texts) : m_correction.question(m_texts));
  if (!m_correction.typed().empty())
    words += QStringLiteral("  %1_").arg(toQt(m_correction.typed()));
  if (!reason.empty())
    words = toQt(reason);
  m_words->setText(words);
  m_words->setFont(Theme::font(Type::Name));
  QPalette colours = palette();
  colours.setColor(QPalette::Window, look.plate);
  colours.setColor(QPalette::WindowText, reason.empty() ? look.plateText : look.clockStands);
  setPalette(colours);
  m_made->setVisible(!isAsking && m_correction.canToggleMade());
  m_three->setVisible(!isAsking && m_correction.canToggleThree());
  m_adapt->setVisible(isAsking && m_correction.canAdapt());
  m_adapt->setText(toQt(m_correction.adaptedWords(m_texts)));
  m_delete->setVisible(isAsking);
  m_keep->setVisible(isAsking);
  m_enough->setVisible(!isAsking);
  m_end.start();
  show();
  raise();
}

void CorrectionBar::relabelBar() {
  if (isActive())
    showStep();
}

bool CorrectionBar::takeKey(int key) {
  if (key >= Qt::Key_0 && key <= Qt::Key_9) {
    number([&] { return m_correction.type(key - Qt::Key_0); });
    return true;
  }
  switch (key) {
  case Qt::Key_Return:
  case Qt::Key_Enter: number([this] { return m_correction.enter(); }); return true;
  case Qt::Key_Backspace:
    m_correction.takeBackDigit();
    showStep();
    return true;
  case Qt::Key_Escape: end(); return true;
  default: return false;
  }
}

// Sees every event of the program while an event is in correction.
bool CorrectionBar::eventFilter(QObject* watched, QEvent* event) {
  if (isHidden() || !watched->isWidgetType())
    return false;
  const auto& widget = static_cast<const QWidget&>(*watched);
  if (&widget != parentWidget() && !parentWidget()->isAncestorOf(&widget))
    return false;
  switch (event->type()) {
  case QEvent::MouseButtonPress:
    if (&widget != this && !isAncestorOf(&widget) && !(m_isPlayer && m_isPlayer(widget)))
      end();
    return false;
  case QEvent::ShortcutOverride:
  case QEvent::KeyPress: {
    const auto& key = static_cast<const QKeyEvent&>(*event);
    const bool isPlain = (key.modifiers() & ~Qt::KeypadModifier) == Qt::NoModifier;
    const bool isOwn =
        isPlain && !isTextField(&widget) &&
        ((key.key() >= Qt::Key_0 && key.key() <= Qt::Key_9) || key.key() == Qt::Key_Return ||
         key.key() == Qt::Key_Enter || key.key() == Qt::Key_Backspace || key.key() == Qt::Key_Escape);
    if (!isOwn) { // whatever else is meant, it is no correction
      if (event->type() == QEvent::KeyPress && !key.isAutoRepeat() && !isModifier(key.key()))
        end();
      return false;
    }
    event->accept();
    return event->type() == QEvent::ShortcutOverride || key.isAutoRepeat() || takeKey(key.key());
  }
  default: return false;
  }
}

} // namespace hooptab
