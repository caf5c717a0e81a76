#include "report/GameSheet.h"

#include "insight/FlowDrawing.h"
#include "insight/GameInsight.h"
#include "insight/Rates.h"
#include "insight/SignedText.h"
#include "report/FourFactors.h"
#include "report/GameReports.h"
#include "report/ReportWords.h"
#include "scorecard/LeagueSheet.h"
#include "scorecard/Scoreboard.h"
#include "scorecard/ShotChart.h"
#include "settings/ChoiceTexts.h"
#include "storage/Placeholders.h"

#include <algorithm>
#include <tuple>
#include <utility>
#include <vector>

namespace hooptab {

namespace {

constexpr const char* kDot = " · ";
constexpr std::string_view kCounts[] = {"OR", "DR", "TR", "Ast", "TO", "ST", "BS"};
// Not together, as a league's sheet has them: beside the page of the game the same player has the same fouls.
constexpr struct {
  std::string_view code;
  Counter counter;
  EventCode event;
} kFouls[] = {{"PF", Counter::PF, EventCode::SPF}, {"TF", Counter::TF, EventCode::STF}};

class GameSheet {
 public:
  GameSheet(const CountedGame& counted, const Texts& texts)
      : m_counted(counted), m_texts(texts), m_insight(insightOf(counted.game)),
        m_board(scoreboard(counted, texts)), m_flow(flowDrawing(counted.game, texts)) {
    for (const Side team : kSides)
      m_hasTechnicals =
          m_hasTechnicals || leagueRows(counted, team, texts).back().numbers.counters[Counter::TF] > 0;
  }

  Report report() {
    Report report = reportOf(m_counted, Text::GameSheetReport, m_texts);
    report.isOnePage = true;
    report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Heading, score()});
    report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Body, circumstances()});
    report.blocks.push_back(periodTable());
    for (const Side team : kSides)
      report.blocks.push_back(box(team));
    addFlow(report);
    addShotsAndComparison(report);
    report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Note, legend()});
    return report;
  }

 private:
  [[nodiscard]] std::string text(Text which) const { return std::string(m_texts.text(which)); }
  [[nodiscard]] const std::string& abbreviation(Side team) const { return m_flow.teams[team]; }
  [[nodiscard]] ReportTag tag(Side team) const { return {abbreviation(team), m_flow.colours[team]}; }
  [[nodiscard]] bool hasTime() const { return m_board.hasTime; }

  [[nodiscard]] std::string score() const {
    return abbreviation(Side::Visitor) + ' ' + std::to_string(m_board.teams[Side::Visitor].points) + " – " +
           std::to_string(m_board.teams[Side::Home].points) + ' ' + abbreviation(Side::Home);
  }

  [[nodiscard]] std::string circumstances() const {
    const GameDetails& details = m_counted.game.details;
    std::vector<std::string> parts = {std::string(gameTypeText(details.type, m_texts)), details.date,
                                      details.place};
    const auto& periods = m_flow.flow.periods;
    const int overtimes =
        periods.empty() || details.periods < 1 ? 0 : periods.back().number - details.periods;
    if (!details.isFinished)
      parts.push_back(text(Text::InProgress));
    else if (overtimes > 0)
      parts.push_back(overtimes == 1
                          ? text(Text::SheetAfterOvertime)
                          : m_texts.withPlaceholder(Text::SheetAfterOvertimes, std::to_string(overtimes)));
    if (!details.statistician.empty())
      parts.push_back(labelled(Text::Statistician, details.statistician, m_texts));
    std::erase(parts, std::string());
    return inOneLine(parts);
  }

  [[nodiscard]] ReportTable periodTable() const {
    ReportTable table;
    table.title = text(Text::PointsByPeriod);
    table.isSummary = true;
    table.standsBeside = true;
    table.columns.push_back({text(Text::Team), "Team", {}, true, true});
    for (const Scoreboard::Period& period : m_board.periods)
      table.columns.push_back({period.label, period.label});
    table.columns.push_back({text(Text::Total), "Total"});
    for (const Side team : kSides) {
      ReportRow& row = table.rows.emplace_back();
      row.cells.push_back(textCell(abbreviation(team)));
      for (const Scoreboard::Period& period : m_board.periods)
        row.cells.push_back(period.isPlayed ? numberCell(period.points[team]) : textCell({}));
      row.cells.push_back(strong(numberCell(m_board.teams[team].points)));
    }
    table.chart = {table.title, 1, m_board.periods.size(), true};
    return table;
  }

  static ReportCell strong(ReportCell cell) {
    cell.isStrong = true;
    return cell;
  }

  static ReportCell signedCell(int number) {
    return {signedText(number), ReportCell::Kind::Number, static_cast<double>(number)};
  }

  [[nodiscard]] ReportTable box(Side team) const {
    ReportTable table;
    const std::string& name = m_counted.game.details.name[team];
    table.title = name.empty() ? abbreviation(team) : name;
    table.tag = tag(team);
    table.note = teamLine(team);
    addColumns(table);
    std::vector<BoxRow> rows = leagueRows(m_counted, team, m_texts);
    const BoxRow total = rows.back();
    rows.pop_back();
    const auto idle = std::ranges::stable_partition(rows, [](const BoxRow& row) {
      return row.numbers.seconds > 0 || row.numbers.counters != BoxCounters();
    });
    const std::vector<BoxRow> absent(idle.begin(), idle.end());
    rows.erase(idle.begin(), idle.end());
    // Who began first, then by time on court; what belongs to no player last.
    std::ranges::stable_sort(rows, [&](const BoxRow& left, const BoxRow& right) {
      const auto order = [&](const BoxRow& row) {
        return std::tuple(row.kind != BoxRowKind::Player, !isStarter(team, row), -row.numbers.seconds);
      };
      return order(left) < order(right);
    });
    for (const BoxRow& row : rows)
      table.rows.push_back(boxRow(team, row));
    addAbsent(table, absent);
    table.rows.push_back(boxRow(team, total));
    table.rows.back().emphasis = ReportRow::Emphasis::Total;
    return table;
  }

  void addColumns(ReportTable& table) const {
    table.columns = {{"No", "No", text(Text::JerseyNumber), true, true},
                     {text(Text::PlayerName), "Name", {}, true, true}};
    if (hasTime())
      table.columns.push_back({capitalised(text(Text::MinutesShort)), "Time", text(Text::TimeToolTip)});
    for (const std::string_view code : {"PTS", "2P", "3P", "FT"})
      table.columns.push_back({std::string(code), std::string(code)});
    for (const std::string_view code : kCounts) {
      const LeagueColumn& column = leagueColumn(code);
      table.columns.push_back({leagueHeader(column, m_texts), std::string(code), text(column.words)});
    }
    for (const auto& [code, counter, event] : kFouls) {
      if (isShown(counter))
        table.columns.push_back({std::string(code), std::string(code), text(kindOf(event)->wordsText)});
    }
    if (hasLineUps())
      table.columns.push_back({"+/−", "plusMinus", text(Text::PlusMinusTip)});
    table.columns.push_back({text(Text::Rating), "rating", text(Text::RatingFormula)});
  }

  // Most games have no technical foul.
  [[nodiscard]] bool isShown(Counter fouls) const { return fouls != Counter::TF || m_hasTechnicals; }
  [[nodiscard]] bool hasLineUps() const {
    const auto& wereOnCourt = m_counted.state.wereOnCourt;
    return m_insight.isFromEvents && wereOnCourt != PerSide<std::uint16_t>{};
  }
  [[nodiscard]] bool isStarter(Side team, const BoxRow& row) const {
    return row.kind == BoxRowKind::Player && m_insight.isStarter(team, row.entry);
  }

  [[nodiscard]] ReportRow boxRow(Side team, const BoxRow& row) const {
    ReportRow line;
    const BoxNumbers& numbers = row.numbers;
    line.cells = {textCell(row.number + (isStarter(team, row) ? "*" : "")), textCell(row.name)};
    if (hasTime() && row.kind == BoxRowKind::Team)
      line.cells.push_back(textCell({}));
    else if (hasTime())
      line.cells.push_back({valueText({numbers.seconds}, ValueKind::Time), ReportCell::Kind::Time,
                            static_cast<double>(numbers.seconds)});
    line.cells.push_back(strong(numberCell(numbers.points())));
    for (const ShotKinds kinds : {kTwoKinds, kThreeKinds, kThrowKinds})
      line.cells.push_back(textCell(fractionText({numbers.made(kinds), numbers.attempted(kinds)})));
    for (const std::string_view code : kCounts)
      line.cells.push_back(numberCell(static_cast<int>(leagueColumn(code).value(row).numerator)));
    for (const auto& [code, counter, event] : kFouls) {
      if (isShown(counter))
        line.cells.push_back(numberCell(numbers.counters[counter]));
    }
    if (hasLineUps()) {
      const int plusMinus = row.kind == BoxRowKind::Player
                                ? m_insight.players[team][static_cast<std::size_t>(row.entry)].plusMinus(team)
                                : 0;
      line.cells.push_back(row.kind == BoxRowKind::Player ? signedCell(plusMinus) : textCell({}));
    }
    const int rating = numbers.rating();
    line.cells.push_back(rating < 0 ? signedCell(rating) : numberCell(rating));
    return line;
  }

  // One row names all of them.
  void addAbsent(ReportTable& table, const std::vector<BoxRow>& absent) const {
    std::string names;
    for (const BoxRow& row : absent) {
      if (row.kind == BoxRowKind::Player)
        names += (names.empty() ? "" : ", ") + row.number + ' ' + row.name;
    }
    if (names.empty())
      return;
    ReportRow& line = table.rows.emplace_back();
    line.isNote = true;
    line.cells.assign(table.columns.size(), textCell({}));
    line.cells[1].text = m_texts.withPlaceholder(Text::SheetDidNotPlay, names);
  }

  [[nodiscard]] std::string teamLine(Side team) const {
    if (!m_insight.isFromEvents)
      return {};
    const auto shown = [&](std::string_view name) {
      const Rate& rate = rateNamed(name);
      return rateText(rate, rate.value(RateBasis::ofAll(team, m_insight.whole)));
    };
    return withPlaceholders(m_texts.text(Text::SheetTeamLine), shown("eFG"),
                            std::to_string(m_insight.whole.possessions[team])) +
           kDot + m_texts.withPlaceholder(Text::SheetPerHundred, shown("offRating"));
  }

  void addFlow(Report& report) const {
    std::vector<std::string> words;
    if (m_flow.emptyWords.empty()) {
      words = flowSummary(m_flow, m_texts);
      if (hasTime())
        words.push_back(withPlaceholders(m_texts.text(Text::SheetInLead),
                                         abbreviation(Side::Visitor) + ' ' + m_board.leads[0].time,
                                         abbreviation(Side::Home) + ' ' + m_board.leads[1].time));
    }
    ReportPicture picture = {text(Text::SheetFlow), m_flow};
    picture.note = inOneLine(words);
    report.blocks.push_back(std::move(picture));
  }

  // Two empty courts would tell nothing.
  void addShotsAndComparison(Report& report) const {
    ReportTable comparison = this->comparison();
    comparison.standsBeside = std::ranges::any_of(m_counted.state.shots, &Shot::hasPlace);
    if (!comparison.standsBeside) {
      report.blocks.push_back(std::move(comparison));
      return;
    }
    report.blocks.push_back(shots(Side::Visitor));
    report.blocks.push_back(std::move(comparison));
    report.blocks.push_back(shots(Side::Home));
    std::get<ReportPicture>(report.blocks.back()).standsBeside = true;
  }

  [[nodiscard]] ReportPicture shots(Side team) const {
    const std::vector<Shot> taken = selectedShots(m_counted.state, {.team = team, .entries = {}});
    ShotDrawing drawing;
    for (const Shot& shot : taken) {
      if (shot.hasPlace)
        drawing.marks.push_back({{shot.x, shot.y}, shot.isMade});
    }
    const BoxNumbers numbers = m_insight.whole.numbers(team);
    ReportPicture picture = {abbreviation(team) + " – " + text(Text::ShotChart), std::move(drawing)};
    picture.tag = tag(team);
    picture.note = m_texts.withPlaceholder(
        Text::SheetOfAllShots, fractionText({numbers.made(kFieldKinds), numbers.attempted(kFieldKinds)}));
    const auto placed = static_cast<int>(std::ranges::count_if(taken, &Shot::hasPlace));
    const auto made = static_cast<int>(
        std::ranges::count_if(taken, [](const Shot& shot) { return shot.hasPlace && shot.isMade; }));
    if (const int others = numbers.attempted(kFieldKinds) - placed; others > 0)
      picture.caption = m_texts.withPlaceholder(Text::SheetWithoutPlace,
                                                fractionText({numbers.made(kFieldKinds) - made, others}));
    return picture;
  }

  [[nodiscard]] ReportTable comparison() const {
    ReportTable table;
    table.title = text(Text::FourFactors);
    table.isSummary = true;
    table.columns = {{abbreviation(Side::Visitor), "Visitor", {}, true},
                     {text(Text::Statistic), "Statistic", {}, true, false, true},
                     {abbreviation(Side::Home), "Home"}};
    addFourFactors(table, m_insight.whole, m_texts);
    if (!m_insight.isFromEvents)
      return table;
    const PerSide<PointOrigins>& origins = m_insight.origins;
    const auto addCount = [&](Text words, PerSide<int> counts) {
      table.rows.push_back(comparedRow({numberCell(counts[Side::Visitor]), numberCell(counts[Side::Home])},
                                       text(words), counts[Side::Visitor] - counts[Side::Home]));
    };
    const auto& [visitor, home] = origins.values;
    addCount(Text::InThePaint, {visitor.paint, home.paint});
    addCount(Text::FromTurnovers, {visitor.fromTurnovers, home.fromTurnovers});
    addCount(Text::SecondChance, {visitor.secondChance, home.secondChance});
    if (visitor.fastBreak && home.fastBreak)
      addCount(Text::FastBreakPoints, {*visitor.fastBreak, *home.fastBreak});
    if (visitor.bench && home.bench)
      addCount(Text::FromTheBench, {*visitor.bench, *home.bench});
    addCount(Text::BiggestLead, peaksOf(m_flow.flow.biggestLead));
    addCount(Text::BiggestRunWord, peaksOf(m_flow.flow.biggestRun));
    return table;
  }

  static PerSide<int> peaksOf(const PerSide<std::optional<MarginFlow::Peak>>& peaks) {
    const auto points = [&](Side team) { return peaks[team] ? peaks[team]->points : 0; };
    return {points(Side::Visitor), points(Side::Home)};
  }

  [[nodiscard]] std::string legend() const {
    std::vector<std::string> parts = {"● " + text(Text::Made), "✕ " + text(Text::Missed)};
    if (hasLineUps())
      parts.push_back(text(Text::SheetStarters));
    parts.push_back(text(Text::SheetRatingFormula));
    parts.push_back(text(Text::BetterIsBold));
    return inOneLine(parts);
  }

  const CountedGame& m_counted;
  const Texts& m_texts;
  GameInsight m_insight;
  Scoreboard m_board;
  FlowDrawing m_flow;
  bool m_hasTechnicals = false;
};

} // namespace

Report gameSheet(const CountedGame& counted, const Texts& texts) {
  return GameSheet(counted, texts).report();
}

} // namespace hooptab
