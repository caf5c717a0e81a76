#include "Occasions.h"

#include "game/Side.h"

#include <algorithm>
#include <bit>

namespace hooptab {

namespace {

constexpr int kSlipsOfHundred = 22; // events that have an occasion
constexpr int kOftenOfHundred = 50; // where the occasion is rare

bool counts(const GameEvent& event) {
  return event.isUnderstood && !event.isDeleted;
}

bool isFollowUp(const GameEvent& event) {
  return event.code == EventCode::SA || event.code == EventCode::SOR || event.code == EventCode::SDR;
}

} // namespace

Slip Occasions::choose(std::size_t index, Dice& dice) const {
  const GameEvent& event = m_original.events[index];
  if (event.isClock())
    return dice.chance(kOftenOfHundred) ? Slip::HeldSpace : Slip::None;
  if (isPairOfFreeThrows(index) && dice.chance(kOftenOfHundred))
    return Slip::TwoFreeThrows;
  std::vector<Slip> slips = {Slip::BesideTheMark};
  if (isFollowUp(event))
    slips = {Slip::WrongDigits, Slip::WrongDigits, Slip::EnterByHabit, Slip::HeldKey};
  else if (event.isShot() && event.code != EventCode::GFT)
    slips = {Slip::DoublePress, Slip::DoublePress, Slip::ClickOnOpening, Slip::BesideTheMark};
  return dice.chance(kSlipsOfHundred) ? dice.oneOf(slips) : Slip::None;
}

bool Occasions::isPairOfFreeThrows(std::size_t index) const {
  const GameEvent& event = m_original.events[index];
  if (event.code != EventCode::GFT || index + 1 >= m_original.events.size())
    return false;
  const GameEvent& next = m_original.events[index + 1];
  return counts(next) && next.code == event.code && next.isMade == event.isMade &&
         next.period == event.period && next.clockSeconds == event.clockSeconds &&
         next.player.team == event.player.team && next.player.jersey == event.player.jersey;
}

std::optional<OnCourt> Occasions::exchange(const GameEvent& event, const OnCourt& before) const {
  if (event.code != EventCode::ARRET)
    return std::nullopt;
  const Rosters rosters{m_original.roster[Side::Visitor], m_original.roster[Side::Home]};
  const auto wanted = onCourtOf(event, rosters);
  constexpr int kOneByOne = 2;
  int coming = 0;
  if (!wanted)
    return std::nullopt;
  for (const Side team : kSides) {
    coming += std::popcount((*wanted)[team] & ~before[team]);
    if (std::popcount((*wanted)[team]) != std::popcount(before[team]))
      return std::nullopt;
  }
  return coming > 0 && coming <= kOneByOne ? wanted : std::nullopt;
}

int Occasions::nextClock(std::size_t index) const {
  const EventList& events = m_original.events;
  const auto next =
      std::find_if(events.begin() + static_cast<std::ptrdiff_t>(index) + 1, events.end(),
                   [](const GameEvent& event) { return counts(event) && event.code != EventCode::DEPART; });
  return next != events.end() && next->period == events[index].period ? next->clockSeconds : 0;
}

bool Occasions::periodGoesOnFrom(std::size_t index) const {
  const EventList& events = m_original.events;
  return std::any_of(events.begin() + static_cast<std::ptrdiff_t>(index), events.end(),
                     [&](const GameEvent& event) {
                       return counts(event) && event.period == events[index].period && !event.isClock();
                     });
}

} // namespace hooptab
