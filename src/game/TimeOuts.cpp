#include "game/TimeOuts.h"

#include "game/RuleSets.h"

#include <algorithm>
#include <limits>

namespace hooptab {

namespace {

// A limit that takes part in what is left: how many of its kind were taken, and how many may be.
class Least {
 public:
  void limit(int taken, int most) {
    if (most - taken >= m_result.left)
      return;
    m_result = {taken, most - taken};
  }
  [[nodiscard]] TimeOuts result() const { return {m_result.taken, std::max(m_result.left, 0)}; }

 private:
  TimeOuts m_result = {0, std::numeric_limits<int>::max()};
};

} // namespace

TimeOutCount::TimeOutCount(const GameDetails& details)
    : m_set(ruleSetOf(details.ruleSet)),
      m_periods(details.periods > 0 || m_set == nullptr ? details.periods : m_set->periods),
      m_hasTime(details.minutesPerPeriod > 0) {}

void TimeOutCount::take(const GameEvent& event) {
  if (m_set == nullptr || event.code != EventCode::XTO || event.isDeleted || !event.player.team)
    return;
  OfTeam& team = m_taken[*event.player.team];
  ++(event.period <= m_periods ? team.inHalf[halfOf(event.period)] : team.inOvertimes);
  OfPeriod& period = team.inPeriod[event.period];
  ++period.all;
  period.inLastSeconds += event.clockSeconds <= m_set->timeOuts.lastSeconds ? 1 : 0;
}

std::optional<TimeOuts> TimeOutCount::of(Side team, int period, int clockSeconds) const {
  if (m_set == nullptr)
    return std::nullopt;
  const TimeOutRules& rules = m_set->timeOuts;
  const OfTeam& taken = m_taken[team];
  const auto found = taken.inPeriod.find(period);
  const OfPeriod inPeriod = found == taken.inPeriod.end() ? OfPeriod() : found->second;
  const int inGame = taken.inHalf[0] + taken.inHalf[1];
  Least least;
  if (period > m_periods) {
    if (rules.isKept)
      least.limit(inGame + taken.inOvertimes, rules.inGame + rules.inOvertime * (period - m_periods));
    else
      least.limit(inPeriod.all, rules.inOvertime);
    return least.result();
  }
  least.limit(taken.inHalf[halfOf(period)], rules.inHalf[halfOf(period)]);
  if (rules.inGame > 0)
    least.limit(inGame, rules.inGame);
  if (period < m_periods)
    return least.result();
  if (rules.inLastPeriod > 0)
    least.limit(inPeriod.all, rules.inLastPeriod);
  // The clock of a game without time tells nothing.
  if (rules.inLastSeconds > 0 && m_hasTime && clockSeconds <= rules.lastSeconds)
    least.limit(inPeriod.inLastSeconds, rules.inLastSeconds);
  return least.result();
}

std::optional<TimeOuts> timeOutsOf(const GameDetails& details, const EventList& events, Side team, int period,
                                   int clockSeconds, std::optional<std::size_t> before) {
  TimeOutCount count(details);
  const std::size_t end = std::min(before.value_or(events.size()), events.size());
  for (std::size_t place = 0; place < end; ++place)
    count.take(events[place]);
  return count.of(team, period, clockSeconds);
}

} // namespace hooptab
