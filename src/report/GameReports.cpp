#include "report/GameReports.h"

#include "game/EventWords.h"
#include "game/Glossary.h"
#include "game/RunningScore.h"
#include "report/BoxReport.h"
#include "report/GameSheet.h"
#include "report/LeagueBox.h"
#include "report/ReportWords.h"
#include "scorecard/ColumnWords.h"
#include "scorecard/Scoreboard.h"
#include "settings/ChoiceTexts.h"
#include "storage/Module1.h"

#include <algorithm>
#include <utility>

namespace hooptab {

namespace {

constexpr int kSecondsPerMinute = 60;

// Whose best players are named; rebounds are those of both kinds.
constexpr std::string_view kLeaderStatistics[] = {"PTS", "F3M", "FTM", "Ast",   "TR",
                                                  "OR",  "ST",  "BS",  "rating"};
constexpr std::size_t kMostNamed = 3;
constexpr const char* kBlank = "\u00A0"; // where no line may end
constexpr const char* kDash = "\u00A0–\u00A0";

// Rules of the game, in the words of the window that shows them.
constexpr std::pair<Text, int GameDetails::*> kRules[] = {
    {Text::PeriodCount, &GameDetails::periods},
    {Text::MinutesPerPeriod, &GameDetails::minutesPerPeriod},
    {Text::BonusAfter, &GameDetails::bonus},
    {Text::FoulLimit, &GameDetails::personalFoulLimit},
    {Text::TechnicalLimit, &GameDetails::technicalFoulLimit},
};

std::string text(const Texts& texts, Text which) {
  return std::string(texts.text(which));
}

// Who played, with the score; and where, when and by which rules.
void addHead(Report& report, const Game& game, const GameState& state, const Texts& texts) {
  const GameDetails& details = game.details;
  const auto team = [&](Side side) {
    return details.name[side].empty() ? details.abbreviation[side] : details.name[side];
  };
  report.blocks.push_back(
      ReportParagraph{ReportParagraph::Style::Heading,
                      team(Side::Visitor) + "  " + std::to_string(state.points(Side::Visitor)) + kDash +
                          std::to_string(state.points(Side::Home)) + "  " + team(Side::Home)});
  std::string words = text(texts, details.isFinished ? Text::Final : Text::InProgress);
  const auto add = [&](Text label, std::string_view value) {
    if (!value.empty())
      words += ".  " + labelled(label, value, texts);
  };
  add(Text::Date, details.date);
  add(Text::Location, details.place);
  add(Text::GameType, gameTypeText(details.type, texts));
  add(Text::Statistician, details.statistician);
  for (const auto& [label, rule] : kRules)
    add(label, details.*rule > 0 ? std::to_string(details.*rule) : std::string());
  report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Body, std::move(words)});
}

// Points or fouls of both teams, a column for each period.
enum class ByPeriod { Points, Fouls };
ReportTable periodTable(const Scoreboard& board, ByPeriod content, const Texts& texts) {
  ReportTable table;
  table.title = text(texts, content == ByPeriod::Points ? Text::PointsByPeriod : Text::TeamFouls);
  table.isSummary = true;
  table.standsBeside = content == ByPeriod::Fouls;
  table.columns.push_back({text(texts, Text::Team), "Team", {}, true, true});
  for (const Scoreboard::Period& period : board.periods)
    table.columns.push_back({period.label, period.label});
  if (content == ByPeriod::Points)
    table.columns.push_back({text(texts, Text::Total), "Total"});
  for (const Side team : kSides) {
    ReportRow& row = table.rows.emplace_back();
    row.cells.push_back(textCell(board.teams[team].abbreviation));
    for (const Scoreboard::Period& period : board.periods) {
      const int number = content == ByPeriod::Points ? period.points[team] : period.fouls[team];
      row.cells.push_back(period.isPlayed ? numberCell(number) : textCell({}));
    }
    if (content == ByPeriod::Points)
      row.cells.push_back(numberCell(board.teams[team].points));
  }
  return table;
}

ReportTable leadTable(const Scoreboard& board, const GameState& state, const Texts& texts) {
  ReportTable table;
  table.title = text(texts, Text::TimeInLead);
  table.isSummary = true;
  table.standsBeside = true;
  table.columns = {{text(texts, Text::Team), "Team", {}, true, true},
                   {text(texts, Text::Time), "Time"},
                   {capitalised(text(texts, Text::Times)), "Times"}};
  const std::string names[] = {board.teams[Side::Visitor].abbreviation, board.teams[Side::Home].abbreviation,
                               text(texts, Text::LeadTied)};
  for (const std::size_t lead : {0U, 2U, 1U}) {
    ReportCell time = {board.leads[lead].time, ReportCell::Kind::Time,
                       static_cast<double>(std::max(0, state.lead.seconds[lead]))};
    table.rows.push_back({{textCell(names[lead]), std::move(time), numberCell(board.leads[lead].times)}});
  }
  return table;
}

int valueOf(const BoxRow& row, const Statistic& statistic) {
  return static_cast<int>(statistic.value(row.numbers).numerator);
}

// Who has most of it, by name; "5 players" where too many share it.
std::string leaders(const std::vector<BoxRow>& rows, const Statistic& statistic, int best,
                    const Texts& texts) {
  std::string names;
  std::size_t count = 0;
  for (const BoxRow& row : rows) {
    if (row.kind != BoxRowKind::Player || valueOf(row, statistic) != best)
      continue;
    names += (count > 0 ? ", " : "") + row.number + ' ' + row.name;
    ++count;
  }
  return count > kMostNamed ? texts.withPlaceholder(Text::ManyPlayers, std::to_string(count)) : names;
}

ReportTable leaderTable(const CountedGame& counted, const Settings& settings, const Texts& texts) {
  const Game& game = counted.game;
  ReportTable table;
  table.title = text(texts, Text::GameLeaders);
  table.isSummary = true;
  table.columns.push_back({text(texts, Text::Statistic), "Statistic", {}, true, true});
  table.groups.push_back({"", 1});
  PerSide<std::vector<BoxRow>> rows;
  for (const Side team : kSides) {
    rows[team] = boxRows(counted, team, BoxView::Players, texts);
    const std::string side = std::to_string(numberOf(team));
    table.columns.push_back({text(texts, Text::PlayerName), "Name" + side, {}, true});
    table.columns.push_back({text(texts, Text::Value), "Value" + side});
    table.groups.push_back({game.details.abbreviation[team], 2});
  }
  for (const std::string_view name : kLeaderStatistics) {
    const Statistic& statistic = statisticNamed(name);
    ReportRow line;
    bool isLed = false;
    line.cells.push_back(
        textCell(capitalised(statisticTitle(statistic, game.details.statisticLabel, settings, texts))));
    for (const std::vector<BoxRow>& players : rows) {
      int best = 0;
      for (const BoxRow& row : players) {
        if (row.kind == BoxRowKind::Player)
          best = std::max(best, valueOf(row, statistic));
      }
      line.cells.push_back(textCell(best > 0 ? leaders(players, statistic, best, texts) : std::string()));
      line.cells.push_back(best > 0 ? numberCell(best) : textCell({}));
      isLed = isLed || best > 0;
    }
    if (isLed)
      table.rows.push_back(std::move(line));
  }
  return table;
}

// Points of both teams over the time played; nothing for a game without time or without points.
class ScoreDiagram {
 public:
  ScoreDiagram(const Game& game, const Texts& texts) : m_game(game), m_words(game, texts) {}

  LineDrawing drawing() {
    for (const Side team : kSides)
      m_drawing.lines.push_back({m_game.details.abbreviation[team], {{0, 0}}});
    const Scores scores = runningScore(m_game.events);
    for (std::size_t i = 0; i < m_game.events.size(); ++i) {
      if (m_game.events[i].isUnderstood && !m_game.events[i].isDeleted)
        add(m_game.events[i], scores[i]);
    }
    m_drawing.ticks.push_back({m_now, {}});
    for (LineDrawing::Line& line : m_drawing.lines)
      line.points.push_back({m_now, line.points.back()[1]});
    return std::move(m_drawing);
  }

 private:
  void add(const GameEvent& event, const PerSide<int>& score) {
    if (event.period != m_period) {
      m_period = event.period;
      // A regular period takes its full length, also where its last minutes hold no event.
      if (!m_drawing.ticks.empty())
        m_begin += m_length;
      m_length = m_period <= m_game.details.periods ? m_game.details.minutesPerPeriod * kSecondsPerMinute
                                                    : event.clockSeconds;
      m_drawing.ticks.push_back({m_begin, m_words.periodText(m_period)});
      m_now = std::max(m_now, m_begin);
    }
    // A clock that was set back does not turn the line round.
    m_now = std::max(m_now, m_begin + std::max(0.0, m_length - event.clockSeconds));
    for (const Side team : kSides) {
      auto& points = m_drawing.lines[team == Side::Home ? 1 : 0].points;
      if (points.back()[1] == score[team])
        continue;
      points.push_back({m_now, points.back()[1]}); // a step: the score stands until it changes
      points.push_back({m_now, static_cast<double>(score[team])});
    }
  }

  const Game& m_game;
  const EventWords m_words;
  LineDrawing m_drawing;
  int m_period = 0;
  double m_begin = 0;
  double m_length = 0;
  double m_now = 0;
};

std::string shotCaption(const std::vector<Shot>& shots, const Texts& texts) {
  const ShotSummary summary = shotSummary(shots);
  const auto part = [](const std::string& name, const ZoneSum& sum) {
    return name + "\u00A0" + fractionText(sum) + kBlank + Module1::percentText(sum.made, sum.attempted);
  };
  std::string words = part(std::string(kTwoPointers), summary.twoPoints) + "   " +
                      part(std::string(kThreePointers), summary.threePoints);
  if (const ZoneSum sum = shotSums(shots).withoutPlace; sum.attempted > 0)
    words += "   " + fractionText(sum) + ' ' + text(texts, Text::WithoutPlace);
  return words;
}

// Whose shots the chart shows where some rows are not checked.
std::string chosenRows(const ScorecardView& choice, const Texts& texts) {
  std::string names;
  bool isAll = choice.scope() == ScorecardView::Scope::All;
  for (const BoxRow& row : choice.rows()) {
    if (row.kind == BoxRowKind::Total)
      isAll = isAll || choice.checkMark(row) == ScorecardView::CheckMark::All;
    else if (choice.checkMark(row) == ScorecardView::CheckMark::All)
      names += (names.empty() ? "" : ", ") + (row.number.empty() ? row.name : row.number);
  }
  return isAll ? std::string() : "\n" + texts.withPlaceholder(Text::ShotsOf, names.empty() ? "–" : names);
}

void addShotCharts(Report& report, const Game& game, ScorecardView choice, const Texts& texts) {
  bool hasPicture = false;
  for (const Side team : kSides) {
    choice.setTeam(team);
    const std::vector<Shot> shots = choice.shots();
    if (shots.empty())
      continue; // an empty court tells nothing
    ShotDrawing byShot;
    for (const Shot& shot : shots) {
      if (shot.hasPlace)
        byShot.marks.push_back({{shot.x, shot.y}, shot.isMade});
    }
    const std::string title = game.details.abbreviation[team] + " – " + text(texts, Text::ShotChart);
    const std::string caption = shotCaption(shots, texts) + chosenRows(choice, texts);
    const std::string signs =
        std::string("●") + kBlank + text(texts, Text::Made) + "   ✕" + kBlank + text(texts, Text::Missed);
    report.blocks.push_back(ReportPicture{title + ", " + text(texts, Text::ByShot), std::move(byShot),
                                          signs + "   " + caption, std::exchange(hasPicture, true)});
    if (auto zones = zoneWords(shotSums(shots)); !zones.empty())
      report.blocks.push_back(ReportPicture{title + ", " + text(texts, Text::ByZone),
                                            ShotDrawing{{}, std::move(zones)}, caption, true});
  }
}

} // namespace

Report reportOf(const CountedGame& counted, Text title, const Texts& texts) {
  const auto& [game, state] = counted;
  const GameDetails& details = game.details;
  Report report;
  report.title = text(texts, title);
  report.subject = details.abbreviation[Side::Visitor] + ' ' + std::to_string(state.points(Side::Visitor)) +
                   " – " + std::to_string(state.points(Side::Home)) + ' ' + details.abbreviation[Side::Home];
  if (!details.date.empty())
    report.subject += ", " + details.date;
  if (!details.place.empty())
    report.subject += ", " + details.place;
  report.pageWords = text(texts, Text::PageOf);
  const std::size_t slash = game.path.rfind('/');
  const std::string file = game.path.substr(slash == std::string::npos ? 0 : slash + 1);
  report.fileName = proposedFileName(file.substr(0, file.rfind('.')) + ' ' + report.title);
  return report;
}

Report scorecardReport(const std::shared_ptr<const CountedGame>& counted, ScorecardView choice,
                       const Settings& settings, const Texts& texts) {
  const auto& [game, state] = *counted;
  choice.show(counted);
  const Scoreboard board = scoreboard(*counted, texts);
  Report report = reportOf(*counted, Text::Scorecard, texts);
  addHead(report, game, state, texts);
  report.blocks.push_back(periodTable(board, ByPeriod::Points, texts));
  report.blocks.push_back(periodTable(board, ByPeriod::Fouls, texts));
  if (board.hasTime)
    report.blocks.push_back(leadTable(board, state, texts));
  const ReportTable boxes[] = {boxTable(*counted, Side::Visitor, choice, settings, texts),
                               boxTable(*counted, Side::Home, choice, settings, texts)};
  report.blocks.insert(report.blocks.end(), std::begin(boxes), std::end(boxes));
  addNotes(report, boxes[0], texts);
  if (ReportTable leaders = leaderTable(*counted, settings, texts); !leaders.rows.empty())
    report.blocks.push_back(std::move(leaders));
  if (board.hasTime && state.points(Side::Visitor) + state.points(Side::Home) > 0)
    report.blocks.push_back(
        ReportPicture{text(texts, Text::ScoreDiagram), ScoreDiagram(game, texts).drawing()});
  addShotCharts(report, game, choice, texts);
  if (!game.details.notes.empty()) {
    report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Heading, text(texts, Text::GameNotes)});
    report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Body, game.details.notes});
  }
  return report;
}

namespace {

void addLabelled(Report& report, ReportParagraph::Style style,
                 std::initializer_list<std::pair<Text, std::string_view>> labels, const Texts& texts) {
  std::string words;
  for (const auto& [label, value] : labels) {
    if (!value.empty())
      words += (words.empty() ? "" : ".  ") + labelled(label, value, texts);
  }
  if (!words.empty())
    report.blocks.push_back(ReportParagraph{style, std::move(words)});
}

} // namespace

Report leagueReport(const CountedGame& counted, const Texts& texts) {
  const auto& [game, state] = counted;
  const GameDetails& details = game.details;
  Report report = reportOf(counted, Text::LeagueBox, texts);
  addHead(report, game, state, texts);
  addLabelled(report, ReportParagraph::Style::Body,
              {{Text::Competition, details.competition},
               {Text::Round, details.round},
               {Text::Referees, details.referees},
               {Text::Attendance, details.attendance}},
              texts);
  for (const Side team : kSides) {
    report.blocks.push_back(leagueTable(counted, team, texts));
    addLabelled(report, ReportParagraph::Style::Note, {{Text::Coach, details.coach[team]}}, texts);
    const std::string taken = std::to_string(state.teamRows[team].timeOuts);
    report.blocks.push_back(ReportParagraph{ReportParagraph::Style::Note,
                                            capitalised(texts.withPlaceholder(Text::TimeOutsTaken, taken))});
  }
  return report;
}

Report playByPlayReport(const CountedGame& counted, const Texts& texts) {
  const auto& [game, state] = counted;
  Report report = reportOf(counted, Text::PlayByPlay, texts);
  ReportTable table;
  table.title = text(texts, Text::Events);
  const EventWords words(game, texts);
  table.columns = {{text(texts, Text::Period), "Period", {}, true},
                   {text(texts, Text::Time), "Time"},
                   {std::string(words.team(Side::Visitor)), "Team0", {}, true},
                   {text(texts, Text::Score), "Score", {}, false, false, true},
                   {std::string(words.team(Side::Home)), "Team1", {}, true}};
  const Scores scores = runningScore(game.events);
  int period = 0;
  PerSide<int> before = {};
  for (std::size_t i = 0; i < game.events.size(); ++i) {
    const GameEvent& event = game.events[i];
    const bool isOfNobody = event.code == EventCode::XTO && !event.player.team;
    const std::string sides[] = {event.isUnderstood && !isOfNobody ? words.wordsOfSide(i, Side::Visitor)
                                                                   : words.words(i),
                                 words.wordsOfSide(i, Side::Home)};
    if (event.isDeleted || (sides[0].empty() && sides[1].empty()))
      continue;
    ReportRow& row = table.rows.emplace_back();
    const std::string score = scores[i] == before ? std::string()
                                                  : std::to_string(scores[i][Side::Visitor]) + '-' +
                                                        std::to_string(scores[i][Side::Home]);
    row.cells = {textCell(words.periodText(event.period)), textCell(words.clock(i)), textCell(sides[0]),
                 textCell(score), textCell(sides[1])};
    row.beginsSection = period != 0 && event.period != period;
    period = event.period;
    before = scores[i];
  }
  addHead(report, game, state, texts);
  report.blocks.push_back(std::move(table));
  return report;
}

std::span<const GameReport> gameReports() {
  using Counted = std::shared_ptr<const CountedGame>;
  static constexpr GameReport kReports[] = {
      {"sheet", Text::GameSheetReport,
       [](const Counted& counted, const ScorecardView&, const Settings&, const Texts& texts) {
         return gameSheet(*counted, texts);
       }},
      {"scorecard", Text::Scorecard,
       [](const Counted& counted, const ScorecardView& choice, const Settings& settings, const Texts& texts) {
         return scorecardReport(counted, choice, settings, texts);
       }},
      {"scorecard-lines", Text::None,
       [](const Counted& counted, const ScorecardView& choice, const Settings& settings, const Texts& texts) {
         ScorecardView byLine = choice;
         byLine.setView(BoxView::Lines);
         return scorecardReport(counted, byLine, settings, texts);
       }},
      {"league", Text::LeagueBox,
       [](const Counted& counted, const ScorecardView&, const Settings&, const Texts& texts) {
         return leagueReport(*counted, texts);
       }},
      {"play-by-play", Text::PlayByPlay,
       [](const Counted& counted, const ScorecardView&, const Settings&, const Texts& texts) {
         return playByPlayReport(*counted, texts);
       }},
  };
  return kReports;
}

} // namespace hooptab
