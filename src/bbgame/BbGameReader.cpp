#include "bbgame/BbGameReader.h"

#include "bbgame/BbGamePlays.h"
#include "bbgame/BbGameWords.h"
#include "foreign/ClockForms.h"
#include "foreign/NameForms.h"

#include <algorithm>
#include <array>
#include <cstdlib>

namespace hooptab {

namespace {

constexpr std::string_view kRoot = "bbgame";

pugi::xml_node teamElement(const pugi::xml_node& bbgame, Side team) {
  for (const pugi::xml_node& element : bbgame.children("team")) {
    if (textOf(element, "vh") == bbgame::kSideLetters[team])
      return element;
  }
  return {};
}
// Among the players stands a row for what the team as a whole did.
bool isTeamRow(const pugi::xml_node& player) {
  const std::string number = textOf(player, "uni");
  return number == bbgame::kTeamNumber ||
         (number.empty() && textOf(player, "checkname") == bbgame::kTeamName);
}
std::string idOf(const pugi::xml_node& bbgame) {
  const pugi::xml_node venue = bbgame.child("venue");
  const std::string id = textOf(venue, "gameid");
  return id.empty() ? textOf(venue, "sbid") : id;
}

std::optional<int> countOf(const pugi::xml_node& stats, const char* attribute) {
  constexpr int kMost = 1'000'000; // what is beyond is no count
  const std::optional<int> count = numberOf(stats, attribute);
  return count && std::abs(*count) <= kMost ? count : std::nullopt;
}

OfficialNumbers boxOf(const pugi::xml_node& stats) {
  OfficialNumbers box;
  const auto read = [&](std::string_view name, const char* attribute) {
    if (const std::optional<int> value = countOf(stats, attribute))
      box[std::string(name)] = {*value, 0};
  };
  for (const bbgame::BoxNumber& number : bbgame::kBoxNumbers)
    read(number.name, number.attribute);
  for (const bbgame::SharedNumber& number : bbgame::kSharedNumbers)
    read(number.name, number.attribute);
  for (const auto& [name, all, threes] :
       {std::array{"FGM", "fgm", "fgm3"}, std::array{"FGA", "fga", "fga3"}}) {
    const std::optional<int> value = countOf(stats, all);
    const std::optional<int> ofThree = countOf(stats, threes);
    if (value && ofThree)
      box[name] = {*value - *ofThree, 0};
  }
  return box;
}

// Whole minutes, rounded.
OfficialNumber secondsOf(const pugi::xml_node& stats) {
  constexpr int kMinute = 60;
  constexpr int kMost = 10'000;
  return {std::clamp(numberOf(stats, "min", 0), 0, kMost) * kMinute, kMinute / 2};
}

int positionOf(const pugi::xml_node& player) {
  constexpr std::string_view kPositions = "CFG"; // as RosterPlayer numbers them
  constexpr int kNone = 9;
  const std::string position = textOf(player, "pos");
  const std::size_t found = position.empty() ? kPositions.npos : kPositions.find(position.front());
  return found == kPositions.npos ? kNone : static_cast<int>(found);
}

ForeignPlayer playerOf(const pugi::xml_node& element) {
  ForeignPlayer player;
  player.jersey = textOf(element, "uni");
  player.id = textOf(element, "code");
  if (player.id == player.jersey)
    player.id.clear();
  const std::string name = textOf(element, "name");
  player.name = givenFirst(name.empty() ? textOf(element, "checkname") : name);
  player.position = positionOf(element);
  player.isStarter = flagOf(element, "gs");
  const pugi::xml_node stats = element.child("stats");
  player.official = boxOf(stats);
  if (stats.attribute("min"))
    player.official["seconds"] = secondsOf(stats);
  return player;
}

// The team's totals count its own row as well, which is known only where it stands among the players.
void readTeamBox(const pugi::xml_node& element, ForeignTeam& team) {
  team.official = boxOf(element.child("totals").child("stats"));
  for (const char* ofPlayers : {"plusMinus", "rating"}) // of a team they mean something else
    team.official.erase(ofPlayers);
  pugi::xml_node row;
  for (const pugi::xml_node& player : element.children("player")) {
    if (isTeamRow(player) && !row)
      row = player.child("stats");
  }
  for (const bbgame::SharedNumber& number : bbgame::kSharedNumbers) {
    const auto total = team.official.find(number.name);
    const std::optional<int> own = countOf(row, number.attribute);
    if (own)
      team.official[std::string(number.ofRow)] = {*own, 0};
    if (own && total != team.official.end())
      total->second.value -= *own;
    else if (total != team.official.end())
      team.official.erase(total);
  }
  if (const std::optional<int> points = countOf(element.child("linescore"), "score"))
    team.official["points"] = {*points, 0};
  for (const pugi::xml_node& period : element.child("linescore").children("lineprd"))
    team.pointsOfPeriod.push_back(countOf(period, "score").value_or(0));
}

void readTeam(const pugi::xml_node& element, Side team, ForeignGame& game, BbGamePlays& plays) {
  ForeignTeam& read = game.teams[team];
  read.name = textOf(element, "name");
  read.id = textOf(element, "code");
  read.abbreviation = textOf(element, "id");
  readTeamBox(element, read);
  for (const pugi::xml_node& player : element.children("player")) {
    if (!isTeamRow(player) && !plays.enlist(team, playerOf(player), textOf(player, "checkname")))
      game.unknown["player"] += 1;
  }
}

void readVenue(const pugi::xml_node& bbgame, ForeignGame& game) {
  const pugi::xml_node venue = bbgame.child("venue");
  game.id = idOf(bbgame);
  game.date = isoDateOfMonthFirst(textOf(venue, "date"));
  game.place = textOf(venue, "location");
  game.competition = textOf(venue, "competitionname");
  game.attendance = textOf(venue, "attend");
  game.referees = textOf(venue.child("officials"), "text");
  for (const Side team : kSides) {
    ForeignTeam& named = game.teams[team];
    if (named.name.empty())
      named.name = textOf(venue, team == Side::Visitor ? "visname" : "homename");
    if (named.abbreviation.empty())
      named.abbreviation = textOf(venue, team == Side::Visitor ? "visid" : "homeid");
  }
}

void readRules(const pugi::xml_node& bbgame, ForeignGame& game) {
  constexpr int kMostPeriods = 20, kMostMinutes = 99;
  const pugi::xml_node rules = bbgame.child("venue").child("rules");
  const auto within = [&](const char* name, int most, int usual) {
    const int value = numberOf(rules, name, usual);
    return value >= 1 && value <= most ? value : usual;
  };
  const bool isInHalves = textOf(rules, "qh") == "H";
  game.periods = within("prds", kMostPeriods, isInHalves ? 2 : 4);
  game.minutes = within("minutes", kMostMinutes, isInHalves ? 20 : 10);
  game.overtimeMinutes = within("minutesot", kMostMinutes, game.overtimeMinutes);
  if (game.periods == 2 && game.minutes == 20 && game.overtimeMinutes == 5)
    game.ruleSet = "NCAA";
}

} // namespace

std::optional<SourcePart> recogniseBbGame(const XmlDocument& document) {
  const pugi::xml_node root = document.root();
  if (root.name() != kRoot)
    return std::nullopt;
  SourcePart part;
  part.format = GameFormat::BbGame;
  part.game = idOf(root);
  if (!part.game.empty())
    return part;
  const pugi::xml_node venue = root.child("venue");
  part.game = textOf(venue, "homeid") + '/' + textOf(venue, "visid");
  for (const pugi::xml_node& team : root.children("team")) {
    for (const pugi::xml_node& player : team.children("player")) {
      if (!isTeamRow(player))
        part.players.insert(textOf(player, "code"));
    }
  }
  return part;
}

ForeignGame readBbGame(const XmlDocument& document) {
  const pugi::xml_node root = document.root();
  ForeignGame game;
  game.format = GameFormat::BbGame;
  game.notes = document.notes();
  BbGamePlays plays(game);
  for (const Side team : kSides) {
    const pugi::xml_node element = teamElement(root, team);
    if (!element)
      throw UnreadableGame({Text::BbGameTeamMissing, std::string(bbgame::kSideLetters[team])});
    readTeam(element, team, game, plays);
  }
  readVenue(root, game);
  readRules(root, game);
  game.isFinished = flagOf(root.child("status"), "complete");
  plays.read(root);
  if (!root.child("plays").child("period"))
    game.notes.push_back({Text::BbGameNoPlays});
  return game;
}

} // namespace hooptab
