#include "insight/Possessions.h"

#include "game/EventDetails.h"

namespace hooptab {

namespace {

// A foul after whose free throws the ball does not change hands as after others.
bool isTechnical(const GameEvent& foul) {
  return foul.code == EventCode::STF || foul.code == EventCode::XCF;
}
bool leavesBallWithShooter(const GameEvent& foul) {
  const auto kind = foul.detail(detail_key::kKind);
  return foul.code == EventCode::SPF && (kind == "U" || kind == "D");
}

} // namespace

Possessions::Stand Possessions::take(const GameEvent& event, std::size_t place) {
  m_begun = {};
  m_isTechnicalThrow = false;
  if (event.period != m_period) {
    m_period = event.period;
    m_team.reset();
    m_end = nullptr;
  }
  const std::optional<FreeThrows::Link> link = m_throws.take(event, place);
  const std::optional<Side> team = event.player.team;
  switch (event.code) {
  case EventCode::SOR:
  case EventCode::XOR: has(*team); break;
  case EventCode::SDR:
  case EventCode::XDR:
    has(otherSide(*team));
    end(event);
    break;
  case EventCode::STO:
  case EventCode::XTV:
    has(*team);
    end(event);
    break;
  case EventCode::XJB:
    if (const auto winner = event.detail(detail_key::kWonBy); winner == "0" || winner == "1")
      has(*winner == "0" ? Side::Visitor : Side::Home);
    break;
  case EventCode::DEPART:
  case EventCode::ARRET: break; // the clock alone begins no possession: a period may end with it
  default:
    if (event.isShot())
      takeShot(event, link);
    else if (m_end != nullptr && !followsTheEnd(event))
      begin(otherSide(*m_team));
  }
  return {m_team, m_team ? m_number : 0, m_begun, m_isTechnicalThrow};
}

void Possessions::takeShot(const GameEvent& event, const std::optional<FreeThrows::Link>& link) {
  if (event.code == EventCode::GFT)
    return takeThrow(event, link);
  has(*event.player.team);
  if (event.isMade)
    end(event);
}

// Where nobody recorded how many throws there are, each may be the last: the next one takes the possession up
// again, as the throw after a made field goal does.
void Possessions::takeThrow(const GameEvent& event, const std::optional<FreeThrows::Link>& link) {
  const GameEvent* const foul =
      link && link->kind == FreeThrows::Link::Kind::OfFoul ? &m_events[link->foul] : nullptr;
  m_isTechnicalThrow = foul != nullptr && isTechnical(*foul);
  if (m_isTechnicalThrow)
    return;
  const bool goesOn = m_end != nullptr && m_end->isShot() && m_team == event.player.team &&
                      m_end->clockSeconds - event.clockSeconds <= kLongestOwed;
  if (goesOn)
    m_end = nullptr;
  else
    has(*event.player.team);
  if (foul != nullptr && leavesBallWithShooter(*foul))
    return;
  if (event.isMade && (!link || link->isLast()))
    end(event);
}

bool Possessions::followsTheEnd(const GameEvent& event) const {
  if (event.code == EventCode::SA || event.code == EventCode::SST)
    return true;
  const int since = m_end->clockSeconds - event.clockSeconds;
  // The foul on the shooter may have been called when the ball was in already.
  return since <= 0 ||
         (m_end->isShot() && isFoul(event.code) && event.player.team != m_team && since <= kLongestReaction);
}

void Possessions::has(Side team) {
  if (m_end != nullptr)
    begin(otherSide(*m_team));
  if (m_team != team)
    begin(team);
}

void Possessions::begin(Side team) {
  m_end = nullptr;
  m_team = team;
  ++m_number;
  ++m_begun[team];
}

void Possessions::end(const GameEvent& event) {
  m_end = &event;
}

} // namespace hooptab
