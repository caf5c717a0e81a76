#include "live/MessageLine.h"

#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"

#include <QBoxLayout>
#include <QKeySequence>
#include <QToolButton>

#include <chrono>
#include <utility>

namespace hooptab {

namespace {

constexpr std::chrono::seconds kShown{6};
constexpr int kGap = 6;

} // namespace

MessageLine::MessageLine(QWidget* parent)
    : QFrame(parent), m_words(new PlainLabel(this)), m_action(new QToolButton(this)) {
  setObjectName(QStringLiteral("picSAID"));
  setAutoFillBackground(true);
  m_words->setObjectName(QStringLiteral("lblSAID"));
  m_words->setWordWrap(true);
  m_action->setObjectName(QStringLiteral("cmdSAID"));
  m_action->setFocusPolicy(Qt::TabFocus);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kGap, kGap / 2, kGap, kGap / 2);
  layout->setSpacing(kGap / 2);
  layout->addWidget(m_words);
  layout->addWidget(m_action, 0, Qt::AlignRight);
  m_end.setSingleShot(true);
  m_end.setInterval(kShown);
  connect(&m_end, &QTimer::timeout, this, &MessageLine::withdraw);
  connect(m_action, &QToolButton::clicked, this, &MessageLine::carryOut);
  hide();
}

void MessageLine::say(const QString& words) {
  offer(words, {}, {});
}

void MessageLine::offer(const QString& words, const QString& action, std::function<void()> carryOut) {
  m_words->setText(words);
  m_carryOut = std::move(carryOut);
  m_action->setText(QStringLiteral("%1 (%2)").arg(withoutMnemonic(action), QKeySequence(kKey).toString()));
  m_action->setVisible(static_cast<bool>(m_carryOut));
  show();
  m_end.start();
  emit changed();
}

void MessageLine::carryOut() {
  const std::function<void()> action = std::exchange(m_carryOut, {});
  if (!action)
    return;
  withdraw();
  action();
}

void MessageLine::withdraw() {
  m_carryOut = {};
  m_end.stop();
  if (isHidden())
    return;
  hide();
  emit changed();
}

void MessageLine::applyColours() {
  QPalette colours = palette();
  colours.setColor(QPalette::Window, Theme::accent());
  colours.setColor(QPalette::WindowText, textOn(Theme::accent()));
  setPalette(colours);
}

} // namespace hooptab
