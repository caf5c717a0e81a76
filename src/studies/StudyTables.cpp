#include "studies/StudyTables.h"

#include "appearance/Theme.h"
#include "appearance/relabel.h"
#include "insight/Rates.h"
#include "insight/SignedText.h"
#include "season/SeasonTables.h"
#include "storage/Module1.h"

#include <algorithm>
#include <array>
#include <limits>

namespace hooptab {

namespace {

constexpr std::size_t kLastGames = 5;
constexpr int kShownCombinations = 200;
constexpr int kNamesWidth = 400;
constexpr int kLeastSeconds = 60; // together, to say anything

struct Cell {
  QString text;
  double value = 0;
};
using Cells = std::vector<std::vector<Cell>>;

TableRows rowsOf(Cells cells) {
  TableRows rows;
  rows.count = static_cast<int>(cells.size());
  const auto kept = std::make_shared<const Cells>(std::move(cells));
  const auto at = [kept](int row, int column) -> const Cell& {
    return (*kept)[static_cast<std::size_t>(row)][static_cast<std::size_t>(column)];
  };
  rows.text = [at](int row, int column) { return at(row, column).text; };
  rows.sortValue = [at](int row, int column) { return at(row, column).value; };
  return rows;
}

TableColumn words(const QString& header, const char* name) {
  TableColumn column;
  column.header = header;
  column.name = QLatin1String(name);
  column.isText = column.isLeftAligned = true;
  return column;
}
TableColumn number(const QString& header, const char* name, const char* longest) {
  TableColumn column;
  column.header = header;
  column.name = QLatin1String(name);
  column.longest = QString::fromUtf8(longest);
  column.kind = TableKind::Number;
  return column;
}

Cell text(const QString& shown) {
  return {shown, 0};
}
Cell count(int value) {
  return {QString::number(value), static_cast<double>(value)};
}
Cell decimal(double value) {
  return {QString::number(value, 'f', 1), value};
}
Cell signedCell(double value, int decimals) {
  return {toQt(signedText(value, decimals)), value};
}
std::optional<double> rateOf(std::string_view name, const CourtShare& share) {
  return rateNamed(name).value(RateBasis::ofAll(kOwnSide, share));
}
Cell rate(std::string_view name, const CourtShare& share) {
  const std::optional<double> value = rateOf(name, share);
  return {toQt(rateText(rateNamed(name), value)).replace(u'-', QChar(0x2212)),
          value.value_or(std::numeric_limits<double>::lowest())};
}

} // namespace

StudyTable averagesOf(const SeasonPerson* person, const Settings& settings, const Texts& texts) {
  StudyTable table;
  const OwnLabels labels = person == nullptr ? OwnLabels() : person->season->statistics().labels();
  const SeasonRating ownRating = person == nullptr ? SeasonRating() : person->season->ownRating();
  std::vector<TableColumn> all = resultColumns(settings, texts, labels);
  table.columns.push_back(words({}, "Average"));
  const int rating = seasonColumn("rating").index;
  for (int index = kResultOpponentColumn + 1; index <= resultColumnCount(); ++index) {
    table.columns.push_back(std::move(all[static_cast<std::size_t>(index) - 1]));
    if (seasonColumnOfResult(index) == rating)
      table.columns.push_back(ownRatingColumn(ownRating, texts));
  }
  table.columns.push_back(plusMinusColumn(texts));
  for (std::size_t i = 1; i < table.columns.size(); ++i)
    table.columns[i].longest = QStringLiteral("100.0%");
  if (person == nullptr)
    return table;
  const std::span results(person->results);
  const SeasonRow last = sumOfResults(results.last(std::min(kLastGames, results.size())));
  Cells cells;
  const auto add = [&](Text name, const SeasonRow& row, SeasonView view) {
    std::vector<Cell>& shown = cells.emplace_back();
    shown.push_back(text(caption(texts, name)));
    for (int index = kResultOpponentColumn + 1; index <= resultColumnCount(); ++index) {
      const int column = seasonColumnOfResult(index);
      shown.push_back({toQt(seasonCell(row, column, view, texts)), seasonSortValue(row, column, view)});
      if (column == rating)
        shown.push_back({toQt(ownRating.text(row, view)), ownRating.value(row, view).value_or(0)});
    }
    shown.push_back(text(plusMinusText(row, view)));
  };
  add(Text::PerGame, person->row, SeasonView::PerGame);
  add(Text::LastFiveGames, last, SeasonView::PerGame);
  add(Text::PerForty, person->row, SeasonView::PerForty);
  table.rows = rowsOf(std::move(cells));
  return table;
}

StudyTable onOffTable(const SeasonPerson* person, const Texts& texts) {
  StudyTable table;
  table.columns = {words(caption(texts, Text::OnOffTitle), "Rate"),
                   number(caption(texts, Text::OnCourtShort), "On", "000.0"),
                   number(caption(texts, Text::OffCourtShort), "Off", "000.0"),
                   number(caption(texts, Text::StandingsDifference), "Difference", "+000.0")};
  table.columns[1].isBold = true;
  if (person == nullptr)
    return table;
  const SeasonOnOff both = onOffOf(person->season->catalogue(), person->results);
  constexpr std::array<std::pair<Text, std::string_view>, 6> kRows = {
      {{Text::PointsForHundred, "offRating"},
       {Text::PointsAgainstHundred, "defRating"},
       {Text::RatingNet, "netRating"},
       {Text::EffectiveFieldGoals, "eFG"},
       {Text::OffensiveReboundRate, "ORpct"},
       {Text::TurnoversPerHundred, "TOrate"}}};
  Cells cells;
  for (const auto& [name, rateName] : kRows) {
    const std::optional<double> on = rateOf(rateName, both.on);
    const std::optional<double> off = rateOf(rateName, both.off);
    const double scale = rateNamed(rateName).kind == RateKind::Share ? 100 : 1;
    cells.push_back({text(caption(texts, name)), rate(rateName, both.on), rate(rateName, both.off),
                     on && off ? signedCell(scale * (*on - *off), 1) : text(QStringLiteral("–"))});
  }
  table.rows = rowsOf(std::move(cells));
  return table;
}

StudyTable teamGamesTable(const SeasonStatistics* statistics, SeasonId team, const Texts& texts) {
  StudyTable table;
  table.columns = {words(caption(texts, Text::Date), "Date"),
                   words(caption(texts, Text::Where), "Where"),
                   words(caption(texts, Text::Results), "Result"),
                   words(caption(texts, Text::Opponent), "Opponent"),
                   number(caption(texts, Text::StandingsDifference), "Difference", "+00"),
                   number(caption(texts, Text::StandingsOffence), "Off", "000.0"),
                   number(caption(texts, Text::StandingsDefence), "Def", "000.0")};
  if (statistics == nullptr)
    return table;
  const GameCatalogue& catalogue = statistics->catalogue();
  Cells cells;
  for (const std::size_t index : gamesOfTeam(*statistics, team)) {
    const ListedGame& game = catalogue.games()[index];
    const Side side = game.team[Side::Visitor] == team ? Side::Visitor : Side::Home;
    const CourtShare whole = wholeOfGame(game, side);
    cells.push_back({text(toQt(game.date)),
                     text(caption(texts, side == Side::Home ? Text::AtHome : Text::Away)),
                     text(toQt(resultText(game, side, texts))),
                     text(toQt(catalogue.teams()[game.team[otherSide(side)]].name)),
                     signedCell(game.points[side] - game.points[otherSide(side)], 0),
                     rate("offRating", whole), rate("defRating", whole)});
  }
  table.rows = rowsOf(std::move(cells));
  table.rows.toolTip = [&texts](int) { return caption(texts, Text::OpensGame); };
  return table;
}

StudyTable splitsTable(const SeasonStatistics* statistics, SeasonId team, const Texts& texts) {
  StudyTable table;
  table.columns = {words(caption(texts, Text::SplitsTitle), "Split"),
                   number(caption(texts, Text::StandingsPlayed), "GP", "00"),
                   words(caption(texts, Text::WinsLosses), "Balance"),
                   number(caption(texts, Text::StandingsFor), "For", "000.0"),
                   number(caption(texts, Text::StandingsAgainst), "Against", "000.0"),
                   number(caption(texts, Text::StandingsOffence), "Off", "000.0"),
                   number(caption(texts, Text::StandingsDefence), "Def", "000.0"),
                   number(caption(texts, Text::PaceWord), "Pace", "000.0")};
  if (statistics == nullptr)
    return table;
  Cells cells;
  for (const TeamSplit& split : splitsOf(*statistics, team))
    cells.push_back({text(caption(texts, split.name)), count(split.balance.games()),
                     text(toQt(balanceText(split.balance))), decimal(split.average(split.pointsFor)),
                     decimal(split.average(split.pointsAgainst)), rate("offRating", split.counted),
                     rate("defRating", split.counted), rate("pace", split.counted)});
  table.rows = rowsOf(std::move(cells));
  return table;
}

StudyTable combinationsTable(const SeasonStatistics* statistics, SeasonId team, int size,
                             const Texts& texts) {
  StudyTable table;
  table.columns = {words(caption(texts, Text::Players), "Players"),
                   number(caption(texts, Text::MinutesShort), "Minutes", "000:00"),
                   number(QStringLiteral("+/−"), "PlusMinus", "+000"),
                   number(caption(texts, Text::StandingsOffence), "Off", "000.0"),
                   number(caption(texts, Text::StandingsDefence), "Def", "000.0"),
                   number(caption(texts, Text::RatingNet), "Net", "+000.0")};
  table.columns[0].leastWidth = Theme::measure()(kNamesWidth);
  table.columns[1].kind = TableKind::Time;
  if (statistics == nullptr)
    return table;
  Cells cells;
  for (const SeasonCombination& each : combinationsOf(*statistics, team, size)) {
    if (each.share.seconds < kLeastSeconds || std::ssize(cells) == kShownCombinations)
      break;
    cells.push_back({text(toQt(combinationName(statistics->catalogue(), each))),
                     {toQt(Module1::clockText(each.share.seconds)), static_cast<double>(each.share.seconds)},
                     signedCell(each.share.plusMinus(kOwnSide), 0),
                     rate("offRating", each.share),
                     rate("defRating", each.share),
                     rate("netRating", each.share)});
  }
  table.rows = rowsOf(std::move(cells));
  return table;
}

} // namespace hooptab
