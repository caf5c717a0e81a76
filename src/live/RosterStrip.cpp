#include "live/RosterStrip.h"

#include "appearance/ArrowFocus.h"
#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "events/JerseyButton.h"
#include "events/PlayerWords.h"
#include "recording/LiveFigures.h"
#include "recording/LiveGame.h"
#include "recording/LivePanel.h"

#include <QPainter>
#include <QPushButton>

namespace hooptab {

namespace {

constexpr int kMinute = 60;

constexpr int kTeamEdge = 4;
constexpr int kNameWidth = 78;
constexpr int kMargin = 4;
constexpr double kRadius = 7;

JerseyButton::Move pendingMove(const LiveGame& game, Side team, int player) {
  if (!game.pending())
    return JerseyButton::Move::None;
  const bool wasOn = (game.pending()->before[team] >> player & 1U) != 0;
  const bool isOn = game.slotOf(team, player).has_value();
  return wasOn == isOn ? JerseyButton::Move::None
         : isOn        ? JerseyButton::Move::Comes
                       : JerseyButton::Move::Leaves;
}

// "8 p" and "2f 15′"; a dash for one who has not played.
std::array<QString, 2> linesOf(const LiveGame& game, Side team, int player) {
  const Counters& counters = game.state().players[team][static_cast<std::size_t>(player)].counters;
  const int seconds = LiveFigures(game).secondsOnCourt(team, player);
  const int points = pointsOf(counters);
  const int fouls = counters[Counter::PF];
  if (seconds == 0 && points == 0 && fouls == 0)
    return {QStringLiteral("–"), QString()};
  const QString minutes = game.hasTime() ? QStringLiteral(" %1′").arg(seconds / kMinute) : QString();
  return {QStringLiteral("%1 p").arg(points), QStringLiteral("%1f").arg(fouls) + minutes};
}

} // namespace

RosterStrip::RosterStrip(Side team, const Texts& texts, QWidget* parent)
    : QWidget(parent), m_team(team), m_texts(texts) {
  setObjectName(QStringLiteral("picROSTER(%1)").arg(numberOf(team)));
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
  m_allOut = new QPushButton(this);
  m_allOut->setObjectName(QStringLiteral("cmdOUTALL(%1)").arg(numberOf(team)));
  setTextNumber(*m_allOut, Text::AllOut);
  connect(m_allOut, &QPushButton::clicked, this, [this] { emit allOutAsked(m_team); });
  m_add = new QPushButton(QStringLiteral("+"), this);
  m_add->setObjectName(QStringLiteral("cmdADDPLAYER(%1)").arg(numberOf(team)));
  setToolTipNumber(*m_add, Text::AddPlayer);
  setAccessibleNumber(*m_add, Text::AddPlayer);
  connect(m_add, &QPushButton::clicked, this, [this] { emit playerAsked(m_team); });
  for (int place = 0; place < kPlaces; ++place) {
    auto* button = new JerseyButton(jerseyButtonName(numberOf(team) * kPlaces + place), {}, this);
    connect(button, &JerseyButton::pressed, this, [this, place] { emit pressed(m_team, place + 1); });
    m_players[static_cast<std::size_t>(place)] = button;
  }
  std::vector<QWidget*> stops = {m_allOut};
  stops.insert(stops.end(), m_players.begin(), m_players.end());
  stops.push_back(m_add);
  new ArrowFocus(std::move(stops), this);
  hooptab::relabel(*this, texts);
}

QSize RosterStrip::sizeHint() const {
  return {Theme::measure()(1072, 1510), Theme::measure()(35, 50)};
}

void RosterStrip::showPlace(const LiveGame& game, int player, const Choice& choice) {
  JerseyButton& button = *m_players[static_cast<std::size_t>(player - 1)];
  const RosterPlayer* entry = game.game().roster[m_team].player(player);
  if (entry == nullptr) {
    m_firstFree = std::min(m_firstFree, player);
    button.setLook({});
    return;
  }
  const bool isOnCourt = game.slotOf(m_team, player).has_value();
  const bool isOut = LiveFigures(game).isFouledOut(m_team, player);
  std::array<QString, 2> lines;
  if (!isOnCourt)
    lines = linesOf(game, m_team, player);
  if (isOut && !isOnCourt)
    lines = {caption(m_texts, Text::Out).toUpper(), lines[0]};
  const LivePanel::FoulMark trouble = LivePanel::foulTrouble(game, m_team, player);
  const bool isWarned = trouble == LivePanel::FoulMark::OneLeft || trouble == LivePanel::FoulMark::EarlyTwo;
  button.setLook({.jersey = toQt(entry->jersey),
                  .lines = lines,
                  .colour = m_colour,
                  .isFilled = isOnCourt,
                  .isWarned = isWarned,
                  .isFouledOut = isOut,
                  .isSelected = choice.selected == player,
                  .move = pendingMove(game, m_team, player)});
  // In substitution mode the press itself puts a player in, so that nothing is left to drag.
  const bool canBeDragged = !isOnCourt && !choice.isSubstituting;
  button.setDragText(canBeDragged ? QStringLiteral("%1-%2").arg(numberOf(m_team)).arg(player) : QString());
  showPlayerWords(button, game, m_team, player, m_texts);
}

void RosterStrip::showGame(const LiveGame& game, const Choice& choice) {
  const GameDetails& details = game.game().details;
  const QString name = toQt(details.abbreviation[m_team]);
  const QColor colour = colourOf(details.teamColour[m_team]);
  const int free = m_firstFree;
  if (name != m_name || colour != m_colour || choice != m_choice) {
    m_name = name;
    m_colour = colour;
    m_choice = choice;
    update();
  }
  setToolTip(toQt(details.name[m_team]));
  m_allOut->setEnabled(game.canRecord() && game.onCourt()[m_team] != 0);
  m_allOut->setToolTip(toQt(m_texts.withPlaceholder(Text::AllLeave, details.name[m_team])));
  m_allOut->setAccessibleName(m_allOut->toolTip());
  m_firstFree = kPlaces + 1;
  for (int player = 1; player <= kPlaces; ++player)
    showPlace(game, player, choice);
  m_add->setVisible(m_firstFree <= kPlaces && game.canRecord());
  if (m_firstFree != free)
    layOut();
}

void RosterStrip::showTime(const LiveGame& game) {
  for (int player = 1; player <= kPlaces; ++player) {
    if (game.slotOf(m_team, player))
      showPlayerWords(*m_players[static_cast<std::size_t>(player - 1)], game, m_team, player, m_texts);
  }
}

void RosterStrip::setPlaysRight(bool playsRight) {
  m_playsRight = playsRight;
  update();
}

void RosterStrip::applyColours() {
  QFont small = Theme::font(Type::Caption, QFont::Normal);
  m_allOut->setFont(small);
  updateGeometry();
  layOut();
  for (JerseyButton* button : m_players)
    button->update();
  update();
}

QRect RosterStrip::placeRect(int place) const {
  const Measure& measure = Theme::measure();
  const int margin = measure(kMargin);
  const int left = measure(kTeamEdge) + measure(kNameWidth, 104) + 2 * margin;
  const int room = width() - left;
  const int from = left + room * place / kPlaces;
  const int next = left + room * (place + 1) / kPlaces;
  return {from, margin, next - from - measure(3, 4), height() - 2 * margin};
}

void RosterStrip::layOut() {
  const Measure& measure = Theme::measure();
  const int left = measure(kTeamEdge) + measure(kMargin);
  const int nameWidth = measure(kNameWidth, 104);
  const int buttonHeight = measure(15, 20);
  m_nameRect = QRect(left, 0, nameWidth, height() - buttonHeight - 1);
  m_allOut->setGeometry(left, height() - buttonHeight - 2, nameWidth - measure(6), buttonHeight);
  for (int place = 0; place < kPlaces; ++place)
    m_players[static_cast<std::size_t>(place)]->setGeometry(placeRect(place));
  m_add->setGeometry(placeRect(std::min(m_firstFree, kPlaces) - 1));
  update();
}

void RosterStrip::resizeEvent(QResizeEvent*) {
  layOut();
}

void RosterStrip::paintEvent(QPaintEvent*) {
  const Look& look = Theme::look();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  const QRectF card = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
  painter.setPen(m_choice.isSubstituting ? QPen(look.accent, 2) : QPen(look.line, 1));
  painter.setBrush(look.surface);
  painter.drawRoundedRect(card, kRadius, kRadius);
  painter.save();
  painter.setClipRect(QRectF(0, 0, Theme::measure()(kTeamEdge), height()));
  painter.setPen(QPen(outlineOf(m_colour, look.desk), 1));
  painter.setBrush(m_colour);
  painter.drawRoundedRect(card, kRadius, kRadius);
  painter.restore();
  painter.setPen(look.ink);
  painter.setFont(Theme::font(Type::Name));
  const QString name = painter.fontMetrics().elidedText(
      m_name, Qt::ElideRight,
      m_nameRect.width() - painter.fontMetrics().horizontalAdvance(QStringLiteral("◂ ")));
  painter.drawText(m_nameRect, Qt::AlignLeft | Qt::AlignVCenter,
                   m_playsRight ? name + QStringLiteral(" ▸") : QStringLiteral("◂ ") + name);
  painter.setPen(QPen(look.line, 1, Qt::DashLine));
  painter.setBrush(Qt::NoBrush);
  for (int place = m_firstFree; place < kPlaces; ++place)
    painter.drawRoundedRect(QRectF(placeRect(place)).adjusted(0.5, 0.5, -0.5, -0.5), 5, 5);
}

} // namespace hooptab
