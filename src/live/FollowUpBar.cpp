#include "live/FollowUpBar.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "live/JerseyButton.h"
#include "live/PlayerWords.h"

#include <QApplication>
#include <QBoxLayout>
#include <QGridLayout>
#include <QKeyEvent>
#include <QPainter>
#include <QPushButton>

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kAssistTitle = 1116;
constexpr int kNobody = 1117;
constexpr int kReboundTitle = 1118;
constexpr int kOffensive = 1119;
constexpr int kDefensive = 1120;
constexpr int kHint = 1958;

// Together as wide as a panel of the live window is at least: what lies beside it stays in reach.
constexpr QSize kButton(40, 40);
constexpr int kMargin = 5;
constexpr int kGap = 1;
constexpr int kBandMargin = 2;
constexpr int kInnerWidth = 5 * kButton.width() + 4 * kGap;

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

FollowUpBar::FollowUpBar(const Texts& texts, QWidget* parent) : QWidget(parent), m_texts(texts) {
  m_assist = makeAssist();
  m_rebound = makeRebound();
  setObjectName(QStringLiteral("FollowUp"));
  setAutoFillBackground(true);
  // A click between the buttons is no click on what lies below.
  setAttribute(Qt::WA_NoMousePropagation);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
  layout->addWidget(m_assist);
  layout->addWidget(m_rebound);
  relabel(*this, texts);
  hide();
}

FollowUpBar::~FollowUpBar() {
  qApp->removeEventFilter(this);
}

QLabel* FollowUpBar::makeTitle(QWidget* form) {
  auto* title = new PlainLabel(form);
  title->setObjectName(QStringLiteral("lblQUESTION"));
  QFont bold = title->font();
  bold.setBold(true);
  title->setFont(bold);
  return title;
}

QLabel* FollowUpBar::makeBand(QWidget* form, const QString& name) {
  auto* band = new PlainLabel(form);
  band->setObjectName(name);
  band->setAutoFillBackground(true);
  band->setMargin(kBandMargin);
  band->setFixedWidth(kInnerWidth);
  return band;
}

JerseyButton* FollowUpBar::makeButton(QWidget* form, int index) {
  auto* button = new JerseyButton(jerseyButtonName(index), kButton, form);
  connect(button, &JerseyButton::pressed, this, [this, button] {
    const auto found = std::ranges::find(m_choices, button, &Choice::button);
    if (m_isOpen && found != m_choices.end())
      choose(static_cast<std::size_t>(found - m_choices.begin()));
  });
  return button;
}

// The hint and "Nobody".
QWidget* FollowUpBar::makeEnd(QWidget* form, const char* nobodyName) {
  auto* row = new QWidget(form);
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, kGap, 0, 0);
  auto* hint = new PlainLabel(row);
  hint->setForegroundRole(QPalette::PlaceholderText);
  hint->setWordWrap(true);
  setTextNumber(*hint, kHint);
  layout->addWidget(hint, 1);
  auto* nobody = new QPushButton(row);
  nobody->setObjectName(QLatin1String(nobodyName));
  nobody->setFocusPolicy(Qt::TabFocus);
  setTextNumber(*nobody, kNobody);
  setToolTipNumber(*nobody, kHint);
  connect(nobody, &QPushButton::pressed, this, [this, nobody] {
    nobody->setDown(false);
    dismiss();
  });
  layout->addWidget(nobody);
  return row;
}

QWidget* FollowUpBar::makeAssist() {
  auto* form = new QWidget(this);
  form->setObjectName(QStringLiteral("Assist"));
  setAccessibleNumber(*form, kAssistTitle);
  auto* grid = new QGridLayout(form);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  m_titles[0] = makeTitle(form);
  grid->addWidget(m_titles[0], 0, 0, 1, kMates);
  m_shooters = makeBand(form, QStringLiteral("lblTEAM"));
  grid->addWidget(m_shooters, 1, 0, 1, kMates);
  for (int index = 0; index < kMates; ++index) {
    m_mates[static_cast<std::size_t>(index)] = makeButton(form, index);
    grid->addWidget(m_mates[static_cast<std::size_t>(index)], 2, index);
  }
  grid->addWidget(makeEnd(form, "cmdNOASS"), 3, 0, 1, kMates);
  return form;
}

QWidget* FollowUpBar::makeRebound() {
  auto* form = new QWidget(this);
  form->setObjectName(QStringLiteral("frmRebound"));
  setAccessibleNumber(*form, kReboundTitle);
  auto* grid = new QGridLayout(form);
  grid->setContentsMargins(0, 0, 0, 0);
  grid->setSpacing(kGap);
  m_titles[1] = makeTitle(form);
  grid->addWidget(m_titles[1], 0, 0, 1, kGroup);
  for (int group = 0; group < 2; ++group) {
    QLabel* label = makeBand(form, QStringLiteral("lblTYPEREBOND(%1)").arg(group));
    m_groups[static_cast<std::size_t>(group)] = label;
    grid->addWidget(label, 1 + 2 * group, 0, 1, kGroup);
    for (int place = 0; place < kGroup; ++place) {
      const int index = group * kGroup + place;
      m_rebounders[static_cast<std::size_t>(index)] = makeButton(form, index);
      grid->addWidget(m_rebounders[static_cast<std::size_t>(index)], 2 + 2 * group, place);
    }
  }
  grid->addWidget(makeEnd(form, "cmdNOREB"), 5, 0, 1, kGroup);
  return form;
}

void FollowUpBar::offer(const LiveGame& game, JerseyButton& button, int slot) {
  const int team = LiveGame::teamOf(slot);
  const int player = game.playerIn(slot);
  const RosterPlayer* const entry = game.game().roster[team].player(player);
  if (entry == nullptr)
    return;
  button.setLook({.jersey = toQt(entry->jersey),
                  .colour = colourOf(game.game().details.teamColour[team]),
                  .isFilled = true,
                  .isFouledOut = game.isFouledOut(team, player)});
  button.setEnabled(true);
  showPlayerWords(button, game, team, player, m_texts);
  m_choices.push_back({&button, slot, entry->jersey});
}

// A team's name on its colour, behind a text where there is one.
void FollowUpBar::nameTeam(const LiveGame& game, QLabel& band, int text, int team) {
  const GameDetails& details = game.game().details;
  const QString name = toQt(details.name[team]);
  const QString words = text == 0 ? name : toQt(m_texts.text(text)) + QLatin1Char(' ') + name;
  band.setText(band.fontMetrics().elidedText(words, Qt::ElideRight, kInnerWidth - 2 * kBandMargin));
  band.setToolTip(words);
  const QColor colour = colourOf(details.teamColour[team]);
  QPalette colours = palette();
  colours.setColor(QPalette::Window, colour);
  colours.setColor(QPalette::WindowText, textOn(colour));
  band.setPalette(colours);
}

void FollowUpBar::ask(const LiveGame& game, const LiveGame::FollowUps& followUps, int shooterTeam,
                      const QRect& shooterPanel) {
  dismiss();
  if (followUps.isEmpty())
    return;
  m_shooterTeam = shooterTeam;
  m_choices.clear();
  m_typed.clear();
  const auto offerAll = [&](const std::vector<int>& players, auto first, std::size_t room) {
    for (std::size_t place = 0; place < room; ++place, ++first) {
      (*first)->setLook({});
      (*first)->setEnabled(false);
      if (place < players.size())
        offer(game, **first, players[place]);
    }
  };
  const bool isAssist = !followUps.assist.empty();
  if (isAssist) {
    offerAll(followUps.assist, m_mates.begin(), kMates);
    nameTeam(game, *m_shooters, 0, shooterTeam);
  } else {
    // The defensive rebound is the more frequent one: of two equal numbers Enter takes his.
    offerAll(followUps.defensiveRebound, m_rebounders.begin() + kGroup, kGroup);
    offerAll(followUps.offensiveRebound, m_rebounders.begin(), kGroup);
    nameTeam(game, *m_groups[0], kOffensive, shooterTeam);
    nameTeam(game, *m_groups[1], kDefensive, 1 - shooterTeam);
  }
  m_assist->setVisible(isAssist);
  m_rebound->setVisible(!isAssist);
  narrow();

  adjustSize();
  const QPoint wished = parentWidget()->mapFromGlobal(shooterPanel.center()) - rect().center();
  const QSize room = parentWidget()->size() - size();
  move(std::clamp(wished.x(), 0, std::max(room.width(), 0)),
       std::clamp(wished.y(), 0, std::max(room.height(), 0)));
  raise();
  show();
  m_isOpen = true;
  qApp->installEventFilter(this);
}

void FollowUpBar::dismiss() {
  if (!m_isOpen)
    return;
  m_isOpen = false;
  qApp->removeEventFilter(this);
  hide();
  emit closed();
}

void FollowUpBar::hideEvent(QHideEvent* event) {
  QWidget::hideEvent(event);
  if (!event->spontaneous())
    dismiss(); // the window it lies over was closed
}

void FollowUpBar::choose(std::size_t choice) {
  const int slot = m_choices[choice].slot;
  const bool isAssist = !m_assist->isHidden();
  const bool isOffensive = LiveGame::teamOf(slot) == m_shooterTeam;
  dismiss();
  if (isAssist)
    emit assistChosen(slot);
  else
    emit reboundChosen(slot, isOffensive);
}

// Which buttons the number typed so far leaves, and which one Enter would take.
void FollowUpBar::narrow() {
  std::vector<std::string> jerseys;
  std::ranges::transform(m_choices, std::back_inserter(jerseys), &Choice::jersey);
  m_fitting = fittingJerseys(jerseys, m_typed);
  m_marked.reset();
  if (!m_fitting.empty() && m_fitting[0].isWhole)
    m_marked = 0;
  moveMark(0);
  const bool isAssist = !m_assist->isHidden();
  QString title = caption(m_texts, isAssist ? kAssistTitle : kReboundTitle);
  if (!m_typed.empty())
    title += QStringLiteral("  %1_").arg(toQt(m_typed));
  m_titles[isAssist ? 0 : 1]->setText(title);
}

void FollowUpBar::moveMark(int step) {
  const auto count = static_cast<int>(m_fitting.size());
  if (step != 0 && count > 0) {
    const int from = m_marked ? static_cast<int>(*m_marked) : (step > 0 ? -1 : count);
    m_marked = static_cast<std::size_t>((from + step + count) % count);
  }
  for (std::size_t choice = 0; choice < m_choices.size(); ++choice) {
    JerseyButton::Look look = m_choices[choice].button->look();
    look.isFilled = std::ranges::find(m_fitting, choice, &FittingJersey::place) != m_fitting.end();
    look.isSelected = m_marked && m_fitting[*m_marked].place == choice;
    m_choices[choice].button->setLook(look);
  }
}

// The keys that are bound come first, but for an Enter that takes what is marked.
FollowUpKey FollowUpBar::meaningOf(const QKeyEvent& event) const {
  using Kind = FollowUpKey::Kind;
  const bool isEnter = event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter;
  if (m_readKey && !(isEnter && m_marked)) {
    if (const auto bound = m_readKey(event))
      return *bound;
  }
  if ((event.modifiers() & ~(Qt::KeypadModifier | Qt::ShiftModifier)) != Qt::NoModifier)
    return {};
  if (isEnter)
    return {Kind::Take};
  if (event.key() == Qt::Key_Escape)
    return {Kind::Clear};
  return isDigit(event) ? FollowUpKey{Kind::Digit, event.key() - Qt::Key_0} : FollowUpKey{};
}

// Enter with nothing chosen is going on, as every other key is.
bool FollowUpBar::ownsKey(const QKeyEvent& event) const {
  const FollowUpKey meaning = meaningOf(event);
  switch (meaning.kind) {
  case FollowUpKey::Kind::Digit:
  case FollowUpKey::Kind::Clear: return true;
  case FollowUpKey::Kind::Take: return m_marked || !m_typed.empty() || meaning.team;
  case FollowUpKey::Kind::GoOn: break;
  }
  if (m_readKey && m_readKey(event))
    return false;
  switch (event.key()) {
  case Qt::Key_Left:
  case Qt::Key_Right: return event.modifiers() == Qt::NoModifier;
  case Qt::Key_Backspace: return !m_typed.empty();
  default: return false;
  }
}

void FollowUpBar::takeKey(const QKeyEvent& event) {
  const FollowUpKey meaning = meaningOf(event);
  switch (meaning.kind) {
  case FollowUpKey::Kind::Digit:
    takeDigit(meaning);
    if (!m_isOpen)
      emit numberTyped(event.modifiers().testFlag(Qt::KeypadModifier));
    return;
  case FollowUpKey::Kind::Take: return take(meaning.team);
  case FollowUpKey::Kind::Clear: return dismiss();
  case FollowUpKey::Kind::GoOn: break;
  }
  if (event.key() == Qt::Key_Left || event.key() == Qt::Key_Right)
    return moveMark(event.key() == Qt::Key_Left ? -1 : 1);
  m_typed.pop_back(); // Backspace, which is ours only where something is typed
  narrow();
}

// What is marked, or the player of that team with the number typed; with nothing typed nobody.
void FollowUpBar::take(std::optional<int> team) {
  const auto isMeant = [&](const FittingJersey& fitting) {
    return fitting.isWhole && LiveGame::teamOf(m_choices[fitting.place].slot) == team;
  };
  const auto found = team && !m_typed.empty() ? std::ranges::find_if(m_fitting, isMeant) : m_fitting.end();
  if (found != m_fitting.end())
    choose(found->place);
  else if (m_marked || (!m_typed.empty() && m_fitting.size() == 1))
    choose(m_fitting[m_marked.value_or(0)].place);
  else if (m_typed.empty())
    dismiss();
}

// "0" of a 00 may go on, "9" of a 09 may not.
bool FollowUpBar::isTypedToItsEnd(const FittingJersey& fitting) const {
  const std::string& jersey = m_choices[fitting.place].jersey;
  return fitting.isWhole && (jersey.size() == m_typed.size() || !jersey.starts_with(m_typed));
}

void FollowUpBar::takeDigit(const FollowUpKey& key) {
  m_typed += static_cast<char>('0' + key.digit);
  narrow();
  if (m_fitting.empty()) { // nobody's number
    m_typed.pop_back();
    narrow();
  } else if (m_fitting.size() == 1 && (!key.isWholeNumber || isTypedToItsEnd(m_fitting[0]))) {
    choose(m_fitting[0].place);
  }
}

// Sees every event of the program while it is open. Only its own keys stay here.
bool FollowUpBar::eventFilter(QObject* watched, QEvent* event) {
  auto* const widget = qobject_cast<QWidget*>(watched);
  if (widget == nullptr || !m_isOpen)
    return false;
  const QEvent::Type type = event->type();
  if (type == QEvent::MouseButtonPress || type == QEvent::MouseButtonDblClick) {
    if (widget != this && !isAncestorOf(widget))
      dismiss();
    return false;
  }
  if (type != QEvent::KeyPress && type != QEvent::ShortcutOverride)
    return false;
  auto& key = static_cast<QKeyEvent&>(*event);
  const bool isOwn = ownsKey(key) && widget->window() == window();
  if (!isOwn) {
    if (!isModifier(key.key()) && !key.isAutoRepeat())
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

void FollowUpBar::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  QPainter painter(this);
  painter.setPen(QPen(Theme::accent(), 2));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

} // namespace hooptab
