#include "foreign/NameForms.h"
#include "foreign/ScoreFlow.h"
#include "livedata/JsonDocument.h"
#include "livedata/NbaLiveForms.h"
#include "livedata/NbaLiveIds.h"
#include "livedata/NbaLiveWriter.h"
#include "storage/Module1.h"

#include <algorithm>
#include <set>
#include <span>

namespace hooptab {

namespace {

using namespace nba_live;

// Points of a team or a player by where they came from.
struct Origins {
  int inPaint = 0;
  int fastBreak = 0;
  int secondChance = 0;
  int fromTurnovers = 0;

  void add(const ForeignEvent& shot, const ShotOrigin& origin) {
    const int points = pointsOf(shot);
    inPaint += origin.isInPaint ? points : 0;
    fastBreak += shot.isFastBreak ? points : 0;
    secondChance += origin.isSecondChance ? points : 0;
    fromTurnovers += origin.isFromTurnover ? points : 0;
  }
};

std::optional<int> numberIn(const OfficialNumbers& official, std::string_view name) {
  const auto found = official.find(name);
  return found == official.end() ? std::nullopt : std::optional(found->second.value);
}

void writeNumbers(const OfficialNumbers& official, std::span<const BoxWord> words, OrderedJson& statistics) {
  for (const BoxWord& each : words) {
    if (const auto number = numberIn(official, each.name))
      statistics[std::string(each.word)] = *number;
  }
}

// The sum of two numbers under a name of its own, where both are known.
void writeSum(const OfficialNumbers& official, std::string_view first, std::string_view second,
              const char* name, OrderedJson& statistics) {
  const auto left = numberIn(official, first);
  const auto right = numberIn(official, second);
  if (left && right)
    statistics[name] = *left + *right;
}

void writePercent(const std::string& shots, OrderedJson& statistics) {
  if (!statistics.contains(shots + "Made") || !statistics.contains(shots + "Attempted"))
    return;
  const int attempted = statistics[shots + "Attempted"].get<int>();
  const int made = statistics[shots + "Made"].get<int>();
  statistics[shots + "Percentage"] = attempted == 0 ? 0.0 : static_cast<double>(made) / attempted;
}

// What players and teams have alike.
void writeCommon(const OfficialNumbers& official, const Origins& origins, OrderedJson& statistics) {
  writeNumbers(official, kBoxWords, statistics);
  writeSum(official, "FGM", "F3M", "fieldGoalsMade", statistics);
  writeSum(official, "FGA", "F3A", "fieldGoalsAttempted", statistics);
  for (const char* shots : {"fieldGoals", "twoPointers", "threePointers", "freeThrows"})
    writePercent(shots, statistics);
  if (const auto seconds = numberIn(official, "seconds"))
    statistics["minutes"] = clockText(*seconds * 100);
  statistics["pointsFastBreak"] = origins.fastBreak;
  statistics["pointsInThePaint"] = origins.inPaint;
  statistics["pointsSecondChance"] = origins.secondChance;
}

class BoxWriter {
 public:
  explicit BoxWriter(const ForeignGame& game);
  [[nodiscard]] OrderedJson document() const;

 private:
  void take(const ForeignEvent& event, const ShotOrigin& origin);
  void writeState(OrderedJson& game) const;
  [[nodiscard]] OrderedJson arena() const;
  [[nodiscard]] OrderedJson officials() const;
  [[nodiscard]] OrderedJson team(Side side) const;
  [[nodiscard]] OrderedJson player(const Doer& doer) const;
  [[nodiscard]] OrderedJson periods(Side team) const;
  [[nodiscard]] OrderedJson statistics(Side team) const;
  [[nodiscard]] const ForeignPlayer& of(const Doer& doer) const {
    return m_game.teams[*doer.team].players[static_cast<std::size_t>(doer.player)];
  }

  const ForeignGame& m_game;
  NbaLiveIds m_ids;
  ScoreFlow m_flow;
  // By place in the team's list.
  PerSide<std::vector<Origins>> m_players = {};
  PerSide<std::set<int>> m_onCourt = {};
  PerSide<std::set<int>> m_acted = {};
  PerSide<Origins> m_teams = {};
  PerSide<int> m_benchPoints = {};
};

BoxWriter::BoxWriter(const ForeignGame& game) : m_game(game), m_ids(game), m_flow(scoreFlow(game)) {
  for (const Side team : kSides) {
    const std::vector<ForeignPlayer>& players = game.teams[team].players;
    m_players[team].resize(players.size());
    for (std::size_t i = 0; i < players.size(); ++i) {
      if (players[i].isStarter)
        m_onCourt[team].insert(static_cast<int>(i));
    }
  }
  const std::vector<ShotOrigin> origins = shotOrigins(game);
  for (std::size_t i = 0; i < game.events.size(); ++i)
    take(game.events[i], origins[i]);
}

void BoxWriter::take(const ForeignEvent& event, const ShotOrigin& origin) {
  if (!event.doer.isPlayer())
    return;
  const Side team = *event.doer.team;
  m_acted[team].insert(event.doer.player);
  if (event.kind == ForeignKind::In)
    m_onCourt[team].insert(event.doer.player);
  else if (event.kind == ForeignKind::Out)
    m_onCourt[team].erase(event.doer.player);
  m_players[team][static_cast<std::size_t>(event.doer.player)].add(event, origin);
  m_teams[team].add(event, origin);
  m_benchPoints[team] += of(event.doer).isStarter ? 0 : pointsOf(event);
}

OrderedJson BoxWriter::document() const {
  OrderedJson game;
  game["gameId"] = m_ids.game();
  if (!m_game.date.empty()) {
    for (const char* name : {"gameTimeLocal", "gameEt"})
      game[name] = m_game.date + "T00:00:00";
  }
  writeState(game);
  if (const int attendance = Module1::wholeNumber(m_game.attendance); attendance >= 0)
    game["attendance"] = attendance;
  game["arena"] = arena();
  game["officials"] = officials();
  game["homeTeam"] = team(Side::Home);
  game["awayTeam"] = team(Side::Visitor);
  return {{"meta", {{"version", 1}, {"code", 200}}}, {"game", std::move(game)}};
}

void BoxWriter::writeState(OrderedJson& game) const {
  constexpr int kRunning = 2;
  constexpr int kFinal = 3;
  const int period = m_game.events.empty() ? 1 : m_game.events.back().period;
  game["gameStatus"] = m_game.isFinished ? kFinal : kRunning;
  game["gameStatusText"] = m_game.isFinished ? "Final" : "Q" + std::to_string(period);
  game["regulationPeriods"] = m_game.periods;
  game["period"] = period;
  game["gameClock"] = clockText(m_game.events.empty() ? 0 : m_game.events.back().centiseconds);
}

// "Spectrum Hall, Rivière-Haute"
OrderedJson BoxWriter::arena() const {
  constexpr std::string_view kBetween = ", ";
  const std::size_t at = m_game.place.rfind(kBetween);
  if (at == std::string::npos)
    return {{"arenaName", m_game.place}, {"arenaCity", ""}};
  return {{"arenaName", m_game.place.substr(0, at)},
          {"arenaCity", m_game.place.substr(at + kBetween.size())}};
}

OrderedJson BoxWriter::officials() const {
  OrderedJson officials = OrderedJson::array();
  for (std::size_t n = 1;; ++n) {
    const std::string name(Module1::trimmed(Module1::field(m_game.referees, n)));
    if (name.empty())
      return officials;
    const NameParts parts = partsOfName(name);
    officials.push_back({{"personId", n},
                         {"name", name},
                         {"nameI", shortName(name)},
                         {"firstName", parts.given},
                         {"familyName", parts.family},
                         {"assignment", "OFFICIAL" + std::to_string(n)}});
  }
}

OrderedJson BoxWriter::team(Side side) const {
  const ForeignTeam& team = m_game.teams[side];
  OrderedJson written = {{"teamId", m_ids.team(side)},
                         {"teamName", team.name},
                         {"teamCity", ""},
                         {"teamTricode", team.abbreviation},
                         {"score", m_flow.teams[side].points},
                         {"periods", periods(side)},
                         {"players", OrderedJson::array()}};
  for (std::size_t i = 0; i < team.players.size(); ++i)
    written["players"].push_back(player({side, static_cast<int>(i)}));
  written["statistics"] = statistics(side);
  return written;
}

OrderedJson BoxWriter::periods(Side team) const {
  const std::vector<int>& said = m_game.teams[team].pointsOfPeriod;
  const std::vector<int>& points = said.empty() ? m_flow.teams[team].pointsOfPeriod : said;
  OrderedJson periods = OrderedJson::array();
  for (std::size_t i = 0; i < points.size(); ++i)
    periods.push_back({{"period", i + 1},
                       {"periodType", static_cast<int>(i) < m_game.periods ? "REGULAR" : "OVERTIME"},
                       {"score", points[i]}});
  return periods;
}

OrderedJson BoxWriter::player(const Doer& doer) const {
  constexpr std::string_view kPositions = "CFG";
  const ForeignPlayer& player = of(doer);
  const Side team = *doer.team;
  const bool isCentreForwardOrGuard = player.position >= 0 && player.position < 3;
  const bool played = player.isStarter || m_acted[team].contains(doer.player) ||
                      numberIn(player.official, "seconds").value_or(0) > 0;
  const NameParts parts = partsOfName(player.name);
  const auto flag = [](bool holds) { return holds ? "1" : "0"; };
  OrderedJson written = {{"status", "ACTIVE"},
                         {"order", doer.player + 1},
                         {"personId", m_ids.player(doer)},
                         {"jerseyNum", player.jersey}};
  if (isCentreForwardOrGuard)
    written["position"] = std::string(1, kPositions[static_cast<std::size_t>(player.position)]);
  written["starter"] = flag(player.isStarter);
  written["oncourt"] = flag(m_onCourt[team].contains(doer.player));
  written["played"] = flag(played);
  OrderedJson statistics = OrderedJson::object();
  writeCommon(player.official, m_players[team][static_cast<std::size_t>(doer.player)], statistics);
  writeNumbers(player.official, kPlayerWords, statistics);
  writeSum(player.official, "OR", "DR", "reboundsTotal", statistics);
  written["statistics"] = std::move(statistics);
  written["name"] = player.name;
  written["nameI"] = shortName(player.name);
  written["firstName"] = parts.given;
  written["familyName"] = parts.family;
  return written;
}

OrderedJson BoxWriter::statistics(Side team) const {
  const OfficialNumbers& official = m_game.teams[team].official;
  const ScoreFlow::Team& flow = m_flow.teams[team];
  OrderedJson statistics = OrderedJson::object();
  writeCommon(official, m_teams[team], statistics);
  writeNumbers(official, kTeamWords, statistics);
  writeSum(official, "OR", "DR", "reboundsPersonal", statistics);
  writeSum(official, "teamRow.OR", "teamRow.DR", "reboundsTeam", statistics);
  writeSum(official, "TO", "teamRow.TO", "turnoversTotal", statistics);
  statistics["points"] = flow.points;
  statistics["pointsAgainst"] = m_flow.teams[otherSide(team)].points;
  statistics["pointsFromTurnovers"] = m_teams[team].fromTurnovers;
  statistics["benchPoints"] = m_benchPoints[team];
  statistics["biggestLead"] = flow.biggestLead;
  // One number for the game, by this form's habit.
  statistics["biggestScoringRun"] =
      std::max(m_flow.teams[Side::Visitor].biggestRun, m_flow.teams[Side::Home].biggestRun);
  statistics["leadChanges"] = m_flow.leadChanges;
  statistics["timesTied"] = m_flow.timesLevel;
  statistics["timeLeading"] = clockText(flow.centisecondsLeading);
  return statistics;
}

} // namespace

std::string writeNbaLiveBox(const ForeignGame& game) {
  return jsonText(BoxWriter(game).document());
}

} // namespace hooptab
