#include "foreign/ScoreFlow.h"

#include "court/CourtGeometry.h"

#include <algorithm>
#include <cmath>
#include <optional>

namespace hooptab {

namespace {

bool isInPaint(const ForeignEvent& event) {
  if (event.code == EventCode::GF3 || event.code == EventCode::GFT)
    return false;
  if (!event.place)
    return event.code != EventCode::GFG || event.detail == "LAYUP";
  const auto [x, y] = *event.place;
  return x <= court::kBoxLength && std::abs(y - court::kBasketY) <= court::kBoxWidth / 2;
}

// Whose second chance it is, and who has the ball since the other team lost it.
class Possession {
 public:
  void take(const ForeignEvent& event) {
    const std::optional<Side> team = event.doer.team;
    switch (event.code) {
    case EventCode::SOR:
    case EventCode::XOR:
      settle();
      m_secondChance = team;
      break;
    case EventCode::SDR:
    case EventCode::XDR: end(); break;
    case EventCode::STO:
    case EventCode::XTV:
      end();
      m_fromTurnover = team ? std::optional(otherSide(*team)) : std::nullopt;
      break;
    default: break;
    }
  }
  [[nodiscard]] ShotOrigin shoot(const ForeignEvent& event) {
    const bool isThrow = event.code == EventCode::GFT;
    const bool belongsToTheLast = isThrow && event.period == m_period && event.centiseconds == m_centiseconds;
    if (!belongsToTheLast)
      settle();
    const Side team = *event.doer.team;
    const ShotOrigin origin{isInPaint(event), m_secondChance == team, m_fromTurnover == team};
    if (event.isMade && (!isThrow || event.numberOfThrow == event.ofThrows)) {
      m_isOver = true; // but for the free throw that may follow a basket
      m_period = event.period;
      m_centiseconds = event.centiseconds;
    }
    return origin;
  }
  void end() {
    m_secondChance.reset();
    m_fromTurnover.reset();
    m_isOver = false;
  }

 private:
  void settle() {
    if (m_isOver)
      end();
  }
  std::optional<Side> m_secondChance;
  std::optional<Side> m_fromTurnover;
  bool m_isOver = false; // by a score, at that clock
  int m_period = 0;
  int m_centiseconds = 0;
};

bool isShot(const ForeignEvent& event) {
  const EventKind* kind = kindOf(event.code);
  return event.kind == ForeignKind::Event && kind != nullptr && kind->isShot && event.doer.team;
}

class Flow {
 public:
  explicit Flow(const ForeignGame& game) : m_game(game) {
    for (const ForeignEvent& event : game.events) {
      pass(event);
      if (const int points = pointsOf(event); points > 0)
        score(event, *event.doer.team, points);
    }
  }
  [[nodiscard]] const ScoreFlow& result() const { return m_flow; }

 private:
  [[nodiscard]] int margin() const {
    return m_flow.teams[Side::Visitor].points - m_flow.teams[Side::Home].points;
  }
  // Where the score is not level.
  [[nodiscard]] Side leader() const { return margin() > 0 ? Side::Visitor : Side::Home; }
  void pass(const ForeignEvent& event) {
    if (event.period != m_period) {
      m_period = event.period;
      m_centiseconds = (event.period > m_game.periods ? m_game.overtimeMinutes : m_game.minutes) * 6000;
      for (ScoreFlow::Team& team : m_flow.teams)
        team.pointsOfPeriod.resize(static_cast<std::size_t>(std::clamp(m_period, 0, kMostPeriods)));
    }
    int& time = margin() == 0 ? m_flow.centisecondsLevel : m_flow.teams[leader()].centisecondsLeading;
    time += m_centiseconds - event.centiseconds;
    m_centiseconds = event.centiseconds;
  }
  void score(const ForeignEvent& event, Side side, int points) {
    ScoreFlow::Team& team = m_flow.teams[side];
    team.points += points;
    if (!team.pointsOfPeriod.empty())
      team.pointsOfPeriod.back() += points;
    m_run = (m_runner == side ? m_run : 0) + points;
    m_runner = side;
    team.biggestRun = std::max(team.biggestRun, m_run);
    if (margin() == 0) {
      ++m_flow.timesLevel;
      ++team.tiesMade;
      return;
    }
    ScoreFlow::Team& ahead = m_flow.teams[leader()];
    if (std::abs(margin()) >= ahead.biggestLead) {
      ahead.biggestLead = std::abs(margin());
      ahead.biggestLeadPeriod = event.period;
      ahead.biggestLeadCentiseconds = event.centiseconds;
    }
    if (m_leader && m_leader != leader()) {
      ++m_flow.leadChanges;
      ++ahead.leadsTaken;
    }
    m_leader = leader();
  }

  static constexpr int kMostPeriods = 255;
  const ForeignGame& m_game;
  ScoreFlow m_flow;
  int m_period = 0;
  int m_centiseconds = 0;
  int m_run = 0;
  std::optional<Side> m_runner;
  std::optional<Side> m_leader; // who led last
};

} // namespace

int pointsOf(const ForeignEvent& event) {
  return isShot(event) && event.isMade ? kindOf(event.code)->points : 0;
}

std::vector<ShotOrigin> shotOrigins(const ForeignGame& game) {
  std::vector<ShotOrigin> origins(game.events.size());
  Possession possession;
  for (std::size_t i = 0; i < game.events.size(); ++i) {
    const ForeignEvent& event = game.events[i];
    if (event.kind == ForeignKind::PeriodEnd)
      possession.end();
    else if (isShot(event))
      origins[i] = event.origin.value_or(possession.shoot(event));
    else if (event.kind == ForeignKind::Event)
      possession.take(event);
  }
  return origins;
}

ScoreFlow scoreFlow(const ForeignGame& game) {
  return Flow(game).result();
}

} // namespace hooptab
