#include "recording/LiveFigures.h"

#include "game/Rules.h"

#include <algorithm>
#include <span>

namespace hooptab {

bool LiveFigures::isTimeOpen() const {
  return m_game.phase() == LiveGame::Phase::Running || m_game.isStopLost();
}

// What the tally will credit to those on court with the next stop.
int LiveFigures::secondsSinceLists(Side team) const {
  return isTimeOpen() ? m_game.state().lineStartClock[team] - m_game.clockSeconds() : 0;
}

// What the tally has credited, and what has passed since the player's line came on court.
int LiveFigures::secondsOnCourt(Side team, int player) const {
  const GameState& counted = m_game.state();
  const auto onCourt = std::span(counted.onCourt[team]).first(counted.onCourtCount[team]);
  const bool isOn = std::ranges::find(onCourt, static_cast<std::uint8_t>(player)) != onCourt.end();
  const int seconds = counted.players[team][static_cast<std::size_t>(player)].seconds;
  return std::max(seconds + (isOn ? secondsSinceLists(team) : 0), 0);
}

int LiveFigures::secondsOfLine(Side team) const {
  const std::size_t line = m_game.state().currentLine[team];
  return line == 0 ? 0 : std::max(m_game.state().lines[team][line].seconds + secondsSinceLists(team), 0);
}

int LiveFigures::secondsInLead(LeadState which) const {
  const LeadTracker& lead = m_game.state().lead;
  int seconds = lead.seconds[static_cast<std::size_t>(which)];
  if (isTimeOpen() && lead.state == which)
    seconds += lead.previousClock - m_game.clockSeconds();
  return std::max(seconds, 0);
}

int LiveFigures::teamFouls(Side team) const {
  return hooptab::teamFouls(m_game.game().details, m_game.state(), team, m_game.period());
}

bool LiveFigures::isInBonus(Side team) const {
  return hooptab::isInBonus(m_game.game().details, teamFouls(team));
}

bool LiveFigures::isFouledOut(Side team, int player) const {
  return hooptab::isFouledOut(
      m_game.game().details,
      PlayerFouls::of(m_game.state().players[team][static_cast<std::size_t>(player)].counters));
}

} // namespace hooptab
