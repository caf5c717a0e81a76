#include "game/FreeThrows.h"

#include "game/EventDetails.h"
#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

bool isFoul(const GameEvent& event) {
  return event.code == EventCode::SPF || event.code == EventCode::STF || event.code == EventCode::XCF;
}

// What nobody does while free throws are shot.
bool isInPlay(const GameEvent& event) {
  switch (event.code) {
  case EventCode::SOR:
  case EventCode::SDR:
  case EventCode::STO:
  case EventCode::SST:
  case EventCode::XOR:
  case EventCode::XDR:
  case EventCode::XTV: return true;
  default: return event.isShot() && event.code != EventCode::GFT;
  }
}

} // namespace

std::optional<FreeThrows::Link> FreeThrows::take(const GameEvent& event, std::size_t place) {
  if (!event.isUnderstood || event.isDeleted)
    return std::nullopt;
  if (event.period != m_period || (m_hasTime ? event.clockSeconds != m_clock : isInPlay(event)))
    m_awards.clear();
  m_period = event.period;
  m_clock = event.clockSeconds;
  if (isFoul(event) && event.player.team >= 0) {
    Award award{.foul = place, .team = 1 - event.player.team};
    if (const auto number = event.detail(detail_key::kFreeThrows))
      award.awarded = std::max(Module1::wholeNumber(*number), 0);
    if (const auto drawnBy = PlayerReference::read(event.detail(detail_key::kDrawnBy).value_or("")))
      award.shooter = *drawnBy;
    m_awards.push_back(award);
    return std::nullopt;
  }
  if (event.code != EventCode::GFT)
    return std::nullopt;
  const auto ofTeam = [&](const Award& award) { return award.team == event.player.team; };
  const auto open =
      std::ranges::find_if(m_awards, [&](const Award& award) { return ofTeam(award) && award.isOpen(); });
  if (open != m_awards.end()) {
    ++open->taken;
    return Link{Link::Kind::OfFoul, open->foul, open->taken, open->awarded};
  }
  const auto full = std::ranges::find_if(m_awards.rbegin(), m_awards.rend(), [&](const Award& award) {
    return ofTeam(award) && award.taken > 0;
  });
  if (full == m_awards.rend())
    return Link();
  return Link{Link::Kind::BeyondAward, full->foul, ++full->taken, full->awarded};
}

const FreeThrows::Award* FreeThrows::next(int team, int period, int clockSeconds) const {
  if (period != m_period || (m_hasTime && clockSeconds != m_clock))
    return nullptr;
  const auto found = std::ranges::find_if(
      m_awards, [team](const Award& award) { return award.team == team && award.isOpen(); });
  return found == m_awards.end() ? nullptr : &*found;
}

} // namespace hooptab
