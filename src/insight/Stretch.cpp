#include "insight/Stretch.h"

#include "insight/GameWalk.h"
#include "insight/MarginFlow.h"
#include "storage/Module1.h"

#include <algorithm>
#include <string>

namespace hooptab {

namespace {

constexpr std::string_view kOwnKey = "999999999"; // a number, as every key, that no game comes to

class Cutter {
 public:
  Cutter(const Game& game, const Stretch& stretch) : m_game(game), m_stretch(stretch) {}

  EventList cut() {
    for (const GameEvent& event : m_game.events) {
      if (!event.isUnderstood || event.isDeleted)
        continue;
      if (m_stretch.hasEndedBefore(event.period, event.clockSeconds)) {
        m_goesOn = event.period == m_stretch.toPeriod; // else its last stop has ended the period
        break;
      }
      if (m_hasBegun || m_stretch.hasBegunBy(event.period, event.clockSeconds)) // the clock may be set back
        take(event);
      else
        followLists(event);
    }
    // Whoever is on court has played until there; where nothing follows, until the last event only.
    if (m_hasBegun && m_hasLists)
      stop(m_last->period,
           m_goesOn && m_last->period == m_stretch.toPeriod ? m_stretch.toClock : m_last->clockSeconds);
    return std::move(m_cut);
  }

 private:
  void take(const GameEvent& event) {
    if (!m_hasBegun && m_hasLists)
      stop(event.period, event.period == m_stretch.fromPeriod
                             ? std::min(m_stretch.fromClock, longestClock(event))
                             : event.clockSeconds);
    m_hasBegun = true;
    m_last = &event;
    m_cut.appendOwned(event.period, event.key, event.whole());
    followLists(event);
  }
  // The clock at which the period of the stretch's first event began.
  [[nodiscard]] int longestClock(const GameEvent& event) const {
    for (const GameEvent& each : m_game.events.ofPeriod(event.period)) {
      if (each.isUnderstood && !each.isDeleted && !each.isOfTeam())
        return std::max(event.clockSeconds, each.clockSeconds);
    }
    return event.clockSeconds;
  }
  void followLists(const GameEvent& event) {
    if (event.code != EventCode::ARRET)
      return;
    for (const Side team : kSides)
      m_lists[team] = event.onCourt(team);
    m_hasLists = true;
  }
  void stop(int period, int clockSeconds) {
    m_cut.appendOwned(period, kOwnKey,
                      Module1::clockText(clockSeconds) +
                          stopText(m_lists[Side::Visitor], m_lists[Side::Home]));
  }

  const Game& m_game;
  const Stretch& m_stretch;
  EventList m_cut;
  PerSide<std::string_view> m_lists = {};
  const GameEvent* m_last = nullptr;
  bool m_hasLists = false;
  bool m_hasBegun = false;
  bool m_goesOn = false; // the game has events behind the stretch
};

} // namespace

Stretch stretchBetween(const Game& game, int from, int to) {
  const ElapsedTime elapsed(game);
  const MarginFlow flow = marginFlowOf(game);
  if (!flow.hasTime || flow.periods.empty())
    return Stretch::ofPeriods(1, kLastPeriod);
  const auto& periods = flow.periods;
  const auto clockAt = [&](const MarginFlow::Period& period, int at) {
    return std::max(elapsed.at(period.number, 0) - at, 0);
  };
  auto first = std::ranges::find_if(periods, [&](const MarginFlow::Period& each) { return from < each.end; });
  if (first == periods.end())
    first = std::prev(periods.end());
  auto last = std::ranges::find_if(periods, [&](const MarginFlow::Period& each) { return to <= each.end; });
  if (last == periods.end())
    last = std::prev(periods.end());
  return {first->number, from <= first->begin ? Stretch::kPeriodBegin : clockAt(*first, from), last->number,
          clockAt(*last, to)};
}

Game gameOfStretch(const Game& game, const Stretch& stretch) {
  Game part = game;
  part.events = Cutter(game, stretch).cut();
  return part;
}

} // namespace hooptab
