#include "report/ScoutSheet.h"

#include "game/EventWords.h"
#include "insight/FlowDrawing.h"
#include "insight/Rates.h"
#include "insight/SignedText.h"
#include "report/FourFactors.h"
#include "report/ReportWords.h"
#include "report/ScoutKeys.h"
#include "season/GameColumns.h"
#include "season/SeasonShots.h"
#include "season/TeamStudy.h"
#include "settings/ChoiceTexts.h"
#include "settings/CountWords.h"
#include "storage/Module1.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <cmath>
#include <utility>
#include <vector>

namespace hooptab {

namespace {

constexpr std::size_t kMostPlayers = 15; // that have room on the page
constexpr std::size_t kLastGames = 3;
constexpr int kRegularSeconds = 10 * 60; // a game; who plays less is pale
constexpr int kLongFive = 5 * 60;
constexpr std::size_t kShownFives = 3; // of the best, and of the worst
constexpr int kFewestPossessions = 8;  // for a net rating
constexpr int kFewestShots = 5;        // of a zone that is compared
constexpr double kNear = 0.1;          // points per shot

struct Average {
  const char* head;
  Counter counter;
};
constexpr Average kAverages[] = {{"OR", Counter::OR}, {"DR", Counter::DR}, {"Ast", Counter::Ast},
                                 {"TO", Counter::TO}, {"ST", Counter::ST}, {"PF", Counter::PF}};

ReportCell percentCell(int made, int attempted) {
  if (attempted == 0)
    return textCell("–");
  const double share = static_cast<double>(made) / attempted;
  return {wholePercent(share), ReportCell::Kind::Percent, share};
}

ReportCell averageCell(int sum, int count) {
  if (count == 0)
    return textCell("–");
  return {Module1::quotientText(sum, count, 1), ReportCell::Kind::Number, static_cast<double>(sum) / count};
}

ReportCell signedCell(double value) {
  return {signedText(value, 0), ReportCell::Kind::Number, value};
}

ReportCell rateCell(std::string_view name, const CourtShare& share) {
  const Rate& rate = rateNamed(name);
  const auto value = rate.value(RateBasis::ofAll(kOwnSide, share));
  return value ? ReportCell{rateText(rate, value), ReportCell::Kind::Number, *value} : textCell("–");
}

class ScoutSheet {
 public:
  ScoutSheet(const SeasonStatistics& statistics, const SeasonTeamRow& row, std::optional<SeasonId> reader,
             const Texts& texts)
      : m_statistics(statistics), m_catalogue(statistics.catalogue()), m_row(row), m_reader(reader),
        m_texts(texts), m_course(courseOf(statistics, row.team)) {
    std::ranges::copy_if(statistics.players(), std::back_inserter(m_players),
                         [&](const SeasonRow& player) { return player.team == row.team; });
    std::ranges::stable_sort(m_players, std::ranges::greater(),
                             [](const SeasonRow& player) { return player.numbers.seconds; });
  }

  void addTo(Report& report) const {
    addHead(report);
    report.blocks.push_back(averages());
    report.blocks.push_back(keys());
    report.blocks.push_back(players());
    addShotsAndComparison(report);
    report.blocks.push_back(fives());
    report.blocks.push_back(ReportRuledLines{text(Text::ScoutNotes)});
    report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Note, text(Text::ScoutFooter)});
  }

 private:
  [[nodiscard]] std::string text(Text which) const { return std::string(m_texts.text(which)); }
  [[nodiscard]] const SeasonTeam& team(SeasonId id) const { return m_catalogue.teams()[id]; }

  void addHead(Report& report) const {
    const SeasonTeam& own = team(m_row.team);
    ReportParagraph heading{ReportParagraph::Style::Heading, own.abbreviation};
    if (own.name != own.abbreviation && own.name != own.key)
      heading.beside = own.name;
    report.blocks.push_back(std::move(heading));
    std::string balance = withPlaceholders(m_texts.text(Text::ScoutBalance), std::to_string(m_row.wins),
                                           std::to_string(m_row.losses));
    if (m_row.ties > 0)
      balance += ", " + std::to_string(m_row.ties) + ' ' + text(Text::TieShort);
    ReportParagraph body{ReportParagraph::Style::Body,
                         inOneLine({text(Text::ScoutReport),
                                    countWords(static_cast<std::size_t>(m_row.games), Text::OneGamePlayed,
                                               Text::ScoutGames, m_texts),
                                    balance, lastGames()})};
    if (m_reader)
      body.beside = m_texts.withPlaceholder(Text::ScoutFor, team(*m_reader).abbreviation);
    report.blocks.push_back(std::move(body));
  }

  // "last: W 87–72 LION, L 73–79 LYNX", the last one behind.
  [[nodiscard]] std::string lastGames() const {
    std::vector<std::size_t> games = gamesOfTeam(m_statistics, m_row.team);
    games.resize(std::min(games.size(), kLastGames));
    std::string words;
    for (const std::size_t place : games) {
      const ListedGame& game = m_catalogue.games()[place];
      const Side side = game.team[Side::Visitor] == m_row.team ? Side::Visitor : Side::Home;
      std::string result = resultText(game, side, m_texts);
      result.replace(result.find('-'), 1, "–");
      words =
          result + ' ' + team(game.team[otherSide(side)]).abbreviation + (words.empty() ? "" : ", ") + words;
    }
    return m_texts.withPlaceholder(Text::ScoutLast, words);
  }

  [[nodiscard]] ReportTable averages() const {
    ReportTable table;
    table.title = text(Text::AveragePerGame);
    table.isSummary = true;
    table.areTiles = true;
    ReportRow& row = table.rows.emplace_back();
    const auto add = [&](Text head, const char* name, ReportCell cell) {
      table.columns.push_back({text(head), name});
      row.cells.push_back(std::move(cell));
    };
    add(Text::ScoutPoints, "Points", averageCell(m_row.pointsFor, m_row.games));
    add(Text::ScoutAgainst, "Against", averageCell(m_row.pointsAgainst, m_row.games));
    add(Text::ScoutPace, "pace", rateCell("pace", m_row.counted));
    add(Text::ScoutOffense, "offRating", rateCell("offRating", m_row.counted));
    add(Text::ScoutDefense, "defRating", rateCell("defRating", m_row.counted));
    add(Text::ScoutPaint, "paint", averageCell(m_course.paint, m_course.games));
    add(Text::ScoutFromTurnovers, "fromTurnovers", averageCell(m_course.fromTurnovers, m_course.games));
    add(Text::ScoutSecondChance, "secondChance", averageCell(m_course.secondChance, m_course.games));
    return table;
  }

  [[nodiscard]] ReportSentences keys() const {
    std::vector<ScoutedPlayer> scouted;
    for (const SeasonRow& player : m_players)
      scouted.push_back(
          {player.number + ' ' + std::string(familyName(player.name)), player.games, player.numbers});
    return {text(Text::ScoutKeys), text(Text::ScoutKeysNote),
            ScoutKeys(scouted, m_course.periods, m_texts).sentences()};
  }

  [[nodiscard]] ReportTable players() const {
    ReportTable table;
    table.title = text(Text::Players);
    table.note = text(Text::ScoutPlayersNote);
    if (m_players.size() > kMostPlayers)
      table.note += "; " + withPlaceholders(m_texts.text(Text::FirstRows), std::to_string(kMostPlayers),
                                            std::to_string(m_players.size()));
    table.columns = {{"No", "No", {}, true},
                     {text(Text::PlayerName), "Name", {}, true, true},
                     {"Pos", "Position", text(Text::Position), false, false, true},
                     {text(Text::StandingsPlayed), "GP"},
                     {text(Text::ScoutStarts), "GS"},
                     {capitalised(text(Text::MinutesShort)), "Time"}};
    for (const char* head : {"PTS", "2P%", "3P", "3P%", "FT", "FT%"})
      table.columns.push_back({head, head});
    for (const Average& average : kAverages)
      table.columns.push_back({average.head, average.head});
    table.columns.push_back({text(Text::ScoutDrives), "drives"});
    table.columns.push_back({"+/−", "plusMinus", text(Text::PlusMinusTip)});
    for (std::size_t i = 0; i < std::min(m_players.size(), kMostPlayers); ++i)
      table.rows.push_back(playerRow(m_players[i]));
    return table;
  }

  [[nodiscard]] ReportRow playerRow(const SeasonRow& player) const {
    const BoxNumbers& numbers = player.numbers;
    const auto made = [&](ShotKinds kinds) { return numbers.made(kinds); };
    const auto attempted = [&](ShotKinds kinds) { return numbers.attempted(kinds); };
    ReportRow row;
    // Where nobody's time is known nobody plays little.
    row.isPale = m_row.numbers.seconds > 0 && numbers.seconds < kRegularSeconds * player.games;
    row.cells = {textCell(player.number),  textCell(player.name), textCell(positionOf(player)),
                 numberCell(player.games), starts(player),        time(numbers.seconds, player.games)};
    row.cells.front().isStrong = true;
    row.cells.push_back(averageCell(numbers.points(), player.games));
    row.cells.back().isStrong = true;
    row.cells.push_back(percentCell(made(kTwoKinds), attempted(kTwoKinds)));
    for (const ShotKinds kinds : {kThreeKinds, kThrowKinds}) {
      row.cells.push_back(textCell(fractionText({made(kinds), attempted(kinds)})));
      row.cells.push_back(percentCell(made(kinds), attempted(kinds)));
    }
    for (const Average& average : kAverages)
      row.cells.push_back(averageCell(static_cast<int>(numbers.counters[average.counter]), player.games));
    const auto right = ScoutKeys::driveShare(numbers);
    row.cells.push_back(right ? ReportCell{m_texts.withPlaceholder(Text::ScoutRight, wholePercent(right)),
                                           ReportCell::Kind::Text}
                              : textCell("–"));
    const auto plusMinus = player.plusMinus();
    row.cells.push_back(plusMinus ? signedCell(*plusMinus) : textCell("–"));
    return row;
  }
  // Its first letter, for want of room.
  [[nodiscard]] std::string positionOf(const SeasonRow& player) const {
    if (player.positions.empty() || player.positions.back() == kNoPosition ||
        choiceName(kFirstPositionText, player.positions.back(), m_texts).empty())
      return "–";
    const std::string words = positionText(player.positions.back(), m_texts);
    std::size_t end = 1;
    while (end < words.size() && (static_cast<unsigned char>(words[end]) & 0xC0U) == 0x80U)
      ++end;
    return words.substr(0, end);
  }
  [[nodiscard]] ReportCell starts(const SeasonRow& player) const {
    return m_course.games == 0 ? textCell("–") : numberCell(startsOf(m_statistics, player.id));
  }
  [[nodiscard]] static ReportCell time(int seconds, int games) {
    if (seconds == 0)
      return textCell("–");
    return {Module1::clockText(seconds / games), ReportCell::Kind::Time,
            static_cast<double>(seconds) / games};
  }

  // Two empty courts would tell nothing.
  void addShotsAndComparison(Report& report) const {
    const ShotSums own = shotsOfTeam(m_catalogue, m_statistics.games(), m_row.team);
    const ShotSums others = shotsAgainst(m_catalogue, m_statistics.games(), m_row.team);
    ReportTable comparison = this->comparison();
    comparison.standsBeside = !zoneWords(own).empty() || !zoneWords(others).empty();
    if (!comparison.standsBeside) {
      report.blocks.push_back(std::move(comparison));
      return;
    }
    report.blocks.push_back(shots(Text::ScoutTheirShots, Text::ScoutShotsNote, own));
    report.blocks.push_back(std::move(comparison));
    report.blocks.push_back(shots(Text::ScoutShotsAgainst, Text::ScoutAgainstNote, others));
    std::get<ReportPicture>(report.blocks.back()).standsBeside = true;
  }

  // Each zone against what a shot from anywhere brings.
  [[nodiscard]] ReportPicture shots(Text title, Text caption, const ShotSums& sums) const {
    ShotDrawing drawing{{}, zoneWords(sums)};
    drawing.areCircles = true;
    const auto pointsPerShot = [](int points, int attempted) {
      return static_cast<double>(points) / attempted;
    };
    const auto worth = [](std::size_t zone) {
      return court::isThreePointZone(static_cast<court::ChartZone>(zone)) ? 3 : 2;
    };
    int points = 0;
    int attempted = 0;
    for (std::size_t zone = 0; zone < sums.zones.size(); ++zone) {
      points += worth(zone) * sums.zones[zone].made;
      attempted += sums.zones[zone].attempted;
    }
    for (ZoneWords& words : drawing.zones) {
      const auto zone = static_cast<std::size_t>(words.zone);
      const ZoneSum& sum = sums.zones[zone];
      words.percent = wholePercent(static_cast<double>(sum.made) / sum.attempted);
      const double difference =
          pointsPerShot(worth(zone) * sum.made, sum.attempted) - pointsPerShot(points, attempted);
      const bool isFar = sum.attempted >= kFewestShots && std::abs(difference) > kNear;
      drawing.differences.push_back(isFar ? difference : 0);
    }
    ReportPicture picture{text(title), std::move(drawing), text(caption)};
    if (sums.withoutPlace.attempted > 0)
      picture.caption +=
          "; " + m_texts.withPlaceholder(Text::SheetWithoutPlace, fractionText(sums.withoutPlace));
    return picture;
  }

  [[nodiscard]] ReportTable comparison() const {
    ReportTable table;
    table.title = text(Text::FourFactors);
    table.isSummary = true;
    table.columns = {{text(Text::ScoutThey), "They", {}, true},
                     {text(Text::Statistic), "Statistic", {}, true, false, true},
                     {text(Text::ScoutOpponents), "Opponents"}};
    CourtShare all; // games of totals too: the factors ask for no possessions
    all.counters[kOwnSide] = m_row.numbers.counters;
    all.counters[otherSide(kOwnSide)] = m_row.opponents.counters;
    addFourFactors(table, all, m_texts);
    for (std::size_t i = 0; i < m_course.periods.size(); ++i) {
      const TeamCourse::Period& period = m_course.periods[i];
      table.rows.push_back(comparedRow(
          {averageCell(period.pointsFor, period.games), averageCell(period.pointsAgainst, period.games)},
          m_texts.withPlaceholder(Text::ScoutPointsIn, std::to_string(i + 1)),
          period.pointsFor - period.pointsAgainst));
    }
    return table;
  }

  struct Five {
    const SeasonCombination* combination;
    std::optional<double> net; // nothing from few possessions
  };
  [[nodiscard]] ReportTable fives() const {
    const std::vector<SeasonCombination> combinations = combinationsOf(m_statistics, m_row.team, 5);
    std::vector<Five> fives;
    for (const SeasonCombination& each : combinations) {
      if (each.share.seconds > kLongFive)
        fives.push_back({&each, netOf(each.share)});
    }
    std::ranges::stable_sort(fives, std::ranges::greater(),
                             [](const Five& five) { return five.net.value_or(0); });
    ReportTable table;
    table.title = text(Text::ScoutFives);
    table.note = text(Text::ScoutFivesNote);
    table.isSummary = true;
    table.columns = {{text(Text::Line), "Line", {}, true, true},
                     {capitalised(text(Text::MinutesShort)), "Time"},
                     {text(Text::ScoutForAgainst), "ForAgainst"},
                     {"+/−", "plusMinus"},
                     {text(Text::RatingNet), "netRating"}};
    for (std::size_t i = 0; i < fives.size(); ++i) {
      const bool isOfWorst = i + kShownFives >= fives.size() && i >= kShownFives;
      if (i < kShownFives || isOfWorst)
        table.rows.push_back(fiveRow(fives[i]));
      if (isOfWorst && table.rows.size() == kShownFives + 1)
        table.rows.back().beginsSection = true;
    }
    if (table.rows.empty())
      table.rows.push_back({std::vector<ReportCell>(table.columns.size(), textCell("–"))});
    return table;
  }
  [[nodiscard]] static std::optional<double> netOf(const CourtShare& share) {
    const auto isEnough = [](int possessions) { return possessions >= kFewestPossessions; };
    return std::ranges::all_of(share.possessions, isEnough)
               ? rateNamed("netRating").value(RateBasis::ofAll(kOwnSide, share))
               : std::nullopt;
  }
  [[nodiscard]] ReportRow fiveRow(const Five& five) const {
    const CourtShare& share = five.combination->share;
    std::string jerseys;
    for (const SeasonId player : five.combination->players)
      jerseys += (jerseys.empty() ? "" : " · ") + m_catalogue.players()[player].number;
    ReportRow row;
    row.cells = {
        textCell(std::move(jerseys)),
        {Module1::clockText(share.seconds), ReportCell::Kind::Time, static_cast<double>(share.seconds)},
        textCell(std::to_string(share.points(kOwnSide)) + "–" +
                 std::to_string(share.points(otherSide(kOwnSide)))),
        signedCell(share.plusMinus(kOwnSide)),
        five.net ? signedCell(*five.net) : textCell("–")};
    row.cells.front().isStrong = true;
    return row;
  }

  const SeasonStatistics& m_statistics;
  const GameCatalogue& m_catalogue;
  const SeasonTeamRow& m_row;
  std::optional<SeasonId> m_reader;
  const Texts& m_texts;
  TeamCourse m_course;
  std::vector<SeasonRow> m_players; // by minutes
};

} // namespace

Report scoutSheet(const SeasonStatistics& statistics, std::optional<SeasonId> team,
                  std::optional<SeasonId> reader, const Texts& texts) {
  Report report;
  report.isOnePage = true;
  const auto row =
      team ? std::ranges::find(statistics.teams(), *team, &SeasonTeamRow::team) : statistics.teams().end();
  if (row == statistics.teams().end())
    report.blocks.push_back(
        ReportParagraph{ReportParagraph::Style::Body, std::string(texts.text(Text::ScoutNobody)) + '.'});
  else
    ScoutSheet(statistics, *row, reader, texts).addTo(report);
  return report;
}

} // namespace hooptab
