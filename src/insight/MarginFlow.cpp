#include "insight/MarginFlow.h"

#include "insight/GameWalk.h"

#include <algorithm>
#include <cstdlib>

namespace hooptab {

namespace {

class FlowReader {
 public:
  explicit FlowReader(const Game& game) : m_game(game), m_elapsed(game) {
    m_flow.hasTime = game.details.minutesPerPeriod > 0;
  }

  MarginFlow read() {
    if (m_game.details.inputType != 0)
      return std::move(m_flow);
    std::size_t place = 0;
    int ordinal = 0;
    for (const GameEvent& event : m_game.events) {
      if (event.isUnderstood && !event.isDeleted) {
        ++ordinal;
        take(event, place, m_flow.hasTime ? m_elapsed.at(event.period, event.clockSeconds) : ordinal);
      }
      ++place;
    }
    endRun();
    return std::move(m_flow);
  }

 private:
  void take(const GameEvent& event, std::size_t place, int at) {
    if (m_flow.periods.empty() || m_flow.periods.back().number != event.period)
      begin(event.period, at);
    MarginFlow::Period& period = m_flow.periods.back();
    // One that goes on lasts until its last event so far.
    period.end = std::max(period.end, at);
    if (event.code == EventCode::XTO)
      m_flow.timeOuts.push_back({event.player.team, at, place});
    else if (event.isShot() && event.isMade)
      score(event, place, at);
  }

  void begin(int number, int at) {
    if (!m_flow.hasTime) {
      m_flow.periods.push_back({number, at, at, at});
      return;
    }
    if (!m_flow.periods.empty())
      m_flow.periods.back().end = m_flow.periods.back().full; // somebody closed it early, or not at all
    m_flow.periods.push_back({number, m_elapsed.beginOf(number), at, m_elapsed.at(number, 0)});
  }

  void score(const GameEvent& event, std::size_t place, int at) {
    const Side team = *event.player.team;
    const int points = event.kind()->points;
    const int before = m_margin;
    m_score[team] += points;
    m_margin = m_score[Side::Visitor] - m_score[Side::Home];
    m_flow.steps.push_back({place, event.period, event.clockSeconds, at, m_score});
    follow(team, points);
    if (m_margin == 0) {
      ++m_flow.timesTied;
      return;
    }
    const Side leader = m_margin > 0 ? Side::Visitor : Side::Home;
    auto& lead = m_flow.biggestLead[leader];
    if (!lead || std::abs(m_margin) >= lead->points)
      lead = {std::abs(m_margin), event.period, event.clockSeconds};
    if (m_leader && *m_leader != leader && (before == 0 || (before > 0) != (m_margin > 0)))
      m_flow.leadChanges.push_back(m_flow.steps.size() - 1);
    m_leader = leader;
  }

  void follow(Side team, int points) {
    if (m_run.points == 0 || m_run.team != team) {
      endRun();
      m_run = {team, 0, m_flow.steps.size() - 1, 0};
    }
    m_run.points += points;
    m_run.last = m_flow.steps.size() - 1;
    auto& run = m_flow.biggestRun[team];
    const MarginFlow::Step& step = m_flow.steps.back();
    if (!run || m_run.points > run->points)
      run = {m_run.points, step.period, step.clockSeconds};
  }
  void endRun() {
    if (m_run.points >= MarginFlow::kShownRun)
      m_flow.runs.push_back(m_run);
  }

  const Game& m_game;
  ElapsedTime m_elapsed;
  MarginFlow m_flow;
  PerSide<int> m_score = {};
  int m_margin = 0;
  MarginFlow::Run m_run;
  std::optional<Side> m_leader; // who led last
};

} // namespace

int MarginFlow::marginAt(int at) const {
  const auto behind = std::ranges::upper_bound(steps, at, {}, &Step::at);
  return behind == steps.begin() ? 0 : std::prev(behind)->margin();
}

MarginFlow marginFlowOf(const Game& game) {
  return FlowReader(game).read();
}

} // namespace hooptab
