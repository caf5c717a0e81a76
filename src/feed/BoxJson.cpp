#include "feed/BoxJson.h"

#include "feed/InsightJson.h"
#include "feed/NumbersJson.h"
#include "scorecard/BoxScore.h"

#include <algorithm>
#include <optional>

namespace hooptab {

namespace {

void writeNumberList(JsonWriter& json, std::string_view name, const std::vector<int>& numbers) {
  json.name(name);
  json.beginArray();
  json.beginLine();
  for (const int number : numbers)
    json.value(number);
  json.endArray();
  json.endLine();
}

void writeTeamRow(JsonWriter& json, const TeamRow& row) {
  json.name("teamRow");
  json.beginObject();
  json.beginLine();
  json.member("OR", row.offensiveRebounds);
  json.member("DR", row.defensiveRebounds);
  json.member("TO", row.turnovers);
  json.member("CF", row.benchTechnicals);
  json.member("timeouts", row.timeOuts);
  json.endObject();
  json.endLine();
}

class BoxJson {
 public:
  BoxJson(JsonWriter& json, const CountedGame& counted, const BoxJsonParts& parts)
      : m_json(json), m_counted(counted), m_parts(parts), m_insight(insightOf(counted.game)),
        m_flow(marginFlowOf(counted.game)) {}

  void write() {
    m_json.name("teams");
    m_json.beginArray();
    for (const Side team : kSides)
      writeTeam(team);
    m_json.endArray();
    m_json.name("lead");
    m_json.beginObject();
    const LeadTracker& lead = m_counted.state.lead;
    std::vector<int> seconds(lead.seconds.begin(), lead.seconds.end());
    for (int& time : seconds)
      time = std::max(time, 0);
    writeNumberList(m_json, "seconds", seconds);
    writeNumberList(m_json, "times", {lead.times.begin(), lead.times.end()});
    m_json.endObject();
    writeFlowCounts(m_json, m_insight, m_flow);
  }

 private:
  void writeTeam(Side team) {
    const Game& game = m_counted.game;
    const GameState& state = m_counted.state;
    std::vector<int> points;
    std::vector<int> fouls;
    for (int period = 1; period <= shownPeriods(game); ++period) {
      const PeriodEntry& entry = state.periods[team][GameState::periodRow(period)];
      points.push_back(entry.points);
      fouls.push_back(entry.fouls);
    }
    m_json.beginObject();
    m_json.member("abb", game.details.abbreviation[team]);
    m_json.member("name", game.details.name[team]);
    m_json.member("points", state.points(team));
    writeNumberList(m_json, "periods", points);
    writeNumberList(m_json, "fouls", fouls);
    writeRows(team, BoxView::Players);
    if (m_parts.hasLines)
      writeRows(team, BoxView::Lines);
    writeTeamRow(m_json, state.teamRows[team]);
    writeTeamInsight(m_json, m_insight, m_flow, m_counted, team);
    if (m_parts.ofTeam)
      m_parts.ofTeam(m_json, team);
    m_json.endObject();
  }
  void writeRows(Side team, BoxView view) {
    m_json.name(view == BoxView::Players ? "players" : "lines");
    m_json.beginArray();
    for (const BoxRow& row : boxRows(m_counted, team, view, m_english)) {
      if (row.kind != BoxRowKind::Total)
        writeRow(team, view == BoxView::Players, row);
    }
    m_json.endArray();
  }
  void writeRow(Side team, bool isPlayer, const BoxRow& row) {
    const GameState& state = m_counted.state;
    const auto entry = static_cast<std::size_t>(row.entry);
    m_json.beginObject();
    m_json.beginLine();
    if (isPlayer) {
      m_json.member("number", row.number);
      m_json.member("name", m_parts.nameOf ? m_parts.nameOf(row) : row.name);
      m_json.member("position", row.position);
    } else {
      m_json.member("line", state.lines[team][entry].list);
    }
    writeNumbers(m_json, row.numbers);
    if (isPlayer) {
      m_json.member("FD", state.extras[team][entry].foulsDrawn);
      m_json.member("BA", state.extras[team][entry].blocksAgainst);
    }
    m_json.name("plusMinus");
    if (const std::optional<int> plusMinus = plusMinusOf(m_insight, state, team, row))
      m_json.value(*plusMinus);
    else
      m_json.null();
    if (isPlayer && m_parts.ofPlayer)
      m_parts.ofPlayer(m_json, team, row.entry, m_insight);
    m_json.endObject();
    m_json.endLine();
  }

  JsonWriter& m_json;
  const CountedGame& m_counted;
  const BoxJsonParts& m_parts;
  const Texts m_english;
  GameInsight m_insight;
  MarginFlow m_flow;
};

} // namespace

int shownPeriods(const Game& game) {
  int highest = 0;
  for (const GameEvent& event : game.events)
    highest = std::max(highest, event.period);
  return std::min(highest, static_cast<int>(GameState::kPeriodRows) - 1);
}

void writeBox(JsonWriter& json, const CountedGame& counted, const BoxJsonParts& parts) {
  BoxJson(json, counted, parts).write();
}

std::string boxJson(const CountedGame& counted, const std::string& file) {
  JsonWriter json;
  json.beginObject();
  json.member("file", file);
  json.member("version", counted.game.details.version);
  writeBox(json, counted, {});
  json.endObject();
  return json.text();
}

} // namespace hooptab
