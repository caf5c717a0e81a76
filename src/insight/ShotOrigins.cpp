#include "insight/ShotOrigins.h"

#include "game/EventDetails.h"
#include "insight/GameInsight.h"

namespace hooptab {

namespace {

// The box with its lines, in the whole units in which places are written: 5.8 by 4.9 m.
constexpr float kPaintLength = 77;
constexpr float kPaintTop = 67;
constexpr float kPaintBottom = 133;

bool isInPaint(const GameEvent& shot) {
  if (shot.code == EventCode::GF3 || shot.code == EventCode::GFT)
    return false;
  if (!shot.hasPlace)
    return shot.code != EventCode::GFG;
  return shot.x <= kPaintLength && shot.y >= kPaintTop && shot.y <= kPaintBottom;
}

} // namespace

OriginOfShot ShotOrigins::take(const GameEvent& event, const Possessions::Stand& stand) {
  if (event.period != m_period) {
    m_period = event.period;
    m_gained.reset();
    m_lastClock.reset();
    m_fromTurnover = m_secondChance = 0;
  }
  if (stand.number != m_possession) {
    m_possession = stand.number;
    m_gained = m_lastClock;
  }
  // A whistle after the ball has changed hands gives it to nobody anew.
  if (stand.number > 0 && !event.isClock() && event.code != EventCode::XTO && event.code != EventCode::XAR)
    m_lastClock = event.clockSeconds;
  if (event.code == EventCode::STO || event.code == EventCode::XTV)
    m_fromTurnover = stand.number + 1;
  else if (event.code == EventCode::SOR || event.code == EventCode::XOR)
    takeRebound(event, stand);
  else if (event.isShot())
    return takeShot(event, stand);
  return {};
}

void ShotOrigins::takeRebound(const GameEvent& rebound, const Possessions::Stand& stand) {
  m_before = m_secondChance;
  m_secondChance = stand.number;
  m_reboundOfThrow = m_isThrow ? std::optional(rebound.clockSeconds) : std::nullopt;
}

OriginOfShot ShotOrigins::takeShot(const GameEvent& shot, const Possessions::Stand& stand) {
  // Where the ball stays with who has scored by throws, as behind an unsportsmanlike foul, what follows is a
  // chance of its own.
  if (m_scoredAt && m_scoredAt != shot.clockSeconds && m_scoredBy == stand.number)
    m_fromTurnover = m_secondChance = 0;
  m_isThrow = shot.code == EventCode::GFT;
  m_scoredAt =
      m_isThrow && shot.isMade && !stand.isTechnicalThrow ? std::optional(shot.clockSeconds) : std::nullopt;
  m_scoredBy = stand.number;
  // Between two throws the ball is dead: such a rebound, which some write down, is no second chance.
  if (m_isThrow && m_reboundOfThrow == shot.clockSeconds)
    m_secondChance = m_before;
  m_reboundOfThrow.reset();
  OriginOfShot origin;
  origin.isInPaint = isInPaint(shot);
  origin.isFastBreak = shot.detail(detail_key::kFastBreak).has_value();
  if (stand.team != shot.player.team || stand.isTechnicalThrow)
    return origin; // a throw that only interrupts the possession
  origin.isFromTurnover = stand.number == m_fromTurnover;
  origin.isSecondChance = stand.number == m_secondChance;
  const int held = m_gained ? *m_gained - shot.clockSeconds : -1; // below 0: the clock was set back
  origin.isQuick = m_hasTime && held >= 0 && held <= GameInsight::kQuickSeconds;
  return origin;
}

std::vector<OriginOfShot> shotOriginsOf(const Game& game) {
  const bool hasTime = game.details.minutesPerPeriod > 0;
  std::vector<OriginOfShot> origins(game.events.size());
  Possessions possessions(game.events, hasTime);
  ShotOrigins shots(hasTime);
  std::size_t place = 0;
  for (const GameEvent& event : game.events) {
    if (event.isUnderstood && !event.isDeleted)
      origins[place] = shots.take(event, possessions.take(event, place));
    ++place;
  }
  return origins;
}

} // namespace hooptab
