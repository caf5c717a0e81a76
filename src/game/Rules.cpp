#include "game/Rules.h"

#include "game/EventDetails.h"
#include "game/RuleSets.h"

namespace hooptab {

int firstPeriodOfFouls(const GameDetails& details, int period) {
  return details.keepsBonus && details.periods > 0 && period > details.periods ? details.periods : period;
}

int teamFouls(const GameDetails& details, const GameState& state, Side team, int period) {
  const auto& periods = state.periods[team];
  const RuleSet* const set = ruleSetOf(details.ruleSet);
  const bool countsBench = set != nullptr && set->countsBench;
  int fouls = 0;
  for (std::size_t row = GameState::periodRow(firstPeriodOfFouls(details, period));
       row <= GameState::periodRow(period); ++row)
    fouls += periods[row].fouls + (countsBench ? periods[row].benchTechnicals : 0);
  return fouls;
}

bool isInBonus(const GameDetails& details, int fouls) {
  return details.bonus > 0 && fouls >= details.bonus;
}

bool isFouledOut(const GameDetails& details, const PlayerFouls& fouls) {
  const auto reached = [](int count, int limit) { return limit > 0 && count >= limit; };
  return reached(fouls.personal, details.personalFoulLimit) ||
         reached(fouls.technical, details.technicalFoulLimit);
}

void BenchTechnicals::take(const GameEvent& event) {
  ++all;
  ofCoach += event.detail(detail_key::kKind) == "C" ? 1 : 0;
}

BenchTechnicals benchTechnicalsOf(const EventList& events, Side team) {
  BenchTechnicals technicals;
  for (const GameEvent& event : events) {
    if (event.code == EventCode::XCF && !event.isDeleted && event.player.team == team)
      technicals.take(event);
  }
  return technicals;
}

bool isCoachOut(const GameDetails& details, const BenchTechnicals& technicals) {
  const RuleSet* const set = ruleSetOf(details.ruleSet);
  const auto isReached = [](int count, int limit) { return limit > 0 && count >= limit; };
  return set != nullptr && (isReached(technicals.ofCoach, set->coachTechnicals) ||
                            isReached(technicals.all, set->benchTechnicals));
}

bool isTeamItself(const Roster& roster) {
  constexpr int kTeamPosition = 9;
  const std::vector<RosterPlayer>& players = roster.players();
  return players.size() == 1 && players[0].jersey == "0" && players[0].position == kTeamPosition;
}

} // namespace hooptab
