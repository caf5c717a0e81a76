#include "recording/FoulThrows.h"

#include "game/EventDetails.h"
#include "recording/LiveFigures.h"
#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr std::string_view kShooting = "S";
constexpr std::string_view kOffensive = "O"; // for which nobody shoots

} // namespace

void FoulThrows::begin(const LiveGame& game, const EventPlace& foul, Side team, int shooter) {
  const GameEvent* found = game.game().events.find(foul);
  m_isOpen = found != nullptr;
  if (!m_isOpen)
    return;
  m_foul = foul;
  m_team = team;
  m_shooter = shooter;
  m_hasKinds = found->code == EventCode::SPF;
  m_taken.clear();
  m_kind.clear();
  const auto awarded = found->detail(detail_key::kFreeThrows);
  m_awarded = awarded ? std::clamp(Module1::wholeNumber(*awarded), 1, kMost) : usualNumber(game);
  gameChanged(game);
}

int FoulThrows::usualNumber(const LiveGame& game) const {
  if (!m_hasKinds)
    return 1;
  const auto events = game.game().events.ofPeriod(m_foul.period);
  const auto foul = std::ranges::find(events, m_foul.key, &GameEvent::key);
  for (auto event = std::make_reverse_iterator(foul); event != events.rend(); ++event) {
    if (!event->isUnderstood || event->isDeleted || event->isOfTeam() || event->code == EventCode::ARRET ||
        event->code == EventCode::SA)
      continue;
    const RosterPlayer* who = game.game().roster[m_team].player(m_shooter);
    const bool isHis = event->isShot() && event->code != EventCode::GFT && who != nullptr &&
                       event->player.team == m_team && event->player.jersey == who->jersey &&
                       event->clockSeconds - foul->clockSeconds <= kLongestReaction;
    if (isHis && (event->isMade || event->code == EventCode::GF3))
      return event->isMade ? 1 : 3;
    break;
  }
  return 2;
}

void FoulThrows::gameChanged(const LiveGame& game) {
  if (!m_isOpen)
    return;
  const auto events = game.game().events.ofPeriod(m_foul.period);
  const auto foul = std::ranges::find(events, m_foul.key, &GameEvent::key);
  m_isOpen = game.canRecord() && foul != events.end() && !foul->isDeleted && foul->isUnderstood;
  if (!m_isOpen)
    return;
  m_kind = foul->detail(detail_key::kKind).value_or("");
  m_isOpen = m_kind != kOffensive;
  m_taken.clear();
  m_places.clear();
  FreeThrows throws(game.hasTime());
  const auto at = static_cast<std::size_t>(foul - events.begin());
  for (std::size_t place = 0; place < events.size(); ++place) {
    const auto link = throws.take(events[place], place);
    if (link && link->kind == FreeThrows::Link::Kind::OfFoul && link->foul == at) {
      m_taken.push_back(events[place].isMade);
      m_places.push_back(placeOf(events[place]));
    }
    const GameEvent& event = events[place];
    if (place > at && event.isUnderstood && !event.isDeleted && isBallInPlay(event))
      m_isOpen = false;
  }
  m_isOpen = m_isOpen && !isOver();
}

bool FoulThrows::isInBonus(const LiveGame& game) const {
  return hooptab::isInBonus(game.game().details, LiveFigures(game).teamFouls(otherSide(m_team)) - 1);
}

// Of a foul at the buzzer they belong to the period that it has ended.
bool FoulThrows::shoot(LiveGame& game, bool isMade) {
  const bool isThere =
      game.period() == m_foul.period || (game.endedPeriod() == m_foul.period && game.returnToEndedPeriod());
  if (!m_isOpen || !isThere)
    return false;
  LiveGame::Details details = {{detail_key::kFreeThrows, std::to_string(m_awarded)}};
  if (m_hasKinds && m_kind.empty() && !isInBonus(game))
    details.emplace_back(detail_key::kKind, kShooting);
  return game.setDetailsOf(m_foul, details) &&
         game.recordFreeThrow(m_team, m_shooter, isMade, static_cast<int>(m_taken.size()) + 1, m_awarded);
}

bool FoulThrows::setAwarded(LiveGame& game, int awarded) {
  if (!m_isOpen || awarded < 1 || awarded > kMost || awarded < static_cast<int>(m_taken.size()) ||
      !game.setDetailsOf(m_foul, {{detail_key::kFreeThrows, std::to_string(awarded)}}))
    return false;
  m_awarded = awarded;
  const std::vector<EventPlace> places = m_places; // which what hears of the change may count anew
  for (std::size_t place = 0; place < places.size(); ++place)
    (void)game.setDetailsOf(places[place], {{detail_key::kNumberOfThrow,
                                             std::to_string(place + 1) + '/' + std::to_string(awarded)}});
  return true;
}

bool FoulThrows::setKind(LiveGame& game, std::string_view kind) {
  return m_isOpen && m_hasKinds && game.setDetailsOf(m_foul, {{detail_key::kKind, std::string(kind)}});
}

} // namespace hooptab
