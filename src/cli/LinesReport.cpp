#include "cli/InsightReports.h"
#include "feed/NumbersJson.h"
#include "feed/TextTable.h"
#include "game/PlayerLookup.h"
#include "insight/Combinations.h"
#include "insight/GameInsight.h"
#include "insight/Rates.h"
#include "storage/Module1.h"
#include "storage/Utf8.h"

#include <algorithm>
#include <tuple>
#include <vector>

namespace hooptab {

namespace {

using Align = TextTable::Align;

// Players who were on court together, or of one of them the time when he was not.
struct Together {
  std::string jerseys; // "4-5-10-12-15"
  CourtShare share;
  bool isOff = false;
};

void addPlayers(std::vector<Together>& all, const CountedGame& counted, const GameInsight& insight,
                Side team) {
  for (int entry = 1; entry <= Roster::kLargestEntry; ++entry) {
    const RosterPlayer* player = counted.game.roster[team].player(entry);
    const OnOff split = onOffOf(insight, team, entry);
    if (player == nullptr || split.on.isEmpty())
      continue;
    all.push_back({player->jersey, split.on});
    all.push_back({player->jersey, split.off, true});
    all.back().share.seconds = std::max(split.off.seconds, 0); // a clock that was set back
  }
}

void addLines(std::vector<Together>& all, const CountedGame& counted, const GameInsight& insight, Side team) {
  for (int line = 1; line <= counted.state.usedLines[team]; ++line) {
    CourtShare share = insight.ofLine(team, line);
    if (!share.isEmpty())
      all.push_back({jerseysOnCourt(counted.state.lines[team][static_cast<std::size_t>(line)].list,
                                    counted.game.roster[team], '-'),
                     share});
  }
  std::ranges::stable_sort(all, std::ranges::greater(),
                           [](const Together& each) { return each.share.seconds; });
}

std::vector<Together> togetherOf(const CountedGame& counted, const GameInsight& insight, Side team,
                                 int size) {
  const Roster& roster = counted.game.roster[team];
  std::vector<Together> all;
  if (size == 1)
    addPlayers(all, counted, insight, team);
  else if (size == kMostTogether)
    addLines(all, counted, insight, team);
  else
    for (const Combination& each : combinationsOf(insight, counted.state, team, size))
      all.push_back({jerseysOnCourt(roster.listOf(each.players), roster, '-'), each.share});
  return all;
}

constexpr std::string_view kShownRates[] = {"offRating", "defRating", "netRating", "eFG", "TOrate", "ORpct"};

} // namespace

std::string linesText(const CountedGame& counted, int size, const Texts& texts) {
  const GameInsight insight = insightOf(counted.game);
  const Text heads[] = {Text::Player, Text::CliPairsHead, Text::CliTriosHead, Text::CliLinesHead,
                        Text::CliLinesHead};
  std::string text;
  for (const Side team : kSides) {
    const std::string name = printable(counted.game.details.abbreviation[team]);
    TextTable table;
    table.addColumn(size == 1 ? std::string(texts.text(Text::Player)) + " " + name
                              : texts.withPlaceholder(heads[static_cast<std::size_t>(size) - 1], name),
                    Align::Left);
    if (size == 1)
      table.addColumn("", Align::Left);
    for (const std::string_view head : {"MIN", "+/-", "PTS", "OPP", "POSS"})
      table.addColumn(std::string(head), Align::Right);
    for (const std::string_view rate : kShownRates)
      table.addColumn(std::string(rate), Align::Right);
    for (const Together& each : togetherOf(counted, insight, team, size)) {
      std::vector<std::string> row = {printable(each.jerseys)};
      if (size == 1)
        row.emplace_back(texts.text(each.isOff ? Text::OffCourtShort : Text::OnCourtShort));
      row.push_back(Module1::clockText(each.share.seconds));
      row.push_back(std::to_string(each.share.plusMinus(team)));
      row.push_back(std::to_string(each.share.points(team)));
      row.push_back(std::to_string(each.share.points(otherSide(team))));
      row.push_back(std::to_string(each.share.possessions[team]));
      for (const std::string_view rate : kShownRates)
        row.push_back(rateText(rateNamed(rate), rateNamed(rate).value(RateBasis::ofAll(team, each.share))));
      table.addRow(std::move(row));
    }
    text += (text.empty() ? "" : "\n") + table.text();
  }
  return text;
}

std::string linesJson(const CountedGame& counted, int size) {
  const GameInsight insight = insightOf(counted.game);
  JsonWriter json;
  json.beginArray();
  for (const Side team : kSides) {
    json.beginObject();
    json.member("abb", counted.game.details.abbreviation[team]);
    json.name("together");
    json.beginArray();
    for (const Together& each : togetherOf(counted, insight, team, size)) {
      json.beginObject();
      json.beginLine();
      json.member("players", each.jerseys);
      if (size == 1)
        json.member("onCourt", !each.isOff);
      json.member("seconds", each.share.seconds);
      json.member("plusMinus", each.share.plusMinus(team));
      json.member("points", each.share.points(team));
      json.member("pointsAgainst", each.share.points(otherSide(team)));
      json.member("possessions", each.share.possessions[team]);
      json.member("possessionsAgainst", each.share.possessions[otherSide(team)]);
      writeRates(json, RateBasis::ofAll(team, each.share));
      json.endObject();
      json.endLine();
    }
    json.endArray();
    json.endObject();
  }
  json.endArray();
  return json.text();
}

} // namespace hooptab
