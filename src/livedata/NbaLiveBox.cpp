#include "livedata/NbaLiveBox.h"

#include "livedata/NbaLiveForms.h"
#include "storage/CalendarDay.h"

#include <algorithm>
#include <cstdlib>
#include <span>

namespace hooptab {

namespace {

using namespace nba_live;

// What is more is a fault of the file.
constexpr int kMostPeriods = 20; // regular ones
constexpr int kMostCounted = 99'999;

// Both parts, with what stands between them where both are there.
std::string joined(const std::string& first, std::string_view between, const std::string& second) {
  return first.empty() || second.empty() ? first + second : first + std::string(between) + second;
}

std::string dateOf(const Json& game) {
  for (const std::string_view name : {"gameTimeLocal", "gameEt", "gameTimeUTC"}) {
    const std::string date = textOf(game, name).substr(0, 10);
    if (calendarDay(date))
      return date;
  }
  return {};
}

std::string refereesOf(const Json& game) {
  std::string referees;
  for (const Json& official : listOf(game, "officials"))
    referees = joined(referees, ", ", textOf(official, "name"));
  return referees;
}

// As rosters have positions, of "SF", "PG", "C".
int positionOf(std::string_view position) {
  constexpr std::string_view kLetters = "CFG";
  const std::size_t at = position.empty() ? std::string_view::npos : kLetters.find(position.back());
  constexpr int kNone = 9;
  return at == std::string_view::npos ? kNone : static_cast<int>(at);
}

void readNumbers(const Json& statistics, std::span<const BoxWord> words, OfficialNumbers& official) {
  for (const BoxWord& each : words) {
    const auto number = numberOf(member(statistics, each.word));
    if (number && std::abs(*number) <= kMostCounted)
      official[std::string(each.name)] = {*number, 0};
  }
}

// `tolerance` in seconds: the clocks of our files are whole.
void readTime(const Json& statistics, int tolerance, OfficialNumbers& official) {
  if (const auto played = centisecondsOf(textOf(statistics, "minutes")))
    official["seconds"] = {(*played + 50) / 100, tolerance};
}

ForeignPlayer readPlayer(const Json& player) {
  const Json& statistics = member(player, "statistics");
  ForeignPlayer read{.id = textOf(player, "personId"),
                     .jersey = textOf(player, "jerseyNum"),
                     .name = textOf(player, "name"),
                     .position = positionOf(textOf(player, "position")),
                     .isStarter = flagOf(player, "starter")};
  if (read.name.empty())
    read.name = joined(textOf(player, "firstName"), " ", textOf(player, "familyName"));
  readNumbers(statistics, kBoxWords, read.official);
  readNumbers(statistics, kPlayerWords, read.official);
  readTime(statistics, 1, read.official);
  return read;
}

// Everybody under contract is listed; who was not dressed for the game is not of its roster.
bool isOfRoster(const Json& player) {
  return textOf(player, "status") != "INACTIVE" || flagOf(player, "played");
}

void readTeam(const Json& box, ForeignTeam& team) {
  team.id = textOf(box, "teamId");
  team.abbreviation = textOf(box, "teamTricode");
  team.name = joined(textOf(box, "teamCity"), " ", textOf(box, "teamName"));
  if (team.name.empty())
    team.name = team.abbreviation;
  if (team.id.empty())
    throw UnreadableGame({Text::NbaLiveNoTeams});
  for (const Json& player : listOf(box, "players")) {
    if (isOfRoster(player))
      team.players.push_back(readPlayer(player));
  }
  for (const Json& period : listOf(box, "periods"))
    team.pointsOfPeriod.push_back(std::clamp(numberOf(period, "score", 0), 0, kMostCounted));
  const Json& statistics = member(box, "statistics");
  readNumbers(statistics, kBoxWords, team.official);
  readNumbers(statistics, kTeamWords, team.official);
  constexpr int kToleranceOfFive = 5;
  readTime(statistics, kToleranceOfFive, team.official);
}

} // namespace

bool isFinalBox(const Json& box) {
  constexpr int kFinal = 3;
  return numberOf(member(box, "game"), "gameStatus", 0) == kFinal;
}

void readNbaLiveBox(const Json& box, ForeignGame& game) {
  const Json& source = member(box, "game");
  game.date = dateOf(source);
  const Json& arena = member(source, "arena");
  game.place = joined(textOf(arena, "arenaName"), ", ", textOf(arena, "arenaCity"));
  game.referees = refereesOf(source);
  game.attendance = textOf(source, "attendance");
  game.periods = std::clamp(numberOf(source, "regulationPeriods", game.periods), 1, kMostPeriods);
  readTeam(member(source, "awayTeam"), game.teams[Side::Visitor]);
  readTeam(member(source, "homeTeam"), game.teams[Side::Home]);
}

} // namespace hooptab
