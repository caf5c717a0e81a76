#include "report/PlayerSheet.h"

#include "insight/FlowDrawing.h"
#include "insight/Rates.h"
#include "insight/SignedText.h"
#include "report/ReportWords.h"
#include "season/GameColumns.h"
#include "season/SeasonShots.h"
#include "season/TeamStudy.h"
#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>
#include <span>
#include <string>
#include <utility>
#include <vector>

namespace hooptab {

namespace {

constexpr std::size_t kMostGames = 30; // that have room on the page; the last ones
constexpr std::size_t kLately = 5;

// What is counted of a game, with its column's head.
struct Count {
  const char* head;
  int (*of)(const BoxNumbers& numbers);
};
template <Counter counter>
constexpr Count counted(const char* head) {
  return {head, [](const BoxNumbers& numbers) { return static_cast<int>(numbers.counters[counter]); }};
}
constexpr Count kPoints = {"PTS", [](const BoxNumbers& numbers) { return numbers.points(); }};
constexpr Count kRebounds = {"TR", [](const BoxNumbers& numbers) { return numbers.rebounds(); }};
constexpr Count kCounts[] = {
    counted<Counter::OR>("OR"),   counted<Counter::DR>("DR"), kRebounds,
    counted<Counter::Ast>("Ast"), counted<Counter::TO>("TO"), counted<Counter::ST>("ST"),
    counted<Counter::BS>("BS")};
constexpr Count kFouls = counted<Counter::PF>("PF");
constexpr std::pair<std::string_view, Text> kOnOffRates[] = {{"offRating", Text::PointsForHundred},
                                                             {"defRating", Text::PointsAgainstHundred},
                                                             {"netRating", Text::RatingNet}};
constexpr std::size_t kPointsColumn = 4; // of the table of games
constexpr std::pair<std::string_view, const char*> kShares[] = {
    {"eFG", "eFG%"}, {"TS", "TS%"}, {"FTpct", "FT%"}};

class PlayerSheet {
 public:
  PlayerSheet(const SeasonStatistics& statistics, const SeasonRow& row, const SeasonRating& ownRating,
              const Texts& texts)
      : m_catalogue(statistics.catalogue()), m_statistics(statistics), m_row(row), m_ownRating(ownRating),
        m_texts(texts), m_results(statistics.resultsOfPlayer(row.id)) {}

  void addTo(Report& report) const {
    report.blocks.push_back(
        ReportParagraph{ReportParagraph::Style::Heading, m_row.number + ' ' + m_row.name});
    report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Body, circumstances()});
    report.blocks.push_back(averages());
    report.blocks.push_back(games());
    addShots(report);
    ReportTable kinds = byKind();
    const bool hasKinds = !kinds.rows.empty();
    if (hasKinds)
      report.blocks.push_back(std::move(kinds));
    ReportTable splits = this->splits();
    splits.standsBeside = hasKinds;
    report.blocks.push_back(std::move(splits));
    addOnOff(report);
  }

 private:
  using Results = std::span<const GameResult>;
  [[nodiscard]] std::string text(Text which) const { return std::string(m_texts.text(which)); }
  [[nodiscard]] const ListedGame& game(const GameResult& result) const {
    return m_catalogue.games()[result.game];
  }

  [[nodiscard]] std::string circumstances() const {
    std::vector<std::string> parts = {m_catalogue.teams()[m_row.team].name};
    if (!m_row.positions.empty() && m_row.positions.back() != kNoPosition)
      parts.push_back(positionText(m_row.positions.back(), m_texts));
    parts.push_back(labelled(Text::GamesWord, std::to_string(m_row.games), m_texts));
    if (!m_results.empty())
      parts.push_back(game(m_results.front()).date + " – " + game(m_results.back()).date);
    return inOneLine(parts);
  }

  static ReportCell average(int sum, std::size_t games) {
    const auto count = static_cast<int>(games);
    return {Module1::quotientText(sum, count, 1), ReportCell::Kind::Number,
            count == 0 ? 0 : static_cast<double>(sum) / count};
  }
  static ReportCell timeCell(int seconds) {
    return {Module1::clockText(seconds), ReportCell::Kind::Time, static_cast<double>(seconds)};
  }
  static ReportCell share(std::string_view name, const BoxNumbers& numbers) {
    const Rate& rate = rateNamed(name);
    const auto value = rate.value({Side::Visitor, numbers, {}});
    return value ? ReportCell{rateText(rate, value) + "%", ReportCell::Kind::Percent, *value} : textCell("–");
  }
  [[nodiscard]] bool hasLineUps() const { return m_row.plusMinus().has_value(); }
  [[nodiscard]] ReportColumn plusMinusColumn() const {
    return {"+/−", "plusMinus", text(Text::PlusMinusTip)};
  }
  // Nothing of games that do not tell who was on court.
  static ReportCell plusMinusCell(const CourtShare& share) {
    if (share.isEmpty())
      return textCell({});
    const int points = share.plusMinus(kOwnSide);
    return {signedText(points), ReportCell::Kind::Number, static_cast<double>(points)};
  }
  [[nodiscard]] std::string timeHead() const { return capitalised(text(Text::MinutesShort)); }

  [[nodiscard]] ReportTable averages() const {
    ReportTable table;
    table.title = text(Text::AveragePerGame);
    table.isSummary = true;
    const auto games = static_cast<std::size_t>(m_row.games);
    ReportRow& row = table.rows.emplace_back();
    const auto add = [&](const std::string& head, ReportCell cell) {
      cell.isStrong = true;
      table.columns.push_back({head, head});
      row.cells.push_back(std::move(cell));
    };
    for (const Count& count : {kPoints, kRebounds, kCounts[3]})
      add(count.head, average(count.of(m_row.numbers), games));
    add(timeHead(), timeCell(m_row.numbers.seconds / std::max(1, m_row.games)));
    for (const auto& [rate, head] : kShares)
      add(head, share(rate, m_row.numbers));
    add(text(Text::Rating), average(m_row.numbers.rating(), games));
    if (m_ownRating.isThere())
      add(m_ownRating.head, own(m_row, SeasonView::PerGame));
    return table;
  }

  // The best of each column is strong.
  [[nodiscard]] ReportTable games() const {
    ReportTable table;
    table.title = text(Text::ResultsByGame);
    table.columns = {{text(Text::Date), "Date", {}, true},
                     {text(Text::Opponent), "Opponent", {}, true},
                     {text(Text::ResultLabel), "Result", {}, true},
                     {timeHead(), "Time"}};
    for (const char* head : {kPoints.head, "2P", "3P", "FT"})
      table.columns.push_back({head, head});
    for (const Count& count : kCounts)
      table.columns.push_back({count.head, count.head});
    table.columns.push_back({kFouls.head, kFouls.head});
    if (hasLineUps())
      table.columns.push_back(plusMinusColumn());
    table.columns.push_back({text(Text::Rating), "rating"});
    table.chart = {text(Text::ResultsByGame) + " – " + text(Text::Points), kPointsColumn, 1, false};
    addOwnColumn(table);
    const Results shown = Results(m_results).last(std::min(kMostGames, m_results.size()));
    if (shown.size() < m_results.size())
      table.note = std::to_string(shown.size()) + "/" + std::to_string(m_results.size());
    for (const GameResult& result : shown)
      table.rows.push_back(gameRow(result));
    return table;
  }

  [[nodiscard]] ReportRow gameRow(const GameResult& result) const {
    const ListedGame& played = game(result);
    const BoxNumbers& numbers = result.numbers;
    const std::string away = result.side == Side::Visitor ? "@ " : "";
    ReportRow row;
    row.cells = {textCell(played.date),
                 textCell(away + m_catalogue.teams()[played.team[otherSide(result.side)]].name),
                 textCell(resultText(played, result.side, m_texts)), timeCell(numbers.seconds)};
    const auto add = [&](int (*of)(const BoxNumbers&), bool canBeBest) {
      const int value = of(numbers);
      ReportCell cell = numberCell(value);
      if (value < 0)
        cell.text = signedText(value);
      const auto isHigher = [&](const GameResult& other) { return of(other.numbers) > value; };
      cell.isStrong =
          canBeBest && value > 0 && m_results.size() > 1 && std::ranges::none_of(m_results, isHigher);
      row.cells.push_back(std::move(cell));
    };
    add(kPoints.of, true);
    for (const ShotKinds kinds : {kTwoKinds, kThreeKinds, kThrowKinds})
      row.cells.push_back(textCell(fractionText({numbers.made(kinds), numbers.attempted(kinds)})));
    for (const Count& count : kCounts)
      add(count.of, std::string_view(count.head) != "TO");
    add(kFouls.of, false);
    if (hasLineUps())
      row.cells.push_back(plusMinusCell(result.onCourt));
    add([](const BoxNumbers& of) { return of.rating(); }, true);
    if (m_ownRating.isThere())
      row.cells.push_back(own(rowOfResult(result), SeasonView::Totals));
    return row;
  }

  void addOwnColumn(ReportTable& table) const {
    if (m_ownRating.isThere())
      table.columns.push_back({m_ownRating.head, "own", m_ownRating.words(m_texts)});
  }
  [[nodiscard]] ReportCell own(const SeasonRow& row, SeasonView view) const {
    return ownRatingCell(m_ownRating, row, view);
  }

  void addShots(Report& report) const {
    ShotDrawing marks;
    for (const GameResult& result : m_results) {
      const ListedGame& played = game(result);
      for (const SeasonShot& shot : played.shots) {
        const GameRow& shooter = played.players[shot.player];
        if (shot.hasPlace && shooter.id == m_row.id && shooter.side == result.side)
          marks.marks.push_back({{static_cast<double>(shot.x), static_cast<double>(shot.y)}, shot.isMade});
      }
    }
    if (marks.marks.empty())
      return;
    const ShotSums own = shotsOfPlayer(m_catalogue, m_results, m_row.id);
    const ShotSums all = shotsOfGames(m_catalogue, m_statistics.games());
    ShotDrawing zones{{}, zoneWords(own)};
    for (const ZoneWords& words : zones.zones) {
      const auto zone = static_cast<std::size_t>(words.zone);
      zones.differences.push_back(differenceInPoints(own.zones[zone], all.zones[zone]));
    }
    report.blocks.push_back(
        ReportPicture{text(Text::SeasonShotChart), std::move(zones), text(Text::DifferenceLegend)});
    report.blocks.push_back(ReportPicture{text(Text::ShotChart), std::move(marks),
                                          "● " + text(Text::Made) + "   ✕ " + text(Text::Missed), true});
  }

  [[nodiscard]] ReportTable byKind() const {
    ReportTable table;
    table.title = text(Text::PlayerShots);
    table.isSummary = true;
    table.columns = {{"", "Kind", {}, true, true},
                     {"M/A", "M/A"},
                     {"%", "%"},
                     {text(Text::PointsPerShotWord), "pointsPerShot"}};
    // Without the sums of several kinds.
    for (const ShotGroup& group : shotGroups()) {
      const int tried = m_row.numbers.attempted(group.kinds);
      const int made = m_row.numbers.made(group.kinds);
      if (&group == shotGroups().data() || group.name == "FG" || tried == 0)
        continue;
      const int points = m_row.numbers.points(group.kinds);
      table.rows.push_back(
          {{textCell(capitalised(text(group.words))),
            textCell(fractionText({made, tried})),
            {Module1::percentText(made, tried), ReportCell::Kind::Percent, static_cast<double>(made) / tried},
            {Module1::quotientText(points, tried, 2), ReportCell::Kind::Number,
             static_cast<double>(points) / tried}}});
    }
    return table;
  }

  [[nodiscard]] ReportTable splits() const {
    ReportTable table;
    table.title = text(Text::SplitsTitle);
    table.isSummary = true;
    table.columns = {{"", "Split", {}, true, true},
                     {text(Text::StandingsPlayed), "Games"},
                     {"PTS", "PTS"},
                     {"TR", "TR"},
                     {"eFG%", "eFG%"},
                     {text(Text::Rating), "rating"}};
    addOwnColumn(table);
    if (hasLineUps())
      table.columns.push_back(plusMinusColumn());
    const auto add = [&](Text words, const auto& isOfIt) {
      std::vector<GameResult> some;
      CourtShare onCourt;
      for (std::size_t i = 0; i < m_results.size(); ++i) {
        if (!isOfIt(i))
          continue;
        some.push_back(m_results[i]);
        onCourt += m_results[i].onCourt;
      }
      if (some.empty())
        return;
      const SeasonRow sum = sumOfResults(some);
      ReportRow& row = table.rows.emplace_back();
      row.cells = {textCell(text(words)),
                   numberCell(sum.games),
                   average(sum.numbers.points(), some.size()),
                   average(sum.numbers.rebounds(), some.size()),
                   share("eFG", sum.numbers),
                   average(sum.numbers.rating(), some.size())};
      if (m_ownRating.isThere())
        row.cells.push_back(own(sum, SeasonView::PerGame));
      if (hasLineUps())
        row.cells.push_back(plusMinusCell(onCourt));
    };
    const auto isOn = [&](Side side) {
      return [this, side](std::size_t i) { return m_results[i].side == side; };
    };
    const auto hasWon = [&](bool won) {
      return [this, won](std::size_t i) {
        const auto winner = game(m_results[i]).winner();
        return winner && (*winner == m_results[i].side) == won;
      };
    };
    add(Text::StandingsHome, isOn(Side::Home));
    add(Text::StandingsAway, isOn(Side::Visitor));
    add(Text::SplitWins, hasWon(true));
    add(Text::SplitLosses, hasWon(false));
    if (m_results.size() > kLately)
      add(Text::LastFiveGames, [&](std::size_t i) { return i + kLately >= m_results.size(); });
    return table;
  }

  // How his team fared while he was on court and while he was not, of the games that tell it.
  void addOnOff(Report& report) const {
    if (!hasLineUps())
      return;
    ReportTable table;
    table.title = text(Text::WithAndWithout);
    table.note = text(Text::RatingPerHundredTip);
    table.isSummary = true;
    table.columns = {{"", "OnOff", {}, true, true}, {timeHead(), "Time"}};
    for (const auto& [rate, words] : kOnOffRates)
      table.columns.push_back({text(words), std::string(rate)});
    table.columns.push_back(plusMinusColumn());
    const SeasonOnOff both = onOffOf(m_catalogue, m_results);
    const auto add = [&](Text words, const CourtShare& share) {
      ReportRow& row = table.rows.emplace_back();
      row.cells = {textCell(text(words)), timeCell(share.seconds)};
      for (const auto& [name, head] : kOnOffRates)
        row.cells.push_back(rateCell(name, share));
      row.cells.push_back(plusMinusCell(share));
    };
    add(Text::SheetOnCourt, both.on);
    add(Text::SheetOffCourt, both.off);
    report.blocks.push_back(std::move(table));
  }

  static ReportCell rateCell(std::string_view name, const CourtShare& share) {
    const Rate& rate = rateNamed(name);
    const auto value = rate.value(RateBasis::ofAll(kOwnSide, share));
    if (!value)
      return textCell("–");
    const bool isNet = name == "netRating";
    ReportCell cell{isNet ? signedText(*value, 1) : rateText(rate, value), ReportCell::Kind::Number, *value};
    cell.isStrong = isNet;
    return cell;
  }

  const GameCatalogue& m_catalogue;
  const SeasonStatistics& m_statistics;
  const SeasonRow& m_row;
  const SeasonRating& m_ownRating;
  const Texts& m_texts;
  std::vector<GameResult> m_results;
};

} // namespace

ReportCell ownRatingCell(const SeasonRating& ownRating, const SeasonRow& row, SeasonView view) {
  ReportCell cell = textCell(ownRating.text(row, view));
  if (const std::optional<double> value = ownRating.value(row, view)) {
    cell.kind = ReportCell::Kind::Number;
    cell.value = *value;
  }
  return cell;
}

Report playerSheet(const SeasonStatistics& statistics, SeasonId player, const SeasonRating& ownRating,
                   const Texts& texts) {
  Report report;
  report.isOnePage = true;
  const auto row = std::ranges::find(statistics.players(), player, &SeasonRow::id);
  if (row != statistics.players().end())
    PlayerSheet(statistics, *row, ownRating, texts).addTo(report);
  return report;
}

} // namespace hooptab
