#include "livedata/LiveStatsWriter.h"

#include "foreign/ScoreFlow.h"
#include "livedata/LiveStatsKinds.h"
#include "livedata/LiveStatsRows.h"
#include "storage/Module1.h"

#include <algorithm>
#include <numeric>
#include <optional>
#include <set>

namespace hooptab {

namespace {

constexpr int kWholeTeam = -1;

std::optional<int> valueOf(const OfficialNumbers& numbers, std::string_view name) {
  const auto found = numbers.find(name);
  return found == numbers.end() ? std::nullopt : std::optional(found->second.value);
}

// Their fouls are those of all kinds.
std::optional<int> columnOf(const OfficialNumbers& numbers, const LiveStatsColumn& column) {
  const std::optional<int> value = valueOf(numbers, column.ours);
  return value && column.ours == "PF" ? std::optional(*value + valueOf(numbers, "TF").value_or(0)) : value;
}

// "7:05"
std::string minutesText(int seconds) {
  const std::string text = Module1::clockText(seconds);
  return text.starts_with('0') ? text.substr(1) : text;
}

// Sums and quotients of a box score, whose columns begin with `prefix`; of what it has.
class Derived {
 public:
  Derived(OrderedJson& box, std::string prefix) : m_box(box), m_prefix(std::move(prefix)) {}
  void add() {
    addPercentage("sTwoPointers");
    addPercentage("sThreePointers");
    const int throws = addPercentage("sFreeThrows");
    if (!has("sPoints"))
      return;
    set("sFieldGoalsMade", value("sTwoPointersMade") + value("sThreePointersMade"));
    set("sFieldGoalsAttempted", value("sTwoPointersAttempted") + value("sThreePointersAttempted"));
    const int missed = addPercentage("sFieldGoals");
    const int rebounds = value("sReboundsOffensive") + value("sReboundsDefensive");
    set("sReboundsTotal", rebounds);
    const int efficiency = value("sPoints") + rebounds + value("sAssists") + value("sSteals") +
                           value("sBlocks") - missed - throws - value("sTurnovers");
    for (const char* name : {"eff_1", "eff_6", "eff_7"})
      set(name, efficiency);
    setGameScore(missed, throws);
    set("eff_5", efficiency + value("sFoulsOn") - value("sFoulsPersonal") - value("sBlocksReceived"));
  }

 private:
  [[nodiscard]] bool has(const std::string& name) const { return m_box.contains(m_prefix + name); }
  [[nodiscard]] int value(const std::string& name) const { return m_box.value(m_prefix + name, 0); }
  void set(const std::string& name, int value) { m_box[m_prefix + name] = value; }
  // In tenths.
  void setGameScore(int missed, int missedThrows) {
    const int made = value("sFieldGoalsMade");
    const int tenths = 10 * (value("sPoints") + value("sSteals") - value("sTurnovers")) + 4 * made -
                       7 * (made + missed) - 4 * (missedThrows + value("sFoulsPersonal")) +
                       7 * (value("sReboundsOffensive") + value("sAssists") + value("sBlocks")) +
                       3 * value("sReboundsDefensive");
    m_box[m_prefix + "eff_3"] = tenths / 10.0;
  }
  // How many were missed.
  int addPercentage(const std::string& shots) {
    if (!has(shots + "Attempted"))
      return 0;
    const int made = value(shots + "Made");
    const int attempted = value(shots + "Attempted");
    set(shots + "Percentage", attempted > 0 ? made * 100 / attempted : 0);
    return attempted - made;
  }
  OrderedJson& m_box;
  std::string m_prefix;
};

class FileWriting {
 public:
  explicit FileWriting(const ForeignGame& game)
      : m_game(game), m_origins(shotOrigins(game)), m_flow(scoreFlow(game)),
        m_rows(liveStatsRows(game, m_origins)) {}

  [[nodiscard]] OrderedJson file() {
    const ForeignEvent* last = m_game.events.empty() ? nullptr : &m_game.events.back();
    const int period = last != nullptr ? last->period : 1;
    const int centiseconds = last != nullptr ? last->centiseconds : m_game.minutes * 6000;
    return {{"clock", Module1::clockText(centiseconds / 100)},
            {"period", periodInLiveStats(m_game, period)},
            {"periodLength", m_game.minutes},
            {"periodType", periodTypeInLiveStats(m_game, period)},
            {"inOT", period > m_game.periods ? 1 : 0},
            {"tm", {{"1", team(Side::Home)}, {"2", team(Side::Visitor)}}},
            {"pbp", std::move(m_rows.events)},
            {"leaddata", OrderedJson::array()},
            {"disableMatch", 0},
            {"attendance", Module1::leadingNumber(m_game.attendance)},
            {"periodsMax", m_game.periods},
            {"periodLengthREGULAR", m_game.minutes},
            {"periodLengthOVERTIME", m_game.overtimeMinutes},
            {"timeline", OrderedJson::array()},
            {"scorers", {{"1", OrderedJson::array()}, {"2", OrderedJson::array()}}},
            {"totalTimeAdded", 0},
            {"totallds", leaders()},
            {"officials", officials()},
            {"othermatches", OrderedJson::array()}};
  }

 private:
  [[nodiscard]] const ForeignTeam& foreign(Side team) const { return m_game.teams[team]; }
  [[nodiscard]] const ScoreFlow::Team& flow(Side team) const { return m_flow.teams[team]; }

  [[nodiscard]] OrderedJson team(Side team) {
    const ForeignTeam& foreign = this->foreign(team);
    const int points = valueOf(foreign.official, "points").value_or(flow(team).points);
    OrderedJson json = {{"name", foreign.name},
                        {"nameInternational", foreign.name},
                        {"shortName", foreign.name},
                        {"shortNameInternational", foreign.name},
                        {"logo", ""},
                        {"code", foreign.abbreviation},
                        {"codeInternational", foreign.abbreviation},
                        {"coach", foreign.coach}};
    json["coachDetails"] = OrderedJson::object();
    addPersonTo(json["coachDetails"], foreign.coach);
    json["score"] = points;
    json["full_score"] = points;
    addTotals(json, team);
    json["pl"] = players(team);
    json["shot"] = std::move(m_rows.shots[team]);
    json["scoring"] = OrderedJson::array();
    json["lds"] = leaders();
    addPeriods(json, team);
    json["fouls"] = foulsOfLastPeriod(team);
    json["timeouts"] = 0; // as every file of the format says, whatever was taken
    return json;
  }
  void addPeriods(OrderedJson& json, Side team) const {
    const std::vector<int>& official = foreign(team).pointsOfPeriod;
    const std::vector<int>& points = official.empty() ? flow(team).pointsOfPeriod : official;
    const std::size_t regular =
        std::min(points.size(), static_cast<std::size_t>(std::max(m_game.periods, 0)));
    for (std::size_t i = 0; i < regular; ++i)
      json['p' + std::to_string(i + 1) + "_score"] = points[i];
    if (regular < points.size())
      json["ot_score"] =
          std::accumulate(points.begin() + static_cast<std::ptrdiff_t>(regular), points.end(), 0);
  }
  // Overtimes continue the last period.
  [[nodiscard]] int foulsOfLastPeriod(Side team) const {
    const int last = m_game.events.empty() ? 1 : std::min(m_game.events.back().period, m_game.periods);
    return static_cast<int>(std::ranges::count_if(m_game.events, [&](const ForeignEvent& event) {
      return event.kind == ForeignKind::Event && event.doer.team == team && event.period >= last &&
             (event.code == EventCode::SPF || event.code == EventCode::STF);
    }));
  }

  void addTotals(OrderedJson& json, Side team) const {
    const ForeignTeam& foreign = this->foreign(team);
    const int seconds =
        sumOf(team, [](const OfficialNumbers& of) { return valueOf(of, "seconds"); }).value_or(0);
    json["tot_sMinutes"] = minutesText(seconds);
    for (const LiveStatsColumn& column : kLiveStatsColumns) {
      std::optional<int> total = columnOf(foreign.official, column);
      if (!total)
        total = sumOf(team, [&](const OfficialNumbers& of) { return columnOf(of, column); });
      if (total)
        json["tot_" + std::string(column.theirs)] =
            *total + valueOf(foreign.official, column.ofTeam).value_or(0);
    }
    Derived(json, "tot_").add();
    for (const LiveStatsColumn& column : kLiveStatsTeamColumns) {
      if (const auto value = valueOf(foreign.official, column.ours))
        json[column.theirs] = *value;
    }
    json["tot_sReboundsTeam"] = valueOf(foreign.official, "teamRow.OR").value_or(0) +
                                valueOf(foreign.official, "teamRow.DR").value_or(0);
    json["tot_sFoulsTotal"] =
        json.value("tot_sFoulsPersonal", 0) + valueOf(foreign.official, "teamRow.CF").value_or(0);
    addPoints(json, "tot_", team, kWholeTeam);
    addFlow(json, team);
  }
  template <class Value>
  [[nodiscard]] std::optional<int> sumOf(Side team, Value value) const {
    std::optional<int> sum;
    for (const ForeignPlayer& player : foreign(team).players) {
      if (const std::optional<int> of = value(player.official))
        sum = sum.value_or(0) + *of;
    }
    return sum;
  }
  void addFlow(OrderedJson& json, Side team) const {
    json["tot_sPointsFromTurnovers"] =
        pointsBy(team, kWholeTeam, [&](std::size_t i) { return m_origins[i].isFromTurnover; });
    json["tot_sBenchPoints"] = pointsBy(team, kWholeTeam, [&](std::size_t i) {
      const Doer& doer = m_game.events[i].doer;
      return doer.isPlayer() && !foreign(team).players[static_cast<std::size_t>(doer.player)].isStarter;
    });
    json["tot_sTimeLeading"] = flow(team).centisecondsLeading / 6000.0;
    if (flow(team).biggestLead > 0)
      json["tot_sBiggestLead"] = flow(team).biggestLead;
    json["tot_sBiggestScoringRun"] = flow(team).biggestRun;
    json["tot_sLeadChanges"] = m_flow.leadChanges;
    json["tot_sTimesScoresLevel"] = m_flow.timesLevel;
  }
  // Of one player, or of all.
  void addPoints(OrderedJson& json, const std::string& prefix, Side team, int player) const {
    json[prefix + "sPointsSecondChance"] =
        pointsBy(team, player, [&](std::size_t i) { return m_origins[i].isSecondChance; });
    json[prefix + "sPointsFastBreak"] =
        pointsBy(team, player, [&](std::size_t i) { return m_game.events[i].isFastBreak; });
    json[prefix + "sPointsInThePaint"] =
        pointsBy(team, player, [&](std::size_t i) { return m_origins[i].isInPaint; });
  }
  template <class Counts>
  [[nodiscard]] int pointsBy(Side team, int player, Counts counts) const {
    int points = 0;
    for (std::size_t i = 0; i < m_game.events.size(); ++i) {
      const Doer& doer = m_game.events[i].doer;
      if (doer.team == team && (player == kWholeTeam || doer.player == player) && counts(i))
        points += pointsOf(m_game.events[i]);
    }
    return points;
  }

  [[nodiscard]] OrderedJson players(Side team) const {
    const std::set<int> onCourt = onCourtAtLast(team);
    OrderedJson players = OrderedJson::object();
    int place = 0;
    for (const ForeignPlayer& player : foreign(team).players) {
      OrderedJson json = OrderedJson::object();
      addBox(json, player.official);
      if (!player.official.empty())
        addPoints(json, {}, team, place);
      addPersonTo(json, player.name);
      json["active"] = onCourt.contains(place) ? 1 : 0;
      json["starter"] = player.isStarter ? 1 : 0;
      if (player.isCaptain)
        json["captain"] = 1;
      constexpr const char* kPositions[] = {"C", "F", "G"};
      json["playingPosition"] =
          player.position >= 0 && player.position <= 2 ? kPositions[player.position] : "";
      json["shirtNumber"] = player.jersey;
      json["name"] = shortName(player.name);
      players[std::to_string(++place)] = std::move(json);
    }
    return players;
  }
  static void addBox(OrderedJson& json, const OfficialNumbers& official) {
    if (official.empty())
      return;
    if (const auto seconds = valueOf(official, "seconds"))
      json["sMinutes"] = minutesText(*seconds);
    for (const LiveStatsColumn& column : kLiveStatsColumns) {
      if (const auto value = columnOf(official, column))
        json[column.theirs] = *value;
    }
    Derived(json, {}).add();
    for (const LiveStatsColumn& column : kLiveStatsPlayerColumns) {
      if (const auto value = valueOf(official, column.ours))
        json[column.theirs] = *value;
    }
  }
  [[nodiscard]] std::set<int> onCourtAtLast(Side team) const {
    std::set<int> onCourt;
    int place = 0;
    for (const ForeignPlayer& player : foreign(team).players) {
      if (player.isStarter)
        onCourt.insert(place);
      ++place;
    }
    for (const ForeignEvent& event : m_game.events) {
      if (event.doer.team != team)
        continue;
      if (event.kind == ForeignKind::In)
        onCourt.insert(event.doer.player);
      else if (event.kind == ForeignKind::Out)
        onCourt.erase(event.doer.player);
    }
    return onCourt;
  }

  [[nodiscard]] static OrderedJson leaders() {
    OrderedJson leaders = OrderedJson::object();
    for (const char* column : {"sBlocks", "sSteals", "sAssists", "sReboundsTotal", "sPoints"})
      leaders[column] = OrderedJson::array();
    return leaders;
  }
  [[nodiscard]] OrderedJson officials() const {
    OrderedJson officials = OrderedJson::object();
    const auto count = 1 + std::ranges::count(m_game.referees, ',');
    for (std::ptrdiff_t i = 1; i <= count; ++i) {
      const std::string name(Module1::trimmed(Module1::field(m_game.referees, static_cast<std::size_t>(i))));
      if (name.empty())
        continue;
      OrderedJson referee = OrderedJson::object();
      referee["name"] = name;
      addPersonTo(referee, name);
      officials["referee" + std::to_string(officials.size() + 1)] = std::move(referee);
    }
    return officials;
  }

  const ForeignGame& m_game;
  std::vector<ShotOrigin> m_origins;
  ScoreFlow m_flow;
  LiveStatsRows m_rows;
};

} // namespace

std::string writeLiveStats(const ForeignGame& game) {
  return jsonText(FileWriting(game).file());
}

} // namespace hooptab
