#include "live/SelectedPlayer.h"

#include "appearance/PlainLabel.h"
#include "appearance/PlainText.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "recording/LiveGame.h"
#include "settings/Settings.h"

#include <QAction>
#include <QBoxLayout>
#include <QMenu>
#include <QToolButton>

namespace hooptab {

namespace {

constexpr int kGap = 2;

} // namespace

SelectedPlayer::SelectedPlayer(const Texts& texts, QWidget* parent)
    : QWidget(parent), m_texts(texts), m_number(new PlainLabel(this)), m_name(new PlainLabel(this)),
      m_actions(new QWidget(this)) {
  auto* layout = new QHBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  m_number->setObjectName(QStringLiteral("lblNO"));
  m_number->setAlignment(Qt::AlignCenter);
  Theme::setType(*m_number, Type::Body, QFont::Bold);
  m_number->setAutoFillBackground(true);
  m_name->setObjectName(QStringLiteral("lblNom"));
  // As wide as there is room, whoever's name it is.
  m_name->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  for (QLabel* label : {m_number, m_name})
    setToolTipNumber(*label, Text::SelectedTip);
  layout->addWidget(m_number);
  layout->addWidget(m_name, 1);

  m_actions->setObjectName(QStringLiteral("picSELECTED"));
  auto* actions = new QHBoxLayout(m_actions);
  actions->setContentsMargins(0, 0, 0, 0);
  actions->setSpacing(kGap);
  actions->addWidget(makeShot());
  actions->addWidget(makeFoul("cmdSELPF", EventCode::SPF));
  actions->addWidget(makeFoul("cmdSELTF", EventCode::STF));
  m_menu = makeMenu();
  actions->addWidget(m_menu);
  layout->addWidget(m_actions);
  applyColours();
  showNobody();
}

void SelectedPlayer::applyColours() {
  const Measure& measure = Theme::measure();
  const int height = measure(24, 30);
  m_number->setFixedSize(measure(40, 50), height);
  for (QToolButton* button : m_actions->findChildren<QToolButton*>())
    button->setFixedSize(measure(30, 38), height);
}

QToolButton* SelectedPlayer::makeButton(const char* name) {
  auto* button = new QToolButton(m_actions);
  button->setObjectName(QLatin1String(name));
  button->setFocusPolicy(Qt::TabFocus);
  return button;
}

QToolButton* SelectedPlayer::makeFoul(const char* name, EventCode kind) {
  QToolButton* button = makeButton(name);
  button->setText(toQt(kindOf(kind)->shortName));
  setToolTipNumber(*button, kindOf(kind)->wordsText);
  setAccessibleNumber(*button, kindOf(kind)->wordsText);
  // On the press, like every button that records.
  connect(button, &QToolButton::pressed, this, [this, kind] { emit actionAsked(kind); });
  return button;
}

// Of one of whom it was forgotten that he came in.
QToolButton* SelectedPlayer::makeShot() {
  QToolButton* button = makeButton("cmdSELSHOT");
  button->setText(QStringLiteral("●✕"));
  setToolTipNumber(*button, Text::ShotTip);
  setAccessibleNumber(*button, Text::ShotTip);
  connect(button, &QToolButton::clicked, this,
          [this, button] { emit shotAsked(button->mapToGlobal(button->rect().bottomLeft())); });
  return button;
}

// What else a player has done before he went to the bench.
QToolButton* SelectedPlayer::makeMenu() {
  QToolButton* button = makeButton("cmdSELMORE");
  button->setText(QStringLiteral("\u2026"));
  button->setPopupMode(QToolButton::InstantPopup);
  setToolTipNumber(*button, Text::MoreTip);
  setAccessibleNumber(*button, Text::MoreTip);
  auto* menu = new QMenu(button);
  for (const EventKind& kind : eventKinds()) {
    if (kind.isShot || kind.isTeamFoul)
      continue;
    QAction* action = menu->addAction(QString());
    action->setData(static_cast<int>(kind.code));
    connect(action, &QAction::triggered, this, [this, code = kind.code] { emit actionAsked(code); });
  }
  button->setMenu(menu);
  return button;
}

void SelectedPlayer::showPlayer(const LiveGame& game, Side team, int player) {
  const RosterPlayer* entry = game.game().roster[team].player(player);
  if (entry == nullptr)
    return showNobody();
  const QColor colour = colourOf(game.game().details.teamColour[team]);
  QPalette colours = palette();
  colours.setColor(QPalette::Window, colour);
  colours.setColor(QPalette::WindowText, textOn(colour));
  m_number->setPalette(colours);
  m_number->setText(toQt(entry->jersey));
  m_name->setText(toQt(entry->name));
  m_name->setForegroundRole(QPalette::WindowText);
  for (QAction* action : m_menu->menu()->actions()) {
    const auto code = static_cast<EventCode>(action->data().toInt());
    std::string label;
    if (code == EventCode::SU1 || code == EventCode::SU2)
      label = Settings::shownLabel(game.game().details.statisticLabel[code == EventCode::SU1 ? 0 : 1]);
    action->setText(label.empty() ? caption(m_texts, kindOf(code)->wordsText) : withoutMnemonic(toQt(label)));
  }
  m_actions->setVisible(game.canRecord() && !game.slotOf(team, player));
}

void SelectedPlayer::showNobody() {
  m_number->setPalette(palette());
  m_number->setText({});
  m_name->setText(caption(m_texts, Text::NobodySelected));
  m_name->setForegroundRole(QPalette::PlaceholderText);
  m_actions->hide();
}

} // namespace hooptab
