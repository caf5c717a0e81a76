#include "live/BenchPanel.h"

#include "appearance/PlainLabel.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "live/JerseyButton.h"
#include "live/LiveGame.h"
#include "live/PlayerWords.h"
#include "live/SelectedPlayer.h"
#include "live/frmSUBST.h"
#include "storage/Module1.h"

#include <QAction>
#include <QBoxLayout>
#include <QGridLayout>
#include <QPainter>
#include <QPushButton>
#include <QStackedLayout>
#include <QToolButton>

#include <bit>

namespace hooptab {

namespace {

constexpr int kSubstitution = 1561;
constexpr int kSubstitutionTip = 1945;
constexpr int kSeveral = 1946;
constexpr int kSeveralTip = 1947;
constexpr int kAllOut = 1948;
constexpr int kAllOutTip = 1949;
constexpr int kPending = 2496;

constexpr int kLeastWidth = 250;
constexpr int kColumns = 5;
constexpr QSize kButton(48, 28);
constexpr int kGap = 2;
constexpr int kRowHeight = 24;

QToolButton* buttonFor(QAction& action, const char* name, QWidget* parent) {
  auto* button = new QToolButton(parent);
  button->setObjectName(QLatin1String(name));
  button->setDefaultAction(&action);
  button->setFocusPolicy(Qt::TabFocus);
  button->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  button->setFixedHeight(kRowHeight);
  return button;
}

JerseyButton::Move pendingMove(const LiveGame& game, int team, int player) {
  if (!game.pending())
    return JerseyButton::Move::None;
  const bool wasOn = (game.pending()->before[static_cast<std::size_t>(team)] >> player & 1U) != 0;
  const bool isOn = game.slotOf(team, player).has_value();
  return wasOn == isOn ? JerseyButton::Move::None
         : isOn        ? JerseyButton::Move::Comes
                       : JerseyButton::Move::Leaves;
}

} // namespace

BenchPanel::BenchPanel(const Texts& texts, QWidget* parent) : QWidget(parent), m_texts(texts) {
  setObjectName(QStringLiteral("picBENCH"));
  setMinimumWidth(kLeastWidth);
  auto* layout = new QVBoxLayout(this);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap);
  layout->addWidget(makeCommands());
  for (int team = 0; team < 2; ++team)
    layout->addWidget(makeTeam(team));
  m_selection = new SelectedPlayer(texts, this);
  connect(m_selection, &SelectedPlayer::actionAsked, this,
          [this](EventCode kind) { emit actionAsked(m_selectedTeam, m_selectedPlayer, kind); });
  connect(m_selection, &SelectedPlayer::shotAsked, this,
          [this](const QPoint& place) { emit shotAsked(m_selectedTeam, m_selectedPlayer, place); });
  m_last = new QStackedLayout; // in one place: nothing moves when a change is in the making
  m_pending = new PlainLabel(this);
  m_pending->setObjectName(QStringLiteral("lblPENDING"));
  m_pending->setAutoFillBackground(true);
  m_pending->setMargin(kGap);
  m_pending->setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Fixed);
  m_last->addWidget(m_selection);
  m_last->addWidget(m_pending);
  layout->addLayout(m_last);
  relabel(*this, texts);
  showSelection();
}

QWidget* BenchPanel::makeCommands() {
  auto* row = new QWidget(this);
  m_commands = row;
  auto* layout = new QHBoxLayout(row);
  layout->setContentsMargins(0, 0, 0, 0);
  layout->setSpacing(kGap * 2);
  const auto addCommand = [&](const char* name, int text, int toolTip, Qt::Key key) {
    auto* action = new QAction(this);
    setTextNumber(*action, text);
    setToolTipNumber(*action, toolTip);
    action->setShortcut(key);
    action->setAutoRepeat(false);
    addAction(action);
    layout->addWidget(buttonFor(*action, name, row));
    return action;
  };
  m_substitute = addCommand("cmdSUBST", kSubstitution, kSubstitutionTip, Qt::Key_F6);
  m_substitute->setCheckable(true);
  m_several = addCommand("cmdSEVERAL", kSeveral, kSeveralTip, Qt::Key_F4);
  connect(m_substitute, &QAction::toggled, this, [this] {
    if (m_game != nullptr)
      showGame(*m_game); // who can be dragged
    showMode();
  });
  connect(m_several, &QAction::triggered, this, &BenchPanel::askSeveral);
  return row;
}

QWidget* BenchPanel::makeTeam(int team) {
  const auto t = static_cast<std::size_t>(team);
  auto* roster = new QWidget(this);
  m_rosters[t] = roster;
  auto* grid = new QGridLayout(roster);
  grid->setContentsMargins(kGap, kGap, kGap, kGap);
  grid->setSpacing(0);

  m_names[t] = new PlainLabel(roster);
  m_names[t]->setObjectName(QStringLiteral("lblBENCH(%1)").arg(team));
  m_allOut[t] = new QPushButton(roster);
  m_allOut[t]->setObjectName(QStringLiteral("cmdOUTALL(%1)").arg(team));
  m_allOut[t]->setFocusPolicy(Qt::TabFocus);
  m_allOut[t]->setFixedHeight(kRowHeight - 2);
  setTextNumber(*m_allOut[t], kAllOut);
  connect(m_allOut[t], &QPushButton::clicked, this, [this, team] { emit allOutAsked(team); });
  auto* head = new QHBoxLayout;
  head->addWidget(m_names[t], 1);
  head->addWidget(m_allOut[t]);
  grid->addLayout(head, 0, 0, 1, kColumns);

  for (int column = 0; column < kColumns; ++column)
    grid->setColumnStretch(column, 1);
  for (int place = 0; place < kPlaces; ++place) {
    auto* button = new JerseyButton(jerseyButtonName(team * kPlaces + place), kButton, roster);
    connect(button, &JerseyButton::pressed, this, [this, team, place] { press(team, place + 1); });
    grid->addWidget(button, 1 + place / kColumns, place % kColumns);
    m_players[t][static_cast<std::size_t>(place)] = button;
  }
  return roster;
}

bool BenchPanel::isSubstituting() const {
  return m_substitute->isChecked();
}

void BenchPanel::press(int team, int player) {
  if (isSubstituting()) {
    emit toggled(team, player);
    return;
  }
  select(team, player);
}

void BenchPanel::askSeveral() {
  if (m_game == nullptr)
    return;
  auto* several = new frmSUBST(*m_game, m_texts, this);
  several->setAttribute(Qt::WA_DeleteOnClose);
  connect(several, &frmSUBST::clockAsked, this, &BenchPanel::clockAsked);
  connect(several, &QDialog::accepted, this, [this, several] { emit onCourtAsked(several->onCourt()); });
  several->openBeside(*this);
}

void BenchPanel::select(int team, int player) {
  m_selectedTeam = team;
  m_selectedPlayer = player;
  if (m_game != nullptr)
    showGame(*m_game);
  emit selected(team, player);
}

void BenchPanel::showPlace(const LiveGame& game, int team, int player) {
  JerseyButton& button = *m_players[static_cast<std::size_t>(team)][static_cast<std::size_t>(player - 1)];
  const RosterPlayer* entry = game.game().roster[team].player(player);
  if (entry == nullptr) {
    button.setLook({});
    return;
  }
  const bool isOnCourt = game.slotOf(team, player).has_value();
  button.setLook({.jersey = toQt(entry->jersey),
                  .colour = colourOf(game.game().details.teamColour[team]),
                  .isFilled = isOnCourt,
                  .isFouledOut = game.isFouledOut(team, player),
                  .isSelected = isSelected(team, player),
                  .move = pendingMove(game, team, player)});
  // In substitution mode the press itself puts a player in, so that nothing is left to drag.
  const bool canBeDragged = !isOnCourt && !isSubstituting();
  button.setDragText(canBeDragged ? QStringLiteral("%1-%2").arg(team).arg(player) : QString());
  showPlayerWords(button, game, team, player, m_texts);
}

void BenchPanel::showGame(const LiveGame& game) {
  m_game = &game;
  const bool canRecord = game.canRecord();
  m_substitute->setEnabled(canRecord);
  m_several->setEnabled(canRecord);
  for (int team = 0; team < 2; ++team) {
    const auto t = static_cast<std::size_t>(team);
    const GameDetails& details = game.game().details;
    m_names[t]->setText(toQt(details.abbreviation[team]));
    m_names[t]->setToolTip(toQt(details.name[team]));
    m_allOut[t]->setEnabled(canRecord && game.onCourt()[t] != 0);
    m_allOut[t]->setToolTip(toQt(m_texts.withPlaceholder(kAllOutTip, details.name[team])));
    m_allOut[t]->setAccessibleName(m_allOut[t]->toolTip());
    for (int player = 1; player <= kPlaces; ++player)
      showPlace(game, team, player);
  }
  showSelection();
  showPending();
}

// "4 of 5 on court: who comes in? (05:23)"
void BenchPanel::showPending() {
  const auto& pending = m_game->pending();
  if (pending) {
    std::string counts;
    for (std::size_t team = 0; team < 2; ++team) {
      const OnCourt now = m_game->onCourt();
      if (now[team] != pending->before[team])
        counts += (counts.empty() ? "" : ", ") + m_game->game().details.abbreviation[team] + " " +
                  std::to_string(std::popcount(now[team]));
    }
    m_pending->setText(toQt(Module1::withPlaceholder(m_texts.withPlaceholder(kPending, counts),
                                                     Module1::clockText(pending->clockSeconds), "YYY")));
    QPalette colours = palette();
    colours.setColor(QPalette::Window, Theme::accent());
    colours.setColor(QPalette::WindowText, textOn(Theme::accent()));
    m_pending->setPalette(colours);
  } else {
    m_pending->clear();
  }
  m_pending->setToolTip(m_pending->text());
  m_last->setCurrentIndex(pending ? 1 : 0);
}

void BenchPanel::setTurned(bool isTurned) {
  auto* column = static_cast<QVBoxLayout*>(layout());
  column->insertWidget(1, m_rosters[isTurned ? 1 : 0]);
  column->insertWidget(2, m_rosters[isTurned ? 0 : 1]);
}

void BenchPanel::showTime(const LiveGame& game) {
  for (int team = 0; team < 2; ++team) {
    for (int player = 1; player <= kPlaces; ++player) {
      if (game.slotOf(team, player))
        showPlayerWords(*m_players[static_cast<std::size_t>(team)][static_cast<std::size_t>(player - 1)],
                        game, team, player, m_texts);
    }
  }
}

void BenchPanel::showSelection() {
  if (m_game != nullptr)
    m_selection->showPlayer(*m_game, m_selectedTeam, m_selectedPlayer);
  else
    m_selection->showNobody();
}

void BenchPanel::showMode() {
  QPalette colours = palette();
  if (isSubstituting()) {
    colours.setColor(QPalette::Button, Theme::accent());
    colours.setColor(QPalette::ButtonText, textOn(Theme::accent()));
  }
  m_commands->findChild<QToolButton*>(QStringLiteral("cmdSUBST"))->setPalette(colours);
  update(); // the frame
}

void BenchPanel::relabelPanel() {
  if (m_game != nullptr)
    showGame(*m_game);
  else
    showSelection();
}

void BenchPanel::applyColours() {
  relabelPanel();
  showMode();
  const QList<JerseyButton*> buttons = findChildren<JerseyButton*>();
  for (JerseyButton* button : buttons)
    button->update();
}

// A frame around the rosters says that a click substitutes.
void BenchPanel::paintEvent(QPaintEvent* event) {
  QWidget::paintEvent(event);
  if (!isSubstituting())
    return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(Theme::accent(), 2));
  const QRect rosters = m_rosters[0]->geometry().united(m_rosters[1]->geometry());
  painter.drawRoundedRect(QRectF(rosters).adjusted(1, 1, -1, -1), 4, 4);
}

} // namespace hooptab
