#include "feed/InsightJson.h"

#include "storage/Module1.h"

namespace hooptab {

namespace {

void writePeak(JsonWriter& json, std::string_view name, const std::optional<MarginFlow::Peak>& peak) {
  json.name(name);
  if (!peak) {
    json.null();
    return;
  }
  json.beginObject();
  json.beginLine();
  json.member("points", peak->points);
  json.member("period", peak->period);
  json.member("clock", Module1::clockText(peak->clockSeconds));
  json.endObject();
  json.endLine();
}

void writeNumber(JsonWriter& json, std::string_view name, const std::optional<int>& number) {
  json.name(name);
  if (number)
    json.value(*number);
  else
    json.null();
}

} // namespace

std::optional<int> plusMinusOf(const GameInsight& insight, const GameState& state, Side team,
                               const BoxRow& row) {
  const bool isPlayer = row.kind == BoxRowKind::Player;
  const bool isLine = row.kind == BoxRowKind::Line || row.kind == BoxRowKind::OtherLines;
  if (!insight.isFromEvents || state.wereOnCourt[team] == 0 || (!isPlayer && !isLine))
    return std::nullopt;
  return isPlayer ? insight.players[team][static_cast<std::size_t>(row.entry)].plusMinus(team)
                  : insight.ofLine(team, row.entry).plusMinus(team);
}

void writeTeamInsight(JsonWriter& json, const GameInsight& insight, const MarginFlow& flow,
                      const CountedGame& counted, Side team) {
  const auto fromEvents = [&insight](int number) {
    return insight.isFromEvents ? std::optional(number) : std::nullopt;
  };
  json.name("possessions");
  json.beginObject();
  json.beginLine();
  writeNumber(json, "counted", fromEvents(insight.whole.possessions[team]));
  json.member("estimated", estimatedPossessions(insight.whole.numbers(team), counted.state.teamRows[team]));
  json.endObject();
  json.endLine();
  const PointOrigins& origins = insight.origins[team];
  writeNumber(json, "paint", fromEvents(origins.paint));
  writeNumber(json, "fromTurnovers", fromEvents(origins.fromTurnovers));
  writeNumber(json, "secondChance", fromEvents(origins.secondChance));
  writeNumber(json, "bench", origins.bench);
  writeNumber(json, "fastBreak", origins.fastBreak);
  writePeak(json, "biggestLead", flow.biggestLead[team]);
  writePeak(json, "biggestRun", flow.biggestRun[team]);
}

void writeFlowCounts(JsonWriter& json, const GameInsight& insight, const MarginFlow& flow) {
  const bool isKnown = insight.isFromEvents;
  writeNumber(json, "leadChanges",
              isKnown ? std::optional(static_cast<int>(flow.leadChanges.size())) : std::nullopt);
  writeNumber(json, "timesTied", isKnown ? std::optional(flow.timesTied) : std::nullopt);
}

} // namespace hooptab
