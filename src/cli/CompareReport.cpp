#include "cli/InsightReports.h"
#include "feed/NumbersJson.h"
#include "feed/TextTable.h"
#include "insight/GameInsight.h"
#include "insight/Rates.h"
#include "storage/Module1.h"
#include "storage/Utf8.h"

#include <string_view>
#include <utility>
#include <vector>

namespace hooptab {

namespace {

using Align = TextTable::Align;

// One of the two that are compared.
struct Compared {
  std::string name;
  RateBasis basis;
  std::optional<PointOrigins> origins; // of a team, as what follows
  int clutchPoints = 0;
};

std::vector<Compared> comparedOf(const CountedGame& counted, const ComparedPlayers& players) {
  const GameInsight insight = insightOf(counted.game);
  std::vector<Compared> both;
  if (!players) {
    for (const Side team : kSides)
      both.push_back({counted.game.details.abbreviation[team], RateBasis::ofAll(team, insight.whole),
                      insight.origins[team], insight.clutch.points(team)});
    return both;
  }
  for (const ComparedPlayer& player : *players) {
    const auto entry = static_cast<std::size_t>(player.entry);
    const PlayerEntry& counts = counted.state.players[player.team][entry];
    RateBasis basis{
        player.team, {}, insight.players[player.team][entry], counted.state.extras[player.team][entry]};
    basis.own.counters += counts.counters;
    basis.own.seconds = std::max(counts.seconds, 0);
    const RosterPlayer* known = counted.game.roster[player.team].player(player.entry);
    both.push_back({known->jersey + ' ' + known->name, basis, std::nullopt, 0});
  }
  return both;
}

struct OriginRow {
  std::string_view name;
  Text words;
  int PointOrigins::*points;
};
constexpr OriginRow kOrigins[] = {
    {"paint", Text::InThePaint, &PointOrigins::paint},
    {"fromTurnovers", Text::FromTurnovers, &PointOrigins::fromTurnovers},
    {"secondChance", Text::SecondChance, &PointOrigins::secondChance},
    {"quick", Text::QuickPoints, &PointOrigins::quick},
};

// Those that not every game tells.
struct OptionalRow {
  std::string_view name;
  Text words;
  std::optional<int> PointOrigins::*points;
};
constexpr OptionalRow kOptional[] = {
    {"bench", Text::FromTheBench, &PointOrigins::bench},
    {"fastBreak", Text::FastBreakPoints, &PointOrigins::fastBreak},
};

} // namespace

std::string compareText(const CountedGame& counted, const ComparedPlayers& players, const Texts& texts) {
  const std::vector<Compared> both = comparedOf(counted, players);
  TextTable table;
  table.addColumn("", Align::Left);
  for (const Compared& each : both)
    table.addColumn(printable(each.name), Align::Right);
  const auto add = [&](std::string label, const auto& cellOf) {
    table.addRow({std::move(label), cellOf(both[0]), cellOf(both[1])});
  };
  constexpr ShotKinds kThrees = shotKinds({EventCode::GF3});
  constexpr ShotKinds kThrows = shotKinds({EventCode::GFT});
  add("PTS", [](const Compared& each) { return std::to_string(each.basis.own.points()); });
  for (const auto& [name, kinds] : {std::pair("2P", kAllShotKinds & ~kThrees & ~kThrows),
                                    std::pair("3P", kThrees), std::pair("FT", kThrows)})
    add(name, [kinds = kinds](const Compared& each) {
      return std::to_string(each.basis.own.made(kinds)) + '/' +
             std::to_string(each.basis.own.attempted(kinds));
    });
  for (const Statistic& statistic : statistics()) {
    if (statistic.boxColumn > 0 && statistic.group == nullptr && statistic.own < 0)
      add(std::string(statistic.gameName),
          [&](const Compared& each) { return valueText(statistic.value(each.basis.own), statistic.kind); });
  }
  add("+/-",
      [](const Compared& each) { return std::to_string(each.basis.meanwhile.plusMinus(each.basis.team)); });
  table.addRule();
  for (const Rate& rate : rates()) {
    if (players || !rate.isOfPlayersOnly)
      add(std::string(texts.text(rate.words)),
          [&](const Compared& each) { return rateText(rate, rate.value(each.basis)); });
  }
  if (players)
    return table.text();
  table.addRule();
  for (const OriginRow& row : kOrigins)
    add(std::string(texts.text(row.words)),
        [&](const Compared& each) { return std::to_string((*each.origins).*row.points); });
  for (const OptionalRow& row : kOptional) {
    if ((*both[0].origins).*row.points || (*both[1].origins).*row.points)
      add(std::string(texts.text(row.words)), [&](const Compared& each) {
        const std::optional<int>& points = (*each.origins).*row.points;
        return points ? std::to_string(*points) : std::string("–");
      });
  }
  return table.text();
}

std::string compareJson(const CountedGame& counted, const ComparedPlayers& players) {
  JsonWriter json;
  json.beginArray();
  for (const Compared& each : comparedOf(counted, players)) {
    json.beginObject();
    json.member("name", each.name);
    writeNumbers(json, each.basis.own);
    json.member("plusMinus", each.basis.meanwhile.plusMinus(each.basis.team));
    writeRates(json, each.basis, players.has_value());
    if (each.origins) {
      for (const OriginRow& row : kOrigins)
        json.member(row.name, (*each.origins).*row.points);
      for (const OptionalRow& row : kOptional) {
        json.name(row.name);
        if (const std::optional<int>& points = (*each.origins).*row.points)
          json.value(*points);
        else
          json.null();
      }
      json.member("clutch", each.clutchPoints);
    }
    json.endObject();
  }
  json.endArray();
  return json.text();
}

} // namespace hooptab
