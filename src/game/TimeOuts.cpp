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

std::optional<TimeOuts> timeOutsOf(const GameDetails& details, const EventList& events, int team, int period,
                                   int clockSeconds, std::optional<std::size_t> before) {
  const RuleSet* const set = ruleSetOf(details.ruleSet);
  if (set == nullptr)
    return std::nullopt;
  const TimeOutRules& rules = set->timeOuts;
  const int periods = details.periods > 0 ? details.periods : set->periods;
  const auto halfOf = [periods](int ofPeriod) { return 2 * ofPeriod <= periods ? 0 : 1; };
  int inGame = 0;
  int inHalf = 0;
  int inPeriod = 0;
  int inLastSeconds = 0;
  const std::size_t end = std::min(before.value_or(events.size()), events.size());
  for (std::size_t place = 0; place < end; ++place) {
    const GameEvent& event = events[place];
    if (event.code != EventCode::XTO || event.isDeleted || event.player.team != team)
      continue;
    const bool isRegular = event.period <= periods;
    inGame += isRegular ? 1 : 0;
    inHalf += isRegular && halfOf(event.period) == halfOf(period) ? 1 : 0;
    inPeriod += event.period == period ? 1 : 0;
    inLastSeconds += event.period == period && event.clockSeconds <= rules.lastSeconds ? 1 : 0;
  }
  Least least;
  if (period > periods) {
    const int kept = rules.isKept ? std::max(rules.inGame - inGame, 0) : 0;
    // What was kept, and was taken in an earlier overtime, is not known apart from that one's own.
    least.limit(inPeriod, rules.inOvertime + kept);
    return least.result();
  }
  least.limit(inHalf, rules.inHalf[static_cast<std::size_t>(halfOf(period))]);
  if (rules.inGame > 0)
    least.limit(inGame, rules.inGame);
  if (rules.inLastPeriod > 0 && period == periods)
    least.limit(inPeriod, rules.inLastPeriod);
  // The clock of a game without time tells nothing.
  if (rules.inLastSeconds > 0 && period == periods && details.minutesPerPeriod > 0 &&
      clockSeconds <= rules.lastSeconds)
    least.limit(inLastSeconds, rules.inLastSeconds);
  return least.result();
}

} // namespace hooptab
