#include "game/FreeThrows.h"

#include "game/EventDetails.h"
#include "game/Roster.h"
#include "storage/Module1.h"

#include <algorithm>
#include <cstddef>
#include <cstdlib>
#include <iterator>
#include <utility>

namespace hooptab {

namespace {

// Fouls and throws at one clock that can still belong together: more than any game has, and few enough for
// a file that no game made.
constexpr std::ptrdiff_t kMostTogether = 100;

// What can be done with the ball dead: its clock is no sign that the game went on.
bool isBeside(const GameEvent& event) {
  return event.code == EventCode::XTO || event.code == EventCode::XJB || event.code == EventCode::XAR;
}

// "2/3": which throw of how many; zeros where it is none.
std::pair<int, int> throwOf(std::string_view detail) {
  const std::size_t slash = std::min(detail.find('/'), detail.size());
  return {Module1::wholeNumber(detail.substr(0, slash)),
          Module1::wholeNumber(detail.substr(std::min(slash + 1, detail.size())))};
}

// The open award from which a player's throw is: by the throw's own number, else his own, else the first of
// which anybody said how many, else the first. Two fouls at one clock are not always shot in their order.
template <class Awards>
auto awardOf(Awards& awards, const PlayerReference& thrower, std::pair<int, int> number) {
  const auto find = [&](auto isThis) {
    return std::ranges::find_if(awards, [&](const FreeThrows::Award& award) {
      return award.team == thrower.team && award.isOpen() && isThis(award);
    });
  };
  const auto isHis = [&](const FreeThrows::Award& award) {
    return award.shooter.team == thrower.team && (award.shooter.jersey == thrower.jersey ||
                                                  Roster::areOneNumber(award.shooter.jersey, thrower.jersey));
  };
  const auto isNumbered = [&](const FreeThrows::Award& award) {
    return award.awarded == number.second && award.taken + 1 == number.first;
  };
  if (const auto own = find([&](const auto& award) { return isNumbered(award) && isHis(award); });
      own != awards.end())
    return own;
  if (const auto numbered = find(isNumbered); numbered != awards.end())
    return numbered;
  if (const auto his = find(isHis); his != awards.end())
    return his;
  const auto known = find([](const auto& award) { return award.awarded.has_value(); });
  return known != awards.end() ? known : find([](const auto&) { return true; });
}

} // namespace

bool isBallInPlay(const GameEvent& event) {
  switch (event.code) {
  case EventCode::SOR:
  case EventCode::SDR:
  case EventCode::STO:
  case EventCode::SST:
  case EventCode::SBS:
  case EventCode::XOR:
  case EventCode::XDR:
  case EventCode::XTV:
  case EventCode::DEPART: return true;
  default: return event.isShot() && event.code != EventCode::GFT;
  }
}

bool FreeThrows::isOwed() const {
  return m_isDead && std::ranges::any_of(m_now.awards,
                                         [](const Award& award) { return award.awarded && award.isOpen(); });
}

// Who records the foul before he stops the clock finds it a little later then. What is known to be owed stays
// so while the clock is stopped late or set right, as long as the ball is not in play.
void FreeThrows::move(const GameEvent& event) {
  const int passed = m_clock - event.clockSeconds;
  const bool isStopOfFoul =
      m_isDead && event.code == EventCode::ARRET && passed >= 0 && passed <= kLongestReaction;
  const bool isStillOwed = isOwed() && std::abs(passed) <= kLongestOwed && !isBallInPlay(event);
  const bool isOther = m_hasTime ? passed != 0 && !isStopOfFoul && !isStillOwed : isBallInPlay(event);
  m_ended = {};
  if (event.period != m_period || isOther)
    std::swap(m_ended, m_now);
  m_period = event.period;
  m_clock = event.clockSeconds;
  m_isDead = isFoul(event.code) || (m_isDead && !isBallInPlay(event));
}

void FreeThrows::award(const GameEvent& foul, std::size_t place) {
  Award award{.foul = place, .team = otherSide(*foul.player.team)};
  if (const auto number = foul.detail(detail_key::kFreeThrows))
    award.awarded = std::max(Module1::wholeNumber(*number), 0);
  if (const auto drawnBy = PlayerReference::read(foul.detail(detail_key::kDrawnBy).value_or("")))
    award.shooter = *drawnBy;
  const auto latest = m_now.loose.end() - std::min(std::ssize(m_now.loose), kMostTogether);
  m_now.loose.erase(std::remove_if(latest, m_now.loose.end(),
                                   [&award](const LooseThrow& loose) {
                                     const bool isOfAward = loose.team == award.team && award.isOpen();
                                     award.taken += isOfAward ? 1 : 0;
                                     return isOfAward;
                                   }),
                    m_now.loose.end());
  if (std::ssize(m_now.awards) == kMostTogether)
    m_now.awards.erase(m_now.awards.begin());
  m_now.awards.push_back(award);
}

FreeThrows::Link FreeThrows::link(const GameEvent& shot, std::size_t place) {
  const Side team = *shot.player.team;
  std::vector<Award>& awards = m_now.awards;
  const auto number = throwOf(shot.detail(detail_key::kNumberOfThrow).value_or(""));
  if (const auto open = awardOf(awards, shot.player, number); open != awards.end()) {
    ++open->taken;
    return {Link::Kind::OfFoul, open->foul, open->taken, open->awarded};
  }
  Link other;
  const auto full = std::ranges::find_if(awards.rbegin(), awards.rend(), [team](const Award& award) {
    return award.team == team && award.taken > 0;
  });
  if (full != awards.rend())
    other = {Link::Kind::BeyondAward, full->foul, full->taken + ++full->beyond, full->awarded};
  m_now.loose.push_back({place, team, other});
  return other;
}

std::optional<FreeThrows::Link> FreeThrows::take(const GameEvent& event, std::size_t place) {
  if (!event.isUnderstood || event.isDeleted || isBeside(event)) {
    m_ended = {};
    return std::nullopt;
  }
  move(event);
  if (isFoul(event.code))
    award(event, place);
  return event.code == EventCode::GFT ? std::optional(link(event, place)) : std::nullopt;
}

const FreeThrows::Award* FreeThrows::next(const PlayerReference& thrower, int period,
                                          int clockSeconds) const {
  if (period != m_period || (m_hasTime && clockSeconds != m_clock &&
                             !(isOwed() && std::abs(m_clock - clockSeconds) <= kLongestOwed)))
    return nullptr;
  const auto found = awardOf(m_now.awards, thrower, {});
  return found == m_now.awards.end() ? nullptr : &*found;
}

} // namespace hooptab
