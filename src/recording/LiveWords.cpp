#include "recording/LiveWords.h"

#include "game/EventWords.h"
#include "game/Rules.h"
#include "recording/LiveFigures.h"
#include "storage/Placeholders.h"

#include <array>
#include <map>
#include <tuple>

namespace hooptab {

namespace {

bool counts(const GameEvent& event) {
  return event.isUnderstood && !event.isDeleted && event.isOfPlayer();
}

// French has one for the first alone.
Text ordinalOf(int number, Language language) {
  if (language == Language::French)
    return number == 1 ? Text::OrdinalFirst : Text::OrdinalLater;
  if (number % 100 / 10 == 1) // 11th to 13th, too
    return Text::OrdinalLater;
  switch (number % 10) {
  case 1: return Text::OrdinalFirst;
  case 2: return Text::OrdinalSecond;
  case 3: return Text::OrdinalThird;
  default: return Text::OrdinalLater;
  }
}

} // namespace

std::string foulWords(const LiveMoment& game, Side team, const Texts& texts) {
  const int limit = game.game().details.bonus;
  if (limit <= 0)
    return {};
  if (LiveFigures(game).isInBonus(team))
    return texts.withPlaceholder(Text::ShootTwo, EventWords(game.game(), texts).team(otherSide(team)));
  return texts.withPlaceholder(Text::ToGive, std::to_string(limit - LiveFigures(game).teamFouls(team)));
}

std::optional<ScoringRun> lastRun(const EventList& events) {
  std::optional<ScoringRun> run;
  for (std::size_t place = events.size(); place > 0; --place) {
    const GameEvent& event = events[place - 1];
    if (!counts(event) || !event.isShot() || !event.isMade)
      continue;
    if (run && run->team != event.player.team)
      break;
    run = ScoringRun{*event.player.team, (run ? run->points : 0) + event.kind()->points, place - 1};
  }
  return run;
}

std::string runText(const ScoringRun& run) {
  return std::to_string(run.points) + "\u20130";
}

std::vector<FoulNumber> foulNumbers(const Game& game) {
  std::vector<FoulNumber> numbers;
  numbers.reserve(game.events.size());
  std::map<std::tuple<Side, std::string, EventCode>, int> ofPlayer;
  PerSide<int> ofTeam = {};
  std::size_t counted = 0; // the row of the period from which on fouls are counted together
  for (const GameEvent& event : game.events) {
    FoulNumber& number = numbers.emplace_back();
    if (!counts(event) || !event.kind()->isTeamFoul)
      continue;
    if (const auto from = GameState::periodRow(firstPeriodOfFouls(game.details, event.period));
        from != counted) {
      ofTeam = {};
      counted = from;
    }
    const Side team = *event.player.team;
    const std::string_view jersey = event.player.jersey;
    const Roster& roster = game.roster[team];
    const RosterPlayer* player = roster.player(roster.entryOf(jersey));
    number.ofPlayer =
        ++ofPlayer[{team, player == nullptr ? std::string(jersey) : player->jersey, event.code}];
    number.ofTeam = ++ofTeam[team];
  }
  return numbers;
}

std::string ordinalText(int number, const Texts& texts) {
  return texts.withPlaceholder(ordinalOf(number, texts.language()), std::to_string(number));
}

std::string foulText(const FoulNumber& foul, const Texts& texts) {
  if (foul.ofPlayer == 0)
    return {};
  return withPlaceholders(texts.text(Text::OfTeam), ordinalText(foul.ofPlayer, texts),
                          std::to_string(foul.ofTeam));
}

} // namespace hooptab
