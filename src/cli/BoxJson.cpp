#include "cli/InsightReports.h"
#include "cli/NumbersJson.h"
#include "cli/Reports.h"
#include "scorecard/BoxScore.h"

#include <algorithm>
#include <optional>

namespace hooptab {

namespace {

// `extras` of a player; null for a line. `plusMinus`: none of a game without line-ups.
void writeRow(JsonWriter& json, const BoxRow& row, std::string_view line, const PlayerExtras* extras,
              const std::optional<int>& plusMinus) {
  json.beginObject();
  json.beginLine();
  if (row.kind == BoxRowKind::Line || row.kind == BoxRowKind::OtherLines) {
    json.member("line", line);
  } else {
    json.member("number", row.number);
    json.member("name", row.name);
    json.member("position", row.position);
  }
  writeNumbers(json, row.numbers);
  if (extras != nullptr) {
    json.member("FD", extras->foulsDrawn);
    json.member("BA", extras->blocksAgainst);
  }
  json.name("plusMinus");
  if (plusMinus)
    json.value(*plusMinus);
  else
    json.null();
  json.endObject();
  json.endLine();
}

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

void writeTeam(JsonWriter& json, const Scorecard& card, const GameInsight& insight, const MarginFlow& flow,
               Side team, const Texts& texts) {
  const Game& game = card.game();
  const GameState& state = card.state();
  std::vector<int> points;
  std::vector<int> fouls;
  for (int period = 1; period <= shownPeriods(game); ++period) {
    const PeriodEntry& entry = state.periods[team][GameState::periodRow(period)];
    points.push_back(entry.points);
    fouls.push_back(entry.fouls);
  }
  json.beginObject();
  json.member("abb", game.details.abbreviation[team]);
  json.member("name", game.details.name[team]);
  json.member("points", state.points(team));
  writeNumberList(json, "periods", points);
  writeNumberList(json, "fouls", fouls);
  for (const BoxView view : {BoxView::Players, BoxView::Lines}) {
    json.name(view == BoxView::Players ? "players" : "lines");
    json.beginArray();
    for (const BoxRow& row : boxRows(*card.counted(), team, view, texts)) {
      if (row.kind == BoxRowKind::Total)
        continue;
      const auto entry = static_cast<std::size_t>(row.entry);
      writeRow(json, row, state.lines[team][entry].list,
               view == BoxView::Players ? &state.extras[team][entry] : nullptr,
               plusMinusOf(insight, state, team, row));
    }
    json.endArray();
  }
  writeTeamRow(json, state.teamRows[team]);
  writeTeamInsight(json, insight, flow, *card.counted(), team);
  json.endObject();
}

} // namespace

std::string boxJson(const Scorecard& card) {
  const Texts english;
  const GameInsight insight = insightOf(card.game());
  const MarginFlow flow = marginFlowOf(card.game());
  JsonWriter json;
  json.beginObject();
  json.member("file", card.path());
  json.member("version", card.game().details.version);
  json.name("teams");
  json.beginArray();
  for (const Side team : kSides)
    writeTeam(json, card, insight, flow, team, english);
  json.endArray();
  json.name("lead");
  json.beginObject();
  const LeadTracker& lead = card.state().lead;
  std::vector<int> seconds(lead.seconds.begin(), lead.seconds.end());
  for (int& time : seconds)
    time = std::max(time, 0);
  writeNumberList(json, "seconds", seconds);
  writeNumberList(json, "times", {lead.times.begin(), lead.times.end()});
  json.endObject();
  writeFlowCounts(json, insight, flow);
  json.endObject();
  return json.text();
}

} // namespace hooptab
