#include "events/MessageLine.h"

#include "appearance/ElidedLabel.h"
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
constexpr int kGap = 10;

} // namespace

MessageLine::MessageLine(QWidget* parent)
    : QFrame(parent), m_words(new ElidedLabel(this)), m_action(new QToolButton(this)) {
  setObjectName(QStringLiteral("picSAID"));
  setAutoFillBackground(true);
  m_words->setObjectName(QStringLiteral("lblSAID"));
  m_action->setObjectName(QStringLiteral("cmdSAID"));
  m_action->setFocusPolicy(Qt::TabFocus);
  m_words->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(kGap, 0, kGap, 0);
  layout->setSpacing(kGap);
  layout->addWidget(m_words, 1);
  layout->addWidget(m_action);
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
  const Look& look = Theme::look();
  QPalette colours = palette();
  colours.setColor(QPalette::Window, look.plate);
  colours.setColor(QPalette::WindowText, look.plateText);
  setPalette(colours);
  QPalette action;
  action.setColor(QPalette::Button, look.plate);
  action.setColor(QPalette::ButtonText, lookOf(ColourScheme::Dark).accent); // the plate is dark in both
  m_action->setPalette(action);
}

} // namespace hooptab
