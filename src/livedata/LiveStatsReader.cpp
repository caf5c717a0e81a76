#include "livedata/LiveStatsReader.h"

#include "foreign/Encoding.h"
#include "livedata/LiveStatsEvents.h"
#include "livedata/LiveStatsKinds.h"
#include "storage/Module1.h"
#include "storage/codepage.h"

#include <algorithm>
#include <set>
#include <string>
#include <vector>

namespace hooptab {

namespace {

const Json& teamOf(const Json& file, Side team) {
  return member(member(file, "tm"), team == Side::Home ? "1" : "2");
}

// A text whose UTF-8 was taken for the western code page and encoded once more.
std::string encodedOnce(const std::string& text) {
  const std::string bytes = codepage::fromUtf8(text);
  if (bytes == text || codepage::toUtf8(bytes) != text)
    return text;
  const std::string once = asUtf8(bytes);
  return once == text ? text : once;
}

std::string fullName(const Json& person, std::string_view given, std::string_view family) {
  const std::string both = textOf(person, given) + ' ' + textOf(person, family);
  return encodedOnce(std::string(Module1::trimmed(both)));
}

// A whole number of an official table, as far as a game of ours could have it.
std::optional<OfficialNumber> officialOf(const Json& object, std::string_view name) {
  constexpr int kMost = 100'000;
  const std::optional<int> number = numberOf(member(object, name));
  return number && std::abs(*number) <= kMost ? std::optional(OfficialNumber{*number, 0}) : std::nullopt;
}

// "7:05" and "199:60".
std::optional<OfficialNumber> secondsOf(const Json& box) {
  const std::string time = textOf(box, "sMinutes");
  const int minutes = Module1::wholeNumber(Module1::field(time, 1, ':'));
  const int seconds = Module1::wholeNumber(Module1::field(time, 2, ':'));
  if (minutes < 0 || minutes > 9999 || seconds < 0 || seconds > 60)
    return std::nullopt;
  return OfficialNumber{minutes * 60 + seconds, 1};
}

int positionOf(const std::string& text) {
  constexpr std::pair<std::string_view, int> kPositions[] = {{"G", 2},  {"PG", 2}, {"SG", 2}, {"F", 1},
                                                             {"SF", 1}, {"PF", 1}, {"C", 0}};
  const auto* const found = std::ranges::find(kPositions, text, &std::pair<std::string_view, int>::first);
  return found == std::end(kPositions) ? 9 : found->second;
}

ForeignPlayer playerOf(const Json& json) {
  ForeignPlayer player;
  player.jersey = textOf(json, "shirtNumber");
  player.name = nameInLiveStats(json);
  player.position = positionOf(textOf(json, "playingPosition"));
  player.isStarter = flagOf(json, "starter");
  player.isCaptain = flagOf(json, "captain");
  for (const LiveStatsColumn& column : kLiveStatsColumns) {
    if (const auto number = officialOf(json, column.theirs))
      player.official.emplace(column.ours, *number);
  }
  for (const LiveStatsColumn& column : kLiveStatsPlayerColumns) {
    if (const auto number = officialOf(json, column.theirs))
      player.official.emplace(column.ours, *number);
  }
  if (const auto seconds = secondsOf(json))
    player.official.emplace("seconds", *seconds);
  return player;
}

// In the order of the file's numbers, as the keys of the object are not.
std::vector<ForeignPlayer> playersOf(const Json& team, std::map<int, int>& places) {
  std::map<int, const Json*> byNumber;
  for (const auto& [key, player] : member(team, "pl").items()) {
    if (const int number = Module1::wholeNumber(key); number > 0 && player.is_object())
      byNumber.emplace(number, &player);
  }
  std::vector<ForeignPlayer> players;
  for (const auto& [number, player] : byNumber) {
    places.emplace(number, static_cast<int>(players.size()));
    players.push_back(playerOf(*player));
  }
  return players;
}

OfficialNumbers officialOfTeam(const Json& team) {
  OfficialNumbers official;
  if (const auto score = officialOf(team, "score"))
    official.emplace("points", *score);
  for (const LiveStatsColumn& column : kLiveStatsTeamColumns) {
    if (const auto number = officialOf(team, column.theirs))
      official.emplace(column.ours, *number);
  }
  for (const LiveStatsColumn& column : kLiveStatsColumns) {
    auto number = officialOf(team, "tot_" + std::string(column.theirs));
    const auto ofTeam = official.find(column.ofTeam);
    if (!number || (!column.ofTeam.empty() && ofTeam == official.end()))
      continue;
    number->value -= column.ofTeam.empty() ? 0 : ofTeam->second.value;
    official.emplace(column.ours, *number);
  }
  return official;
}

// All overtimes stand together: only one can be told.
std::vector<int> pointsOfPeriods(const Json& team, const ForeignGame& game) {
  std::vector<int> points;
  for (int period = 1; period <= game.periods; ++period) {
    const auto ofPeriod = officialOf(team, 'p' + std::to_string(period) + "_score");
    if (!ofPeriod)
      return points;
    points.push_back(ofPeriod->value);
  }
  const bool hasOneOvertime = !game.events.empty() && game.events.back().period == game.periods + 1;
  if (const auto overtime = officialOf(team, "ot_score"); overtime && hasOneOvertime)
    points.push_back(overtime->value);
  return points;
}

std::string refereesOf(const Json& file) {
  std::string referees;
  for (const auto& [role, person] : member(file, "officials").items()) {
    if (!role.starts_with("referee"))
      continue;
    const std::string name = nameInLiveStats(person);
    if (!name.empty())
      referees += (referees.empty() ? "" : ", ") + name;
  }
  return referees;
}

void readTeam(const Json& team, ForeignTeam& read, std::map<int, int>& places) {
  read.name = encodedOnce(textOf(team, "name"));
  if (read.name.empty())
    read.name = encodedOnce(textOf(team, "nameInternational"));
  read.abbreviation = textOf(team, "code");
  if (const std::string shortName = encodedOnce(textOf(team, "shortName"));
      read.abbreviation.empty() && shortName != read.name) // else it says no more
    read.abbreviation = shortName;
  read.coach = encodedOnce(textOf(team, "coach"));
  read.players = playersOf(team, places);
  read.official = officialOfTeam(team);
}

int within(const Json& file, std::string_view name, int least, int most, int otherwise) {
  const int number = numberOf(file, name, otherwise);
  return number >= least && number <= most ? number : otherwise;
}

void readHead(const Json& file, ForeignGame& game) {
  game.format = GameFormat::LiveStats;
  game.periods = within(file, "periodsMax", 1, 20, 4);
  game.minutes = within(file, "periodLengthREGULAR", 1, 99, 10);
  game.overtimeMinutes = within(file, "periodLengthOVERTIME", 1, 99, 5);
  game.referees = refereesOf(file);
  if (const int attendance = numberOf(file, "attendance", 0); attendance > 0)
    game.attendance = std::to_string(attendance);
}

// The clock stood still through the last baskets of both teams, long before the end: only who reaches a score
// first can have won. The file does not say which score.
bool hasTargetScore(const ForeignGame& game) {
  const auto isBasket = [](const ForeignEvent& event) {
    const EventKind* kind = kindOf(event.code);
    return kind != nullptr && kind->isShot && event.isMade && event.code != EventCode::GFT;
  };
  const auto last = std::ranges::find_if(game.events.rbegin(), game.events.rend(), isBasket);
  if (!game.isFinished || last == game.events.rend() || last->centiseconds < 100)
    return false;
  PerSide<int> baskets = {};
  for (const ForeignEvent& event : game.events) {
    if (isBasket(event) && event.period == last->period && event.centiseconds == last->centiseconds)
      ++baskets[*event.doer.team];
  }
  return baskets[Side::Visitor] > 1 && baskets[Side::Home] > 1;
}

} // namespace

std::string nameInLiveStats(const Json& person) {
  const std::string local = fullName(person, "firstName", "familyName");
  const std::string international = fullName(person, "internationalFirstName", "internationalFamilyName");
  if (local.empty() && international.empty()) {
    const std::string name = textOf(person, "name");
    return encodedOnce(name.empty() ? textOf(person, "player") : name);
  }
  const bool isBetter =
      local.empty() || codepage::storedForm(local) != local || codepage::equalNames(local, international);
  return isBetter && !international.empty() ? international : local;
}

std::optional<SourcePart> recogniseLiveStats(const Json& file) {
  const Json& home = teamOf(file, Side::Home);
  const Json& visitors = teamOf(file, Side::Visitor);
  const bool hasTeams = home.is_object() || visitors.is_object();
  if (!hasTeams || (!member(file, "pbp").is_array() && !member(home, "pl").is_object()))
    return std::nullopt;
  SourcePart part;
  part.format = GameFormat::LiveStats;
  part.game = textOf(home, "code") + '/' + textOf(visitors, "code");
  return part;
}

ForeignGame readLiveStats(const Json& file) {
  if (!teamOf(file, Side::Home).is_object() || !teamOf(file, Side::Visitor).is_object())
    throw UnreadableGame({Text::LiveStatsNoTeams});
  if (!member(file, "pbp").is_array())
    throw UnreadableGame({Text::LiveStatsNoEvents});
  ForeignGame game;
  readHead(file, game);
  LiveStatsNumbers numbers;
  for (const Side team : kSides)
    readTeam(teamOf(file, team), game.teams[team], numbers[team]);
  readLiveStatsEvents(file, numbers, game);
  for (const Side team : kSides)
    game.teams[team].pointsOfPeriod = pointsOfPeriods(teamOf(file, team), game);
  if (hasTargetScore(game))
    game.notes.push_back({Text::LiveStatsTargetScore});
  return game;
}

} // namespace hooptab
