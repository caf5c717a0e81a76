#include "scorecard/Scoreboard.h"

#include "game/PeriodName.h"
#include "game/Rules.h"
#include "storage/Module1.h"

#include <algorithm>

namespace hooptab {

namespace {

constexpr int kSharedPeriod = static_cast<int>(GameState::kPeriodRows) - 1; // 8, for period 8 and later
constexpr std::string_view kNoTime = "--:--";

int lastPeriod(const Game& game) {
  int last = 0;
  for (const GameEvent& event : game.events)
    last = std::max(last, event.period);
  return last;
}

std::vector<Scoreboard::Period> periods(const Game& game, const GameState& state, const Texts& texts) {
  const int last = lastPeriod(game);
  const int count = std::clamp(std::max(last, game.details.periods), 1, kSharedPeriod);
  std::vector<Scoreboard::Period> result;
  for (int number = 1; number <= count; ++number) {
    Scoreboard::Period& period = result.emplace_back();
    period.isPlayed = number <= last;
    period.label = periodName(number, game.details.periods, texts);
    if (number == kSharedPeriod && last > kSharedPeriod)
      period.label += '+';
    for (const Side team : kSides) {
      const PeriodEntry& entry = state.periods[team][static_cast<std::size_t>(number)];
      period.points[team] = entry.points;
      period.fouls[team] = teamFouls(game.details, state, team, number);
      period.isInBonus[team] = isInBonus(game.details, period.fouls[team]);
    }
  }
  return result;
}

} // namespace

Scoreboard scoreboard(const CountedGame& counted, const Texts& texts) {
  const auto& [game, state] = counted;
  Scoreboard board;
  for (const Side team : kSides)
    board.teams[team] = {game.details.abbreviation[team], game.details.name[team],
                         game.details.teamColour[team], state.points(team)};
  board.periods = periods(game, state, texts);
  for (std::size_t lead = 0; lead < board.leads.size(); ++lead)
    board.leads[lead] = {Module1::clockText(state.lead.seconds[lead]), state.lead.times[lead]};
  board.hasTime = game.details.minutesPerPeriod > 0;
  board.clock = board.hasTime ? Module1::clockText(state.clockSeconds) : std::string(kNoTime);
  board.period = periodName(state.period, game.details.periods, texts);
  board.isFinished = game.details.isFinished;
  return board;
}

} // namespace hooptab
